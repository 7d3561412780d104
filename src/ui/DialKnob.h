#pragma once

#include "platform/KnobControl.h"

#include <qwt_dial.h>

#include <map>
#include <string>

class QVariantAnimation;

namespace ventrix::ui {

// The analogue dial KNOB_ANALOG on a QwtDial: the red needle "Pointer-1", the normal scale
// between "Pointer-MIN" and "Pointer-MAX" drawn as a light arc with the overload zones beyond
// it in red, and the axis range. "Pointer-FILLMAX" and "Pointer-FILLMIN" are only stored. Each
// value reads back exactly as written; between writes the needle glides to its new place. Until
// a scale is first written (the first reading) the face is blank: no numbers, no needle. While
// the window calls the reading stale the scale and needle are drawn faded. It never moves
// anything by itself and takes no input.
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

    // The needle's drawn place (it trails the written value while gliding).
    double NeedleShown() const { return value(); }
    // Makes the needle jump to its written place at once (for pictures and tests).
    void FinishGlide();

    // True once a scale has been written: until then the face shows no scale and no needle.
    bool ScaleShown() const { return m_scaleShown; }
    // Draws the scale and the needle faded (no live reading) or at full strength.
    void SetStale(bool stale);
    bool Stale() const { return m_stale; }

    QSize sizeHint() const override;

protected:
    void drawContents(QPainter* painter) const override;
    void drawScale(QPainter* painter, const QPointF& center, double radius) const override;
    QRect scaleInnerRect() const override;
    void drawNeedle(QPainter* painter, const QPointF& center, double radius, double direction,
        QPalette::ColorGroup group) const override;

private:
    void ApplyRange();
    void GlideTo(double target);
    void ShowScale();

    std::map<std::string, double> m_pointers;
    double m_axisMinimum = 0.0;
    double m_axisMaximum = 10.0;
    QVariantAnimation* m_glide = nullptr;
    bool m_scaleShown = false;
    bool m_stale = false;
};

} // namespace ventrix::ui
