#pragma once

#include <QString>
#include <QStringList>

namespace ventrix::io {

// The platform device behind COM n (1 to 4). Windows: "COM<n>". Elsewhere: the path in the
// developer setting VENTRIX_COM<n> when it is set, else the serial devices found on the machine
// in a stable order (USB adapters first), COM 1 being the first; empty when none is left.
QString DeviceForComPort(int n);

// One line telling which device COM n stands for, for the COM menu item's status tip,
// e.g. "COM 1: /dev/ttyUSB0 (FT232R USB UART, FTDI)".
QString DescribeComPort(int n);
// The same for COM 1 to COM 4 at once, from one look at the machine's devices.
QStringList DescribeComPorts();

} // namespace ventrix::io
