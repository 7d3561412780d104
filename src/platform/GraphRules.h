#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace ventrix::platform {

// The rules of a GraphControl that its implementations share, so that the graph on screen and
// the one the tests use place points, fit axes, scroll and snap cursors alike. Pure arithmetic
// over an axis range and the number of samples; no state.
struct AxisRange {
    double minimum = 0.0;
    double maximum = 10.0;
};

// X scaled to the data: sample 0 to the last sample (at least 0..1); 0..10 with no data.
inline AxisRange FitSampleAxis(std::size_t count)
{
    if (count == 0)
        return { 0.0, 10.0 };
    return { 0.0, std::max(1.0, static_cast<double>(count - 1)) };
}

// The amplitude axis scaled to data from low to high; flat data gets a band of a tenth of its
// value (1 at zero) on each side. With no data the axis keeps `current`.
inline AxisRange FitAmplitudeAxis(std::size_t count, double low, double high, AxisRange current)
{
    if (count == 0)
        return current;
    if (low < high)
        return { low, high };
    const double pad = low == 0.0 ? 1.0 : std::abs(low) * 0.1;
    return { low - pad, high + pad };
}

// A value appended at sample `index` just past the right end of a view that showed the sample
// before it scrolls that view so the new sample stands at the right end; otherwise the view stays.
inline AxisRange FollowAppendedSample(AxisRange view, std::size_t index)
{
    const double x = static_cast<double>(index);
    const double previous = x - 1.0;
    if (index == 0 || x <= view.maximum || previous < view.minimum || previous > view.maximum)
        return view;
    const double shift = x - view.maximum;
    return { view.minimum + shift, x };
}

// The sample number nearest to x among `count` samples (count > 0).
inline std::size_t NearestSample(double x, std::size_t count)
{
    const double last = static_cast<double>(count - 1);
    if (std::isnan(x))
        return 0;
    return static_cast<std::size_t>(std::lround(std::clamp(x, 0.0, last)));
}

} // namespace ventrix::platform
