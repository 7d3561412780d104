#include "io/ComPortMap.h"
#include "io/PortNames.h"
#include "io/SerialSettings.h"
#include "io/TestSupport.h"

#include <gtest/gtest.h>
#include <map>

using ventrix::io::AssignComPorts;
using ventrix::io::SerialDeviceInfo;
using ventrix::io::SerialSettings;

TEST(SerialSettings, ParsesTheSettingsString)
{
    const auto other = SerialSettings::Parse("9600, E ,7,1.5");
    ASSERT_TRUE(other);
    EXPECT_EQ(other->baudRate, 9600);
    EXPECT_EQ(other->parity, SerialSettings::Parity::Even);
    EXPECT_EQ(other->dataBits, 7);
    EXPECT_EQ(other->stopBits, SerialSettings::StopBits::OneAndHalf);

    for (const char* bad : { "", "4800,n,8", "48OO,n,8,1", "4800,n,9,1", "4800,n,8," })
        EXPECT_FALSE(SerialSettings::Parse(bad)) << '"' << bad << '"';
}

TEST(ComPortMap, UsbAdaptersComeFirstInNaturalOrder)
{
    const std::vector<SerialDeviceInfo> found { { "/dev/ttyS1", "", "" }, { "/dev/ttyUSB10", "", "" },
        { "/dev/ttyS0", "", "" }, { "/dev/ttyACM0", "Modem", "" },
        { "/dev/ttyUSB2", "FT232R USB UART", "FTDI" } };
    const auto ports = AssignComPorts(found, nullptr);
    std::vector<std::string> devices;
    for (const auto& port : ports)
        devices.push_back(port.device);
    EXPECT_EQ(devices,
        (std::vector<std::string> { "/dev/ttyUSB2", "/dev/ttyUSB10", "/dev/ttyACM0", "/dev/ttyS0" }));
    EXPECT_EQ(ports[0].description, "COM 1: /dev/ttyUSB2 (FT232R USB UART, FTDI)");
    EXPECT_EQ(ports[1].description, "COM 2: /dev/ttyUSB10");
}

TEST(ComPortMap, DeveloperSettingWinsAndFoundDevicesFillTheRest)
{
    const std::vector<SerialDeviceInfo> found { { "/dev/ttyUSB0", "", "" }, { "/dev/ttyUSB1", "", "" } };
    const std::map<int, std::string> settings { { 1, "/dev/pts/7" }, { 3, "/dev/ttyUSB1" }, { 4, "" } };
    const auto ports = AssignComPorts(found, [&](int n) -> std::optional<std::string> {
        auto it = settings.find(n);
        return it == settings.end() ? std::nullopt : std::optional(it->second);
    });
    EXPECT_EQ(ports[0].device, "/dev/pts/7");
    EXPECT_EQ(ports[0].description, "COM 1: /dev/pts/7 (set by VENTRIX_COM1)");
    EXPECT_EQ(ports[1].device, "/dev/ttyUSB0");
    EXPECT_EQ(ports[2].device, "/dev/ttyUSB1");
    // ttyUSB1 is taken by COM 3 and an empty setting counts as unset: nothing left for COM 4.
    EXPECT_EQ(ports[3].device, "");
    EXPECT_EQ(ports[3].description, "COM 4: no serial device");
}

TEST(PortNames, EnvironmentPointsAComNumberAtADevice)
{
    {
        ventrix::testing::ScopedEnv com3("VENTRIX_COM3", "/dev/pts/42");
        EXPECT_EQ(ventrix::io::DeviceForComPort(3).toStdString(), "/dev/pts/42");
        EXPECT_EQ(ventrix::io::DescribeComPort(3).toStdString(), "COM 3: /dev/pts/42 (set by VENTRIX_COM3)");
    }
    EXPECT_NE(ventrix::io::DeviceForComPort(3).toStdString(), "/dev/pts/42");
    EXPECT_TRUE(ventrix::io::DeviceForComPort(0).isEmpty());
    EXPECT_TRUE(ventrix::io::DeviceForComPort(5).isEmpty());
}
