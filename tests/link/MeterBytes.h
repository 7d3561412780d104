#pragma once

#include "link/FrameValidator.h"

#include <array>
#include <cstdint>
#include <string>

namespace ventrix::link::testing {

// Frame bytes 2 to 8 in the order the meter sends them.
using LcdBytes = std::array<std::uint8_t, 7>;

// A whole 9-byte frame: the mode byte, the LCD bytes and a correct checksum.
inline std::string MeterFrame(std::uint8_t mode, const LcdBytes& lcd)
{
    std::string bytes(1, static_cast<char>(mode));
    for (std::uint8_t b : lcd)
        bytes.push_back(static_cast<char>(b));
    bytes.push_back(static_cast<char>(ComputeChecksum(bytes, 0)));
    return bytes;
}

// The LCD bytes with frame byte k (2 to 8) replaced.
inline LcdBytes With(LcdBytes lcd, int byteNumber, std::uint8_t value)
{
    lcd[static_cast<std::size_t>(byteNumber - 2)] = value;
    return lcd;
}

// Digit patterns of the meter's LCD, 0 to 9, without the decimal point.
inline constexpr std::array<std::uint8_t, 10> kDigit { 0xD7, 0x50, 0xB5, 0xF1, 0x72, 0xE3, 0xE7, 0x51, 0xF7,
    0xF3 };
inline constexpr std::uint8_t kPoint = 0x08;

// A plausible DC volts reading: the digits of count (0 to 9999) right to left in bytes 4 to 7,
// byte 8 with its always-set bit; minus sign and relative mode on request.
inline LcdBytes VoltsReading(int count, bool negative = false, bool relative = false)
{
    return { 0x02, static_cast<std::uint8_t>(relative ? 0x02 : 0x00),
        kDigit[static_cast<std::size_t>(count % 10)], kDigit[static_cast<std::size_t>(count / 10 % 10)],
        kDigit[static_cast<std::size_t>(count / 100 % 10)],
        kDigit[static_cast<std::size_t>(count / 1000 % 10)],
        static_cast<std::uint8_t>(negative ? 0x0A : 0x02) };
}

} // namespace ventrix::link::testing
