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
using testing::With;

// Stores the frame as the assembler does (bytes 8 down to 2) and decodes it.
bool Decode(app::AppState& state, std::uint8_t mode, const LcdBytes& lcd)
{
    state.ModeByte = mode;
    for (std::size_t i = 0; i < 7; ++i)
        state.FrameData[6 - i] = lcd[i];
    return DecodeFrame(state);
}

app::AppState Decoded(std::uint8_t mode, const LcdBytes& lcd)
{
    app::AppState state;
    Decode(state, mode, lcd);
    return state;
}

// Digits in bytes 7 (left) to 4 (right), the rest blank apart from byte 8's fixed bit.
LcdBytes Digits(std::uint8_t d7, std::uint8_t d6, std::uint8_t d5, std::uint8_t d4)
{
    return { 0x00, 0x00, d4, d5, d6, d7, 0x02 };
}

TEST(FrameDecoderTest, ModeByteGivesFunctionAndUnit)
{
    struct Row {
        std::vector<int> modes;
        int kind;
        std::string label;
        std::string base;
    };
    const std::vector<Row> rows { { { 0 }, 0, "V", "V" }, { { 1 }, 1, "V AC", "V AC" },
        { { 2, 3, 4 }, 2, "A", "A" }, { { 5, 6, 7 }, 3, "A AC", "A AC" }, { { 8 }, 4, "OHM", "ohm" },
        { { 9 }, 5, "F", "F" }, { { 10, 11, 12 }, 6, "Hz", "Hz" }, { { 13, 14, 15 }, 7, "%", "%" },
        { { 16, 17, 18 }, 8, "S", "S" }, { { 19 }, 9, "V", "V" }, { { 20 }, 10, "CONT", "ohm" },
        { { 21 }, 11, "hFE", "hFE" }, { { 22 }, 12, "V", "V" }, { { 23 }, 13, "dBm", "dBm" },
        { { 24 }, 15, "", "" }, { { 26, 27, 100, 255 }, 255, "", "" } };
    for (const Row& row : rows) {
        for (int mode : row.modes) {
            app::AppState state;
            state.UnitLabel = state.BaseUnit = "stale";
            Decode(state, static_cast<std::uint8_t>(mode), Digits(0, 0, 0, 0));
            EXPECT_EQ(state.FunctionKind, row.kind) << "mode " << mode;
            EXPECT_EQ(state.UnitLabel, row.label) << "mode " << mode;
            EXPECT_EQ(state.BaseUnit, row.base) << "mode " << mode;
        }
    }
}

TEST(FrameDecoderTest, TemperatureTakesItsUnitFromTheLastPositionAndCountsThreeDigits)
{
    // 23.5 °C: digits 2, 3, 5 in bytes 7, 6, 5, the point in byte 5, "C" in byte 4.
    app::AppState state = Decoded(25, Digits(kDigit[2], kDigit[3], kDigit[5] | kPoint, 0x87));
    EXPECT_EQ(state.FunctionKind, 14);
    EXPECT_EQ(state.UnitLabel, "°C");
    EXPECT_EQ(state.BaseUnit, "°C");
    EXPECT_FALSE(state.HasWord);
    EXPECT_EQ(state.CountValue, 235);
    EXPECT_EQ(state.DecimalDivisor, 10); // the point in byte 5 means 100, one position less here

    // The point over the unit letter still reads "°C" and leaves divisor 1.
    state = Decoded(25, Digits(kDigit[0], kDigit[9], kDigit[8], 0x87 | kPoint));
    EXPECT_EQ(state.UnitLabel, "°C");
    EXPECT_EQ(state.CountValue, 98);
    EXPECT_EQ(state.DecimalDivisor, 1);

    state = Decoded(25, Digits(kDigit[1], kDigit[0] | kPoint, kDigit[4], 0x27));
    EXPECT_EQ(state.UnitLabel, "°F");
    EXPECT_EQ(state.CountValue, 104);
    EXPECT_EQ(state.DecimalDivisor, 100);

    // Without a unit letter the label is empty and the base unit stays the last one.
    Decode(state, 25, Digits(kDigit[1], kDigit[2], kDigit[3], 0x00));
    EXPECT_EQ(state.FunctionKind, 14);
    EXPECT_EQ(state.UnitLabel, "");
    EXPECT_EQ(state.BaseUnit, "°F");
    EXPECT_EQ(state.CountValue, 123);

    // Overload shows 1000 in temperature, 4000 elsewhere.
    EXPECT_EQ(Decoded(25, Digits(0x00, 0xD7, 0x27, 0x00)).CountValue, 1000);
    EXPECT_EQ(Decoded(0, With(Digits(0x00, 0xD7, 0x27, 0x00), 2, 0x02)).CountValue, 4000);
}

