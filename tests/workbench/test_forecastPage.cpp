// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The forecast page: its boxes, its list, its ticks, its four buttons.

#include "workbench/forecastPage.h"

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "forecasts/pronostics.h"
#include "support/boulixTest.h"
#include "support/lottery.h"
#include "workbench/frmTestProno.h"

#include <functional>
#include <string>
#include <vector>

namespace boulix {
namespace {

using testing_support::fileExists;

class ForecastPage : public BoulixTest, protected forecastView {
  protected:
    ForecastPage() {
        gPronostics->init();
        page.init();
        page.view(this);
    }
    ~ForecastPage() override { page.view(nullptr); }
    void refresh() override { ++refreshes; }
    void runTestWindow(frmTestProno &window) override {
        ++windows;
        if (onWindow)
            onWindow(window);
    }

    /// Parameters that every rule accepts.
    void fillBoxes(const std::string &n = "1", const std::string &p = "1") {
        page.txtN = {n, n, n, n};
        page.txtP = {p, "", "", p};
        page.txtPoints = {"1", "20", "300", "4000"};
    }
    void addDraws() {
        addDraw({1, 2, 3, 4, 5, 6, 7});
        addDraw({11, 12, 13, 14, 15, 16, 17});
        addDraw({21, 22, 23, 24, 25, 26, 27});
    }
    std::string points(int number) const {
        for (std::int64_t row = 0; row < 49; ++row)
            if (page.lvwPronoResults.sourceRow(row) == number - 1)
                return page.lvwPronoResults.text(row, 1);
        return "?";
    }
    void click(forecastPage::Button button) { page.clickButton(button); }

    forecastPage page;
    std::function<void(frmTestProno &)> onWindow;
    int refreshes = 0;
    int windows = 0;
};

TEST_F(ForecastPage, ShowsTheRulesAndOnlyTheBoxesTheyUse) {
    EXPECT_EQ(page.lblPronoTitle,
              (forecastPage::RuleTexts{
                  "Le numéro est sorti au cours de N derniers tirages, mais pas dans les P "
                  "derniers précédents",
                  "Le numéro n'est pas sorti depuis plus de N tirages",
                  "Le numéro appartient à un couple qui n'est pas sorti depuis N tirages",
                  "Le numéro est sorti moins de N fois au cours de P derniers tirages"}));
    EXPECT_EQ(page.visibleN, (std::array<bool, 4>{true, true, true, true}));
    EXPECT_EQ(page.visibleP, (std::array<bool, 4>{true, false, false, true}));
}

TEST_F(ForecastPage, ListsTheNumbersWithoutPoints) {
    ASSERT_EQ(page.lvwPronoResults.columns().size(), 2U);
    EXPECT_EQ(page.lvwPronoResults.columns()[0].header, "Numéro");
    EXPECT_EQ(page.lvwPronoResults.columns()[1].header, "Points");
    ASSERT_EQ(page.lvwPronoResults.rowCount(), 49);
    EXPECT_EQ(page.lvwPronoResults.text(0, 0), "01");
    EXPECT_EQ(page.lvwPronoResults.text(48, 0), "49");
    EXPECT_EQ(points(7), "");
}

TEST_F(ForecastPage, ComputesFromTheBoxesBackFromTheLastDraw) {
    addDraws();
    fillBoxes();
    click(forecastPage::computePoints);
    EXPECT_EQ(desktop.messages.size(), 0U);
    // Spans of two draws: 1 came out in neither, 11 and 21 once each.
    EXPECT_EQ(points(1), "4320");
    EXPECT_EQ(points(11), "4000");
    EXPECT_EQ(points(21), "4000");
    EXPECT_EQ(points(49), "4320");
    EXPECT_EQ(gPronostics->Item(1).n(), 1);
    EXPECT_EQ(gPronostics->Item(4).p(), 1);
    EXPECT_EQ(gPronostics->Item(2).p(), 0);
    EXPECT_EQ(gPronostics->Item(3).baseTir(), 3);
}

TEST_F(ForecastPage, WritesPointsWithFourDigitsAtLeast) {
    addDraws();
    fillBoxes();
    page.txtPoints = {"1", "2", "3", "10000"};
    click(forecastPage::computePoints);
    EXPECT_EQ(points(1), "10005");
    page.txtPoints = {"1", "2", "3", "4"};
    gPronostics->computed(false);
    click(forecastPage::computePoints);
    EXPECT_EQ(points(1), "0009");
}

TEST_F(ForecastPage, ShowsTheEarlierPointsWhileTheyAreValid) {
    addDraws();
    fillBoxes();
    click(forecastPage::computePoints);
    page.txtPoints = {"5", "5", "5", "5"};
    click(forecastPage::computePoints);
    EXPECT_EQ(points(1), "4320");
    EXPECT_EQ(gPronostics->Item(1).nPoint(), 5); // the box was taken all the same
}

TEST_F(ForecastPage, AnEmptyBoxCountsAsZeroAndTheRuleIsRefused) {
    addDraws();
    const struct {
        std::function<void()> empty;
        int number;
        const char *text;
    } rows[] = {
        {[&] { page.txtN[1] = ""; }, 4501,
         "Impossible d'initialiser le pronostique numéro 2.\r\nN n'a pas été défini!!!"},
        {[&] { page.txtP[3] = "  "; }, 4502,
         "Impossible d'initialiser le pronostique numéro 4.\r\nP n'a pas été défini!!!"},
        {[&] { page.txtPoints[2] = "dix"; }, 4503,
         "Impossible d'initialiser le pronostique numéro 3.\r\n"
         "Le nombre de points à attribuer n'a pas été défini!!!"},
    };
    for (const auto &row : rows) {
        fillBoxes();
        row.empty();
        desktop.messages.clear();
        click(forecastPage::computePoints);
        ASSERT_EQ(desktop.messages.size(), 1U);
        EXPECT_EQ(desktop.messages[0],
                  (ShownBox{row.text, Icon::information,
                            "boulix: Erreur N° " + std::to_string(row.number)}));
        EXPECT_EQ(points(1), "");
    }
    EXPECT_EQ(page.txtPoints[2], "0") << "the box says what it counted as";
}

TEST_F(ForecastPage, ASpanBeforeTheFirstDrawEndsTheCommandAndTheListStays) {
    addDraws();
    fillBoxes("3");
    click(forecastPage::computePoints);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0], (ShownBox{"L'indice n'appartient pas à la sélection",
                                             Icon::critical, "Boulix Erreur système N° 9"}));
    EXPECT_EQ(points(1), "");
    fillBoxes("2");
    click(forecastPage::computePoints);
    EXPECT_EQ(points(49), "4320");
}

