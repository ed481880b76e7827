// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// PDF files that are kept, read back with the tools of another maker.

#include "fullDisk.h"
#include "printedPages.h"
#include "printing/frmPrintGridPreview.h"
#include "printing/modPrinter.h"
#include "printing/slipRun.h"
#include "printing/slipTest.h"
#include "support/boulixTest.h"
#include "ui/printing/pdfFile.h"
#include "ui/printing/qtPrinterSystem.h"

#include <cmath>

namespace boulix {
namespace {

using namespace testing_support;

constexpr double allowed = 0.05;    // millimetres
constexpr double point = 25.4 / 72; // the sheet is a whole number of them

/// The program's own printers on a machine with one of them, whatever this one has.
class OnePrinter : public QtPrinterSystem {
  public:
    std::vector<std::string> printers() const override { return {"Bureau"}; }
    std::string defaultPrinter() const override { return "Bureau"; }
};

class PdfFileTest : public BoulixTest {
  protected:
    PdfFileTest() { setPrinterSystem(&system); }
    ~PdfFileTest() override { setPrinterSystem(nullptr); }
    std::string pdf() const { return file("document.pdf"); }

    OnePrinter system;
};

void expectCross(const PrintedPath &one, const PrintedPath &other, const Cross &wanted) {
    ASSERT_EQ(one.points.size(), 2U);
    ASSERT_EQ(other.points.size(), 2U);
    EXPECT_NEAR(one.points[0].x, wanted.x1, allowed);
    EXPECT_NEAR(one.points[0].y, wanted.y1, allowed);
    EXPECT_NEAR(one.points[1].x, wanted.x2, allowed);
    EXPECT_NEAR(one.points[1].y, wanted.y2, allowed);
    EXPECT_NEAR(other.points[0].x, wanted.x2, allowed);
    EXPECT_NEAR(other.points[0].y, wanted.y1, allowed);
}

TEST_F(PdfFileTest, SlipsAreTrueToSizeOnSheetsOfA4) {
    desktop.answerSave(pdf());
    printWindows.onGridPreview = [](frmPrintGridPreview &window) { window.clickToolbar(6); };
    slipRun::run(
        9, slipRun::Sheets::slips,
        [](std::int32_t, std::int16_t position, Canvas &target, slip::Placement placement) {
            slip::drawGrid(target, {1, 10, 22, 34, 45, 49}, position, placement);
        });
    const PrintedPages pages(readBytes(pdf()));
    EXPECT_EQ(pages.count(), 2);
    EXPECT_NEAR(pages.sheetWidth(), 210, point);
    EXPECT_NEAR(pages.sheetHeight(), 297, point);
    const auto marks = pages.paths(2);
    ASSERT_EQ(marks.size(), 16U) << "six numbers and two options, two strokes each";
    const int numbers[] = {1, 10, 22, 34, 45, 49};
    for (std::size_t i = 0; i < std::size(numbers); ++i)
        expectCross(marks[2 * i], marks[2 * i + 1], plainBox(1, numbers[i]));
}

TEST_F(PdfFileTest, TheCanvasHasItsBoxesWhereTheyBelong) {
    modPrinter::currentPrinter(modPrinter::pdfEntry);
    desktop.answerSave(pdf());
    modPrinter::printCanvas();
    const auto boxes = PrintedPages(readBytes(pdf())).paths(1);
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_NEAR(boxes[0].points[0].x, 25, allowed);
    EXPECT_NEAR(boxes[0].points[0].y, 20, allowed);
    EXPECT_NEAR(boxes[0].points[2].x, 185, allowed);
    EXPECT_NEAR(boxes[0].points[2].y, 140, allowed);
    EXPECT_NEAR(boxes[1].points[0].y, 150, allowed);
}

TEST_F(PdfFileTest, AReportIsWrittenLineForLine) {
    modPrinter::currentPrinter(modPrinter::pdfEntry);
    desktop.answerSave(pdf());
    auto report = modPrinter::startReport("essai");
    report->line("Numéro complémentaire");
    report->end();
    const PrintedPages pages(readBytes(pdf()));
    EXPECT_EQ(pages.lines().back().text, "Numéro complémentaire");
    EXPECT_EQ(pages.count(), 1);
}

TEST_F(PdfFileTest, ADocumentThatIsGivenUpLeavesTheEarlierFile) {
    writeBytes(pdf(), "ancien");
    openPdfFile(pdf(), "essai")->line(10, 10, 20, 20);
    EXPECT_EQ(readBytes(pdf()), "ancien");
}

TEST_F(PdfFileTest, AFullDiskIsToldAndNothingIsAnnounced) {
    modPrinter::currentPrinter(modPrinter::pdfEntry);
    desktop.answerSave(pdf());
    const auto failure = failureOf([] {
        auto report = modPrinter::startReport("essai");
        const FullDisk disk(2000);
        for (int i = 0; i < 3000; ++i)
            report->line("une ligne de plus " + std::to_string(i));
        report->end();
    });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 61);
    EXPECT_TRUE(desktop.announcements.empty());
    EXPECT_FALSE(fileExists(pdf()));
}

TEST_F(PdfFileTest, AFolderThatIsGoneIsToldAtTheEnd) {
    modPrinter::currentPrinter(modPrinter::pdfEntry);
    desktop.answerSave(file("nulle part/document.pdf"));
    auto report = modPrinter::startReport("essai");
    ASSERT_TRUE(report);
    EXPECT_NE(failureNumber([&report] { report->end(); }), 0);
    EXPECT_TRUE(desktop.announcements.empty());
}

} // namespace
} // namespace boulix
