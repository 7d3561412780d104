#pragma once

#include <qwt_scale_draw.h>

namespace ventrix::ui {

// Labels of the amplitude axis "YAxis-1": at most three decimals and an SI prefix letter
// ("40M", "1.5k", "250m", "2.2u"), never an exponent. A tick that only rounding keeps off zero
// reads "0".
class AmplitudeScaleDraw : public QwtScaleDraw {
public:
    QwtText label(double value) const override;
};

} // namespace ventrix::ui
