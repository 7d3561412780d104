#include "files/FilesTestRig.h"
#include "log/SampleRecord.h"

#include <gtest/gtest.h>

namespace ventrix::files {
namespace {

using testing::FilesTestRig;
using testing::ReadFile;
using testing::Sample;

std::string Lines(int first, int last)
{
    std::string text;
    for (int k = first; k < last; ++k)
        text += log::FormatRecordTime(Sample(k)) + "        " + *log::FormatRecordValue(Sample(k), {})
            + log::FormatRecordUnit(Sample(k)) + "\r\n";
    return text;
}

// The whole log, oldest first: swap pages then the memory page; the caption names the file.
TEST(LogTextFile, SaveAsWritesTheWholeLogAndNamesTheFileInTheCaption)
{
    for (int count : { 0, 1500, 2000 }) {
        FilesTestRig t;
        t.Fill(count);
        const std::string path = t.File("log.txt").string();
        testing::WriteFile(path, std::string(100000, 'x')); // replaced, not overwritten in place
        t.rig.dialogs.fileAnswers.push_back(path);
        t.c.Save_As.Click();

        const std::string text = ReadFile(path);
        EXPECT_EQ(text, Lines(0, count)) << count;
        if (count == 1500) {
            EXPECT_EQ(text.substr(0, 28), "12:00:00 AM        120.0mV\r\n");
        }
        EXPECT_EQ(t.c.MAIN_FRM.Caption(), path + " - Ventrix 1.0");
        EXPECT_TRUE(t.PointerRestored());
        const platform::FileDialogRequest& request = t.rig.dialogs.saveRequests.at(0);
        EXPECT_EQ(request.title, "Save As");
        EXPECT_EQ(request.filter, "*.txt|*.txt");
        EXPECT_EQ(request.initialDirectory, t.rig.paths.ProgramDirectory().string());
        EXPECT_EQ(request.flags, 2054);
    }
}

TEST(LogTextFile, SaveAsksOnceThenRewritesTheSameFile)
{
    FilesTestRig t;
    t.c.CMD_SAVE.Click(); // cancelled: nothing chosen, nothing written
    EXPECT_TRUE(t.s.TextFilePath.empty());
    EXPECT_EQ(t.c.MAIN_FRM.Caption(), "Ventrix 1.0");

    const std::string path = t.File("log.txt").string();
    t.rig.dialogs.fileAnswers.push_back(path);
    t.Fill(3);
    t.c.Save.Click();
    t.Fill(1200);
    t.c.CMD_SAVE.Click();
    EXPECT_EQ(t.rig.dialogs.saveRequests.size(), 2u);
    EXPECT_EQ(t.rig.dialogs.saveRequests[1].initialDirectory, t.rig.paths.ProgramDirectory().string());
    EXPECT_EQ(ReadFile(path), Lines(0, 1200));
    ASSERT_EQ(t.rig.shell.progress.size(), 1u);
    EXPECT_EQ(t.rig.shell.progress[0].done, 1000u);
    EXPECT_EQ(t.rig.shell.progress[0].total, 1200u);
    EXPECT_TRUE(t.rig.shell.progress[0].whileBusy);

    t.c.Save_As.Click(); // starts at the file chosen last
    EXPECT_EQ(t.rig.dialogs.saveRequests.back().initialDirectory, path);
}

// A path that cannot be written, a full disk, or a record that cannot be formatted: silent, the
// caption unchanged, the pointer back, the log untouched and what was written left in the file.
TEST(LogTextFile, FailuresEndSilently)
{
    struct Case {
        const char* name;
        std::string path;
        int badSample;
        std::string left;
    };
    const Case cases[] = {
        { "missing directory", "no/such/dir/log.txt", -1, "" },
        { "a directory", ".", -1, "" },
        { "full disk", "/dev/full", -1, "" },
        { "word index beyond the table", "log.txt", 1200, Lines(0, 1200) },
    };
    for (const Case& c : cases) {
        FilesTestRig t;
        t.Fill(1500);
        if (c.badSample >= 0)
            t.s.PageRecords[static_cast<std::size_t>(c.badSample - 1000)] = { 1, 2, 3, 5, 0, 15, 0, 0 };
        const std::string path = c.path.front() == '/' ? c.path : t.File(c.path).string();
        t.rig.dialogs.fileAnswers.push_back(path);
        t.c.Save_As.Click();
        EXPECT_EQ(t.c.MAIN_FRM.Caption(), "Ventrix 1.0") << c.name;
        EXPECT_TRUE(t.PointerRestored()) << c.name;
        EXPECT_EQ(t.s.TextFilePath, path) << c.name;
        EXPECT_EQ(t.s.PageFill, 501) << c.name;
        EXPECT_TRUE(t.rig.dialogs.boxes.empty()) << c.name;
        if (c.badSample >= 0) {
            EXPECT_EQ(ReadFile(path), c.left) << c.name;
        }
    }
}

} // namespace
} // namespace ventrix::files
