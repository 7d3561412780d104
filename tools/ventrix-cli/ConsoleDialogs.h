#pragma once

#include "platform/Dialogs.h"

#include <functional>
#include <string>
#include <utility>

namespace ventrix::cli {

// Message boxes where nobody can answer: each box's text goes to the report function (which
// prints it), a question is answered Yes (so the link-loss question lets logging go on) and a
// notice Ok. File and print dialogs are cancelled; the about box shows nothing.
class ConsoleDialogs : public platform::Dialogs {
public:
    using Report = std::function<void(const std::string& text, platform::MessageButtons buttons)>;

    explicit ConsoleDialogs(Report report)
        : m_report(std::move(report))
    {
    }

    platform::MessageResult MessageBox(const std::string& text, platform::MessageButtons buttons,
        platform::MessageIcon, const std::string&) override
    {
        if (m_report)
            m_report(text, buttons);
        return buttons == platform::MessageButtons::YesNo ? platform::MessageResult::Yes
                                                          : platform::MessageResult::Ok;
    }
    std::optional<std::string> ShowOpen(const platform::FileDialogRequest&) override { return {}; }
    std::optional<std::string> ShowSave(const platform::FileDialogRequest&) override { return {}; }
    std::optional<platform::PrintDialogResult> ShowPrint(int) override { return {}; }
    void ShowAbout() override { }

private:
    Report m_report;
};

} // namespace ventrix::cli
