#pragma once

#include <optional>
#include <string>

namespace ventrix::platform {

enum class MessageButtons { Ok, YesNo };
enum class MessageIcon { None, Question, Exclamation, Information };
// Dismissed: a question closed or escaped without choosing Yes or No.
enum class MessageResult { Ok, Yes, No, Dismissed };

struct FileDialogRequest {
    std::string title;
    std::string filter; // "*.gph|*.gph": description, bar, pattern
    std::string fileName;
    std::string initialDirectory;
    int flags = 0; // 0x2 ask before overwriting, 0x4 hide read-only, 0x800 path must exist
};

struct PrintDialogResult {
    int fromPage = 0;
    int toPage = 0;
    int copies = 1;
    int orientation = 1; // 1 portrait, 2 landscape
};

// Modal dialogs. A box holds up every other event until it is answered. File dialogs return the
// chosen path, or nothing when cancelled; the print dialog returns nothing when cancelled. The
// about box ABOUT_FRM only informs: it keeps the user's hands off the window until closed, but
// holds up no other event, and ShowAbout returns at once.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual MessageResult MessageBox(
        const std::string& text, MessageButtons buttons, MessageIcon icon, const std::string& title)
        = 0;
    virtual std::optional<std::string> ShowOpen(const FileDialogRequest& request) = 0;
    virtual std::optional<std::string> ShowSave(const FileDialogRequest& request) = 0;
    virtual std::optional<PrintDialogResult> ShowPrint(int flags) = 0;
    virtual void ShowAbout() = 0;
};

} // namespace ventrix::platform
