#include "link/FrameSimulator.h"

#include "link/SerialLink.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <utility>

namespace ventrix::link {

namespace {
constexpr int kStoppedIntervalMs = 200;
constexpr int kPhaseMask = 63;
// Bytes 2 to 8 of the simulated frame. Byte 8 lacks bit 0x02, so validation rejects it.
constexpr std::array<std::uint8_t, 7> kLcdBytes { 0x02, 0x00, 0xDF, 0x51, 0xE3, 0xD7, 0x00 };

std::uint8_t Checksum()
{
    int sum = 57;
    for (std::uint8_t byte : kLcdBytes)
        sum += byte;
    return static_cast<std::uint8_t>(sum % 256);
}
} // namespace

FrameSimulator::FrameSimulator(state::AppState& state, SerialLink& link, platform::Timer& debugTimer,
    const platform::Clock& clock, std::function<void()> appendSample, std::function<void()> plotSample)
    : m_state(state)
    , m_link(link)
    , m_debugTimer(debugTimer)
    , m_clock(clock)
    , m_appendSample(std::move(appendSample))
    , m_plotSample(std::move(plotSample))
{
}

std::string FrameSimulator::SimulatedFrame()
{
    std::string frame(1, '\0');
    for (std::uint8_t byte : kLcdBytes)
        frame += static_cast<char>(byte);
    frame += static_cast<char>(Checksum());
    return frame;
}

void FrameSimulator::DebugTimerTick()
{
    state::AppState& s = m_state;
    s.ModeByte = 0;
    for (std::size_t i = 0; i < kLcdBytes.size(); ++i)
        s.FrameData[i] = kLcdBytes[kLcdBytes.size() - 1 - i]; // element 0 holds byte 8
    s.FrameChecksum = Checksum();
    m_link.AssembleFrame(SimulatedFrame());

    s.SimulatorPhase = static_cast<std::int16_t>((s.SimulatorPhase + 1) & kPhaseMask);
    s.CountValue = std::floor(std::floor(2000.0 * std::sin(s.SimulatorPhase * 360.0 / 64.0)) + 2000.0);
    s.SampleTime = m_clock.TimeOfDay();
    if (m_appendSample)
        m_appendSample();
    if (!s.AwaitingAbsoluteReading && m_plotSample)
        m_plotSample();
    if (s.IsBufferFull) {
        m_debugTimer.SetInterval(kStoppedIntervalMs);
        m_debugTimer.SetEnabled(false);
    }
}

void ShowDebugView(platform::TextBox& debugText, const platform::Clock& clock, const std::string& received)
{
    char seconds[32];
    std::snprintf(seconds, sizeof seconds, "%.2f", clock.SecondsSinceMidnight());
    debugText.SetText(std::string(seconds) + " \t" + std::to_string(received.size()) + " \t" + received);
}

} // namespace ventrix::link