TEST(FrameDecoderTest, DigitsCountAndDecimalPoint)
{
    // 12.34: digits 1, 2, 3, 4 with the point in byte 5.
    app::AppState state = Decoded(0, Digits(0x50, 0xB5, 0xF1 | kPoint, 0x72));
    EXPECT_EQ(state.CountValue, 1234);
    EXPECT_EQ(state.DecimalDivisor, 100);
    EXPECT_FALSE(state.HasWord);

    // Every digit pattern in every position, with and without the point bit.
    for (int d = 0; d <= 9; ++d) {
        const std::uint8_t p = kDigit[static_cast<std::size_t>(d)];
        const auto withPoint = static_cast<std::uint8_t>(p | kPoint);
        EXPECT_EQ(Decoded(0, Digits(p, 0, 0, 0)).CountValue, 1000 * d) << d;
        EXPECT_EQ(Decoded(0, Digits(0, withPoint, 0, 0)).CountValue, 100 * d) << d;
        EXPECT_EQ(Decoded(0, Digits(0, 0, p, 0)).CountValue, 10 * d) << d;
        EXPECT_EQ(Decoded(0, Digits(0, 0, 0, withPoint)).CountValue, d) << d;
    }
    // A blank position is a 0, not a word.
    state = Decoded(0, Digits(0x00, 0x00, 0x00, 0x00));
    EXPECT_EQ(state.CountValue, 0);
    EXPECT_FALSE(state.HasWord);

    // The leftmost point decides the divisor.
    EXPECT_EQ(Decoded(0, Digits(0, kPoint, 0, kPoint)).DecimalDivisor, 1000);
    EXPECT_EQ(Decoded(0, Digits(0, 0, kPoint, kPoint)).DecimalDivisor, 100);
    EXPECT_EQ(Decoded(0, Digits(0, 0, 0, kPoint)).DecimalDivisor, 10);
    EXPECT_EQ(Decoded(0, Digits(kPoint, 0, 0, 0)).DecimalDivisor, 1); // byte 7's bit is MAX, not a point
}

TEST(FrameDecoderTest, SignComesFromByte8)
{
    app::AppState state = Decoded(0, VoltsReading(1999, true));
    EXPECT_FALSE(state.IsPositive);
    EXPECT_EQ(state.CountValue, 1999);
    EXPECT_EQ(state.SignedCount, -1999);
    state = Decoded(0, VoltsReading(1999, false));
    EXPECT_TRUE(state.IsPositive);
    EXPECT_EQ(state.SignedCount, 1999);
}

TEST(FrameDecoderTest, PrefixFirstMatchWins)
{
    struct Row {
        std::uint8_t byte2;
        std::uint8_t byte3;
        std::string label;
        double multiplier;
    };
    const std::vector<Row> rows {
        { 0x00, 0x00, "V", 1.0 },
        { 0x00, 0x40, "nV", 1e-9 },
        { 0x00, 0x80, "uV", 1e-6 },
        { 0x01, 0x00, "mV", 1e-3 },
        { 0x20, 0x00, "KV", 1e3 },
        { 0x10, 0x00, "MV", 1e6 },
        { 0x01, 0x40, "nV", 1e-9 }, // byte 3 before byte 2
        { 0x31, 0xC0, "nV", 1e-9 },
        { 0x31, 0x80, "uV", 1e-6 },
        { 0x31, 0x00, "mV", 1e-3 },
        { 0x30, 0x00, "KV", 1e3 },
    };
    for (const Row& row : rows) {
        app::AppState state;
        state.UnitMultiplier = 42.0;
        Decode(state, 0, { row.byte2, row.byte3, 0, 0, 0, 0, 0x02 });
        EXPECT_EQ(state.UnitLabel, row.label) << int(row.byte2) << "/" << int(row.byte3);
        EXPECT_EQ(state.UnitMultiplier, row.multiplier) << int(row.byte2) << "/" << int(row.byte3);
        EXPECT_EQ(state.BaseUnit, "V");
    }
}

