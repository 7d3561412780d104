#pragma once

#include "platform/Printer.h"

#include <string>
#include <vector>

namespace ventrix::fakes {

// A printer that records what was sent to it. Like a real one it sends a page only when the
// document is ended. failFrom makes that call and every later one fail (0: the first call).
class FakePrinter : public platform::Printer {
public:
    bool SetOrientation(int value) override { return Call() && (orientation = value, true); }
    bool SetCopies(int value) override { return Call() && (copies = value, true); }
    bool PrintLine(const std::string& text) override { return Call() && (lines.push_back(text), true); }
    bool PaintPicture(double, double, double) override { return Call() && (++pictures, true); }
    bool EndDocument() override { return Call() && (++sentPages, true); }

    int failFrom = -1;
    int calls = 0;
    int orientation = 0;
    int copies = 0;
    int sentPages = 0;
    std::vector<std::string> lines;
    int pictures = 0;

private:
    bool Call() { return failFrom < 0 || calls++ < failFrom; }
};

} // namespace ventrix::fakes
