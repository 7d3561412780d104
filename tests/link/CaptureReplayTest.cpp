#include "link/CaptureReplay.h"
#include "link/MeterBytes.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace ventrix::link {
namespace {

using testing::MeterFrame;
using testing::VoltsReading;

// Per reported frame: offset, refused, logged, function.
using Seen = std::tuple<std::size_t, bool, bool, int>;

TEST(CaptureReplayTest, ReportsEachFrameWithItsOffsetRefusalAndLogging)
{
    const std::string stream
        = MeterFrame(0, VoltsReading(100, false, true)) // REL before any absolute reading
        + MeterFrame(0, VoltsReading(1234, true)) // absolute
        + MeterFrame(0, VoltsReading(5, false, true)) // REL after an absolute reading
        + MeterFrame(24, { 0, 0, 0, 0, 0, 0, 0x02 }) // no function to log
        + MeterFrame(1, { 0x02, 0, 0xD7, 0xD7, 0, 0, 0x06 })
        + MeterFrame(1, { 0x02, 0, 0xD7, 0xD7, 0, 0, 0x06 }).substr(0, 8); // a rest raises no event
    std::vector<Seen> seen;
    CaptureReplay().Run(stream, [&](const CaptureReplay::Frame& f) {
        seen.emplace_back(f.offset, f.refused, f.logged, f.state.FunctionKind);
        EXPECT_TRUE(f.state.IsAcquiring) << "a refusal stops nothing in a replay";
        if (f.offset == 18) { // the decoder's state runs on: the REL frame keeps the last absolute count
            EXPECT_EQ(f.state.SignedCount, -1234);
            EXPECT_EQ(f.state.CountValue, 5);
        }
    });
    EXPECT_EQ(seen,
        (std::vector<Seen> { { 0, true, false, 0 }, { 9, false, true, 0 }, { 18, false, true, 0 },
            { 27, false, false, 15 }, { 36, false, true, 1 } }));
}

} // namespace
} // namespace ventrix::link
