#pragma once

#include <QPointer>
#include <QStatusBar>

#include <filesystem>

namespace ventrix::ui {

// Hands a finished export to the user: opens the workbook with the desktop's application for
// .xlsx files and names the file in the status bar, so that it is found even where no such
// application is installed. A workbook that could not be written is named there too. Shows no
// message box.
class WorkbookHandover {
public:
    explicit WorkbookHandover(QStatusBar* statusBar)
        : m_statusBar(statusBar)
    {
    }

    void operator()(const std::filesystem::path& path, bool written) const;

private:
    QPointer<QStatusBar> m_statusBar;
};

} // namespace ventrix::ui
