#include "ventrix-cli/LogSession.h"

#include "app/SettingsBytes.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <unistd.h>

namespace ventrix::cli {

namespace {
constexpr const char* kPrefix = "ventrix-cli log: ";
constexpr long long kMaxTimerMs = 86'400'000; // the duration is checked at least once a day
} // namespace

LogSession::LogSession(LogOptions options)
    : m_options(std::move(options))
    , m_workbook([this] { return m_options.xlsxFile.value_or(std::filesystem::path()); },
          [this](const std::filesystem::path&, bool written) { m_workbookWritten = written; })
    , m_paths(m_options.directory)
    , m_services { m_serial, { m_unlinkTimer, m_observedSampleTimer, m_analogTimer, m_debugTimer }, m_clock,
        m_dialogs, m_graph, m_knob, m_workbook, m_printer, m_paths, m_shell, m_graphPrint }
    , m_form(m_state, m_controls, m_services)
    , m_progress(::isatty(STDERR_FILENO) == 1)
{
    m_shell.SetOnEnd([this] { Finish(0); });
    m_durationTimer.setSingleShot(true);
    QObject::connect(&m_durationTimer, &QTimer::timeout, [this] { CheckDuration(); });
}

std::optional<int> LogSession::Start()
{
    m_form.Form_Load();
    // The port and the interval as a user picks them in the Option menu. A device path stands in
    // for COM 1 through the same developer setting the program reads (this process only).
    int com = m_options.comNumber;
    if (com == 0) {
        qputenv("VENTRIX_COM1", QByteArray::fromStdString(m_options.port));
        com = 1;
    }
    m_controls.COM_ITEMS.at(static_cast<std::size_t>(com - 1)).Click();
    const auto rate = std::find(
        app::kSampleRateSeconds.begin(), app::kSampleRateSeconds.end(), m_options.intervalSeconds);
    if (rate != app::kSampleRateSeconds.end())
        m_controls.SEC_ITEMS.at(static_cast<std::size_t>(rate - app::kSampleRateSeconds.begin())).Click();

    m_controls.CMD_PLAY.Click();
    if (!m_state.IsAcquiring) {
        std::string device = m_options.port;
        if (m_options.comNumber != 0 && !m_serial.DeviceName().isEmpty())
            device += " (" + m_serial.DeviceName().toStdString() + ")";
        std::fprintf(stderr, "%sCannot open %s\n", kPrefix, device.c_str());
        return 2;
    }
    m_started = true;
    m_elapsed.start();
    if (m_options.durationSeconds > 0)
        CheckDuration();
    return std::nullopt;
}

void LogSession::Finish(int status)
{
    if (m_finished)
        return;
    m_finished = true;
    m_durationTimer.stop();
    if (m_state.IsAcquiring)
        m_controls.CMD_STOP.Click();
    if (status == 0 && !WriteFiles())
        status = 1;
    if (m_progressShown)
        std::fputs("\n", stderr);
    QCoreApplication::exit(status);
}

void LogSession::OnMessage(const std::string& text, platform::MessageButtons buttons)
{
    // The box that says the port cannot be opened is answered by Start() with the device's name.
    if (!m_started)
        return;
    Notice(buttons == platform::MessageButtons::YesNo ? text + " Yes" : text);
    if (m_finished)
        return;
    // Both run inside a handler that is still busy: end once it has returned.
    if (m_state.IsBufferFull)
        QTimer::singleShot(0, [this] { Finish(0); });
    else if (!m_state.IsAcquiring) // the relative-mode refusal stopped acquisition
        QTimer::singleShot(0, [this] {
            m_finished = true;
            if (m_progressShown)
                std::fputs("\n", stderr);
            QCoreApplication::exit(3);
        });
}

void LogSession::AfterSampleTick()
{
    const long long count = state::LoggedSamples(m_state);
    if (count == m_printed)
        return;
    m_printed = count;
    // The line the data log window just showed for the sample (its reading is still current).
    const std::string line = log::SampleLogger::LiveLogLine(m_state) + '\n';
    if (m_progressShown)
        std::fputs("\r\033[K", stderr);
    std::fwrite(line.data(), 1, line.size(), stdout);
    std::fflush(stdout);
    ShowProgress();
    if (m_options.samples > 0 && count >= m_options.samples)
        Finish(0);
}

void LogSession::CheckDuration()
{
    const long long left = m_options.durationSeconds * 1000 - m_elapsed.elapsed();
    if (left <= 0) {
        Finish(0);
        return;
    }
    m_durationTimer.start(static_cast<int>(std::min(left, kMaxTimerMs)));
}

bool LogSession::WriteFiles()
{
    bool written = true;
    if (m_options.textFile) {
        const std::string path = m_options.textFile->string();
        m_state.TextFilePath = path;
        m_controls.MAIN_FRM.SetCaption("Ventrix 1.0");
        m_form.Files().LogText().WriteLogText();
        // The program shows the file in the window title once it is written.
        if (m_controls.MAIN_FRM.Caption() != path + " - Ventrix 1.0") {
            Notice("cannot write " + path);
            written = false;
        }
    }
    if (m_options.xlsxFile) {
        m_workbookWritten = false;
        m_form.Files().Export().ExportToSpreadsheet();
        if (!m_workbookWritten) {
            Notice("cannot write " + m_options.xlsxFile->string());
            written = false;
        }
    }
    return written;
}

void LogSession::Notice(const std::string& text)
{
    if (m_progressShown)
        std::fputs("\r\033[K", stderr);
    std::fprintf(stderr, "%s%s\n", kPrefix, text.c_str());
    m_progressShown = false;
    if (m_started && !m_finished)
        ShowProgress();
}

void LogSession::ShowProgress()
{
    if (!m_progress)
        return;
    // The time left as the memory bar says it (" 5 Hrs 30 Mins" has a leading blank there).
    std::string left = m_controls.MEMORY_BAR.Caption();
    left.erase(0, left.find_first_not_of(' '));
    const long long count = state::LoggedSamples(m_state);
    std::fprintf(
        stderr, "\r%lld %s logged, %s left\033[K", count, count == 1 ? "sample" : "samples", left.c_str());
    std::fflush(stderr);
    m_progressShown = true;
}

} // namespace ventrix::cli
