#pragma once

#include "io/ModalGate.h"
#include "platform/Dialogs.h"

#include <QPointer>
#include <QString>
#include <QWidget>

class QPrinter;

namespace ventrix::ui {

// Message boxes, file dialogs and the print dialog on QMessageBox, QFileDialog and QPrintDialog,
// owned by the main window. Every box runs under the modal gate, so timer ticks and receive
// events wait until it is answered; the about box alone is left outside the gate (it asks
// nothing). Only adapts arguments and results; decides nothing.
class QtDialogs : public platform::Dialogs {
public:
    explicit QtDialogs(io::ModalGate& gate, QWidget* parent = nullptr);

    void SetParent(QWidget* parent) { m_parent = parent; }
    // The printer the print dialog sets up (the one that then prints); without one the dialog
    // sets up a printer of its own.
    void SetPrinter(QPrinter* printer) { m_printer = printer; }

    platform::MessageResult MessageBox(const std::string& text, platform::MessageButtons buttons,
        platform::MessageIcon icon, const std::string& title) override;
    std::optional<std::string> ShowOpen(const platform::FileDialogRequest& request) override;
    std::optional<std::string> ShowSave(const platform::FileDialogRequest& request) override;
    std::optional<platform::PrintDialogResult> ShowPrint(int flags) override;
    // Opens ABOUT_FRM, or raises it when it is already open.
    void ShowAbout() override;

    // "Graph Files|*.gph|All|*.*" -> "Graph Files (*.gph);;All (*.*)". Several patterns of one
    // entry ("*.txt;*.log") become space separated; an empty filter gives an empty string.
    static QString ToQtFilter(const std::string& filter);
    // The path a file dialog starts at: the file name inside the initial directory, or either
    // alone when the other is empty; an absolute file name stands by itself.
    static QString StartPath(const platform::FileDialogRequest& request);

private:
    std::optional<std::string> ShowFile(const platform::FileDialogRequest& request, bool save);

    io::ModalGate& m_gate;
    QPointer<QWidget> m_parent;
    QPointer<QWidget> m_about;
    QPrinter* m_printer = nullptr;
};

} // namespace ventrix::ui
