#pragma once

namespace ventrix::cli {

// `ventrix-cli meter [--frames FILE] [--rate N]`: a virtual meter on a pseudo-terminal.
int RunMeter(int argc, char** argv);
// `ventrix-cli decode [FILE]`: a captured byte stream through the receive path, as JSON lines.
int RunDecode(int argc, char** argv);

} // namespace ventrix::cli
