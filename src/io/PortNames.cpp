#include "io/PortNames.h"

#include "io/ComPortMap.h"

#include <QSerialPortInfo>
#include <QtGlobal>

namespace ventrix::io {

namespace {

#ifndef Q_OS_WIN
ComPortAssignment Lookup(int n)
{
    if (n < 1 || n > 4)
        return {};
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
    return AssignComPorts(std::move(found), fromEnvironment)[n - 1];
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

} // namespace ventrix::io
