#include "ui/QtDialogs.h"

#include "ui/AboutBox.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QStringList>

namespace ventrix::ui {

using platform::MessageButtons;
using platform::MessageIcon;
using platform::MessageResult;

namespace {
QMessageBox::Icon ToQtIcon(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QString FromUtf8(const std::string& text)
{
    return QString::fromStdString(text);
}

// Print dialog flags the handlers pass: no "selection" range, no page numbers. The flag that
// hides a "print to file" check box (0x100000) has nothing to hide here: Qt's "Print to File
// (PDF)" is a printer of its own, kept in the list so that a page can always go to a PDF file.
constexpr int kNoSelection = 0x4;
constexpr int kNoPageNumbers = 0x8;
constexpr int kOverwritePrompt = 0x2;
} // namespace

QtDialogs::QtDialogs(io::ModalGate& gate, QWidget* parent)
    : m_gate(gate)
    , m_parent(parent)
{
}

MessageResult QtDialogs::MessageBox(
    const std::string& text, MessageButtons buttons, MessageIcon icon, const std::string& title)
{
    QMessageBox box(ToQtIcon(icon), FromUtf8(title), FromUtf8(text), QMessageBox::NoButton, m_parent);
    if (buttons == MessageButtons::YesNo) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
        // Escape or closing the box answers neither: a hidden Cancel takes them, so that only an
        // explicit No counts as No.
        QPushButton* dismissed = box.addButton(QMessageBox::Cancel);
        dismissed->hide();
        box.setEscapeButton(dismissed);
    } else {
        box.setStandardButtons(QMessageBox::Ok);
    }
    const int answer = m_gate.Hold([&box] { return box.exec(); });
    if (buttons == MessageButtons::Ok)
        return MessageResult::Ok;
    if (answer == QMessageBox::Yes)
        return MessageResult::Yes;
    return answer == QMessageBox::No ? MessageResult::No : MessageResult::Dismissed;
}

void QtDialogs::ShowAbout()
{
    // Application-modal but shown without a nested event loop: the meter, the timers and the
    // log go on while the box is read.
    if (m_about.isNull()) {
        auto* box = new AboutBox(m_parent);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->setWindowModality(Qt::ApplicationModal);
        m_about = box;
    }
    m_about->show();
    m_about->raise();
    m_about->activateWindow();
}

std::optional<std::string> QtDialogs::ShowOpen(const platform::FileDialogRequest& request)
{
    return ShowFile(request, false);
}

std::optional<std::string> QtDialogs::ShowSave(const platform::FileDialogRequest& request)
{
    return ShowFile(request, true);
}

std::optional<std::string> QtDialogs::ShowFile(const platform::FileDialogRequest& request, bool save)
{
    QFileDialog dialog(m_parent, FromUtf8(request.title));
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    const QString filter = ToQtFilter(request.filter);
    if (!filter.isEmpty())
        dialog.setNameFilters(filter.split(QStringLiteral(";;")));
    if (save)
        dialog.setOption(QFileDialog::DontConfirmOverwrite, (request.flags & kOverwritePrompt) == 0);
    const QFileInfo start(StartPath(request));
    if (!request.fileName.empty()) {
        dialog.setDirectory(start.absolutePath());
        dialog.selectFile(start.fileName());
    } else if (!request.initialDirectory.empty()) {
        dialog.setDirectory(start.absoluteFilePath());
    }
    const int accepted = m_gate.Hold([&dialog] { return dialog.exec(); });
    if (accepted != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return QDir::toNativeSeparators(dialog.selectedFiles().first()).toStdString();
}

std::optional<platform::PrintDialogResult> QtDialogs::ShowPrint(int flags)
{
    QPrinter ownPrinter;
    QPrinter& printer = m_printer != nullptr ? *m_printer : ownPrinter;
    QPrintDialog dialog(&printer, m_parent);
    QAbstractPrintDialog::PrintDialogOptions options = dialog.options() | QAbstractPrintDialog::PrintToFile;
    if ((flags & kNoSelection) != 0)
        options &= ~QAbstractPrintDialog::PrintSelection;
    if ((flags & kNoPageNumbers) != 0)
        options &= ~QAbstractPrintDialog::PrintPageRange;
    dialog.setOptions(options);
    const int accepted = m_gate.Hold([&dialog] { return dialog.exec(); });
    if (accepted != QDialog::Accepted)
        return std::nullopt;
    platform::PrintDialogResult result;
    result.fromPage = printer.fromPage();
    result.toPage = printer.toPage();
    result.copies = printer.copyCount();
    result.orientation = printer.pageLayout().orientation() == QPageLayout::Landscape ? 2 : 1;
    return result;
}

QString QtDialogs::ToQtFilter(const std::string& filter)
{
    const QStringList parts = FromUtf8(filter).split(QLatin1Char('|'));
    QStringList entries;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        QString description = parts[i].trimmed();
        const QString patterns
            = parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts).join(QLatin1Char(' '));
        // Qt reads the patterns from the last parentheses, so a description that already shows
        // them in parentheses loses that part before the real patterns are appended.
        const int open = description.lastIndexOf(QLatin1Char('('));
        if (open >= 0 && description.endsWith(QLatin1Char(')')))
            description = description.left(open).trimmed();
        if (description.isEmpty())
            description = patterns;
        entries << QStringLiteral("%1 (%2)").arg(description, patterns);
    }
    return entries.join(QStringLiteral(";;"));
}

QString QtDialogs::StartPath(const platform::FileDialogRequest& request)
{
    const QString directory = FromUtf8(request.initialDirectory);
    const QString file = FromUtf8(request.fileName);
    if (file.isEmpty())
        return directory;
    if (directory.isEmpty() || QFileInfo(file).isAbsolute())
        return file;
    return QDir(directory).filePath(file);
}

} // namespace ventrix::ui