TEST(FrameDecoderTest, WordsAreRecognisedWithTheirValues)
{
    struct Row {
        LcdBytes positions; // bytes 7, 6, 5, 4 in the first four elements
        std::string word;
        int index;
        double count;
    };
    // Patterns of the letters: blank 0x00, O 0xD7, F 0x27, - 0x20, H 0x76, I 0x06, L 0x86,
    // P 0x37, E 0xA7, n 0x64, S 0xE3, h 0x66, r 0x24, t 0xA6, o 0xE4, c 0xA4, d 0xF4, b 0xE6.
    const std::vector<Row> rows {
        { { 0x00, 0xD7, 0x27, 0x00 }, " OF ", 0, 4000 }, { { 0x20, 0x20, 0x20, 0x20 }, "----", 1, 0 },
        { { 0x00, 0x76, 0x06, 0x00 }, " HI ", 2, 4000 }, { { 0x00, 0x86, 0xD7, 0x00 }, " LO ", 3, 0 },
        { { 0xD7, 0x37, 0xA7, 0x64 }, "OPEn", 4, 4000 }, { { 0xE3, 0x66, 0x24, 0xA6 }, "Shrt", 5, 0 },
        { { 0x37, 0x86, 0xE4, 0xA4 }, "PLoc", 6, 0 }, { { 0x00, 0x66, 0x27, 0xA7 }, " hFE", 8, 0 },
        { { 0x00, 0xA7, 0x27, 0x00 }, " EF ", 9, 0 },
        { { 0x01, 0x05, 0xF7 | kPoint, 0xFF }, "    ", 10, 0 }, // 1 to 5 and 245 up are blanks
        { { 0x2F, 0xDF, 0x00, 0x00 }, "----", 1, 0 }, // "FO  ": not a known word
        { { 0x00, 0xF4, 0xE6, 0x00 }, "----", 1, 0 }, // " db ": the table's " dB " has a capital B
        { { 0x00, 0xDF, 0x2F, 0x08 }, " OF ", 0, 4000 }, // the point bit does not change a letter
    };
    for (const Row& row : rows) {
        const LcdBytes& w = row.positions;
        app::AppState state;
        state.DisplayWordIndex = 1; // an unknown word leaves the index as it was
        Decode(state, 0, { 0x02, 0x00, w[3], w[2], w[1], w[0], 0x02 });
        EXPECT_TRUE(state.HasWord) << row.word;
        EXPECT_EQ(state.DisplayWord, row.word);
        EXPECT_EQ(state.DisplayWordIndex, row.index) << row.word;
        EXPECT_EQ(state.CountValue, row.count) << row.word;
    }
}

TEST(FrameDecoderTest, LogicAndOpenWordsOverrideUnitAndScale)
{
    // " HI " with a milli prefix and a point: 4000 counts at divisor 1000, no prefix, "Logic".
    app::AppState state = Decoded(22, { 0x01, 0x00, 0x00, 0x06 | kPoint, 0x76, 0x00, 0x02 });
    EXPECT_EQ(state.UnitLabel, "Logic");
    EXPECT_EQ(state.UnitMultiplier, 1.0);
    EXPECT_EQ(state.DecimalDivisor, 1000);
    EXPECT_EQ(state.CountValue, 4000);

    // " LO " keeps the prefix factor and the divisor.
    state = Decoded(22, { 0x01, 0x00, 0x00, 0xD7 | kPoint, 0x86, 0x00, 0x02 });
    EXPECT_EQ(state.UnitLabel, "Logic");
    EXPECT_EQ(state.UnitMultiplier, 1e-3);
    EXPECT_EQ(state.DecimalDivisor, 100);
    EXPECT_EQ(state.CountValue, 0);

    // "OPEn" in resistance: 4000 counts with the open-circuit factor, the label kept.
    state = Decoded(8, { 0x60, 0x00, 0x64, 0xA7, 0x37, 0xD7, 0x02 });
    EXPECT_EQ(state.UnitLabel, "KOHM");
    EXPECT_EQ(state.UnitMultiplier, 10000.0);
    EXPECT_EQ(state.CountValue, 4000);
}

