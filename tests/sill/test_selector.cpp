// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/selector.h"

#include "support/boulixTest.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace boulix {
namespace {

using Numbers = std::vector<std::int16_t>;

class Selector : public BoulixTest {
  protected:
    Numbers selected() const {
        Numbers numbers;
        for (std::int16_t i = 1; i <= chosen.nSelectedNbr(); ++i)
            numbers.push_back(chosen.selectedNbr(i));
        return numbers;
    }

    selector chosen;
    const ShownBox nothingChosen{
        "Vous avez sélectionné aucun numéro! Utiliser le bouton \"Annuler\" pour sortir.",
        Icon::information, "boulix: Erreur N° 4302"};
    const ShownBox tooFew{"Vous devez sélectionner au moins 7 numéros!!!", Icon::information,
                          "boulix: Erreur N° 4303"};
};

TEST_F(Selector, GivesTheNumbersInTheOrderOfMarking) {
    chosen.setSelect(7, 7);
    desktop.answerNumbers(NumberScript().click({31, 15, 33, 27, 36, 48, 34}).ok());
    chosen.selectNbr();
    EXPECT_EQ(chosen.nSelectedNbr(), 7);
    EXPECT_EQ(selected(), (Numbers{31, 15, 33, 27, 36, 48, 34}));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(Selector, OpensAnEditableBoardWithTheLimit) {
    chosen.setSelect(10, 0);
    desktop.answerNumbers(NumberScript().click({1}).ok());
    chosen.selectNbr();
    EXPECT_EQ(desktop.numberShowings.at(0).maxSelected, 10);
    EXPECT_TRUE(desktop.numberShowings.at(0).editable);
    EXPECT_EQ(desktop.numberShowings.at(0).markedBefore, Numbers{});
    EXPECT_EQ(desktop.numberShowings.at(0).lblStatusAfter, "1 numéros");
}

TEST_F(Selector, MarksNoMoreNumbersThanTheLastSelectionLeft) {
    chosen.setPrevSelect(5, {1, 2, 3, 4, 5});
    chosen.setSelect(49, 0);
    desktop.answerNumbers(NumberScript().click({2, 4}).ok()); // two of the five off
    chosen.selectNbr();
    chosen.setSelect(49, 0);
    desktop.answerNumbers(NumberScript().cancel());
    chosen.selectNbr();
    EXPECT_EQ(desktop.numberShowings.at(1).markedBefore, (Numbers{1, 3, 5}));
}

TEST_F(Selector, WithTooFewNumbersSaysSoAndComesBackWithThemStillMarked) {
    chosen.setSelect(7, 7);
    desktop.answerNumbers(NumberScript().click({1, 2, 3, 4, 5, 6}).ok());
    desktop.answerNumbers(NumberScript().click({7}).ok());
    desktop.onMessage = [this](const ShownBox &) { EXPECT_EQ(chosen.nSelectedNbr(), 6); };
    chosen.selectNbr();
    EXPECT_EQ(desktop.messages, (std::vector<ShownBox>{tooFew}));
    EXPECT_EQ(desktop.numberShowings.at(1).markedBefore, (Numbers{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(desktop.numberShowings.at(1).maxSelected, 7); // the limit of the board stays
    EXPECT_EQ(selected(), (Numbers{1, 2, 3, 4, 5, 6, 7}));
}

TEST_F(Selector, WithoutANumberSaysSoAndCancelThenLeavesWithNone) {
    chosen.setSelect(7, 7);
    desktop.answerNumbers(NumberScript().ok());
    desktop.answerNumbers(NumberScript().cancel());
    chosen.selectNbr();
    EXPECT_EQ(desktop.messages, (std::vector<ShownBox>{nothingChosen}));
    EXPECT_EQ(chosen.nSelectedNbr(), 0);
}

TEST_F(Selector, WithoutANumberIsNotLeftEvenWhenNoMinimumIsSet) {
    chosen.setSelect(0, 0);
    desktop.answerNumbers(NumberScript().click({4}).click({4}).ok());
    desktop.answerNumbers(NumberScript().click({4}).ok());
    chosen.selectNbr();
    EXPECT_EQ(desktop.messages, (std::vector<ShownBox>{nothingChosen}));
    EXPECT_EQ(selected(), Numbers{4});
}

TEST_F(Selector, CancelAfterAFailedTryLeavesWithNone) {
    chosen.setSelect(7, 7);
    desktop.answerNumbers(NumberScript().click({1, 2}).ok());
    desktop.answerNumbers(NumberScript().cancel());
    chosen.selectNbr();
    EXPECT_EQ(desktop.messages, (std::vector<ShownBox>{tooFew}));
    EXPECT_EQ(chosen.nSelectedNbr(), 0);
}

TEST_F(Selector, MarksTheFirstPresetNumbersUpToTheLimit) {
    chosen.setPrevSelect(10, {10, 9, 8, 7, 6, 5, 4, 3, 2, 1});
    chosen.setSelect(7, 7);
    EXPECT_EQ(chosen.nPrevSelected(), 10);
    desktop.answerNumbers(NumberScript().ok());
    chosen.selectNbr();
    EXPECT_EQ(desktop.numberShowings.at(0).markedBefore, (Numbers{10, 9, 8, 7, 6, 5, 4}));
    EXPECT_EQ(selected(), (Numbers{10, 9, 8, 7, 6, 5, 4}));
}

TEST_F(Selector, MarksAllPresetNumbersWithoutALimit) {
    chosen.setPrevSelect(3, {3, 2, 1, 49});
    chosen.setSelect(0, 2);
    desktop.answerNumbers(NumberScript().click({40}).ok());
    chosen.selectNbr();
    EXPECT_EQ(desktop.numberShowings.at(0).markedBefore, (Numbers{3, 2, 1}));
    EXPECT_EQ(selected(), (Numbers{3, 2, 1, 40}));
}

TEST_F(Selector, WithoutPresetNumbersOpensEmpty) {
    chosen.setPrevSelect(0, {1, 2, 3});
    chosen.setSelect(0, 1);
    desktop.answerNumbers(NumberScript().click({9}).ok());
    chosen.selectNbr();
    EXPECT_EQ(desktop.numberShowings.at(0).markedBefore, Numbers{});
}

TEST_F(Selector, MorePresetNumbersThanGivenIsABoundsFailure) {
    EXPECT_EQ(failureNumber([this] { chosen.setPrevSelect(4, {1, 2, 3}); }), 9);
}

TEST_F(Selector, ClearTakesThePresetNumbersAway) {
    chosen.setPrevSelect(2, {1, 2});
    chosen.setSelect(5, 0);
    desktop.answerNumbers(NumberScript().clear().click({3}).ok());
    chosen.selectNbr();
    EXPECT_EQ(selected(), Numbers{3});
}

TEST_F(Selector, RefusesMoreNumbersThanTheLimit) {
    chosen.setSelect(3, 1);
    desktop.answerNumbers(NumberScript().click({1, 2, 3, 4, 5}).ok());
    chosen.selectNbr();
    EXPECT_EQ(selected(), (Numbers{1, 2, 3}));
}

TEST_F(Selector, ANumberOutsideTheCountIsReportedAndZero) {
    chosen.setSelect(7, 7);
    desktop.answerNumbers(NumberScript().click({1, 2, 3, 4, 5, 6, 7}).ok());
    chosen.selectNbr();
    EXPECT_EQ(chosen.selectedNbr(0), 0);
    EXPECT_EQ(chosen.selectedNbr(8), 0);
    const auto text = [](const std::string &index) {
        return "Erreur fatale!!!\r\nImpossible d'accéder au numéro sélectionné " + index +
               ".\r\nL'index doit être strictement positif ou inférieur ou égal à 7.\r\n"
               "Veuillez contacter le support technique.";
    };
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{{text("0"), Icon::critical, "boulix: Erreur N° 4301"},
                                     {text("8"), Icon::critical, "boulix: Erreur N° 4301"}}));
}

TEST_F(Selector, BeforeASelectionTheLimitIsNoNumber) {
    chosen.setSelect(7, 5);
    EXPECT_EQ(chosen.nSelectedNbr(), 7);
    EXPECT_EQ(chosen.nMinSelectedNbr(), 5);
    EXPECT_EQ(failureNumber([this] { chosen.selectedNbr(1); }), 9);
}

class SelectAll : public Selector {
  protected:
    const ShownBox refused(const std::string &limit) const {
        return {"Impossible de sélectionner tous les numéros, vous ne pouvez en sélectionner que " +
                    limit,
                Icon::information, "boulix: Erreur N° 801"};
    }
};

TEST_F(SelectAll, WithALimitBelow49IsRefusedAndChangesNothing) {
    chosen.setSelect(7, 1);
    desktop.answerNumbers(NumberScript().click({5}).selectAll().ok());
    chosen.selectNbr();
    EXPECT_EQ(desktop.messages, (std::vector<ShownBox>{refused("7")}));
    EXPECT_EQ(selected(), Numbers{5});
    EXPECT_EQ(platform.seedings, 0);
}

TEST_F(SelectAll, WithoutALimitIsRefusedToo) {
    chosen.setSelect(0, 0);
    desktop.answerNumbers(NumberScript().selectAll().cancel());
    chosen.selectNbr();
    EXPECT_EQ(desktop.messages, (std::vector<ShownBox>{refused("0")}));
}

TEST_F(SelectAll, MarksEachOfThe49NumbersOnceInTheOrderOfTheRandomSource) {
    chosen.setSelect(49, 1);
    std::vector<float> values;
    for (int i = 0; i < 49; ++i)
        values.push_back(static_cast<float>((i * 37) % 64) / 64.0F);
    platform.scriptRandom(values);
    desktop.answerNumbers(NumberScript().selectAll().ok());
    chosen.selectNbr();
    EXPECT_EQ(platform.seedings, 1);
    EXPECT_EQ(platform.scriptedRandomLeft(), 0U);

    Numbers unused(49);
    std::iota(unused.begin(), unused.end(), std::int16_t{1});
    Numbers expected;
    for (const float r : values) {
        // Written out with the processor's rounding, which goes to the even one at a tie.
        const double place = static_cast<double>(r) * static_cast<double>(unused.size() - 1);
        const auto at = static_cast<std::ptrdiff_t>(std::nearbyint(place));
        expected.push_back(unused[static_cast<std::size_t>(at)]);
        unused.erase(unused.begin() + at);
    }
    EXPECT_EQ(selected(), expected);
    EXPECT_FALSE(std::is_sorted(expected.begin(), expected.end()));
}

TEST_F(SelectAll, LeavesNumbersThatAreMarkedWhereTheyAre) {
    chosen.setSelect(49, 1);
    desktop.answerNumbers(NumberScript().click({20}).selectAll().ok());
    chosen.selectNbr();
    EXPECT_EQ(chosen.nSelectedNbr(), 49);
    EXPECT_EQ(chosen.selectedNbr(1), 20);
    EXPECT_EQ(desktop.numberShowings.at(0).lblStatusAfter, "49 numéros");
}

} // namespace
} // namespace boulix
