#include "platform/CursorPair.h"

#include "platform/GraphRules.h"

namespace ventrix::platform {

CursorPair::Cursor* CursorPair::Find(int cursor)
{
    return cursor == 1 || cursor == 2 ? &m_cursors[static_cast<std::size_t>(cursor - 1)] : nullptr;
}

const CursorPair::Cursor* CursorPair::Find(int cursor) const
{
    return const_cast<CursorPair*>(this)->Find(cursor);
}

void CursorPair::SetX(int cursor, double x, std::size_t samples)
{
    if (Cursor* c = Find(cursor))
        c->x = c->mode == kOnSamples && samples > 0 ? static_cast<double>(NearestSample(x, samples)) : x;
}

double CursorPair::X(int cursor, std::size_t samples) const
{
    const Cursor* c = Find(cursor);
    if (c == nullptr)
        return 0.0;
    // The data may have changed since the cursor was put: it stands on the nearest sample now.
    return c->mode == kOnSamples && samples > 0 ? static_cast<double>(NearestSample(c->x, samples)) : c->x;
}

double CursorPair::Y(int cursor, std::size_t samples, const ValueAt& valueAt) const
{
    const Cursor* c = Find(cursor);
    if (c == nullptr)
        return 0.0;
    if (c->mode != kOnSamples)
        return c->y;
    return samples == 0 ? 0.0 : valueAt(NearestSample(c->x, samples));
}

void CursorPair::SetFreeY(int cursor, double y)
{
    if (Cursor* c = Find(cursor))
        c->y = y;
}

void CursorPair::SetMode(int cursor, int mode)
{
    if (Cursor* c = Find(cursor))
        c->mode = mode;
}

int CursorPair::Mode(int cursor) const
{
    const Cursor* c = Find(cursor);
    return c ? c->mode : 0;
}

void CursorPair::SetVisible(int cursor, bool visible)
{
    if (Cursor* c = Find(cursor))
        c->visible = visible;
}

bool CursorPair::Visible(int cursor) const
{
    const Cursor* c = Find(cursor);
    return c && c->visible;
}

} // namespace ventrix::platform
