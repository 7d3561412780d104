#include "link/ReplayPort.h"

namespace ventrix::link {

void ReplayPort::Load(std::string_view bytes)
{
    m_bytes = bytes;
    m_pending = {};
    m_next = 0;
    m_eventStart = 0;
}

bool ReplayPort::DeliverNext()
{
    if (m_threshold <= 0 || m_bytes.size() - m_next < static_cast<std::size_t>(m_threshold))
        return false;
    m_eventStart = m_next;
    m_pending = m_bytes.substr(m_next, static_cast<std::size_t>(m_threshold));
    m_next += static_cast<std::size_t>(m_threshold);
    if (m_onComm)
        m_onComm();
    return true;
}

std::string ReplayPort::ReadInput()
{
    std::string bytes(m_pending);
    m_pending = {};
    return bytes;
}

} // namespace ventrix::link
