#include "io/ModalGate.h"

#include <algorithm>
#include <utility>

namespace ventrix::io {

void ModalGate::Dispatch(const void* source, std::function<void()> event)
{
    // While held events wait for their drain, a new one queues behind them to keep the order.
    if (m_depth == 0 && !m_drainPosted) {
        event();
        return;
    }
    const bool known = std::any_of(
        m_deferred.begin(), m_deferred.end(), [source](const Deferred& d) { return d.source == source; });
    if (!known)
        m_deferred.push_back({ source, std::move(event) });
}

void ModalGate::Forget(const void* source)
{
    std::erase_if(m_deferred, [source](const Deferred& d) { return d.source == source; });
}

void ModalGate::Leave()
{
    if (--m_depth > 0 || m_deferred.empty() || m_drainPosted)
        return;
    m_drainPosted = true;
    QMetaObject::invokeMethod(
        &m_context, [this] { Drain(); }, Qt::QueuedConnection);
}

void ModalGate::Drain()
{
    m_drainPosted = false;
    // A deferred event may open another box; whatever arrives then is deferred again.
    while (m_depth == 0 && !m_deferred.empty()) {
        Deferred next = std::move(m_deferred.front());
        m_deferred.erase(m_deferred.begin());
        next.event();
    }
}

} // namespace ventrix::io
