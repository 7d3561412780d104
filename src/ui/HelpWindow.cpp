#include "ui/HelpWindow.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPalette>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

namespace ventrix::ui {

namespace {
constexpr int kTargetRole = Qt::UserRole;

QString PageOf(const QUrl& url)
{
    return url.adjusted(QUrl::RemoveFragment).toString();
}
} // namespace

HelpWindow::HelpWindow(const QString& helpDirectory, QWidget* parent)
    : QWidget(parent, Qt::Window)
    , m_catalog(HelpCatalog::Load(helpDirectory))
{
    setObjectName(QStringLiteral("HELPDIALOG"));
    setWindowTitle(QStringLiteral("Ventrix Help"));
    resize(1000, 680);

    m_tabs = new QTabWidget;
    m_tabs->setObjectName(QStringLiteral("HelpTabs"));
    m_contents = new QTreeWidget;
    m_contents->setObjectName(QStringLiteral("HelpContents"));
    m_contents->setHeaderHidden(true);
    m_indexPage = new QWidget;
    m_filter = new QLineEdit;
    m_filter->setObjectName(QStringLiteral("HelpIndexFilter"));
    m_filter->setPlaceholderText(QStringLiteral("Type a keyword"));
    m_filter->setClearButtonEnabled(true);
    m_index = new QListWidget;
    m_index->setObjectName(QStringLiteral("HelpIndex"));
    auto* indexLayout = new QVBoxLayout(m_indexPage);
    indexLayout->setContentsMargins(4, 4, 4, 4);
    indexLayout->addWidget(m_filter);
    indexLayout->addWidget(m_index);
    m_tabs->addTab(m_contents, QStringLiteral("&Contents"));
    m_tabs->addTab(m_indexPage, QStringLiteral("&Index"));

    m_browser = new QTextBrowser;
    m_browser->setObjectName(QStringLiteral("HelpBrowser"));
    m_browser->setOpenExternalLinks(true);
    m_browser->setSearchPaths({ helpDirectory });
    // The pages are documents to read: dark text on white paper, whatever the window's palette.
    QPalette paper = m_browser->palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, QColor(0x20, 0x20, 0x20));
    paper.setColor(QPalette::Link, QColor(0x1d, 0x4f, 0x7a));
    paper.setColor(QPalette::LinkVisited, QColor(0x5a, 0x3d, 0x7a));
    m_browser->setPalette(paper);

    auto* back = new QToolButton;
    back->setText(QStringLiteral("< &Back"));
    back->setEnabled(false);
    auto* forward = new QToolButton;
    forward->setText(QStringLiteral("&Forward >"));
    forward->setEnabled(false);
    auto* navigation = new QHBoxLayout;
    navigation->addWidget(back);
    navigation->addWidget(forward);
    navigation->addStretch();
    auto* pageSide = new QWidget;
    auto* pageLayout = new QVBoxLayout(pageSide);
    pageLayout->setContentsMargins(0, 0, 0, 0);
    pageLayout->addLayout(navigation);
    pageLayout->addWidget(m_browser);

    auto* splitter = new QSplitter;
    splitter->addWidget(m_tabs);
    splitter->addWidget(pageSide);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({ 310, 690 });
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(splitter);

