#include "io/QtSerialPortAdapter.h"

#include "io/PortNames.h"
#include "io/SerialSettings.h"

#ifdef Q_OS_LINUX
#include <sys/stat.h>
#include <sys/sysmacros.h>
#endif

namespace ventrix::io {

namespace {

QSerialPort::Parity ToQt(SerialSettings::Parity parity)
{
    switch (parity) {
    case SerialSettings::Parity::Even:
        return QSerialPort::EvenParity;
    case SerialSettings::Parity::Odd:
        return QSerialPort::OddParity;
    case SerialSettings::Parity::Mark:
        return QSerialPort::MarkParity;
    case SerialSettings::Parity::Space:
        return QSerialPort::SpaceParity;
    case SerialSettings::Parity::None:
        break;
    }
    return QSerialPort::NoParity;
}

QSerialPort::StopBits ToQt(SerialSettings::StopBits stopBits)
{
    switch (stopBits) {
    case SerialSettings::StopBits::OneAndHalf:
        return QSerialPort::OneAndHalfStop;
    case SerialSettings::StopBits::Two:
        return QSerialPort::TwoStop;
    case SerialSettings::StopBits::One:
        break;
    }
    return QSerialPort::OneStop;
}

// The device number behind a path, or 0.
unsigned long DeviceNumber(const QString& path)
{
#ifdef Q_OS_LINUX
    struct stat info { };
    if (::stat(path.toLocal8Bit().constData(), &info) == 0)
        return static_cast<unsigned long>(info.st_rdev);
#else
    (void)path;
#endif
    return 0;
}

// A pseudo-terminal whose other end has closed never comes back: a new one that gets the same
// number is somebody else's terminal (a new terminal window, say) and must not be taken over.
// A path that now leads to another pseudo-terminal, or a USB adapter plugged in again, is fine.
bool IsSamePseudoTerminal(unsigned long before, unsigned long now)
{
#ifdef Q_OS_LINUX
    const unsigned int major = ::major(static_cast<dev_t>(now));
    return before != 0 && before == now && major >= 136 && major <= 143;
#else
    (void)before;
    (void)now;
    return false;
#endif
}

} // namespace

QtSerialPortAdapter::QtSerialPortAdapter(ModalGate& gate, QObject* parent)
    : QObject(parent)
    , m_gate(gate)
{
    m_reopen.setInterval(1000);
    connect(&m_serial, &QSerialPort::readyRead, this, &QtSerialPortAdapter::OnReadyRead);
    connect(&m_serial, &QSerialPort::errorOccurred, this, &QtSerialPortAdapter::OnError);
    connect(&m_reopen, &QTimer::timeout, this, &QtSerialPortAdapter::TryReopen);
}

QtSerialPortAdapter::~QtSerialPortAdapter()
{
    // Closing may report an error; no handler of a half-destroyed adapter may run then.
    m_serial.disconnect(this);
    m_reopen.stop();
    if (m_serial.isOpen())
        m_serial.close();
    m_gate.Forget(this);
    m_gate.Forget(&m_errorSource);
}

int QtSerialPortAdapter::EventCodeFor(QSerialPort::SerialPortError error)
{
    switch (error) {
    case QSerialPort::BreakConditionError:
        return kErBreak;
    case QSerialPort::FramingError:
        return kErFrame;
    case QSerialPort::ParityError:
        return kErRxParity;
    case QSerialPort::WriteError:
        return kErTxFull;
    case QSerialPort::UnknownError:
        return kErDcb;
    default:
        // NoError and UnsupportedOperationError (pin signals on a pseudo-terminal) mean nothing
        // here; open failures are Open()'s result; a vanished device is handled apart.
        return 0;
    }
}

bool QtSerialPortAdapter::Open()
{
    if (m_open)
        return true;
    const std::optional<SerialSettings> settings = SerialSettings::Parse(m_settings);
    if (!settings)
        return false;
    const QString device = DeviceForComPort(m_port);
    if (device.isEmpty())
        return false;

    m_serial.setPortName(device);
    m_serial.setBaudRate(settings->baudRate);
    m_serial.setParity(ToQt(settings->parity));
    m_serial.setDataBits(static_cast<QSerialPort::DataBits>(settings->dataBits));
    m_serial.setStopBits(ToQt(settings->stopBits));
    m_serial.setFlowControl(QSerialPort::NoFlowControl);
    if (!OpenDevice())
        return false;
    m_device = device;
    m_deviceNumber = DeviceNumber(device);
    m_buffer.clear();
    m_open = true;
    return true;
}

bool QtSerialPortAdapter::OpenDevice()
{
    // The line parameters set before open() are applied by open().
    if (!m_serial.open(QIODevice::ReadOnly))
        return false;
    m_serial.clearError();
    return true;
}

void QtSerialPortAdapter::Close()
{
    m_open = false;
    m_reopen.stop();
    if (m_serial.isOpen())
        m_serial.close();
    m_buffer.clear();
    m_gate.Forget(this);
    m_gate.Forget(&m_errorSource);
}

void QtSerialPortAdapter::DiscardInput()
{
    m_buffer.clear();
    if (m_serial.isOpen())
        m_serial.readAll();
}

std::string QtSerialPortAdapter::ReadInput()
{
    std::string bytes;
    if (m_inputLen > 0 && static_cast<int>(m_buffer.size()) > m_inputLen) {
        bytes = m_buffer.substr(0, m_inputLen);
        m_buffer.erase(0, m_inputLen);
    } else {
        bytes.swap(m_buffer);
    }
    return bytes;
}

void QtSerialPortAdapter::OnReadyRead()
{
    const QByteArray bytes = m_serial.readAll();
    m_buffer.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    if (m_threshold > 0 && static_cast<int>(m_buffer.size()) >= m_threshold)
        m_gate.Dispatch(this, [this] { DeliverReceive(); });
}

void QtSerialPortAdapter::DeliverReceive()
{
    // Checked again: while the event waited behind a modal box, the port may have been closed
    // or its buffer discarded.
    if (!m_open || m_threshold <= 0 || static_cast<int>(m_buffer.size()) < m_threshold)
        return;
    m_event = kEvReceive;
    if (m_onComm)
        m_onComm();
}

void QtSerialPortAdapter::OnError(QSerialPort::SerialPortError error)
{
    if (error == QSerialPort::ReadError || error == QSerialPort::ResourceError) {
        LoseDevice();
        return;
    }
    const int code = EventCodeFor(error);
    if (code == 0 || !m_open)
        return;
    m_gate.Dispatch(&m_errorSource, [this, code] {
        if (!m_open)
            return;
        m_event = code;
        if (m_onComm)
            m_onComm();
    });
}

void QtSerialPortAdapter::LoseDevice()
{
    // QSerialPort keeps reporting the error on every turn of the event loop until the port is
    // closed, so it is closed here at once.
    if (m_serial.isOpen())
        m_serial.close();
    if (m_open && !m_reopen.isActive())
        m_reopen.start();
}

void QtSerialPortAdapter::TryReopen()
{
    if (!m_open) {
        m_reopen.stop();
        return;
    }
    if (IsSamePseudoTerminal(m_deviceNumber, DeviceNumber(m_device)))
        return;
    m_serial.setPortName(m_device);
    if (OpenDevice()) {
        m_deviceNumber = DeviceNumber(m_device);
        m_reopen.stop();
        m_buffer.clear(); // a partial frame from before the device vanished
    }
}

} // namespace ventrix::io
