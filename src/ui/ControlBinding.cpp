#include "ui/ControlBinding.h"

#include "platform/Button.h"
#include "platform/ComboBox.h"
#include "platform/Frame.h"
#include "platform/Label.h"
#include "platform/MenuItem.h"
#include "platform/SlideBar.h"
#include "platform/TextBox.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressBar>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextCursor>
#include <QToolBar>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>

namespace ventrix::ui {

using namespace platform;

namespace {
QString Text(const std::string& text)
{
    return QString::fromStdString(text);
}

// A widget placed in a tool bar is shown and hidden through the tool bar's action for it.
void SetWidgetVisible(QWidget* widget, bool visible)
{
    if (auto* bar = qobject_cast<QToolBar*>(widget->parentWidget())) {
        for (QAction* action : bar->actions()) {
            if (bar->widgetForAction(action) == widget) {
                action->setVisible(visible);
                return;
            }
        }
    }
    widget->setVisible(visible);
}

const char* const kKeyHint = "keyHint";

// The model's tip, followed by the key that does the same, e.g. "Start acquisition (F5)".
QString TipWithKey(const std::string& tip, const QWidget* widget)
{
    const QString key = widget->property(kKeyHint).toString();
    if (tip.empty() || key.isEmpty())
        return Text(tip);
    return QStringLiteral("%1 (%2)").arg(Text(tip), key);
}

void CopyCommon(const Control& control, QWidget* widget)
{
    SetWidgetVisible(widget, control.Visible());
    widget->setEnabled(control.Enabled());
    widget->setToolTip(TipWithKey(control.ToolTip(), widget));
}

// Runs the copy now and after every change of the model, for as long as the target lives.
template <typename Target, typename Copy> void Observe(Control& control, Target* target, Copy copy)
{
    QPointer<Target> guard(target);
    auto observer = [guard, copy]() mutable {
        if (guard)
            copy(guard.data());
    };
    observer();
    control.SetObserver(std::move(observer));
}

bool BindMenu(MenuItem& item, QMenu* menu)
{
    Observe(item, menu, [&item](QMenu* m) {
        m->setTitle(Text(item.Caption()));
        m->menuAction()->setVisible(item.Visible());
        m->menuAction()->setEnabled(item.Enabled());
        m->menuAction()->setToolTip(Text(item.ToolTip()));
    });
    return true;
}

bool BindAction(MenuItem& item, QAction* action)
{
    auto copy = [&item](QAction* a) {
        if (!a->isSeparator())
            a->setText(Text(item.Caption()));
        a->setVisible(item.Visible());
        a->setEnabled(item.Enabled());
        if (!item.ToolTip().empty())
            a->setToolTip(Text(item.ToolTip()));
        if (a->isCheckable())
            a->setChecked(item.Checked());
    };
    Observe(item, action, copy);
    QObject::connect(action, &QAction::triggered, action, [&item, action, copy]() mutable {
        item.Click();
        copy(action); // Qt flips a checkable action by itself; the model decides
    });
    return true;
}

bool BindButton(Button& button, QAbstractButton* widget)
{
    Observe(button, widget, [&button](QAbstractButton* w) {
        w->setText(Text(button.Caption()));
        CopyCommon(button, w);
    });
    QObject::connect(widget, &QAbstractButton::clicked, widget, [&button] { button.Click(); });
    return true;
}

bool BindCombo(ComboBox& combo, QComboBox* widget)
{
    auto copy = [&combo](QComboBox* w) {
        const QSignalBlocker quiet(w);
        bool same = w->count() == static_cast<int>(combo.Items().size());
        for (int i = 0; same && i < w->count(); ++i)
            same = w->itemText(i) == Text(combo.Items()[static_cast<std::size_t>(i)]);
        if (!same) {
            w->clear();
            for (const std::string& item : combo.Items())
                w->addItem(Text(item));
        }
        w->setCurrentIndex(combo.ListIndex());
        CopyCommon(combo, w);
    };
    Observe(combo, widget, copy);
    QObject::connect(
        widget, QOverload<int>::of(&QComboBox::activated), widget, [&combo, widget, copy](int index) mutable {
            combo.SetListIndex(index);
            copy(widget);
        });
    return true;
}

bool BindTextBox(TextBox& box, QPlainTextEdit* widget)
{
    // The log grows at its end most of the time: then only the new part is inserted.
    auto shown = std::make_shared<std::string>();
    Observe(box, widget, [&box, shown](QPlainTextEdit* w) {
        const std::string& text = box.Text();
        if (text != *shown) {
            if (!shown->empty() && text.size() > shown->size()
                && text.compare(0, shown->size(), *shown) == 0) {
                QTextCursor end(w->document());
                end.movePosition(QTextCursor::End);
                end.insertText(Text(text.substr(shown->size())));
            } else {
                w->setPlainText(Text(text));
            }
            *shown = text;
        }
        // The caret counts bytes of UTF-8 with "\r\n" line ends; the widget counts UTF-16 units
        // and keeps one character per line end.
        QString before = QString::fromUtf8(text.data(), static_cast<int>(box.Caret()));
        before.remove(QLatin1Char('\r'));
        const int position = std::min(static_cast<int>(before.size()), w->document()->characterCount() - 1);
        QTextCursor caret = w->textCursor();
        if (caret.position() != position) {
            caret.setPosition(position);
            w->setTextCursor(caret);
            w->ensureCursorVisible();
        }
        CopyCommon(box, w);
    });
    return true;
}

bool BindSlideBar(SlideBar& bar, QProgressBar* widget)
{
    Observe(bar, widget, [&bar](QProgressBar* w) {
        w->setValue(static_cast<int>(std::lround(bar.Value())));
        QString caption = Text(bar.Caption());
        caption.replace(QLatin1Char('%'), QStringLiteral("%%")); // the format's own escapes
        w->setFormat(caption);
        CopyCommon(bar, w);
    });
    return true;
}

bool BindLabel(Control& control, QLabel* widget, bool showCaption)
{
    Observe(control, widget, [&control, showCaption](QLabel* w) {
        if (showCaption)
            w->setText(Text(control.Caption()));
        CopyCommon(control, w);
    });
    return true;
}

bool BindWidget(Control& control, QWidget* widget)
{
    Observe(control, widget, [&control](QWidget* w) { CopyCommon(control, w); });
    return true;
}

bool BindWindow(Control& control, QMainWindow* window)
{
    Observe(control, window, [&control](QMainWindow* w) { w->setWindowTitle(Text(control.Caption())); });
    return true;
}
} // namespace

void ControlBinding::SetKeyHint(QWidget* widget, const QString& key)
{
    const QString tip = widget->toolTip();
    const QString oldKey = widget->property(kKeyHint).toString();
    const QString suffix = QStringLiteral(" (%1)").arg(oldKey);
    const QString plain
        = !oldKey.isEmpty() && tip.endsWith(suffix) ? tip.left(tip.size() - suffix.size()) : tip;
    widget->setProperty(kKeyHint, key);
    widget->setToolTip(TipWithKey(plain.toStdString(), widget));
}

bool ControlBinding::Bind(Control& control, QObject* target)
{
    if (target == nullptr)
        return false;
    if (auto* item = dynamic_cast<MenuItem*>(&control)) {
        if (auto* menu = qobject_cast<QMenu*>(target))
            return BindMenu(*item, menu);
        if (auto* action = qobject_cast<QAction*>(target))
            return BindAction(*item, action);
        return false;
    }
    if (auto* button = dynamic_cast<Button*>(&control)) {
        auto* widget = qobject_cast<QAbstractButton*>(target);
        return widget != nullptr && BindButton(*button, widget);
    }
    if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
        auto* widget = qobject_cast<QComboBox*>(target);
        return widget != nullptr && BindCombo(*combo, widget);
    }
    if (auto* box = dynamic_cast<TextBox*>(&control)) {
        auto* widget = qobject_cast<QPlainTextEdit*>(target);
        return widget != nullptr && BindTextBox(*box, widget);
    }
    if (auto* bar = dynamic_cast<SlideBar*>(&control)) {
        auto* widget = qobject_cast<QProgressBar*>(target);
        return widget != nullptr && BindSlideBar(*bar, widget);
    }
    if (auto* window = qobject_cast<QMainWindow*>(target))
        return BindWindow(control, window);
    if (auto* label = qobject_cast<QLabel*>(target))
        return BindLabel(control, label, dynamic_cast<Label*>(&control) != nullptr);
    if (auto* widget = qobject_cast<QWidget*>(target))
        return BindWidget(control, widget);
    return false;
}

} // namespace ventrix::ui
