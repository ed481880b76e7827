// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "paperTest.h"

#include "core/globals.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "games/game.h"
#include "games/gameDef.h"
#include "printing/modPrinter.h"
#include "support/locations.h"

#include <cmath>

namespace boulix {
namespace {

using namespace testing_support;
using Lines = std::vector<std::string>;

class ReportOnPaperTest : public PaperTest {
  protected:
    static Lines textsOf(const PrintedPages &pages) {
        Lines texts;
        for (const PrintedLine &line : pages.lines())
            texts.push_back(line.text);
        return texts;
    }
    static void addDraw(int number) {
        lotoComb comb;
        for (int i = 1; i <= lotoComb::size; ++i)
            comb.num(i, static_cast<std::int16_t>((number + 7 * i) % 49 + 1));
        comb.compl_(static_cast<std::int16_t>(number % 49 + 1));
        gDbCombs->Add(dateOf({2003, 1, 11}) + number, 1, comb, false, "");
    }
};

TEST_F(ReportOnPaperTest, BannerAndLinesStandInTheirOrderPlacesAndSizes) {
    for (const char *queue : bothQueues) {
        SCOPED_TRACE(queue);
        modPrinter::currentPrinter(queue);
        auto report = modPrinter::startReport("essai");
        ASSERT_TRUE(report);
        report->line("Numéro Fréquence");
        report->fontSize(8);
        report->line("001)   01   02   03   04   05   06");
        report->end();
        const auto pages = lastPrinted(queue);
        const std::string stars(40, '*');
        EXPECT_EQ(pages.count(), 1);
        EXPECT_EQ(textsOf(pages),
                  (Lines{stars, std::string(17, ' ') + "boulix", stars, "Numéro Fréquence",
                         "001)   01   02   03   04   05   06"}));
        EXPECT_NEAR(pages.lines().front().points, 10, 0.2);
        EXPECT_NEAR(pages.lines().back().points, 8, 0.2);
        const auto &words = pages.words();
        EXPECT_NEAR(words.front().left, 10, 0.1);
        EXPECT_NEAR(words.front().top, 10, 0.1);
        EXPECT_NEAR(words.back().left,
                    words.front().left + report->textWidth("001)   01   02   03   04   05   "),
                    0.2);
    }
}

TEST_F(ReportOnPaperTest, ALongReportGoesOnOverPagesLineByLine) {
    modPrinter::currentPrinter("Salon");
    auto report = modPrinter::startReport("essai");
    ASSERT_TRUE(report);
    constexpr int count = 200;
    for (int i = 1; i <= count; ++i)
        report->line("ligne " + std::to_string(i));
    report->end();
    const auto pages = lastPrinted("Salon");
    Lines expected = {std::string(40, '*'), std::string(17, ' ') + "boulix", std::string(40, '*')};
    for (int i = 1; i <= count; ++i)
        expected.push_back("ligne " + std::to_string(i));
    EXPECT_EQ(textsOf(pages), expected);

    // How many lines a page takes follows from the distance of the first two.
    const auto &words = pages.words();
    const double height = words[1].top - words[0].top;
    const int perPage = static_cast<int>((pages.sheetHeight() - 2 * TextReport::margin) / height);
    EXPECT_EQ(pages.count(), (count + 4 + perPage - 1) / perPage);
    for (const PrintedWord &word : words) {
        EXPECT_GT(word.top, TextReport::margin - 0.1);
        EXPECT_LT(word.bottom, pages.sheetHeight() - TextReport::margin + 0.5);
    }
    for (std::size_t i = 1; i < words.size(); ++i) {
        if (words[i].page != words[i - 1].page) {
            EXPECT_NEAR(words[i].top, TextReport::margin, 0.1) << "a page begins at its top";
        }
    }
}

TEST_F(ReportOnPaperTest, ADescriptionWiderThanTheSheetIsPrintedWhole) {
    modPrinter::currentPrinter("Salon");
    const std::string description =
        "Donne un aperçu graphique du nombre de tirages consécutifs sans sortir sur la plage de "
        "tirages sélectionnée pour le quadruplet sélectionné (Ce calcul ne tient pas compte du "
        "numéro complémentaire)";
    auto report = modPrinter::startReport("essai");
    ASSERT_TRUE(report);
    report->line(description);
    report->end();
    const auto pages = lastPrinted("Salon");
    const Lines texts = textsOf(pages);
    ASSERT_EQ(texts.size(), 5U) << "banner and two lines";
    EXPECT_EQ(texts[3] + " " + texts[4], description);
    for (const PrintedWord &word : pages.words())
        EXPECT_LT(word.right, pages.sheetWidth() - TextReport::margin + 0.1);
}

TEST_F(ReportOnPaperTest, ValuesStandInTheirColumn) {
    modPrinter::currentPrinter("Bureau");
    auto report = modPrinter::startReport("essai");
    ASSERT_TRUE(report);
    const double column = report->textWidth("Nombre de grilles ");
    report->line("Fichier", column, ": rgame-0.gam");
    report->line("Nombre de grilles", column, ": 18");
    report->end();
    const auto pages = lastPrinted("Bureau");
    int colons = 0;
    for (const PrintedWord &word : pages.words())
        if (word.text == ":") {
            ++colons;
            EXPECT_NEAR(word.left, TextReport::margin + column, 0.1);
        }
    EXPECT_EQ(colons, 2);
}

TEST_F(ReportOnPaperTest, FourDrawsOfTheBaseMakeOneFullLineAndOneEntry) {
    modPrinter::currentPrinter("Bureau");
    for (int i = 0; i < 4; ++i)
        addDraw(i);
    gDbCombs->PrintDB();
    const auto pages = lastPrinted("Bureau");
    const Lines texts = textsOf(pages);
    ASSERT_EQ(texts.size(), 6U);
    EXPECT_EQ(texts[3], "Base de données imprimée le 15/11/2026");
    EXPECT_EQ(texts[4], "0001) 11-01-2003 - (1) 08 15 22 29 36 43 (01) --- "
                        "0002) 12-01-2003 - (1) 09 16 23 30 37 44 (02) --- "
                        "0003) 13-01-2003 - (1) 10 17 24 31 38 45 (03)");
    EXPECT_EQ(texts[5], "0004) 14-01-2003 - (1) 11 18 25 32 39 46 (04)");
    EXPECT_NEAR(pages.lines()[3].points, 10, 0.2);
    EXPECT_NEAR(pages.lines()[4].points, 8, 0.2);
    for (const PrintedWord &word : pages.words())
        EXPECT_LT(word.right, pages.sheetWidth() - TextReport::margin + 0.1);
}

TEST_F(ReportOnPaperTest, AGameIsListedGridByGrid) {
    modPrinter::currentPrinter("Bureau");
    currentGame->Add() = gameComb({1, 2, 3, 4, 5, 6});
    currentGame->Add() = gameComb({9, 19, 29, 39, 48, 49});
    currentGame->PrintGameList();
    const Lines texts = textsOf(lastPrinted("Bureau"));
    ASSERT_EQ(texts.size(), 6U);
    EXPECT_EQ(texts[3], "Jeu imprimé le 15/11/2026");
    EXPECT_EQ(texts[4], "001)   01   02   03   04   05   06   ");
    EXPECT_EQ(texts[5], "002)   09   19   29   39   48   49   ");
}

TEST_F(ReportOnPaperTest, ADefinitionShowsItsValuesInAColumnAndItsRowsBelow) {
    modPrinter::currentPrinter("Bureau");
    gameDef definition;
    definition.label("5 sur 10");
    definition.nSelect(10);
    definition.addStrComb("01 / 02 / 03 / 04 / 05 / 10");
    definition.printDef();
    const auto pages = lastPrinted("Bureau");
    EXPECT_EQ(textsOf(pages).back(), "          001)   01   02   03   04   05   10   ");
    double column = 0;
    int colons = 0;
    for (const PrintedWord &word : pages.words()) {
        if (word.text != ":")
            continue;
        column = colons++ == 0 ? word.left : column;
        EXPECT_NEAR(word.left, column, 0.01);
    }
    EXPECT_EQ(colons, 5) << "\"Numéros gagnants\" is so long that it touches the sixth one";
    EXPECT_GT(column, TextReport::margin + 20) << "behind the longest label";
}

TEST_F(ReportOnPaperTest, TheWholeHistoryOfTheOperatorComesOutDrawByDraw) {
    const auto history = operatorHistory();
    if (!history)
        GTEST_SKIP() << "the operator's history is not here";
    gDbCombs->dbFile().fullName(file("tirages.dbl"));
    desktop.answerOpen(history->string());
    ASSERT_TRUE(gDbCombs->ImportFdjFile());
    ASSERT_EQ(gDbCombs->Count(), 4858);
    modPrinter::currentPrinter("Salon");
    gDbCombs->PrintDB();
    const auto pages = lastPrinted("Salon");
    const std::string stars(40, '*');
    Lines expected = {stars, std::string(17, ' ') + "boulix", stars,
                      "Base de données imprimée le 15/11/2026"};
    for (std::int64_t position = 1; position <= 4858; ++position) {
        const dbComb &draw = gDbCombs->Item(position);
        const bool first = position % 3 == 1;
        std::string &line = first ? expected.emplace_back() : expected.back();
        line += (first ? "" : " --- ") + zeroPadded(position, 4) + ") " + shortDate(draw.day()) +
                " - (" + std::to_string(draw.id()) + ") ";
        for (int i = 1; i <= lotoComb::size; ++i)
            line += zeroPadded(draw.comb().num(i), 2) + " ";
        line += "(" + zeroPadded(draw.comb().compl_(), 2) + ")";
    }
    EXPECT_EQ(textsOf(pages), expected);
    for (std::size_t i = 0; i < pages.lines().size(); ++i)
        ASSERT_NEAR(pages.lines()[i].points, i < 4 ? 10 : 8, 0.2) << pages.lines()[i].text;
    expectFullSheets(pages);
}

} // namespace
} // namespace boulix
