#include "io/PortNames.h"

#include "io/ComPortMap.h"

#include <QSerialPortInfo>
#include <QtGlobal>

namespace ventrix::io {

namespace {

#ifndef Q_OS_WIN
// One look at the machine gives all four numbers their devices.
std::array<ComPortAssignment, 4> LookupAll()
{
    std::vector<SerialDeviceInfo> found;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts())
        found.push_back({ info.systemLocation().toStdString(), info.description().toStdString(),
            info.manufacturer().toStdString() });
    const auto fromEnvironment = [](int number) -> std::optional<std::string> {
        const QByteArray value = qgetenv(("VENTRIX_COM" + std::to_string(number)).c_str());
        if (value.isEmpty())
            return std::nullopt;
        return value.toStdString();
    };
    return AssignComPorts(std::move(found), fromEnvironment);
}

ComPortAssignment Lookup(int n)
{
    if (n < 1 || n > 4)
        return {};
    return LookupAll()[static_cast<std::size_t>(n - 1)];
}
#endif

} // namespace

QString DeviceForComPort(int n)
{
#ifdef Q_OS_WIN
    return QStringLiteral("COM%1").arg(n);
#else
    return QString::fromStdString(Lookup(n).device);
#endif
}

QString DescribeComPort(int n)
{
#ifdef Q_OS_WIN
    return QStringLiteral("COM %1: COM%1").arg(n);
#else
    return QString::fromStdString(Lookup(n).description);
#endif
}

QStringList DescribeComPorts()
{
    QStringList descriptions;
#ifdef Q_OS_WIN
    for (int n = 1; n <= 4; ++n)
        descriptions << DescribeComPort(n);
#else
    for (const ComPortAssignment& port : LookupAll())
        descriptions << QString::fromStdString(port.description);
#endif
    return descriptions;
}

} // namespace ventrix::io
