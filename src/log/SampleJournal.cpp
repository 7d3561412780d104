#include "log/SampleJournal.h"

#include "log/SwapFile.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace ventrix::log {

namespace {

constexpr char kMagic[4] = { 'V', 'X', 'J', '1' };

bool WriteAll(int fd, const void* data, std::size_t size)
{
    const char* bytes = static_cast<const char*>(data);
    while (size > 0) {
        const ssize_t written = ::write(fd, bytes, size);
        if (written <= 0)
            return false;
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

int OpenFile(const std::filesystem::path& path, int flags)
{
    return ::open(path.c_str(), flags | O_CLOEXEC, 0644);
}

} // namespace

SampleJournal::SampleJournal(std::filesystem::path file)
    : m_file(std::move(file))
{
}

SampleJournal::~SampleJournal()
{
    Close();
}

void SampleJournal::Close()
{
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
}

bool SampleJournal::StartPage(int swapPages, const std::filesystem::path& swapFileToSync)
{
    if (!swapFileToSync.empty()) {
        const int swap = OpenFile(swapFileToSync, O_RDWR);
        if (swap >= 0) {
            ::fdatasync(swap);
            ::close(swap);
        }
    }
    Close();
    m_fd = OpenFile(m_file, O_WRONLY | O_CREAT | O_TRUNC | O_APPEND);
    if (m_fd < 0)
        return false;
    unsigned char header[kHeaderBytes];
    std::memcpy(header, kMagic, sizeof kMagic);
    const auto pages = static_cast<std::uint32_t>(swapPages);
    for (int i = 0; i < 4; ++i)
        header[4 + i] = static_cast<unsigned char>(pages >> (8 * i));
    m_lastSync = std::chrono::steady_clock::now();
    return WriteAll(m_fd, header, sizeof header) && ::fdatasync(m_fd) == 0;
}

bool SampleJournal::Append(const SampleRecord& record)
{
    // The file stays open between records: opening it for each one cost more than the rest of a
    // sample together.
    if (m_fd < 0)
        m_fd = OpenFile(m_file, O_WRONLY | O_APPEND);
    if (m_fd < 0)
        return false;
    if (!WriteAll(m_fd, record.data(), record.size())) {
        // A record cut short (a full disk) is taken back, so that later records stay whole.
        const off_t end = ::lseek(m_fd, 0, SEEK_END);
        if (end > 0) {
            [[maybe_unused]] const int cut = ::ftruncate(m_fd, end - end % static_cast<off_t>(record.size()));
        }
        Close();
        return false;
    }
    const auto now = std::chrono::steady_clock::now();
    if (now - m_lastSync >= kSyncSeconds) {
        m_lastSync = now;
        ::fdatasync(m_fd);
    }
    return true;
}

std::optional<SampleJournal::Contents> SampleJournal::Read(const std::filesystem::path& file)
{
    std::ifstream in(file, std::ios::binary);
    unsigned char header[kHeaderBytes];
    if (!in.read(reinterpret_cast<char*>(header), sizeof header)
        || std::memcmp(header, kMagic, sizeof kMagic) != 0)
        return std::nullopt;
    Contents contents;
    std::uint32_t pages = 0;
    for (int i = 0; i < 4; ++i)
        pages |= static_cast<std::uint32_t>(header[4 + i]) << (8 * i);
    contents.swapPages = static_cast<int>(std::min<std::uint32_t>(pages, state::kMaxSwapPages));
    SampleRecord record;
    while (in.read(reinterpret_cast<char*>(record.data()), record.size()))
        contents.records.push_back(record);
    return contents;
}

std::optional<SampleJournal::RecoveredLog> SampleJournal::Recover(
    const std::filesystem::path& swapFile, const std::filesystem::path& journalFile)
{
    std::optional<Contents> journal = Read(journalFile);
    if (!journal)
        return std::nullopt;
    RecoveredLog log;
    log.swapPageCount = journal->swapPages;
    std::size_t next = 0;
    const std::size_t pageSize = state::kPageSize;
    // Whole pages in the journal: a flush that the crash cut short, written again the same way.
    while (journal->records.size() - next >= pageSize && log.swapPageCount < state::kMaxSwapPages) {
        std::copy_n(
            journal->records.begin() + static_cast<std::ptrdiff_t>(next), pageSize, log.pageRecords.begin());
        SwapFile::WritePage(swapFile, log.swapPageCount, log.pageRecords);
        ++log.swapPageCount;
        next += pageSize;
    }
    const std::size_t rest = log.swapPageCount >= state::kMaxSwapPages
        ? 0
        : std::min(journal->records.size() - next, pageSize - 1);
    log.pageRecords = {};
    std::copy_n(journal->records.begin() + static_cast<std::ptrdiff_t>(next), rest, log.pageRecords.begin());
    log.pageFill = static_cast<int>(rest) + 1;
    return log;
}

} // namespace ventrix::log
