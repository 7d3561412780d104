#pragma once

#include "link/ReplayPort.h"
#include "platform/Services.h"
#include "platform/UnavailablePrinter.h"
#include "platform/UnavailableSpreadsheet.h"

namespace ventrix::link {

// Every service the link's handlers need, for running the receive path without a window or a
// line: the replay port, timers that only remember their settings, and inert clock, dialogs,
// graph, dial, spreadsheet, printer, paths, shell and graph print surface. Message boxes answer
// Ok, or No to a question. Nothing here draws, waits or touches a file.
class ReplayServices {
public:
    ReplayServices() = default;
    ReplayServices(const ReplayServices&) = delete;
    ReplayServices& operator=(const ReplayServices&) = delete;

    ReplayPort& Port() { return m_port; }
    platform::Services& Services() { return m_services; }

private:
    class StoredTimer : public platform::Timer {
    public:
        void SetInterval(int milliseconds) override { m_interval = milliseconds; }
        int Interval() const override { return m_interval; }
        void SetEnabled(bool enabled) override { m_enabled = enabled; }
        bool Enabled() const override { return m_enabled; }
        void SetOnTick(std::function<void()>) override { }

    private:
        int m_interval = 0;
        bool m_enabled = false;
    };

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

    class NullGraph : public platform::GraphControl {
    public:
        void SetLineWidth(int) override { }
        int LineWidth() const override { return 0; }
        void SetLineStyle(int) override { }
        int LineStyle() const override { return 0; }
        void SetPointStyle(int) override { }
        int PointStyle() const override { return 0; }
        void SetFillToBase(bool) override { }
        bool FillToBase() const override { return false; }
        void SetMajorGrid(platform::GraphAxis, bool) override { }
        bool MajorGrid(platform::GraphAxis) const override { return false; }
        void ClearData() override { }
        void AppendPoint(double) override { }
        void SetAxisCaption(platform::GraphAxis, const std::string&) override { }
        std::string AxisCaption(platform::GraphAxis) const override { return {}; }
        void SetAxisMinimum(platform::GraphAxis, double) override { }
        double AxisMinimum(platform::GraphAxis) const override { return 0.0; }
        void SetAxisMaximum(platform::GraphAxis, double) override { }
        double AxisMaximum(platform::GraphAxis) const override { return 0.0; }
        void SetAutoScale(platform::GraphAxis, bool) override { }
        bool AutoScale(platform::GraphAxis) const override { return false; }
        void AutoScaleNow(platform::GraphAxis) override { }
        void Redraw() override { }
        void SetTrackingMode(int) override { }
        int TrackingMode() const override { return 0; }
        void SetCursorX(int, double) override { }
        double CursorX(int) const override { return 0.0; }
        double CursorY(int) const override { return 0.0; }
        void SetCursorMode(int, int) override { }
        int CursorMode(int) const override { return 0; }
        void SetCursorVisible(int, bool) override { }
        bool CursorVisible(int) const override { return false; }
        void SetOnCursorChange(CursorChangeHandler) override { }
    };

    class NullKnob : public platform::KnobControl {
    public:
        void SetVisible(bool) override { }
        bool Visible() const override { return false; }
        double PointerValue(const std::string&) const override { return 0.0; }
        void SetPointerValue(const std::string&, double) override { }
        double AxisMinimum() const override { return 0.0; }
        void SetAxisMinimum(double) override { }
        double AxisMaximum() const override { return 0.0; }
        void SetAxisMaximum(double) override { }
    };

    class NullPaths : public platform::AppPaths {
    public:
        std::filesystem::path ProgramDirectory() const override { return {}; }
    };

    class NullGraphPrint : public platform::GraphPrintSurface {
    public:
        void SetBackColours(std::uint32_t) override { }
        void SetAxisColours(platform::GraphAxis, std::uint32_t) override { }
        void SetPlotFillToBase(bool) override { }
        void SetPlotLineColour(std::uint32_t) override { }
        void SetPlotFillColour(std::uint32_t) override { }
        void SetLabelFormat(platform::GraphAxis, const std::string&) override { }
        void CaptureToPicture() override { }
    };

    class NullShell : public platform::Shell {
    public:
        void SetBusyPointer(bool) override { }
        void EndProgram() override { }
    };

    ReplayPort m_port;
    StoredTimer m_unlinkTimer;
    StoredTimer m_sampleTimer;
    StoredTimer m_analogTimer;
    StoredTimer m_debugTimer;
    NullClock m_clock;
    NullDialogs m_dialogs;
    NullGraph m_graph;
    NullKnob m_knob;
    platform::UnavailableSpreadsheet m_spreadsheet;
    platform::UnavailablePrinter m_printer;
    NullPaths m_paths;
    NullShell m_shell;
    NullGraphPrint m_graphPrint;
    platform::Services m_services { m_port, { m_unlinkTimer, m_sampleTimer, m_analogTimer, m_debugTimer },
        m_clock, m_dialogs, m_graph, m_knob, m_spreadsheet, m_printer, m_paths, m_shell, m_graphPrint };
};

} // namespace ventrix::link
