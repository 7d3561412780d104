#pragma once

#include <QSocketNotifier>

#include <functional>
#include <initializer_list>
#include <memory>
#include <vector>

namespace ventrix::cli {

// Turns termination signals (SIGINT, SIGTERM ...) into a call on the Qt event loop: the signal
// handler only writes the signal's number into a pipe, whose read end a QSocketNotifier watches,
// so the handler given runs as an ordinary event, never inside the signal. One per process; the
// signals get their default action back when it goes.
class SignalPipe {
public:
    SignalPipe(std::initializer_list<int> signalNumbers, std::function<void(int signal)> onSignal);
    ~SignalPipe();
    SignalPipe(const SignalPipe&) = delete;
    SignalPipe& operator=(const SignalPipe&) = delete;

private:
    void Drain();

    std::function<void(int)> m_onSignal;
    std::vector<int> m_signals;
    int m_readEnd = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace ventrix::cli
