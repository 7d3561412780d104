// Feeds arbitrary bytes through the receive path: once as a recorded stream through the replay
// (event cutting, assembly, validation, decoding across frames), and once as raw receive events
// of arbitrary length handed straight to AssembleFrame. Traps on any broken invariant.

#include "display/AnalogGauge.h"
#include "display/VirtualLcd.h"
#include "link/CaptureReplay.h"
#include "link/FrameDecoder.h"
#include "link/FrameValidator.h"
#include "link/ReplayServices.h"
#include "link/SerialLink.h"
#include "state/AppState.h"

#include <cstddef>
#include <cstdint>
#include <string>

using namespace ventrix;

namespace {

void Check(bool condition)
{
    if (!condition)
        __builtin_trap();
}

bool KnownWord(const std::string& word)
{
    for (int i = 0; i < 11; ++i)
        if (word == link::kSpecialWordTable[static_cast<std::size_t>(i)])
            return true;
    return false;
}

void CheckReading(const state::AppState& state)
{
    const int divisor = state.DecimalDivisor;
    Check(divisor == 1 || divisor == 10 || divisor == 100 || divisor == 1000);
    Check(state.FunctionKind <= 15 || state.FunctionKind == 255);
    if (!state.HasWord)
        Check(state.CountValue >= 0.0 && state.CountValue <= 9999.0);
    else
        Check(KnownWord(state.DisplayWord));
    Check(state.DisplayWordIndex >= 0 && state.DisplayWordIndex < 11);
}

void ReplayStream(const std::string& bytes)
{
    std::size_t lastOffset = 0;
    bool first = true;
    link::CaptureReplay replay;
    replay.Run(bytes, [&](const link::CaptureReplay::Frame& frame) {
        Check(frame.offset + 9 <= bytes.size());
        Check(first || frame.offset >= lastOffset + 9);
        first = false;
        lastOffset = frame.offset;
        Check(link::ValidateFrame(bytes, static_cast<int>(frame.offset)));
        Check(link::ComputeChecksum(bytes, static_cast<int>(frame.offset))
            == static_cast<std::uint8_t>(bytes[frame.offset + 8]));
        Check(!frame.refused || frame.state.IsRelative);
        Check(!frame.logged || !frame.state.AwaitingAbsoluteReading);
        CheckReading(frame.state);
    });
}

// The input is cut into receive events; each cut's length is taken from the byte before it.
void RawEvents(const std::uint8_t* data, std::size_t size)
{
    state::AppState state;
    platform::MainControls controls;
    link::ReplayServices services;
    platform::Services& s = services.Services();
    display::VirtualLcd lcd(state, controls);
    display::AnalogGauge gauge(state, s.KNOB_ANALOG, s.timers.ANALOG_TIMER);
    link::SerialLink serialLink(state, controls, s, lcd, gauge);
    serialLink.StartAcquisition();

    std::size_t at = 0;
    while (at < size) {
        const std::size_t length = data[at] % 32;
        ++at;
        const std::size_t take = length < size - at ? length : size - at;
        const std::string received(reinterpret_cast<const char*>(data + at), take);
        at += take;
        const int thresholdBefore = s.MSComm1.RThreshold();
        state.IsAcquiring = true; // a refusal stops; keep assembling regardless
        serialLink.AssembleFrame(received);
        const int p = serialLink.AcceptedOffset();
        Check(p >= -1 && p <= 3);
        Check(s.MSComm1.RThreshold() == 9 || s.MSComm1.RThreshold() == 10);
        if (p >= 0) {
            Check(link::ValidateFrame(received, p));
            Check(state.ModeByte == static_cast<std::uint8_t>(received[static_cast<std::size_t>(p)]));
            Check(
                state.FrameChecksum == static_cast<std::uint8_t>(received[static_cast<std::size_t>(p) + 8]));
            Check(s.MSComm1.RThreshold() == 9);
            CheckReading(state);
        } else {
            Check(s.MSComm1.RThreshold() != thresholdBefore);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    ReplayStream(bytes);
    RawEvents(data, size);
    return 0;
}
