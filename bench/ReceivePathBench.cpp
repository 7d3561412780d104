// The receive path on one core: event cutting, assembly, validation and decoding of a long
// stream of mixed meter frames with noise between them, and the parts on their own. Also a long
// run on nothing but garbage, reporting how much the resident set grew (it must not).

#include "ResidentMemory.h"
#include "display/AnalogGauge.h"
#include "display/VirtualLcd.h"
#include "link/CaptureReplay.h"
#include "link/FrameDecoder.h"
#include "link/FrameValidator.h"
#include "link/ReplayServices.h"
#include "link/SerialLink.h"
#include "state/AppState.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

using namespace ventrix;

namespace {

constexpr std::array<std::uint8_t, 10> kDigit { 0xD7, 0x50, 0xB5, 0xF1, 0x72, 0xE3, 0xE7, 0x51, 0xF7, 0xF3 };

std::string Frame(std::uint8_t mode, std::array<std::uint8_t, 7> lcd)
{
    std::string bytes(1, static_cast<char>(mode));
    for (std::uint8_t b : lcd)
        bytes.push_back(static_cast<char>(b));
    bytes.push_back(static_cast<char>(link::ComputeChecksum(bytes, 0)));
    return bytes;
}

// Plausible frames of several functions with changing digits: DC and AC volts, current,
// resistance with "OPEn", temperature, and overloads.
std::string RandomFrame(std::mt19937& rng)
{
    const auto digit = [&] { return kDigit[rng() % 10]; };
    switch (rng() % 6) {
    case 0:
        return Frame(
            0, { 0x02, 0x00, digit(), static_cast<std::uint8_t>(digit() | 0x08), digit(), digit(), 0x03 });
    case 1:
        return Frame(
            1, { 0x03, 0x00, digit(), digit(), static_cast<std::uint8_t>(digit() | 0x08), digit(), 0x07 });
    case 2:
        return Frame(3, { 0x05, 0x00, digit(), digit(), digit(), digit(), 0x0A });
    case 3:
        return Frame(8, { 0x60, 0x00, 0x64, 0xA7, 0x37, 0xD7, 0x02 });
    case 4:
        return Frame(25, { 0x00, 0x00, 0x87, digit(), digit(), digit(), 0x02 });
    default:
        return Frame(0, { 0x02, 0x00, 0x00, 0x27, 0xD7, 0x00, 0x02 });
    }
}

// About one frame in 40 is preceded by one to four bytes of line noise.
const std::string& MixedStream()
{
    static const std::string stream = [] {
        std::mt19937 rng(2026);
        std::string s;
        for (int i = 0; i < 200000; ++i) {
            if (rng() % 40 == 0)
                for (unsigned n = 1 + rng() % 4; n > 0; --n)
                    s.push_back(static_cast<char>(rng()));
            s += RandomFrame(rng);
        }
        return s;
    }();
    return stream;
}

// A window-less link that receives whatever its replay port is loaded with.
struct Rig {
    state::AppState state;
    platform::MainControls controls;
    link::ReplayServices services;
    display::VirtualLcd lcd { state, controls };
    display::AnalogGauge gauge { state, services.Services().KNOB_ANALOG,
        services.Services().timers.ANALOG_TIMER };
    link::SerialLink serialLink { state, controls, services.Services(), lcd, gauge, [] {} };
    std::int64_t accepted = 0;

    Rig()
    {
        services.Port().SetOnComm([this] {
            serialLink.OnComm();
            accepted += serialLink.AcceptedOffset() >= 0;
        });
        serialLink.StartAcquisition();
    }
    void Play(const std::string& bytes)
    {
        services.Port().Load(bytes);
        while (services.Port().DeliverNext()) { }
    }
};

void BM_CaptureReplayMixedStream(benchmark::State& state)
{
    const std::string& stream = MixedStream();
    std::int64_t frames = 0;
    for (auto _ : state) {
        link::CaptureReplay().Run(stream, [&](const link::CaptureReplay::Frame&) { ++frames; });
    }
    state.counters["frames/s"] = benchmark::Counter(static_cast<double>(frames), benchmark::Counter::kIsRate);
    state.counters["frames/run"] = static_cast<double>(frames) / static_cast<double>(state.iterations());
    state.SetBytesProcessed(static_cast<std::int64_t>(stream.size()) * state.iterations());
}
BENCHMARK(BM_CaptureReplayMixedStream)->Unit(benchmark::kMillisecond);

void BM_ReceivePathMixedStream(benchmark::State& state)
{
    const std::string& stream = MixedStream();
    Rig rig;
    for (auto _ : state)
        rig.Play(stream);
    state.counters["frames/s"]
        = benchmark::Counter(static_cast<double>(rig.accepted), benchmark::Counter::kIsRate);
    state.SetBytesProcessed(static_cast<std::int64_t>(stream.size()) * state.iterations());
}
BENCHMARK(BM_ReceivePathMixedStream)->Unit(benchmark::kMillisecond);

void BM_AssembleAlignedFrame(benchmark::State& state)
{
    std::mt19937 rng(7);
    std::vector<std::string> frames;
    for (int i = 0; i < 1024; ++i)
        frames.push_back(RandomFrame(rng));
    Rig rig;
    std::size_t i = 0;
    for (auto _ : state) {
        rig.serialLink.AssembleFrame(frames[i++ & 1023]);
        benchmark::DoNotOptimize(rig.state.CountValue);
    }
    state.counters["frames/s"]
        = benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_AssembleAlignedFrame);

void BM_ValidateFrame(benchmark::State& state)
{
    std::mt19937 rng(7);
    std::vector<std::string> frames;
    for (int i = 0; i < 1024; ++i)
        frames.push_back(RandomFrame(rng));
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(link::ValidateFrame(frames[i++ & 1023], 0));
}
BENCHMARK(BM_ValidateFrame);

void BM_DecodeFrame(benchmark::State& state)
{
    std::mt19937 rng(7);
    std::vector<state::AppState> loaded(256);
    for (state::AppState& s : loaded) {
        const std::string f = RandomFrame(rng);
        s.ModeByte = static_cast<std::uint8_t>(f[0]);
        for (int k = 2; k <= 8; ++k)
            s.FrameData[static_cast<std::size_t>(8 - k)]
                = static_cast<std::uint8_t>(f[static_cast<std::size_t>(k - 1)]);
    }
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(link::DecodeFrame(loaded[i++ & 255]));
}
BENCHMARK(BM_DecodeFrame);

// 64 MB of random bytes per iteration through one long acquisition, 1 MB per load. Reports the
// growth of the resident set from after the first iteration to the end.
void BM_EndlessGarbage(benchmark::State& state)
{
    std::mt19937 rng(99);
    std::string chunk(1 << 20, '\0');
    for (char& c : chunk)
        c = static_cast<char>(rng());
    Rig rig;
    long baseline = -1;
    for (auto _ : state) {
        for (int n = 0; n < 64; ++n)
            rig.Play(chunk);
        if (baseline < 0)
            baseline = ResidentKb();
    }
    state.counters["rss_kb"] = static_cast<double>(ResidentKb());
    state.counters["rss_growth_kb"] = static_cast<double>(ResidentKb() - baseline);
    state.counters["false_frames_per_MB"]
        = static_cast<double>(rig.accepted) / (64.0 * static_cast<double>(state.iterations()));
    state.SetBytesProcessed(static_cast<std::int64_t>(chunk.size()) * 64 * state.iterations());
}
BENCHMARK(BM_EndlessGarbage)->Unit(benchmark::kMillisecond)->Iterations(16);

} // namespace
