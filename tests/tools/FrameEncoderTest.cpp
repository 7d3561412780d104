#include "ventrix-cli/FrameEncoder.h"
#include "app/AppState.h"
#include "display/VirtualLcd.h"
#include "ventrix-cli/DemoScenario.h"
#include "link/FrameDecoder.h"
#include "link/FrameValidator.h"
#include "platform/MainControls.h"

#include <gtest/gtest.h>
#include <set>

using ventrix::cli::EncodeFrame;
using ventrix::cli::MeterDisplay;
using ventrix::cli::RawFrame;

namespace {

std::string Bytes(const RawFrame& frame)
{
    return std::string(frame.begin(), frame.end());
}

// Decodes a frame the way the receive path does once it has accepted it.
ventrix::app::AppState Decoded(const RawFrame& frame)
{
    ventrix::app::AppState state;
    state.SpecialWordTable = ventrix::link::kSpecialWordTable;
    state.AwaitingAbsoluteReading = false;
    state.ModeByte = frame[0];
    for (int k = 0; k < 7; ++k)
        state.FrameData[6 - k] = frame[1 + k];
    ventrix::link::DecodeFrame(state);
    return state;
}

MeterDisplay Display(std::uint8_t mode, const char* text, char prefix = 0)
{
    MeterDisplay d;
    d.mode = mode;
    d.text = text;
    d.prefix = prefix;
    return d;
}

} // namespace

TEST(FrameEncoder, ChecksumWrapsModulo256)
{
    RawFrame frame;
    frame.fill(255);
    EXPECT_EQ(ventrix::cli::FrameChecksum(frame), 49);
    frame.fill(0);
    EXPECT_EQ(ventrix::cli::FrameChecksum(frame), 57);
}

// Every frame of the demonstration must be one the program accepts, with a correct checksum.
TEST(FrameEncoder, DemonstrationFramesPassValidation)
{
    std::set<int> modes;
    for (const MeterDisplay& display : ventrix::cli::DemoScenario()) {
        std::string error;
        const auto frame = EncodeFrame(display, error);
        ASSERT_TRUE(frame) << "mode " << int(display.mode) << " \"" << display.text << "\": " << error;
        EXPECT_EQ((*frame)[8], ventrix::cli::FrameChecksum(*frame));
        EXPECT_TRUE(ventrix::link::ValidateFrame(Bytes(*frame), 0))
            << "mode " << int(display.mode) << " \"" << display.text << "\"";
        modes.insert(display.mode);
    }
    // Every function of the meter appears: one mode byte per function at least.
    for (int representative : { 0, 1, 2, 5, 8, 9, 10, 13, 16, 19, 20, 21, 22, 23, 24, 25 })
        EXPECT_TRUE(
            modes.count(representative) || modes.count(representative + 1) || modes.count(representative + 2))
            << "no frame for mode " << representative;
    // The loop must not open in relative mode, or starting acquisition at the loop's turn fails.
    EXPECT_FALSE(ventrix::cli::DemoScenario().front().rel);
}

TEST(FrameEncoder, DecodesBackToTheReadingShown)
{
    struct Case {
        MeterDisplay display;
        int functionKind;
        const char* unitLabel;
        double multiplier;
        int divisor;
        double count;
        bool positive;
        const char* word; // nullptr: a number
    };
    MeterDisplay negativeMilli = Display(0, "123.4", 'm');
    negativeMilli.negative = true;
    MeterDisplay celsius = Display(25, "23.5");
    celsius.temperatureUnit = 'C';
    MeterDisplay fahrenheit = Display(25, "74.3");
    fahrenheit.temperatureUnit = 'F';
    const Case cases[] = {
        { Display(0, "1.234"), 0, "V", 1, 1000, 1234, true, nullptr },
        { negativeMilli, 0, "mV", 1e-3, 10, 1234, false, nullptr },
        { Display(1, "230.1"), 1, "V AC", 1, 10, 2301, true, nullptr },
        { Display(2, "345.6", 'u'), 2, "uA", 1e-6, 10, 3456, true, nullptr },
        { Display(8, "4.700", 'K'), 4, "KOHM", 1e3, 1000, 4700, true, nullptr },
        { Display(8, "OPEn", 'M'), 4, "MOHM", 10000, 1, 4000, true, "OPEn" },
        { Display(8, " OF ", 'K'), 4, "KOHM", 1e3, 1, 4000, true, " OF " },
        { Display(9, "47.00", 'n'), 5, "nF", 1e-9, 100, 4700, true, nullptr },
        { Display(11, "1.000", 'K'), 6, "KHz", 1e3, 1000, 1000, true, nullptr },
        { Display(13, "025.0"), 7, "%", 1, 10, 250, true, nullptr },
        { Display(16, "12.34", 'n'), 8, "nS", 1e-9, 100, 1234, true, nullptr },
        { Display(19, "0.612"), 9, "V", 1, 1000, 612, true, nullptr },
        { Display(20, "012.3"), 10, "CONT", 1, 10, 123, true, nullptr },
        { Display(21, " 123"), 11, "hFE", 1, 1, 123, true, nullptr },
        { Display(24, " HI "), 15, "Logic", 1, 1000, 4000, true, " HI " },
        { Display(24, " LO "), 15, "Logic", 1, 1, 0, true, " LO " },
        { celsius, 14,
            "\xC2\xB0"
            "C",
            1, 10, 235, true, nullptr },
        { fahrenheit, 14,
            "\xC2\xB0"
            "F",
            1, 10, 743, true, nullptr },
    };
    for (const Case& c : cases) {
        SCOPED_TRACE("mode " + std::to_string(c.display.mode) + " \"" + c.display.text + "\"");
        std::string error;
        const auto frame = EncodeFrame(c.display, error);
        ASSERT_TRUE(frame) << error;
        ASSERT_TRUE(ventrix::link::ValidateFrame(Bytes(*frame), 0));
        const auto state = Decoded(*frame);
        EXPECT_EQ(state.FunctionKind, c.functionKind);
        EXPECT_EQ(state.UnitLabel, c.unitLabel);
        EXPECT_DOUBLE_EQ(state.UnitMultiplier, c.multiplier);
        EXPECT_EQ(state.DecimalDivisor, c.divisor);
        EXPECT_EQ(state.CountValue, c.count);
        EXPECT_EQ(state.IsPositive, c.positive);
        EXPECT_EQ(state.HasWord, c.word != nullptr);
        if (c.word) {
            EXPECT_EQ(state.DisplayWord, c.word);
        }
    }
}

