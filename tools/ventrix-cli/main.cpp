#include "Commands.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstring>

namespace {

const char kUsage[]
    = "usage: ventrix-cli <command> [options]\n"
      "\n"
      "commands:\n"
      "  log --port DEVICE|COMn [--interval 1|2|5|10|30|60] [--text FILE] [--xlsx FILE]\n"
      "      [--samples N | --duration TIME] [--dir DIR]\n"
      "      Logs from the meter without a window, exactly as the program does, printing each\n"
      "      sample's line; at the end writes the program's text file and/or workbook.\n"
      "  recover [--dir DIR] [--text FILE] [--xlsx FILE]\n"
      "      Rebuilds the log of a data directory from its swap file and journal after a crash\n"
      "      or a power cut, and writes it in the program's formats (text lines without options).\n"
      "  convert FILE [--text OUT] [--xlsx OUT]\n"
      "      Turns a file of 8-byte sample records (the swap file BUFFER.SWP or a *.gph graph\n"
      "      file) into the program's text file or workbook, or into lines on standard output.\n"
      "  meter [--frames FILE] [--rate N]\n"
      "      A virtual meter on a pseudo-terminal. Prints the device path on the first line,\n"
      "      then sends frames at the meter's pace until Ctrl-C: a demonstration through every\n"
      "      function, or with --frames the raw bytes of a capture file (repeated). --rate sets\n"
      "      frames per second (2.5). Point the program at it with VENTRIX_COM1=<device path>.\n"
      "  decode [FILE]\n"
      "      Runs a captured byte stream (FILE, or standard input) through the program's\n"
      "      receive path and decoder and prints one JSON object per line for every accepted\n"
      "      frame.\n"
      "\n"
      "ventrix-cli <command> --help describes each command.\n"
      "\n"
      "example:\n"
      "  ventrix-cli log --port /dev/ttyUSB0 --interval 10 --samples 17280 --text bench.txt\n";

struct Command {
    const char* name;
    int (*run)(int argc, char** argv);
};

const Command kCommands[] = {
    { "log", ventrix::cli::RunLog },
    { "recover", ventrix::cli::RunRecover },
    { "convert", ventrix::cli::RunConvert },
    { "meter", ventrix::cli::RunMeter },
    { "decode", ventrix::cli::RunDecode },
};

} // namespace

int main(int argc, char** argv)
{
    // Without widgets: the logger runs on QtCore's event loop. No organisation name, so the
    // program's data directory is ".../Ventrix" itself, as for the window.
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Ventrix"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.0"));

    if (argc >= 2) {
        for (const Command& command : kCommands)
            if (std::strcmp(argv[1], command.name) == 0)
                return command.run(argc - 2, argv + 2);
        if (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0
            || std::strcmp(argv[1], "help") == 0) {
            std::fputs(kUsage, stdout);
            return 0;
        }
    }
    std::fputs(kUsage, stderr);
    return 2;
}
