// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/textReport.h"

#include "core/failure.h"
#include "support/recordingPrinters.h"

#include <gtest/gtest.h>

namespace boulix {
namespace {

using testing_support::Drawn;
using testing_support::PrintedDocument;
using testing_support::RecordingPrinters;
using Lines = std::vector<std::string>;

constexpr double millimetresPerPoint = 25.4 / 72;

class TextReportTest : public ::testing::Test {
  protected:
    TextReport newReport() {
        return TextReport(printers.openDocument("Bureau", "essai", Sides::one));
    }
    const PrintedDocument &document() { return printers.documents.back(); }
    /// Characters as wide as `count` of them fill a line of the sheet in the font of size 10.
    void charactersPerLine(int count) {
        const double width = printers.sheetWidth - 2 * TextReport::margin;
        // A hair narrower, so that rounding never decides.
        printers.metrics.emWidth = (width - 0.001) / count / (10 * millimetresPerPoint);
    }

    RecordingPrinters printers;
};

TEST_F(TextReportTest, BeginsInTheTopLeftCornerInsideTheMargins) {
    auto report = newReport();
    report.line("Premier");
    ASSERT_EQ(document().drawn.size(), 1U);
    EXPECT_DOUBLE_EQ(document().drawn[0].x1, 10);
    EXPECT_DOUBLE_EQ(document().drawn[0].y1, 10);
    EXPECT_EQ(document().drawn[0].fontName, "Arial");
    EXPECT_DOUBLE_EQ(document().drawn[0].points, 10);
}

TEST_F(TextReportTest, EachLineAdvancesByTheHeightOfItsFont) {
    auto report = newReport();
    report.line("un");
    report.line();
    report.fontSize(8);
    report.line("trois");
    report.line("quatre");
    const double high = 10 * 1.15 * millimetresPerPoint;
    const double low = 8 * 1.15 * millimetresPerPoint;
    const auto &drawn = document().drawn;
    ASSERT_EQ(drawn.size(), 4U);
    EXPECT_DOUBLE_EQ(drawn[1].y1, 10 + high);
    EXPECT_DOUBLE_EQ(drawn[2].y1, 10 + 2 * high);
    EXPECT_DOUBLE_EQ(drawn[3].y1, 10 + 2 * high + low);
    EXPECT_EQ(document().lines(), (Lines{"un", "", "trois", "quatre"}));
}

TEST_F(TextReportTest, NameAndSizeOfTheFontChangeAlone) {
    auto report = newReport();
    report.fontName("Courier");
    report.line("a");
    report.fontSize(8);
    report.line("b");
    EXPECT_EQ(document().drawn[0].fontName, "Courier");
    EXPECT_DOUBLE_EQ(document().drawn[0].points, 10);
    EXPECT_EQ(document().drawn[1].fontName, "Courier");
    EXPECT_DOUBLE_EQ(document().drawn[1].points, 8);
}

TEST_F(TextReportTest, AFullSheetIsFollowedByTheNextPage) {
    // 297 - 2 * 10 mm of sheet hold 68 lines of 4.057 mm.
    auto report = newReport();
    for (int i = 1; i <= 137; ++i)
        report.line(std::to_string(i));
    report.end();
    const auto &drawn = document().drawn;
    ASSERT_EQ(drawn.size(), 137U);
    EXPECT_EQ(document().pages, 3);
    EXPECT_EQ(drawn[67].page, 1);
    EXPECT_EQ(drawn[68].page, 2);
    EXPECT_DOUBLE_EQ(drawn[68].y1, 10);
    EXPECT_EQ(drawn[135].page, 2);
    EXPECT_EQ(drawn[136].page, 3);
    for (const Drawn &item : drawn)
        EXPECT_LE(item.y1 + 10 * 1.15 * millimetresPerPoint, 287);
}

TEST_F(TextReportTest, ASheetThatIsExactlyFullStaysAlone) {
    auto report = newReport();
    for (int i = 1; i <= 68; ++i)
        report.line("x");
    report.end();
    EXPECT_EQ(document().pages, 1);
    EXPECT_TRUE(document().ended);
}

TEST_F(TextReportTest, ASheetLowerThanALineTakesOneLineAPage) {
    printers.sheetHeight = 15;
    auto report = newReport();
    report.line("un");
    report.line("deux");
    EXPECT_EQ(document().pages, 2);
}

TEST_F(TextReportTest, ALineTooWideForTheSheetGoesOnInTheNextOneBehindABlank) {
    charactersPerLine(20);
    auto report = newReport();
    report.line("Calcule le nombre de sorties de chacun des numéros");
    report.line("ensuite");
    EXPECT_EQ(document().lines(),
              (Lines{"Calcule le nombre de", "sorties de chacun", "des numéros", "ensuite"}));
    EXPECT_DOUBLE_EQ(document().drawn[1].x1, 10);
}

TEST_F(TextReportTest, ALineThatJustFitsIsNotBroken) {
    charactersPerLine(20);
    auto report = newReport();
    report.line("12345 78901 34567 90");
    EXPECT_EQ(document().lines(), (Lines{"12345 78901 34567 90"}));
}

TEST_F(TextReportTest, AWordTooLongForTheSheetIsCutBetweenCharacters) {
    charactersPerLine(4);
    auto report = newReport();
    report.line("éééééé");
    EXPECT_EQ(document().lines(), (Lines{"éééé", "éé"}));
}

TEST_F(TextReportTest, BlanksBeforeALineStay) {
    charactersPerLine(20);
    auto report = newReport();
    report.line("          001)   01");
    EXPECT_EQ(document().lines(), (Lines{"          001)   01"}));
}

TEST_F(TextReportTest, ASheetWithoutRoomStillMovesOn) {
    printers.sheetWidth = 12;
    auto report = newReport();
    report.line("abc");
    EXPECT_EQ(document().lines(), (Lines{"a", "b", "c"}));
}

TEST_F(TextReportTest, BrokenLinesContinueOnTheNextPage) {
    charactersPerLine(20);
    auto report = newReport();
    for (int i = 1; i <= 67; ++i)
        report.line("x");
    report.line("un deux trois quatre cinq six sept huit");
    const auto &drawn = document().drawn;
    ASSERT_EQ(drawn.size(), 69U);
    EXPECT_EQ(drawn[67].page, 1);
    EXPECT_EQ(drawn[68].page, 2);
    EXPECT_DOUBLE_EQ(drawn[68].y1, 10);
}

TEST_F(TextReportTest, TwoColumnsStandOnOneLine) {
    auto report = newReport();
    const double column = report.textWidth("Nombre de grilles ");
    report.line("Fichier", column, ": rgame-0.gam");
    report.line("Numéros fixes", column, ": 0");
    const auto &drawn = document().drawn;
    ASSERT_EQ(drawn.size(), 4U);
    EXPECT_DOUBLE_EQ(drawn[0].x1, 10);
    EXPECT_DOUBLE_EQ(drawn[1].x1, 10 + 18 * 0.2 * 10 * millimetresPerPoint);
    EXPECT_DOUBLE_EQ(drawn[0].y1, drawn[1].y1);
    EXPECT_GT(drawn[2].y1, drawn[0].y1);
    EXPECT_EQ(document().lines(), (Lines{"Fichier: rgame-0.gam", "Numéros fixes: 0"}));
}

TEST_F(TextReportTest, ALongValueGoesOnUnderItsColumn) {
    charactersPerLine(20);
    auto report = newReport();
    report.line("Jeu", report.textWidth("12345"), ": cinq gagnants sur six");
    const auto &drawn = document().drawn;
    ASSERT_EQ(drawn.size(), 3U);
    EXPECT_EQ(drawn[1].words, ": cinq gagnants");
    EXPECT_EQ(drawn[2].words, "sur six");
    EXPECT_DOUBLE_EQ(drawn[2].x1, drawn[1].x1);
    EXPECT_GT(drawn[2].y1, drawn[1].y1);
}

TEST_F(TextReportTest, AReportIsPrintedOnlyWhenItIsEnded) {
    {
        auto report = newReport();
        report.line("perdu");
    }
    EXPECT_FALSE(document().ended);
    EXPECT_TRUE(document().dropped);
}

TEST_F(TextReportTest, APrinterThatBreaksDownEndsTheReportWithAFailure) {
    printers.breakAtPage = 2;
    try {
        auto report = newReport();
        for (int i = 0; i < 200; ++i)
            report.line("x");
        FAIL() << "no failure";
    } catch (const RuntimeFailure &failure) {
        EXPECT_EQ(failure.number(), 482);
    }
    EXPECT_TRUE(document().dropped);
    EXPECT_EQ(document().pages, 1);
}

} // namespace
} // namespace boulix
