#pragma once

#include "platform/GraphPrintSurface.h"

namespace ventrix::platform {

// The print side of a graph that is never drawn: nothing is captured, nothing is kept (there is
// no printer behind it either).
class HeadlessPrintSurface : public GraphPrintSurface {
public:
    void SetBackColours(std::uint32_t) override { }
    void SetAxisColours(GraphAxis, std::uint32_t) override { }
    void SetPlotFillToBase(bool) override { }
    void SetPlotLineColour(std::uint32_t) override { }
    void SetPlotFillColour(std::uint32_t) override { }
    void SetLabelFormat(GraphAxis, const std::string&) override { }
    void CaptureToPicture() override { }
};

} // namespace ventrix::platform
