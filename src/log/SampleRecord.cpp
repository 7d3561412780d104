#include "log/SampleRecord.h"

#include <cmath>
#include <cstdint>

namespace ventrix::log {

namespace {

// The digits at the start of `text` as a number; 0 when there are none.
int LeadingNumber(const std::string& text)
{
    int value = 0;
    for (char c : text) {
        if (c < '0' || c > '9')
            break;
        value = value * 10 + (c - '0');
    }
    return value;
}

// Characters `from`..`from + count - 1` (1-based), shorter or empty past the end.
std::string Mid(const std::string& text, std::size_t from, std::size_t count)
{
    return from - 1 < text.size() ? text.substr(from - 1, count) : std::string();
}

std::string TwoDigits(int value)
{
    const std::string text = std::to_string(value);
    return text.size() < 2 ? "0" + text : text;
}

std::uint8_t DecimalCode(std::int16_t divisor)
{
    switch (divisor) {
    case 10:
        return 2;
    case 100:
        return 3;
    case 1000:
        return 4;
    default:
        return 1;
    }
}

std::uint8_t MultiplierCode(double multiplier)
{
    if (multiplier == 1e-9)
        return 1;
    if (multiplier == 1e-6)
        return 2;
    if (multiplier == 1e-3)
        return 3;
    if (multiplier == 1000.0)
        return 4;
    if (multiplier == 1e6)
        return 5;
    return 0;
}

} // namespace

RecordClock ParseRecordTime(const std::string& text)
{
    RecordClock clock;
    if (Mid(text, 2, 1) == ":") {
        clock.hour = LeadingNumber(Mid(text, 1, 1));
        clock.minute = LeadingNumber(Mid(text, 3, 2));
        clock.second = LeadingNumber(Mid(text, 6, 2));
        if (Mid(text, 9, 2) != "AM")
            clock.hour += 12;
    } else {
        clock.hour = LeadingNumber(Mid(text, 1, 2));
        clock.minute = LeadingNumber(Mid(text, 4, 2));
        clock.second = LeadingNumber(Mid(text, 7, 2));
        const bool morning = Mid(text, 10, 2) == "AM";
        if (!morning && clock.hour != 12)
            clock.hour += 12;
        else if (morning && clock.hour == 12)
            clock.hour = 0;
    }
    return clock;
}

std::string FormatTimeOfDay(double timeOfDay)
{
    long long seconds = static_cast<long long>(std::floor(timeOfDay * 86400.0 + 1e-6));
    seconds = ((seconds % 86400) + 86400) % 86400;
    const int hour = static_cast<int>(seconds / 3600);
    const int minute = static_cast<int>(seconds / 60 % 60);
    const int second = static_cast<int>(seconds % 60);
    const int shown = hour % 12 == 0 ? 12 : hour % 12;
    return std::to_string(shown) + ":" + TwoDigits(minute) + ":" + TwoDigits(second)
        + (hour < 12 ? " AM" : " PM");
}

SampleRecord EncodeSampleRecord(const state::AppState& s, const RecordClock& clock)
{
    SampleRecord record {};
    record[0] = static_cast<std::uint8_t>(clock.hour);
    record[1] = static_cast<std::uint8_t>(clock.minute);
    record[2] = static_cast<std::uint8_t>(clock.second);
    std::uint8_t decimal = s.HasWord ? 5 : DecimalCode(s.DecimalDivisor);
    if (!s.IsPositive)
        decimal = static_cast<std::uint8_t>(decimal + 10);
    record[3] = decimal;
    const int count = static_cast<int>(s.CountValue);
    record[4] = s.HasWord ? 0 : static_cast<std::uint8_t>(count / 100);
    record[5] = static_cast<std::uint8_t>(s.HasWord ? s.DisplayWordIndex : count % 100);
    record[6] = MultiplierCode(s.UnitMultiplier);
    record[7] = s.FunctionKind == 14 && s.UnitLabel == "°F" ? 15 : s.FunctionKind;
    return record;
}

std::string FormatRecordTime(const SampleRecord& record)
{
    const int h = record[0];
    int hour = h;
    const char* suffix = " PM";
    if (h == 0) {
        hour = 12;
        suffix = " AM";
    } else if (h < 12) {
        suffix = " AM";
    } else if (h > 12) {
        hour = h - 12;
    }
    return TwoDigits(hour) + ":" + TwoDigits(record[1]) + ":" + TwoDigits(record[2]) + suffix;
}

std::optional<std::string> FormatRecordValue(
    const SampleRecord& record, const std::array<std::string, 15>& specialWordTable)
{
    int code = record[3];
    std::string sign;
    if (code >= 11) {
        code -= 10;
        sign = "-";
    }
    const int n = record[4] * 100 + record[5];
    if (code == 5) {
        if (static_cast<std::size_t>(n) >= specialWordTable.size())
            return std::nullopt;
        return sign + specialWordTable[static_cast<std::size_t>(n)];
    }
    std::string text = std::to_string(n);
    if (text.size() < 4)
        text.insert(0, 4 - text.size(), '0');
    if (code == 2)
        text = text.substr(0, 3) + "." + text.substr(3, 1);
    else if (code == 3)
        text = text.substr(0, 2) + "." + text.substr(2, 2);
    else if (code == 4)
        text = text.substr(0, 1) + "." + text.substr(1, 3);
    const std::size_t firstKept = text.find_first_not_of('0');
    text.erase(0, firstKept == std::string::npos ? text.size() : firstKept);
    if (text.empty() || text.front() == '.')
        text.insert(0, "0");
    return sign + text;
}

std::string FormatRecordUnit(const SampleRecord& record)
{
    static const std::array<const char*, 16> kUnits { "V", "V AC", "A", "A AC", "OHM", "F", "Hz", "%", "S",
        "V", "CONT", "hFE", "V", "dBm", "°C", "°F" };
    static const std::array<const char*, 6> kPrefixes { "", "n", "u", "m", "K", "M" };
    const std::string unit = record[7] < kUnits.size() ? kUnits[record[7]] : "";
    const std::string prefix = record[6] < kPrefixes.size() ? kPrefixes[record[6]] : "";
    return prefix + unit;
}

double RecordValue(const SampleRecord& record)
{
    static const std::array<double, 6> kMultipliers { 1.0, 1e-9, 1e-6, 1e-3, 1e3, 1e6 };
    int code = record[3];
    const bool negative = code > 10;
    if (negative)
        code -= 10;
    const double divisor = code == 2 ? 10.0 : code == 3 ? 100.0 : code == 4 ? 1000.0 : 1.0;
    const double multiplier = record[6] < kMultipliers.size() ? kMultipliers[record[6]] : 1.0;
    const double value = (record[4] * 100 + record[5]) / divisor * multiplier;
    return negative ? -value : value;
}

std::optional<std::string> FormatRecordLine(const SampleRecord& record,
    const std::array<std::string, 15>& specialWordTable, const std::string& separator,
    const std::string& beforeUnit)
{
    const std::optional<std::string> value = FormatRecordValue(record, specialWordTable);
    if (!value)
        return std::nullopt;
    return FormatRecordTime(record) + separator + *value + beforeUnit + FormatRecordUnit(record);
}

} // namespace ventrix::log
