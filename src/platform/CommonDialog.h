#pragma once

#include "platform/Dialogs.h"

#include <string>

namespace ventrix::platform {

// One common-dialog control of the window (FileBox for the file commands, DIALOG_PRINT for the
// printer): its properties stay as the last command left them, so flags one command sets apply
// to every later command that shows the same control. Shows the dialogs through the Dialogs
// service; decides nothing.
class CommonDialog {
public:
    explicit CommonDialog(Dialogs& dialogs)
        : m_dialogs(dialogs)
    {
    }

    // Title, filter, file name, initial directory and flags of the next dialog shown.
    FileDialogRequest settings;
    // A cancelled printer dialog counts as an error.
    bool cancelError = false;
    // What the printer dialog returned last.
    PrintDialogResult printResult;

    // The chosen path becomes settings.fileName; a cancel leaves the file name as it was.
    void ShowOpen() { Take(m_dialogs.ShowOpen(settings)); }
    void ShowSave() { Take(m_dialogs.ShowSave(settings)); }
    // False when the dialog was cancelled and cancelError is set.
    bool ShowPrinter()
    {
        const std::optional<PrintDialogResult> result = m_dialogs.ShowPrint(settings.flags);
        if (result)
            printResult = *result;
        return result.has_value() || !cancelError;
    }

private:
    void Take(const std::optional<std::string>& chosen)
    {
        if (chosen)
            settings.fileName = *chosen;
    }

    Dialogs& m_dialogs;
};

} // namespace ventrix::platform
