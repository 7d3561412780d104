#pragma once

#include <string>

namespace ventrix::cli {

// Reads a whole input file (a path, or standard input for "-") into `bytes`. False with a reason
// ("cannot read PATH: ...", "... is a directory") in `error` when it cannot be read.
bool ReadInputFile(const std::string& path, std::string& bytes, std::string& error);

} // namespace ventrix::cli
