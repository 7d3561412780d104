#include "io/QtSerialPortAdapter.h"

namespace ventrix::io {

QtSerialPortAdapter::QtSerialPortAdapter(ModalGate& gate, QObject* parent)
    : QObject(parent)
    , m_gate(gate)
{
}

} // namespace ventrix::io
