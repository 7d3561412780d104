#pragma once

#include "fakes/FakeGraph.h"
#include "fakes/FakeGraphPrintSurface.h"
#include "fakes/FakeKnob.h"
#include "fakes/FakePrinter.h"
#include "fakes/FakeSerialPort.h"
#include "fakes/FakeShell.h"
#include "fakes/FakeSpreadsheet.h"
#include "fakes/ManualClock.h"
#include "fakes/ManualTimer.h"
#include "fakes/ScriptedDialogs.h"
#include "fakes/TempAppPaths.h"
#include "platform/MainControls.h"
#include "platform/Services.h"
#include "state/AppState.h"

namespace ventrix::fakes {

// Everything a handler needs, made of fakes: the shared state, the window's control models and
// one fake per service, with the program directory in a fresh temporary directory.
struct TestRig {
    state::AppState state;
    platform::MainControls controls;
    FakeSerialPort serial;
    ManualTimer unlinkTimer;
    ManualTimer sampleTimer;
    ManualTimer analogTimer;
    ManualTimer debugTimer;
    ManualClock clock;
    ScriptedDialogs dialogs;
    FakeGraph graph;
    FakeKnob knob;
    FakeSpreadsheet spreadsheet;
    FakePrinter printer;
    TempAppPaths paths;
    FakeShell shell;
    FakeGraphPrintSurface graphPrint;
    platform::Services services { serial, { unlinkTimer, sampleTimer, analogTimer, debugTimer }, clock,
        dialogs, graph, knob, spreadsheet, printer, paths, shell, graphPrint };
};

} // namespace ventrix::fakes
