#pragma once

#include "io/ModalGate.h"
#include "platform/MainControls.h"
#include "platform/Services.h"

#include <QMainWindow>

#include <functional>
#include <string>
#include <vector>

class QGridLayout;
class QMenu;
class QScrollArea;
class QToolBar;

namespace ventrix::io {
class QtTimer;
}

namespace ventrix::state {
struct AppState;
}

namespace ventrix::ui {

class DialKnob;
class LcdPanel;
class MeterStatus;
class QwtGraphAdapter;

// The main window MAIN_FRM: menu bar, tool bar, status bar, and a scrollable panel with the
// meter (LCD and dial), the data log with its memory bar, and the graph with its lists and
// cursor readouts. The meter keeps its proportions: its height follows the window's size, the
// data log takes the rest of the row (or, in a wide window, a full-height column at the right)
// and the graph the rest of the height; when the window is smaller than the panel's minimum,
// HScroll and VScroll appear. It owns the graph, the dial and
// the four form timers, binds every control model to the widget, menu or action carrying the
// model's name, and gives every command a key. It holds no logic: user actions go to the
// models, and closing the window asks the close handler (the form's unload) whether it may close.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    MainWindow(platform::MainControls& controls, io::ModalGate& gate, QWidget* parent = nullptr);
    ~MainWindow() override;

    QwtGraphAdapter& Graph() { return *m_graph; }
    DialKnob& Knob() { return *m_knob; }
    LcdPanel& Lcd() { return *m_lcd; }
    platform::FormTimers Timers();

    // Starts the status bar and the dimming of a stale reading, read from the shared state.
    void WatchState(const state::AppState& state);
    // A frame was accepted: the reading on the LCD and the dial is live.
    void FrameArrived();
    // The watcher started by WatchState, or null before.
    MeterStatus* Status() { return m_status; }

    // Called with a cancel flag of 0 when the user closes the window; a flag left non-zero keeps
    // the window open.
    void SetCloseHandler(std::function<void(int&)> handler) { m_closeHandler = std::move(handler); }
    // Closes the window without asking again (the program is ending).
    void CloseWithoutAsking();

    // Names of models that found no matching widget (empty when the window is complete).
    const std::vector<std::string>& UnboundControls() const { return m_unbound; }

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildMenus();
    void BuildToolBar();
    void AssignKeys();
    QWidget* BuildMeterGroup();
    QWidget* BuildLogGroup();
    QWidget* BuildGraphGroup();
    void BindControls();
    // Sizes the LCD and the dial, and picks the arrangement, for the room the window gives.
    void FitMeter();
    void Arrange(bool wide);

    QMenu* AddMenu(QWidget* parent, const char* name);
    QAction* AddAction(QMenu* menu, const char* name, bool checkable = false);

    platform::MainControls& m_controls;
    QwtGraphAdapter* m_graph = nullptr;
    DialKnob* m_knob = nullptr;
    LcdPanel* m_lcd = nullptr;
    QWidget* m_meterGroup = nullptr;
    QWidget* m_logGroup = nullptr;
    QWidget* m_graphGroup = nullptr;
    QScrollArea* m_scroll = nullptr;
    QGridLayout* m_grid = nullptr;
    bool m_wide = false;
    MeterStatus* m_status = nullptr;
    io::QtTimer* m_unlinkTimer;
    io::QtTimer* m_sampleTimer;
    io::QtTimer* m_analogTimer;
    io::QtTimer* m_debugTimer;
    std::function<void(int&)> m_closeHandler;
    bool m_closeAllowed = false;
    std::vector<std::string> m_unbound;
};

} // namespace ventrix::ui
