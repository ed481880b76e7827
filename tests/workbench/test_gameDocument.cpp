// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The file of the game and whether it holds the game; what the game costs.

#include "workbench/gameDocument.h"

#include "core/globals.h"
#include "printing/gridConfig.h"
#include "support/boulixTest.h"
#include "workbench/countAndPrice.h"

#include <algorithm>

namespace boulix {
namespace {

class GameDocumentTest : public BoulixTest {
  protected:
    /// A command that changes the grids, as far as the document is concerned.
    gameDocument::Step change() {
        gameDocument::Step step = document.step();
        document.close(step);
        return step;
    }

    const std::string tuesday = "/jeux/mardi.lst";
    const std::string friday = "/jeux/vendredi.lst";
    gameDocument document;
};

TEST_F(GameDocumentTest, AGameWithoutAFileIsNotSavedAndAnEmptyOneSaysNothing) {
    EXPECT_EQ(documentText(document, 0), "");
    EXPECT_EQ(documentText(document, 1), "\u25cf Jeu non enregistré");
    EXPECT_FALSE(document.isSaved());
}

TEST_F(GameDocumentTest, ASavedGameHasTheNameOfItsFileUntilItChanges) {
    document.saved(tuesday);
    EXPECT_TRUE(document.isSaved());
    EXPECT_EQ(documentText(document, 24), "mardi.lst");
    change();
    EXPECT_FALSE(document.isSaved());
    EXPECT_EQ(documentText(document, 23), "\u25cf mardi.lst (modifié)");
    EXPECT_EQ(document.file(), tuesday);
}

TEST_F(GameDocumentTest, AnEmptiedGameBelongsToNoFile) {
    document.saved(tuesday);
    document.emptied();
    EXPECT_EQ(document.file(), "");
    EXPECT_EQ(documentText(document, 0), "");
}

TEST_F(GameDocumentTest, AChangeThatIsTakenBackIsSavedAgain) {
    document.loaded(tuesday);
    gameDocument::Step step = change();
    document.exchange(step);
    EXPECT_TRUE(document.isSaved());
    document.exchange(step);
    EXPECT_FALSE(document.isSaved());
}

TEST_F(GameDocumentTest, WhatWasSavedBehindAChangeIsNotWhatWasBeforeIt) {
    document.loaded(tuesday);
    gameDocument::Step step = change();
    document.saved(tuesday);
    document.exchange(step);
    EXPECT_FALSE(document.isSaved()) << "the file holds the change";
    document.exchange(step);
    EXPECT_TRUE(document.isSaved());
}

TEST_F(GameDocumentTest, AnUndoKeepsTheFileThatTheGameWasSavedToSince) {
    document.loaded(tuesday);
    gameDocument::Step step = change();
    document.saved(friday);
    document.exchange(step);
    EXPECT_EQ(document.file(), friday);
    EXPECT_FALSE(document.isSaved());
}

TEST_F(GameDocumentTest, AnUndoOfTheEmptyingGivesTheFileBack) {
    document.loaded(tuesday);
    gameDocument::Step step = document.step();
    document.emptied();
    document.close(step);
    document.exchange(step);
    EXPECT_EQ(document.file(), tuesday);
    EXPECT_TRUE(document.isSaved());
    document.exchange(step);
    EXPECT_EQ(document.file(), "");
}

TEST_F(GameDocumentTest, TwoFilesCanHoldTheSameGame) {
    document.saved(tuesday);
    document.saved(friday);
    gameDocument::Step step = change();
    document.saved(tuesday);
    document.exchange(step);
    EXPECT_FALSE(document.isSaved()) << "mardi.lst holds the change by now";
    document.saved(friday);
    EXPECT_TRUE(document.isSaved());
}

class CountAndPriceTest : public BoulixTest {
  protected:
    static std::string at(float price, const std::string &unit, std::int64_t grids) {
        gGridConfig->price(price);
        gGridConfig->monneyUnit(unit);
        std::string text = countAndPrice(grids);
        for (std::size_t place; (place = text.find("\u00a0")) != std::string::npos;)
            text.replace(place, 2, " ");
        return text;
    }
};

TEST_F(CountAndPriceTest, SingularAndPlural) {
    EXPECT_EQ(at(0.6F, "euro", 0), "0 grille, 0 euro");
    EXPECT_EQ(at(0.6F, "euro", 1), "1 grille, 0,60 euro");
    EXPECT_EQ(at(2.2F, "€", 1), "1 grille, 2,20 €");
    EXPECT_EQ(at(0.6F, "euro", 24), "24 grilles, 14,40 euros");
    EXPECT_EQ(at(2, "francs", 2), "2 grilles, 4 francs");
}

TEST_F(CountAndPriceTest, MillionsOfGridsCostNoCentMoreOrLess) {
    EXPECT_EQ(at(0.6F, "euro", 13'983'816), "13 983 816 grilles, 8 390 289,60 euros");
    EXPECT_EQ(at(2.2F, "€", 13'983'816), "13 983 816 grilles, 30 764 395,20 €");
    EXPECT_EQ(at(0.1F, "euro", 30), "30 grilles, 3 euros") << "not 3,00";
}

} // namespace
} // namespace boulix
