#include "ui/AmplitudeScaleDraw.h"

#include "graph/EngineeringFormat.h"

#include <qwt_scale_div.h>
#include <qwt_text.h>

#include <cmath>

namespace ventrix::ui {

QwtText AmplitudeScaleDraw::label(double value) const
{
    const QwtScaleDiv& div = scaleDiv();
    if (std::abs(value) < std::abs(div.upperBound() - div.lowerBound()) * 1e-9)
        value = 0.0;
    return QwtText(QString::fromStdString(graph::FormatAxisLabel(value)));
}

} // namespace ventrix::ui
