#pragma once

#include "platform/Shell.h"

#include <cstddef>
#include <vector>

namespace ventrix::fakes {

// Records the busy-pointer changes, the progress shown while busy, whether the program was ended
// and each help view opened.
class FakeShell : public platform::Shell {
public:
    void SetBusyPointer(bool busy) override { pointerHistory.push_back(busy); }
    void ShowProgress(std::size_t done, std::size_t total) override
    {
        progress.push_back({ done, total, Busy() });
    }
    void EndProgram() override { ++endCount; }
    void ShowHelp(platform::HelpView view) override { helpViews.push_back(view); }

    bool Busy() const { return !pointerHistory.empty() && pointerHistory.back(); }

    struct Progress {
        std::size_t done;
        std::size_t total;
        bool whileBusy;
    };
    std::vector<bool> pointerHistory;
    std::vector<Progress> progress;
    int endCount = 0;
    std::vector<platform::HelpView> helpViews;
};

} // namespace ventrix::fakes