TEST_F(ForecastPage, OnAnEmptyBaseAComputationEndsWithAFailure) {
    fillBoxes();
    click(forecastPage::computePoints);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 9");
}

TEST_F(ForecastPage, AParameterBeyondSixteenBitsIsAnOverflow) {
    addDraws();
    for (const char *text : {"32768", "-32769", "99999999999999999999"}) {
        fillBoxes(text);
        desktop.messages.clear();
        click(forecastPage::computePoints);
        ASSERT_EQ(desktop.messages.size(), 1U) << text;
        EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 6") << text;
        EXPECT_NE(desktop.messages[0].text.find(std::string("« N, règle 1 » attend un nombre "
                                                            "entier de 1 à 32767 ; il y avait « ") +
                                                text),
                  std::string::npos)
            << desktop.messages[0].text;
        EXPECT_EQ(desktop.focusedFields.back(), "txtN_0");
        EXPECT_EQ(page.txtN[0], text) << "what was refused stays to be mended";
    }
}

TEST_F(ForecastPage, SaysWhatItDid) {
    addDraws();
    fillBoxes("2");
    click(forecastPage::computePoints);
    desktop.answerSave(file("regles.pro"));
    click(forecastPage::saveRules);
    desktop.answerOpen(file("regles.pro"));
    click(forecastPage::loadRules);
    EXPECT_EQ(desktop.announcements,
              (std::vector<std::string>{"Points calculés pour les 49 numéros",
                                        "Pronostique enregistré dans regles.pro",
                                        "Pronostique chargé de regles.pro"}));
    EXPECT_EQ(desktop.saveQuestions[0].name, "pronostique.pro");
}

