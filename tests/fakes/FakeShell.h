#pragma once

#include "platform/Shell.h"

#include <vector>

namespace ventrix::fakes {

// Records the busy-pointer changes and whether the program was ended.
class FakeShell : public platform::Shell {
public:
    void SetBusyPointer(bool busy) override { pointerHistory.push_back(busy); }
    void EndProgram() override { ++endCount; }

    bool Busy() const { return !pointerHistory.empty() && pointerHistory.back(); }

    std::vector<bool> pointerHistory;
    int endCount = 0;
};

} // namespace ventrix::fakes
