#pragma once

#include "log/SwapFile.h"
#include "state/AppState.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace ventrix::testing {

// Sample k of a test log: a distinct time of day and value (code 2: "12.34"-style), in mV.
inline state::SampleRecord Sample(int k)
{
    return { static_cast<std::uint8_t>(k / 3600 % 24), static_cast<std::uint8_t>(k / 60 % 60),
        static_cast<std::uint8_t>(k % 60), 2, 12, static_cast<std::uint8_t>(k % 100), 3, 0 };
}

// A log of `count` samples as logging leaves it: the full pages in the swap file, the rest in
// the memory page.
inline void FillLog(state::AppState& state, const std::filesystem::path& swap, int count)
{
    state.SwapPageCount = static_cast<std::int16_t>(count / state::kPageSize);
    for (int page = 0; page < state.SwapPageCount; ++page) {
        std::array<state::SampleRecord, state::kPageSize> records {};
        for (int i = 0; i < state::kPageSize; ++i)
            records[static_cast<std::size_t>(i)] = Sample(page * state::kPageSize + i);
        log::SwapFile::WritePage(swap, page, records);
    }
    const int inMemory = count % state::kPageSize;
    for (int i = 0; i < inMemory; ++i)
        state.PageRecords[static_cast<std::size_t>(i)] = Sample(state.SwapPageCount * state::kPageSize + i);
    state.PageFill = static_cast<std::int16_t>(inMemory + 1);
}

inline std::string ReadFile(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>() };
}

inline void WriteFile(const std::filesystem::path& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

} // namespace ventrix::testing
