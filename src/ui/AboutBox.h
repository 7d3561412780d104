#pragma once

#include <QDialog>

namespace ventrix::ui {

// The about box ABOUT_FRM: the program's name, version and purpose, the versions of the
// libraries it runs on, and the licence notices of the libraries and fonts it ships with (Qt,
// Qwt, libxlsxwriter, the DSEG fonts) in a scrollable text. Shows only; a Close button ends it.
class AboutBox : public QDialog {
    Q_OBJECT
public:
    explicit AboutBox(QWidget* parent = nullptr);

    // The notices as HTML, as the box shows them.
    static QString LicenceNotices();
};

} // namespace ventrix::ui
