#pragma once

#include "platform/GraphPrintSurface.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ventrix::fakes {

// The graph's print-time colours and label formats as plain values, starting from the screen's,
// and a copy of them at every capture into the picture box.
class FakeGraphPrintSurface : public platform::GraphPrintSurface {
public:
    struct Look {
        std::uint32_t back = 0, xAxis = 0x00FFFF, yAxis = 0x00FFFF, line = 0x00FF00, fillColour = 0xFF0000;
        bool fill = false;
        std::string xFormat, yFormat = "#.###k";
    };
    using Axis = platform::GraphAxis;

    void SetBackColours(std::uint32_t colour) override { look.back = colour; }
    void SetAxisColours(Axis axis, std::uint32_t colour) override
    {
        (axis == Axis::XAxis ? look.xAxis : look.yAxis) = colour;
    }
    void SetPlotFillToBase(bool on) override { look.fill = on; }
    void SetPlotLineColour(std::uint32_t colour) override { look.line = colour; }
    void SetPlotFillColour(std::uint32_t colour) override { look.fillColour = colour; }
    void SetLabelFormat(Axis axis, const std::string& format) override
    {
        (axis == Axis::XAxis ? look.xFormat : look.yFormat) = format;
    }
    void CaptureToPicture() override { captures.push_back(look); }

    Look look;
    std::vector<Look> captures;
};

} // namespace ventrix::fakes
