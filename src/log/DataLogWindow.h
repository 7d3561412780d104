#pragma once

#include "log/MemoryGauge.h"
#include "platform/MainControls.h"
#include "platform/Services.h"
#include "state/AppState.h"

#include <functional>
#include <string>

namespace ventrix::link {
class SerialLink;
}

namespace ventrix::log {

class SampleLogger;

// The data log window's commands: paging back through the pages in the swap file and forward to
// the memory page (lines rebuilt from the records), and clearing the whole log after a question.
// Appending live lines is the sample logger's.
class DataLogWindow {
public:
    DataLogWindow(state::AppState& state, platform::MainControls& controls, platform::Services& services,
        MemoryGauge& memory, link::SerialLink& link, SampleLogger& logger,
        std::function<void()> showEmptyGraph);

    void ShowPreviousPage();
    void ShowNextPage();
    void ClearLog();

private:
    void ShowSwapPage(int page);
    void ShowLines(const std::string& text);
    void SetPageButtons();

    state::AppState& m_state;
    platform::MainControls& m_controls;
    platform::Services& m_services;
    MemoryGauge& m_memory;
    link::SerialLink& m_link;
    SampleLogger& m_logger;
    std::function<void()> m_showEmptyGraph;
};

} // namespace ventrix::log
