#pragma once

#include <functional>
#include <string>

namespace ventrix::platform {

// The serial line to the meter, shaped like the serial control the handlers were written for:
// a numbered port, a settings string, a receive threshold that raises the receive event, a
// drainable input buffer and an event code per notification. Open() reports failure by its
// result instead of raising an error. Implementations: the QSerialPort adapter (io) and the
// scripted fake (tests).
class SerialPort {
public:
    // CommEvent codes.
    static constexpr int kEvSend = 1;
    static constexpr int kEvReceive = 2;
    static constexpr int kEvCts = 3;
    static constexpr int kEvDsr = 4;
    static constexpr int kEvCd = 5;
    static constexpr int kEvRing = 6;
    static constexpr int kEvEof = 7;
    static constexpr int kErBreak = 1001;
    static constexpr int kErFrame = 1004;
    static constexpr int kErOverrun = 1006;
    static constexpr int kErRxOver = 1008;
    static constexpr int kErRxParity = 1009;
    static constexpr int kErTxFull = 1010;
    static constexpr int kErDcb = 1011;

    virtual ~SerialPort() = default;

    virtual void SetSettings(const std::string& settings) = 0; // "4800,n,8,1"
    virtual std::string Settings() const = 0;
    virtual void SetCommPort(int port) = 0; // 1..4
    virtual int CommPort() const = 0;

    virtual bool IsOpen() const = 0;
    virtual bool Open() = 0; // false when the port cannot be opened; the port stays closed
    virtual void Close() = 0;

    virtual void SetInputLen(int length) = 0; // 0: a read returns everything buffered
    virtual void SetRThreshold(int count) = 0;
    virtual int RThreshold() const = 0;
    virtual int InBufferCount() const = 0;
    virtual void DiscardInput() = 0; // InBufferCount := 0

    virtual int CommEvent() const = 0;
    virtual std::string ReadInput() = 0; // returns and removes the received bytes

    // The receive event: raised with CommEvent() telling why.
    virtual void SetOnComm(std::function<void()> handler) = 0;
};

} // namespace ventrix::platform
