#pragma once

#include <string>

namespace ventrix::platform {

// The system clock as the handlers need it: the time of day as a fraction of a day (1 s is
// 1/86400), seconds since midnight with their fraction, and today's date as text for the print
// header.
class Clock {
public:
    virtual ~Clock() = default;
    virtual double TimeOfDay() const = 0;
    virtual double SecondsSinceMidnight() const = 0;
    virtual std::string DateText() const = 0;
};

} // namespace ventrix::platform
