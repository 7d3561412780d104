#include "files/GraphPrint.h"

#include "log/SampleRecord.h"

#include <cstdint>

namespace ventrix::files {

using platform::GraphAxis;

namespace {
constexpr int kPrintDialogFlags = 0x140004; // no selection, copies by the printer, no print-to-file box

constexpr std::uint32_t kBlack = 0x000000;
constexpr std::uint32_t kWhite = 0xFFFFFF;
constexpr std::uint32_t kYellow = 0x00FFFF;
constexpr std::uint32_t kGreen = 0x00FF00;
constexpr std::uint32_t kBlue = 0xFF0000;

constexpr const char* kAmplitudeFormat = "#.###k";
constexpr const char* kPrintAmplitudeFormat = "#.###k     ";
constexpr const char* kPrintTimeFormat = "    ";

// Where the captured graph goes on the page: mm from the left, mm below the date line, mm per pixel.
constexpr double kPictureLeft = 5.0;
constexpr double kPictureTop = 7.0;
constexpr double kPictureScale = 0.25;
} // namespace

GraphPrint::GraphPrint(platform::MainControls& controls, platform::Services& services)
    : DIALOG_PRINT(services.dialogs)
    , m_controls(controls)
    , m_services(services)
{
}

void GraphPrint::PrintGraph()
{
    DIALOG_PRINT.cancelError = true;
    DIALOG_PRINT.settings.flags = kPrintDialogFlags;
    if (!DIALOG_PRINT.ShowPrinter())
        return;
    // The page range and copies chosen are not used; one copy of the page is printed.
    Print(DIALOG_PRINT.printResult.orientation);
}

bool GraphPrint::Print(int orientation)
{
    RenderGraphForPrint();
    platform::Printer& printer = m_services.printer;
    const platform::Clock& clock = m_services.clock;
    return printer.SetOrientation(orientation) && printer.SetCopies(1) && printer.PrintLine("")
        && printer.PrintLine(clock.DateText() + "\t" + log::FormatTimeOfDay(clock.TimeOfDay()))
        && printer.PaintPicture(kPictureLeft, kPictureTop, kPictureScale) && printer.EndDocument();
}

void GraphPrint::RenderGraphForPrint()
{
    platform::GraphPrintSurface& graph = m_services.graphPrint;

    graph.SetBackColours(kWhite);
    graph.SetAxisColours(GraphAxis::YAxis1, kBlack);
    graph.SetAxisColours(GraphAxis::XAxis, kBlack);
    graph.SetPlotFillToBase(false);
    graph.SetPlotLineColour(kBlack);
    graph.SetLabelFormat(GraphAxis::YAxis1, kPrintAmplitudeFormat);
    graph.SetLabelFormat(GraphAxis::XAxis, kPrintTimeFormat);

    graph.CaptureToPicture();

    graph.SetBackColours(kBlack);
    graph.SetAxisColours(GraphAxis::YAxis1, kYellow);
    graph.SetAxisColours(GraphAxis::XAxis, kYellow);
    if (m_controls.FILL.Checked())
        graph.SetPlotFillToBase(true);
    graph.SetPlotFillColour(kBlue);
    graph.SetPlotLineColour(kGreen);
    graph.SetLabelFormat(GraphAxis::YAxis1, kAmplitudeFormat);
    graph.SetLabelFormat(GraphAxis::XAxis, "");

    m_controls.picPRINT.SetVisible(false);
}

} // namespace ventrix::files
