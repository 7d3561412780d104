#pragma once

#include "platform/Clock.h"

namespace ventrix::io {

// The system clock on QTime/QDate: local time of day as a fraction of a day and as seconds since
// midnight (with milliseconds), and today's date in the system's short date format.
class SystemClock : public platform::Clock {
public:
    double TimeOfDay() const override;
    double SecondsSinceMidnight() const override;
    std::string DateText() const override;
};

} // namespace ventrix::io
