#pragma once

#include <cstdint>
#include <string>

namespace ventrix::link {

// Tests whether the 9-byte candidate at 0-based offset p of the received bytes is a plausible
// meter frame: the LCD bytes must fit the function that its mode byte announces. The checksum
// (byte 9) is not examined. Pure; false when fewer than p + 8 bytes are present.
bool ValidateFrame(const std::string& received, int p);

// The checksum a frame starting at 0-based offset p must carry in its ninth byte: the sum of its
// first eight bytes plus 57, modulo 256. The caller makes sure p + 8 bytes are present.
std::uint8_t ComputeChecksum(const std::string& received, int p);

} // namespace ventrix::link
