#pragma once

#include "platform/CommonDialog.h"
#include "platform/MainControls.h"
#include "platform/Services.h"

namespace ventrix::files {

// "Print Graph": the printer dialog DIALOG_PRINT (a cancel prints nothing), then the graph as it
// stands on the screen recoloured black on white, with blank time-axis labels, captured into the
// hidden picture box picPRINT, the screen colours put back, and the picture printed under a line
// with the date, a tab and the time. The screen colours put back are fixed ones: yellow axes, a
// green line on black, the fill to base on again only when the FILL menu item is checked and its
// colour blue either way. Any printer failure ends silently; the page is then not sent.
class GraphPrint {
public:
    GraphPrint(platform::MainControls& controls, platform::Services& services);

    void PrintGraph();
    void RenderGraphForPrint();

    platform::CommonDialog DIALOG_PRINT;

private:
    bool Print(int orientation);

    platform::MainControls& m_controls;
    platform::Services& m_services;
};

} // namespace ventrix::files
