#pragma once

#include <QEventLoop>
#include <QTimer>
#include <cerrno>
#include <chrono>
#include <functional>
#include <pty.h>
#include <string>
#include <termios.h>
#include <unistd.h>

namespace ventrix::testing {

// A pseudo-terminal pair for serial tests: the test writes to the master end, the code under
// test opens the slave path like a serial device. Closing the master makes the device vanish.
class TestPty {
public:
    TestPty()
    {
        char name[256] = {};
        int slave = -1;
        if (openpty(&m_master, &slave, name, nullptr, nullptr) != 0)
            return;
        termios raw {};
        tcgetattr(m_master, &raw);
        cfmakeraw(&raw);
        tcsetattr(m_master, TCSANOW, &raw);
        ::close(slave); // the code under test opens it again by name
        m_slavePath = name;
    }
    ~TestPty() { CloseMaster(); }
    TestPty(const TestPty&) = delete;
    TestPty& operator=(const TestPty&) = delete;

    bool Ok() const { return m_master >= 0; }
    const std::string& SlavePath() const { return m_slavePath; }

    bool Write(const std::string& bytes)
    {
        std::size_t done = 0;
        while (done < bytes.size()) {
            const ssize_t n = ::write(m_master, bytes.data() + done, bytes.size() - done);
            if (n < 0 && errno == EINTR)
                continue;
            if (n <= 0)
                return false;
            done += static_cast<std::size_t>(n);
        }
        return true;
    }

    void CloseMaster()
    {
        if (m_master >= 0)
            ::close(m_master);
        m_master = -1;
    }

private:
    int m_master = -1;
    std::string m_slavePath;
};

// Runs the Qt event loop until the condition holds or the time is up; returns the condition.
inline bool SpinUntil(const std::function<bool()>& condition, std::chrono::milliseconds timeout)
{
    const auto end = std::chrono::steady_clock::now() + timeout;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= end)
            return false;
        QEventLoop loop;
        QTimer::singleShot(5, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return true;
}

// Runs the Qt event loop for the given time.
inline void Spin(std::chrono::milliseconds duration)
{
    SpinUntil([] { return false; }, duration);
}

} // namespace ventrix::testing
