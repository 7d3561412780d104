#pragma once

#include "state/AppState.h"

#include <array>
#include <string>

namespace ventrix::link {

// The meter's words, in the order their index is stored in sample records; only the first 11
// are recognised on the display.
inline const std::array<std::string, 15> kSpecialWordTable { " OF ", "----", " HI ", " LO ", "OPEn", "Shrt",
    "PLoc", " dB ", " hFE", " EF ", "    ", "-   ", "--  ", "--- ", "----" };

// Turns the accepted frame held in the state (ModeByte, FrameData) into the reading fields:
// function, unit, multiplier, divisor, count, sign, relative mode and word. Returns true when
// the frame is in relative mode while an absolute reading is awaited: the caller then refuses
// the acquisition. Decoding is complete either way.
bool DecodeFrame(state::AppState& state);

} // namespace ventrix::link
