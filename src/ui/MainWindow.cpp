#include "ui/MainWindow.h"

#include "io/PortNames.h"
#include "io/QtTimer.h"
#include "ui/ControlBinding.h"
#include "ui/DialKnob.h"
#include "ui/LcdPanel.h"
#include "ui/QwtGraphAdapter.h"
#include "ui/ToolIcons.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
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

namespace ventrix::ui {

namespace {
constexpr int kSpacing = 8;
constexpr int kDialSize = 176;
constexpr int kSidePanelWidth = 230;

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
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(kSpacing + 2, kSpacing, kSpacing + 2, kSpacing + 2);
    layout->setSpacing(kSpacing);
    auto* topRow = new QHBoxLayout;
    topRow->setSpacing(kSpacing);
    topRow->addWidget(BuildMeterGroup(), 0);
    topRow->addWidget(BuildLogGroup(), 1);
    layout->addLayout(topRow, 0);
    layout->addWidget(BuildGraphGroup(), 1);

    auto* debugText = new QPlainTextEdit(panel);
    debugText->setObjectName(Name("DEBUG_TEXT1"));
    debugText->setReadOnly(true);
    debugText->hide();
    layout->addWidget(debugText);
    auto* printPicture = new QLabel(panel);
    printPicture->setObjectName(Name("picPRINT"));
    printPicture->hide();

    // When the window is smaller than the panel's minimum the panel scrolls instead of squeezing.
    auto* scroll = new QScrollArea(this);
    scroll->setObjectName(Name("MAIN_SCROLL"));
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setWidget(panel);
    scroll->horizontalScrollBar()->setObjectName(Name("HScroll"));
    scroll->verticalScrollBar()->setObjectName(Name("VScroll"));
    setCentralWidget(scroll);

    BindControls();
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
    auto addGroup = [&](const char* name, auto& items) {
        QMenu* submenu = AddMenu(option, name);
        for (auto& item : items)
            AddAction(submenu, item.Name().c_str(), true);
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
    statusBar()->setObjectName(Name("STATUS_BAR"));
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
    auto* layout = new QHBoxLayout(group);
    layout->setSpacing(kSpacing);
    m_lcd = new LcdPanel(group);
    m_lcd->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    layout->addWidget(m_lcd, 1);
    m_knob = new DialKnob(group);
    m_knob->setMinimumSize(kDialSize, kDialSize);
    m_knob->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_knob->setFixedSize(kDialSize, kDialSize);
    layout->addWidget(m_knob, 0, Qt::AlignCenter);
    return group;
}

QWidget* MainWindow::BuildLogGroup()
{
    auto* group = new QGroupBox(QStringLiteral("Data Log"));
    auto* layout = new QVBoxLayout(group);
    layout->setSpacing(6);

    auto* log = new QPlainTextEdit(group);
    log->setObjectName(Name("DATA_LOG_TXT"));
    log->setReadOnly(true);
    log->setLineWrapMode(QPlainTextEdit::NoWrap);
    log->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    log->setMinimumSize(300, 120);
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
    auto* layout = new QHBoxLayout(group);
    layout->setSpacing(kSpacing + 2);

    auto* side = new QWidget(group);
    side->setFixedWidth(kSidePanelWidth);
    auto* sideLayout = new QVBoxLayout(side);
    sideLayout->setContentsMargins(0, 0, 0, 0);
    sideLayout->setSpacing(4);
    auto addCombo = [&](const QString& caption, const char* name) {
        sideLayout->addWidget(MakeCaption(caption, side));
        auto* combo = new QComboBox(side);
        combo->setObjectName(Name(name));
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        sideLayout->addWidget(combo);
    };
    addCombo(QStringLiteral("Mouse mode"), "GRAPH_MODE_COMBO");
    addCombo(QStringLiteral("Amplitude scale"), "AMPLITUDE_COMBO");
    addCombo(QStringLiteral("Time scale"), "SAMPLE_COMBO");
    sideLayout->addSpacing(kSpacing);

    // Cursor readouts: a title and its value on each row, cursor 1, cursor 2, then the spans.
    auto* cursors = new QGridLayout;
    cursors->setHorizontalSpacing(6);
    cursors->setVerticalSpacing(2);
    const std::array<std::pair<const char*, const char*>, 6> rows { { { "X1_LBL", "X1_VAL_LBL" },
        { "Y1_LBL", "Y1_VAL_LBL" }, { "X2_LBL", "X2_VAL_LBL" }, { "Y2_LBL", "Y2_VAL_LBL" },
        { "X1_X2_LBL", "X1_X2_VAL_LBL" }, { "Y1_Y2_LBL", "Y1_Y2_VAL_LBL" } } };
    int row = 0;
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
        cursors->addWidget(title, row, 0);
        cursors->addWidget(value, row, 1);
        ++row;
    }
    cursors->setColumnStretch(1, 1);
    sideLayout->addLayout(cursors);
    sideLayout->addStretch(1);
    layout->addWidget(side, 0);

    m_graph = new QwtGraphAdapter(group);
    m_graph->setMinimumSize(420, 220);
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
