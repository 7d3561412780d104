#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace ventrix::state {

// One 8-byte sample record: hour, minute, second, decimal code with sign, count high, count low
// or word index, multiplier code, function code.
using SampleRecord = std::array<std::uint8_t, 8>;

inline constexpr int kPageSize = 1000; // records in one page of the sample log
inline constexpr int kMaxSwapPages = 432; // pages the swap file holds before the log is full

// The state shared by every handler of the main window, for the life of the window. Field names
// are the ones the handlers use; the initial values here are those before start-up runs (start-up
// sets each of them again, in its own order). Booleans are plain bool.
struct AppState {
    // Graph extents and restart
    double DataMax = 0.0;
    double DataMin = 0.0;
    bool GraphRestartPending = false;
    bool SkipNextPlot = false;
    bool GraphEmpty = true;
    double AutoXMin = 0.0;
    double AutoXMax = 0.0;
    double AutoYMin = 0.0;
    double AutoYMax = 0.0;
    std::uint8_t PlottedFunctionKind = 255;
    std::string PlottedBaseUnit;
    double AmplitudeRange = 0.0;
    std::int16_t SampleScale = 0;
    std::uint16_t GraphMode = 0;

    // Link and the last accepted frame
    bool IsAcquiring = false;
    std::int16_t ComPortNumber = 1;
    bool HasNewFrame = false;
    std::uint8_t ModeByte = 255;
    std::array<std::uint8_t, 7> FrameData {}; // frame bytes 8 down to 2: element 0 is byte 8
    std::uint16_t FrameChecksum = 0;
    std::uint8_t FrameResetMarker = 8;

    // The decoded reading
    std::uint8_t FunctionKind = 255;
    std::string UnitLabel;
    std::string BaseUnit;
    double UnitMultiplier = 1.0;
    std::int16_t DecimalDivisor = 1;
    double CountValue = 0.0;
    double SignedCount = 4000.0;
    bool IsPositive = true;
    bool IsRelative = false;
    bool AwaitingAbsoluteReading = true;
    bool RelativeCaptured = false;
    double RelativeSpanUp = 0.0;
    double RelativeSpanDown = 0.0;
    bool HasWord = false;
    std::string DisplayWord;
    std::int16_t DisplayWordIndex = 0;
    std::array<std::string, 15> SpecialWordTable {};

    // Analogue gauge, in display counts
    double GaugeNeedle = 0.0;
    double GaugeTarget = 0.0;

    // Sampling
    double SampleIntervalMs = 1000.0;
    double SampleTime = 0.0; // time of day as a fraction of a day
    double ExpectedSampleTime = 0.0;
    std::string SampleTimeText;
    std::string ExpectedTimeText;
    bool FirstSampleTickPending = false;
    bool IntervalCorrected = false;

    // Sample log
    std::array<SampleRecord, kPageSize> PageRecords {};
    std::int16_t PageFill = 1;
    std::int16_t SwapPageCount = 0;
    std::int16_t ViewPage = 0;
    std::string LogPageText;
    bool IsBufferFull = false;
    std::int16_t GraphStartSlot = 1;
    std::int16_t GraphStartPage = 0;

    // Files
    std::string GraphFilePath;
    std::string GraphDialogPath;
    std::string TextFilePath;
    std::string TextDialogPath;

    // Frame simulator
    std::int16_t SimulatorPhase = 0;
};

// How many samples the log holds: its full swap pages and the records of the memory page.
inline long long LoggedSamples(const AppState& s)
{
    return static_cast<long long>(s.SwapPageCount) * kPageSize + s.PageFill - 1;
}

} // namespace ventrix::state
