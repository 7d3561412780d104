#pragma once

class QApplication;

namespace ventrix::ui {

// The program's look: the Fusion style with a calm dark palette, titled group boxes, and sunken
// readout labels. Only appearance; no widget depends on it to work.
class PanelStyle {
public:
    static void Apply(QApplication& application);
};

} // namespace ventrix::ui
