#pragma once

#include <cstddef>

namespace ventrix::platform {

// The two ways into the program's help: its table of contents and its keyword index.
enum class HelpView { Contents, Index };

// What the handlers ask of the running program as a whole: the busy (hourglass) mouse pointer
// while a file is written, the progress of a long write while the pointer is busy, ending the
// program at once after the quit question, and opening the help. A program without a help viewer
// (the command-line tool) keeps the empty ShowHelp.
class Shell {
public:
    virtual ~Shell() = default;
    virtual void SetBusyPointer(bool busy) = 0;
    // `done` of `total` items written. Shown until the busy pointer is reset; drawn without
    // running any other event. A shell without such a display ignores it.
    virtual void ShowProgress(std::size_t /*done*/, std::size_t /*total*/) { }
    virtual void EndProgram() = 0;
    virtual void ShowHelp(HelpView /*view*/) { }
};

} // namespace ventrix::platform
