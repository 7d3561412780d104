#pragma once

#include "platform/CommonDialog.h"
#include "platform/Services.h"
#include "state/AppState.h"

namespace ventrix::files {

// "Open Graph", "Save Graph" and "Save Graph As..." with the *.gph dialogs on the shared FileBox,
// and the graph file writer. The file is written in place from its start, never truncated. The
// program's long-standing behaviour is kept as it is: opening remembers the path, reads one
// record and restores nothing; the writer seeks the swap file to a byte (not record) position
// taken from the graph's start slot, reads one record per byte of the range and so on past the
// end of the swap pages, gives up silently on the 16-bit end position of five or more swap pages,
// and writes for each record of the memory page the last record read from the swap file (or
// nothing at all, so a graph wholly in the memory page gives an empty file). Every failure ends
// silently with the files closed and the pointer reset.
class GraphFile {
public:
    GraphFile(state::AppState& state, platform::Services& services, platform::CommonDialog& fileBox);

    void OpenGraphFile();
    void SaveGraphFile();
    void SaveGraphFileAs();
    void WriteGraphFile();

private:
    void SetUpFileBox(const char* title);
    bool ReadFirstRecord();
    bool Write();

    state::AppState& m_state;
    platform::Services& m_services;
    platform::CommonDialog& m_fileBox;
};

} // namespace ventrix::files
