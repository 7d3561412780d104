#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace ventrix::cli {

// What the meter's LCD shows, in the terms a user reads off it.
struct MeterDisplay {
    std::uint8_t mode = 0; // the mode byte: function and range (0 to 25)
    // The digit positions from left to right: digits, letters of the meter's alphabet and
    // blanks, with at most one "." between two positions; four positions ("1.234", " OF ",
    // "OPEn"), three in mode 25 where the last position shows the temperature unit.
    std::string text;
    char prefix = 0; // 0, 'n', 'u', 'm', 'K' or 'M', where the mode has that prefix
    char temperatureUnit = 'C'; // mode 25: 'C' or 'F'
    bool negative = false;
    bool hold = false;
    bool autoRange = false;
    bool battery = false;
    bool min = false;
    bool max = false;
    bool rel = false;
};

using RawFrame = std::array<std::uint8_t, 9>;

// Builds the 9-byte frame the meter sends for a display: mode byte, the LCD segment and
// annunciator bytes as the meter lights them for that function, and the checksum. Refuses
// (nothing, with the reason in error) what the meter cannot show, such as a prefix the
// function does not have, REL with MIN or MAX, annunciators in the modes without them,
// or a character outside the meter's alphabet. Does not send anything.
std::optional<RawFrame> EncodeFrame(const MeterDisplay& display, std::string& error);

} // namespace ventrix::cli
