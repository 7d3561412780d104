#pragma once

namespace ventrix::platform {

// What the handlers ask of the running program as a whole: the busy (hourglass) mouse pointer
// while a file is written, and ending the program at once after the quit question.
class Shell {
public:
    virtual ~Shell() = default;
    virtual void SetBusyPointer(bool busy) = 0;
    virtual void EndProgram() = 0;
};

} // namespace ventrix::platform
