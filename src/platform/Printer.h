#pragma once

#include <string>

namespace ventrix::platform {

// The printer for one printed page: orientation (1 portrait, 2 landscape) and number of copies,
// text lines from the top of the page, the picture held by the picture box picPRINT, and the end
// of the document that sends the page. Each call returns false on a printer error; a document
// that is not ended is never sent.
class Printer {
public:
    virtual ~Printer() = default;
    virtual bool SetOrientation(int orientation) = 0;
    virtual bool SetCopies(int copies) = 0;
    // Prints one line (a tab moves to the next tab stop) below the last one.
    virtual bool PrintLine(const std::string& text) = 0;
    // Paints picPRINT's picture `left` mm from the left edge of the printable area and `top` mm
    // below the last line, at `scale` mm per picture pixel, shrunk to fit the printable area.
    virtual bool PaintPicture(double left, double top, double scale) = 0;
    virtual bool EndDocument() = 0;
};

} // namespace ventrix::platform
