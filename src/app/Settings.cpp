#include "app/Settings.h"

#include "graph/PlotAppearance.h"
#include "platform/MenuGroup.h"

#include <filesystem>
#include <fstream>
#include <utility>

namespace ventrix::app {

namespace {
using platform::CheckOnly;
using platform::ClearChecks;

// Reads the first seven bytes of the file over a buffer of spaces: a shorter file leaves the
// missing bytes as spaces. Returns nothing when the file is missing or cannot be read.
std::optional<std::array<std::uint8_t, kSettingsFileSize>> ReadSettingsFile(const std::filesystem::path& path)
{
    std::error_code error;
    if (std::filesystem::is_directory(path, error))
        return std::nullopt;
    {
        // The existence test: opening for reading fails for a missing or locked file.
        std::ifstream probe(path);
        if (!probe.is_open())
            return std::nullopt;
    }
    std::ifstream file(path, std::ios::in | std::ios::binary);
    if (!file.is_open())
        return std::nullopt;
    std::array<std::uint8_t, kSettingsFileSize> bytes;
    bytes.fill(' ');
    file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (file.bad())
        return std::nullopt;
    return bytes;
}
} // namespace

Settings::Settings(state::AppState& state, platform::MainControls& controls, platform::GraphControl& graph,
    const platform::AppPaths& paths, std::function<void()> updateMemoryGauge)
    : m_state(state)
    , m_controls(controls)
    , m_graph(graph)
    , m_paths(paths)
    , m_updateMemoryGauge(std::move(updateMemoryGauge))
{
}

void Settings::LoadSettings()
{
    // Anything that goes wrong (no file, unreadable file, an error of any kind) applies every
    // built-in default, silently.
    try {
        if (const auto bytes = ReadSettingsFile(m_paths.SettingsFile())) {
            ApplySettings(DecodeSettings(*bytes));
            return;
        }
    } catch (...) {
    }
    try {
        ApplySettings(kDefaultSettings);
    } catch (...) {
    }
}

void Settings::ApplySettings(const SettingsChoice& choice)
{
    const auto port = static_cast<std::size_t>(choice.portIndex);
    ClearChecks(m_controls.COM_ITEMS);
    m_state.ComPortNumber = static_cast<std::int16_t>(port + 1);
    m_controls.COM_ITEMS.at(port).SetChecked(true);

    const auto rate = static_cast<std::size_t>(choice.rateIndex);
    ClearChecks(m_controls.SEC_ITEMS);
    m_state.SampleIntervalMs = kSampleRateSeconds.at(rate) * 1000.0;
    m_controls.SEC_ITEMS.at(rate).SetChecked(true);

    const auto width = static_cast<std::size_t>(choice.lineWidth);
    ClearChecks(m_controls.WIDTH_ITEMS);
    m_graph.SetLineWidth(choice.lineWidth);
    m_controls.WIDTH_ITEMS.at(width).SetChecked(true);

    const auto lineStyle = static_cast<std::size_t>(choice.lineStyleIndex);
    ClearChecks(m_controls.STYLE_ITEMS);
    m_graph.SetLineStyle(graph::kLineStyleCodes.at(lineStyle));
    m_controls.STYLE_ITEMS.at(lineStyle).SetChecked(true);

    const auto pointStyle = static_cast<std::size_t>(choice.pointStyleIndex);
    ClearChecks(m_controls.POINT_ITEMS);
    m_graph.SetPointStyle(graph::kPointStyleCodes.at(pointStyle));
    m_controls.POINT_ITEMS.at(pointStyle).SetChecked(true);

    m_controls.FILL.SetChecked(choice.fill);
    m_graph.SetFillToBase(choice.fill);

    m_controls.Grid.SetChecked(choice.grid);
    m_graph.SetMajorGrid(platform::GraphAxis::YAxis1, choice.grid);
    m_graph.SetMajorGrid(platform::GraphAxis::XAxis, choice.grid);
}

void Settings::SaveSettings()
{
    // Written in place: an existing file keeps whatever lies beyond the bytes written, and a
    // failure of any kind leaves it as it was, silently.
    try {
        const auto path = m_paths.SettingsFile();
        std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
        if (!file.is_open()) {
            std::error_code error;
            if (std::filesystem::exists(path, error) || error)
                return;
            file.open(path, std::ios::out | std::ios::binary); // a new, empty file
            if (!file.is_open())
                return;
        }
        const auto bytes = EncodeSettings(m_state.ComPortNumber, m_state.SampleIntervalMs,
            m_graph.LineWidth(), m_graph.LineStyle(), m_graph.PointStyle(), m_controls.FILL.Checked(),
            m_controls.Grid.Checked());
        if (!bytes)
            return;
        file.seekp(0);
        file.write(reinterpret_cast<const char*>(bytes->data()), static_cast<std::streamsize>(bytes->size()));
    } catch (...) {
    }
}

void Settings::SelectComPort(int port)
{
    if (port < 1 || port > static_cast<int>(m_controls.COM_ITEMS.size()))
        return;
    m_state.ComPortNumber = static_cast<std::int16_t>(port);
    CheckOnly(m_controls.COM_ITEMS, static_cast<std::size_t>(port - 1));
}

void Settings::SelectSampleRate(int seconds)
{
    std::size_t index = 0;
    while (index < kSampleRateSeconds.size() && kSampleRateSeconds[index] != seconds)
        ++index;
    if (index == kSampleRateSeconds.size())
        return;
    m_state.SampleIntervalMs = seconds * 1000.0;
    CheckOnly(m_controls.SEC_ITEMS, index);
    if (m_updateMemoryGauge)
        m_updateMemoryGauge();
}

} // namespace ventrix::app
