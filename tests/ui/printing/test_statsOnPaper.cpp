// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The statistics on the pages of a real print system.

#include "paperTest.h"

#include "core/globals.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "printing/modPrinter.h"
#include "stats/modStats.h"
#include "stats/statReport.h"
#include "stats/statStores.h"
#include "stats/statTypes.h"
#include "support/locations.h"
#include "support/lottery.h"
#include "workbench/frmMain.h"

namespace boulix {
namespace {

using namespace testing_support;
using Lines = std::vector<std::string>;

class StatsOnPaperTest : public PaperTest {
  protected:
    StatsOnPaperTest() {
        modStats::InitStatTypes();
        modStats::InitTripletTable();
        modStats::reset();
    }

    void startWithFourDraws() {
        addDraw({1, 2, 3, 4, 5, 6, 7});
        addDraw({1, 2, 3, 14, 15, 16, 17});
        addDraw({21, 22, 23, 24, 25, 26, 7});
        addDraw({1, 2, 13, 14, 25, 36, 47});
        mainWindow->load();
    }
    void compute(std::int16_t type, std::int16_t withCompl = 0) {
        if (const int n = modStats::statTypes(type).nNumbers; n > 0) {
            const std::vector<std::int16_t> numbers = {3, 14, 25, 36};
            desktop.answerNumbers(
                NumberScript().click({numbers.begin(), numbers.begin() + n}).ok());
        }
        modStats::ComputeStat(type, withCompl, 1, gDbCombs->Count(), chooser);
    }
    void print(std::int16_t type, std::int16_t withCompl = 0) {
        modStats::PrintStats(type, withCompl, 1, gDbCombs->Count(), chooser);
    }
    /// The lines of the report as the logic gives them, without the empty ones.
    Lines told(std::int16_t type, std::int16_t withCompl) {
        setPrinterSystem(&printers);
        printers.documents.clear();
        printers.sheetWidth = 1000; // nothing is broken
        printers.sheetHeight = 100000;
        print(type, withCompl);
        setPrinterSystem(&system);
        Lines lines = printers.onlyDocument().lines();
        std::erase(lines, std::string());
        return lines;
    }
    /// The printed lines, those that were broken at the edge of the sheet put together again as
    /// `told` has them.
    static Lines mended(const PrintedPages &pages, const Lines &told) {
        Lines lines;
        std::size_t at = 0;
        while (at < pages.lines().size()) {
            std::string text = pages.lines()[at++].text;
            const std::size_t length = lines.size() < told.size() ? told[lines.size()].size() : 0;
            while (text.size() < length && at < pages.lines().size())
                text += " " + pages.lines()[at++].text;
            lines.push_back(text);
        }
        return lines;
    }
    static void expectLinesOfTenPoints(const PrintedPages &pages) {
        expectFullSheets(pages);
        for (const PrintedLine &line : pages.lines())
            ASSERT_NEAR(line.points, 10, 0.2) << line.text;
    }

