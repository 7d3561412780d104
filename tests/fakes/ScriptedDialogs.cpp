#include "fakes/ScriptedDialogs.h"

namespace ventrix::fakes {

namespace {
template <typename T> T Next(std::deque<T>& script, T fallback)
{
    if (script.empty())
        return fallback;
    T answer = script.front();
    script.pop_front();
    return answer;
}
} // namespace

platform::MessageResult ScriptedDialogs::MessageBox(const std::string& text, platform::MessageButtons buttons,
    platform::MessageIcon icon, const std::string& title)
{
    boxes.push_back({ text, buttons, icon, title });
    const auto fallback
        = buttons == platform::MessageButtons::Ok ? platform::MessageResult::Ok : platform::MessageResult::No;
    return Next(answers, fallback);
}

std::optional<std::string> ScriptedDialogs::ShowOpen(const platform::FileDialogRequest& request)
{
    openRequests.push_back(request);
    return Next<std::optional<std::string>>(fileAnswers, std::nullopt);
}

std::optional<std::string> ScriptedDialogs::ShowSave(const platform::FileDialogRequest& request)
{
    saveRequests.push_back(request);
    return Next<std::optional<std::string>>(fileAnswers, std::nullopt);
}

std::optional<platform::PrintDialogResult> ScriptedDialogs::ShowPrint(int flags)
{
    printRequests.push_back(flags);
    return Next<std::optional<platform::PrintDialogResult>>(printAnswers, std::nullopt);
}

} // namespace ventrix::fakes
