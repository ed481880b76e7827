// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The statistics page in poor circumstances: dialogs that are dismissed, no draw, one draw, draws
// that go away.

#include "workbench/statisticsPageTest.h"

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "support/files.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <map>

namespace boulix {
namespace {

using testing_support::fileExists;

/// The types that ask for numbers, and numbers for them.
const std::map<std::int16_t, Numbers> askingTypes = {
    {2, {3}},  {3, {3, 2}},  {4, {3, 2, 1}},  {5, {4, 3, 2, 1}}, {12, {49}},
    {13, {3}}, {14, {3, 2}}, {15, {3, 2, 1}}, {16, {4, 3, 2, 1}}};

Numbers numbersFor(std::int16_t type) {
    const auto found = askingTypes.find(type);
    return found == askingTypes.end() ? Numbers{} : found->second;
}

/// What the page says after a dialog was dismissed, while the stores hold no result.
std::string emptySentence(std::int16_t type) {
    switch (type) {
    case 12:
        return "18424 triplets non sortis";
    case 13:
        return "Absence maxi pour le numéro 0: 0 tirages";
    case 14:
        return "Absence maxi pour le couple (0,0): 0 tirages";
    case 15:
        return "Absence maxi pour le triplet (0,0,0): 0 tirages";
    case 16:
        return "Absence maxi pour le quadruplet (0,0,0,0): 0 tirages";
    default:
        return "";
    }
}

TEST_F(StatisticsPage, ADialogDismissedBeforeAFirstResultShowsWhatTheStoresHold) {
    startWithFourDraws();
    for (const auto &[type, numbers] : askingTypes) {
        SCOPED_TRACE("type " + std::to_string(type));
        desktop.messages.clear();
        page.lblStatsStatus.clear();
        computeDismissed(type);
        EXPECT_EQ(page.lvwStatsResult.rowCount(), type == 12 ? 18424 : 0);
        EXPECT_EQ(page.lblStatsStatus, emptySentence(type));
        // Each number that the sentence of a period wants is missing.
        EXPECT_EQ(desktop.messages.size(), type >= 13 ? numbers.size() : 0U);
        for (const auto &message : desktop.messages)
            EXPECT_EQ(message.title, "boulix: Erreur N° 4301");
    }
}

TEST_F(StatisticsPage, ADialogDismissedAfterAResultLeavesTheStoresAndShowsThemAgain) {
    startWithFourDraws();
    for (const auto &[type, numbers] : askingTypes) {
        SCOPED_TRACE("type " + std::to_string(type));
        compute(type, numbers);
        desktop.messages.clear();
        const Texts before = rows();
        const std::string sentence = page.lblStatsStatus;
        ASSERT_FALSE(before.empty());
        desktop.answerNumbers(NumberScript().cancel());
        page.clickButton(statisticsPage::computeType);
        if (type <= 5) {
            EXPECT_EQ(rows(), Texts());
            EXPECT_EQ(headers(), Texts());
            EXPECT_EQ(page.lblStatsStatus, sentence);
        } else {
            EXPECT_EQ(rows(), before);
        }
        EXPECT_EQ(desktop.messages.size(), type >= 13 ? numbers.size() : 0U);
        computeAgain(numbers);
        EXPECT_EQ(rows(), before);
        EXPECT_EQ(page.lblStatsStatus, sentence);
    }
}

TEST_F(StatisticsPage, ABaseOfOneDrawServesEveryTypeAndEveryButton) {
    startWith({{1, 2, 3, 4, 5, 6, 7}});
    EXPECT_EQ(page.updStatStart.value(), 1);
    EXPECT_EQ(page.updStatEnd.value(), 1);
    pressGraph(true);
    for (const bool withCompl : {false, true}) {
        pressCompl(withCompl);
        for (std::int16_t type = 1; type <= 17; ++type) {
            SCOPED_TRACE("type " + std::to_string(type));
            compute(type, numbersFor(type));
            page.clickHeader(0);
            clickRows({1});
            if (!numbersFor(type).empty())
                desktop.answerNumbers(NumberScript().click(numbersFor(type)).ok());
            desktop.answerSave(file("stat.txt"));
            page.clickButton(statisticsPage::exportResult);
            EXPECT_TRUE(fileExists(file("stat.txt")));
            printers.documents.clear();
            page.clickButton(statisticsPage::printResult);
            EXPECT_TRUE(printers.onlyDocument().ended);
            std::filesystem::remove(file("stat.txt"));
        }
        page.pickType(1);
        computeAgain();
        EXPECT_EQ(curvePoints(), 49U);
    }
    page.clickButton(statisticsPage::erase);
    EXPECT_EQ(board(), Numbers());
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(StatisticsPage, AnEmptyBaseServesEveryTypeButTheCurrentRuns) {
    startWith({});
    pressGraph(true);
    for (std::int16_t type = 1; type <= 17; ++type) {
        SCOPED_TRACE("type " + std::to_string(type));
        desktop.messages.clear();
        compute(type, numbersFor(type));
        EXPECT_EQ(desktop.messages.size(), type == 8 ? 1U : 0U);
        page.clickHeader(0);
        clickRows({});
        desktop.messages.clear();
        if (!numbersFor(type).empty())
            desktop.answerNumbers(NumberScript().click(numbersFor(type)).ok());
        if (type != 8) // which fails before it asks for a file
            desktop.answerSave(file("stat.txt"));
        page.clickButton(statisticsPage::exportResult);
        page.clickButton(statisticsPage::printResult);
        ASSERT_EQ(desktop.messages.size(), 2U) << "there is no draw to name";
        for (const auto &message : desktop.messages)
            EXPECT_EQ(message.title, "Boulix Erreur système N° 9");
        EXPECT_FALSE(fileExists(file("stat.txt")));
        for (const auto &document : printers.documents)
            EXPECT_FALSE(document.ended);
    }
    for (const char *typed : {"abc", "", "0", "99999", "-5", "1"}) {
        page.leaveStart(typed);
        page.leaveEnd(typed);
        EXPECT_EQ(page.txtStatStart, "0") << typed;
        EXPECT_EQ(page.txtStatEnd, "0") << typed;
    }
}

TEST_F(StatisticsPage, ARangeSetBeforeDrawsWereRemovedIsBroughtBackIntoTheBase) {
    startWithDraws(10);
    page.updStatEnd.set(10);
    page.updStatStart.set(8);
    desktop.messages.clear();
    gDbCombs->dbFile().fullName(file("tirages.dbl"));
    for (int i = 0; i < 5; ++i)
        gDbCombs->Remove(gDbCombs->Count());
    mainWindow->frmUpdateDBList();
    EXPECT_EQ(page.txtStatStart, "1");
    EXPECT_EQ(page.txtStatEnd, "5");
    EXPECT_EQ(page.lblStatEndDate, "05-01-2000 (1)");
    for (std::int16_t type = 1; type <= 17; ++type)
        compute(type, numbersFor(type));
    EXPECT_TRUE(desktop.messages.empty());
}

} // namespace
} // namespace boulix
