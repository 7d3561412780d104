#pragma once

#include "state/AppState.h"

#include <filesystem>
#include <functional>
#include <vector>

namespace ventrix::log {

using state::SampleRecord;

// The swap file BUFFER.SWP: headerless 8-byte records, 8000 bytes a page, page p at byte p * 8000.
// It is written only in whole pages, in place (never truncated), and read back bounded by the
// number of pages the log counts; bytes beyond that are never read.
class SwapFile {
public:
    static constexpr std::size_t kPageBytes = state::kPageSize * sizeof(SampleRecord);

    // Writes the page at page * 8000, creating the file when it is missing. False when the file
    // cannot be opened or written; nothing is thrown.
    static bool WritePage(const std::filesystem::path& file, int page,
        const std::array<SampleRecord, state::kPageSize>& records);

    // Reads `count` records from record number `first` on into `out` (resized to `count`). Records
    // that cannot be read (a missing or short file) stay eight blanks. Returns how many were read.
    static std::size_t ReadRecords(const std::filesystem::path& file, long long first, std::size_t count,
        std::vector<SampleRecord>& out);

    // Every sample of the log, oldest first: `pageCount` pages read one after another from the start
    // of the file (unreadable records are eight blanks), then records 1 .. pageFill - 1 of the memory
    // page. Stops early, returning false, as soon as `visit` returns false.
    static bool ForEachSample(const std::filesystem::path& file, int pageCount,
        const std::array<SampleRecord, state::kPageSize>& page, int pageFill,
        const std::function<bool(const SampleRecord&)>& visit);
};

// An 8-byte record of blanks: what a read that finds nothing leaves in its buffer.
inline constexpr SampleRecord kBlankRecord { ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ' };

} // namespace ventrix::log
