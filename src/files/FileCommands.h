#pragma once

#include "files/GraphFile.h"
#include "files/GraphPrint.h"
#include "files/LogTextFile.h"
#include "files/SpreadsheetExport.h"
#include "platform/CommonDialog.h"

namespace ventrix::files {

// The commands of the File menu that write or read files, export or print, with the common
// dialog FileBox that the graph file and text file commands share. The form wires the menu items
// and buttons to them.
class FileCommands {
public:
    FileCommands(state::AppState& state, platform::MainControls& controls, platform::Services& services)
        : FileBox(services.dialogs)
        , m_graphFile(state, services, FileBox)
        , m_logText(state, controls, services, FileBox)
        , m_export(state, services)
        , m_print(controls, services)
    {
    }
    FileCommands(const FileCommands&) = delete;
    FileCommands& operator=(const FileCommands&) = delete;

    platform::CommonDialog FileBox;

    GraphFile& Graph() { return m_graphFile; }
    LogTextFile& LogText() { return m_logText; }
    SpreadsheetExport& Export() { return m_export; }
    GraphPrint& Print() { return m_print; }

private:
    GraphFile m_graphFile;
    LogTextFile m_logText;
    SpreadsheetExport m_export;
    GraphPrint m_print;
};

} // namespace ventrix::files
