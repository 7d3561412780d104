#pragma once

#include "platform/AppPaths.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/GraphControl.h"
#include "platform/GraphPrintSurface.h"
#include "platform/KnobControl.h"
#include "platform/Printer.h"
#include "platform/SerialPort.h"
#include "platform/Shell.h"
#include "platform/Spreadsheet.h"
#include "platform/Timer.h"

namespace ventrix::platform {

// The four timers of the main window.
struct FormTimers {
    Timer& UNLINK_TIMER;
    Timer& SAMPLE_TIMER;
    Timer& ANALOG_TIMER;
    Timer& DEBUG_TIMER;
};

// Every service the handlers talk to, handed to them by reference. The composition root fills
// it with the Qt adapters; tests fill it with fakes.
struct Services {
    SerialPort& MSComm1;
    FormTimers timers;
    Clock& clock;
    Dialogs& dialogs;
    GraphControl& GRAPH_CWGraph;
    KnobControl& KNOB_ANALOG;
    Spreadsheet& spreadsheet;
    Printer& printer;
    AppPaths& paths;
    Shell& shell;
    GraphPrintSurface& graphPrint;
};

} // namespace ventrix::platform
