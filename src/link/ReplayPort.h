#pragma once

#include "platform/SerialPort.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace ventrix::link {

// A serial port that plays back recorded bytes as a line delivering them one by one would: each
// receive event carries exactly the next RThreshold() bytes, and a rest shorter than the
// threshold raises no event. Opening always succeeds. Does not copy the recording: the bytes
// handed to Load() must outlive the playback.
class ReplayPort : public platform::SerialPort {
public:
    void Load(std::string_view bytes);
    // Raises the next receive event. False, with nothing raised, when fewer bytes than the
    // threshold are left (or the threshold is not positive).
    bool DeliverNext();
    // 0-based offset in the recording of the first byte of the last event raised.
    std::size_t EventStart() const { return m_eventStart; }

    void SetSettings(const std::string& settings) override { m_settings = settings; }
    std::string Settings() const override { return m_settings; }
    void SetCommPort(int port) override { m_port = port; }
    int CommPort() const override { return m_port; }

    bool IsOpen() const override { return m_open; }
    bool Open() override { return m_open = true; }
    void Close() override { m_open = false; }

    void SetInputLen(int) override { }
    void SetRThreshold(int count) override { m_threshold = count; }
    int RThreshold() const override { return m_threshold; }
    int InBufferCount() const override { return static_cast<int>(m_pending.size()); }
    void DiscardInput() override { m_pending = {}; }

    int CommEvent() const override { return kEvReceive; }
    std::string ReadInput() override;
    void SetOnComm(std::function<void()> handler) override { m_onComm = std::move(handler); }

private:
    std::string_view m_bytes;
    std::string_view m_pending;
    std::size_t m_next = 0;
    std::size_t m_eventStart = 0;
    std::function<void()> m_onComm;
    std::string m_settings;
    int m_port = 1;
    int m_threshold = 0;
    bool m_open = false;
};

} // namespace ventrix::link
