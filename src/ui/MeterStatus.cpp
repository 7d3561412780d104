#include "ui/MeterStatus.h"

#include "io/PortNames.h"
#include "state/AppState.h"
#include "ui/DialKnob.h"
#include "ui/LcdPanel.h"

#include <QLabel>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>

namespace ventrix::ui {

namespace {
QLabel* AddLabel(QStatusBar& bar, const char* name, bool permanent)
{
    auto* label = new QLabel(&bar);
    label->setObjectName(QString::fromLatin1(name));
    label->setProperty("role", QStringLiteral("status"));
    if (permanent)
        bar.addPermanentWidget(label);
    else
        bar.addWidget(label);
    return label;
}
} // namespace

MeterStatus::MeterStatus(
    const state::AppState& state, LcdPanel& lcd, DialKnob& dial, QStatusBar& bar, QObject* parent)
    : QObject(parent)
    , m_state(state)
    , m_lcd(lcd)
    , m_dial(dial)
    , m_port(AddLabel(bar, "STATUS_PORT", false))
    , m_activity(AddLabel(bar, "STATUS_ACTIVITY", false))
    , m_samples(AddLabel(bar, "STATUS_SAMPLES", true))
    , m_tick(new QTimer(this))
{
    // A plain Qt timer, not a form timer: it only redraws, so it keeps going while a message box
    // holds up the form's events (the reading then fades, as it should).
    m_tick->setInterval(kTickMs);
    connect(m_tick, &QTimer::timeout, this, &MeterStatus::Refresh);
    m_tick->start();
    Refresh();
}

void MeterStatus::FrameArrived()
{
    if (!m_state.IsAcquiring)
        return;
    m_sinceFrame.start();
    if (!m_live)
        Refresh();
}

void MeterStatus::Refresh()
{
    if (!m_state.IsAcquiring)
        m_sinceFrame.invalidate();
    m_live = m_state.IsAcquiring && m_sinceFrame.isValid() && m_sinceFrame.elapsed() <= m_staleAfterMs;
    m_lcd.SetStale(!m_live);
    m_dial.SetStale(!m_live);

    // Looking at the machine's devices takes a moment: only when the port or the state changes.
    if (m_state.ComPortNumber != m_describedPort || m_state.IsAcquiring != m_describedAcquiring) {
        m_describedPort = m_state.ComPortNumber;
        m_describedAcquiring = m_state.IsAcquiring;
        m_device = io::DeviceForComPort(m_state.ComPortNumber);
        m_port->setToolTip(io::DescribeComPort(m_state.ComPortNumber));
    }
    m_port->setText(PortText());
    m_activity->setText(ActivityText());
    // The colour of the activity text follows its state through the style sheet.
    const QString state = m_live ? QStringLiteral("live")
                                 : (m_state.IsAcquiring ? QStringLiteral("waiting") : QStringLiteral("idle"));
    if (m_activity->property("state").toString() != state) {
        m_activity->setProperty("state", state);
        m_activity->style()->unpolish(m_activity);
        m_activity->style()->polish(m_activity);
    }
    m_samples->setText(SamplesText());
}

QString MeterStatus::DescribePort(int number, const QString& device)
{
    const QString port = QStringLiteral("COM %1").arg(number);
    if (device.isEmpty())
        return port + QStringLiteral(": no serial device");
    if (device.startsWith(QStringLiteral("/dev/pts/")))
        return port + QStringLiteral(": virtual meter on ") + device;
    return port + QStringLiteral(": ") + device;
}

QString MeterStatus::PortText() const
{
    return DescribePort(m_state.ComPortNumber, m_device);
}

QString MeterStatus::ActivityText() const
{
    if (!m_state.IsAcquiring)
        return QStringLiteral("Idle");
    if (m_live)
        return QStringLiteral("Acquiring");
    if (!m_sinceFrame.isValid())
        return QStringLiteral("Acquiring: waiting for the meter");
    return QStringLiteral("Acquiring: no data for %1 s").arg(m_sinceFrame.elapsed() / 1000);
}

QString MeterStatus::SamplesText() const
{
    const long long samples = state::LoggedSamples(m_state);
    return samples == 1 ? QStringLiteral("1 sample logged")
                        : QStringLiteral("%1 samples logged").arg(samples);
}

} // namespace ventrix::ui
