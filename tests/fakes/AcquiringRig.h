#pragma once

#include "app/MainForm.h"
#include "fakes/TestRig.h"

namespace ventrix::fakes {

// The form on fakes, started up and acquiring a steady 1.234 V reading (DC volts, three decimals),
// as after Play and the meter's first frame.
struct AcquiringRig {
    AcquiringRig()
    {
        form.Form_Load();
        form.Link().StartAcquisition();
        state::AppState& s = rig.state;
        s.AwaitingAbsoluteReading = false;
        s.FunctionKind = 0;
        s.UnitLabel = "V";
        s.BaseUnit = "V";
        s.CountValue = 1234;
        s.DecimalDivisor = 1000;
    }
    TestRig rig;
    app::MainForm form { rig.state, rig.controls, rig.services };
};

} // namespace ventrix::fakes
