#pragma once

#include "platform/SerialPort.h"

#include <functional>
#include <string>

namespace ventrix::fakes {

// A serial port fed by the test. Feed() buffers bytes and raises the receive event, with every
// buffered byte, as soon as at least the threshold is buffered (as the real adapter does);
// RaiseEvent() raises any other event code. Open() fails while failOpen is set.
class FakeSerialPort : public platform::SerialPort {
public:
    void SetSettings(const std::string& settings) override { settings_ = settings; }
    std::string Settings() const override { return settings_; }
    void SetCommPort(int port) override { port_ = port; }
    int CommPort() const override { return port_; }

    bool IsOpen() const override { return open_; }
    bool Open() override;
    void Close() override;

    void SetInputLen(int) override { }
    void SetRThreshold(int count) override;
    int RThreshold() const override { return threshold_; }
    int InBufferCount() const override { return static_cast<int>(buffer_.size()); }
    void DiscardInput() override;

    int CommEvent() const override { return event_; }
    std::string ReadInput() override;
    void SetOnComm(std::function<void()> handler) override { onComm_ = std::move(handler); }

    // Test side
    void Feed(const std::string& bytes);
    void RaiseEvent(int code);

    bool failOpen = false;
    int openCount = 0;
    int closeCount = 0;
    int discardCount = 0;
    std::string thresholdHistory; // one char per threshold write: '9', 'A' for 10, 'I' for 18 ...

private:
    std::string settings_;
    std::string buffer_;
    std::function<void()> onComm_;
    int port_ = 1;
    int threshold_ = 0;
    int event_ = 0;
    bool open_ = false;
};

} // namespace ventrix::fakes
