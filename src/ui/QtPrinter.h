#pragma once

#include "platform/Printer.h"

#include <QPainter>
#include <QPrinter>

class QLabel;

namespace ventrix::ui {

// The printer on a QPrinter (high resolution; a real printer or a PDF file, as chosen in the
// print dialog, which shows this same QPrinter). The document begins with its first line; text
// lines go down the page from the top of the printable area in a 10-point font, a tab moving to
// the next stop of 14 average characters; the picture is the one held by picPRINT (a QLabel),
// drawn as the vector picture it is. A document that is not ended is dropped when the next one
// begins, never sent.
class QtPrinter : public platform::Printer {
public:
    explicit QtPrinter(QLabel& picture);
    ~QtPrinter() override;
    QtPrinter(const QtPrinter&) = delete;
    QtPrinter& operator=(const QtPrinter&) = delete;

    QPrinter& Device() { return m_printer; }

    bool SetOrientation(int orientation) override;
    bool SetCopies(int copies) override;
    bool PrintLine(const std::string& text) override;
    bool PaintPicture(double left, double top, double scale) override;
    bool EndDocument() override;

private:
    bool Begin();
    void Drop();
    double Millimetre() const;
    QRectF PrintableArea() const;

    QPrinter m_printer { QPrinter::HighResolution };
    QPainter m_painter;
    QLabel& m_picture;
    double m_nextLine = 0.0; // top of the next line, in device pixels
};

} // namespace ventrix::ui
