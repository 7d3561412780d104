#include "io/QtSerialPortAdapter.h"
#include "io/TestPty.h"

#include <QTemporaryDir>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <vector>

using namespace std::chrono_literals;
using ventrix::io::ModalGate;
using ventrix::io::QtSerialPortAdapter;
using ventrix::platform::SerialPort;
using ventrix::testing::Spin;
using ventrix::testing::SpinUntil;
using ventrix::testing::TestPty;

namespace {

// Points COM 4 at a device for the life of the object.
struct Com4 {
    explicit Com4(const std::string& path) { setenv("VENTRIX_COM4", path.c_str(), 1); }
    ~Com4() { unsetenv("VENTRIX_COM4"); }
};

double CpuSeconds()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_utime.tv_sec + usage.ru_stime.tv_sec
        + (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

// An adapter on COM 4 that records every event it raises with the bytes read for it.
struct AdapterRig {
    ModalGate gate;
    QtSerialPortAdapter port { gate };
    std::vector<int> events;
    std::vector<std::string> reads;

    AdapterRig()
    {
        port.SetSettings("4800,n,8,1");
        port.SetCommPort(4);
        port.SetRThreshold(9);
        port.SetOnComm([this] {
            events.push_back(port.CommEvent());
            if (port.CommEvent() == SerialPort::kEvReceive)
                reads.push_back(port.ReadInput());
        });
    }
    std::string AllRead() const
    {
        std::string all;
        for (const auto& r : reads)
            all += r;
        return all;
    }
};

} // namespace

TEST(QtSerialPortAdapter, DeliversEverythingBufferedOnceTheThresholdIsReached)
{
    TestPty pty;
    ASSERT_TRUE(pty.Ok());
    Com4 com4(pty.SlavePath());
    AdapterRig rig;
    ASSERT_TRUE(rig.port.Open());
    EXPECT_TRUE(rig.port.IsOpen());
    EXPECT_EQ(rig.port.DeviceName().toStdString(), pty.SlavePath());

    // Below the threshold nothing is delivered, however long we wait.
    ASSERT_TRUE(pty.Write("\x01\x02\x03\x04"));
    Spin(150ms);
    EXPECT_TRUE(rig.events.empty());
    EXPECT_EQ(rig.port.InBufferCount(), 4);

    // The fifth byte completes nine: one event with all nine.
    ASSERT_TRUE(pty.Write("\x05\x06\x07\x08\x09"));
    ASSERT_TRUE(SpinUntil([&] { return rig.reads.size() == 1; }, 2s));
    EXPECT_EQ(rig.reads[0], "\x01\x02\x03\x04\x05\x06\x07\x08\x09");

    // With threshold 10, pieces of 3 bytes are delivered only when 10 or more are waiting, and
    // nothing is lost or repeated.
    rig.port.SetRThreshold(10);
    std::string sent;
    for (int i = 0; i < 10; ++i) {
        const std::string piece { char('a' + i), char('A' + i), char('0' + i) };
        sent += piece;
        ASSERT_TRUE(pty.Write(piece));
        Spin(10ms);
    }
    ASSERT_TRUE(SpinUntil([&] { return rig.AllRead().size() + rig.port.InBufferCount() == 9 + 30; }, 2s));
    EXPECT_LT(rig.port.InBufferCount(), 10);
    for (std::size_t i = 1; i < rig.reads.size(); ++i)
        EXPECT_GE(rig.reads[i].size(), 10u);
    EXPECT_EQ(rig.AllRead() + rig.port.ReadInput(), "\x01\x02\x03\x04\x05\x06\x07\x08\x09" + sent);
    for (int code : rig.events)
        EXPECT_EQ(code, SerialPort::kEvReceive);
}

TEST(QtSerialPortAdapter, HoldsReceiveEventsWhileAModalBoxIsOpen)
{
    TestPty pty;
    ASSERT_TRUE(pty.Ok());
    Com4 com4(pty.SlavePath());
    AdapterRig rig;
    ASSERT_TRUE(rig.port.Open());

    rig.gate.Hold([&] {
        pty.Write("123456789");
        Spin(100ms);
        pty.Write("ABCDEFGHI");
        Spin(100ms);
        EXPECT_TRUE(rig.events.empty()) << "a serial handler ran inside a modal box";
        return 0;
    });
    // Released: one event with both pieces.
    ASSERT_EQ(rig.reads.size(), 1u);
    EXPECT_EQ(rig.reads[0], "123456789ABCDEFGHI");

    // A port closed while the box is open delivers nothing afterwards.
    rig.gate.Hold([&] {
        pty.Write("987654321");
        Spin(100ms);
        rig.port.Close();
        return 0;
    });
    EXPECT_EQ(rig.reads.size(), 1u);
}

TEST(QtSerialPortAdapter, DiscardAndCloseFromInsideTheHandlerAreSafe)
{
    TestPty pty;
    ASSERT_TRUE(pty.Ok());
    Com4 com4(pty.SlavePath());
    ModalGate gate;
    QtSerialPortAdapter port(gate);
    port.SetSettings("4800,n,8,1");
    port.SetCommPort(4);
    port.SetRThreshold(9);
    int calls = 0;
    port.SetOnComm([&] {
        ++calls;
        port.DiscardInput();
        EXPECT_EQ(port.InBufferCount(), 0);
        port.Close();
    });
    ASSERT_TRUE(port.Open());
    pty.Write("123456789123456789");
    ASSERT_TRUE(SpinUntil([&] { return calls > 0; }, 2s));
    Spin(100ms);
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(port.IsOpen());
    // It opens again on the same device.
    EXPECT_TRUE(port.Open());
}

TEST(QtSerialPortAdapter, VanishedDeviceLeavesThePortOpenButSilentWithoutBusyLoop)
{
    TestPty pty;
    ASSERT_TRUE(pty.Ok());
    Com4 com4(pty.SlavePath());
    AdapterRig rig;
    rig.port.SetReopenInterval(50);
    ASSERT_TRUE(rig.port.Open());
    ASSERT_TRUE(rig.port.IsDeviceAttached());

    pty.CloseMaster();
    ASSERT_TRUE(SpinUntil([&] { return !rig.port.IsDeviceAttached(); }, 2s));
    EXPECT_TRUE(rig.port.IsOpen()) << "the handlers must see an open but silent line";

    // Left alone for half a second, the adapter (retrying every 50 ms) must stay nearly idle;
    // an unclosed port would burn the whole half second.
    const double cpuBefore = CpuSeconds();
    Spin(500ms);
    const double cpuUsed = CpuSeconds() - cpuBefore;
    EXPECT_LT(cpuUsed, 0.15);
    EXPECT_TRUE(rig.events.empty());
    EXPECT_TRUE(rig.port.IsOpen());

    rig.port.Close();
    EXPECT_FALSE(rig.port.IsOpen());
}

TEST(QtSerialPortAdapter, ReadingResumesWhenTheDeviceComesBackUnderTheSamePath)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const std::filesystem::path link = dir.filePath("meter").toStdString();
    auto first = std::make_unique<TestPty>();
    ASSERT_TRUE(first->Ok());
    std::filesystem::create_symlink(first->SlavePath(), link);
    Com4 com4(link.string());

