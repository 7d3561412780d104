#include "Commands.h"

#include <cstdio>
#include <cstring>

namespace {

const char kUsage[] = "usage: ventrix-cli <command> [options]\n"
                      "\n"
                      "commands:\n"
                      "  meter [--frames FILE] [--rate N]\n"
                      "      A virtual meter on a pseudo-terminal. Prints the device path on the\n"
                      "      first line, then sends frames at the meter's pace until Ctrl-C: a\n"
                      "      demonstration through every function, or with --frames the raw bytes\n"
                      "      of a capture file (repeated). --rate sets frames per second (2.5).\n"
                      "      Point the program at it with VENTRIX_COM1=<device path>.\n"
                      "  decode [FILE]\n"
                      "      Runs a captured byte stream (FILE, or standard input) through the\n"
                      "      program's receive path and decoder and prints one JSON object per\n"
                      "      line for every accepted frame.\n"
                      "  convert FILE [--text OUT] [--xlsx OUT]\n"
                      "      Turns a file of 8-byte sample records (the swap file BUFFER.SWP or a\n"
                      "      *.gph graph file) into the program's text file or workbook, or with no\n"
                      "      option into lines on standard output. See convert --help.\n";

} // namespace

int main(int argc, char** argv)
{
    if (argc >= 2 && std::strcmp(argv[1], "meter") == 0)
        return ventrix::cli::RunMeter(argc - 2, argv + 2);
    if (argc >= 2 && std::strcmp(argv[1], "decode") == 0)
        return ventrix::cli::RunDecode(argc - 2, argv + 2);
    if (argc >= 2 && std::strcmp(argv[1], "convert") == 0)
        return ventrix::cli::RunConvert(argc - 2, argv + 2);
    if (argc >= 2
        && (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0
            || std::strcmp(argv[1], "help") == 0)) {
        std::fputs(kUsage, stdout);
        return 0;
    }
    std::fputs(kUsage, stderr);
    return 2;
}
