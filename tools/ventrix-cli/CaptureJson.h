#pragma once

#include "link/CaptureReplay.h"

#include <string>

namespace ventrix::cli {

// One line of the decoder's output for an accepted frame of a capture: its offset, the mode
// byte, the reading's fields, whether it was refused or would be logged, and the LCD labels as
// they stand after it. JSON text without the line end.
std::string CaptureFrameJson(const link::CaptureReplay::Frame& frame);

} // namespace ventrix::cli
