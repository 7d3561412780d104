#include "ui/WorkbookHandover.h"

#include <QDesktopServices>
#include <QDir>
#include <QUrl>

namespace ventrix::ui {

void WorkbookHandover::operator()(const std::filesystem::path& path, bool written) const
{
    const QString file = QDir::toNativeSeparators(QString::fromStdU16String(path.u16string()));
    QString notice;
    if (!written)
        notice = QStringLiteral("The workbook %1 could not be written").arg(file);
    else if (QDesktopServices::openUrl(QUrl::fromLocalFile(file)))
        notice = QStringLiteral("Exported to %1").arg(file);
    else
        notice = QStringLiteral("Exported to %1 (no application opens .xlsx files)").arg(file);
    if (m_statusBar)
        m_statusBar->showMessage(notice);
}

} // namespace ventrix::ui
