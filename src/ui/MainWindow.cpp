#include "ui/MainWindow.h"

#include "io/PortNames.h"
#include "io/QtTimer.h"
#include "ui/ControlBinding.h"
#include "ui/DialKnob.h"
#include "ui/LcdPanel.h"
#include "ui/MeterStatus.h"
#include "ui/QwtGraphAdapter.h"
#include "ui/ToolIcons.h"

#include <QAbstractButton>
#include <QActionGroup>
#include <QCloseEvent>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace ventrix::ui {

namespace {
constexpr int kSpacing = 8;
constexpr int kSidePanelWidth = 250;
// The meter's height (LCD and dial) stays within these bounds; inside them it follows the
// window: at most this share of the width for the whole meter, and of the height for its row.
constexpr int kMinMeterHeight = 96;
constexpr int kMaxMeterHeight = 210;
constexpr double kMeterWidthShare = 0.6;
constexpr double kMeterHeightShare = 0.34;
// From this width on the data log is a full-height column at the right, of this share of the
// width within its bounds.
constexpr int kWideLayoutWidth = 1180;
constexpr double kLogColumnShare = 0.28;
constexpr int kMaxLogColumnWidth = 460;

// Keys of the menu commands; the tool-bar buttons that do the same tell them in their tips.
struct CommandKey {
    const char* action;
    const char* key;
    const char* button; // the tool-bar or panel button with the same role, or null
};
const CommandKey kCommandKeys[] = {
    { "MENU_OPEN_GRAPH", "Ctrl+O", nullptr },
    { "MENU_SAVE_GRAPH", "Ctrl+G", nullptr },
    { "MENU_SAVE_GRAPG_AS", "Ctrl+Shift+G", nullptr },
    { "Save", "Ctrl+S", "CMD_SAVE" },
    { "Save_As", "Ctrl+Shift+S", nullptr },
    { "Excel", "Ctrl+E", "CMD_EXCEL" },
    { "MENU_PRINT_GRAPH", "Ctrl+P", "CMD_PRINT" },
    { "Exit", "Ctrl+Q", "CMD_EXIT" },
    { "MENU_START", "F5", "CMD_PLAY" },
    { "MENU_STOP", "Shift+F5", "CMD_STOP" },
    { "AUTO_ZOOM", "Ctrl+0", "CMD_ZOOM" },
    { "HELP_CONTENT", "F1", nullptr },
};
// Panel buttons without a menu entry get keys of their own.
const CommandKey kButtonKeys[] = {
    { nullptr, "Ctrl+PgUp", "CMD_PAGEUP" },
    { nullptr, "Ctrl+PgDown", "CMD_PAGEDOWN" },
};

QString Name(const char* name)
{
    return QString::fromLatin1(name);
}

QPushButton* MakePushButton(const char* name, QStyle::StandardPixmap icon, QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(Name(name));
    button->setIcon(parent->style()->standardIcon(icon));
    return button;
}

QLabel* MakeCaption(const QString& text, QWidget* parent)
{
    auto* caption = new QLabel(text, parent);
    caption->setObjectName(QString());
    caption->setProperty("role", QStringLiteral("caption"));
    return caption;
}
} // namespace

