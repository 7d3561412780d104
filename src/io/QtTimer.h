#pragma once

#include "io/ModalGate.h"
#include "platform/Timer.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace ventrix::io {

// A form timer on a QTimer. Changing the interval or enabling a disabled timer restarts the
// countdown; writing the same interval or enabling an enabled timer leaves it running. An
// interval of 0 or less never ticks. Ticks go through the modal gate, so none runs while a
// message box or file dialog is open: at most one is kept and run after the box closes, and a
// restart or disable drops it. The object carries the timer's name (UNLINK_TIMER ...) as its
// objectName. Holds no logic beyond this.
class QtTimer : public QObject, public platform::Timer {
    Q_OBJECT
public:
    QtTimer(ModalGate& gate, const QString& name, QObject* parent = nullptr);
    ~QtTimer() override;

    void SetInterval(int milliseconds) override;
    int Interval() const override { return m_interval; }
    void SetEnabled(bool enabled) override;
    bool Enabled() const override { return m_enabled; }
    void SetOnTick(std::function<void()> handler) override;

private:
    void Restart();
    void OnTimeout();

    ModalGate& m_gate;
    QTimer m_timer;
    std::function<void()> m_onTick;
    int m_interval = 0;
    bool m_enabled = false;
    bool m_inTick = false;
};

} // namespace ventrix::io
