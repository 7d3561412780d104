#pragma once

#include <cstddef>

namespace ventrix::platform {

// What the handlers ask of the running program as a whole: the busy (hourglass) mouse pointer
// while a file is written, the progress of a long write while the pointer is busy, and ending
// the program at once after the quit question.
class Shell {
public:
    virtual ~Shell() = default;
    virtual void SetBusyPointer(bool busy) = 0;
    // `done` of `total` items written. Shown until the busy pointer is reset; drawn without
    // running any other event. A shell without such a display ignores it.
    virtual void ShowProgress(std::size_t /*done*/, std::size_t /*total*/) { }
    virtual void EndProgram() = 0;
};

} // namespace ventrix::platform
