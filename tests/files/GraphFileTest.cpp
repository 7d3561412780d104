#include "files/FilesTestRig.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ventrix::files {
namespace {

using testing::FilesTestRig;
using testing::ReadFile;

std::size_t Records(std::size_t count)
{
    return count * 8;
}

// The writer's results for where the graph began and how far the log has come. Each case runs on
// a new file and on an older, longer file, whose bytes past those written stay.
TEST(GraphFile, WritesWhatTheWriterAlwaysWrote)
{
    struct Case {
        const char* name;
        int samples;
        int startPage;
        int startSlot;
        std::size_t written;
    };
    const Case cases[] = {
        { "graph wholly in the memory page", 500, 0, 1, 0 },
        { "graph began in the newest page", 1500, 1, 1, 0 },
        // One record per byte from byte start to end, then one per memory-page slot.
        { "one swap page", 1500, 0, 1, Records(8000 - 1 + 500) },
        { "began at slot 300", 1500, 0, 300, Records(8000 - 300 + 500) },
        { "four swap pages", 4000, 0, 1, Records(32000 - 1) },
        { "five swap pages overflow", 5500, 0, 1, 0 },
    };
    for (const Case& c : cases) {
        for (bool older : { false, true }) {
            FilesTestRig t;
            t.Fill(c.samples);
            t.s.GraphStartPage = static_cast<std::int16_t>(c.startPage);
            t.s.GraphStartSlot = static_cast<std::int16_t>(c.startSlot);
            const std::string path = t.File("g.gph").string();
            if (older)
                testing::WriteFile(path, std::string(100000, 'x'));
            t.rig.dialogs.fileAnswers.push_back(path);
            t.c.MENU_SAVE_GRAPG_AS.Click();

            const std::string bytes = ReadFile(path);
            const std::string where = std::string(c.name) + (older ? ", older file" : "");
            ASSERT_TRUE(std::filesystem::exists(path)) << where;
            EXPECT_EQ(bytes.size(), older ? std::max<std::size_t>(c.written, 100000) : c.written) << where;
            if (older) {
                EXPECT_EQ(bytes.find_first_not_of('x', c.written), std::string::npos) << where;
            }
            EXPECT_TRUE(t.PointerRestored()) << where;
        }
    }
}

// The swap file is read from byte 1 (the start slot), on past the log's pages into what an
// earlier log left there, then past its end as blanks; each memory-page slot repeats the last
// record read.
TEST(GraphFile, ReadsMisalignedAndOnPastTheSwapPages)
{
    FilesTestRig t;
    t.Fill(2000);
    const std::string swap = ReadFile(t.rig.paths.SwapFile());
    t.s.SwapPageCount = 1; // a cleared and refilled log: page 2 is an earlier log's
    t.s.PageFill = 501;
    t.s.GraphStartPage = 0;
    t.s.GraphStartSlot = 1;
    t.s.GraphFilePath = t.s.GraphDialogPath = t.File("g.gph").string();
    t.c.MENU_SAVE_GRAPH.Click();
    EXPECT_TRUE(t.rig.dialogs.saveRequests.empty());

    const std::string bytes = ReadFile(t.s.GraphFilePath);
    ASSERT_EQ(bytes.size(), Records(7999 + 500));
    EXPECT_EQ(bytes.substr(0, 15999), swap.substr(1));
    EXPECT_EQ(bytes.substr(15999).find_first_not_of(' '), std::string::npos);

    std::filesystem::remove(t.rig.paths.SwapFile()); // a missing swap file reads as blanks
    std::filesystem::remove(t.s.GraphFilePath);
    t.c.MENU_SAVE_GRAPH.Click();
    EXPECT_EQ(ReadFile(t.s.GraphFilePath), std::string(Records(7999 + 500), ' '));
}

TEST(GraphFile, FailuresEndSilentlyWithWhatWasWritten)
{
    FilesTestRig t;
    t.Fill(1500);
    // Record 10 read one byte late has decimal code 5 and word index 2003: the writer stops after
    // writing it.
    std::array<state::SampleRecord, state::kPageSize> page {};
    for (int i = 0; i < state::kPageSize; ++i)
        page[static_cast<std::size_t>(i)] = testing::Sample(i);
    page[10] = { 0, 0, 10, 2, 5, 20, 3, 0 };
    log::SwapFile::WritePage(t.rig.paths.SwapFile(), 0, page);
    for (const std::string& path : { t.File("g.gph").string(), t.File("no/dir/g.gph").string() }) {
        t.rig.dialogs.fileAnswers.push_back(path);
        t.c.MENU_SAVE_GRAPG_AS.Click();
        EXPECT_TRUE(t.PointerRestored()) << path;
    }
    EXPECT_EQ(ReadFile(t.File("g.gph")).size(), Records(11));
    EXPECT_FALSE(std::filesystem::exists(t.File("no")));
    t.s.GraphFilePath = "/dev/full";
    t.c.MENU_SAVE_GRAPH.Click();
    EXPECT_TRUE(t.PointerRestored());
    EXPECT_TRUE(t.rig.dialogs.boxes.empty());
    EXPECT_EQ(t.s.PageFill, 501);
}

// "Save Graph" asks only until a file is chosen; the graph dialogs set no flags of their own, so
// the text "Save As" flags apply to them once it has run.
TEST(GraphFile, DialogsShareTheFileBox)
{
    FilesTestRig t;
    t.c.MENU_SAVE_GRAPH.Click(); // cancelled
    const platform::FileDialogRequest first = t.rig.dialogs.saveRequests.at(0);
    EXPECT_EQ(first.title, "Save Graph As");
    EXPECT_EQ(first.filter, "*.gph|*.gph");
    EXPECT_EQ(first.initialDirectory, t.rig.paths.ProgramDirectory().string());
    EXPECT_EQ(first.flags, 0);
    EXPECT_TRUE(t.s.GraphFilePath.empty());

    t.c.Save_As.Click(); // cancelled too, the flags stay
    const std::string path = t.File("g.gph").string();
    t.rig.dialogs.fileAnswers.push_back(path);
    t.c.MENU_SAVE_GRAPH.Click();
    t.c.MENU_SAVE_GRAPH.Click();
    t.c.MENU_OPEN_GRAPH.Click(); // cancelled
    ASSERT_EQ(t.rig.dialogs.saveRequests.size(), 3u);
    EXPECT_EQ(t.rig.dialogs.saveRequests[2].flags, 2054);
    const platform::FileDialogRequest open = t.rig.dialogs.openRequests.at(0);
    EXPECT_EQ(open.title, "Open Graph");
    EXPECT_EQ(open.flags, 2054);
    EXPECT_EQ(open.initialDirectory, path);
}

// Opening remembers the path and reads one record; the graph, the log and the file stay as they
// are. The pointer is busy from before the dialog.
TEST(GraphFile, OpenRestoresNothing)
{
    FilesTestRig t;
    t.Fill(20);
    t.rig.graph.points = { 1.0, 2.0 };
    const std::string path = t.File("old.gph").string();
    testing::WriteFile(path, "ABCDEFGHIJKLMNOP");
    t.rig.dialogs.fileAnswers.push_back(path);
    t.c.MENU_OPEN_GRAPH.Click();
    EXPECT_EQ(t.s.GraphFilePath, path);
    EXPECT_EQ(t.s.GraphDialogPath, path);
    EXPECT_EQ(t.rig.graph.points, (std::vector<double> { 1.0, 2.0 }));
    EXPECT_EQ(t.s.PageFill, 21);
    EXPECT_EQ(ReadFile(path), "ABCDEFGHIJKLMNOP");
    EXPECT_EQ(t.rig.shell.pointerHistory, (std::vector<bool> { true, false }));

    t.c.MENU_OPEN_GRAPH.Click(); // cancelled: the paths stay, the pointer comes back
    EXPECT_EQ(t.s.GraphFilePath, path);
    EXPECT_FALSE(t.rig.shell.Busy());
}

} // namespace
} // namespace ventrix::files
