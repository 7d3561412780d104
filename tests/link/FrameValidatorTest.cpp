#include "link/FrameValidator.h"
#include "link/MeterBytes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ventrix::link {
namespace {

using testing::LcdBytes;
using testing::MeterFrame;
using testing::With;

bool Valid(int mode, const LcdBytes& lcd)
{
    return ValidateFrame(MeterFrame(static_cast<std::uint8_t>(mode), lcd), 0);
}

// A frame each mode accepts, digits blank; the rows below change one byte of it.
LcdBytes BaseFor(int mode)
{
    // Bytes 2, 3 and 8 by mode.
    static constexpr std::uint8_t kBase[26][3] = { { 2, 0, 2 }, { 2, 0, 6 }, { 4, 0, 2 }, { 4, 0, 2 },
        { 4, 0, 2 }, { 4, 0, 6 }, { 4, 0, 6 }, { 4, 0, 6 }, { 0x40, 0, 2 }, { 8, 0, 2 }, { 0x10, 0, 2 },
        { 0x10, 0, 2 }, { 0x10, 0, 2 }, { 0, 8, 2 }, { 0, 8, 2 }, { 0, 8, 2 }, { 0, 0x10, 2 }, { 0, 0x10, 2 },
        { 0, 0x10, 2 }, { 2, 0, 0x42 }, { 0, 0, 0x82 }, { 0, 4, 2 }, { 0, 0, 2 }, { 0, 0x20, 2 }, { 0, 0, 2 },
        { 0, 0, 2 } };
    const auto& b = kBase[mode];
    return { b[0], b[1], 0, 0, 0, 0, b[2] };
}

TEST(FrameValidatorTest, ModeTableAcceptsAndRejectsEachModesBytes)
{
    struct Row {
        std::vector<int> modes;
        int byteNumber;
        std::vector<std::uint8_t> accepted, rejected;
    };
    // DC forbids byte 8's 0x04 and AC requires it; MAX (byte 7's 0x08) is never lit from mode 19 on.
    const std::vector<Row> rows { { { 0, 1 }, 2, { 0x02, 0x03 }, { 0x00, 0x01, 0x06 } },
        { { 0, 1 }, 3, { 0x01, 0x02 }, { 0x04, 0x80 } }, { { 0 }, 8, { 0x02, 0x3B }, { 0x06, 0x42, 0x82 } },
        { { 1 }, 8, { 0x06, 0x3F }, { 0x02, 0x46, 0x86 } },
        { { 2, 3, 4, 5, 6, 7 }, 2, { 0x04, 0x05 }, { 0x00, 0x06, 0x0C } },
        { { 2, 3, 4, 5, 6, 7 }, 3, { 0x81, 0x82 }, { 0x04, 0x40 } },
        { { 2, 3, 4 }, 8, { 0x3B }, { 0x06, 0x42 } }, { { 5, 6, 7 }, 8, { 0x3F }, { 0x02, 0x86 } },
        { { 8 }, 2, { 0x40, 0x7F }, { 0x00, 0xC0 } }, { { 8 }, 3, { 0x01 }, { 0x04 } },
        { { 9 }, 2, { 0x08 }, { 0x00, 0x09, 0x18 } }, { { 9 }, 3, { 0xC1 }, { 0x04, 0x20 } },
        { { 10, 11, 12 }, 2, { 0x80, 0xF0 }, { 0x00, 0x11 } }, { { 10, 11, 12 }, 3, { 0x02 }, { 0x04 } },
        { { 13, 14, 15 }, 2, { 0x00 }, { 0x01 } }, { { 13, 14, 15 }, 3, { 0x09 }, { 0x00, 0x0C, 0x18 } },
        { { 16, 17, 18 }, 2, { 0x00, 0x01 }, { 0x02 } }, { { 16, 17, 18 }, 3, { 0xD1 }, { 0x00, 0x14 } },
        { { 19 }, 2, { 0x02 }, { 0x00, 0x03 } }, { { 19 }, 8, { 0x7B }, { 0x02, 0xC2, 0x46 } },
        { { 20 }, 8, { 0xBB }, { 0x02, 0xC2, 0x86 } },
        { { 20, 21, 23, 24, 25 }, 2, { 0x00 }, { 0x01, 0x02 } },
        { { 19, 20, 22, 24, 25 }, 3, { 0x00 }, { 0x01, 0x04 } }, { { 21 }, 3, { 0x04 }, { 0x00, 0x05 } },
        { { 22 }, 2, { 0x00, 0x02 }, { 0x01, 0x03 } }, { { 23 }, 3, { 0x20 }, { 0x00, 0x21 } },
        { { 21, 22, 23, 24, 25 }, 8, { 0x3B }, { 0x06, 0x42 } },
        { { 19, 20, 21, 22, 23, 24, 25 }, 7, { 0xF7 }, { 0x08 } },
        { { 0, 2, 8, 9, 10, 13, 16 }, 7, { 0xFF }, {} } };
    for (const Row& row : rows) {
        for (int mode : row.modes) {
            const LcdBytes base = BaseFor(mode);
            for (std::uint8_t v : row.accepted)
                EXPECT_TRUE(Valid(mode, With(base, row.byteNumber, v)))
                    << mode << " byte " << row.byteNumber << "=" << +v;
            for (std::uint8_t v : row.rejected)
                EXPECT_FALSE(Valid(mode, With(base, row.byteNumber, v)))
                    << mode << " byte " << row.byteNumber << "=" << +v;
        }
    }
    for (int mode = 26; mode <= 255; ++mode)
        for (int base = 0; base <= 25; ++base)
            EXPECT_FALSE(Valid(mode, BaseFor(base))) << mode << " with the bytes of " << base;
}

TEST(FrameValidatorTest, CommonTestsApplyToEveryMode)
{
    for (int mode = 0; mode <= 25; ++mode) {
        const LcdBytes base = BaseFor(mode);
        for (int k = 4; k <= 6; ++k)
            EXPECT_TRUE(Valid(mode, With(base, k, 0x08))) << "one decimal point, mode " << mode;
        EXPECT_FALSE(Valid(mode, With(With(base, 4, 0x08), 5, 0x08))) << mode;
        EXPECT_FALSE(Valid(mode, With(With(base, 4, 0x08), 6, 0x08))) << mode;
        EXPECT_FALSE(Valid(mode, With(With(base, 5, 0xFF), 6, 0xFF))) << mode;
        EXPECT_FALSE(Valid(mode, With(base, 8, base[6] & ~0x02))) << "byte 8 without 0x02, mode " << mode;
    }
    // Modes 0 and 2 allow MIN (byte 3 0x01), REL (0x02) and MAX (byte 7 0x08) one by one; only
    // the common tests reject MIN with REL and REL with MAX.
    for (int mode : { 0, 2 }) {
        const LcdBytes base = BaseFor(mode);
        EXPECT_TRUE(Valid(mode, With(With(base, 3, 0x01), 7, 0x08))) << mode;
        EXPECT_TRUE(Valid(mode, With(base, 3, 0x02))) << mode;
        EXPECT_FALSE(Valid(mode, With(base, 3, 0x03))) << mode;
        EXPECT_FALSE(Valid(mode, With(With(base, 3, 0x02), 7, 0x08))) << mode;
    }
}

// The candidate is read at its offset and needs its eight bytes, not the checksum byte; the
// checksum is the byte sum plus 57, wrapping at 256.
TEST(FrameValidatorTest, OffsetLengthAndChecksum)
{
    const std::string frame = MeterFrame(9, BaseFor(9));
    const std::string shifted = std::string("\x09\x08\x00", 3) + frame;
    EXPECT_TRUE(ValidateFrame(shifted, 3));
    EXPECT_FALSE(ValidateFrame(shifted, 2));
    EXPECT_TRUE(ValidateFrame(frame.substr(0, 8), 0));
    EXPECT_FALSE(ValidateFrame(frame.substr(0, 7), 0));
    EXPECT_FALSE(ValidateFrame(shifted.substr(0, 10), 3));
    EXPECT_EQ(ComputeChecksum(std::string(8, '\xFF'), 0), 49);
    EXPECT_EQ(ComputeChecksum(std::string("\x01\x02\x03\x04\x05\x06\x07\x08\xC8", 9), 1),
        (2 + 3 + 4 + 5 + 6 + 7 + 8 + 200 + 57) % 256);
}

} // namespace
} // namespace ventrix::link
