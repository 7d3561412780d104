#include "link/FrameDecoder.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <utility>

namespace ventrix::link {

namespace {

constexpr std::uint8_t kPointBit = 0x08;
constexpr int kRecognisedWords = 11; // only the first entries of the word table appear on the display

enum Word { kOverload = 0, kLogicHigh = 2, kLogicLow = 3, kOpen = 4 };

// Function, unit label and base unit of mode bytes 0 to 24; temperature (25) is handled apart
// and every higher mode is unknown.
struct Function {
    std::uint8_t kind;
    const char* label;
    const char* baseUnit;
};
constexpr Function kUnknownFunction { 255, "", "" };
constexpr std::array<Function, 25> kFunctions { { { 0, "V", "V" }, { 1, "V AC", "V AC" }, { 2, "A", "A" },
    { 2, "A", "A" }, { 2, "A", "A" }, { 3, "A AC", "A AC" }, { 3, "A AC", "A AC" }, { 3, "A AC", "A AC" },
    { 4, "OHM", "ohm" }, { 5, "F", "F" }, { 6, "Hz", "Hz" }, { 6, "Hz", "Hz" }, { 6, "Hz", "Hz" },
    { 7, "%", "%" }, { 7, "%", "%" }, { 7, "%", "%" }, { 8, "S", "S" }, { 8, "S", "S" }, { 8, "S", "S" },
    { 9, "V", "V" }, { 10, "CONT", "ohm" }, { 11, "hFE", "hFE" }, { 12, "V", "V" }, { 13, "dBm", "dBm" },
    { 15, "", "" } } };

// The digit each segment pattern (point bit cleared) shows; -1 where it is not a numeral.
constexpr std::array<std::int8_t, 256> kDigitOf = [] {
    std::array<std::int8_t, 256> table {};
    table.fill(-1);
    constexpr std::array<std::uint8_t, 10> patterns { 0xD7, 0x50, 0xB5, 0xF1, 0x72, 0xE3, 0xE7, 0x51, 0xF7,
        0xF3 };
    for (std::size_t d = 0; d < patterns.size(); ++d)
        table[patterns[d]] = static_cast<std::int8_t>(d);
    table[0x00] = 0; // a blank position counts as 0
    return table;
}();

// The letter each segment pattern (point bit cleared) shows inside a word; a blank for any
// pattern not listed, which includes every pattern up to 5 and from 245 up.
constexpr std::array<char, 256> kCharOf = [] {
    std::array<char, 256> table {};
    table.fill(' ');
    constexpr std::array<std::pair<std::uint8_t, char>, 18> letters { { { 0x06, 'I' }, { 0x20, '-' },
        { 0x24, 'r' }, { 0x27, 'F' }, { 0x37, 'P' }, { 0x64, 'n' }, { 0x66, 'h' }, { 0x76, 'H' },
        { 0x86, 'L' }, { 0x87, 'C' }, { 0xA4, 'c' }, { 0xA6, 't' }, { 0xA7, 'E' }, { 0xD7, 'O' },
        { 0xE3, 'S' }, { 0xE4, 'o' }, { 0xE6, 'b' }, { 0xF4, 'd' } } };
    for (const auto& [pattern, letter] : letters)
        table[pattern] = letter;
    return table;
}();

constexpr std::uint8_t Segments(std::uint8_t position)
{
    return position & ~kPointBit & 0xFF;
}

} // namespace

bool DecodeFrame(state::AppState& state)
{
    // Frame byte k (2 to 8) is kept reversed: element 0 holds byte 8.
    const auto byte = [&](int k) { return state.FrameData[static_cast<std::size_t>(8 - k)]; };
    const std::uint8_t mode = state.ModeByte;

    // Function and unit.
    if (mode == 25) {
        state.FunctionKind = 14;
        const std::uint8_t unitLetter = Segments(byte(4));
        if (unitLetter == 0x87) {
            state.UnitLabel = state.BaseUnit = "°C";
        } else if (unitLetter == 0x27) {
            state.UnitLabel = state.BaseUnit = "°F";
        } else {
            state.UnitLabel.clear(); // the base unit keeps the last scale shown
        }
    } else {
        const Function& function = mode < kFunctions.size() ? kFunctions[mode] : kUnknownFunction;
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
        int digit = kDigitOf[Segments(byte(7 - i))];
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
            word.push_back(kCharOf[Segments(byte(k))]);
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
