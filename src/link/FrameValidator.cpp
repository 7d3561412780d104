#include "link/FrameValidator.h"

namespace ventrix::link {

// Placeholder until frame validation lands: accepts nothing.
bool ValidateFrame(const std::string&, int) { return false; }

} // namespace ventrix::link
