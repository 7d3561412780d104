#include "link/CaptureReplay.h"

#include "display/AnalogGauge.h"
#include "display/VirtualLcd.h"
#include "link/FrameDecoder.h"
#include "link/ReplayServices.h"
#include "link/SerialLink.h"

namespace ventrix::link {

void CaptureReplay::Run(const std::string& bytes, const std::function<void(const Frame&)>& onFrame)
{
    state::AppState state;
    state.SpecialWordTable = kSpecialWordTable;
    platform::MainControls controls;
    controls.NEG_LBL.SetVisible(false); // as start-up leaves the LCD before the first frame

    ReplayServices services;
    platform::Services& s = services.Services();
    display::VirtualLcd lcd(state, controls);
    display::AnalogGauge gauge(state, s.KNOB_ANALOG, s.timers.ANALOG_TIMER);
    // A relative frame while an absolute reading is awaited is only noted: the replay goes on as
    // one acquisition, and the guard stays until a frame without relative mode arrives.
    bool refused = false;
    SerialLink link(state, controls, s, lcd, gauge, [&refused] { refused = true; });

    ReplayPort& port = services.Port();
    port.SetOnComm([&link] { link.OnComm(); });
    port.Load(bytes);
    link.StartAcquisition();

    for (;;) {
        refused = false;
        if (!port.DeliverNext())
            break;
        if (link.AcceptedOffset() < 0 || !onFrame)
            continue;
        const bool logged = !state.AwaitingAbsoluteReading && state.FunctionKind < 15;
        onFrame(Frame { port.EventStart() + static_cast<std::size_t>(link.AcceptedOffset()), refused, logged,
            state, controls });
    }
}

} // namespace ventrix::link
