#include "app/SettingsBytes.h"

#include "graph/PlotAppearance.h"

#include <algorithm>

namespace ventrix::app {

namespace {
// Position of value in table, or -1.
template <typename Table> int IndexOf(const Table& table, int value)
{
    const auto it = std::find(table.begin(), table.end(), value);
    return it == table.end() ? -1 : static_cast<int>(it - table.begin());
}
} // namespace

SettingsChoice DecodeSettings(const std::array<std::uint8_t, kSettingsFileSize>& bytes)
{
    SettingsChoice choice;
    choice.portIndex = bytes[0] >= 1 && bytes[0] <= 4 ? bytes[0] - 1 : 0;
    choice.rateIndex = std::max(IndexOf(kSampleRateSeconds, bytes[1]), 0);
    choice.lineWidth = bytes[2] <= 5 ? bytes[2] : 0;
    choice.lineStyleIndex = bytes[3] < graph::kLineStyleCodes.size() ? bytes[3] : 0;
    choice.pointStyleIndex = bytes[4] < graph::kPointStyleCodes.size() ? bytes[4] : 0;
    choice.fill = bytes[5] != 0;
    choice.grid = bytes[6] != 0;
    return choice;
}

std::optional<std::vector<std::uint8_t>> EncodeSettings(int comPort, double intervalMs, int lineWidth,
    int lineStyleCode, int pointStyleCode, bool fill, bool grid)
{
    if (comPort < 0 || comPort > 255 || lineWidth < 0 || lineWidth > 255)
        return std::nullopt;

    std::vector<std::uint8_t> bytes;
    bytes.push_back(static_cast<std::uint8_t>(comPort));
    for (int seconds : kSampleRateSeconds) {
        if (intervalMs == seconds * 1000.0)
            bytes.push_back(static_cast<std::uint8_t>(seconds));
    }
    bytes.push_back(static_cast<std::uint8_t>(lineWidth));
    if (const int index = IndexOf(graph::kLineStyleCodes, lineStyleCode); index >= 0)
        bytes.push_back(static_cast<std::uint8_t>(index));
    if (const int index = IndexOf(graph::kPointStyleCodes, pointStyleCode); index >= 0)
        bytes.push_back(static_cast<std::uint8_t>(index));
    bytes.push_back(fill ? 1 : 0);
    bytes.push_back(grid ? 1 : 0);
    return bytes;
}

} // namespace ventrix::app
