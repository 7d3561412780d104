// Logging through the form's real handlers on fake timers and a fake clock: the cost of one
// sample (live line, record, memory bar), of the sample that flushes a page to BUFFER.SWP, and a
// soak that fills the whole log of 432,000 samples at 1 s across five midnights, then checks the
// swap file byte count and decodes every record back to the reading that was logged.

#include "ResidentMemory.h"
#include "fakes/AcquiringRig.h"
#include "log/SampleRecord.h"
#include "log/SwapFile.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>

using namespace ventrix;

namespace {

constexpr int kFullLog = 432000;

using Acquiring = fakes::AcquiringRig;

// The whole log through SAMPLE_TIMER ticks one second apart with a new frame each time, starting
// at 10 PM so that it crosses five midnights. The reading changes with every sample so that each
// record can be checked against what was logged.
void BM_SoakFullLog(benchmark::State& state)
{
    for (auto _ : state) {
        Acquiring log;
        state::AppState& s = log.rig.state;
        const double start = 22 * 3600.0;
        log.rig.clock.seconds = start;
        log.rig.sampleTimer.Fire(); // the first tick after 200 ms sets the first due time
        const auto began = std::chrono::steady_clock::now();
        int ticks = 0;
        while (s.IsAcquiring && ticks < kFullLog + 10) {
            ++ticks;
            log.rig.clock.seconds = std::fmod(start + ticks + 0.05, 86400.0);
            s.CountValue = ticks % 20000;
            s.HasNewFrame = true;
            log.rig.sampleTimer.Fire();
        }
        const double seconds
            = std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();

        const auto fullBoxes = std::count_if(log.rig.dialogs.boxes.begin(), log.rig.dialogs.boxes.end(),
            [](const auto& box) { return box.text == "Buffer Full! Please reset buffer before continue."; });
        const auto swapBytes = std::filesystem::file_size(log.rig.paths.SwapFile());
        long long sample = 0;
        long long mismatches = 0;
        log::SwapFile::ForEachSample(
            log.rig.paths.SwapFile(), s.SwapPageCount, s.PageRecords, s.PageFill, [&](const auto& record) {
                ++sample;
                const double logged = static_cast<double>(sample % 20000) / 1000.0;
                const auto due
                    = static_cast<long long>(start + sample - 1) % 86400; // stamped with its due second
                if (std::abs(log::RecordValue(record) - logged) > 1e-9
                    || record[0] * 3600 + record[1] * 60 + record[2] != due) {
                    if (mismatches == 0)
                        std::fprintf(stderr, "first difference: sample %lld reads %g at %d:%02d:%02d\n",
                            sample, log::RecordValue(record), record[0], record[1], record[2]);
                    ++mismatches;
                }
                return true;
            });
        state.counters["seconds"] = seconds;
        state.counters["samples"] = static_cast<double>(sample);
        state.counters["swap_bytes"] = static_cast<double>(swapBytes);
        state.counters["mismatches"] = static_cast<double>(mismatches);
        state.counters["buffer_full_boxes"] = static_cast<double>(fullBoxes);
        state.counters["peak_MB"] = static_cast<double>(PeakResidentKb()) / 1024.0;
        state.counters["rss_MB"] = static_cast<double>(ResidentKb()) / 1024.0;
        if (swapBytes != 3456000u || sample != kFullLog || mismatches != 0 || fullBoxes != 1)
            state.SkipWithError("the full log is not what was logged");
    }
}
// Registered first so that the peak resident set is the soak's own.
BENCHMARK(BM_SoakFullLog)->Unit(benchmark::kMillisecond)->Iterations(1);

// One sample appended, a page flush amortised over every 1000th.
void BM_AppendSample(benchmark::State& state)
{
    Acquiring log;
    for (auto _ : state) {
        if (log.rig.state.SwapPageCount >= 400)
            log.rig.state.SwapPageCount = 1; // stay clear of the full log
        log.form.Logger().AppendSample();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_AppendSample)->Unit(benchmark::kMicrosecond);

// The 1000th sample of a page alone: its line, its record and writing the page to the swap file.
void BM_SampleThatFlushesAPage(benchmark::State& state)
{
    Acquiring log;
    for (auto _ : state) {
        state.PauseTiming();
        log.rig.state.SwapPageCount = 1 + static_cast<int>(state.iterations() % 400);
        while (log.rig.state.PageFill < 1000)
            log.form.Logger().AppendSample();
        state.ResumeTiming();
        log.form.Logger().AppendSample();
    }
}
BENCHMARK(BM_SampleThatFlushesAPage)->Unit(benchmark::kMicrosecond)->Iterations(200);

} // namespace
