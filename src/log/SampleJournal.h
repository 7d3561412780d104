#pragma once

#include "state/AppState.h"

#include <array>
#include <chrono>
#include <filesystem>
#include <optional>
#include <vector>

namespace ventrix::log {

using state::SampleRecord;

// A crash journal beside the swap file ("BUFFER.JNL"): an 8-byte header ("VXJ1" and the number of
// swap pages that belong to the log, little-endian 32 bits), then the records of the memory page
// in the order they were taken. Each record goes to the operating system as it is taken, so a
// killed process loses nothing; the file is synced to disk every kSyncSeconds and whenever a
// page starts, so a power cut loses at most the records of the last kSyncSeconds. The swap file
// and the window know nothing of it; only recovery reads it.
class SampleJournal {
public:
    static constexpr std::chrono::seconds kSyncSeconds { 5 };
    static constexpr std::size_t kHeaderBytes = 8;

    explicit SampleJournal(std::filesystem::path file);
    ~SampleJournal();
    SampleJournal(const SampleJournal&) = delete;
    SampleJournal& operator=(const SampleJournal&) = delete;

    // A new, empty memory page after `swapPages` full pages (start-up, a page flush, a clear). The
    // swap file, when given, is synced first, so the journal never counts a page the disk lacks.
    bool StartPage(int swapPages, const std::filesystem::path& swapFileToSync = {});
    // One more record of the memory page. False when it could not be written.
    bool Append(const SampleRecord& record);

    struct Contents {
        int swapPages = 0;
        std::vector<SampleRecord> records; // whole records only; a torn last record is dropped
    };
    // The journal as found on disk; nothing when it is missing or its header is not whole.
    static std::optional<Contents> Read(const std::filesystem::path& file);

    // The log rebuilt from the swap file and the journal: journal records that fill whole pages are
    // written into the swap file after the pages it counts (the same bytes the flush writes), the
    // rest become the memory page.
    struct RecoveredLog {
        int swapPageCount = 0;
        std::array<SampleRecord, state::kPageSize> pageRecords {};
        int pageFill = 1;
        long long SampleCount() const
        {
            return static_cast<long long>(swapPageCount) * state::kPageSize + pageFill - 1;
        }
    };
    static std::optional<RecoveredLog> Recover(
        const std::filesystem::path& swapFile, const std::filesystem::path& journalFile);

private:
    void Close();

    std::filesystem::path m_file;
    int m_fd = -1; // the journal, open from the start of a page on
    std::chrono::steady_clock::time_point m_lastSync {};
};

} // namespace ventrix::log
