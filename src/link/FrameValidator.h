#pragma once

#include <string>

namespace ventrix::link {

// Tests whether the 9-byte candidate at 0-based offset p of the received bytes is a plausible
// meter frame: the LCD bytes must fit the function that its mode byte announces. The checksum
// (byte 9) is not examined. Pure; false when fewer than p + 8 bytes are present.
bool ValidateFrame(const std::string& received, int p);

} // namespace ventrix::link
