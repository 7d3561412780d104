// The layers of src/ point one way: ui -> app -> (link, display, log, graph, files) -> state ->
// platform, and ui -> io -> platform. Between the subsystems an include may go one way, never
// both. This test reads every `#include "folder/..."` line under src/ and names each line that
// breaks those rules.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

struct IncludeLine {
    std::string file; // path below src/, e.g. "log/SampleLog.cpp"
    int line;
    std::string target; // the quoted path, e.g. "state/AppState.h"
};

const std::set<std::string> kSubsystems { "link", "display", "log", "graph", "files" };

std::string Folder(const std::string& path)
{
    return path.substr(0, path.find('/'));
}

// The folders a folder may include besides itself.
bool MayInclude(const std::string& from, const std::string& to)
{
    static const std::map<std::string, std::set<std::string>> kBelow {
        { "platform", {} },
        { "state", { "platform" } },
        { "app", { "platform", "state", "link", "display", "log", "graph", "files" } },
        { "io", { "platform" } },
        { "ui", { "platform", "state", "app", "link", "display", "log", "graph", "files", "io" } },
    };
    if (from == to)
        return true;
    if (kSubsystems.count(from))
        return to == "platform" || to == "state" || kSubsystems.count(to);
    const auto found = kBelow.find(from);
    return found != kBelow.end() && found->second.count(to);
}

std::vector<std::string> BrokenIncludes(const std::vector<IncludeLine>& includes)
{
    std::vector<std::string> broken;
    std::set<std::pair<std::string, std::string>> subsystemArrows;
    for (const IncludeLine& inc : includes) {
        const std::string from = Folder(inc.file);
        const std::string to = Folder(inc.target);
        if (!MayInclude(from, to))
            broken.push_back(
                inc.file + ":" + std::to_string(inc.line) + ": " + from + " may not include " + inc.target);
        if (from != to && kSubsystems.count(from) && kSubsystems.count(to))
            subsystemArrows.insert({ from, to });
    }
    for (const IncludeLine& inc : includes) {
        const std::string from = Folder(inc.file);
        const std::string to = Folder(inc.target);
        if (from != to && subsystemArrows.count({ from, to }) && subsystemArrows.count({ to, from }))
            broken.push_back(inc.file + ":" + std::to_string(inc.line) + ": " + from + " and " + to
                + " include each other (" + inc.target + ")");
    }
    return broken;
}

std::vector<IncludeLine> ReadIncludes(const std::filesystem::path& srcDir)
{
    static const std::regex kInclude(R"(^\s*#\s*include\s+"([A-Za-z_]+/[^"]+)\")");
    std::vector<IncludeLine> includes;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(srcDir)) {
        if (!entry.is_regular_file())
            continue;
        const std::string ext = entry.path().extension().string();
        if (ext != ".h" && ext != ".cpp")
            continue;
        std::ifstream in(entry.path());
        const std::string file = std::filesystem::relative(entry.path(), srcDir).generic_string();
        std::string text;
        std::smatch match;
        for (int number = 1; std::getline(in, text); ++number)
            if (std::regex_search(text, match, kInclude))
                includes.push_back({ file, number, match[1] });
    }
    return includes;
}

TEST(IncludeRules, CatchUpwardIncludesAndTwoWayPairs)
{
    const std::vector<IncludeLine> table {
        { "link/SerialLink.h", 3, "state/AppState.h" }, // down: fine
        { "link/SerialLink.cpp", 5, "display/VirtualLcd.h" }, // one way between subsystems: fine
        { "ui/main.cpp", 2, "app/MainForm.h" }, // down: fine
        { "link/FrameDecoder.h", 4, "app/MainForm.h" }, // up
        { "state/AppState.h", 7, "log/SampleLog.h" }, // up
        { "io/QtTimer.h", 2, "ui/MainWindow.h" }, // io sees no widgets
        { "log/SampleLog.cpp", 9, "graph/Plotter.h" }, // two-way pair...
        { "graph/Plotter.cpp", 11, "log/SampleRecord.h" }, // ...with this one
    };
    const std::vector<std::string> expected {
        "link/FrameDecoder.h:4: link may not include app/MainForm.h",
        "state/AppState.h:7: state may not include log/SampleLog.h",
        "io/QtTimer.h:2: io may not include ui/MainWindow.h",
        "log/SampleLog.cpp:9: log and graph include each other (graph/Plotter.h)",
        "graph/Plotter.cpp:11: graph and log include each other (log/SampleRecord.h)",
    };
    EXPECT_EQ(BrokenIncludes(table), expected);
}

TEST(IncludeRules, SourceTreeKeepsThem)
{
    const std::vector<IncludeLine> includes = ReadIncludes(VENTRIX_SOURCE_DIR "/src");
    ASSERT_GT(includes.size(), 50u); // the tree was found and read
    const std::vector<std::string> broken = BrokenIncludes(includes);
    std::string report;
    for (const std::string& line : broken)
        report += line + "\n";
    EXPECT_TRUE(broken.empty()) << report;
}

} // namespace
