#include "ventrix-cli/FrameEncoder.h"

#include "link/FrameValidator.h"

#include <vector>

namespace ventrix::cli {

namespace {

constexpr std::uint8_t kPoint = 0x08; // decimal point bit of a digit position

// Segment pattern of a character of the meter's alphabet; nothing when it has none.
std::optional<std::uint8_t> Segments(char c)
{
    switch (c) {
    case ' ':
        return 0x00;
    case '0':
    case 'O':
        return 0xD7;
    case '1':
        return 0x50;
    case '2':
        return 0xB5;
    case '3':
        return 0xF1;
    case '4':
        return 0x72;
    case '5':
    case 'S':
        return 0xE3;
    case '6':
        return 0xE7;
    case '7':
        return 0x51;
    case '8':
        return 0xF7;
    case '9':
        return 0xF3;
    case 'I':
        return 0x06;
    case '-':
        return 0x20;
    case 'r':
        return 0x24;
    case 'F':
        return 0x27;
    case 'P':
        return 0x37;
    case 'n':
        return 0x64;
    case 'h':
        return 0x66;
    case 'H':
        return 0x76;
    case 'L':
        return 0x86;
    case 'C':
        return 0x87;
    case 'c':
        return 0xA4;
    case 't':
        return 0xA6;
    case 'E':
        return 0xA7;
    case 'o':
        return 0xE4;
    case 'b':
        return 0xE6;
    case 'd':
        return 0xF4;
    default:
        return std::nullopt;
    }
}

// How the meter lights the unit and prefix segments of one function.
struct FunctionSegments {
    std::uint8_t byte2; // unit segments of byte 2
    std::uint8_t byte3; // unit segments of byte 3
    std::uint8_t byte8; // unit segments of byte 8 (besides the always-lit 0x02)
    std::string prefixes; // prefixes this function shows
    bool annunciators; // MIN, MAX and REL exist in this function
};

std::optional<FunctionSegments> SegmentsOfMode(std::uint8_t mode)
{
    if (mode == 0)
        return FunctionSegments { 0x02, 0x00, 0x00, "m", true };
    if (mode == 1)
        return FunctionSegments { 0x02, 0x00, 0x04, "m", true };
    if (mode >= 2 && mode <= 4)
        return FunctionSegments { 0x04, 0x00, 0x00, "mu", true };
    if (mode >= 5 && mode <= 7)
        return FunctionSegments { 0x04, 0x00, 0x04, "mu", true };
    if (mode == 8)
        return FunctionSegments { 0x40, 0x00, 0x00, "KM", true };
    if (mode == 9)
        return FunctionSegments { 0x08, 0x00, 0x00, "nu", true };
    if (mode >= 10 && mode <= 12)
        return FunctionSegments { 0x80, 0x00, 0x00, "KM", true };
    if (mode >= 13 && mode <= 15)
        return FunctionSegments { 0x00, 0x08, 0x00, "", true };
    if (mode >= 16 && mode <= 18)
        return FunctionSegments { 0x00, 0x10, 0x00, "num", true };
    if (mode == 19)
        return FunctionSegments { 0x02, 0x00, 0x40, "", false };
    if (mode == 20)
        return FunctionSegments { 0x00, 0x00, 0x80, "", false };
    if (mode == 21)
        return FunctionSegments { 0x00, 0x04, 0x00, "", false };
    if (mode == 22)
        return FunctionSegments { 0x02, 0x00, 0x00, "", false };
    if (mode == 23)
        return FunctionSegments { 0x00, 0x20, 0x00, "", false };
    if (mode == 24 || mode == 25)
        return FunctionSegments { 0x00, 0x00, 0x00, "", false };
    return std::nullopt;
}

void SetPrefix(char prefix, std::uint8_t& byte2, std::uint8_t& byte3)
{
    switch (prefix) {
    case 'n':
        byte3 |= 0x40;
        break;
    case 'u':
        byte3 |= 0x80;
        break;
    case 'm':
        byte2 |= 0x01;
        break;
    case 'K':
        byte2 |= 0x20;
        break;
    case 'M':
        byte2 |= 0x10;
        break;
    default:
        break;
    }
}

} // namespace

std::optional<RawFrame> EncodeFrame(const MeterDisplay& display, std::string& error)
{
    const std::optional<FunctionSegments> function = SegmentsOfMode(display.mode);
    if (!function) {
        error = "mode " + std::to_string(display.mode) + " does not exist";
        return std::nullopt;
    }
    if (display.prefix != 0 && function->prefixes.find(display.prefix) == std::string::npos) {
        error = std::string("mode ") + std::to_string(display.mode) + " has no prefix " + display.prefix;
        return std::nullopt;
    }
    if (!function->annunciators && (display.min || display.max || display.rel)) {
        error = "mode " + std::to_string(display.mode) + " shows no MIN, MAX or REL";
        return std::nullopt;
    }
    if (display.rel && (display.min || display.max)) {
        error = "REL does not show together with MIN or MAX";
        return std::nullopt;
    }

    // Digit positions left to right; a point marks the position that follows it.
    const bool temperature = display.mode == 25;
    const std::size_t positions = temperature ? 3 : 4;
    std::vector<std::uint8_t> digits;
    bool pointPending = false;
    bool pointSeen = false;
    for (char c : display.text) {
        if (c == '.') {
            if (pointSeen || digits.empty()) {
                error = "misplaced decimal point in \"" + display.text + "\"";
                return std::nullopt;
            }
            pointSeen = pointPending = true;
            continue;
        }
        const std::optional<std::uint8_t> pattern = Segments(c);
        if (!pattern) {
            error = std::string("the meter cannot show '") + c + "'";
            return std::nullopt;
        }
        digits.push_back(static_cast<std::uint8_t>(*pattern | (pointPending ? kPoint : 0)));
        pointPending = false;
    }
    if (digits.size() != positions || pointPending) {
        error = "\"" + display.text + "\" does not fill " + std::to_string(positions) + " positions";
        return std::nullopt;
    }
    if (temperature) {
        if (display.temperatureUnit != 'C' && display.temperatureUnit != 'F') {
            error = "temperature unit must be C or F";
            return std::nullopt;
        }
        digits.push_back(*Segments(display.temperatureUnit));
    }

    RawFrame frame {};
    std::uint8_t byte2 = function->byte2;
    std::uint8_t byte3 = function->byte3;
    SetPrefix(display.prefix, byte2, byte3);
    if (display.min)
        byte3 |= 0x01;
    if (display.rel)
        byte3 |= 0x02;
    std::uint8_t byte8 = static_cast<std::uint8_t>(0x02 | function->byte8);
    if (display.autoRange)
        byte8 |= 0x01;
    if (display.negative)
        byte8 |= 0x08;
    if (display.hold)
        byte8 |= 0x10;
    if (display.battery)
        byte8 |= 0x20;

    frame[0] = display.mode;
    frame[1] = byte2;
    frame[2] = byte3;
    frame[3] = digits[3]; // units position
    frame[4] = digits[2];
    frame[5] = digits[1];
    frame[6] = static_cast<std::uint8_t>(digits[0] | (display.max ? 0x08 : 0)); // MAX shares byte 7
    frame[7] = byte8;
    frame[8] = link::ComputeChecksum(std::string(frame.begin(), frame.end()), 0);
    return frame;
}

} // namespace ventrix::cli
