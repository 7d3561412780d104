#include "io/SystemClock.h"

#include <QDate>
#include <QLocale>
#include <QTime>

namespace ventrix::io {

namespace {
constexpr double kMsPerDay = 86'400'000.0;
}

double SystemClock::TimeOfDay() const
{
    return QTime::currentTime().msecsSinceStartOfDay() / kMsPerDay;
}

double SystemClock::SecondsSinceMidnight() const
{
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

std::string SystemClock::DateText() const
{
    return QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString();
}

} // namespace ventrix::io
