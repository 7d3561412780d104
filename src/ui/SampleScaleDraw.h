#pragma once

#include <qwt_scale_draw.h>

namespace ventrix::ui {

// Labels of the time axis "XAxis": whole sample numbers ("0", "432000"), without grouping or
// exponents.
class SampleScaleDraw : public QwtScaleDraw {
public:
    QwtText label(double value) const override;
};

} // namespace ventrix::ui
