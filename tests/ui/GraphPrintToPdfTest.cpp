#include "fakes/TestRig.h"
#include "files/GraphPrint.h"
#include "ui/QtPrinter.h"
#include "ui/QwtGraphAdapter.h"
#include "ui/QwtPrintSurface.h"
#include "ui/SampleCurve.h"

#include <QImage>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cmath>

namespace ventrix::ui {
namespace {

struct PrintRig {
    fakes::TestRig rig;
    QwtGraphAdapter graph;
    QLabel picPRINT;
    QwtPrintSurface surface { graph, picPRINT };
    QtPrinter printer { picPRINT };
    platform::Services services { rig.serial,
        { rig.unlinkTimer, rig.sampleTimer, rig.analogTimer, rig.debugTimer }, rig.clock, rig.dialogs, graph,
        rig.knob, rig.spreadsheet, printer, rig.paths, rig.shell, surface };
    files::GraphPrint print { rig.controls, services };

    PrintRig()
    {
        graph.resize(900, 450);
        for (int i = 0; i < 432000; ++i)
            graph.AppendPoint(std::sin(i / 5000.0) * 3.0 + std::sin(i / 7.0) * 0.2);
        graph.SetAxisMaximum(platform::GraphAxis::XAxis, 432000.0);
        graph.SetAxisMinimum(platform::GraphAxis::YAxis1, -4.0);
        graph.SetAxisMaximum(platform::GraphAxis::YAxis1, 4.0);
        graph.SetAxisCaption(platform::GraphAxis::XAxis, "Sample No.");
        graph.Redraw();
        rig.clock.SetTime(22, 5, 9);
    }
};

QString RunTool(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(30000);
    return QString::fromUtf8(process.readAllStandardOutput());
}

// Printed to a PDF file: the date line as text, the graph black and grey on white in landscape;
// afterwards the screen graph has its colours back, the fill off as FILL is not checked.
TEST(GraphPrintToPdf, PrintsBlackOnWhiteAndRestoresTheScreenGraph)
{
    PrintRig t;
    QTemporaryDir dir;
    const QString pdf = dir.filePath(QStringLiteral("graph.pdf"));
    t.printer.Device().setOutputFormat(QPrinter::PdfFormat);
    t.printer.Device().setOutputFileName(pdf);
    t.graph.SetFillToBase(true);
    t.rig.dialogs.printAnswers.push_back(platform::PrintDialogResult { 1, 1, 1, 2 });
    t.print.PrintGraph();

    EXPECT_EQ(t.graph.canvasBackground().color(), QColor(Qt::black));
    EXPECT_EQ(t.graph.Curve().Pen().color(), QColor(Qt::green));
    EXPECT_EQ(t.graph.Curve().Brush().style(), Qt::NoBrush);
    ASSERT_TRUE(QFileInfo::exists(pdf));
    EXPECT_LT(QFileInfo(pdf).size(), 500 * 1024);
    const QString text = RunTool(QStringLiteral("pdftotext"), { pdf, QStringLiteral("-") });
    EXPECT_TRUE(text.contains(QStringLiteral("2026-11-21"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("10:05:09 PM"))) << text.toStdString();
    RunTool(QStringLiteral("pdftoppm"),
        { QStringLiteral("-r"), QStringLiteral("40"), QStringLiteral("-png"), QStringLiteral("-singlefile"),
            pdf, dir.filePath(QStringLiteral("page")) });
    const QImage page(dir.filePath(QStringLiteral("page.png")));
    ASSERT_FALSE(page.isNull());
    EXPECT_GT(page.width(), page.height());
    int coloured = 0;
    int dark = 0;
    for (int i = 0; i < page.width() * page.height(); ++i) {
        const QColor pixel = page.pixelColor(i % page.width(), i / page.width());
        coloured += pixel.hsvSaturation() > 60 ? 1 : 0;
        dark += pixel.lightness() < 80 ? 1 : 0;
    }
    EXPECT_EQ(coloured, 0);
    EXPECT_GT(dark, 500); // the curve, axes and labels
    EXPECT_LT(dark, page.width() * page.height() / 4); // on white, not on black
}

} // namespace
} // namespace ventrix::ui
