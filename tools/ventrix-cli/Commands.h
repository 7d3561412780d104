#pragma once

namespace ventrix::cli {

// `ventrix-cli meter [--frames FILE] [--rate N]`: a virtual meter on a pseudo-terminal.
int RunMeter(int argc, char** argv);
// `ventrix-cli decode [FILE]`: a captured byte stream through the receive path, as JSON lines.
int RunDecode(int argc, char** argv);
// `ventrix-cli convert FILE [--text OUT] [--xlsx OUT]`: sample records into the text file or the
// workbook the program writes.
int RunConvert(int argc, char** argv);

} // namespace ventrix::cli
