#pragma once

#include "platform/KnobControl.h"

#include <map>
#include <string>

namespace ventrix::fakes {

// A dial that records its pointers and range and counts every write, so tests can tell that
// an unchanged value was not written again.
class FakeKnob : public platform::KnobControl {
public:
    void SetVisible(bool visible) override { visible_ = visible; }
    bool Visible() const override { return visible_; }
    double PointerValue(const std::string& pointer) const override
    {
        auto it = pointers.find(pointer);
        return it == pointers.end() ? 0.0 : it->second;
    }
    void SetPointerValue(const std::string& pointer, double value) override
    {
        pointers[pointer] = value;
        ++writes;
    }
    double AxisMinimum() const override { return minimum; }
    void SetAxisMinimum(double value) override
    {
        minimum = value;
        ++writes;
    }
    double AxisMaximum() const override { return maximum; }
    void SetAxisMaximum(double value) override
    {
        maximum = value;
        ++writes;
    }

    std::map<std::string, double> pointers;
    double minimum = 0.0;
    double maximum = 10.0;
    int writes = 0;

private:
    bool visible_ = true;
};

} // namespace ventrix::fakes
