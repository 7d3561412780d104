#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ventrix::io {

// A serial device found on the machine.
struct SerialDeviceInfo {
    std::string systemLocation; // "/dev/ttyUSB0"
    std::string description; // "FT232R USB UART", may be empty
    std::string manufacturer; // may be empty
};

// What COM n stands for on this machine.
struct ComPortAssignment {
    std::string device; // empty when nothing stands behind this number
    std::string description; // human text for the COM menu item's status tip
};

// Gives the numbers COM 1 to COM 4 their devices on a Unix-like system. A developer setting
// (a device path for a number, e.g. a pseudo-terminal) wins for its number; the other numbers
// take the devices found, in a stable order: USB serial adapters (ttyUSB*), then USB modems
// (ttyACM*), then other devices, then the built-in ttyS* ports, each group in natural order
// (ttyUSB2 before ttyUSB10). Does not look at the machine itself: the caller hands it the
// devices found and the developer settings.
std::array<ComPortAssignment, 4> AssignComPorts(std::vector<SerialDeviceInfo> found,
    const std::function<std::optional<std::string>(int comNumber)>& developerSetting);

// Order used above: true when a comes before b.
bool ComesBefore(const std::string& systemLocationA, const std::string& systemLocationB);

} // namespace ventrix::io
