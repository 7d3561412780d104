#include "log/SampleRecord.h"
#include "link/FrameDecoder.h"
#include "log/SwapFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <unistd.h>

namespace ventrix::log {
namespace {

SampleRecord Rec(int h, int m, int s, int decimal, int high, int low, int multiplier, int function)
{
    return { static_cast<std::uint8_t>(h), static_cast<std::uint8_t>(m), static_cast<std::uint8_t>(s),
        static_cast<std::uint8_t>(decimal), static_cast<std::uint8_t>(high), static_cast<std::uint8_t>(low),
        static_cast<std::uint8_t>(multiplier), static_cast<std::uint8_t>(function) };
}

TEST(SampleRecord, TwelveHourTextRoundTripsThroughTheParser)
{
    struct Case {
        double seconds;
        const char* text;
        int hour;
    };
    for (const Case& c : { Case { 5, "12:00:05 AM", 0 }, Case { 12 * 3600 + 1800, "12:30:00 PM", 12 },
             Case { 13 * 3600 + 5 * 60 + 9, "1:05:09 PM", 13 },
             Case { 9 * 3600 + 5 * 60 + 3, "9:05:03 AM", 9 }, Case { 10 * 3600 + 59, "10:00:59 AM", 10 },
             Case { 86399.9, "11:59:59 PM", 23 } }) {
        const std::string text = FormatTimeOfDay(c.seconds / 86400.0);
        EXPECT_EQ(text, c.text);
        const RecordClock clock = ParseRecordTime(text);
        EXPECT_EQ(clock.hour, c.hour) << text;
        EXPECT_EQ(clock.hour * 3600 + clock.minute * 60 + clock.second, static_cast<int>(c.seconds)) << text;
    }
}

TEST(SampleRecord, EncodesTheReading)
{
    state::AppState s;
    s.SpecialWordTable = link::kSpecialWordTable;
    s.CountValue = 1234;
    s.DecimalDivisor = 1000;
    s.UnitMultiplier = 1e-3;
    s.FunctionKind = 0;
    EXPECT_EQ(EncodeSampleRecord(s, { 13, 5, 9 }), Rec(13, 5, 9, 4, 12, 34, 3, 0));

    s.HasWord = true; // a negative word: decimal code 15, the word's index in the low byte
    s.IsPositive = false;
    s.DisplayWordIndex = 4;
    s.UnitMultiplier = 1e6;
    s.FunctionKind = 4;
    EXPECT_EQ(EncodeSampleRecord(s, { 0, 0, 0 }), Rec(0, 0, 0, 15, 0, 4, 5, 4));

    s = state::AppState {}; // temperature in Fahrenheit is stored as function 15, Celsius stays 14
    s.FunctionKind = 14;
    s.UnitLabel = "°F";
    s.DecimalDivisor = 10;
    s.CountValue = 987;
    EXPECT_EQ(EncodeSampleRecord(s, { 1, 2, 3 }), Rec(1, 2, 3, 2, 9, 87, 0, 15));
    s.UnitLabel = "°C";
    EXPECT_EQ(EncodeSampleRecord(s, { 1, 2, 3 })[7], 14);
}

TEST(SampleRecord, FormatsTheThreeTexts)
{
    struct Case {
        SampleRecord record;
        const char* time;
        const char* value;
        const char* unit;
        double number;
    };
    for (const Case& c : {
             Case { Rec(21, 5, 3, 4, 1, 23, 3, 0), "09:05:03 PM", "0.123", "mV", 0.000123 },
             Case { Rec(0, 0, 0, 1, 0, 0, 0, 4), "12:00:00 AM", "0", "OHM", 0.0 },
             Case { Rec(12, 30, 0, 12, 10, 5, 4, 4), "12:30:00 PM", "-100.5", "KOHM", -100500.0 },
             Case { Rec(9, 59, 59, 3, 0, 7, 2, 3), "09:59:59 AM", "0.07", "uA AC", 0.07e-6 },
             Case { Rec(23, 1, 1, 15, 0, 4, 0, 10), "11:01:01 PM", "-OPEn", "CONT", -4.0 },
             Case { Rec(1, 1, 1, 1, 99, 99, 7, 99), "01:01:01 AM", "9999", "", 9999.0 },
             Case { Rec(1, 1, 1, 2, 0, 5, 1, 15), "01:01:01 AM", "0.5", "n°F", 0.5e-9 },
         }) {
        EXPECT_EQ(FormatRecordTime(c.record), c.time);
        EXPECT_EQ(FormatRecordValue(c.record, link::kSpecialWordTable), c.value);
        EXPECT_EQ(FormatRecordUnit(c.record), c.unit);
        EXPECT_DOUBLE_EQ(RecordValue(c.record), c.number);
    }
    EXPECT_EQ(FormatRecordValue(Rec(0, 0, 0, 5, 0, 15, 0, 0), link::kSpecialWordTable), std::nullopt);
    EXPECT_EQ(FormatRecordLine(Rec(13, 0, 0, 2, 1, 23, 0, 0), link::kSpecialWordTable, "        ", ""),
        "01:00:00 PM        12.3V");
}

// Pages written out of order stay in place; a page past the file's end reads as blanks.
TEST(SwapFile, WritesPagesInPlaceAndReadsBlanksPastTheEnd)
{
    const auto dir = std::filesystem::temp_directory_path() / ("ventrix-swap-" + std::to_string(::getpid()));
    std::filesystem::create_directories(dir);
    const auto file = dir / "BUFFER.SWP";
    std::array<SampleRecord, state::kPageSize> page {};
    page.fill(Rec(1, 2, 3, 1, 0, 1, 0, 0));
    ASSERT_TRUE(SwapFile::WritePage(file, 1, page));
    page.fill(Rec(4, 5, 6, 1, 0, 2, 0, 0));
    ASSERT_TRUE(SwapFile::WritePage(file, 0, page));
    page[0] = Rec(7, 7, 7, 1, 0, 3, 0, 0);
    std::vector<SampleRecord> seen;
    EXPECT_TRUE(SwapFile::ForEachSample(file, 3, page, 2, [&](const SampleRecord& r) {
        seen.push_back(r);
        return true;
    }));
    ASSERT_EQ(seen.size(), 3001u); // two pages from the file, a third read as blanks, one from memory
    EXPECT_EQ(seen[0], Rec(4, 5, 6, 1, 0, 2, 0, 0));
    EXPECT_EQ(seen[1000], Rec(1, 2, 3, 1, 0, 1, 0, 0));
    EXPECT_EQ(seen[2000], kBlankRecord);
    EXPECT_EQ(seen[3000], Rec(7, 7, 7, 1, 0, 3, 0, 0));
    int visits = 0;
    EXPECT_FALSE(
        SwapFile::ForEachSample(file, 1, page, 2, [&](const SampleRecord&) { return ++visits < 10; }));
    EXPECT_EQ(visits, 10);
    std::filesystem::remove_all(dir);
}

} // namespace
} // namespace ventrix::log
