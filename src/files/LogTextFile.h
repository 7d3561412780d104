#pragma once

#include "platform/CommonDialog.h"
#include "platform/MainControls.h"
#include "platform/Services.h"
#include "state/AppState.h"

namespace ventrix::files {

// "Save" and "Save As..." of the data log: the whole log since it was last cleared, oldest first,
// one line per sample (see RecordTextWriter), replacing the file; afterwards the window caption
// shows the file's path. The "Save As" dialog sets flags 2054 on the shared FileBox and leaves
// them there, so the graph file dialogs shown later ask before overwriting too. A failure ends
// silently with the files closed, the pointer reset, the caption unchanged and whatever was
// written left in the file.
class LogTextFile {
public:
    LogTextFile(state::AppState& state, platform::MainControls& controls, platform::Services& services,
        platform::CommonDialog& fileBox);

    void SaveLogText();
    void SaveLogTextAs();
    void WriteLogText();

private:
    bool Write();

    state::AppState& m_state;
    platform::MainControls& m_controls;
    platform::Services& m_services;
    platform::CommonDialog& m_fileBox;
};

} // namespace ventrix::files
