#pragma once

#include "platform/KnobControl.h"

#include <qwt_dial.h>

#include <map>
#include <string>

namespace ventrix::ui {

// The analogue dial KNOB_ANALOG on a QwtDial: the needle "Pointer-1", the scale-end marks and
// the axis range, as the gauge handlers set them.
class DialKnob : public QwtDial, public platform::KnobControl {
    Q_OBJECT
public:
    explicit DialKnob(QWidget* parent = nullptr);

    void SetVisible(bool visible) override;
    bool Visible() const override;
    double PointerValue(const std::string& pointer) const override;
    void SetPointerValue(const std::string& pointer, double value) override;
    double AxisMinimum() const override;
    void SetAxisMinimum(double value) override;
    double AxisMaximum() const override;
    void SetAxisMaximum(double value) override;

private:
    std::map<std::string, double> m_pointers;
};

} // namespace ventrix::ui
