#pragma once

#include "app/MainForm.h"
#include "fakes/TestRig.h"
#include "files/LogFill.h"

#include <filesystem>
#include <string>

namespace ventrix::testing {

// The form over fakes, started up, with a log filled through FillLog and a place for the files
// the commands write.
struct FilesTestRig {
    FilesTestRig() { form.Form_Load(); }

    void Fill(int count) { FillLog(rig.state, rig.paths.SwapFile(), count); }
    std::filesystem::path File(const std::string& name) const { return rig.paths.ProgramDirectory() / name; }
    // The pointer was made busy and is back to normal.
    bool PointerRestored() const
    {
        return !rig.shell.pointerHistory.empty() && rig.shell.pointerHistory.front() && !rig.shell.Busy();
    }

    fakes::TestRig rig;
    app::MainForm form { rig.state, rig.controls, rig.services };
    platform::MainControls& c = rig.controls;
    state::AppState& s = rig.state;
};

} // namespace ventrix::testing
