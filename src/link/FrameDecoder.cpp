#include "link/FrameDecoder.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace ventrix::link {

namespace {

constexpr std::uint8_t kPointBit = 0x08;
constexpr int kRecognisedWords = 11; // only the first entries of the word table appear on the display

enum Word { kOverload = 0, kLogicHigh = 2, kLogicLow = 3, kOpen = 4 };

// Function, unit label and base unit for one mode byte (temperature is handled apart).
struct Function {
    std::uint8_t kind;
    const char* label;
    const char* baseUnit;
};

Function FunctionOf(std::uint8_t mode)
{
    switch (mode) {
    case 0:
        return { 0, "V", "V" };
    case 1:
        return { 1, "V AC", "V AC" };
    case 2:
    case 3:
    case 4:
        return { 2, "A", "A" };
    case 5:
    case 6:
    case 7:
        return { 3, "A AC", "A AC" };
    case 8:
        return { 4, "OHM", "ohm" };
    case 9:
        return { 5, "F", "F" };
    case 10:
    case 11:
    case 12:
        return { 6, "Hz", "Hz" };
    case 13:
    case 14:
    case 15:
        return { 7, "%", "%" };
    case 16:
    case 17:
    case 18:
        return { 8, "S", "S" };
    case 19:
        return { 9, "V", "V" };
    case 20:
        return { 10, "CONT", "ohm" };
    case 21:
        return { 11, "hFE", "hFE" };
    case 22:
        return { 12, "V", "V" };
    case 23:
        return { 13, "dBm", "dBm" };
    case 24:
        return { 15, "", "" };
    default:
        return { 255, "", "" };
    }
}

// The digit a position shows; -1 for a pattern that is not a numeral.
int DigitOf(std::uint8_t position)
{
    switch (position & ~kPointBit & 0xFF) {
    case 0x00:
    case 0xD7:
        return 0;
    case 0x50:
        return 1;
    case 0xB5:
        return 2;
    case 0xF1:
        return 3;
    case 0x72:
        return 4;
    case 0xE3:
        return 5;
    case 0xE7:
        return 6;
    case 0x51:
        return 7;
    case 0xF7:
        return 8;
    case 0xF3:
        return 9;
    default:
        return -1;
    }
}

// The letter a position shows inside a word; anything unknown is a blank.
char CharOf(std::uint8_t position)
{
    const int pattern = position & ~kPointBit & 0xFF;
    if (pattern <= 5 || pattern >= 245)
        return ' ';
    switch (pattern) {
    case 0x06:
        return 'I';
    case 0x20:
        return '-';
    case 0x24:
        return 'r';
    case 0x27:
        return 'F';
    case 0x37:
        return 'P';
    case 0x64:
        return 'n';
    case 0x66:
        return 'h';
    case 0x76:
        return 'H';
    case 0x86:
        return 'L';
    case 0x87:
        return 'C';
    case 0xA4:
        return 'c';
    case 0xA6:
        return 't';
    case 0xA7:
        return 'E';
    case 0xD7:
        return 'O';
    case 0xE3:
        return 'S';
    case 0xE4:
        return 'o';
    case 0xE6:
        return 'b';
    case 0xF4:
        return 'd';
    default:
        return ' ';
    }
}

} // namespace

