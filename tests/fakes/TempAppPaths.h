#pragma once

#include "platform/AppPaths.h"

#include <filesystem>

namespace ventrix::fakes {

// A fresh, empty program directory under the system's temporary directory for one test; removed
// with everything in it when the test ends.
class TempAppPaths : public platform::AppPaths {
public:
    TempAppPaths();
    ~TempAppPaths() override;
    TempAppPaths(const TempAppPaths&) = delete;
    TempAppPaths& operator=(const TempAppPaths&) = delete;

    std::filesystem::path ProgramDirectory() const override { return m_directory; }

private:
    std::filesystem::path m_directory;
};

} // namespace ventrix::fakes
