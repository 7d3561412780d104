#pragma once

#include "platform/Printer.h"

namespace ventrix::platform {

// Stands in where there is no printer (the capture replay): every call fails, so a print ends on
// its silent error path and nothing is printed.
class UnavailablePrinter : public Printer {
public:
    bool SetOrientation(int) override { return false; }
    bool SetCopies(int) override { return false; }
    bool PrintLine(const std::string&) override { return false; }
    bool PaintPicture(double, double, double) override { return false; }
    bool EndDocument() override { return false; }
};

} // namespace ventrix::platform
