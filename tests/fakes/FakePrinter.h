#pragma once

#include "platform/Printer.h"

#include <string>
#include <vector>

namespace ventrix::fakes {

// A printer that records what was sent to it; fail makes every call report an error.
class FakePrinter : public platform::Printer {
public:
    bool SetOrientation(int value) override { return Record(orientation = value); }
    bool PrintLine(const std::string& text) override
    {
        lines.push_back(text);
        return !fail;
    }
    bool PaintGraphPicture(double, double, double) override { return Record(++pictures); }
    bool EndDocument() override { return Record(++documents); }

    bool fail = false;
    int orientation = 0;
    int pictures = 0;
    int documents = 0;
    std::vector<std::string> lines;

private:
    bool Record(int) const { return !fail; }
};

} // namespace ventrix::fakes
