#pragma once

#include "platform/Shell.h"

#include <vector>

namespace ventrix::fakes {

// Records the busy-pointer changes, whether the program was ended and each help view opened.
class FakeShell : public platform::Shell {
public:
    void SetBusyPointer(bool busy) override { pointerHistory.push_back(busy); }
    void EndProgram() override { ++endCount; }
    void ShowHelp(platform::HelpView view) override { helpViews.push_back(view); }

    bool Busy() const { return !pointerHistory.empty() && pointerHistory.back(); }

    std::vector<bool> pointerHistory;
    int endCount = 0;
    std::vector<platform::HelpView> helpViews;
};

} // namespace ventrix::fakes
