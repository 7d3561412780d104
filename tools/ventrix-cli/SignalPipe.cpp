#include "ventrix-cli/SignalPipe.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace ventrix::cli {

namespace {

int g_writeEnd = -1;

void OnSignal(int signal)
{
    const int savedErrno = errno;
    const auto byte = static_cast<unsigned char>(signal);
    // A full pipe already holds a wake-up: dropping this one loses nothing.
    [[maybe_unused]] const ssize_t ignored = ::write(g_writeEnd, &byte, 1);
    errno = savedErrno;
}

} // namespace

SignalPipe::SignalPipe(std::initializer_list<int> signalNumbers, std::function<void(int)> onSignal)
    : m_onSignal(std::move(onSignal))
    , m_signals(signalNumbers)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_readEnd = ends[0];
    g_writeEnd = ends[1];
    m_notifier = std::make_unique<QSocketNotifier>(m_readEnd, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { Drain(); });

    struct sigaction action { };
    action.sa_handler = OnSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int signal : m_signals)
        ::sigaction(signal, &action, nullptr);
}

SignalPipe::~SignalPipe()
{
    for (int signal : m_signals)
        std::signal(signal, SIG_DFL);
    m_notifier.reset();
    if (m_readEnd >= 0) {
        ::close(m_readEnd);
        ::close(g_writeEnd);
        g_writeEnd = -1;
    }
}

void SignalPipe::Drain()
{
    unsigned char bytes[16];
    ssize_t count = 0;
    while ((count = ::read(m_readEnd, bytes, sizeof bytes)) > 0) {
        for (ssize_t i = 0; i < count; ++i)
            if (m_onSignal)
                m_onSignal(bytes[i]);
    }
}

} // namespace ventrix::cli
