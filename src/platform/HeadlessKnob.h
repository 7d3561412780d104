#pragma once

#include "platform/KnobControl.h"

namespace ventrix::platform {

// The dial of a program without a window: there is no needle to show, so it keeps nothing and
// reads back 0 (the gauge then only writes its values again).
class HeadlessKnob : public KnobControl {
public:
    void SetVisible(bool) override { }
    bool Visible() const override { return false; }
    double PointerValue(const std::string&) const override { return 0.0; }
    void SetPointerValue(const std::string&, double) override { }
    double AxisMinimum() const override { return 0.0; }
    void SetAxisMinimum(double) override { }
    double AxisMaximum() const override { return 0.0; }
    void SetAxisMaximum(double) override { }
};

} // namespace ventrix::platform
