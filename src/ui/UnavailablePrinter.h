#pragma once

#include "platform/Printer.h"

namespace ventrix::ui {

// Stands in for the printer until printing is built: every call fails, so a print ends on its
// silent error path and nothing is printed.
class UnavailablePrinter : public platform::Printer {
public:
    bool SetOrientation(int) override { return false; }
    bool PrintLine(const std::string&) override { return false; }
    bool PaintGraphPicture(double, double, double) override { return false; }
    bool EndDocument() override { return false; }
};

} // namespace ventrix::ui
