#include "Commands.h"

#include "ventrix-cli/CommandLine.h"
#include "ventrix-cli/DemoScenario.h"
#include "ventrix-cli/FrameEncoder.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <poll.h>
#include <pty.h>
#include <string>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>
#include <vector>

namespace ventrix::cli {

namespace {

constexpr long kByteNanoseconds = 2083333; // 10 bits at 4800 baud
constexpr long kNanosecondsPerSecond = 1000000000L;

volatile std::sig_atomic_t g_stop = 0;

void OnStopSignal(int)
{
    g_stop = 1;
}

int Fail(const std::string& message)
{
    std::fprintf(stderr, "ventrix-cli meter: %s\n", message.c_str());
    return 2;
}

timespec Add(timespec t, long long nanoseconds)
{
    long long total = t.tv_nsec + nanoseconds;
    t.tv_sec += static_cast<time_t>(total / kNanosecondsPerSecond);
    t.tv_nsec = static_cast<long>(total % kNanosecondsPerSecond);
    return t;
}

bool Before(const timespec& a, const timespec& b)
{
    return a.tv_sec < b.tv_sec || (a.tv_sec == b.tv_sec && a.tv_nsec < b.tv_nsec);
}

// Sleeps until the given time; false when a stop signal came first.
bool SleepUntil(const timespec& when)
{
    while (!g_stop) {
        const int rc = clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &when, nullptr);
        if (rc == 0)
            return !g_stop;
        if (rc != EINTR)
            return false;
    }
    return false;
}

// Writes one byte to the master end, waiting for room; false on a stop signal or an error.
bool WriteByte(int master, unsigned char byte)
{
    while (!g_stop) {
        const ssize_t n = ::write(master, &byte, 1);
        if (n == 1)
            return true;
        if (n < 0 && errno != EAGAIN && errno != EINTR)
            return false;
        pollfd waitFor { master, POLLOUT, 0 };
        ::poll(&waitFor, 1, 100);
    }
    return false;
}

std::vector<std::string> DemoFrames(std::string& error)
{
    std::vector<std::string> frames;
    for (const MeterDisplay& display : DemoScenario()) {
        const auto frame = EncodeFrame(display, error);
        if (!frame)
            return {};
        frames.emplace_back(frame->begin(), frame->end());
    }
    return frames;
}

} // namespace

