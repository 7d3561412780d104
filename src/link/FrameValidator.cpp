#include "link/FrameValidator.h"

#include <array>

namespace ventrix::link {

namespace {

// A condition on one LCD byte: every bit of allOf set, at least one bit of anyOf set (when
// anyOf is not 0), and no bit of noneOf set. All zero means "no condition".
struct ByteRule {
    std::uint8_t allOf = 0;
    std::uint8_t anyOf = 0;
    std::uint8_t noneOf = 0;

    constexpr bool Holds(std::uint8_t b) const
    {
        return (b & allOf) == allOf && (anyOf == 0 || (b & anyOf) != 0) && (b & noneOf) == 0;
    }
};

constexpr ByteRule Any {};
constexpr ByteRule Exactly(std::uint8_t v)
{
    return { v, 0, static_cast<std::uint8_t>(~v) };
}
constexpr ByteRule SetClear(std::uint8_t set, std::uint8_t clear)
{
    return { set, 0, clear };
}
constexpr ByteRule Clear(std::uint8_t clear)
{
    return { 0, 0, clear };
}
constexpr ByteRule BelowFour = Clear(0xFC); // only 0x01 and 0x02 may be set

// The conditions one meter function puts on frame bytes 2, 3, 7 and 8.
struct ModeRule {
    ByteRule byte2;
    ByteRule byte3;
    ByteRule byte7;
    ByteRule byte8;
};

constexpr ModeRule kVoltsDc { SetClear(0x02, 0xFC), BelowFour, Any, Clear(0xC4) };
constexpr ModeRule kVoltsAc { SetClear(0x02, 0xFC), BelowFour, Any, SetClear(0x04, 0xC0) };
constexpr ModeRule kAmpsDc { SetClear(0x04, 0xFA), Clear(0x7C), Any, Clear(0xC4) };
constexpr ModeRule kAmpsAc { SetClear(0x04, 0xFA), Clear(0x7C), Any, SetClear(0x04, 0xC0) };
constexpr ModeRule kOhms { SetClear(0x40, 0x80), BelowFour, Any, Clear(0xC4) };
constexpr ModeRule kFarads { Exactly(0x08), Clear(0x3C), Any, Clear(0xC4) };
constexpr ModeRule kHertz { { 0, 0xF0, 0x0F }, BelowFour, Any, Clear(0xC4) };
constexpr ModeRule kPercent { Exactly(0x00), SetClear(0x08, 0xF4), Any, Clear(0xC4) };
constexpr ModeRule kSiemens { Clear(0xFE), SetClear(0x10, 0x2C), Any, Clear(0xC4) };
constexpr ModeRule kDiode { Exactly(0x02), Exactly(0x00), Clear(0x08), SetClear(0x40, 0x84) };
constexpr ModeRule kContinuity { Exactly(0x00), Exactly(0x00), Clear(0x08), SetClear(0x80, 0x44) };
constexpr ModeRule kGain { Exactly(0x00), Exactly(0x04), Clear(0x08), Clear(0xC4) };
constexpr ModeRule kLogic { Clear(0xFD), Exactly(0x00), Clear(0x08), Clear(0xC4) };
constexpr ModeRule kDecibel { Exactly(0x00), Exactly(0x20), Clear(0x08), Clear(0xC4) };
constexpr ModeRule kPlain { Exactly(0x00), Exactly(0x00), Clear(0x08), Clear(0xC4) };

// Indexed by mode byte; modes 26 and above have no entry and are always rejected.
constexpr std::array<ModeRule, 26> kModeRules { kVoltsDc, kVoltsAc, kAmpsDc, kAmpsDc, kAmpsDc, kAmpsAc,
    kAmpsAc, kAmpsAc, kOhms, kFarads, kHertz, kHertz, kHertz, kPercent, kPercent, kPercent, kSiemens,
    kSiemens, kSiemens, kDiode, kContinuity, kGain, kLogic, kDecibel, kPlain, kPlain };

constexpr std::uint8_t kDecimalPoint = 0x08;

} // namespace

bool ValidateFrame(const std::string& received, int p)
{
    if (p < 0 || received.size() < static_cast<std::size_t>(p) + 8)
        return false;
    // byte[k] is frame byte k (1-based, as the meter numbers them).
    const auto byte
        = [&](int k) { return static_cast<std::uint8_t>(received[static_cast<std::size_t>(p + k - 1)]); };

    bool valid = true;
    const std::uint8_t mode = byte(1);
    if (mode >= kModeRules.size()) {
        valid = false;
    } else {
        const ModeRule& rule = kModeRules[mode];
        valid = rule.byte2.Holds(byte(2)) && rule.byte3.Holds(byte(3)) && rule.byte7.Holds(byte(7))
            && rule.byte8.Holds(byte(8));
    }

    // Tests every real frame passes, whatever its mode.
    if ((byte(3) & 0x03) == 0x03) // MIN and REL never light together
        valid = false;
    if ((byte(3) & 0x02) != 0 && (byte(7) & 0x08) != 0) // REL never lights with MAX
        valid = false;
    const int points = ((byte(4) & kDecimalPoint) != 0) + ((byte(5) & kDecimalPoint) != 0)
        + ((byte(6) & kDecimalPoint) != 0);
    if (points > 1)
        valid = false;
    if ((byte(8) & 0x02) == 0)
        valid = false;
    return valid;
}

std::uint8_t ComputeChecksum(const std::string& received, int p)
{
    unsigned sum = 57;
    for (int k = 0; k < 8; ++k)
        sum += static_cast<std::uint8_t>(received[static_cast<std::size_t>(p + k)]);
    return static_cast<std::uint8_t>(sum & 0xFF);
}

} // namespace ventrix::link