    AdapterRig rig;
    rig.port.SetReopenInterval(50);
    ASSERT_TRUE(rig.port.Open());
    first->Write("123456789");
    ASSERT_TRUE(SpinUntil([&] { return rig.reads.size() == 1; }, 2s));

    first->CloseMaster();
    ASSERT_TRUE(SpinUntil([&] { return !rig.port.IsDeviceAttached(); }, 2s));
    Spin(150ms); // a few failed attempts

    // A new device appears under the same path; the adapter finds it by itself.
    TestPty second;
    ASSERT_TRUE(second.Ok());
    std::filesystem::remove(link);
    std::filesystem::create_symlink(second.SlavePath(), link);
    ASSERT_TRUE(SpinUntil([&] { return rig.port.IsDeviceAttached(); }, 2s));
    second.Write("ABCDEFGHI");
    ASSERT_TRUE(SpinUntil([&] { return rig.reads.size() == 2; }, 2s));
    EXPECT_EQ(rig.reads[1], "ABCDEFGHI");

    // After Close() it no longer looks for the device.
    second.CloseMaster();
    ASSERT_TRUE(SpinUntil([&] { return !rig.port.IsDeviceAttached(); }, 2s));
    rig.port.Close();
    TestPty third;
    std::filesystem::remove(link);
    std::filesystem::create_symlink(third.SlavePath(), link);
    Spin(200ms);
    EXPECT_FALSE(rig.port.IsDeviceAttached());
    EXPECT_FALSE(rig.port.IsOpen());
}

TEST(QtSerialPortAdapter, OpenFailsWithoutDeviceOrWithBadSettings)
{
    ModalGate gate;
    QtSerialPortAdapter port(gate);
    port.SetSettings("4800,n,8,1");
    port.SetCommPort(4);
    {
        Com4 com4("/nonexistent/ventrix-port");
        EXPECT_FALSE(port.Open());
        EXPECT_FALSE(port.IsOpen());
    }
    TestPty pty;
    ASSERT_TRUE(pty.Ok());
    Com4 com4(pty.SlavePath());
    port.SetSettings("4800,x,8,1");
    EXPECT_FALSE(port.Open());
    port.SetSettings("4800,n,8,1");
    EXPECT_TRUE(port.Open());
}