MainWindow::MainWindow(platform::MainControls& controls, io::ModalGate& gate, QWidget* parent)
    : QMainWindow(parent)
    , m_controls(controls)
    , m_unlinkTimer(new io::QtTimer(gate, Name("UNLINK_TIMER"), this))
    , m_sampleTimer(new io::QtTimer(gate, Name("SAMPLE_TIMER"), this))
    , m_analogTimer(new io::QtTimer(gate, Name("ANALOG_TIMER"), this))
    , m_debugTimer(new io::QtTimer(gate, Name("DEBUG_TIMER"), this))
{
    setObjectName(Name("MAIN_FRM"));
    BuildMenus();
    BuildToolBar();

    auto* panel = new QWidget;
    panel->setObjectName(Name("MAIN_PANEL"));
    m_grid = new QGridLayout(panel);
    m_grid->setContentsMargins(kSpacing, kSpacing, kSpacing, kSpacing);
    m_grid->setSpacing(kSpacing);
    m_meterGroup = BuildMeterGroup();
    m_logGroup = BuildLogGroup();
    m_graphGroup = BuildGraphGroup();
    Arrange(false);

    auto* debugText = new QPlainTextEdit(panel);
    debugText->setObjectName(Name("DEBUG_TEXT1"));
    debugText->setReadOnly(true);
    debugText->hide();
    m_grid->addWidget(debugText, 2, 0, 1, 2);
    auto* printPicture = new QLabel(panel);
    printPicture->setObjectName(Name("picPRINT"));
    printPicture->hide();

    // When the window is smaller than the panel's minimum the panel scrolls instead of squeezing.
    m_scroll = new QScrollArea(this);
    m_scroll->setObjectName(Name("MAIN_SCROLL"));
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setWidgetResizable(true);
    m_scroll->setWidget(panel);
    m_scroll->horizontalScrollBar()->setObjectName(Name("HScroll"));
    m_scroll->verticalScrollBar()->setObjectName(Name("VScroll"));
    m_scroll->installEventFilter(this);
    panel->installEventFilter(this);
    setCentralWidget(m_scroll);

    statusBar()->setObjectName(Name("STATUS_BAR"));
    BindControls();
    AssignKeys();
    // The designed size, or the whole screen when it is smaller.
    QSize size(1280, 800);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        size = size.boundedTo(screen->availableGeometry().size());
    resize(size);
}

MainWindow::~MainWindow()
{
    m_controls.ForEach([](platform::Control& control) { ControlBinding::Unbind(control); });
}

platform::FormTimers MainWindow::Timers()
{
    return { *m_unlinkTimer, *m_sampleTimer, *m_analogTimer, *m_debugTimer };
}

QMenu* MainWindow::AddMenu(QWidget* parent, const char* name)
{
    auto* menu = new QMenu(parent);
    menu->setObjectName(Name(name));
    if (auto* bar = qobject_cast<QMenuBar*>(parent))
        bar->addMenu(menu);
    else if (auto* owner = qobject_cast<QMenu*>(parent))
        owner->addMenu(menu);
    return menu;
}

QAction* MainWindow::AddAction(QMenu* menu, const char* name, bool checkable)
{
    QAction* action = menu->addAction(QString());
    action->setObjectName(Name(name));
    action->setCheckable(checkable);
    return action;
}

void MainWindow::BuildMenus()
{
    QMenuBar* bar = menuBar();

    QMenu* file = AddMenu(bar, "FILE_MENU");
    AddAction(file, "MENU_OPEN_GRAPH");
    AddAction(file, "MENU_SAVE_GRAPH");
    AddAction(file, "MENU_SAVE_GRAPG_AS");
    file->addSeparator();
    AddAction(file, "Save");
    AddAction(file, "Save_As");
    AddAction(file, "Excel");
    file->addSeparator();
    AddAction(file, "MENU_PRINT_GRAPH");
    file->addSeparator();
    AddAction(file, "Exit");

    QMenu* acquire = AddMenu(bar, "ACQUIRE_MENU");
    AddAction(acquire, "MENU_START");
    AddAction(acquire, "MENU_STOP");
    acquire->addSeparator();
    AddAction(acquire, "CLEAR_LOG");
    AddAction(acquire, "AUTO_ZOOM");

    QMenu* option = AddMenu(bar, "option");
    // One choice out of several: the entries show round marks. The models decide which one is
    // checked; the group only draws them as alternatives.
    auto addGroup = [&](const char* name, auto& items) {
        QMenu* submenu = AddMenu(option, name);
        auto* group = new QActionGroup(submenu);
        group->setExclusionPolicy(QActionGroup::ExclusionPolicy::Exclusive);
        for (auto& item : items)
            group->addAction(AddAction(submenu, item.Name().c_str(), true));
    };
    auto addSeparator = [&](std::size_t index) {
        QAction* separator = option->addSeparator();
        separator->setObjectName(QString::fromStdString(m_controls.OPTION_SEPARATORS[index].Name()));
    };
    addGroup("COM", m_controls.COM_ITEMS);
    // Each COM item tells in the status bar which device it stands for; devices come and go, so
    // the tips are renewed every time the submenu opens.
    QMenu* comMenu = option->findChild<QMenu*>(Name("COM"));
    auto describePorts = [this] {
        const QStringList descriptions = io::DescribeComPorts();
        for (std::size_t i = 0; i < m_controls.COM_ITEMS.size(); ++i)
            if (auto* item = findChild<QAction*>(QString::fromStdString(m_controls.COM_ITEMS[i].Name())))
                item->setStatusTip(descriptions.value(static_cast<int>(i)));
    };
    describePorts();
    connect(comMenu, &QMenu::aboutToShow, this, describePorts);
    addGroup("RATE", m_controls.SEC_ITEMS);
    addSeparator(0);
    addGroup("WIDTH", m_controls.WIDTH_ITEMS);
    addSeparator(1);
    addGroup("STYLE", m_controls.STYLE_ITEMS);
    addSeparator(2);
    addGroup("POINT", m_controls.POINT_ITEMS);
    addSeparator(3);
    AddAction(option, "FILL", true);
    AddAction(option, "Grid", true);

    QMenu* help = AddMenu(bar, "HELP_MENU");
    AddAction(help, "HELP_CONTENT");
    AddAction(help, "HELP_INDEX");
    help->addSeparator();
    AddAction(help, "HELP_ABOUT");
}

