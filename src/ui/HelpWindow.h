#pragma once

#include "platform/Shell.h"
#include "ui/HelpCatalog.h"

#include <QWidget>

class QLineEdit;
class QListWidget;
class QTabWidget;
class QTextBrowser;
class QTreeWidget;

namespace ventrix::ui {

// The help window HELPDIALOG: the pages of the user's guide in a browser, beside a Contents tab
// (the topic tree) and an Index tab (keywords with a filter box). It reads the help directory it
// is given once, at construction; a directory without the help shows a short message instead.
// It is not modal and has no say in the main window's handlers.
class HelpWindow : public QWidget {
public:
    explicit HelpWindow(const QString& helpDirectory, QWidget* parent = nullptr);

    // Shows the window, raised, on the contents or the index tab.
    void Show(platform::HelpView view);
    platform::HelpView CurrentView() const;
    // The page shown, as a local file URL with its anchor.
    QUrl CurrentPage() const;

private:
    void BuildContents();
    void BuildIndex();
    void Open(const QString& target);
    void FilterIndex(const QString& text);
    void OpenIndexSelection();
    void SelectTopicOf(const QUrl& page);

    HelpCatalog m_catalog;
    QTabWidget* m_tabs = nullptr;
    QTreeWidget* m_contents = nullptr;
    QWidget* m_indexPage = nullptr;
    QLineEdit* m_filter = nullptr;
    QListWidget* m_index = nullptr;
    QTextBrowser* m_browser = nullptr;
};

} // namespace ventrix::ui