TEST_F(ForecastPage, AFileWhoseHeaderIsRefusedTellsThatTheRulesAreGoneAndHowToGetThemBack) {
    writeBytes(file("autre.pro"), std::string(2000, 'x'));
    desktop.answerOpen(file("autre.pro"));
    click(forecastPage::loadRules);
    EXPECT_EQ(gPronostics->Count(), 0);
    EXPECT_FALSE(desktop.messages.empty()) << "the header's own message comes first";
    EXPECT_EQ(desktop.announcements,
              (std::vector<std::string>{"Il n'y a plus de règles : chargez un autre fichier .pro, "
                                        "ou relancez Boulix pour retrouver celles du départ"}));
}

TEST_F(ForecastPage, SavesTheBoxesAndLoadsThemBack) {
    fillBoxes("12", "34");
    desktop.answerSave(file("regles.pro"));
    click(forecastPage::saveRules);
    ASSERT_TRUE(fileExists(file("regles.pro")));
    ASSERT_EQ(desktop.saveQuestions.size(), 1U);
    EXPECT_EQ(desktop.saveQuestions[0].filter, "Fichier de pronostique Boulix (*.pro)|*.pro");
    EXPECT_EQ(desktop.saveQuestions[0].title, "Sauvegarde du pronostique");
    page.txtN = {"?", "?", "?", "?"};
    page.txtP = {"?", "reste", "reste", "?"};
    page.txtPoints = {"?", "?", "?", "?"};
    desktop.answerOpen(file("regles.pro"));
    click(forecastPage::loadRules);
    EXPECT_EQ(desktop.openQuestions[0].filter, "Fichier de pronostique Boulix (*.pro)|*.pro");
    EXPECT_EQ(desktop.openQuestions[0].title, "Chargement d'un pronostique");
    EXPECT_EQ(page.txtN, (forecastPage::RuleTexts{"12", "12", "12", "12"}));
    EXPECT_EQ(page.txtP, (forecastPage::RuleTexts{"34", "reste", "reste", "34"}));
    EXPECT_EQ(page.txtPoints, (forecastPage::RuleTexts{"1", "20", "300", "4000"}));
    EXPECT_EQ(gPronostics->Count(), 4);
}

TEST_F(ForecastPage, ABoxThatIsSwitchedOffIsNeitherTakenNorFilled) {
    addDraws();
    fillBoxes();
    gPronostics->Item(1).enableN(false);
    gPronostics->Item(1).n(1);
    page.txtN[0] = "9";
    page.txtP[1] = "9";
    click(forecastPage::computePoints);
    EXPECT_EQ(desktop.messages.size(), 0U);
    EXPECT_EQ(gPronostics->Item(1).n(), 1);
    EXPECT_EQ(gPronostics->Item(2).p(), 0);
    desktop.answerSave(file("regles.pro"));
    click(forecastPage::saveRules);
    desktop.answerOpen(file("regles.pro"));
    click(forecastPage::loadRules);
    EXPECT_EQ(page.txtN[0], "9");
    EXPECT_EQ(page.txtP[1], "9");
    EXPECT_EQ(gPronostics->Item(1).n(), 1);
    EXPECT_EQ(gPronostics->Item(2).p(), 0);
}

TEST_F(ForecastPage, ACancelledDialogChangesNothing) {
    fillBoxes();
    desktop.cancelOpen();
    click(forecastPage::loadRules);
    desktop.cancelSave();
    click(forecastPage::saveRules);
    EXPECT_EQ(gPronostics->Count(), 4);
    EXPECT_EQ(gPronostics->Item(1).n(), 0);
    EXPECT_EQ(page.txtN[0], "1");
}

TEST_F(ForecastPage, AfterALoadTheListKeepsTheOldPointsUntilTheNextCompute) {
    addDraws();
    fillBoxes();
    desktop.answerSave(file("regles.pro"));
    click(forecastPage::saveRules);
    click(forecastPage::computePoints);
    page.txtPoints = {"9", "9", "9", "9"};
    desktop.answerOpen(file("regles.pro"));
    click(forecastPage::loadRules);
    EXPECT_EQ(points(1), "4320");
    page.txtPoints = {"2", "2", "2", "2"};
    click(forecastPage::computePoints);
    EXPECT_EQ(points(1), "0006");
}

