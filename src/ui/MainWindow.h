#pragma once

#include "io/ModalGate.h"
#include "platform/MainControls.h"
#include "platform/Services.h"

#include <QMainWindow>

#include <functional>
#include <string>
#include <vector>

class QMenu;
class QToolBar;

namespace ventrix::io {
class QtTimer;
}

namespace ventrix::ui {

class DialKnob;
class LcdPanel;
class QwtGraphAdapter;

// The main window MAIN_FRM: menu bar, tool bar, and a scrollable panel with the meter (LCD and
// dial), the data log with its memory bar, and the graph with its lists and cursor readouts. It
// owns the graph, the dial and the four form timers, and binds every control model to the widget,
// menu or action carrying the model's name. It holds no logic: user actions go to the models,
// and closing the window asks the close handler (the form's unload) whether it may close.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    MainWindow(platform::MainControls& controls, io::ModalGate& gate, QWidget* parent = nullptr);
    ~MainWindow() override;

    QwtGraphAdapter& Graph() { return *m_graph; }
    DialKnob& Knob() { return *m_knob; }
    platform::FormTimers Timers();

    // Called with a cancel flag of 0 when the user closes the window; a flag left non-zero keeps
    // the window open.
    void SetCloseHandler(std::function<void(int&)> handler) { m_closeHandler = std::move(handler); }
    // Closes the window without asking again (the program is ending).
    void CloseWithoutAsking();

    // Names of models that found no matching widget (empty when the window is complete).
    const std::vector<std::string>& UnboundControls() const { return m_unbound; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildMenus();
    void BuildToolBar();
    QWidget* BuildMeterGroup();
    QWidget* BuildLogGroup();
    QWidget* BuildGraphGroup();
    void BindControls();

    QMenu* AddMenu(QWidget* parent, const char* name);
    QAction* AddAction(QMenu* menu, const char* name, bool checkable = false);

    platform::MainControls& m_controls;
    QwtGraphAdapter* m_graph = nullptr;
    DialKnob* m_knob = nullptr;
    LcdPanel* m_lcd = nullptr;
    io::QtTimer* m_unlinkTimer;
    io::QtTimer* m_sampleTimer;
    io::QtTimer* m_analogTimer;
    io::QtTimer* m_debugTimer;
    std::function<void(int&)> m_closeHandler;
    bool m_closeAllowed = false;
    std::vector<std::string> m_unbound;
};

} // namespace ventrix::ui
