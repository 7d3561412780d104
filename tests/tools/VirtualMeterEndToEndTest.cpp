#include "display/AnalogGauge.h"
#include "display/VirtualLcd.h"
#include "fakes/TestRig.h"
#include "io/ModalGate.h"
#include "io/QtSerialPortAdapter.h"
#include "io/TestSupport.h"
#include "link/FrameDecoder.h"
#include "link/SerialLink.h"

#include <QProcess>
#include <gtest/gtest.h>

using namespace std::chrono_literals;
using ventrix::testing::SpinUntil;

// The virtual meter on a pseudo-terminal, the real QSerialPort path and the program's link
// handlers: readings must arrive in the shared state.
TEST(VirtualMeterEndToEnd, ReadingsArriveInTheState)
{
    QProcess meter;
    meter.start(VENTRIX_CLI_PATH, { "meter", "--rate", "10" });
    ASSERT_TRUE(meter.waitForStarted(5000));
    ASSERT_TRUE(meter.waitForReadyRead(5000));
    const QByteArray device = meter.readLine().trimmed();
    ASSERT_TRUE(device.startsWith("/dev/")) << device.toStdString();
    ventrix::testing::ScopedEnv com1("VENTRIX_COM1", device.constData());

    ventrix::fakes::TestRig rig;
    ventrix::io::ModalGate gate;
    ventrix::io::QtSerialPortAdapter port(gate);
    ventrix::platform::Services services { port,
        { rig.unlinkTimer, rig.sampleTimer, rig.analogTimer, rig.debugTimer }, rig.clock, rig.dialogs,
        rig.graph, rig.knob, rig.spreadsheet, rig.printer, rig.paths, rig.shell, rig.graphPrint };
    ventrix::display::VirtualLcd lcd(rig.state, rig.controls);
    ventrix::display::AnalogGauge gauge(rig.state, rig.knob, rig.analogTimer);
    ventrix::link::SerialLink link(rig.state, rig.controls, services, lcd, gauge);
    port.SetOnComm([&] { link.OnComm(); });
    rig.state.SpecialWordTable = ventrix::link::kSpecialWordTable;
    rig.state.ComPortNumber = 1;
    port.SetSettings("4800,n,8,1");

    link.StartAcquisition();
    EXPECT_TRUE(rig.state.IsAcquiring);
    EXPECT_TRUE(port.IsOpen());
    EXPECT_EQ(port.DeviceName().toStdString(), device.toStdString());

    // The demonstration opens with two seconds of volts DC; a few frames at most are lost to
    // alignment.
    ASSERT_TRUE(SpinUntil([&] { return rig.state.HasNewFrame; }, 5s)) << "no frame accepted";
    EXPECT_EQ(rig.state.FunctionKind, 0);
    EXPECT_EQ(rig.state.UnitLabel, "V");
    EXPECT_EQ(rig.state.DecimalDivisor, 1000);
    EXPECT_FALSE(rig.state.AwaitingAbsoluteReading);
    EXPECT_EQ(rig.controls.MODE_LBL.Caption(), "V");
    EXPECT_EQ(rig.controls.AUTO_LBL.Caption(), "AUTO");
    EXPECT_TRUE(rig.unlinkTimer.Enabled());

    link.StopAcquisition();
    EXPECT_FALSE(port.IsOpen());

    // Stop and start again: the same device opens again and frames keep coming.
    link.StartAcquisition();
    EXPECT_TRUE(port.IsOpen());
    EXPECT_FALSE(rig.state.HasNewFrame);
    EXPECT_TRUE(SpinUntil([&] { return rig.state.HasNewFrame; }, 5s)) << "no frame after a restart";
    link.StopAcquisition();

    meter.terminate();
    ASSERT_TRUE(meter.waitForFinished(3000));
    EXPECT_EQ(meter.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(meter.exitCode(), 0);
}