int RunMeter(int argc, char** argv)
{
    CommandLine args(QStringLiteral("meter"),
        QStringLiteral("A virtual X9-410 on a pseudo-terminal. Prints the device path on the first line,\n"
                       "then sends frames at the meter's pace, each byte paced as at 4800 baud, until\n"
                       "Ctrl-C: a demonstration that walks through every function, prefix, word and\n"
                       "annunciator, or the raw bytes of a capture file (repeated)."),
        QStringLiteral("Example:\n"
                       "  ventrix-cli meter &        # prints e.g. /dev/pts/3\n"
                       "  VENTRIX_COM1=/dev/pts/3 ventrix\n"));
    args.AddOption({ QStringLiteral("frames"), QStringLiteral("Send the raw bytes of this capture instead."),
        QStringLiteral("FILE") });
    args.AddOption({ QStringLiteral("rate"),
        QStringLiteral("Frames per second, above 0 and up to 100 (2.5)."), QStringLiteral("N") });
    if (const auto status = args.Parse(argc, argv))
        return *status;
    if (!args.Positionals().isEmpty())
        return args.Fail("unexpected argument " + args.Positionals().first().toStdString());
    double rate = 2.5;
    if (args.IsSet(QStringLiteral("rate"))) {
        const std::string text = args.Value(QStringLiteral("rate")).toStdString();
        char* end = nullptr;
        rate = std::strtod(text.c_str(), &end);
        if (end == text.c_str() || *end != '\0' || !(rate > 0 && rate <= 100))
            return args.Fail(
                "--rate must be a number of frames per second above 0 and up to 100, not " + text);
    }
    const std::string framesFile = args.Value(QStringLiteral("frames")).toStdString();
    const char* framesPath = args.IsSet(QStringLiteral("frames")) ? framesFile.c_str() : nullptr;

    // What to send, one piece per frame period.
    std::vector<std::string> pieces;
    if (framesPath != nullptr) {
        std::ifstream in(framesPath, std::ios::binary);
        if (!in)
            return Fail(std::string("cannot read ") + framesPath + ": " + std::strerror(errno));
        const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        if (in.bad())
            return Fail(std::string("cannot read ") + framesPath);
        if (bytes.empty())
            return Fail(std::string(framesPath) + " is empty");
        for (std::size_t at = 0; at < bytes.size(); at += 9)
            pieces.push_back(bytes.substr(at, 9));
    } else {
        std::string error;
        pieces = DemoFrames(error);
        if (pieces.empty())
            return Fail("demonstration frame refused: " + error);
    }

    int master = -1;
    int slave = -1;
    char name[256] = {};
    if (openpty(&master, &slave, name, nullptr, nullptr) != 0)
        return Fail(std::string("cannot open a pseudo-terminal: ") + std::strerror(errno));
    // The slave end stays open here so the terminal lives on while the program closes and
    // reopens it; raw 4800 8N1 like the meter's line.
    termios line {};
    tcgetattr(slave, &line);
    cfmakeraw(&line);
    cfsetispeed(&line, B4800);
    cfsetospeed(&line, B4800);
    tcsetattr(slave, TCSANOW, &line);
    fcntl(master, F_SETFL, fcntl(master, F_GETFL) | O_NONBLOCK);

    struct sigaction stop { };
    stop.sa_handler = OnStopSignal;
    sigemptyset(&stop.sa_mask);
    stop.sa_flags = 0; // no restart: a signal ends the sleeps at once
    sigaction(SIGINT, &stop, nullptr);
    sigaction(SIGTERM, &stop, nullptr);
    sigaction(SIGHUP, &stop, nullptr);
    std::signal(SIGPIPE, SIG_IGN);

    std::printf("%s\n", name);
    std::fflush(stdout);
    std::fprintf(stderr, "ventrix-cli meter: sending %s on %s at %g frames per second; Ctrl-C stops\n",
        framesPath ? framesPath : "the demonstration", name, rate);

    const long long period = static_cast<long long>(kNanosecondsPerSecond / rate);
    timespec frameStart {};
    clock_gettime(CLOCK_MONOTONIC, &frameStart);
    bool ok = true;
    for (std::size_t k = 0; ok && !g_stop; k = (k + 1) % pieces.size()) {
        // Bytes still waiting from the last frame mean nobody reads the line: drop them, as a
        // real line would, instead of letting stale readings pile up.
        int pending = 0;
        if (ioctl(slave, FIONREAD, &pending) == 0 && pending > 0)
            tcflush(slave, TCIFLUSH);
        // A reader that opened the line exclusively and then died without closing it would
        // otherwise keep every later reader out until the meter is restarted.
        ioctl(slave, TIOCNXCL);

        timespec byteDue = frameStart;
        for (unsigned char byte : pieces[k]) {
            if (!WriteByte(master, byte)) {
                ok = false;
                break;
            }
            byteDue = Add(byteDue, kByteNanoseconds);
            if (!SleepUntil(byteDue))
                break;
        }
        frameStart = Add(frameStart, period);
        timespec now {};
        clock_gettime(CLOCK_MONOTONIC, &now);
        if (Before(frameStart, now))
            frameStart = now; // slower than the rate asked for: send back to back
        if (!SleepUntil(frameStart))
            break;
    }

    ::close(master);
    ::close(slave);
    if (!ok && !g_stop)
        return Fail(std::string("cannot write to the pseudo-terminal: ") + std::strerror(errno));
    return 0;
}

} // namespace ventrix::cli
