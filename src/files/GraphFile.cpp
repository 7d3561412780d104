#include "files/GraphFile.h"

#include "log/SampleRecord.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string>

namespace ventrix::files {

namespace {
constexpr const char* kFilter = "*.gph|*.gph";
constexpr std::size_t kRecordBytes = sizeof(state::SampleRecord);

// Opens a file for reading and writing in place, creating it when it does not exist.
bool OpenForUpdate(const std::filesystem::path& path, std::fstream& file)
{
    file.open(path, std::ios::binary | std::ios::in | std::ios::out);
    if (file.is_open())
        return true;
    std::ofstream(path, std::ios::binary | std::ios::app).close();
    file.clear();
    file.open(path, std::ios::binary | std::ios::in | std::ios::out);
    return file.is_open();
}

state::SampleRecord ToRecord(const std::string& buffer)
{
    state::SampleRecord record {};
    for (std::size_t i = 0; i < record.size() && i < buffer.size(); ++i)
        record[i] = static_cast<std::uint8_t>(buffer[i]);
    return record;
}
} // namespace

GraphFile::GraphFile(state::AppState& state, platform::Services& services, platform::CommonDialog& fileBox)
    : m_state(state)
    , m_services(services)
    , m_fileBox(fileBox)
{
}

void GraphFile::SetUpFileBox(const char* title)
{
    platform::FileDialogRequest& box = m_fileBox.settings;
    box.title = title;
    box.filter = kFilter;
    box.fileName.clear();
    box.initialDirectory = m_state.GraphDialogPath.empty() ? m_services.paths.ProgramDirectory().string()
                                                           : m_state.GraphDialogPath;
    // The flags are left as the last dialog on FileBox set them.
}

void GraphFile::OpenGraphFile()
{
    m_services.shell.SetBusyPointer(true);
    SetUpFileBox("Open Graph");
    m_fileBox.ShowOpen();
    const std::string chosen = m_fileBox.settings.fileName;
    if (!chosen.empty()) {
        m_state.GraphDialogPath = chosen;
        m_state.GraphFilePath = chosen;
        // The record is read and not used: nothing of the graph is restored.
        ReadFirstRecord();
    }
    m_services.shell.SetBusyPointer(false);
}

bool GraphFile::ReadFirstRecord()
{
    try {
        std::fstream file;
        if (!OpenForUpdate(m_state.GraphFilePath, file))
            return false;
        std::string buffer(kRecordBytes, ' ');
        file.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
        return true;
    } catch (...) {
        return false;
    }
}

void GraphFile::SaveGraphFile()
{
    if (m_state.GraphDialogPath.empty() || m_state.GraphFilePath.empty())
        SaveGraphFileAs();
    else
        WriteGraphFile();
}

void GraphFile::SaveGraphFileAs()
{
    SetUpFileBox("Save Graph As");
    m_fileBox.ShowSave();
    const std::string chosen = m_fileBox.settings.fileName;
    if (chosen.empty())
        return;
    m_state.GraphDialogPath = chosen;
    m_state.GraphFilePath = chosen;
    WriteGraphFile();
}

void GraphFile::WriteGraphFile()
{
    m_services.shell.SetBusyPointer(true);
    Write();
    m_services.shell.SetBusyPointer(false);
}

bool GraphFile::Write()
{
    try {
        std::fstream target;
        if (!OpenForUpdate(m_state.GraphFilePath, target))
            return false;
        // Empty until the swap file is read: then it holds the last record read.
        std::string recordBuffer;
        const int swapPages = m_state.SwapPageCount;
        const bool fromSwap = swapPages > m_state.GraphStartPage;
        if (fromSwap) {
            const std::filesystem::path swapPath = m_services.paths.SwapFile();
            std::ifstream swap;
            if (std::filesystem::exists(swapPath)) {
                swap.open(swapPath, std::ios::binary);
                if (!swap.is_open())
                    return false;
            }
            // A 1-based byte position: the start slot counts bytes here, not records.
            const double start = m_state.GraphStartPage * 1000.0 * 8.0 + 1.0 + m_state.GraphStartSlot;
            swap.seekg(static_cast<std::streamoff>(start - 1.0));
            // The end position is a 16-bit number: from five swap pages on it overflows.
            const long end = static_cast<long>(swapPages) * 1000L * 8L;
            if (end > std::numeric_limits<std::int16_t>::max())
                return false;
            // One record per byte of the range, each eight bytes long: reads on past the pages.
            for (double counter = start; counter <= static_cast<double>(end); counter += 1.0) {
                recordBuffer.assign(kRecordBytes, ' ');
                swap.read(recordBuffer.data(), static_cast<std::streamsize>(kRecordBytes));
                target.write(recordBuffer.data(), static_cast<std::streamsize>(recordBuffer.size()));
                if (!target)
                    return false;
                const state::SampleRecord record = ToRecord(recordBuffer);
                if (!log::FormatRecordLine(record, m_state.SpecialWordTable, "", ""))
                    return false;
            }
        }
        // The memory page: each slot writes the record buffer, not the slot's own record.
        const int firstSlot = fromSwap ? 1 : m_state.GraphStartSlot;
        for (int slot = firstSlot; slot <= m_state.PageFill - 1; ++slot) {
            if (slot < 1 || slot > state::kPageSize)
                return false;
            target.write(recordBuffer.data(), static_cast<std::streamsize>(recordBuffer.size()));
            if (!target)
                return false;
        }
        target.close();
        return !target.fail();
    } catch (...) {
        return false;
    }
}

} // namespace ventrix::files
