#pragma once

#include "platform/Dialogs.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace ventrix::fakes {

// Dialogs answered from scripts the test fills in advance. Every box and file dialog shown is
// recorded. A message box with no scripted answer gets Ok for an OK box and No for a question;
// a file or print dialog with none is cancelled.
class ScriptedDialogs : public platform::Dialogs {
public:
    struct Box {
        std::string text;
        platform::MessageButtons buttons;
        platform::MessageIcon icon;
        std::string title;
    };

    platform::MessageResult MessageBox(const std::string& text, platform::MessageButtons buttons,
        platform::MessageIcon icon, const std::string& title) override;
    std::optional<std::string> ShowOpen(const platform::FileDialogRequest& request) override;
    std::optional<std::string> ShowSave(const platform::FileDialogRequest& request) override;
    std::optional<platform::PrintDialogResult> ShowPrint(int flags) override;
    void ShowAbout() override { }

    std::deque<platform::MessageResult> answers;
    std::deque<std::optional<std::string>> fileAnswers;
    std::deque<std::optional<platform::PrintDialogResult>> printAnswers;

    std::vector<Box> boxes;
    std::vector<platform::FileDialogRequest> openRequests;
    std::vector<platform::FileDialogRequest> saveRequests;
    std::vector<int> printRequests;
};

} // namespace ventrix::fakes
