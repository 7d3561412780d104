#include "ui/DialKnob.h"

namespace ventrix::ui {

// Placeholder until the dial lands: a plain dial that follows "Pointer-1".
DialKnob::DialKnob(QWidget* parent)
    : QwtDial(parent)
{
    setObjectName("KNOB_ANALOG");
    setReadOnly(true);
}

void DialKnob::SetVisible(bool visible) { setVisible(visible); }
bool DialKnob::Visible() const { return !isHidden(); }

double DialKnob::PointerValue(const std::string& pointer) const
{
    auto it = m_pointers.find(pointer);
    return it == m_pointers.end() ? 0.0 : it->second;
}

void DialKnob::SetPointerValue(const std::string& pointer, double value)
{
    m_pointers[pointer] = value;
    if (pointer == "Pointer-1")
        setValue(value);
}

double DialKnob::AxisMinimum() const { return lowerBound(); }
void DialKnob::SetAxisMinimum(double value) { setLowerBound(value); }
double DialKnob::AxisMaximum() const { return upperBound(); }
void DialKnob::SetAxisMaximum(double value) { setUpperBound(value); }

} // namespace ventrix::ui
