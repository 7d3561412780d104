#pragma once

#include <QIcon>

namespace ventrix::ui {

// Drawn tool-bar icons for the commands whose standard style icons are too dark on the panel's
// dark palette: start (green triangle), stop (red square), zoom to all data (four corner arrows)
// and quit (a power sign); plus the window icon, a small dial. Qt derives the greyed-out look of
// a disabled button from them.
class ToolIcons {
public:
    static QIcon Play();
    static QIcon Stop();
    static QIcon ZoomAll();
    static QIcon Exit();
    static QIcon Application();
};

} // namespace ventrix::ui