void MainWindow::BuildToolBar()
{
    QToolBar* bar = addToolBar(QStringLiteral("Commands"));
    bar->setObjectName(Name("MAIN_TOOLBAR"));
    bar->setMovable(false);
    bar->setFloatable(false);
    bar->setIconSize(QSize(24, 24));
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    auto add = [&](const char* name, const QIcon& icon) {
        auto* button = new QToolButton(bar);
        button->setObjectName(Name(name));
        button->setIcon(icon);
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setAutoRaise(true);
        button->setMinimumWidth(64);
        bar->addWidget(button);
    };
    add("CMD_PLAY", ToolIcons::Play());
    add("CMD_STOP", ToolIcons::Stop());
    bar->addSeparator();
    add("CMD_SAVE", style()->standardIcon(QStyle::SP_DialogSaveButton));
    add("CMD_EXCEL", style()->standardIcon(QStyle::SP_FileDialogDetailedView));
    add("CMD_PRINT", style()->standardIcon(QStyle::SP_FileDialogContentsView));
    bar->addSeparator();
    add("CMD_ZOOM", ToolIcons::ZoomAll());
    auto* spacer = new QWidget(bar);
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(spacer);
    add("CMD_EXIT", ToolIcons::Exit());
}

QWidget* MainWindow::BuildMeterGroup()
{
    auto* group = new QGroupBox(QStringLiteral("Meter"));
    group->setObjectName(Name("METER_GROUP"));
    auto* layout = new QHBoxLayout(group);
    layout->setContentsMargins(kSpacing, kSpacing, kSpacing, kSpacing);
    layout->setSpacing(kSpacing);
    layout->addStretch(1); // a group wider than the meter keeps it in the middle
    // Both keep the size FitMeter gives them; the dial keeps its place while hidden, so nothing
    // moves when a reading has no needle.
    m_lcd = new LcdPanel(group);
    layout->addWidget(m_lcd, 0, Qt::AlignVCenter);
    m_knob = new DialKnob(group);
    layout->addWidget(m_knob, 0, Qt::AlignVCenter);
    layout->addStretch(1);
    m_lcd->setFixedSize(static_cast<int>(std::lround(kMinMeterHeight * LcdPanel::kAspect)), kMinMeterHeight);
    m_knob->setFixedSize(kMinMeterHeight, kMinMeterHeight);
    return group;
}

