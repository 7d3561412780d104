#pragma once

#include "platform/Control.h"

class QObject;
class QString;
class QWidget;

namespace ventrix::ui {

// Keeps one control model and the Qt object of the same name in step. The model is the truth:
// its observer copies caption, visibility, enabled state, tool tip, check mark, list items and
// selection, text and caret, or gauge value into the widget, menu or action; a user action on
// the widget becomes one call into the model (Click(), SetListIndex()) and the widget is then
// copied from the model again, so a refused change never shows. Bind() returns false when the
// model and the object do not fit together (nothing is bound then). A widget may carry a key
// hint, which its tool tip shows after the model's tip.
class ControlBinding {
public:
    static bool Bind(platform::Control& control, QObject* target);
    // Removes the observer so that a model outliving its window no longer reaches it.
    static void Unbind(platform::Control& control) { control.SetObserver(nullptr); }
    // A key that does what the widget does: its tool tip tells it after the model's tip.
    static void SetKeyHint(QWidget* widget, const QString& key);
};

} // namespace ventrix::ui
