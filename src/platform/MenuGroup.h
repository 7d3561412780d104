#pragma once

#include "platform/MenuItem.h"

#include <array>
#include <cstddef>

namespace ventrix::platform {

// Check marks of an exclusive menu group, always written in menu order.

// Clears every check mark of the group.
template <std::size_t N> void ClearChecks(std::array<MenuItem, N>& items)
{
    for (auto& item : items)
        item.SetChecked(false);
}

// Checks exactly the item at index.
template <std::size_t N> void CheckOnly(std::array<MenuItem, N>& items, std::size_t index)
{
    for (std::size_t i = 0; i < N; ++i)
        items[i].SetChecked(i == index);
}

} // namespace ventrix::platform
