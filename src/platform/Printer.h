#pragma once

#include <string>

namespace ventrix::platform {

// The printer for one printed graph: orientation, text lines, the captured graph picture, and
// the end of the document that sends the page. Each call returns false on a printer error.
class Printer {
public:
    virtual ~Printer() = default;
    virtual bool SetOrientation(int orientation) = 0;
    virtual bool PrintLine(const std::string& text) = 0;
    virtual bool PaintGraphPicture(double left, double top, double scale) = 0;
    virtual bool EndDocument() = 0;
};

} // namespace ventrix::platform
