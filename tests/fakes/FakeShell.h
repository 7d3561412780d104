#pragma once

#include "platform/Shell.h"

#include <cstddef>
#include <vector>

namespace ventrix::fakes {

// Records the busy-pointer changes, the progress shown while busy and whether the program was
// ended; help is not shown.
class FakeShell : public platform::Shell {
public:
    void SetBusyPointer(bool busy) override { pointerHistory.push_back(busy); }
    void ShowProgress(std::size_t done, std::size_t total) override
    {
        progress.push_back({ done, total, Busy() });
    }
    void EndProgram() override { ++endCount; }
    void ShowHelp(platform::HelpView) override { }

    bool Busy() const { return !pointerHistory.empty() && pointerHistory.back(); }

    struct Progress {
        std::size_t done;
        std::size_t total;
        bool whileBusy;
    };
    std::vector<bool> pointerHistory;
    std::vector<Progress> progress;
    int endCount = 0;
};

} // namespace ventrix::fakes