QWidget* MainWindow::BuildLogGroup()
{
    auto* group = new QGroupBox(QStringLiteral("Data Log"));
    group->setObjectName(Name("LOG_GROUP"));
    auto* layout = new QVBoxLayout(group);
    layout->setContentsMargins(kSpacing, kSpacing, kSpacing, kSpacing);
    layout->setSpacing(6);

    auto* log = new QPlainTextEdit(group);
    log->setObjectName(Name("DATA_LOG_TXT"));
    log->setReadOnly(true);
    log->setLineWrapMode(QPlainTextEdit::NoWrap);
    log->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    log->setMinimumSize(240, 36);
    layout->addWidget(log, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(MakePushButton("CMD_PAGEUP", QStyle::SP_ArrowUp, group));
    buttons->addWidget(MakePushButton("CMD_PAGEDOWN", QStyle::SP_ArrowDown, group));
    buttons->addStretch(1);
    buttons->addWidget(MakePushButton("CMD_RESET", QStyle::SP_DialogResetButton, group));
    layout->addLayout(buttons);

    auto* memoryRow = new QHBoxLayout;
    memoryRow->addWidget(MakeCaption(QStringLiteral("Memory"), group));
    auto* memory = new QProgressBar(group);
    memory->setObjectName(Name("MEMORY_BAR"));
    memory->setRange(0, 100);
    memory->setTextVisible(true);
    memory->setAlignment(Qt::AlignCenter);
    memoryRow->addWidget(memory, 1);
    layout->addLayout(memoryRow);
    return group;
}

QWidget* MainWindow::BuildGraphGroup()
{
    auto* group = new QGroupBox(QStringLiteral("Graph"));
    group->setObjectName(Name("GRAPH_GROUP"));
    auto* layout = new QHBoxLayout(group);
    layout->setContentsMargins(kSpacing, kSpacing, kSpacing, kSpacing);
    layout->setSpacing(kSpacing + 2);

    // Beside the graph, one column of captions and one of controls: the three lists, then the
    // cursor readouts, a title and its value on each row (cursor 1, cursor 2, then the spans).
    auto* side = new QWidget(group);
    side->setObjectName(Name("GRAPH_SIDE"));
    side->setFixedWidth(kSidePanelWidth);
    auto* grid = new QGridLayout(side);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(4);
    int row = 0;
    auto addCombo = [&](const QString& caption, const char* name) {
        auto* label = MakeCaption(caption, side);
        auto* combo = new QComboBox(side);
        combo->setObjectName(Name(name));
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(8);
        label->setBuddy(combo); // Alt and the caption's letter go to the list
        grid->addWidget(label, row, 0);
        grid->addWidget(combo, row, 1);
        ++row;
    };
    addCombo(QStringLiteral("&Mode"), "GRAPH_MODE_COMBO");
    addCombo(QStringLiteral("Am&plitude"), "AMPLITUDE_COMBO");
    addCombo(QStringLiteral("&Time"), "SAMPLE_COMBO");
    grid->setRowMinimumHeight(row++, kSpacing);

    const std::array<std::pair<const char*, const char*>, 6> rows { { { "X1_LBL", "X1_VAL_LBL" },
        { "Y1_LBL", "Y1_VAL_LBL" }, { "X2_LBL", "X2_VAL_LBL" }, { "Y2_LBL", "Y2_VAL_LBL" },
        { "X1_X2_LBL", "X1_X2_VAL_LBL" }, { "Y1_Y2_LBL", "Y1_Y2_VAL_LBL" } } };
    for (const auto& [titleName, valueName] : rows) {
        auto* title = new QLabel(side);
        title->setObjectName(Name(titleName));
        title->setProperty("role", QStringLiteral("cursorTitle"));
        auto* value = new QLabel(side);
        value->setObjectName(Name(valueName));
        value->setProperty("role", QStringLiteral("readout"));
        value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        value->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        grid->addWidget(title, row, 0);
        grid->addWidget(value, row, 1);
        ++row;
    }
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(row, 1);
    layout->addWidget(side, 0);

    m_graph = new QwtGraphAdapter(group);
    m_graph->setMinimumSize(360, 200);
    layout->addWidget(m_graph, 1);
    return group;
}

void MainWindow::BindControls()
{
    m_controls.ForEach([this](platform::Control& control) {
        const QString name = QString::fromStdString(control.Name());
        QObject* target = name == objectName() ? static_cast<QObject*>(this) : findChild<QObject*>(name);
        if (!ControlBinding::Bind(control, target))
            m_unbound.push_back(control.Name());
    });
}

void MainWindow::AssignKeys()
{
    for (const CommandKey& command : kCommandKeys) {
        auto* action = findChild<QAction*>(Name(command.action));
        if (action == nullptr)
            continue;
        action->setShortcut(QKeySequence(Name(command.key)));
        if (command.button != nullptr)
            if (auto* button = findChild<QWidget*>(Name(command.button)))
                ControlBinding::SetKeyHint(button, action->shortcut().toString(QKeySequence::NativeText));
    }
    for (const CommandKey& command : kButtonKeys) {
        auto* button = findChild<QAbstractButton*>(Name(command.button));
        if (button == nullptr)
            continue;
        button->setShortcut(QKeySequence(Name(command.key)));
        ControlBinding::SetKeyHint(button, button->shortcut().toString(QKeySequence::NativeText));
    }
}

void MainWindow::WatchState(const state::AppState& state)
{
    delete m_status;
    m_status = new MeterStatus(state, *m_lcd, *m_knob, *statusBar(), this);
}

void MainWindow::FrameArrived()
{
    if (m_status != nullptr)
        m_status->FrameArrived();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    // The room changes with the window; the minimum sizes around the meter change when the
    // style is applied or a list gets its items.
    if ((watched == m_scroll && event->type() == QEvent::Resize)
        || (watched == m_scroll->widget() && event->type() == QEvent::LayoutRequest))
        FitMeter();
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::Arrange(bool wide)
{
    // Narrow: the meter and the data log side by side above the graph. Wide: the data log is a
    // column of its own at the right, as tall as the window, so that it shows many lines.
    m_wide = wide;
    for (QWidget* group : { m_meterGroup, m_logGroup, m_graphGroup })
        m_grid->removeWidget(group);
    m_grid->addWidget(m_meterGroup, 0, 0);
    m_grid->addWidget(m_graphGroup, 1, 0, 1, wide ? 1 : 2);
    m_grid->addWidget(m_logGroup, 0, 1, wide ? 2 : 1, 1);
    m_grid->setColumnStretch(0, wide ? 1 : 0);
    m_grid->setColumnStretch(1, wide ? 0 : 1);
    m_grid->setRowStretch(0, 0);
    m_grid->setRowStretch(1, 1);
    m_logGroup->setMinimumSize(0, 0);
    m_logGroup->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

void MainWindow::FitMeter()
{
    // What the meter group and the panel add around the LCD and the dial, measured rather than
    // assumed, so that style changes do not upset the arithmetic.
    const QSize meterContent(m_lcd->width() + kSpacing + m_knob->width(), m_lcd->height());
    const QSize meterChrome = m_meterGroup->minimumSizeHint() - meterContent;
    const QMargins margins = m_scroll->widget()->layout()->contentsMargins();
    const QSize logMinimum = m_logGroup->minimumSizeHint();

    // Wide windows give the data log a column of its own; then the meter shares the width with
    // the graph only.
    const QSize room = m_scroll->size();
    const bool wide = room.width() >= kWideLayoutWidth;
    if (wide != m_wide)
        Arrange(wide);
    const int logWidth = wide
        ? std::clamp(static_cast<int>(room.width() * kLogColumnShare), logMinimum.width(), kMaxLogColumnWidth)
        : logMinimum.width();

    // The meter takes its share of the width, leaving the data log its width, and its share of
    // the height, leaving the graph its minimum.
    const int freeWidth = room.width() - margins.left() - margins.right() - kSpacing - logWidth;
    const double meterWidth
        = wide ? freeWidth : std::min(room.width() * kMeterWidthShare, static_cast<double>(freeWidth));
    const double byWidth = (meterWidth - meterChrome.width() - kSpacing) / (LcdPanel::kAspect + 1.0);
    const double rowHeight = std::min(room.height() * kMeterHeightShare,
        static_cast<double>(room.height() - margins.top() - margins.bottom() - kSpacing
            - m_graphGroup->minimumSizeHint().height()));
    const double byHeight = rowHeight - meterChrome.height();
    const int height
        = std::clamp(static_cast<int>(std::min(byWidth, byHeight)), kMinMeterHeight, kMaxMeterHeight);
    const QSize lcd(static_cast<int>(std::lround(height * LcdPanel::kAspect)), height);
    // The row is as tall as the meter; a data log beside it fits itself in, and the graph takes
    // everything below.
    const int row = std::max(height + meterChrome.height(), wide ? 0 : logMinimum.height());
    if (m_lcd->size() == lcd && m_meterGroup->maximumHeight() == row
        && (wide ? m_logGroup->maximumWidth() == logWidth : m_logGroup->maximumHeight() == row))
        return;
    m_lcd->setFixedSize(lcd);
    m_knob->setFixedSize(height, height);
    m_meterGroup->setFixedHeight(row);
    if (wide)
        m_logGroup->setFixedWidth(logWidth);
    else
        m_logGroup->setFixedHeight(row);
}

void MainWindow::CloseWithoutAsking()
{
    m_closeAllowed = true;
    close();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_closeAllowed || !m_closeHandler) {
        event->accept();
        return;
    }
    int cancel = 0;
    m_closeHandler(cancel);
    if (m_closeAllowed || cancel == 0)
        event->accept();
    else
        event->ignore();
}

} // namespace ventrix::ui
