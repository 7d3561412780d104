#pragma once

#include "state/AppState.h"

#include <array>
#include <optional>
#include <string>

namespace ventrix::log {

using state::SampleRecord;

// Hour (0..23), minute and second taken from a 12-hour time text "h:mm:ss AM" or "hh:mm:ss PM"
// by character position: a one-digit hour gains 12 whenever the suffix is not "AM"; a two-digit
// hour "12" is 12 after noon and 0 with "AM". Fields that are not digits read as 0.
struct RecordClock {
    int hour = 0;
    int minute = 0;
    int second = 0;
};
RecordClock ParseRecordTime(const std::string& timeText);

// The time of day (a fraction of a day) as the program writes it everywhere: the 12-hour form
// "h:mm:ss AM", no leading zero on the hour, whole seconds (the fraction is dropped).
std::string FormatTimeOfDay(double timeOfDay);

// The 8-byte record of the current reading stamped with the given clock: decimal code (5 for a
// word, plus 10 when negative), count high and low (or 0 and the word's index), multiplier code
// and function code (15 for a temperature in degrees Fahrenheit).
SampleRecord EncodeSampleRecord(const state::AppState& state, const RecordClock& clock);

// The three texts of a line rebuilt from a record. The hour is always two digits ("09:05:03 PM"),
// the value has every leading zero removed and a "0" before a leading point, the unit carries its
// prefix ("mV", "KOHM"). FormatRecordValue has no text (an error) for a word index past the end of
// the word table.
std::string FormatRecordTime(const SampleRecord& record);
std::optional<std::string> FormatRecordValue(
    const SampleRecord& record, const std::array<std::string, 15>& specialWordTable);
std::string FormatRecordUnit(const SampleRecord& record);

// A record's reading in base units: (high * 100 + low) / divisor * multiplier, negative when the
// decimal code is above 10. A word (code 5 or 15) gives its count as stored; a code outside the
// table counts as divisor 1.
double RecordValue(const SampleRecord& record);

// Time, `separator`, value, unit: the line of a rebuilt record (no line end), or no text when
// the value cannot be formatted. The data log window uses "    " and a blank before the unit; the
// text file and the command-line tool use eight spaces and nothing.
std::optional<std::string> FormatRecordLine(const SampleRecord& record,
    const std::array<std::string, 15>& specialWordTable, const std::string& separator,
    const std::string& beforeUnit);

} // namespace ventrix::log
