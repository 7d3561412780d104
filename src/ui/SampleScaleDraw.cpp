#include "ui/SampleScaleDraw.h"

#include <qwt_text.h>

#include <cmath>

namespace ventrix::ui {

QwtText SampleScaleDraw::label(double value) const
{
    return QwtText(QString::number(static_cast<qlonglong>(std::llround(value))));
}

} // namespace ventrix::ui
