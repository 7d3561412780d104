#include "io/QtSerialPortAdapter.h"
#include "io/TestSupport.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <vector>

using namespace std::chrono_literals;
using ventrix::io::ModalGate;
using ventrix::io::QtSerialPortAdapter;
using ventrix::platform::SerialPort;
using ventrix::testing::ScopedEnv;
using ventrix::testing::Spin;
using ventrix::testing::SpinUntil;
using ventrix::testing::TestPty;

namespace {

double CpuSeconds()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_utime.tv_sec + usage.ru_stime.tv_sec
        + (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

// A pseudo-terminal behind COM 4 (or another path given for COM 4) and an adapter on COM 4 that
// records every event it raises with the bytes read for it.
struct AdapterRig {
    TestPty pty;
    ScopedEnv com4;
    ModalGate gate;
    QtSerialPortAdapter port { gate };
    std::vector<int> events;
    std::vector<std::string> reads;
    std::string allRead;

    explicit AdapterRig(const std::string& device = {})
        : com4("VENTRIX_COM4", (device.empty() ? pty.SlavePath() : device).c_str())
    {
        port.SetSettings("4800,n,8,1");
        port.SetCommPort(4);
        port.SetRThreshold(9);
        port.SetOnComm([this] {
            events.push_back(port.CommEvent());
            if (port.CommEvent() == SerialPort::kEvReceive)
                allRead += reads.emplace_back(port.ReadInput());
        });
    }
};

} // namespace

TEST(QtSerialPortAdapter, DeliversEverythingBufferedOnceTheThresholdIsReached)
{
    AdapterRig rig;
    rig.port.SetSettings("4800,x,8,1");
    EXPECT_FALSE(rig.port.Open()) << "bad settings";
    rig.port.SetSettings("4800,n,8,1");
    ASSERT_TRUE(rig.port.Open());
    EXPECT_TRUE(rig.port.IsOpen());
    EXPECT_EQ(rig.port.DeviceName().toStdString(), rig.pty.SlavePath());

    // Below the threshold nothing is delivered, however long we wait.
    ASSERT_TRUE(rig.pty.Write("\x01\x02\x03\x04"));
    Spin(150ms);
    EXPECT_TRUE(rig.events.empty());
    EXPECT_EQ(rig.port.InBufferCount(), 4);

    // The fifth byte completes nine: one event with all nine.
    ASSERT_TRUE(rig.pty.Write("\x05\x06\x07\x08\x09"));
    ASSERT_TRUE(SpinUntil([&] { return rig.reads.size() == 1; }, 2s));
    EXPECT_EQ(rig.reads[0], "\x01\x02\x03\x04\x05\x06\x07\x08\x09");

    // With threshold 10, pieces of 3 bytes are delivered only when 10 or more are waiting, and
    // nothing is lost or repeated.
    rig.port.SetRThreshold(10);
    std::string sent;
    for (int i = 0; i < 10; ++i) {
        const std::string piece { char('a' + i), char('A' + i), char('0' + i) };
        sent += piece;
        ASSERT_TRUE(rig.pty.Write(piece));
        Spin(10ms);
    }
    ASSERT_TRUE(SpinUntil([&] { return rig.allRead.size() + rig.port.InBufferCount() == 9 + 30; }, 2s));
    EXPECT_LT(rig.port.InBufferCount(), 10);
    for (std::size_t i = 1; i < rig.reads.size(); ++i)
        EXPECT_GE(rig.reads[i].size(), 10u);
    EXPECT_EQ(rig.allRead + rig.port.ReadInput(), "\x01\x02\x03\x04\x05\x06\x07\x08\x09" + sent);
    for (int code : rig.events)
        EXPECT_EQ(code, SerialPort::kEvReceive);
}

TEST(QtSerialPortAdapter, HoldsReceiveEventsWhileAModalBoxIsOpen)
{
    AdapterRig rig;
    ASSERT_TRUE(rig.port.Open());
    rig.gate.Hold([&] {
        rig.pty.Write("123456789");
        Spin(100ms);
        rig.pty.Write("ABCDEFGHI");
        Spin(100ms);
        EXPECT_TRUE(rig.events.empty()) << "a serial handler ran inside a modal box";
        return 0;
    });
    // Released: one event with both pieces, from the event loop.
    QCoreApplication::sendPostedEvents();
    ASSERT_EQ(rig.reads.size(), 1u);
    EXPECT_EQ(rig.reads[0], "123456789ABCDEFGHI");

    // A port closed while the box is open delivers nothing afterwards.
    rig.gate.Hold([&] {
        rig.pty.Write("987654321");
        Spin(100ms);
        rig.port.Close();
        return 0;
    });
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(rig.reads.size(), 1u);
}

TEST(QtSerialPortAdapter, DiscardAndCloseFromInsideTheHandlerAreSafe)
{
    AdapterRig rig;
    int calls = 0;
    rig.port.SetOnComm([&] {
        ++calls;
        rig.port.DiscardInput();
        EXPECT_EQ(rig.port.InBufferCount(), 0);
        rig.port.Close();
    });
    ASSERT_TRUE(rig.port.Open());
    rig.pty.Write("123456789123456789");
    ASSERT_TRUE(SpinUntil([&] { return calls > 0; }, 2s));
    Spin(100ms);
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(rig.port.IsOpen());
    EXPECT_TRUE(rig.port.Open()) << "it opens again on the same device";
}

// The device vanishes (its pseudo-terminal closes) and later another one appears under the
// same path: the port stays open but silent, retries without a busy loop, and reads again.
TEST(QtSerialPortAdapter, VanishedDeviceIsRetriedQuietlyAndFoundAgainUnderTheSamePath)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const std::string link = dir.filePath("meter").toStdString();
    AdapterRig rig(link);
    EXPECT_FALSE(rig.port.Open()) << "no device behind the path yet";
    EXPECT_FALSE(rig.port.IsOpen());
    std::filesystem::create_symlink(rig.pty.SlavePath(), link);
    rig.port.SetReopenInterval(50);
    ASSERT_TRUE(rig.port.Open());
    ASSERT_TRUE(rig.port.IsDeviceAttached());
    rig.pty.Write("123456789");
    ASSERT_TRUE(SpinUntil([&] { return rig.reads.size() == 1; }, 2s));