TEST(FrameDecoderTest, RelativeModeTakesItsSpansOnceAndOverloadUsesThem)
{
    app::AppState state;
    EXPECT_FALSE(Decode(state, 0, VoltsReading(1234)));
    EXPECT_FALSE(state.AwaitingAbsoluteReading);
    EXPECT_EQ(state.SignedCount, 1234);

    // REL switched on: the spans come from the last absolute reading.
    EXPECT_FALSE(Decode(state, 0, VoltsReading(7, false, true)));
    EXPECT_TRUE(state.IsRelative);
    EXPECT_TRUE(state.RelativeCaptured);
    EXPECT_EQ(state.RelativeSpanUp, 4000 - 1234);
    EXPECT_EQ(state.RelativeSpanDown, 5234);
    EXPECT_EQ(state.SignedCount, 1234); // relative readings leave it alone
    EXPECT_EQ(state.CountValue, 7);

    // Further relative frames keep the spans.
    Decode(state, 0, VoltsReading(3000, true, true));
    EXPECT_EQ(state.RelativeSpanUp, 2766);
    EXPECT_EQ(state.RelativeSpanDown, 5234);

    // Overload in relative mode: the span on the side of the sign.
    const LcdBytes overload { 0x02, 0x02, 0x00, 0x27, 0xD7, 0x00, 0x02 };
    Decode(state, 0, overload);
    EXPECT_EQ(state.CountValue, 2766);
    Decode(state, 0, With(overload, 8, 0x0A));
    EXPECT_EQ(state.CountValue, 5234);

    // REL off, a negative reading, REL on again: new spans.
    Decode(state, 0, VoltsReading(500, true));
    EXPECT_FALSE(state.RelativeCaptured);
    EXPECT_EQ(state.SignedCount, -500);
    Decode(state, 0, VoltsReading(0, false, true));
    EXPECT_EQ(state.RelativeSpanUp, 4500);
    EXPECT_EQ(state.RelativeSpanDown, 3500);
}

TEST(FrameDecoderTest, WordOutsideRelativeModeKeepsTheSignedCount)
{
    app::AppState state;
    Decode(state, 0, VoltsReading(321, true));
    Decode(state, 0, { 0x02, 0x00, 0x00, 0x27, 0xD7, 0x00, 0x02 }); // " OF "
    EXPECT_EQ(state.CountValue, 4000);
    EXPECT_EQ(state.SignedCount, -321);
}

TEST(FrameDecoderTest, RelativeFrameRefusedOnlyWhileAnAbsoluteReadingIsAwaited)
{
    app::AppState state; // as after start-up or a stop: awaiting an absolute reading
    EXPECT_TRUE(Decode(state, 0, VoltsReading(1234, false, true)));
    // Decoding still completes.
    EXPECT_TRUE(state.IsRelative);
    EXPECT_TRUE(state.AwaitingAbsoluteReading);
    EXPECT_EQ(state.CountValue, 1234);
    EXPECT_EQ(state.FunctionKind, 0);
    EXPECT_TRUE(state.RelativeCaptured);

    EXPECT_TRUE(Decode(state, 0, VoltsReading(1, false, true)));
    EXPECT_FALSE(Decode(state, 0, VoltsReading(1)));
    EXPECT_FALSE(Decode(state, 0, VoltsReading(1, false, true)));
}

} // namespace
} // namespace ventrix::link
