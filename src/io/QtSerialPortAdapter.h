#pragma once

#include "io/ModalGate.h"
#include "platform/SerialPort.h"

#include <QObject>

namespace ventrix::io {

// The serial line on QSerialPort. Placeholder until the meter link lands: it never opens.
class QtSerialPortAdapter : public QObject, public platform::SerialPort {
    Q_OBJECT
public:
    explicit QtSerialPortAdapter(ModalGate& gate, QObject* parent = nullptr);

    void SetSettings(const std::string& settings) override { m_settings = settings; }
    std::string Settings() const override { return m_settings; }
    void SetCommPort(int port) override { m_port = port; }
    int CommPort() const override { return m_port; }
    bool IsOpen() const override { return false; }
    bool Open() override { return false; }
    void Close() override { }
    void SetInputLen(int) override { }
    void SetRThreshold(int count) override { m_threshold = count; }
    int RThreshold() const override { return m_threshold; }
    int InBufferCount() const override { return 0; }
    void DiscardInput() override { }
    int CommEvent() const override { return 0; }
    std::string ReadInput() override { return {}; }
    void SetOnComm(std::function<void()>) override { }

private:
    ModalGate& m_gate;
    std::string m_settings;
    int m_port = 1;
    int m_threshold = 0;
};

} // namespace ventrix::io
