#include "ui/QtShell.h"

#include <QApplication>
#include <QCoreApplication>

namespace ventrix::ui {

QtShell::~QtShell()
{
    SetBusyPointer(false);
}

void QtShell::SetBusyPointer(bool busy)
{
    if (busy == m_busy)
        return;
    m_busy = busy;
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void QtShell::EndProgram()
{
    SetBusyPointer(false);
    if (m_onEnd)
        m_onEnd();
    QCoreApplication::exit(0);
}

void QtShell::ShowHelp(platform::HelpView view)
{
    if (m_onHelp)
        m_onHelp(view);
}

} // namespace ventrix::ui
