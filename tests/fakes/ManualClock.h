#pragma once

#include "platform/Clock.h"

#include <string>

namespace ventrix::fakes {

// A clock the test sets by hand. SetTime(h, m, s) sets both readings consistently.
class ManualClock : public platform::Clock {
public:
    double TimeOfDay() const override { return seconds / 86400.0; }
    double SecondsSinceMidnight() const override { return seconds; }
    std::string DateText() const override { return date; }

    void SetTime(int hour, int minute, double second) { seconds = hour * 3600.0 + minute * 60.0 + second; }

    double seconds = 0.0;
    std::string date = "2026-11-21";
};

} // namespace ventrix::fakes
