#include "io/SerialSettings.h"

#include <cctype>
#include <charconv>
#include <vector>

namespace ventrix::io {

namespace {

std::string Trim(const std::string& text)
{
    std::size_t first = 0;
    std::size_t last = text.size();
    while (first < last && std::isspace(static_cast<unsigned char>(text[first])))
        ++first;
    while (last > first && std::isspace(static_cast<unsigned char>(text[last - 1])))
        --last;
    return text.substr(first, last - first);
}

std::optional<int> ToInt(const std::string& text)
{
    int value = 0;
    const char* end = text.data() + text.size();
    auto [ptr, ec] = std::from_chars(text.data(), end, value);
    if (ec != std::errc {} || ptr != end || text.empty())
        return std::nullopt;
    return value;
}

} // namespace

std::optional<SerialSettings> SerialSettings::Parse(const std::string& text)
{
    std::vector<std::string> fields;
    std::size_t start = 0;
    for (;;) {
        const std::size_t comma = text.find(',', start);
        fields.push_back(
            Trim(text.substr(start, comma == std::string::npos ? std::string::npos : comma - start)));
        if (comma == std::string::npos)
            break;
        start = comma + 1;
    }
    if (fields.size() != 4)
        return std::nullopt;

    SerialSettings settings;
    const auto baud = ToInt(fields[0]);
    if (!baud || *baud <= 0)
        return std::nullopt;
    settings.baudRate = *baud;

    if (fields[1].size() != 1)
        return std::nullopt;
    switch (std::tolower(static_cast<unsigned char>(fields[1][0]))) {
    case 'n':
        settings.parity = Parity::None;
        break;
    case 'e':
        settings.parity = Parity::Even;
        break;
    case 'o':
        settings.parity = Parity::Odd;
        break;
    case 'm':
        settings.parity = Parity::Mark;
        break;
    case 's':
        settings.parity = Parity::Space;
        break;
    default:
        return std::nullopt;
    }

    const auto dataBits = ToInt(fields[2]);
    if (!dataBits || *dataBits < 5 || *dataBits > 8)
        return std::nullopt;
    settings.dataBits = *dataBits;

    if (fields[3] == "1")
        settings.stopBits = StopBits::One;
    else if (fields[3] == "1.5")
        settings.stopBits = StopBits::OneAndHalf;
    else if (fields[3] == "2")
        settings.stopBits = StopBits::Two;
    else
        return std::nullopt;
    return settings;
}

} // namespace ventrix::io
