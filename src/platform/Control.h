#pragma once

#include <functional>
#include <string>
#include <utility>

namespace ventrix::platform {

// Observable model of one named control of the main window: caption, visibility, enabled state
// and tool tip. Handlers set properties and tests read them; the Qt window binds each model to
// the widget whose objectName is Name() and redraws it when the observer is called. Holds no
// logic of its own.
class Control {
public:
    explicit Control(std::string name)
        : m_name(std::move(name))
    {
    }
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    const std::string& Name() const { return m_name; }

    const std::string& Caption() const { return m_caption; }
    void SetCaption(const std::string& caption) { Assign(m_caption, caption); }

    bool Visible() const { return m_visible; }
    void SetVisible(bool visible) { Assign(m_visible, visible); }

    bool Enabled() const { return m_enabled; }
    void SetEnabled(bool enabled) { Assign(m_enabled, enabled); }

    const std::string& ToolTip() const { return m_toolTip; }
    void SetToolTip(const std::string& toolTip) { Assign(m_toolTip, toolTip); }

    // One observer per control: the widget binding. Called after every property write.
    void SetObserver(std::function<void()> observer) { m_observer = std::move(observer); }

protected:
    template <typename T, typename U> void Assign(T& field, U&& value)
    {
        field = std::forward<U>(value);
        Changed();
    }
    void Changed()
    {
        if (m_observer)
            m_observer();
    }

private:
    std::string m_name;
    std::string m_caption;
    std::string m_toolTip;
    bool m_visible = true;
    bool m_enabled = true;
    std::function<void()> m_observer;
};

} // namespace ventrix::platform
