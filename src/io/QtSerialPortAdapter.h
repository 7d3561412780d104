#pragma once

#include "io/ModalGate.h"
#include "platform/SerialPort.h"

#include <QObject>
#include <QSerialPort>
#include <QString>
#include <QTimer>

namespace ventrix::io {

// The serial line on QSerialPort, shaped as the handlers expect it. Received bytes are buffered
// here, and as soon as at least the receive threshold is buffered, all of them are delivered as
// one receive event; events go through the modal gate, so no serial handler runs while a modal
// box is open (the bytes wait and are delivered when it closes). Line errors become the event
// codes 1001 to 1011. When the device vanishes (USB adapter unplugged, pseudo-terminal closed)
// the underlying port is closed at once, the port still counts as open for the handlers (the
// line just falls silent, and the link supervision takes over) and the same device is opened
// again every second until it is back or Close() is called (a vanished pseudo-terminal's number
// taken by a new terminal is not the device coming back). On Linux, Qt reports no parity, framing or break
// errors, so there the line-error codes do not occur. Knows nothing about frames.
class QtSerialPortAdapter : public QObject, public platform::SerialPort {
    Q_OBJECT
public:
    explicit QtSerialPortAdapter(ModalGate& gate, QObject* parent = nullptr);
    ~QtSerialPortAdapter() override;

    void SetSettings(const std::string& settings) override { m_settings = settings; }
    std::string Settings() const override { return m_settings; }
    void SetCommPort(int port) override { m_port = port; }
    int CommPort() const override { return m_port; }
    bool IsOpen() const override { return m_open; }
    bool Open() override;
    void Close() override;
    void SetInputLen(int length) override { m_inputLen = length; }
    void SetRThreshold(int count) override { m_threshold = count; }
    int RThreshold() const override { return m_threshold; }
    int InBufferCount() const override { return static_cast<int>(m_buffer.size()); }
    void DiscardInput() override;
    int CommEvent() const override { return m_event; }
    std::string ReadInput() override;
    void SetOnComm(std::function<void()> handler) override { m_onComm = std::move(handler); }

    // False while the device has vanished and the adapter waits for it to come back.
    bool IsDeviceAttached() const { return m_serial.isOpen(); }
    // The device opened by the last successful Open(), e.g. "/dev/ttyUSB0".
    QString DeviceName() const { return m_device; }
    // How often a vanished device is looked for again (1000 ms unless changed).
    void SetReopenInterval(int milliseconds) { m_reopen.setInterval(milliseconds); }

    // The event code for a QSerialPort error, or 0 when the error is not reported as an event.
    static int EventCodeFor(QSerialPort::SerialPortError error);

private:
    bool OpenDevice();
    void OnReadyRead();
    void OnError(QSerialPort::SerialPortError error);
    void DeliverReceive();
    void LoseDevice();
    void TryReopen();

    ModalGate& m_gate;
    QSerialPort m_serial;
    QTimer m_reopen;
    std::string m_settings;
    std::string m_buffer;
    std::function<void()> m_onComm;
    QString m_device;
    unsigned long m_deviceNumber = 0;
    int m_port = 1;
    int m_threshold = 0;
    int m_inputLen = 0;
    int m_event = 0;
    bool m_open = false;
    char m_errorSource = 0; // the gate's key for line-error events, apart from receive events
};

} // namespace ventrix::io
