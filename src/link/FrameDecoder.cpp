#include "link/FrameDecoder.h"

namespace ventrix::link {

// Placeholder until decoding lands.
bool DecodeFrame(app::AppState&) { return false; }

} // namespace ventrix::link
