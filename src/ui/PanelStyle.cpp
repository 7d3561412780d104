#include "ui/PanelStyle.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace ventrix::ui {

namespace {
const char* const kStyleSheet = R"(
QGroupBox {
    border: 1px solid #454b52;
    border-radius: 6px;
    margin-top: 14px;
    padding: 8px 6px 6px 6px;
    font-weight: bold;
}
QGroupBox::title {
    subcontrol-origin: margin;
    subcontrol-position: top left;
    left: 10px;
    padding: 0 4px;
    color: #9fc3e0;
}
QLabel[role="caption"] { color: #a9b0b8; }
QLabel[role="cursorTitle"] { color: #a9b0b8; font-weight: bold; }
QLabel[role="cursorTitle"]:disabled { color: #5d636a; }
QLabel[role="readout"] {
    background: #15181b;
    border: 1px solid #3a4046;
    border-radius: 3px;
    padding: 1px 6px;
    color: #e8e27a;
    min-height: 18px;
}
QLabel[role="readout"]:disabled { color: #6d7379; }
QPlainTextEdit { background: #15181b; border: 1px solid #3a4046; border-radius: 3px; }
QProgressBar {
    border: 1px solid #3a4046;
    border-radius: 3px;
    background: #15181b;
    min-height: 20px;
}
QProgressBar::chunk { background: #2f7a4a; border-radius: 2px; }
QToolBar { border: none; spacing: 4px; padding: 2px 6px; }
QToolButton { padding: 3px 6px; }
)";
} // namespace

void PanelStyle::Apply(QApplication& application)
{
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));

    QPalette palette;
    const QColor window(0x2b, 0x2f, 0x33);
    const QColor base(0x1e, 0x21, 0x24);
    const QColor text(0xe0, 0xe3, 0xe6);
    const QColor muted(0x7a, 0x80, 0x86);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::ToolTipBase, QColor(0x3a, 0x40, 0x46));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, QColor(0x36, 0x3b, 0x40));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, QColor(0xff, 0x6b, 0x6b));
    palette.setColor(QPalette::Link, QColor(0x5d, 0xa9, 0xe9));
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0x7e, 0xb8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, muted);
    for (QPalette::ColorRole role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText })
        palette.setColor(QPalette::Disabled, role, muted);
    palette.setColor(QPalette::Disabled, QPalette::Button, QColor(0x30, 0x34, 0x38));
    application.setPalette(palette);
    application.setStyleSheet(QString::fromLatin1(kStyleSheet));
}

} // namespace ventrix::ui
