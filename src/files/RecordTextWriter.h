#pragma once

#include "state/AppState.h"

#include <array>
#include <ostream>
#include <string>

namespace ventrix::files {

// Writes the lines of the log text file to a stream: per record its time, eight spaces, value
// and unit, then the line end (CR LF in the file). The text save and the command-line converter
// both write through it, so they write the same bytes. Does not open or close anything.
class RecordTextWriter {
public:
    static constexpr const char* kFileLineEnd = "\r\n";

    RecordTextWriter(
        std::ostream& out, const std::array<std::string, 15>& wordTable, std::string lineEnd = kFileLineEnd);

    // False, with nothing written, when the record cannot be formatted (a word index beyond the
    // word table); false too once the stream has failed.
    bool Write(const state::SampleRecord& record);
    bool Unformattable() const { return m_unformattable; }

private:
    std::ostream& m_out;
    const std::array<std::string, 15>& m_wordTable;
    std::string m_lineEnd;
    bool m_unformattable = false;
};

} // namespace ventrix::files
