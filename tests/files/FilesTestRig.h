#pragma once

#include "app/MainForm.h"
#include "fakes/TestRig.h"
#include "log/SwapFile.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace ventrix::testing {

// Sample k of a test log: a distinct time of day and value ("120.0" .. "129.9"), in mV.
inline state::SampleRecord Sample(int k)
{
    return { static_cast<std::uint8_t>(k / 3600 % 24), static_cast<std::uint8_t>(k / 60 % 60),
        static_cast<std::uint8_t>(k % 60), 2, 12, static_cast<std::uint8_t>(k % 100), 3, 0 };
}

// A log of `count` samples as logging leaves it: full pages in the swap file, the rest in memory.
inline void FillLog(state::AppState& state, const std::filesystem::path& swap, int count)
{
    std::array<state::SampleRecord, state::kPageSize> records {};
    state.SwapPageCount = static_cast<std::int16_t>(count / state::kPageSize);
    state.PageFill = static_cast<std::int16_t>(count % state::kPageSize + 1);
    for (int page = 0; page <= state.SwapPageCount; ++page) {
        for (int i = 0; i < state::kPageSize; ++i)
            records[static_cast<std::size_t>(i)] = Sample(page * state::kPageSize + i);
        if (page < state.SwapPageCount)
            log::SwapFile::WritePage(swap, page, records);
    }
    std::copy_n(records.begin(), state.PageFill - 1, state.PageRecords.begin());
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

// The form over fakes, started up, with a log filled by FillLog and a place for files.
struct FilesTestRig {
    FilesTestRig() { form.Form_Load(); }

    void Fill(int count) { FillLog(rig.state, rig.paths.SwapFile(), count); }
    std::filesystem::path File(const std::string& name) const { return rig.paths.ProgramDirectory() / name; }
    // The pointer was made busy and is back to normal.
    bool PointerRestored() const
    {
        return !rig.shell.pointerHistory.empty() && rig.shell.pointerHistory.front() && !rig.shell.Busy();
    }

    fakes::TestRig rig;
    app::MainForm form { rig.state, rig.controls, rig.services };
    platform::MainControls& c = rig.controls;
    state::AppState& s = rig.state;
};

} // namespace ventrix::testing