TEST(FrameEncoder, AnnunciatorsReachTheLcd)
{
    struct Case {
        const char* name;
        void (*set)(MeterDisplay&);
        const char* hold;
        const char* autoRange;
        const char* battery;
        bool minVisible;
        const char* function;
    };
    const Case cases[] = {
        { "plain", [](MeterDisplay&) {}, "", "", "", false, "" },
        { "hold", [](MeterDisplay& d) { d.hold = true; }, "HOLD", "", "", false, "" },
        { "auto", [](MeterDisplay& d) { d.autoRange = true; }, "", "AUTO", "", false, "" },
        { "bat", [](MeterDisplay& d) { d.battery = true; }, "", "", "BAT", false, "" },
        { "min", [](MeterDisplay& d) { d.min = true; }, "", "", "", true, "" },
        { "max", [](MeterDisplay& d) { d.max = true; }, "", "", "", false, "MAX" },
        { "min+max", [](MeterDisplay& d) { d.min = d.max = true; }, "", "", "", true, "MAX" },
        { "rel", [](MeterDisplay& d) { d.rel = true; }, "", "", "", false, "REL" },
        { "diode", [](MeterDisplay& d) { d.mode = 19; }, "", "", "", false, "DIODE" },
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        MeterDisplay display = Display(0, "1.234");
        c.set(display);
        std::string error;
        const auto frame = EncodeFrame(display, error);
        ASSERT_TRUE(frame) << error;
        ASSERT_TRUE(ventrix::link::ValidateFrame(Bytes(*frame), 0));
        auto state = Decoded(*frame);
        state.AwaitingAbsoluteReading = false;
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
    struct Case {
        const char* why;
        MeterDisplay display;
    };
    MeterDisplay relMax = Display(0, "1.234");
    relMax.rel = relMax.max = true;
    MeterDisplay relMin = Display(0, "1.234");
    relMin.rel = relMin.min = true;
    MeterDisplay diodeMin = Display(19, "0.612");
    diodeMin.min = true;
    MeterDisplay kelvin = Display(25, "23.5");
    kelvin.temperatureUnit = 'K';
    const Case cases[] = {
        { "kilo on volts", Display(0, "1.234", 'K') },
        { "nano on ohms", Display(8, "1.234", 'n') },
        { "prefix on duty", Display(13, "025.0", 'm') },
        { "REL with MAX", relMax },
        { "REL with MIN", relMin },
        { "MIN in diode", diodeMin },
        { "two points", Display(0, "1.2.3") },
        { "leading point", Display(0, ".123") },
        { "trailing point", Display(0, "1234.") },
        { "five positions", Display(0, "12345") },
        { "three positions", Display(0, "123") },
        { "letter outside the alphabet", Display(0, "12X4") },
        { "mode 26", Display(26, "1234") },
        { "temperature with four positions", Display(25, "23.45") },
        { "temperature unit", kelvin },
    };
    for (const Case& c : cases) {
        std::string error;
        EXPECT_FALSE(EncodeFrame(c.display, error)) << c.why;
        EXPECT_FALSE(error.empty()) << c.why;
    }
}
