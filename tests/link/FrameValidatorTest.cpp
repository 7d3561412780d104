#include "link/FrameValidator.h"
#include "link/MeterBytes.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace ventrix::link {
namespace {

using testing::LcdBytes;
using testing::MeterFrame;
using testing::With;

struct Case {
    std::uint8_t mode;
    LcdBytes lcd; // bytes 2 to 8
    bool valid;
};

std::string Describe(const Case& c)
{
    std::string text = "mode " + std::to_string(c.mode) + " bytes";
    char hex[4];
    for (std::uint8_t b : c.lcd) {
        std::snprintf(hex, sizeof hex, " %02X", b);
        text += hex;
    }
    return text;
}

// A frame each mode accepts; the mutations below make exactly one condition fail or hold.
LcdBytes BaseFor(int mode)
{
    if (mode <= 1)
        return { 0x02, 0x00, 0, 0, 0, 0, static_cast<std::uint8_t>(mode == 1 ? 0x06 : 0x02) };
    if (mode <= 7)
        return { 0x04, 0x00, 0, 0, 0, 0, static_cast<std::uint8_t>(mode >= 5 ? 0x06 : 0x02) };
    switch (mode) {
    case 8:
        return { 0x40, 0x00, 0, 0, 0, 0, 0x02 };
    case 9:
        return { 0x08, 0x00, 0, 0, 0, 0, 0x02 };
    case 10:
    case 11:
    case 12:
        return { 0x10, 0x00, 0, 0, 0, 0, 0x02 };
    case 13:
    case 14:
    case 15:
        return { 0x00, 0x08, 0, 0, 0, 0, 0x02 };
    case 16:
    case 17:
    case 18:
        return { 0x00, 0x10, 0, 0, 0, 0, 0x02 };
    case 19:
        return { 0x02, 0x00, 0, 0, 0, 0, 0x42 };
    case 20:
        return { 0x00, 0x00, 0, 0, 0, 0, 0x82 };
    case 21:
        return { 0x00, 0x04, 0, 0, 0, 0, 0x02 };
    case 23:
        return { 0x00, 0x20, 0, 0, 0, 0, 0x02 };
    default:
        return { 0x00, 0x00, 0, 0, 0, 0, 0x02 };
    }
}

// Per mode: the accepted base, then frames that differ from it in one byte.
std::vector<Case> ModeCases()
{
    std::vector<Case> cases;
    const auto add = [&](std::initializer_list<int> modes, int byteNumber, std::uint8_t value, bool valid) {
        for (int mode : modes)
            cases.push_back(
                { static_cast<std::uint8_t>(mode), With(BaseFor(mode), byteNumber, value), valid });
    };
    for (int mode = 0; mode <= 25; ++mode)
        cases.push_back({ static_cast<std::uint8_t>(mode), BaseFor(mode), true });

    // DC and AC volts: byte 2 needs 0x02 and nothing above 0x03; byte 3 below 4.
    add({ 0, 1 }, 2, 0x03, true);
    add({ 0, 1 }, 2, 0x00, false);
    add({ 0, 1 }, 2, 0x01, false);
    add({ 0, 1 }, 2, 0x06, false);
    add({ 0, 1 }, 3, 0x01, true);
    add({ 0, 1 }, 3, 0x04, false);
    add({ 0, 1 }, 3, 0x80, false);
    // Byte 8 tells DC from AC: 0x04 forbidden in DC, required in AC; 0x40 and 0x80 never.
    add({ 0 }, 8, 0x3B, true);
    add({ 0 }, 8, 0x06, false);
    add({ 1 }, 8, 0x3F, true);
    add({ 1 }, 8, 0x02, false);
    add({ 0, 1 }, 8, 0x42, false);
    add({ 0, 1, 2, 5 }, 8, 0x86, false);
    // Current: byte 2 needs 0x04 and allows only 0x01 besides; byte 3 forbids 0x7C.
    add({ 2, 3, 4, 5, 6, 7 }, 2, 0x05, true);
    add({ 2, 3, 4, 5, 6, 7 }, 2, 0x00, false);
    add({ 2, 3, 4, 5, 6, 7 }, 2, 0x06, false);
    add({ 2, 3, 4, 5, 6, 7 }, 2, 0x0C, false);
    add({ 2, 3, 4, 5, 6, 7 }, 3, 0x81, true);
    add({ 2, 3, 4, 5, 6, 7 }, 3, 0x04, false);
    add({ 2, 3, 4, 5, 6, 7 }, 3, 0x40, false);
    add({ 2, 3, 4 }, 8, 0x06, false);
    add({ 5, 6, 7 }, 8, 0x02, false);
    // Resistance: byte 2 needs 0x40 and forbids 0x80.
    add({ 8 }, 2, 0x7F, true);
    add({ 8 }, 2, 0x00, false);
    add({ 8 }, 2, 0xC0, false);
    add({ 8 }, 3, 0x04, false);
    // Capacitance: byte 2 exactly 0x08; byte 3 forbids 0x3C.
    add({ 9 }, 2, 0x09, false);
    add({ 9 }, 2, 0x18, false);
    add({ 9 }, 2, 0x00, false);
    add({ 9 }, 3, 0xC1, true);
    add({ 9 }, 3, 0x04, false);
    add({ 9 }, 3, 0x20, false);
    // Frequency: byte 2 some high bit and no low bit.
    add({ 10, 11, 12 }, 2, 0x80, true);
    add({ 10, 11, 12 }, 2, 0xF0, true);
    add({ 10, 11, 12 }, 2, 0x00, false);
    add({ 10, 11, 12 }, 2, 0x11, false);
    add({ 10, 11, 12 }, 3, 0x04, false);
    // Duty cycle: byte 2 exactly 0; byte 3 needs 0x08 and forbids 0xF4.
    add({ 13, 14, 15 }, 2, 0x01, false);
    add({ 13, 14, 15 }, 3, 0x09, true);
    add({ 13, 14, 15 }, 3, 0x00, false);
    add({ 13, 14, 15 }, 3, 0x0C, false);
    add({ 13, 14, 15 }, 3, 0x18, false);
    // Conductance: byte 2 is 0 or 1; byte 3 needs 0x10 and forbids 0x2C.
    add({ 16, 17, 18 }, 2, 0x01, true);
    add({ 16, 17, 18 }, 2, 0x02, false);
    add({ 16, 17, 18 }, 3, 0xD1, true);
    add({ 16, 17, 18 }, 3, 0x00, false);
    add({ 16, 17, 18 }, 3, 0x14, false);
    // Diode: byte 2 exactly 0x02, byte 3 exactly 0, byte 8 needs 0x40 and forbids 0x84.
    add({ 19 }, 2, 0x03, false);
    add({ 19 }, 3, 0x01, false);
    add({ 19 }, 8, 0x02, false);
    add({ 19 }, 8, 0xC2, false);
    add({ 19 }, 8, 0x46, false);
    add({ 19 }, 8, 0x7B, true);
    // Continuity: bytes 2 and 3 blank, byte 8 needs 0x80 and forbids 0x44.
    add({ 20 }, 2, 0x01, false);
    add({ 20 }, 3, 0x01, false);
    add({ 20 }, 8, 0x02, false);
    add({ 20 }, 8, 0xC2, false);
    add({ 20 }, 8, 0x86, false);
    add({ 20 }, 8, 0xBB, true);
    // Transistor gain, logic, decibel and the two last modes: exact bytes 2 and 3.
    add({ 21 }, 3, 0x00, false);
    add({ 21 }, 2, 0x02, false);
    add({ 22 }, 2, 0x02, true);
    add({ 22 }, 2, 0x01, false);
    add({ 22 }, 2, 0x03, false);
    add({ 22 }, 3, 0x01, false);
    add({ 23 }, 3, 0x00, false);
    add({ 23 }, 3, 0x21, false);
    add({ 24, 25 }, 2, 0x01, false);
    add({ 24, 25 }, 3, 0x01, false);
    // From mode 19 on, MAX (byte 7 bit 0x08) is never lit; byte 7 is free before.
    add({ 19, 20, 21, 22, 23, 24, 25 }, 7, 0x08, false);
    add({ 19, 20, 21, 22, 23, 24, 25 }, 7, 0xF7, true);
    add({ 0, 2, 8, 9, 10, 13, 16 }, 7, 0xFF, true);
    add({ 21, 22, 23, 24, 25 }, 8, 0x3B, true);
    add({ 21, 22, 23, 24, 25 }, 8, 0x06, false);
    return cases;
}

TEST(FrameValidatorTest, ModeTableAcceptsAndRejectsEachModesBytes)
{
    for (const Case& c : ModeCases())
        EXPECT_EQ(ValidateFrame(MeterFrame(c.mode, c.lcd), 0), c.valid) << Describe(c);
}

TEST(FrameValidatorTest, ModesAbove25AreRejectedWhateverTheBytes)
{
    for (int mode = 26; mode <= 255; ++mode)
        for (int base = 0; base <= 25; ++base)
            EXPECT_FALSE(ValidateFrame(MeterFrame(static_cast<std::uint8_t>(mode), BaseFor(base)), 0))
                << "mode " << mode << " with the bytes of mode " << base;
}

TEST(FrameValidatorTest, CommonTestsApplyToEveryMode)
{
    for (int mode = 0; mode <= 25; ++mode) {
        const auto m = static_cast<std::uint8_t>(mode);
        const LcdBytes base = BaseFor(mode);
        // At most one of the three decimal points.
        for (int k = 4; k <= 6; ++k)
            EXPECT_TRUE(ValidateFrame(MeterFrame(m, With(base, k, 0x08)), 0)) << "one point, mode " << mode;
        EXPECT_FALSE(ValidateFrame(MeterFrame(m, With(With(base, 4, 0x08), 5, 0x08)), 0)) << mode;
        EXPECT_FALSE(ValidateFrame(MeterFrame(m, With(With(base, 4, 0x08), 6, 0x08)), 0)) << mode;
        EXPECT_FALSE(ValidateFrame(MeterFrame(m, With(With(base, 5, 0xFF), 6, 0xFF)), 0)) << mode;
        // Byte 8 always carries 0x02.
        EXPECT_FALSE(ValidateFrame(MeterFrame(m, With(base, 8, base[6] & ~0x02)), 0)) << mode;
    }
}

TEST(FrameValidatorTest, MinWithRelAndRelWithMaxAreRejectedWhereTheModeAllowsEach)
{
    // Mode 0 allows byte 3 up to 0x03 and any byte 7: only the common tests can reject.
    const LcdBytes base = BaseFor(0);
    EXPECT_TRUE(ValidateFrame(MeterFrame(0, With(base, 3, 0x01)), 0));
    EXPECT_TRUE(ValidateFrame(MeterFrame(0, With(base, 3, 0x02)), 0));
    EXPECT_FALSE(ValidateFrame(MeterFrame(0, With(base, 3, 0x03)), 0));
    EXPECT_TRUE(ValidateFrame(MeterFrame(0, With(base, 7, 0x08)), 0));
    EXPECT_TRUE(ValidateFrame(MeterFrame(0, With(With(base, 3, 0x01), 7, 0x08)), 0));
    EXPECT_FALSE(ValidateFrame(MeterFrame(0, With(With(base, 3, 0x02), 7, 0x08)), 0));
    // The same in the current modes, whose byte 3 allows 0x83.
    EXPECT_FALSE(ValidateFrame(MeterFrame(2, With(BaseFor(2), 3, 0x83)), 0));
    EXPECT_FALSE(ValidateFrame(MeterFrame(6, With(With(BaseFor(6), 3, 0x82), 7, 0x08)), 0));
}

TEST(FrameValidatorTest, ReadsTheCandidateAtItsOffsetAndNeedsItsEightBytes)
{
    const std::string frame = MeterFrame(9, BaseFor(9));
    const std::string shifted = std::string("\x09\x08\x00", 3) + frame;
    EXPECT_TRUE(ValidateFrame(shifted, 3));
    EXPECT_FALSE(ValidateFrame(shifted, 2));
    EXPECT_TRUE(ValidateFrame(frame.substr(0, 8), 0)); // the checksum byte is not needed
    EXPECT_FALSE(ValidateFrame(frame.substr(0, 7), 0));
    EXPECT_FALSE(ValidateFrame(shifted.substr(0, 10), 3));
    EXPECT_FALSE(ValidateFrame("", 0));
}

TEST(FrameValidatorTest, ChecksumIsTheByteSumPlus57Modulo256)
{
    EXPECT_EQ(ComputeChecksum(std::string(8, '\xFF'), 0), 49);
    EXPECT_EQ(ComputeChecksum(std::string(8, '\0'), 0), 57);
    EXPECT_EQ(ComputeChecksum(std::string("\x01\x02\x03\x04\x05\x06\x07\x08\xC8", 9), 1),
        (2 + 3 + 4 + 5 + 6 + 7 + 8 + 200 + 57) % 256);
}

} // namespace
} // namespace ventrix::link
