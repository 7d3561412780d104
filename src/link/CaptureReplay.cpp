#include "link/CaptureReplay.h"

namespace ventrix::link {

// Placeholder until the link lands: reports nothing.
void CaptureReplay::Run(const std::string&, const std::function<void(const Frame&)>&) { }

} // namespace ventrix::link