bool DecodeFrame(app::AppState& state)
{
    // Frame byte k (2 to 8) is kept reversed: element 0 holds byte 8.
    const auto byte = [&](int k) { return state.FrameData[static_cast<std::size_t>(8 - k)]; };
    const std::uint8_t mode = state.ModeByte;

    // Function and unit.
    if (mode == 25) {
        state.FunctionKind = 14;
        const int unitLetter = byte(4) & ~kPointBit & 0xFF;
        if (unitLetter == 0x87) {
            state.UnitLabel = state.BaseUnit = "°C";
        } else if (unitLetter == 0x27) {
            state.UnitLabel = state.BaseUnit = "°F";
        } else {
            state.UnitLabel.clear(); // the base unit keeps the last scale shown
        }
    } else {
        const Function function = FunctionOf(mode);
        state.FunctionKind = function.kind;
        state.UnitLabel = function.label;
        state.BaseUnit = function.baseUnit;
    }

    // Relative mode. A relative reading before any absolute one since the start is refused.
    if ((byte(3) & 0x02) == 0) {
        state.IsRelative = false;
        state.AwaitingAbsoluteReading = false;
    } else {
        state.IsRelative = true;
    }
    const bool refused = state.IsRelative && state.AwaitingAbsoluteReading;

    // Prefix: the first annunciator found wins.
    struct Prefix {
        int byteNumber;
        std::uint8_t bit;
        const char* letter;
        double factor;
    };
    static constexpr std::array<Prefix, 5> kPrefixes { { { 3, 0x40, "n", 1e-9 }, { 3, 0x80, "u", 1e-6 },
        { 2, 0x01, "m", 1e-3 }, { 2, 0x20, "K", 1e3 }, { 2, 0x10, "M", 1e6 } } };
    state.UnitMultiplier = 1.0;
    for (const Prefix& prefix : kPrefixes) {
        if ((byte(prefix.byteNumber) & prefix.bit) != 0) {
            state.UnitLabel.insert(0, prefix.letter);
            state.UnitMultiplier = prefix.factor;
            break;
        }
    }

    // Decimal point: the leftmost lit point decides.
    if ((byte(6) & kPointBit) != 0)
        state.DecimalDivisor = 1000;
    else if ((byte(5) & kPointBit) != 0)
        state.DecimalDivisor = 100;
    else if ((byte(4) & kPointBit) != 0)
        state.DecimalDivisor = 10;
    else
        state.DecimalDivisor = 1;

    // Digits, left (byte 7) to right (byte 4). Temperature shows its unit letter in the last
    // position, so only the first three positions carry its count.
    const bool temperature = state.FunctionKind == 14;
    const int positions = temperature ? 3 : 4;
    state.HasWord = false;
    double count = 0.0;
    for (int i = 0; i < positions; ++i) {
        int digit = DigitOf(byte(7 - i));
        if (digit < 0) {
            digit = 0;
            state.HasWord = true;
        }
        count = count * 10.0 + digit;
    }
    state.CountValue = count;
    if (temperature && state.DecimalDivisor != 1)
        state.DecimalDivisor = static_cast<std::int16_t>(state.DecimalDivisor / 10);

    state.IsPositive = (byte(8) & 0x08) == 0;

    // Sign, and the spans the gauge uses around the reading taken when relative mode came on.
    if (!state.IsRelative) {
        if (!state.HasWord)
            state.SignedCount = state.IsPositive ? state.CountValue : -state.CountValue;
        state.RelativeCaptured = false;
    } else if (!state.RelativeCaptured) {
        state.RelativeCaptured = true;
        state.RelativeSpanUp = 4000.0 - state.SignedCount;
        state.RelativeSpanDown = std::fabs(-4000.0 - state.SignedCount);
    }

    if (state.HasWord) {
        std::string word;
        for (int k = 7; k >= 4; --k)
            word.push_back(CharOf(byte(k)));
        int index = -1;
        for (int i = 0; i < kRecognisedWords; ++i) {
            if (word == kSpecialWordTable[static_cast<std::size_t>(i)]) {
                index = i;
                break;
            }
        }
        if (index >= 0) {
            state.DisplayWord = kSpecialWordTable[static_cast<std::size_t>(index)];
            state.DisplayWordIndex = static_cast<std::int16_t>(index);
        } else {
            state.DisplayWord = "----";
        }

        switch (index) {
        case kOverload:
            if (state.IsRelative)
                state.CountValue = state.IsPositive ? state.RelativeSpanUp : state.RelativeSpanDown;
            else
                state.CountValue = temperature ? 1000.0 : 4000.0;
            break;
        case kLogicHigh:
            state.CountValue = 4000.0;
            state.DecimalDivisor = 1000;
            state.UnitMultiplier = 1.0;
            state.UnitLabel = "Logic";
            break;
        case kLogicLow:
            state.CountValue = 0.0;
            state.UnitLabel = "Logic";
            break;
        case kOpen:
            state.CountValue = 4000.0;
            state.UnitMultiplier = 10000.0;
            break;
        default:
            state.CountValue = 0.0;
            break;
        }
    }
    return refused;
}

} // namespace ventrix::link
