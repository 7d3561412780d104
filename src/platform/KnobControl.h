#pragma once

#include <string>

namespace ventrix::platform {

// The analogue dial KNOB_ANALOG: named pointers ("Pointer-1" the needle, "Pointer-MAX",
// "Pointer-MIN", "Pointer-FILLMAX", "Pointer-FILLMIN") with values in scale units, and the
// range of its axis. Unknown pointer names read 0 and ignore writes.
class KnobControl {
public:
    virtual ~KnobControl() = default;
    virtual void SetVisible(bool visible) = 0;
    virtual bool Visible() const = 0;
    virtual double PointerValue(const std::string& pointer) const = 0;
    virtual void SetPointerValue(const std::string& pointer, double value) = 0;
    virtual double AxisMinimum() const = 0;
    virtual void SetAxisMinimum(double value) = 0;
    virtual double AxisMaximum() const = 0;
    virtual void SetAxisMaximum(double value) = 0;
};

} // namespace ventrix::platform
