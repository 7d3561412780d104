#pragma once

#include <optional>
#include <string>

namespace ventrix::io {

// The line parameters of a settings string such as "4800,n,8,1": baud rate, parity letter
// (n, e, o, m, s), data bits (5 to 8) and stop bits (1, 1.5, 2). Only parses; applying them to a
// port is the adapter's business.
struct SerialSettings {
    enum class Parity { None, Even, Odd, Mark, Space };
    enum class StopBits { One, OneAndHalf, Two };

    int baudRate = 4800;
    Parity parity = Parity::None;
    int dataBits = 8;
    StopBits stopBits = StopBits::One;

    // Nothing when the text is not four comma-separated fields with valid values.
    static std::optional<SerialSettings> Parse(const std::string& text);
};

} // namespace ventrix::io
