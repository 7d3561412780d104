#pragma once

#include "platform/Shell.h"
#include "state/AppState.h"

#include <cstddef>

namespace ventrix::files {

// Counts the samples of the whole log as a writer passes them and reports the count to the
// shell's progress display once per page of the log, so a small log shows nothing.
class LogProgress {
public:
    LogProgress(platform::Shell& shell, const state::AppState& state)
        : m_shell(shell)
        , m_total(static_cast<std::size_t>(state.SwapPageCount) * state::kPageSize
              + static_cast<std::size_t>(state.PageFill > 1 ? state.PageFill - 1 : 0))
    {
    }

    void Step()
    {
        if (++m_done % state::kPageSize == 0)
            m_shell.ShowProgress(m_done, m_total);
    }

private:
    platform::Shell& m_shell;
    std::size_t m_total;
    std::size_t m_done = 0;
};

} // namespace ventrix::files
