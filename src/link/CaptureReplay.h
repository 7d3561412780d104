#pragma once

#include "platform/MainControls.h"
#include "state/AppState.h"

#include <cstddef>
#include <functional>
#include <string>

namespace ventrix::link {

// Runs a captured byte stream through the program's receive path and decoder, as one
// acquisition started at the first byte: the bytes are cut into receive events as a line
// delivering them one by one would (each event takes the next receive-threshold bytes; a rest
// shorter than the threshold raises no event). A relative-mode frame while an absolute reading
// is awaited is reported as refused and decoding goes on; nothing is reset. Reports every
// accepted frame with the state and the LCD controls as they stand after it.
class CaptureReplay {
public:
    struct Frame {
        std::size_t offset; // 0-based offset of the frame's first byte in the input
        bool refused; // relative mode while an absolute reading was awaited
        bool logged; // the sampling path would log this reading
        const state::AppState& state;
        const platform::MainControls& controls;
    };

    void Run(const std::string& bytes, const std::function<void(const Frame&)>& onFrame);
};

} // namespace ventrix::link
