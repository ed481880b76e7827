// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The study range of the statistics page.

#include "workbench/statisticsPageTest.h"

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "support/files.h"

#include <gtest/gtest.h>

namespace boulix {
namespace {

TEST_F(StatisticsPage, AGreyedRangeStillBoundsTheComputation) {
    startWithFourDraws();
    page.updStatEnd.set(2);
    compute(7);
    EXPECT_FALSE(page.frameStatsRangeEnabled);
    EXPECT_EQ(rows().at(0), "01 03");
    EXPECT_EQ(rows().at(24), "25 00") << "drawn after the range only";
}

TEST_F(StatisticsPage, StartAndEndOfTheRangeMeetButNeverCross) {
    startWithDraws(10);
    page.updStatStart.set(4);
    EXPECT_EQ(page.updStatEnd.min(), 4);
    page.updStatEnd.set(1);
    EXPECT_EQ(page.updStatEnd.value(), 4);
    EXPECT_EQ(page.updStatStart.max(), 4);
    page.updStatStart.step(1);
    page.updStatEnd.step(-1);
    EXPECT_EQ(page.updStatStart.value(), 4);
    EXPECT_EQ(page.updStatEnd.value(), 4);
    EXPECT_EQ(page.lblStatStartDate, "04-01-2000 (1)");
    EXPECT_EQ(page.lblStatEndDate, "04-01-2000 (1)");
    const std::vector<Numbers> chosen = {
        {}, {1}, {1, 2}, {1, 2, 3}, {1, 2, 3, 4}, {},        {},           {}, {},
        {}, {},  {1},    {1},       {1, 2},       {1, 2, 3}, {1, 2, 3, 4}, {}};
    for (std::int16_t type = 1; type <= 17; ++type)
        compute(type, chosen[static_cast<std::size_t>(type - 1)]);
    EXPECT_TRUE(desktop.messages.empty()) << "a range of one draw is valid for every type";
}

TEST_F(StatisticsPage, BothDatesAreRewrittenWhicheverControlChanged) {
    startWithDraws(10);
    gDbCombs->Item(1).id(2);
    gDbCombs->Item(9).id(2);
    page.updStatEnd.set(9);
    EXPECT_EQ(page.lblStatStartDate, "01-01-2000 (2)");
    EXPECT_EQ(page.lblStatEndDate, "09-01-2000 (2)");
    EXPECT_EQ(page.txtStatEnd, "9");
}

TEST_F(StatisticsPage, TypedValuesAreBroughtBetweenTheLimits) {
    startWithDraws(10);
    struct Case {
        const char *typed;
        int start;
    };
    for (const Case &c : {Case{"0", 1},
                          {"5", 5},
                          {" 6 ", 6},
                          {"+7", 7},
                          {"-5", 1},
                          {"11", 8},
                          {"32767", 8},
                          {"-32768", 1}}) {
        page.updStatStart.set(3);
        page.updStatEnd.set(8);
        page.leaveStart(c.typed);
        EXPECT_EQ(page.updStatStart.value(), c.start) << c.typed;
        EXPECT_EQ(page.txtStatStart, std::to_string(c.start)) << c.typed;
        EXPECT_EQ(page.updStatEnd.min(), c.start) << c.typed;
    }
    page.updStatStart.set(3);
    page.leaveEnd("1");
    EXPECT_EQ(page.updStatEnd.value(), 3);
    EXPECT_EQ(page.txtStatEnd, "3");
    page.leaveEnd("99");
    EXPECT_EQ(page.updStatEnd.value(), 10);
}

TEST_F(StatisticsPage, TypedTextThatIsNo16BitWholeNumberKeepsTheValueAndIsWrittenOver) {
    startWithDraws(10);
    page.updStatStart.set(3);
    for (const std::string typed : {"99999", "", "abc", "4.5", "4a", "1e1", "32768", "-32769"}) {
        page.leaveStart(typed);
        EXPECT_EQ(page.updStatStart.value(), 3) << typed;
        EXPECT_EQ(page.txtStatStart, "3") << typed;
        page.leaveEnd(typed);
        EXPECT_EQ(page.updStatEnd.value(), 10) << typed;
    }
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(StatisticsPage, TheRangeFollowsTheBase) {
    startWithDraws(10);
    page.updStatStart.set(5);
    page.updStatEnd.set(7);
    addDraw({1, 2, 3, 4, 5, 6, 7});
    mainWindow->frmUpdateDBList();
    EXPECT_EQ(page.updStatStart.value(), 1);
    EXPECT_EQ(page.updStatStart.max(), 11);
    EXPECT_EQ(page.updStatEnd.value(), 11);
    EXPECT_EQ(page.updStatEnd.min(), 1);
    page.updStatStart.set(6);
    gDbCombs->clear();
    addDraw({1, 2, 3, 4, 5, 6, 7});
    mainWindow->frmUpdateDBList();
    EXPECT_EQ(page.updStatStart.value(), 1);
    EXPECT_EQ(page.updStatEnd.value(), 1);
    compute(9);
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(StatisticsPage, AnEmptyBaseDisablesTheRangeAndEveryButtonIsHarmless) {
    startWith({});
    EXPECT_FALSE(page.updStatStart.enabled);
    EXPECT_FALSE(page.updStatEnd.enabled);
    EXPECT_EQ(page.lblStatStartDate, "");
    page.leaveStart("3");
    EXPECT_EQ(page.updStatStart.value(), 0);
    compute(1);
    EXPECT_EQ(page.lblStatsStatus, "Numéro le plus sorti: 49 (0 fois)");
    compute(6);
    EXPECT_EQ(page.lblStatsStatus, "Somme la plus fréquente: 279 (0 fois)");
    pressGraph(true);
    pressGraph(false);
    pressCompl(true);
    page.clickButton(statisticsPage::erase);
    EXPECT_TRUE(desktop.messages.empty());
    compute(8);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 9");
    page.pickType(1);
    desktop.answerSave(file("stat.txt"));
    page.clickButton(statisticsPage::exportResult);
    page.clickButton(statisticsPage::printResult);
    EXPECT_EQ(desktop.messages.size(), 3U) << "there is no draw for the range line";
    EXPECT_FALSE(testing_support::fileExists(file("stat.txt")));
}

TEST_F(StatisticsPage, ABaseThatLostItsLastDrawGivesTheEmptyResults) {
    startWith({{1, 2, 3, 4, 5, 6, 7}});
    gDbCombs->clear();
    mainWindow->frmUpdateDBList();
    EXPECT_FALSE(page.updStatStart.enabled);
    compute(9);
    EXPECT_EQ(page.lblStatsStatus, "Numéro avec le record de retard: 49 (0 tirages)");
    EXPECT_TRUE(desktop.messages.empty());
}

} // namespace
} // namespace boulix
