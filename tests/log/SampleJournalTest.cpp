#include "log/SampleJournal.h"
#include "log/SwapFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <unistd.h>

namespace ventrix::log {
namespace {

SampleRecord Numbered(int n)
{
    return { static_cast<std::uint8_t>(n / 3600 % 24), static_cast<std::uint8_t>(n / 60 % 60),
        static_cast<std::uint8_t>(n % 60), 1, static_cast<std::uint8_t>(n / 100 % 100),
        static_cast<std::uint8_t>(n % 100), 0, 0 };
}

struct JournalDir {
    JournalDir() { std::filesystem::create_directories(dir); }
    ~JournalDir() { std::filesystem::remove_all(dir); }
    std::filesystem::path dir
        = std::filesystem::temp_directory_path() / ("ventrix-journal-" + std::to_string(::getpid()));
    std::filesystem::path swap = dir / "BUFFER.SWP";
    std::filesystem::path file = dir / "BUFFER.JNL";
};

TEST(SampleJournal, RebuildsPagesAndTheMemoryPageAndDropsATornRecord)
{
    JournalDir d;
    SampleJournal journal(d.file);
    ASSERT_TRUE(journal.StartPage(2));
    for (int n = 0; n < 1003; ++n) // a flush cut short by the crash: a page and three more
        ASSERT_TRUE(journal.Append(Numbered(n)));
    std::ofstream(d.file, std::ios::binary | std::ios::app).write("\x01\x02\x03", 3); // torn write

    const auto log = SampleJournal::Recover(d.swap, d.file);
    ASSERT_TRUE(log);
    EXPECT_EQ(log->swapPageCount, 3);
    EXPECT_EQ(log->pageFill, 4);
    EXPECT_EQ(log->SampleCount(), 3003);
    EXPECT_EQ(log->pageRecords[2], Numbered(1002));
    std::vector<SampleRecord> page;
    EXPECT_EQ(SwapFile::ReadRecords(d.swap, 2000, 1000, page), 1000u); // the page went to its place
    EXPECT_EQ(page.front(), Numbered(0));
    EXPECT_EQ(page.back(), Numbered(999));
}

TEST(SampleJournal, AClearedLogForgetsEverythingBeforeTheClear)
{
    JournalDir d;
    SampleJournal journal(d.file);
    ASSERT_TRUE(journal.StartPage(7));
    journal.Append(Numbered(1));
    ASSERT_TRUE(journal.StartPage(0)); // the log was cleared
    journal.Append(Numbered(2));
    const auto contents = SampleJournal::Read(d.file);
    ASSERT_TRUE(contents);
    EXPECT_EQ(contents->swapPages, 0);
    ASSERT_EQ(contents->records.size(), 1u);
    EXPECT_EQ(contents->records[0], Numbered(2));

    std::ofstream(d.file, std::ios::binary | std::ios::trunc).write("VXJ", 3); // torn header
    EXPECT_FALSE(SampleJournal::Read(d.file));
    EXPECT_FALSE(SampleJournal::Recover(d.swap, d.dir / "missing.jnl"));
}

} // namespace
} // namespace ventrix::log
