#pragma once

#include "link/ReplayPort.h"
#include "platform/HeadlessGraph.h"
#include "platform/HeadlessKnob.h"
#include "platform/HeadlessPrintSurface.h"
#include "platform/IdleTimer.h"
#include "platform/Services.h"
#include "platform/UnavailablePrinter.h"
#include "platform/UnavailableSpreadsheet.h"

namespace ventrix::link {

// Every service the link's handlers need, for running the receive path without a window or a
// line: the replay port, timers that only remember their settings, a graph that keeps only its
// settings, and inert clock, dialogs, dial, spreadsheet, printer, paths, shell and graph print
// surface. Message boxes answer Ok, or No to a question. Nothing here draws, waits or touches a
// file.
class ReplayServices {
public:
    ReplayServices() = default;
    ReplayServices(const ReplayServices&) = delete;
    ReplayServices& operator=(const ReplayServices&) = delete;

    ReplayPort& Port() { return m_port; }
    platform::Services& Services() { return m_services; }

private:
    class NullClock : public platform::Clock {
    public:
        double TimeOfDay() const override { return 0.0; }
        double SecondsSinceMidnight() const override { return 0.0; }
        std::string DateText() const override { return {}; }
    };

    class NullDialogs : public platform::Dialogs {
    public:
        platform::MessageResult MessageBox(const std::string&, platform::MessageButtons buttons,
            platform::MessageIcon, const std::string&) override
        {
            return buttons == platform::MessageButtons::Ok ? platform::MessageResult::Ok
                                                           : platform::MessageResult::No;
        }
        std::optional<std::string> ShowOpen(const platform::FileDialogRequest&) override { return {}; }
        std::optional<std::string> ShowSave(const platform::FileDialogRequest&) override { return {}; }
        std::optional<platform::PrintDialogResult> ShowPrint(int) override { return {}; }
        void ShowAbout() override { }
    };

    class NullPaths : public platform::AppPaths {
    public:
        std::filesystem::path ProgramDirectory() const override { return {}; }
    };

    class NullShell : public platform::Shell {
    public:
        void SetBusyPointer(bool) override { }
        void EndProgram() override { }
    };

    ReplayPort m_port;
    platform::IdleTimer m_unlinkTimer;
    platform::IdleTimer m_sampleTimer;
    platform::IdleTimer m_analogTimer;
    platform::IdleTimer m_debugTimer;
    NullClock m_clock;
    NullDialogs m_dialogs;
    platform::HeadlessGraph m_graph;
    platform::HeadlessKnob m_knob;
    platform::UnavailableSpreadsheet m_spreadsheet;
    platform::UnavailablePrinter m_printer;
    NullPaths m_paths;
    NullShell m_shell;
    platform::HeadlessPrintSurface m_graphPrint;
    platform::Services m_services { m_port, { m_unlinkTimer, m_sampleTimer, m_analogTimer, m_debugTimer },
        m_clock, m_dialogs, m_graph, m_knob, m_spreadsheet, m_printer, m_paths, m_shell, m_graphPrint };
};

} // namespace ventrix::link
