#pragma once

#include <fstream>
#include <string>

// A "kB" line of /proc/self/status ("VmRSS:", "VmHWM:"), 0 where there is none.
inline long StatusKb(const std::string& field)
{
    std::ifstream status("/proc/self/status");
    std::string key;
    long value = 0;
    while (status >> key) {
        if (key == field) {
            status >> value;
            return value;
        }
        status.ignore(1 << 10, '\n');
    }
    return 0;
}

// The resident set of this process in kB.
inline long ResidentKb()
{
    return StatusKb("VmRSS:");
}
// The largest resident set of this process so far, in kB.
inline long PeakResidentKb()
{
    return StatusKb("VmHWM:");
}
