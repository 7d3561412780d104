#pragma once

#include "platform/GraphControl.h"

#include <cstdint>
#include <string>

namespace ventrix::platform {

// What printing asks of the graph GRAPH_CWGraph beyond its plotting: the colours (0x00BBGGRR) and
// label formats that differ between screen and paper, and capturing the graph as it is drawn
// into the hidden picture box picPRINT, whose picture the printer then paints. A label format
// of blanks only leaves that axis's labels blank; trailing blanks after a format move the
// labels away from the axis by that many blanks. Changing these never touches the samples.
class GraphPrintSurface {
public:
    virtual ~GraphPrintSurface() = default;
    // The graph's two background colours: the plot area and the frame around it.
    virtual void SetBackColours(std::uint32_t colour) = 0;
    // An axis's colour, the colours of its major and minor ticks and of its labels.
    virtual void SetAxisColours(GraphAxis axis, std::uint32_t colour) = 0;
    virtual void SetPlotFillToBase(bool on) = 0;
    virtual void SetPlotLineColour(std::uint32_t colour) = 0;
    // The colour the fill to base uses whenever it is on; set while it is off, it waits.
    virtual void SetPlotFillColour(std::uint32_t colour) = 0;
    virtual void SetLabelFormat(GraphAxis axis, const std::string& format) = 0;
    virtual void CaptureToPicture() = 0;
};

} // namespace ventrix::platform
