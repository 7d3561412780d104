#include "link/CaptureReplay.h"
#include "link/MeterBytes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ventrix::link {
namespace {

using testing::MeterFrame;
using testing::VoltsReading;

struct Seen {
    std::size_t offset;
    bool refused;
    bool logged;
    int functionKind;
    double signedCount;
    double count;
    bool acquiring;
};

std::vector<Seen> Replay(const std::string& bytes)
{
    std::vector<Seen> seen;
    CaptureReplay().Run(bytes, [&](const CaptureReplay::Frame& f) {
        seen.push_back({ f.offset, f.refused, f.logged, f.state.FunctionKind, f.state.SignedCount,
            f.state.CountValue, f.state.IsAcquiring });
    });
    return seen;
}

TEST(CaptureReplayTest, ReportsEachFrameWithItsOffsetRefusalAndLogging)
{
    const std::string stream
        = MeterFrame(0, VoltsReading(100, false, true)) // REL before any absolute reading
        + MeterFrame(0, VoltsReading(1234, true)) // absolute
        + MeterFrame(0, VoltsReading(5, false, true)) // REL after an absolute reading
        + MeterFrame(24, { 0, 0, 0, 0, 0, 0, 0x02 }) // no function to log
        + MeterFrame(1, { 0x02, 0, 0xD7, 0xD7, 0, 0, 0x06 });

    const std::vector<Seen> seen = Replay(stream);
    ASSERT_EQ(seen.size(), 5u);
    const std::vector<std::size_t> offsets { 0, 9, 18, 27, 36 };
    const std::vector<bool> refused { true, false, false, false, false };
    const std::vector<bool> logged { false, true, true, false, true };
    const std::vector<int> kinds { 0, 0, 0, 15, 1 };
    for (std::size_t i = 0; i < seen.size(); ++i) {
        EXPECT_EQ(seen[i].offset, offsets[i]) << i;
        EXPECT_EQ(seen[i].refused, refused[i]) << i;
        EXPECT_EQ(seen[i].logged, logged[i]) << i;
        EXPECT_EQ(seen[i].functionKind, kinds[i]) << i;
        EXPECT_TRUE(seen[i].acquiring) << "a refusal stops nothing in a replay, frame " << i;
    }
    // The decoder's state runs on from frame to frame: the REL frame keeps the last absolute count.
    EXPECT_EQ(seen[2].signedCount, -1234);
    EXPECT_EQ(seen[2].count, 5);
}

TEST(CaptureReplayTest, ARestShorterThanTheThresholdRaisesNoEvent)
{
    const std::string frame = MeterFrame(0, VoltsReading(77));
    EXPECT_EQ(Replay(frame + frame.substr(0, 8)).size(), 1u);
    EXPECT_TRUE(Replay(frame.substr(0, 8)).empty());
    EXPECT_TRUE(Replay("").empty());
}

TEST(CaptureReplayTest, MisalignedStreamReportsOffsetsInTheInput)
{
    const std::string frame = MeterFrame(0, VoltsReading(77));
    std::string stream = "\x11\x22\x33\x44\x55";
    for (int i = 0; i < 30; ++i)
        stream += frame;

    const std::vector<Seen> seen = Replay(stream);
    ASSERT_GE(seen.size(), 20u);
    for (std::size_t i = 0; i < seen.size(); ++i) {
        EXPECT_EQ(seen[i].offset % 9, 5u) << i;
        if (i > 0) {
            EXPECT_EQ(seen[i].offset, seen[i - 1].offset + 9) << i;
        }
    }
    EXPECT_EQ(seen.back().offset, stream.size() - 9);
}

} // namespace
} // namespace ventrix::link
