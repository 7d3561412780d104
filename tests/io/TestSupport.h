#pragma once

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <cstdlib>
#include <functional>
#include <optional>
#include <pty.h>
#include <string>
#include <termios.h>
#include <unistd.h>

namespace ventrix::testing {

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

inline void Spin(std::chrono::milliseconds duration)
{
    SpinUntil([] { return false; }, duration);
}

// Once `afterMs` have passed and a modal box of type Box is open, hands it to `act` (which must
// close it). Polls from the event loop that the box runs, for about five seconds at most.
template <typename Box> void WhenModalShown(std::function<void(Box*)> act, int afterMs = 5, int tries = 1000)
{
    QTimer::singleShot(afterMs, [act, tries] {
        if (auto* box = qobject_cast<Box*>(QApplication::activeModalWidget()))
            act(box);
        else if (tries > 0)
            WhenModalShown<Box>(act, 5, tries - 1);
    });
}

// Sets (or, with nullptr, clears) an environment variable for a scope and puts the old value back.
class ScopedEnv {
public:
    ScopedEnv(const char* name, const char* value)
        : m_name(name)
    {
        if (const char* old = std::getenv(name))
            m_old = old;
        value ? setenv(name, value, 1) : unsetenv(name);
    }
    ~ScopedEnv() { m_old ? setenv(m_name, m_old->c_str(), 1) : unsetenv(m_name); }

private:
    const char* m_name;
    std::optional<std::string> m_old;
};

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

    const std::string& SlavePath() const { return m_slavePath; }
    // The pieces are small: one write takes them whole.
    bool Write(const std::string& bytes) const
    {
        return ::write(m_master, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
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

} // namespace ventrix::testing
