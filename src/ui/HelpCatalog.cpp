#include "ui/HelpCatalog.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

namespace ventrix::ui {

namespace {
constexpr int kIndentPerLevel = 2;

QVector<HelpEntry> ReadEntries(const QString& path)
{
    QVector<HelpEntry> entries;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return entries;
    QTextStream in(&file);
    in.setCodec("UTF-8");
    while (!in.atEnd()) {
        const QString line = in.readLine();
        const QString trimmed = line.trimmed();
        const int bar = line.lastIndexOf(QLatin1Char('|'));
        if (trimmed.isEmpty() || trimmed.startsWith(QLatin1Char('#')) || bar < 0)
            continue;
        int indent = 0;
        while (indent < line.size() && line[indent] == QLatin1Char(' '))
            ++indent;
        entries.push_back(
            { line.left(bar).trimmed(), line.mid(bar + 1).trimmed(), indent / kIndentPerLevel });
    }
    return entries;
}
} // namespace

HelpCatalog HelpCatalog::Load(const QString& directory)
{
    HelpCatalog catalog;
    catalog.m_directory = directory;
    const QDir dir(directory);
    catalog.m_contents = ReadEntries(dir.filePath(QStringLiteral("contents.txt")));
    catalog.m_index = ReadEntries(dir.filePath(QStringLiteral("index.txt")));
    return catalog;
}

QUrl HelpCatalog::Url(const QString& target) const
{
    const int hash = target.indexOf(QLatin1Char('#'));
    QUrl url = QUrl::fromLocalFile(QDir(m_directory).filePath(hash < 0 ? target : target.left(hash)));
    if (hash >= 0)
        url.setFragment(target.mid(hash + 1));
    return url;
}

} // namespace ventrix::ui
