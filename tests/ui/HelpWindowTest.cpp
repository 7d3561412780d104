#include "ui/HelpWindow.h"
#include "app/MainForm.h"
#include "fakes/TestRig.h"
#include "io/ModalGate.h"
#include "ui/MainWindow.h"
#include "ui/QtShell.h"

#include <QAction>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTextBrowser>
#include <gtest/gtest.h>

namespace ventrix::ui {
namespace {

const QString kHelpDir = QString::fromUtf8(VENTRIX_SOURCE_HELP_DIR);

QString ReadAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// A target "page.html#anchor" resolves when the page exists and carries id="anchor".
bool Resolves(const QDir& from, const QString& target)
{
    const QString page = target.section(QLatin1Char('#'), 0, 0);
    const QString anchor = target.section(QLatin1Char('#'), 1);
    const QString path = page.isEmpty() ? QString() : from.filePath(page);
    if (page.isEmpty() || !QFile::exists(path))
        return false;
    return anchor.isEmpty() || ReadAll(path).contains(QStringLiteral("id=\"%1\"").arg(anchor));
}

TEST(HelpWindowTest, HelpCommandsOpenTheViewerOnTheirView)
{
    fakes::TestRig fakes;
    QtShell shell;
    platform::Services services { fakes.serial,
        { fakes.unlinkTimer, fakes.sampleTimer, fakes.analogTimer, fakes.debugTimer }, fakes.clock,
        fakes.dialogs, fakes.graph, fakes.knob, fakes.spreadsheet, fakes.printer, fakes.paths, shell,
        fakes.graphPrint };
    io::ModalGate gate;
    MainWindow window(fakes.controls, gate);
    app::MainForm form(fakes.state, fakes.controls, services);
    HelpWindow help(kHelpDir);
    shell.SetOnHelp([&help](platform::HelpView view) { help.Show(view); });
    form.Form_Load();

    auto* content = window.findChild<QAction*>(QStringLiteral("HELP_CONTENT"));
    auto* index = window.findChild<QAction*>(QStringLiteral("HELP_INDEX"));
    ASSERT_TRUE(content && index);
    ASSERT_TRUE(content->isEnabled() && index->isEnabled());

    index->trigger();
    EXPECT_TRUE(help.isVisible());
    EXPECT_EQ(help.CurrentView(), platform::HelpView::Index);
    content->trigger();
    EXPECT_EQ(help.CurrentView(), platform::HelpView::Contents);
    EXPECT_TRUE(help.CurrentPage().path().endsWith(QStringLiteral("/start.html")));
    EXPECT_TRUE(fakes.dialogs.boxes.empty()) << "help opens no message box";
}

TEST(HelpWindowTest, EveryTopicKeywordAndLinkResolves)
{
    const QDir dir(kHelpDir);
    const HelpCatalog catalog = HelpCatalog::Load(kHelpDir);
    ASSERT_GT(catalog.Contents().size(), 10);
    ASSERT_GT(catalog.Index().size(), 50);
    QStringList listedPages;
    for (const auto* entries : { &catalog.Contents(), &catalog.Index() })
        for (const HelpEntry& entry : *entries) {
            EXPECT_TRUE(Resolves(dir, entry.target))
                << entry.title.toStdString() << " -> " << entry.target.toStdString();
            listedPages << entry.target.section(QLatin1Char('#'), 0, 0);
        }

    const QRegularExpression href(QStringLiteral("href=\"([^\"]+)\""));
    QDirIterator pages(kHelpDir, { QStringLiteral("*.html") });
    int pageCount = 0;
    while (pages.hasNext()) {
        const QString page = pages.next();
        ++pageCount;
        EXPECT_TRUE(listedPages.contains(QFileInfo(page).fileName()))
            << "not in the contents: " << page.toStdString();
        auto links = href.globalMatch(ReadAll(page));
        while (links.hasNext()) {
            QString target = links.next().captured(1);
            if (target.startsWith(QStringLiteral("http")) || target.startsWith(QStringLiteral("mailto:")))
                continue;
            if (target.startsWith(QLatin1Char('#')))
                target.prepend(QFileInfo(page).fileName());
            EXPECT_TRUE(Resolves(dir, target)) << page.toStdString() << ": " << target.toStdString();
        }
    }
    EXPECT_GE(pageCount, 12);
}

TEST(HelpWindowTest, AMissingHelpFolderShowsAMessage)
{
    HelpWindow help(QStringLiteral("/nonexistent/ventrix-help"));
    help.Show(platform::HelpView::Index);
    EXPECT_TRUE(help.findChild<QTextBrowser*>(QStringLiteral("HelpBrowser"))
                    ->toPlainText()
                    .contains(QStringLiteral("not found")));
}

} // namespace
} // namespace ventrix::ui
