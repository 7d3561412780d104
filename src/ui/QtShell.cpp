#include "ui/QtShell.h"

#include <QApplication>
#include <QCoreApplication>
#include <QLayout>
#include <QProgressBar>
#include <QStatusBar>

#include <algorithm>

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
    if (busy) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
        if (m_progress)
            m_progress->hide();
        m_percent = -1;
    }
}

void QtShell::SetStatusBar(QStatusBar* statusBar)
{
    m_statusBar = statusBar;
    if (statusBar == nullptr)
        return;
    m_progress = new QProgressBar(statusBar);
    m_progress->setObjectName(QStringLiteral("PROGRESS_BAR"));
    m_progress->setRange(0, 100);
    m_progress->setMaximumWidth(200);
    m_progress->hide();
    statusBar->addPermanentWidget(m_progress);
}

void QtShell::ShowProgress(std::size_t done, std::size_t total)
{
    if (!m_busy || !m_progress || total == 0)
        return;
    const int percent = static_cast<int>(std::min(done, total) * 100 / total);
    if (percent == m_percent)
        return;
    m_percent = percent;
    m_progress->setValue(percent);
    if (m_progress->isHidden()) {
        m_progress->show();
        if (m_statusBar && m_statusBar->layout() != nullptr)
            m_statusBar->layout()->activate();
    }
    // Drawn now: the event loop does not run until the write is over.
    m_progress->repaint();
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
