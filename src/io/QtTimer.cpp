#include "io/QtTimer.h"

#include <utility>

namespace ventrix::io {

QtTimer::QtTimer(ModalGate& gate, const QString& name, QObject* parent)
    : QObject(parent)
    , m_gate(gate)
{
    setObjectName(name);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &QtTimer::OnTimeout);
}

QtTimer::~QtTimer()
{
    m_gate.Forget(this);
}

void QtTimer::SetInterval(int milliseconds)
{
    // Writing the interval a running timer already has keeps its countdown: the frame path
    // re-arms the dial's timer on every frame, and a meter sending faster than the timer's
    // interval must not keep it from ever ticking.
    if (milliseconds == m_interval)
        return;
    m_interval = milliseconds;
    Restart();
}

void QtTimer::SetEnabled(bool enabled)
{
    if (enabled == m_enabled)
        return;
    m_enabled = enabled;
    Restart();
}

void QtTimer::SetOnTick(std::function<void()> handler)
{
    m_onTick = std::move(handler);
}

void QtTimer::Restart()
{
    // A tick held back by an open box belongs to the countdown that is being replaced.
    m_gate.Forget(this);
    if (m_enabled && m_interval > 0)
        m_timer.start(m_interval);
    else
        m_timer.stop();
}

void QtTimer::OnTimeout()
{
    // A tick that falls due while this timer's own handler still runs (it is showing a box) is
    // dropped, as the handler cannot be entered twice; the countdown goes on.
    if (m_inTick)
        return;
    m_gate.Dispatch(this, [this] {
        if (!m_enabled || !m_onTick)
            return;
        m_inTick = true;
        m_onTick();
        m_inTick = false;
    });
}

} // namespace ventrix::io
