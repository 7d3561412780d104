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
        text += *log::FormatRecordLine(Sample(k), {}, "        ", "") + "\r\n";
    return text;
}

// The whole log replaces the file, oldest first (swap pages, then the memory page), and the
// caption names the file. The first "Save" asks, later ones rewrite the same file.
TEST(LogTextFile, SavesTheWholeLogAndNamesTheFile)
{
    for (int count : { 0, 1500 }) {
        FilesTestRig t;
        t.Fill(count);
        const std::string path = t.File("log.txt").string();
        testing::WriteFile(path, std::string(100000, 'x'));
        t.c.CMD_SAVE.Click(); // cancelled: nothing chosen
        EXPECT_TRUE(t.s.TextFilePath.empty());
        t.rig.dialogs.fileAnswers.push_back(path);
        t.c.Save.Click();
        EXPECT_EQ(ReadFile(path), Lines(0, count)) << count;
        EXPECT_EQ(t.c.MAIN_FRM.Caption(), path + " - Ventrix 1.0");
        const platform::FileDialogRequest& request = t.rig.dialogs.saveRequests.at(1);
        EXPECT_EQ(request.title + request.filter, "Save As*.txt|*.txt");
        EXPECT_EQ(request.initialDirectory, t.rig.paths.ProgramDirectory().string());
        EXPECT_EQ(request.flags, 2054);
        EXPECT_TRUE(t.PointerRestored());
    }
    FilesTestRig t;
    const std::string path = t.File("log.txt").string();
    t.rig.dialogs.fileAnswers.push_back(path);
    t.Fill(3);
    t.c.Save.Click();
    t.Fill(1200);
    t.c.CMD_SAVE.Click();
    EXPECT_EQ(t.rig.dialogs.saveRequests.size(), 1u);
    EXPECT_EQ(ReadFile(path), Lines(0, 1200));
    ASSERT_EQ(t.rig.shell.progress.size(), 1u); // once a page, while busy
    EXPECT_EQ(t.rig.shell.progress[0].done, 1000u);
    EXPECT_EQ(t.rig.shell.progress[0].total, 1200u);
    EXPECT_TRUE(t.rig.shell.progress[0].whileBusy);
    t.c.Save_As.Click();
    EXPECT_EQ(t.rig.dialogs.saveRequests.back().initialDirectory, path);
}

// A path that cannot be written, a full disk, or a record that cannot be formatted: silent, the
// caption unchanged, the pointer back, the log untouched and what was written left in the file.
TEST(LogTextFile, FailuresEndSilently)
{
    for (const std::string name : { "no/such/dir/log.txt", ".", "/dev/full", "bad.txt" }) {
        FilesTestRig t;
        t.Fill(1500);
        if (name == "bad.txt")
            t.s.PageRecords[200] = { 1, 2, 3, 5, 0, 15, 0, 0 }; // word index 15
        const std::string path = name.front() == '/' ? name : t.File(name).string();
        t.rig.dialogs.fileAnswers.push_back(path);
        t.c.Save_As.Click();
        EXPECT_EQ(t.c.MAIN_FRM.Caption(), "Ventrix 1.0") << name;
        EXPECT_TRUE(t.PointerRestored()) << name;
        EXPECT_EQ(t.s.PageFill, 501) << name;
        EXPECT_TRUE(t.rig.dialogs.boxes.empty()) << name;
        if (name == "bad.txt") {
            EXPECT_EQ(ReadFile(path), Lines(0, 1200));
        }
    }
}

} // namespace
} // namespace ventrix::files
