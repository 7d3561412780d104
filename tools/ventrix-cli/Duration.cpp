#include "ventrix-cli/Duration.h"

namespace ventrix::cli {

namespace {
constexpr long long kMaxSeconds = 366LL * 86400;
}

std::optional<long long> ParseDurationSeconds(const std::string& text)
{
    long long total = 0;
    std::size_t i = 0;
    while (i < text.size()) {
        long long number = 0;
        const std::size_t digits = i;
        while (i < text.size() && text[i] >= '0' && text[i] <= '9' && number <= kMaxSeconds)
            number = number * 10 + (text[i++] - '0');
        if (i == digits || number > kMaxSeconds)
            return std::nullopt;
        long long unit = 1;
        if (i < text.size()) {
            switch (text[i++]) {
            case 'd':
                unit = 86400;
                break;
            case 'h':
                unit = 3600;
                break;
            case 'm':
                unit = 60;
                break;
            case 's':
                break;
            default:
                return std::nullopt;
            }
        } else if (digits != 0) {
            return std::nullopt; // a bare number only on its own: "1h30" is a typo
        }
        total += number * unit;
        if (total > kMaxSeconds)
            return std::nullopt;
    }
    if (total <= 0)
        return std::nullopt;
    return total;
}

} // namespace ventrix::cli
