#pragma once

#include <optional>
#include <string>

namespace ventrix::cli {

// A length of time as typed on the command line, in whole seconds: a number of seconds ("90"),
// or numbers each followed by its unit d, h, m or s ("2d", "1h30m", "45s"). Nothing for anything
// else, for zero, and beyond a year.
std::optional<long long> ParseDurationSeconds(const std::string& text);

} // namespace ventrix::cli