    connect(back, &QToolButton::clicked, m_browser, &QTextBrowser::backward);
    connect(forward, &QToolButton::clicked, m_browser, &QTextBrowser::forward);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QToolButton::setEnabled);
    connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QToolButton::setEnabled);
    connect(m_browser, &QTextBrowser::sourceChanged, this, &HelpWindow::SelectTopicOf);
    connect(m_contents, &QTreeWidget::itemActivated, this,
        [this](QTreeWidgetItem* item) { Open(item->data(0, kTargetRole).toString()); });
    connect(m_contents, &QTreeWidget::itemClicked, this,
        [this](QTreeWidgetItem* item) { Open(item->data(0, kTargetRole).toString()); });
    connect(m_index, &QListWidget::itemActivated, this, &HelpWindow::OpenIndexSelection);
    connect(m_index, &QListWidget::itemClicked, this, &HelpWindow::OpenIndexSelection);
    connect(m_filter, &QLineEdit::textChanged, this, &HelpWindow::FilterIndex);
    connect(m_filter, &QLineEdit::returnPressed, this, &HelpWindow::OpenIndexSelection);

    if (m_catalog.IsEmpty()) {
        m_browser->setHtml(
            QStringLiteral("<h2>Help is not available</h2><p>The help pages were not found in "
                           "<b>%1</b>. Reinstall Ventrix, or set VENTRIX_HELP_DIR to the folder "
                           "that holds them.</p>")
                .arg(helpDirectory.toHtmlEscaped()));
        return;
    }
    BuildContents();
    BuildIndex();
    Open(m_catalog.Contents().front().target);
}

void HelpWindow::BuildContents()
{
    QVector<QTreeWidgetItem*> parents;
    for (const HelpEntry& entry : m_catalog.Contents()) {
        const int level = std::min<int>(entry.level, parents.size());
        parents.resize(level);
        auto* item = level == 0 ? new QTreeWidgetItem(m_contents) : new QTreeWidgetItem(parents.back());
        item->setText(0, entry.title);
        item->setData(0, kTargetRole, entry.target);
        parents.push_back(item);
    }
    m_contents->expandAll();
}

void HelpWindow::BuildIndex()
{
    QVector<HelpEntry> keywords = m_catalog.Index();
    std::stable_sort(keywords.begin(), keywords.end(), [](const HelpEntry& a, const HelpEntry& b) {
        return QString::compare(a.title, b.title, Qt::CaseInsensitive) < 0;
    });
    for (const HelpEntry& entry : keywords) {
        auto* item = new QListWidgetItem(entry.title, m_index);
        item->setData(kTargetRole, entry.target);
    }
}

void HelpWindow::Show(platform::HelpView view)
{
    if (view == platform::HelpView::Index) {
        m_tabs->setCurrentWidget(m_indexPage);
        m_filter->setFocus();
    } else {
        m_tabs->setCurrentWidget(m_contents);
        m_contents->setFocus();
    }
    show();
    raise();
    activateWindow();
}

platform::HelpView HelpWindow::CurrentView() const
{
    return m_tabs->currentWidget() == m_indexPage ? platform::HelpView::Index : platform::HelpView::Contents;
}

QUrl HelpWindow::CurrentPage() const
{
    return m_browser->source();
}

void HelpWindow::Open(const QString& target)
{
    if (!target.isEmpty())
        m_browser->setSource(m_catalog.Url(target));
}

void HelpWindow::FilterIndex(const QString& text)
{
    QListWidgetItem* first = nullptr;
    for (int row = 0; row < m_index->count(); ++row) {
        QListWidgetItem* item = m_index->item(row);
        const bool match = item->text().contains(text.trimmed(), Qt::CaseInsensitive);
        item->setHidden(!match);
        if (match && first == nullptr)
            first = item;
    }
    m_index->setCurrentItem(first);
}

void HelpWindow::OpenIndexSelection()
{
    QListWidgetItem* item = m_index->currentItem();
    if (item != nullptr && !item->isHidden())
        Open(item->data(kTargetRole).toString());
}

void HelpWindow::SelectTopicOf(const QUrl& page)
{
    const QString shown = PageOf(page);
    for (QTreeWidgetItemIterator it(m_contents); *it != nullptr; ++it) {
        const QUrl topic = m_catalog.Url((*it)->data(0, kTargetRole).toString());
        if (topic == page || (PageOf(topic) == shown && !topic.hasFragment())) {
            const QSignalBlocker quiet(m_contents);
            m_contents->setCurrentItem(*it);
            return;
        }
    }
}

} // namespace ventrix::ui