TEST_F(ForecastPage, AFileOfFewerOrMoreRulesLeavesTheOtherBoxesAlone) {
    pronostics set;
    pronos rule;
    rule.label("seule");
    rule.pronoType(2);
    rule.n(7);
    rule.nPoint(8);
    rule.enableN(true);
    set.Add(rule);
    set.save(file("une.pro"));
    for (int i = 0; i < 5; ++i)
        set.Add(rule);
    set.save(file("six.pro"));
    addDraws();
    fillBoxes();
    desktop.answerOpen(file("une.pro"));
    click(forecastPage::loadRules);
    EXPECT_EQ(page.txtN, (forecastPage::RuleTexts{"7", "1", "1", "1"}));
    page.txtN[0] = "1";
    click(forecastPage::computePoints);
    EXPECT_EQ(points(1), "0008");
    desktop.answerOpen(file("six.pro"));
    click(forecastPage::loadRules);
    EXPECT_EQ(page.txtN, (forecastPage::RuleTexts{"7", "7", "7", "7"}));
    page.txtN = {"1", "1", "1", "1"};
    click(forecastPage::computePoints); // rules five and six look back seven draws of three
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 9");
}

TEST_F(ForecastPage, AFileThatCannotBeReadIsShownAndTheProgramGoesOn) {
    desktop.answerOpen(file("parti.pro"));
    click(forecastPage::loadRules);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 53");
    click(forecastPage::computePoints); // no rule is left
    EXPECT_EQ(points(1), "0000");
}

TEST_F(ForecastPage, AHeaderClickSortsByTextAndASecondOneBringsTheBestToTheTop) {
    addDraws();
    fillBoxes();
    click(forecastPage::computePoints);
    page.clickHeader(1);
    EXPECT_EQ(page.lvwPronoResults.text(0, 0), "11");
    page.clickHeader(1);
    EXPECT_EQ(page.lvwPronoResults.text(0, 0), "01");
    EXPECT_EQ(page.lvwPronoResults.text(0, 1), "4320");
    EXPECT_EQ(page.lvwPronoResults.text(48, 0), "27");
}

TEST_F(ForecastPage, ASortedListStaysSortedWhenPointsAreComputed) {
    addDraws();
    fillBoxes();
    page.clickHeader(1);
    page.clickHeader(1);
    click(forecastPage::computePoints);
    EXPECT_EQ(page.lvwPronoResults.text(0, 1), "4320");
    EXPECT_EQ(page.lvwPronoResults.text(48, 1), "4000");
}

TEST_F(ForecastPage, GivesTheTickedNumbersInTheOrderShown) {
    addDraws();
    fillBoxes();
    click(forecastPage::computePoints);
    EXPECT_EQ(page.tickedNumbers(), std::vector<std::int16_t>{});
    page.tick(0, true);  // 1
    page.tick(10, true); // 11
    page.tick(48, true); // 49
    page.tick(5, true);
    page.tick(5, false);
    EXPECT_TRUE(page.ticked(10));
    EXPECT_FALSE(page.ticked(5));
    EXPECT_EQ(page.tickedNumbers(), (std::vector<std::int16_t>{1, 11, 49}));
    page.clickHeader(1); // 11 and its like come first now
    EXPECT_TRUE(page.ticked(0));
    EXPECT_EQ(page.tickedNumbers(), (std::vector<std::int16_t>{11, 1, 49}));
}

TEST_F(ForecastPage, TheTestWindowIsOpenUntilTheUserClosesIt) {
    addDraws();
    bool open = false;
    onWindow = [&](frmTestProno &window) {
        open = true;
        EXPECT_EQ(window.txtNumTir(), "3");
    };
    click(forecastPage::testOnPast);
    EXPECT_TRUE(open);
    EXPECT_EQ(windows, 1);
}

TEST_F(ForecastPage, EveryButtonRefreshesTheScreen) {
    refreshes = 0;
    desktop.cancelOpen();
    click(forecastPage::loadRules);
    click(forecastPage::computePoints);
    EXPECT_EQ(refreshes, 2);
}

} // namespace
} // namespace boulix
