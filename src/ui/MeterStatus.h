#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>

class QLabel;
class QStatusBar;
class QTimer;

namespace ventrix::state {
struct AppState;
}

namespace ventrix::ui {

class DialKnob;
class LcdPanel;

// Tells the user what the program is doing. On a short tick it reads the shared state and the
// time since the last accepted frame; it draws the LCD and the dial faded while their reading
// is not live (acquisition stopped, no frame yet since the start, or none for more than two
// seconds), and keeps three texts in the status bar: the port with its device (plainly "virtual
// meter" for a pseudo-terminal), acquiring or idle, and the number of samples logged. It reads
// the state and never writes it; it changes no caption of the LCD.
class MeterStatus : public QObject {
    Q_OBJECT
public:
    static constexpr int kStaleAfterMs = 2000;
    static constexpr int kTickMs = 200;

    MeterStatus(const state::AppState& state, LcdPanel& lcd, DialKnob& dial, QStatusBar& bar,
        QObject* parent = nullptr);

    // A frame was accepted just now.
    void FrameArrived();
    // What the tick does: the faded drawing and the three texts brought up to date.
    void Refresh();
    // How long without a frame the reading stays live (tests shorten it).
    void SetStaleAfter(int milliseconds) { m_staleAfterMs = milliseconds; }

    bool ReadingLive() const { return m_live; }
    QString PortText() const;
    QString ActivityText() const;
    QString SamplesText() const;

    // "COM 2: /dev/ttyUSB0", "COM 1: virtual meter on /dev/pts/3", "COM 3: no serial device".
    static QString DescribePort(int number, const QString& device);

private:
    const state::AppState& m_state;
    LcdPanel& m_lcd;
    DialKnob& m_dial;
    QLabel* m_port;
    QLabel* m_activity;
    QLabel* m_samples;
    QTimer* m_tick;
    QElapsedTimer m_sinceFrame; // invalid until a frame arrives while acquiring
    int m_staleAfterMs = kStaleAfterMs;
    bool m_live = false;
    int m_describedPort = -1; // the port number and state the device was last looked up for
    bool m_describedAcquiring = false;
    QString m_device;
};

} // namespace ventrix::ui
