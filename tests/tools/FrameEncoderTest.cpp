#include "ventrix-cli/FrameEncoder.h"
#include "display/VirtualLcd.h"
#include "link/FrameDecoder.h"
#include "link/FrameValidator.h"
#include "platform/MainControls.h"
#include "state/AppState.h"
#include "ventrix-cli/DemoScenario.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <set>

using ventrix::cli::EncodeFrame;
using ventrix::cli::MeterDisplay;
using ventrix::cli::RawFrame;

namespace {

// Encodes a display and checks that the receive path would accept the frame.
RawFrame Valid(const MeterDisplay& display)
{
    std::string error;
    const auto frame = EncodeFrame(display, error);
    EXPECT_TRUE(frame) << "mode " << int(display.mode) << " \"" << display.text << "\": " << error;
    const RawFrame bytes = frame.value_or(RawFrame {});
    EXPECT_TRUE(ventrix::link::ValidateFrame(std::string(bytes.begin(), bytes.end()), 0))
        << "mode " << int(display.mode) << " \"" << display.text << "\"";
    return bytes;
}

// Decodes a frame the way the receive path does once it has accepted it.
ventrix::state::AppState Decoded(const RawFrame& frame)
{
    ventrix::state::AppState state;
    state.SpecialWordTable = ventrix::link::kSpecialWordTable;
    state.AwaitingAbsoluteReading = false;
    state.ModeByte = frame[0];
    for (int k = 0; k < 7; ++k)
        state.FrameData[6 - k] = frame[1 + k];
    ventrix::link::DecodeFrame(state);
    return state;
}

} // namespace

// Every frame of the demonstration must be one the program accepts, and decode to the reading
// shown: the digits with their point, the sign, the prefix, the word or the temperature unit.
TEST(FrameEncoder, DemonstrationFramesPassValidationAndDecodeToTheReadingShown)
{
    const std::map<char, double> factors { { 0, 1 }, { 'n', 1e-9 }, { 'u', 1e-6 }, { 'm', 1e-3 },
        { 'K', 1e3 }, { 'M', 1e6 } };
    std::set<int> modes;
    for (const MeterDisplay& display : ventrix::cli::DemoScenario()) {
        SCOPED_TRACE("mode " + std::to_string(display.mode) + " \"" + display.text + "\"");
        modes.insert(display.mode);
        const auto state = Decoded(Valid(display));
        EXPECT_EQ(state.IsPositive, !display.negative);
        const bool word = display.text.find_first_not_of("0123456789. ") != std::string::npos;
        EXPECT_EQ(state.HasWord, word);
        if (word) {
            EXPECT_EQ(state.DisplayWord, display.text);
            continue;
        }
        std::string digits;
        std::copy_if(display.text.begin(), display.text.end(), std::back_inserter(digits), ::isdigit);
        const auto point = display.text.find('.');
        const auto decimals = point == std::string::npos ? 0 : display.text.size() - point - 1;
        EXPECT_EQ(state.CountValue, std::stoi(digits));
        EXPECT_EQ(state.DecimalDivisor, std::pow(10, decimals));
        if (display.mode == 25) {
            EXPECT_EQ(state.UnitLabel, std::string("°") + display.temperatureUnit);
        } else {
            EXPECT_EQ(state.UnitMultiplier, factors.at(display.prefix));
            EXPECT_TRUE(display.prefix == 0 || state.UnitLabel[0] == display.prefix) << state.UnitLabel;
        }
    }
    // Every function of the meter appears: one mode byte per function at least.
    for (int representative : { 0, 1, 2, 5, 8, 9, 10, 13, 16, 19, 20, 21, 22, 23, 24, 25 })
        EXPECT_TRUE(
            modes.count(representative) || modes.count(representative + 1) || modes.count(representative + 2))
            << "no frame for mode " << representative;
    // Starting acquisition on a relative frame is refused: the loop opens in absolute mode, and
    // its one relative stretch is short enough that a start at a random moment is practically
    // never refused, yet there to be seen.
    const auto demo = ventrix::cli::DemoScenario();
    EXPECT_FALSE(demo.front().rel);
    const auto relFrames
        = std::count_if(demo.begin(), demo.end(), [](const MeterDisplay& d) { return d.rel; });
    const auto firstRel = std::find_if(demo.begin(), demo.end(), [](const MeterDisplay& d) { return d.rel; });
    EXPECT_GE(relFrames, 1);
    EXPECT_LE(relFrames * 200, static_cast<long>(demo.size())) << "at most one start in 200 is refused";
    EXPECT_TRUE(std::all_of(firstRel, firstRel + relFrames, [](const MeterDisplay& d) { return d.rel; }))
        << "one stretch";
}

TEST(FrameEncoder, AnnunciatorsReachTheLcd)
{
    const struct {
        MeterDisplay display;
        const char* hold;
        const char* autoRange;
        const char* battery;
        bool minVisible;
        const char* function;
    } cases[] = {
        { { .text = "1.234" }, "", "", "", false, "" },
        { { .text = "1.234", .hold = true, .autoRange = true, .battery = true, .min = true, .max = true },
            "HOLD", "AUTO", "BAT", true, "MAX" },
        { { .text = "1.234", .rel = true }, "", "", "", false, "REL" },
        { { .mode = 19, .text = "1.234" }, "", "", "", false, "DIODE" },
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        const auto state = Decoded(Valid(c.display));
        ventrix::platform::MainControls controls;
        ventrix::display::VirtualLcd(state, controls).RefreshVirtualLcd();
        EXPECT_EQ(controls.DIGIT_LBL.Caption(), "1.234");
        EXPECT_EQ(controls.HOLD_LBL.Caption(), c.hold);
        EXPECT_EQ(controls.AUTO_LBL.Caption(), c.autoRange);
        EXPECT_EQ(controls.BATTERY_LBL.Caption(), c.battery);
        EXPECT_EQ(controls.MIN_LBL.Visible(), c.minVisible);
        EXPECT_EQ(controls.FUNCTION_LBL.Caption(), c.function);
    }
}

TEST(FrameEncoder, RefusesWhatTheMeterCannotShow)
{
    const MeterDisplay cases[] = {
        { .mode = 0, .text = "1.234", .prefix = 'K' }, // a prefix volts do not have
        { .mode = 0, .text = "1.234", .max = true, .rel = true }, // REL with MAX
        { .mode = 19, .text = "0.612", .min = true }, // MIN in diode
        { .mode = 0, .text = "1.2.3" },
        { .mode = 0, .text = "12345" },
        { .mode = 0, .text = "12X4" }, // outside the meter's alphabet
        { .mode = 26, .text = "1234" },
        { .mode = 25, .text = "23.45" }, // temperature has three positions
        { .mode = 25, .text = "23.5", .temperatureUnit = 'K' },
    };
    for (const MeterDisplay& display : cases) {
        std::string error;
        EXPECT_FALSE(EncodeFrame(display, error)) << int(display.mode) << " \"" << display.text << "\"";
        EXPECT_FALSE(error.empty()) << int(display.mode) << " \"" << display.text << "\"";
    }
}
