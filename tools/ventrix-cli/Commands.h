#pragma once

namespace ventrix::cli {

// Each subcommand takes the arguments after its name and returns the exit status. A
// QCoreApplication must exist.

// `ventrix-cli meter [--frames FILE] [--rate N]`: a virtual meter on a pseudo-terminal.
int RunMeter(int argc, char** argv);
// `ventrix-cli decode [FILE]`: a captured byte stream through the receive path, as JSON lines.
int RunDecode(int argc, char** argv);
// `ventrix-cli convert FILE [--text OUT] [--xlsx OUT]`: sample records into the text file or the
// workbook the program writes.
int RunConvert(int argc, char** argv);
// `ventrix-cli log --port DEVICE|COMn ...`: logging without a window, on the Qt event loop.
int RunLog(int argc, char** argv);
// `ventrix-cli recover [--dir DIR] [--text FILE] [--xlsx FILE]`: the log of a data directory
// rebuilt from its swap file and journal after a crash.
int RunRecover(int argc, char** argv);

} // namespace ventrix::cli
