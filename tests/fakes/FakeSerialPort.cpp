#include "fakes/FakeSerialPort.h"

namespace ventrix::fakes {

bool FakeSerialPort::Open()
{
    if (failOpen)
        return false;
    open_ = true;
    ++openCount;
    return true;
}

void FakeSerialPort::Close()
{
    open_ = false;
    ++closeCount;
}

void FakeSerialPort::SetRThreshold(int count)
{
    threshold_ = count;
    thresholdHistory.push_back(static_cast<char>(count < 10 ? '0' + count : 'A' + count - 10));
}

void FakeSerialPort::DiscardInput()
{
    buffer_.clear();
    ++discardCount;
}

std::string FakeSerialPort::ReadInput()
{
    std::string bytes;
    bytes.swap(buffer_);
    return bytes;
}

void FakeSerialPort::Feed(const std::string& bytes)
{
    for (char byte : bytes) {
        buffer_.push_back(byte);
        if (threshold_ > 0 && static_cast<int>(buffer_.size()) >= threshold_)
            RaiseEvent(platform::SerialPort::kEvReceive);
    }
}

void FakeSerialPort::RaiseEvent(int code)
{
    event_ = code;
    if (onComm_)
        onComm_();
}

} // namespace ventrix::fakes
