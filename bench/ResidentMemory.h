#pragma once

#include <fstream>
#include <string>

// The resident set of this process in kB, from /proc/self/status (0 where there is none).
inline long ResidentKb()
{
    std::ifstream status("/proc/self/status");
    std::string key;
    long value = 0;
    while (status >> key) {
        if (key == "VmRSS:") {
            status >> value;
            return value;
        }
        status.ignore(1 << 10, '\n');
    }
    return 0;
}
