#include "log/SwapFile.h"

#include <fstream>

namespace ventrix::log {

bool SwapFile::WritePage(
    const std::filesystem::path& file, int page, const std::array<SampleRecord, state::kPageSize>& records)
{
    try {
        // In place: open for update, creating the file only when it does not exist yet.
        std::fstream out(file, std::ios::binary | std::ios::in | std::ios::out);
        if (!out.is_open()) {
            std::ofstream create(file, std::ios::binary | std::ios::app);
            if (!create.is_open())
                return false;
            create.close();
            out.open(file, std::ios::binary | std::ios::in | std::ios::out);
            if (!out.is_open())
                return false;
        }
        out.seekp(static_cast<std::streamoff>(page) * static_cast<std::streamoff>(kPageBytes));
        out.write(reinterpret_cast<const char*>(records.data()), static_cast<std::streamsize>(kPageBytes));
        out.flush();
        return static_cast<bool>(out);
    } catch (...) {
        return false;
    }
}

std::size_t SwapFile::ReadRecords(
    const std::filesystem::path& file, long long first, std::size_t count, std::vector<SampleRecord>& out)
{
    out.assign(count, kBlankRecord);
    try {
        std::ifstream in(file, std::ios::binary);
        if (!in.is_open() || first < 0)
            return 0;
        in.seekg(static_cast<std::streamoff>(first) * static_cast<std::streamoff>(sizeof(SampleRecord)));
        if (!in)
            return 0;
        in.read(
            reinterpret_cast<char*>(out.data()), static_cast<std::streamsize>(count * sizeof(SampleRecord)));
        const std::size_t whole = static_cast<std::size_t>(in.gcount()) / sizeof(SampleRecord);
        // A partly read record is left blank, as a read into a blank buffer that failed would.
        for (std::size_t i = whole; i < count; ++i)
            out[i] = kBlankRecord;
        return whole;
    } catch (...) {
        return 0;
    }
}

bool SwapFile::ForEachSample(const std::filesystem::path& file, int pageCount,
    const std::array<SampleRecord, state::kPageSize>& page, int pageFill,
    const std::function<bool(const SampleRecord&)>& visit)
{
    std::vector<SampleRecord> records;
    for (int p = 0; p < pageCount; ++p) {
        ReadRecords(file, static_cast<long long>(p) * state::kPageSize, state::kPageSize, records);
        for (const SampleRecord& record : records)
            if (!visit(record))
                return false;
    }
    for (int slot = 1; slot < pageFill && slot <= state::kPageSize; ++slot)
        if (!visit(page[static_cast<std::size_t>(slot - 1)]))
            return false;
    return true;
}

} // namespace ventrix::log
