// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/frmRandomComb.h"

#include "core/numbers.h"
#include "support/boulixTest.h"

#include <algorithm>
#include <random>

namespace boulix {
namespace {

class RandomCombTest : public BoulixTest {
  protected:
    RandomCombTest() { randomDraws.clear(); }

    std::vector<std::string> row(std::int64_t index) const {
        std::vector<std::string> texts;
        for (int column = 0; column < 8; ++column)
            texts.push_back(dialog.lvWComb.text(index, column));
        return texts;
    }
    void compute(const std::string &count) {
        dialog.txtnComb = count;
        dialog.clickCompute();
    }

    frmRandomComb dialog;
};

using Texts = std::vector<std::string>;

TEST_F(RandomCombTest, TheListHasANumberSixColumnsAndTheComplementary) {
    Texts headers;
    for (const ReportColumn &column : dialog.lvWComb.columns())
        headers.push_back(column.header);
    EXPECT_EQ(headers, (Texts{"N°", "1", "2", "3", "4", "5", "6", "C"}));
}

TEST_F(RandomCombTest, TheFirstSixAreSortedTheSeventhIsTheComplementary) {
    // x * 48 + 1: 0.5 -> 25, then the numbers behind have moved down.
    platform.scriptRandom({0.5F, 0.5F, 0.25F, 0.0F, 0.0F, 0.125F, 0.5F});
    compute("1");
    // 25 | 26 stands there now | 13 | 1 | 2 | 7th place of 3 4 5 ...: 9 | 25th place: 31
    EXPECT_EQ(row(0), (Texts{"0001", "01", "02", "09", "13", "25", "26", "31"}));
}

TEST_F(RandomCombTest, APositionBeyondThoseLeftReadsWhatAnEarlierShiftLeftBehind) {
    // The first number goes and all others move down; the 49th place still holds 49.
    platform.scriptRandom({0.0F, 0.9999999F, 0.9999999F, 0.0F, 0.0F, 0.0F, 0.0F});
    compute("1");
    EXPECT_EQ(row(0), (Texts{"0001", "01", "02", "03", "04", "49", "49", "05"}));
}

TEST_F(RandomCombTest, ADrawOfTheDialogIsThatOfThePlainShiftingPool) {
    std::mt19937 random(9);
    for (int turn = 0; turn < 300; ++turn) {
        std::vector<float> script;
        for (int i = 0; i < 7; ++i)
            script.push_back(static_cast<float>(random() % 65536) / 65536.0F);
        std::vector<int> pool(50);
        for (int i = 1; i <= 49; ++i)
            pool[static_cast<std::size_t>(i)] = i;
        int remaining = 49;
        std::vector<int> taken;
        for (const float x : script) {
            const int position = toInt16(double{x} * 48 + 1);
            taken.push_back(pool[static_cast<std::size_t>(position)]);
            for (int i = position; i < remaining; ++i)
                pool[static_cast<std::size_t>(i)] = pool[static_cast<std::size_t>(i + 1)];
            --remaining;
        }
        std::sort(taken.begin(), taken.begin() + 6);
        platform.scriptRandom(script);
        compute("1");
        for (int i = 0; i < 7; ++i)
            EXPECT_EQ(std::stoi(dialog.lvWComb.text(0, i + 1)), taken[static_cast<std::size_t>(i)]);
    }
}

TEST_F(RandomCombTest, EachCalculationClearsTheListAndSeedsTheSource) {
    compute("12");
    EXPECT_EQ(dialog.lvWComb.rowCount(), 12);
    EXPECT_EQ(dialog.lvWComb.text(11, 0), "0012");
    compute("2");
    EXPECT_EQ(dialog.lvWComb.rowCount(), 2);
    EXPECT_EQ(platform.seedings, 2);
}

TEST_F(RandomCombTest, TheLargestCountOf16BitsIsMadeAndComesToItsEnd) {
    compute("32767");
    EXPECT_EQ(dialog.lvWComb.rowCount(), 32767);
    EXPECT_EQ(dialog.lvWComb.text(32766, 0), "32767");
    dialog.clickOK();
    EXPECT_EQ(randomDraws.size(), 32767U);
    compute("32768");
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 6");
}

TEST_F(RandomCombTest, ZeroOrANegativeCountGivesAnEmptyList) {
    compute("0");
    EXPECT_EQ(dialog.lvWComb.rowCount(), 0);
    compute("-5");
    EXPECT_EQ(dialog.lvWComb.rowCount(), 0);
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(RandomCombTest, ACountThatIsNoNumberOrTooLargeIsShownAsAFailure) {
    for (const char *text : {"", "beaucoup", "99999"})
        compute(text);
    ASSERT_EQ(desktop.messages.size(), 3U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 13");
    EXPECT_EQ(desktop.messages[1].title, "Boulix Erreur système N° 13");
    EXPECT_EQ(desktop.messages[2].title, "Boulix Erreur système N° 6");
    EXPECT_EQ(desktop.messages[1].text,
              "Incompatibilité de type\r\n« Nombre de combinaisons » attend un nombre entier "
              "jusqu'à 32 767 ; il y avait « beaucoup ».");
    EXPECT_EQ(desktop.focusedFields, std::vector<std::string>(3, "txtnComb"));
}

TEST_F(RandomCombTest, ACountThatIsNoNumberClearsTheList) {
    for (const char *text : {"", "beaucoup", "99999"}) {
        compute("3");
        compute(text);
        EXPECT_EQ(dialog.lvWComb.rowCount(), 0) << text;
        dialog.clickOK();
        EXPECT_TRUE(randomDraws.empty()) << text;
    }
}

TEST_F(RandomCombTest, OkHandsTheDrawsOver) {
    compute("3");
    dialog.clickOK();
    EXPECT_TRUE(dialog.hidden());
    ASSERT_EQ(randomDraws.size(), 3U);
    EXPECT_EQ(randomDraws[2].num(1), std::stoi(dialog.lvWComb.text(2, 1)));
    EXPECT_EQ(randomDraws[2].compl_(), std::stoi(dialog.lvWComb.text(2, 7)));
}

TEST_F(RandomCombTest, CancelLeavesNoDraws) {
    compute("3");
    dialog.clickOK();
    frmRandomComb again;
    again.clickCancel();
    EXPECT_TRUE(again.hidden());
    EXPECT_TRUE(randomDraws.empty());
}

} // namespace
} // namespace boulix