    selector chooser;
};

TEST_F(StatsOnPaperTest, AReportStandsOnBothPrintersAsItIsTold) {
    startWithFourDraws();
    compute(13);
    const std::string stars(40, '*');
    const std::string dashes(120, '-');
    const Lines report = {
        stars,
        std::string(17, ' ') + "boulix",
        stars,
        dashes,
        "Graphique des périodes de tirages sans sortir pour un numéro (Sans complémentaire)",
        "(Statistique imprimée le 15/11/2026)",
        dashes,
        "Donne un aperçu graphique du nombre de tirages consécutifs sans sortir sur la plage de "
        "tirages sélectionnée pour le numéro sélectionné (Ce calcul ne tient pas compte du numéro "
        "complémentaire)",
        dashes,
        "Analyse réalisée pour du tirage N° 1 (01-01-2000 - 1)  au tirage N° 4 (04-01-2000 - 1) ",
        dashes,
        "Période  Nombre d'absences",
        "1        2",
        dashes,
        "Absence maxi pour le numéro 3: 2 tirages",
        dashes};
    for (const char *queue : bothQueues) {
        SCOPED_TRACE(queue);
        modPrinter::currentPrinter(queue);
        print(13);
        const auto pages = lastPrinted(queue);
        EXPECT_EQ(mended(pages, report), report);
        EXPECT_EQ(pages.count(), 1);
        expectLinesOfTenPoints(pages);
    }
}

TEST_F(StatsOnPaperTest, EachTypeOfTheRealHistoryComesOutRowByRow) {
    const auto history = operatorHistory();
    if (!history)
        GTEST_SKIP() << "the operator's history is not here";
    ASSERT_TRUE(importHistory(desktop, folder(), *history));
    modPrinter::currentPrinter("Bureau");
    for (std::int16_t type = 1; type <= modStats::statTypeCount; ++type) {
        const std::int16_t withCompl = type % 2 == 0 ? 1 : 0;
        SCOPED_TRACE("type " + std::to_string(type));
        compute(type, withCompl);
        const Lines expected = told(type, withCompl);
        print(type, withCompl);
        const auto pages = lastPrinted("Bureau");
        EXPECT_EQ(mended(pages, expected), expected);
        expectLinesOfTenPoints(pages);
        EXPECT_EQ(pages.count(),
                  static_cast<int>(std::ceil(static_cast<double>(pages.lines().size() + 1) / 67)))
            << "the empty line of the banner counts";
    }
}

TEST_F(StatsOnPaperTest, AStoppedQueueKeepsTheStatisticUntilItRunsAgain) {
    startWithFourDraws();
    outputOf(QStringLiteral("cupsdisable"), {QStringLiteral("Salon")});
    mainWindow->statistics.clickButton(statisticsPage::computeType);
    mainWindow->statistics.clickButton(statisticsPage::printResult);
    EXPECT_TRUE(system.finishDocuments());
    EXPECT_TRUE(server().waits("Salon"));
    EXPECT_TRUE(desktop.messages.empty());
    outputOf(QStringLiteral("cupsenable"), {QStringLiteral("Salon")});
    const auto pages = lastPrinted("Salon");
    ASSERT_GT(pages.lines().size(), 49U);
    EXPECT_EQ(pages.lines()[pages.lines().size() - 2].text, "Numéro le plus sorti: 02 (3 fois)");
}

TEST_F(StatsOnPaperTest, ASavedPrinterThatIsGonePrintsOnTheDefaultOne) {
    startWithFourDraws();
    writeBytes(file("boulix.ini"), "[impression]\r\nimprimante=Grenier\r\n");
    modPrinter::loadSettings();
    mainWindow->statistics.clickButton(statisticsPage::computeType);
    mainWindow->statistics.clickButton(statisticsPage::printResult);
    EXPECT_TRUE(system.finishDocuments());
    EXPECT_TRUE(desktop.messages.empty());
    EXPECT_NE(server().lastOrder().find("/printers/Salon"), std::string::npos);
}

TEST_F(StatsOnPaperTest, APrinterThatIsGoneNowOrNoneAtAllIsOneMessageAndNoDocument) {
    startWithFourDraws();
    mainWindow->statistics.clickButton(statisticsPage::computeType);
    server().addRawQueue("Grenier");
    modPrinter::currentPrinter("Grenier");
    server().removeQueue("Grenier");
    const int before = server().documents();
    mainWindow->statistics.clickButton(statisticsPage::printResult);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 482");
    EXPECT_EQ(desktop.messages[0].text, "L'imprimante Grenier n'est pas disponible.");
    EXPECT_EQ(server().documents(), before);
    server().removeQueues();
    const int withoutQueues = server().documents();
    for (int report = 0; report < 2; ++report)
        desktop.answerNo(); // no PDF either
    mainWindow->statistics.clickButton(statisticsPage::printResult);
    mainWindow->database.clickButton(databasePage::printBase);
    EXPECT_EQ(server().documents(), withoutQueues);
    server().makeQueues();
    ASSERT_EQ(desktop.messages.size(), 3U);
    for (const std::size_t i : {1U, 2U}) {
        EXPECT_EQ(desktop.messages[i].title, "boulix: Erreur N° 2301");
        EXPECT_EQ(desktop.messages[i].text,
                  "Impossible d'imprimer, aucune imprimante est installée sur votre "
                  "ordinateur!\r\nou l'imprimante est mal configurée.");
    }
    EXPECT_EQ(mainWindow->statistics.lvwStatsResult.rowCount(), 49) << "the result is still there";
}

} // namespace
} // namespace boulix
