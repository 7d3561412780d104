#pragma once

#include "ventrix-cli/FrameEncoder.h"

#include <vector>

namespace ventrix::cli {

// The virtual meter's demonstration: one display per frame, walking through every function
// with its prefixes, decimal positions, words (" OF ", "OPEn", " HI ", " LO "), negative
// values and the HOLD, AUTO, BAT, MIN, MAX and REL annunciators; played in a loop, about a
// minute at the meter's pace. Starts and ends with plain volts so the loop never opens in
// relative mode.
std::vector<MeterDisplay> DemoScenario();

} // namespace ventrix::cli
