#pragma once

namespace ventrix::platform {

// The two ways into the program's help: its table of contents and its keyword index.
enum class HelpView { Contents, Index };

// What the handlers ask of the running program as a whole: the busy (hourglass) mouse pointer
// while a file is written, ending the program at once after the quit question, and opening the
// help. A program without a help viewer (the command-line tool) keeps the empty ShowHelp.
class Shell {
public:
    virtual ~Shell() = default;
    virtual void SetBusyPointer(bool busy) = 0;
    virtual void EndProgram() = 0;
    virtual void ShowHelp(HelpView /*view*/) { }
};

} // namespace ventrix::platform
