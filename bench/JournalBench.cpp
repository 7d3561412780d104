// The crash journal's cost per sample: one record appended (a write to the journal, which stays
// open) as every sample does, and the page start that truncates the journal and syncs it to disk
// (a sync also happens at most every 5 s while appending). Run it on the file system the data
// directory lives on: the journal goes to the directory in VENTRIX_BENCH_DIR, else the system's
// temporary directory.
#include "log/SampleJournal.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>

#include <unistd.h>

namespace {

std::filesystem::path JournalFile()
{
    const char* dir = std::getenv("VENTRIX_BENCH_DIR");
    const std::filesystem::path base = dir != nullptr && *dir != '\0'
        ? std::filesystem::path(dir)
        : std::filesystem::temp_directory_path();
    return base / ("ventrix-bench-" + std::to_string(::getpid()) + ".jnl");
}

void JournalAppend(benchmark::State& state)
{
    const std::filesystem::path file = JournalFile();
    ventrix::log::SampleJournal journal(file);
    journal.StartPage(0);
    const ventrix::state::SampleRecord record { 12, 30, 15, 3, 12, 34, 0, 0 };
    long long appended = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(journal.Append(record));
        // A page's worth at most, as in a real log.
        if (++appended % ventrix::state::kPageSize == 0)
            journal.StartPage(0);
    }
    std::filesystem::remove(file);
}
BENCHMARK(JournalAppend);

void JournalStartPageWithSync(benchmark::State& state)
{
    const std::filesystem::path file = JournalFile();
    ventrix::log::SampleJournal journal(file);
    for (auto _ : state)
        benchmark::DoNotOptimize(journal.StartPage(1));
    std::filesystem::remove(file);
}
BENCHMARK(JournalStartPageWithSync)->Unit(benchmark::kMicrosecond);

} // namespace
