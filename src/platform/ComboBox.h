#pragma once

#include "platform/Control.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace ventrix::platform {

// A drop-down list. Selecting an entry that differs from the current one (by the user or by a
// handler through SetListIndex) runs the selection handler, as the list's click event does.
class ComboBox : public Control {
public:
    using Control::Control;

    const std::vector<std::string>& Items() const { return m_items; }
    void AddItem(const std::string& item)
    {
        m_items.push_back(item);
        Changed();
    }
    void Clear()
    {
        m_items.clear();
        m_listIndex = -1;
        Changed();
    }

    int ListIndex() const { return m_listIndex; }
    void SetListIndex(int index)
    {
        if (index == m_listIndex || index < -1 || index >= static_cast<int>(m_items.size()))
            return;
        m_listIndex = index;
        Changed();
        if (m_onSelect)
            m_onSelect();
    }

    void SetOnSelect(std::function<void()> handler) { m_onSelect = std::move(handler); }

private:
    std::vector<std::string> m_items;
    int m_listIndex = -1;
    std::function<void()> m_onSelect;
};

} // namespace ventrix::platform
