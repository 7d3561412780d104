#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace ventrix::app {

// Sampling rates of the RATE menu in menu order (SEC1 ... SEC60), in seconds.
inline constexpr std::array<int, 6> kSampleRateSeconds { 1, 2, 5, 10, 30, 60 };

// The number of bytes DEFAULT.CFG holds when it is written completely.
inline constexpr std::size_t kSettingsFileSize = 7;

// The choices held in DEFAULT.CFG, as positions in their menu groups: port index 0 is COM1, rate
// index 0 is SEC1, line-style and point-style indexes are menu order (SOLID ..., NONE ...).
struct SettingsChoice {
    int portIndex = 0;
    int rateIndex = 0;
    int lineWidth = 0;
    int lineStyleIndex = 0;
    int pointStyleIndex = 0;
    bool fill = false;
    bool grid = true;
};

// The choices a fresh installation gets when the file is missing or unreadable.
inline constexpr SettingsChoice kDefaultSettings {};

// Reads the seven bytes of the file. A byte out of its range falls back for that setting alone:
// port COM1, rate 1 s, width 0, Solid, no points. Any non-zero fill or grid byte is on.
SettingsChoice DecodeSettings(const std::array<std::uint8_t, kSettingsFileSize>& bytes);

// Builds the bytes to write from the running values. An interval, line-style code or
// point-style code without a byte of its own adds nothing, so the result is shorter and every
// later field moves one place forward. Returns nothing when the port or the width cannot be
// stored in one byte at all: then nothing may be written.
std::optional<std::vector<std::uint8_t>> EncodeSettings(int comPort, double intervalMs, int lineWidth,
    int lineStyleCode, int pointStyleCode, bool fill, bool grid);

} // namespace ventrix::app
