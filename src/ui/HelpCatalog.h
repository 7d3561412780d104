#pragma once

#include <QString>
#include <QUrl>
#include <QVector>

namespace ventrix::ui {

// One line of the help's contents or index: its text, the page (and anchor) it leads to, and for
// the contents its depth in the tree (0 for a top-level topic).
struct HelpEntry {
    QString title;
    QString target;
    int level = 0;
};

// The help's description as the viewer reads it from the help directory: "contents.txt" (one
// topic a line, "Title | page.html#anchor", indented two spaces per level) and "index.txt" (one
// keyword a line, "keyword | page.html#anchor"), UTF-8, '#' starting a comment line. It reads
// the two files and resolves targets to URLs; it does not check that the pages exist.
class HelpCatalog {
public:
    static HelpCatalog Load(const QString& directory);

    bool IsEmpty() const { return m_contents.isEmpty(); }
    const QString& Directory() const { return m_directory; }
    const QVector<HelpEntry>& Contents() const { return m_contents; }
    const QVector<HelpEntry>& Index() const { return m_index; }
    QUrl Url(const QString& target) const;

private:
    QString m_directory;
    QVector<HelpEntry> m_contents;
    QVector<HelpEntry> m_index;
};

} // namespace ventrix::ui
