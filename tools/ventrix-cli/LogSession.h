#pragma once

#include "app/MainForm.h"
#include "io/ModalGate.h"
#include "io/QtSerialPortAdapter.h"
#include "io/QtTimer.h"
#include "io/SystemClock.h"
#include "io/XlsxSpreadsheet.h"
#include "platform/HeadlessGraph.h"
#include "platform/HeadlessKnob.h"
#include "platform/HeadlessPrintSurface.h"
#include "platform/IdleTimer.h"
#include "platform/MainControls.h"
#include "platform/Services.h"
#include "platform/UnavailablePrinter.h"
#include "state/AppState.h"
#include "ventrix-cli/ConsoleDialogs.h"
#include "ventrix-cli/ConsoleShell.h"
#include "ventrix-cli/DirectoryPaths.h"
#include "ventrix-cli/TickObserver.h"

#include <QElapsedTimer>
#include <QTimer>

#include <filesystem>
#include <optional>
#include <string>

namespace ventrix::cli {

// What `ventrix-cli log` was asked to do.
struct LogOptions {
    std::string port; // as typed: a device path or COM1 .. COM4
    int comNumber = 0; // 1 .. 4 for COMn, 0 for a device path
    int intervalSeconds = 1;
    std::optional<std::filesystem::path> textFile;
    std::optional<std::filesystem::path> xlsxFile;
    long long samples = 0; // 0: no limit
    long long durationSeconds = 0; // 0: no limit
    std::filesystem::path directory;
};

// One headless logging run: the window's form over console services. Start-up, the port and the
// interval chosen through the option menus, then Play, exactly as a user of the window would;
// every sample's live line goes to standard output as it is taken. At the end (the sample count
// or the time reached, a termination signal, the log full) acquisition is stopped and the text
// file and workbook are written by the program's own Save and Export. The caller holds the data
// directory's lock and runs the event loop.
class LogSession {
public:
    explicit LogSession(LogOptions options);
    LogSession(const LogSession&) = delete;
    LogSession& operator=(const LogSession&) = delete;

    // Start-up and Play. Nothing when logging now runs (the event loop ends it with its exit
    // status); otherwise the exit status.
    std::optional<int> Start();
    // Stops logging and ends the event loop with `status`; on 0 the files are written first (a
    // file that cannot be written makes it 1). Only the first call counts.
    void Finish(int status);

private:
    void OnMessage(const std::string& text, platform::MessageButtons buttons);
    void AfterSampleTick();
    void CheckDuration();
    bool WriteFiles();
    void Notice(const std::string& text);
    void ShowProgress();

    LogOptions m_options;
    state::AppState m_state;
    platform::MainControls m_controls;
    io::ModalGate m_gate;
    io::QtSerialPortAdapter m_serial { m_gate };
    io::QtTimer m_unlinkTimer { m_gate, QStringLiteral("UNLINK_TIMER") };
    io::QtTimer m_sampleTimer { m_gate, QStringLiteral("SAMPLE_TIMER") };
    TickObserver m_observedSampleTimer { m_sampleTimer, [this] { AfterSampleTick(); } };
    platform::IdleTimer m_analogTimer;
    io::QtTimer m_debugTimer { m_gate, QStringLiteral("DEBUG_TIMER") };
    io::SystemClock m_clock;
    ConsoleDialogs m_dialogs { [this](const std::string& text, platform::MessageButtons buttons) {
        OnMessage(text, buttons);
    } };
    platform::HeadlessGraph m_graph;
    platform::HeadlessKnob m_knob;
    io::XlsxSpreadsheet m_workbook;
    platform::UnavailablePrinter m_printer;
    DirectoryPaths m_paths;
    ConsoleShell m_shell;
    platform::HeadlessPrintSurface m_graphPrint;
    platform::Services m_services;
    app::MainForm m_form;

    QTimer m_durationTimer;
    QElapsedTimer m_elapsed;
    long long m_printed = 0; // samples whose line has been printed
    bool m_started = false; // Play succeeded
    bool m_finished = false;
    bool m_workbookWritten = false;
    bool m_progress = false; // standard error is a terminal: keep a progress line there
    bool m_progressShown = false;
};

} // namespace ventrix::cli