    // The device that will come back is another pseudo-terminal under the same path (made now,
    // so that it gets another number). Unplugged: the device and its path go away.
    TestPty second;
    rig.pty.CloseMaster();
    std::filesystem::remove(link);
    ASSERT_TRUE(SpinUntil([&] { return !rig.port.IsDeviceAttached(); }, 2s));
    EXPECT_TRUE(rig.port.IsOpen()) << "the handlers must see an open but silent line";
    // Left alone for half a second, the adapter (retrying every 50 ms) must stay nearly idle;
    // an unclosed port would burn the whole half second.
    const double cpuBefore = CpuSeconds();
    Spin(500ms);
    EXPECT_LT(CpuSeconds() - cpuBefore, 0.15);
    EXPECT_EQ(rig.events.size(), 1u);
    EXPECT_TRUE(rig.port.IsOpen());

    std::filesystem::create_symlink(second.SlavePath(), link);
    ASSERT_TRUE(SpinUntil([&] { return rig.port.IsDeviceAttached(); }, 2s));
    second.Write("ABCDEFGHI");
    ASSERT_TRUE(SpinUntil([&] { return rig.reads.size() == 2; }, 2s));
    EXPECT_EQ(rig.reads[1], "ABCDEFGHI");
}

TEST(QtSerialPortAdapter, DoesNotTakeOverANewTerminalWithTheVanishedOnesNumber)
{
    AdapterRig rig;
    rig.port.SetReopenInterval(20);
    ASSERT_TRUE(rig.port.Open());
    const std::string vanished = rig.pty.SlavePath();
    rig.pty.CloseMaster();
    ASSERT_TRUE(SpinUntil([&] { return !rig.port.IsDeviceAttached(); }, 2000ms));
    TestPty next; // the lowest free number: usually the one just freed
    if (next.SlavePath() != vanished)
        GTEST_SKIP() << "the new terminal got another number";
    next.Write("typed at a shell");
    Spin(200ms);
    EXPECT_FALSE(rig.port.IsDeviceAttached());
    EXPECT_TRUE(rig.allRead.empty());
}
