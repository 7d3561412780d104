#include "io/ComPortMap.h"

#include <algorithm>
#include <cctype>
#include <tuple>

namespace ventrix::io {

namespace {

std::string BaseName(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

int Group(const std::string& name)
{
    if (name.starts_with("ttyUSB"))
        return 0;
    if (name.starts_with("ttyACM"))
        return 1;
    if (name.starts_with("ttyS"))
        return 3;
    return 2;
}

// Splits "ttyUSB10" into "ttyUSB" and 10 so that numbers compare as numbers.
std::tuple<std::string, long> NaturalKey(const std::string& name)
{
    std::size_t digits = name.size();
    while (digits > 0 && std::isdigit(static_cast<unsigned char>(name[digits - 1])))
        --digits;
    const std::string tail = name.substr(digits);
    long number = -1;
    if (!tail.empty() && tail.size() < 10)
        number = std::stol(tail);
    return { name.substr(0, digits), number };
}

std::string Describe(int comNumber, const std::string& device, const std::string& detail)
{
    std::string text = "COM " + std::to_string(comNumber) + ": " + device;
    if (!detail.empty())
        text += " (" + detail + ")";
    return text;
}

} // namespace

bool ComesBefore(const std::string& systemLocationA, const std::string& systemLocationB)
{
    const std::string a = BaseName(systemLocationA);
    const std::string b = BaseName(systemLocationB);
    return std::tuple(Group(a), NaturalKey(a), systemLocationA)
        < std::tuple(Group(b), NaturalKey(b), systemLocationB);
}

std::array<ComPortAssignment, 4> AssignComPorts(std::vector<SerialDeviceInfo> found,
    const std::function<std::optional<std::string>(int comNumber)>& developerSetting)
{
    std::sort(found.begin(), found.end(), [](const SerialDeviceInfo& a, const SerialDeviceInfo& b) {
        return ComesBefore(a.systemLocation, b.systemLocation);
    });

    std::array<ComPortAssignment, 4> result;
    std::vector<bool> taken(found.size(), false);
    for (int n = 1; n <= 4; ++n) {
        const std::optional<std::string> path = developerSetting ? developerSetting(n) : std::nullopt;
        if (!path || path->empty())
            continue;
        result[n - 1] = { *path, Describe(n, *path, "set by VENTRIX_COM" + std::to_string(n)) };
        // A device named by a developer setting is not handed out a second time.
        for (std::size_t i = 0; i < found.size(); ++i)
            if (found[i].systemLocation == *path)
                taken[i] = true;
    }

    std::size_t next = 0;
    for (int n = 1; n <= 4; ++n) {
        if (!result[n - 1].device.empty())
            continue;
        while (next < found.size() && taken[next])
            ++next;
        if (next == found.size()) {
            result[n - 1] = { "", "COM " + std::to_string(n) + ": no serial device" };
            continue;
        }
        const SerialDeviceInfo& device = found[next++];
        std::string detail = device.description;
        if (!device.manufacturer.empty() && device.manufacturer != device.description)
            detail += (detail.empty() ? "" : ", ") + device.manufacturer;
        result[n - 1] = { device.systemLocation, Describe(n, device.systemLocation, detail) };
    }
    return result;
}

} // namespace ventrix::io
