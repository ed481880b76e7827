// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the number dialog says beside its board, and the numbers that are typed in it.

#include "sill/frmNbrSelector.h"
#include "support/boulixTest.h"

namespace boulix {
namespace {

using Numbers = std::vector<std::int16_t>;
using testing_support::markedNumbers;

class NumberLine : public BoulixTest {
  protected:
    NumberLine() { dialog.grd.maxSelected(7); }
    void mark(const Numbers &numbers) {
        for (const std::int16_t n : numbers)
            dialog.grd.click(n);
    }
    std::string wanted(std::int16_t most, std::int16_t fewest, const Numbers &marked) {
        frmNbrSelector asked;
        asked.grd.maxSelected(most);
        asked.minimum = fewest;
        for (const std::int16_t n : marked)
            asked.grd.click(n);
        return asked.lblWanted();
    }

    frmNbrSelector dialog;
};

TEST_F(NumberLine, SaysHowManyNumbersAreWantedAndHowManyAreMissing) {
    EXPECT_EQ(wanted(7, 7, {}), "7 numéros à cocher, encore 7.");
    EXPECT_EQ(wanted(7, 7, {1, 2, 3, 4, 5, 6}), "7 numéros à cocher, encore 1.");
    EXPECT_EQ(wanted(7, 7, {1, 2, 3, 4, 5, 6, 7}), "7 numéros à cocher.");
    EXPECT_EQ(wanted(1, 1, {}), "1 numéro à cocher, encore 1.");
    EXPECT_EQ(wanted(10, 6, {1, 2}), "De 6 à 10 numéros à cocher, encore 4.");
    EXPECT_EQ(wanted(10, 6, {1, 2, 3, 4, 5, 6}), "De 6 à 10 numéros à cocher.");
    EXPECT_EQ(wanted(10, 0, {1}), "10 numéros au plus.");
    EXPECT_EQ(wanted(1, 0, {}), "1 numéro au plus.");
    EXPECT_EQ(wanted(49, 6, {1}), "6 numéros au moins, encore 5.");
    EXPECT_EQ(wanted(0, 6, {1, 2, 3, 4, 5, 6, 7}), "6 numéros au moins.");
    EXPECT_EQ(wanted(0, 0, {}), "Cochez autant de numéros que vous voulez.");
    EXPECT_EQ(wanted(49, 0, {}), "Cochez autant de numéros que vous voulez.");
}

TEST_F(NumberLine, TheLastOneMissingFromADrawIsTheComplementary) {
    dialog.minimum = 7;
    dialog.lastIsComplementary = true;
    mark({1, 2, 3, 4, 5});
    EXPECT_EQ(dialog.lblWanted(), "7 numéros à cocher, encore 2.");
    mark({6});
    EXPECT_EQ(dialog.lblWanted(), "7 numéros à cocher, il manque le complémentaire.");
    mark({7});
    EXPECT_EQ(dialog.lblWanted(), "7 numéros à cocher.");
}

TEST_F(NumberLine, ARefusedClickIsToldUntilTheNextOneIsTaken) {
    mark({1, 2, 3, 4, 5, 6, 7});
    EXPECT_EQ(dialog.lblRefused(), "");
    mark({12});
    EXPECT_EQ(dialog.lblRefused(),
              "Le 12 n'est pas coché : 7 numéros au plus. Décochez-en un d'abord.");
    EXPECT_EQ(markedNumbers(dialog.grd), (Numbers{1, 2, 3, 4, 5, 6, 7}));
    mark({7});
    EXPECT_EQ(dialog.lblRefused(), "");
    mark({12, 13});
    dialog.clickClear();
    EXPECT_EQ(dialog.lblRefused(), "");
}

TEST_F(NumberLine, HoldsTheMarkedNumbersInTheirOrder) {
    EXPECT_EQ(dialog.txtNumbers(), "");
    mark({31, 8, 17});
    EXPECT_EQ(dialog.txtNumbers(), "31 8 17");
}

TEST_F(NumberLine, MarksWhatIsTypedInItsOrderAndNothingElse) {
    mark({40, 41});
    dialog.typeNumbers("31 8  17, 05;1");
    EXPECT_EQ(markedNumbers(dialog.grd), (Numbers{31, 8, 17, 5, 1}));
    EXPECT_EQ(dialog.lblRefused(), "");
    dialog.typeNumbers("3");
    EXPECT_EQ(markedNumbers(dialog.grd), Numbers{3});
    dialog.typeNumbers("");
    EXPECT_EQ(markedNumbers(dialog.grd), Numbers{});
}

TEST_F(NumberLine, SaysWhatOfATextIsNotTaken) {
    const std::vector<std::tuple<const char *, const char *, Numbers>> table = {
        {"1 50 2", "« 50 » n'est pas un numéro de 1 à 49.", {1, 2}},
        {"0", "« 0 » n'est pas un numéro de 1 à 49.", {}},
        {"1 x 99", "« x » n'est pas un numéro de 1 à 49.", {1}},
        {"4294967297", "« 4294967297 » n'est pas un numéro de 1 à 49.", {}},
        {"9 9", "Le 9 est écrit deux fois.", {9}},
        {"1 2 3 4 5 6 7 8",
         "Le 8 n'est pas coché : 7 numéros au plus. Décochez-en un d'abord.",
         {1, 2, 3, 4, 5, 6, 7}},
    };
    for (const auto &[text, refused, marked] : table) {
        dialog.typeNumbers(text);
        EXPECT_EQ(dialog.lblRefused(), refused) << text;
        EXPECT_EQ(markedNumbers(dialog.grd), marked) << text;
    }
}

TEST_F(NumberLine, TheBoardIsDrawnAgainWhenAClickIsRefused) {
    mark({1, 2, 3, 4, 5, 6, 7});
    std::string shown;
    dialog.grd.repaint = [&] { shown = dialog.lblRefused(); };
    mark({12});
    EXPECT_NE(shown, "");
    mark({7});
    EXPECT_EQ(shown, "");
}

} // namespace
} // namespace boulix
