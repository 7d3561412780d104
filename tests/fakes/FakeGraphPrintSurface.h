#pragma once

#include "platform/GraphPrintSurface.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ventrix::fakes {

// The graph's print-time colours and label formats as plain values, starting from the screen's,
// and a copy of them for every capture into the picture box.
class FakeGraphPrintSurface : public platform::GraphPrintSurface {
public:
    struct Look {
        std::uint32_t back = 0x000000;
        std::uint32_t xAxis = 0x00FFFF;
        std::uint32_t yAxis = 0x00FFFF;
        std::uint32_t line = 0x00FF00;
        std::uint32_t fillColour = 0xFF0000;
        bool fill = false;
        std::string xFormat;
        std::string yFormat = "#.###k";
    };

    void SetBackColours(std::uint32_t colour) override { look.back = colour; }
    void SetAxisColours(platform::GraphAxis axis, std::uint32_t colour) override
    {
        (axis == platform::GraphAxis::XAxis ? look.xAxis : look.yAxis) = colour;
    }
    void SetPlotFillToBase(bool on) override { look.fill = on; }
    void SetPlotLineColour(std::uint32_t colour) override { look.line = colour; }
    void SetPlotFillColour(std::uint32_t colour) override { look.fillColour = colour; }
    void SetLabelFormat(platform::GraphAxis axis, const std::string& format) override
    {
        (axis == platform::GraphAxis::XAxis ? look.xFormat : look.yFormat) = format;
    }
    void CaptureToPicture() override { captures.push_back(look); }

    Look look;
    std::vector<Look> captures;
};

} // namespace ventrix::fakes
