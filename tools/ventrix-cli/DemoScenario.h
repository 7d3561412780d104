#pragma once

#include "ventrix-cli/FrameEncoder.h"

#include <vector>

namespace ventrix::cli {

// The virtual meter's demonstration: one display per frame, walking four times through every
// function with its prefixes, decimal positions, words (" OF ", "OPEn", " HI ", " LO "),
// negative values and the HOLD, AUTO, BAT, MIN and MAX annunciators, then two frames in relative
// mode (REL); played in a loop, about three minutes at the meter's pace. A start of acquisition
// lands on the relative frames, and is refused, about once in 225 starts. Starts and
// ends with plain volts.
std::vector<MeterDisplay> DemoScenario();

} // namespace ventrix::cli
