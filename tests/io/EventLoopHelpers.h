#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <functional>

namespace ventrix::testing {

// Runs the event loop for about the given time, or until done() says so.
inline void SpinEvents(int milliseconds, const std::function<bool()>& done = {})
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < milliseconds && !(done && done())) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
}

// Once a modal box of type Box is open and `afterMs` have passed, hands it to `act` (which must
// close it). Polls from the event loop that the box runs.
template <typename Box> void WhenModalShown(std::function<void(Box*)> act, int afterMs = 0)
{
    auto* poll = new QTimer;
    auto* clock = new QElapsedTimer;
    clock->start();
    poll->setInterval(5);
    QObject::connect(poll, &QTimer::timeout, [poll, clock, act, afterMs] {
        auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
        if (box == nullptr || clock->elapsed() < afterMs) {
            if (clock->elapsed() > 5000) { // give up; the test fails on the missing answer
                poll->deleteLater();
                delete clock;
            }
            return;
        }
        poll->stop();
        poll->deleteLater();
        delete clock;
        act(box);
    });
    poll->start();
}

} // namespace ventrix::testing
