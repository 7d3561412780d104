#include "ventrix-cli/DemoScenario.h"

#include <cmath>
#include <cstdio>
#include <numbers>

namespace ventrix::cli {

namespace {

constexpr int kTourPasses = 4;

// A count of 0 to 9999 as four positions with the point before position pointAt (1 to 3) or
// without one (0); leading zeros before the point's position are shown, as the meter does.
std::string Digits(int count, int pointAt)
{
    char four[8];
    std::snprintf(four, sizeof four, "%04d", count % 10000);
    std::string out;
    for (int i = 0; i < 4; ++i) {
        if (pointAt > 0 && i == pointAt)
            out.push_back('.');
        out.push_back(four[i]);
    }
    if (pointAt == 0) {
        // Without a point the meter blanks leading zeros.
        for (std::size_t i = 0; i + 1 < out.size() && out[i] == '0'; ++i)
            out[i] = ' ';
    }
    return out;
}

MeterDisplay Show(std::uint8_t mode, std::string text, char prefix = 0)
{
    MeterDisplay d;
    d.mode = mode;
    d.text = std::move(text);
    d.prefix = prefix;
    d.autoRange = true;
    return d;
}

// One walk through every function, annunciator and word; pass 0, 1, 2 ... vary the opening wave
// so that the passes do not look alike. Relative mode is left out.
void AddTour(std::vector<MeterDisplay>& frames, int pass)
{
    auto add = [&frames](MeterDisplay d, int times = 1) {
        for (int i = 0; i < times; ++i)
            frames.push_back(d);
    };

    // Volts DC: a slow wave around 1.5 V, then below zero, then millivolts with HOLD.
    for (int i = 0; i < 24; ++i) {
        const double phase = (i + 4 * pass) * std::numbers::pi / 12;
        const int count = 1500 + static_cast<int>(std::lround((900 - 150 * pass) * std::sin(phase)));
        add(Show(0, Digits(count, 1)));
    }
    for (int count : { 412, 388, 351 }) {
        MeterDisplay d = Show(0, Digits(count, 1));
        d.negative = true;
        add(d);
    }
    add(Show(0, Digits(1234, 3), 'm'), 2);
    {
        MeterDisplay d = Show(0, Digits(1234, 3), 'm');
        d.hold = true;
        add(d, 3);
    }
    // Volts AC, manual range.
    for (int count : { 2301, 2298, 2304 }) {
        MeterDisplay d = Show(1, Digits(count, 3));
        d.autoRange = false;
        add(d);
    }
    // Amperes DC (micro, milli, whole) and AC.
    add(Show(2, Digits(3456, 3), 'u'), 2);
    add(Show(3, Digits(1234, 2), 'm'), 2);
    {
        MeterDisplay d = Show(4, Digits(152, 1));
        d.negative = true;
        add(d, 2);
    }
    add(Show(7, Digits(1234, 1)), 2);
    add(Show(6, Digits(4567, 2), 'm'), 2);
    // Ohms: kilo, mega, open circuit, overload.
    add(Show(8, Digits(4700, 1), 'K'), 3);
    add(Show(8, Digits(1000, 1), 'M'), 2);
    add(Show(8, "OPEn", 'M'), 3);
    add(Show(8, " OF ", 'K'), 2);
    add(Show(8, Digits(1203, 3)), 2);
    // Capacitance in nano- and microfarads.
    add(Show(9, Digits(4700, 2), 'n'), 3);
    add(Show(9, Digits(2200, 1), 'u'), 2);
    // Frequency in hertz, kilohertz, megahertz.
    add(Show(10, Digits(5000, 2)), 2);
    add(Show(11, Digits(1000, 1), 'K'), 2);
    add(Show(12, Digits(1234, 1), 'M'), 2);
    // Duty cycle and conductance.
    add(Show(13, Digits(250, 3)), 3);
    add(Show(16, Digits(1234, 2), 'n'), 2);
    // Diode, continuity (a value, then open), transistor gain.
    add(Show(19, Digits(612, 1)), 3);
    add(Show(20, Digits(123, 3)), 2);
    add(Show(20, "OPEn"), 2);
    add(Show(21, Digits(123, 0)), 3);
    // Logic levels, volts on the 22 range, decibels (negative).
    add(Show(24, " HI "), 2);
    add(Show(24, " LO "), 2);
    add(Show(22, Digits(500, 1)), 2);
    {
        MeterDisplay d = Show(23, Digits(1250, 2));
        d.negative = true;
        add(d, 3);
    }
    // Temperature: degrees Celsius, then Fahrenheit (three positions and the unit letter).
    for (const char* t : { "23.5", "23.6", "23.8" }) {
        MeterDisplay d = Show(25, t);
        d.temperatureUnit = 'C';
        add(d);
    }
    for (const char* t : { "74.3", "74.5", "74.8" }) {
        MeterDisplay d = Show(25, t);
        d.temperatureUnit = 'F';
        add(d);
    }
    // Low battery, the recorded minimum and maximum.
    {
        MeterDisplay d = Show(0, Digits(1500, 1));
        d.battery = true;
        add(d, 3);
        d.battery = false;
        d.min = true;
        d.text = Digits(1320, 1);
        add(d, 3);
        d.min = false;
        d.max = true;
        d.text = Digits(1675, 1);
        add(d, 3);
        d.min = true;
        add(d, 2);
    }
    // Back to plain volts.
    add(Show(0, Digits(1500, 1)), 3);
}

} // namespace

std::vector<MeterDisplay> DemoScenario()
{
    std::vector<MeterDisplay> frames;
    for (int pass = 0; pass < kTourPasses; ++pass)
        AddTour(frames, pass);
    // One short stretch of relative mode at the very end of the loop: acquisition started on one
    // of these two frames is refused, as the program must; a start at any other moment is not.
    MeterDisplay rel = Show(0, Digits(2, 1));
    rel.rel = true;
    rel.autoRange = false;
    frames.push_back(rel);
    rel.text = Digits(15, 1);
    rel.negative = true;
    frames.push_back(rel);
    // Plain volts again before the loop starts over.
    for (int i = 0; i < 3; ++i)
        frames.push_back(Show(0, Digits(1500, 1)));
    return frames;
}

} // namespace ventrix::cli
