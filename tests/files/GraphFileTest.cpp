#include "files/FilesTestRig.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ventrix::files {
namespace {

using testing::FilesTestRig;
using testing::ReadFile;

// The writer's results by where the graph began and how far the log has come: one record per
// byte from the start position to the 16-bit end position, then one per memory-page slot. Each
// case runs on a new file and on an older, longer one, whose bytes past those written stay.
TEST(GraphFile, WritesWhatTheWriterAlwaysWrote)
{
    struct Case {
        const char* name;
        int samples;
        int startPage;
        int startSlot;
        std::size_t records;
    };
    const Case cases[] = {
        { "graph wholly in the memory page", 500, 0, 1, 0 },
        { "graph began in the newest page", 1500, 1, 1, 0 },
        { "one swap page", 1500, 0, 1, 8000 - 1 + 500 },
        { "began at slot 300", 1500, 0, 300, 8000 - 300 + 500 },
        { "four swap pages", 4000, 0, 1, 32000 - 1 },
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
            const std::size_t written = c.records * 8;
            const std::string where = std::string(c.name) + (older ? ", older file" : "");
            ASSERT_TRUE(std::filesystem::exists(path)) << where;
            EXPECT_EQ(bytes.size(), older ? std::max<std::size_t>(written, 100000) : written) << where;
            if (older) {
                EXPECT_EQ(bytes.find_first_not_of('x', written), std::string::npos) << where;
            }
            EXPECT_TRUE(t.PointerRestored()) << where;
        }
    }
}

// Read from byte 1 (the start slot), on past the log's pages into what an earlier log left in the
// swap file, then past its end as blanks; each memory-page slot repeats the last record read.
TEST(GraphFile, ReadsMisalignedAndOnPastTheSwapPages)
{
    FilesTestRig t;
    t.Fill(2000);
    const std::string swap = ReadFile(t.rig.paths.SwapFile());
    t.s.SwapPageCount = 1; // a cleared and refilled log: page 2 is an earlier log's
    t.s.PageFill = 501;
    t.s.GraphFilePath = t.s.GraphDialogPath = t.File("g.gph").string();
    t.c.MENU_SAVE_GRAPH.Click();
    EXPECT_TRUE(t.rig.dialogs.saveRequests.empty());
    const std::string bytes = ReadFile(t.s.GraphFilePath);
    ASSERT_EQ(bytes.size(), (7999u + 500u) * 8);
    EXPECT_EQ(bytes.substr(0, 15999), swap.substr(1));
    EXPECT_EQ(bytes.find_first_not_of(' ', 15999), std::string::npos);

    std::filesystem::remove(t.rig.paths.SwapFile()); // a missing swap file reads as blanks
    std::filesystem::remove(t.s.GraphFilePath);
    t.c.MENU_SAVE_GRAPH.Click();
    EXPECT_EQ(ReadFile(t.s.GraphFilePath), std::string((7999 + 500) * 8, ' '));
}

// A record read one byte late with decimal code 5 and word index 2003 stops the writer after
// writing it; a path that cannot be opened or a full disk end silently too.
TEST(GraphFile, FailuresEndSilentlyWithWhatWasWritten)
{
    FilesTestRig t;
    t.Fill(1000);
    t.s.PageRecords[0] = { 0, 0, 10, 2, 5, 20, 3, 0 };
    log::SwapFile::WritePage(t.rig.paths.SwapFile(), 0, t.s.PageRecords); // record 0 repeated
    for (const std::string& path :
        { t.File("g.gph").string(), t.File("no/dir/g.gph").string(), std::string("/dev/full") }) {
        t.rig.dialogs.fileAnswers.push_back(path);
        t.c.MENU_SAVE_GRAPG_AS.Click();
        EXPECT_TRUE(t.PointerRestored()) << path;
    }
    EXPECT_EQ(ReadFile(t.File("g.gph")).size(), 8u);
    EXPECT_FALSE(std::filesystem::exists(t.File("no")));
    EXPECT_TRUE(t.rig.dialogs.boxes.empty());
}

// "Save Graph" asks only until a file is chosen; the graph dialogs set no flags of their own, so
// once the text "Save As" has run its flags apply to them. Opening remembers the path with the
// pointer busy from before the dialog, and changes nothing else.
TEST(GraphFile, DialogsShareTheFileBoxAndOpenRestoresNothing)
{
    FilesTestRig t;
    t.c.MENU_SAVE_GRAPH.Click(); // cancelled
    const platform::FileDialogRequest first = t.rig.dialogs.saveRequests.at(0);
    EXPECT_EQ(first.title + first.filter, "Save Graph As*.gph|*.gph");
    EXPECT_EQ(first.initialDirectory, t.rig.paths.ProgramDirectory().string());
    EXPECT_EQ(first.flags, 0);
    t.c.Save_As.Click(); // cancelled too; its flags stay
    const std::string path = t.File("g.gph").string();
    t.rig.dialogs.fileAnswers.push_back(path);
    t.c.MENU_SAVE_GRAPH.Click();
    t.c.MENU_SAVE_GRAPH.Click();
    ASSERT_EQ(t.rig.dialogs.saveRequests.size(), 3u);
    EXPECT_EQ(t.rig.dialogs.saveRequests[2].flags, 2054);

    t.Fill(20);
    t.rig.graph.points = { 1.0, 2.0 };
    testing::WriteFile(t.File("old.gph"), "ABCDEFGHIJKLMNOP");
    t.rig.shell.pointerHistory.clear();
    t.rig.dialogs.fileAnswers.push_back(t.File("old.gph").string());
    t.c.MENU_OPEN_GRAPH.Click();
    t.c.MENU_OPEN_GRAPH.Click(); // cancelled: the path stays
    EXPECT_EQ(t.rig.dialogs.openRequests.at(0).flags, 2054);
    EXPECT_EQ(t.rig.dialogs.openRequests.at(0).initialDirectory, path);
    EXPECT_EQ(t.s.GraphFilePath, t.File("old.gph").string());
    EXPECT_EQ(t.rig.graph.points, (std::vector<double> { 1.0, 2.0 }));
    EXPECT_EQ(t.s.PageFill, 21);
    EXPECT_EQ(ReadFile(t.File("old.gph")), "ABCDEFGHIJKLMNOP");
    EXPECT_EQ(t.rig.shell.pointerHistory, (std::vector<bool> { true, false, true, false }));
}

} // namespace
} // namespace ventrix::files
