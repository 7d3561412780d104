#include "link/FrameDecoder.h"
#include "link/MeterBytes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ventrix::link {
namespace {

using testing::kDigit;
using testing::kPoint;
using testing::LcdBytes;
using testing::VoltsReading;

// Stores the frame as the assembler does (bytes 8 down to 2) and decodes it.
bool Decode(state::AppState& state, std::uint8_t mode, const LcdBytes& lcd)
{
    state.ModeByte = mode;
    for (std::size_t i = 0; i < 7; ++i)
        state.FrameData[6 - i] = lcd[i];
    return DecodeFrame(state);
}

state::AppState Decoded(std::uint8_t mode, const LcdBytes& lcd)
{
    state::AppState state;
    Decode(state, mode, lcd);
    return state;
}

// Positions in bytes 7 (left) to 4 (right); bytes 2 and 3 blank, byte 8 with its fixed bit.
LcdBytes Digits(std::uint8_t d7, std::uint8_t d6, std::uint8_t d5, std::uint8_t d4)
{
    return { 0, 0, d4, d5, d6, d7, 0x02 };
}

TEST(FrameDecoderTest, ModeByteGivesFunctionAndUnit)
{
    struct Row {
        int mode, kind;
        std::string label, base;
    };
    const Row rows[] = { { 0, 0, "V", "V" }, { 1, 1, "V AC", "V AC" }, { 8, 4, "OHM", "ohm" },
        { 20, 10, "CONT", "ohm" }, { 24, 15, "", "" }, { 26, 255, "", "" }, { 255, 255, "", "" } };
    for (const Row& row : rows) {
        state::AppState state;
        state.UnitLabel = state.BaseUnit = "stale";
        Decode(state, static_cast<std::uint8_t>(row.mode), Digits(0, 0, 0, 0));
        EXPECT_EQ(state.FunctionKind, row.kind) << "mode " << row.mode;
        EXPECT_EQ(state.UnitLabel, row.label) << "mode " << row.mode;
        EXPECT_EQ(state.BaseUnit, row.base) << "mode " << row.mode;
    }
}

TEST(FrameDecoderTest, DigitsPointAndSign)
{
    // 12.34: digits 1, 2, 3, 4 with the point in byte 5.
    state::AppState state = Decoded(0, Digits(0x50, 0xB5, 0xF1 | kPoint, 0x72));
    EXPECT_EQ(state.CountValue, 1234);
    EXPECT_EQ(state.DecimalDivisor, 100);
    EXPECT_FALSE(state.HasWord);
    for (int d = 0; d <= 9; ++d) { // every pattern in every position; a point bit leaves the digit
        const std::uint8_t p = kDigit[static_cast<std::size_t>(d)];
        EXPECT_EQ(Decoded(0, Digits(p, p | kPoint, p, p | kPoint)).CountValue, 1111 * d) << d;
    }
    EXPECT_FALSE(Decoded(0, Digits(0, 0, 0, 0)).HasWord); // blank positions are zeros
    // The leftmost point decides; byte 7's bit is MAX, not a point.
    EXPECT_EQ(Decoded(0, Digits(0, kPoint, 0, kPoint)).DecimalDivisor, 1000);
    EXPECT_EQ(Decoded(0, Digits(0, 0, kPoint, kPoint)).DecimalDivisor, 100);
    EXPECT_EQ(Decoded(0, Digits(0, 0, 0, kPoint)).DecimalDivisor, 10);
    EXPECT_EQ(Decoded(0, Digits(kPoint, 0, 0, 0)).DecimalDivisor, 1);

    state = Decoded(0, VoltsReading(1999, true));
    EXPECT_FALSE(state.IsPositive);
    EXPECT_EQ(state.SignedCount, -1999);
}

TEST(FrameDecoderTest, TemperatureTakesItsUnitFromTheLastPositionAndCountsThreeDigits)
{
    // 23.5 °C: digits 2, 3, 5 in bytes 7 to 5, the point in byte 5, "C" in byte 4.
    state::AppState state = Decoded(25, Digits(kDigit[2], kDigit[3], kDigit[5] | kPoint, 0x87));
    EXPECT_EQ(state.FunctionKind, 14);
    EXPECT_EQ(state.UnitLabel, "°C");
    EXPECT_EQ(state.BaseUnit, "°C");
    EXPECT_FALSE(state.HasWord);
    EXPECT_EQ(state.CountValue, 235);
    EXPECT_EQ(state.DecimalDivisor, 10);
    // A point over the unit letter still reads "°C" and leaves divisor 1.
    state = Decoded(25, Digits(kDigit[0], kDigit[9], kDigit[8], 0x87 | kPoint));
    EXPECT_EQ(state.UnitLabel, "°C");
    EXPECT_EQ(state.CountValue, 98);
    EXPECT_EQ(state.DecimalDivisor, 1);
    state = Decoded(25, Digits(kDigit[1], kDigit[0] | kPoint, kDigit[4], 0x27));
    EXPECT_EQ(state.UnitLabel, "°F");
    EXPECT_EQ(state.DecimalDivisor, 100);
    // Without a unit letter the label is empty and the base unit stays the last one.
    Decode(state, 25, Digits(kDigit[1], kDigit[2], kDigit[3], 0x00));
    EXPECT_EQ(state.UnitLabel, "");
    EXPECT_EQ(state.BaseUnit, "°F");
    EXPECT_EQ(state.CountValue, 123);
    // Overload: 1000 in temperature, 4000 elsewhere.
    EXPECT_EQ(Decoded(25, Digits(0x00, 0xD7, 0x27, 0x00)).CountValue, 1000);
    EXPECT_EQ(Decoded(0, Digits(0x00, 0xD7, 0x27, 0x00)).CountValue, 4000);
}

TEST(FrameDecoderTest, PrefixFirstMatchWins)
{
    struct Row {
        std::uint8_t byte2, byte3;
        std::string label;
        double multiplier;
    };
    const std::vector<Row> rows { { 0x00, 0x00, "V", 1.0 }, { 0x00, 0x40, "nV", 1e-9 },
        { 0x00, 0x80, "uV", 1e-6 }, { 0x01, 0x00, "mV", 1e-3 }, { 0x20, 0x00, "KV", 1e3 },
        { 0x10, 0x00, "MV", 1e6 }, { 0x31, 0xC0, "nV", 1e-9 }, { 0x31, 0x80, "uV", 1e-6 },
        { 0x31, 0x00, "mV", 1e-3 }, { 0x30, 0x00, "KV", 1e3 } };
    for (const Row& row : rows) {
        state::AppState state;
        state.UnitMultiplier = 42.0;
        Decode(state, 0, { row.byte2, row.byte3, 0, 0, 0, 0, 0x02 });
        EXPECT_EQ(state.UnitLabel, row.label) << +row.byte2 << "/" << +row.byte3;
        EXPECT_EQ(state.UnitMultiplier, row.multiplier) << +row.byte2 << "/" << +row.byte3;
    }
}

TEST(FrameDecoderTest, WordsAreRecognisedWithTheirValues)
{
    struct Row {
        std::array<std::uint8_t, 4> positions; // bytes 7 to 4
        std::string word;
        int index;
        double count;
    };
    const std::vector<Row> rows { { { 0x00, 0xD7, 0x27, 0x00 }, " OF ", 0, 4000 },
        { { 0x20, 0x20, 0x20, 0x20 }, "----", 1, 0 }, { { 0x00, 0x76, 0x06, 0x00 }, " HI ", 2, 4000 },
        { { 0x00, 0x86, 0xD7, 0x00 }, " LO ", 3, 0 }, { { 0xD7, 0x37, 0xA7, 0x64 }, "OPEn", 4, 4000 },
        { { 0xE3, 0x66, 0x24, 0xA6 }, "Shrt", 5, 0 }, { { 0x37, 0x86, 0xE4, 0xA4 }, "PLoc", 6, 0 },
        { { 0x00, 0x66, 0x27, 0xA7 }, " hFE", 8, 0 }, { { 0x00, 0xA7, 0x27, 0x00 }, " EF ", 9, 0 },
        { { 0x01, 0x05, 0xF7 | kPoint, 0xFF }, "    ", 10, 0 }, // 1 to 5 and 245 up are blanks
        { { 0x00, 0xDF, 0x2F, 0x08 }, " OF ", 0, 4000 }, // the point bit does not change a letter
        // Unknown words read "----" and keep the index they had: "FO  ", and " db " (the
        // table's " dB " has a capital B that no pattern shows).
        { { 0x2F, 0xDF, 0x00, 0x00 }, "----", 7, 0 }, { { 0x00, 0xF4, 0xE6, 0x00 }, "----", 7, 0 } };
    for (const Row& row : rows) {
        const auto& w = row.positions;
        state::AppState state;
        state.DisplayWordIndex = 7;
        Decode(state, 0, { 0x02, 0x00, w[3], w[2], w[1], w[0], 0x02 });
        EXPECT_TRUE(state.HasWord) << row.word;
        EXPECT_EQ(state.DisplayWord, row.word);
        EXPECT_EQ(state.DisplayWordIndex, row.index) << row.word;
        EXPECT_EQ(state.CountValue, row.count) << row.word;
    }
    // " HI " drops prefix and point for 4000 at divisor 1000; " LO " keeps them; both read "Logic".
    state::AppState state = Decoded(22, { 0x01, 0x00, 0x00, 0x06 | kPoint, 0x76, 0x00, 0x02 });
    EXPECT_EQ(state.UnitLabel, "Logic");
    EXPECT_EQ(state.UnitMultiplier, 1.0);
    EXPECT_EQ(state.DecimalDivisor, 1000);
    state = Decoded(22, { 0x01, 0x00, 0x00, 0xD7 | kPoint, 0x86, 0x00, 0x02 });
    EXPECT_EQ(state.UnitLabel, "Logic");
    EXPECT_EQ(state.UnitMultiplier, 1e-3);
    EXPECT_EQ(state.DecimalDivisor, 100);
    // "OPEn" keeps the label and takes the open-circuit factor.
    state = Decoded(8, { 0x60, 0x00, 0x64, 0xA7, 0x37, 0xD7, 0x02 });
    EXPECT_EQ(state.UnitLabel, "KOHM");
    EXPECT_EQ(state.UnitMultiplier, 10000.0);
}

TEST(FrameDecoderTest, RelativeSpansAreTakenOnceAndRefusalOnlyBeforeAnAbsoluteReading)
{
    state::AppState state; // as after a stop: awaiting an absolute reading
    EXPECT_TRUE(Decode(state, 0, VoltsReading(1234, false, true)));
    EXPECT_EQ(state.CountValue, 1234); // decoding completes all the same
    EXPECT_FALSE(Decode(state, 0, VoltsReading(1234)));
    EXPECT_FALSE(state.AwaitingAbsoluteReading);
    EXPECT_FALSE(state.RelativeCaptured);

    EXPECT_FALSE(Decode(state, 0, VoltsReading(7, false, true)));
    EXPECT_TRUE(state.IsRelative);
    EXPECT_EQ(state.RelativeSpanUp, 4000 - 1234);
    EXPECT_EQ(state.RelativeSpanDown, 5234);
    EXPECT_EQ(state.SignedCount, 1234); // relative readings leave it alone
    Decode(state, 0, VoltsReading(3000, true, true)); // the spans stay
    EXPECT_EQ(state.RelativeSpanUp, 2766);
    // Overload in relative mode reads the span on the side of the sign.
    const LcdBytes overload { 0x02, 0x02, 0x00, 0x27, 0xD7, 0x00, 0x02 };
    Decode(state, 0, overload);
    EXPECT_EQ(state.CountValue, 2766);
    Decode(state, 0, testing::With(overload, 8, 0x0A));
    EXPECT_EQ(state.CountValue, 5234);

    // A word outside relative mode keeps the signed count; REL on again takes new spans.
    Decode(state, 0, VoltsReading(500, true));
    Decode(state, 0, { 0x02, 0x00, 0x00, 0x27, 0xD7, 0x00, 0x02 });
    EXPECT_EQ(state.SignedCount, -500);
    Decode(state, 0, VoltsReading(0, false, true));
    EXPECT_EQ(state.RelativeSpanUp, 4500);
    EXPECT_EQ(state.RelativeSpanDown, 3500);
}

} // namespace
} // namespace ventrix::link
