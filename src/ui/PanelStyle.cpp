#include "ui/PanelStyle.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>
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
QStatusBar { border-top: 1px solid #3a4046; }
QStatusBar::item { border: none; }
QLabel[role="status"] { padding: 1px 10px 1px 4px; color: #a9b0b8; }
QLabel#STATUS_ACTIVITY[state="live"] { color: #7fd69a; font-weight: bold; }
QLabel#STATUS_ACTIVITY[state="waiting"] { color: #e6b657; font-weight: bold; }
QToolButton { padding: 3px 6px; }
)";
// Fusion, except that disabled text is not etched: on a dark palette the light offset copy makes
// a disabled entry look bolder than an enabled one.
class FlatDisabledStyle : public QProxyStyle {
public:
    FlatDisabledStyle()
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
    {
    }
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
        QStyleHintReturn* returnData) const override
    {
        if (hint == SH_EtchDisabledText)
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};
} // namespace

void PanelStyle::Apply(QApplication& application)
{
    application.setStyle(new FlatDisabledStyle);

    QPalette palette;
    const QColor window(0x2b, 0x2f, 0x33);
    const QColor base(0x1e, 0x21, 0x24);
    const QColor text(0xe0, 0xe3, 0xe6);
    const QColor muted(0x7a, 0x80, 0x86);
    const QColor dimmed(0x5c, 0x62, 0x68); // disabled text: clearly behind the enabled text
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
        palette.setColor(QPalette::Disabled, role, dimmed);
    // Disabled buttons and lists sink into the panel: no raised face, no light edge.
    palette.setColor(QPalette::Disabled, QPalette::Button, window);
    palette.setColor(QPalette::Disabled, QPalette::Light, window);
    palette.setColor(QPalette::Disabled, QPalette::Base, window);
    application.setPalette(palette);
    application.setStyleSheet(QString::fromLatin1(kStyleSheet));
}

} // namespace ventrix::ui
