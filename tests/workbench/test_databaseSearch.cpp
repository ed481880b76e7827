// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the database page finds, says and takes back.

#include "sill/undo.h"
#include "workbench/databasePageTest.h"

#include <filesystem>

namespace boulix {
namespace {

TEST_F(DatabasePage, TheListPointsAtTheDrawOnTheBoardAfterTheStartAndAfterAClick) {
    startWith({draw(2, 1, sevenA), draw(3, 1, sevenB), draw(4, 1, sevenA)});
    EXPECT_EQ(row_, 3) << "the newest";
    EXPECT_TRUE(page.lvwDBcomb.isPointedAt(2));
    page.clickRow(1);
    EXPECT_EQ(page.shownDraw(), 1);
    EXPECT_EQ(row_, 1);
    EXPECT_TRUE(page.lvwDBcomb.isPointedAt(0));
    EXPECT_FALSE(page.lvwDBcomb.isPointedAt(2));
}

TEST_F(DatabasePage, TheSearchSelectsTheNewestDrawFoundAndGoesOnToOlderOnes) {
    startWith({draw(2, 1, sevenA), draw(3, 1, sevenB), draw(4, 1, sevenA), draw(5, 1, sevenB)});
    page.typeSearch("31 34");
    EXPECT_EQ(page.finder.lblFound, "2 tirages trouvés, du plus récent : 1/2");
    EXPECT_EQ(selected, (std::vector<std::int64_t>{3}));
    EXPECT_EQ(page.lblDBCombDesc, "Tirage n° 1 du 04-01-2003");
    page.findNext();
    EXPECT_EQ(selected, (std::vector<std::int64_t>{1}));
    EXPECT_EQ(page.finder.lblFound, "2 tirages trouvés, du plus récent : 2/2");
    page.findNext();
    EXPECT_EQ(selected, (std::vector<std::int64_t>{3})) << "round and round";
    page.findPrevious();
    EXPECT_EQ(page.shownDraw(), 1);
    page.findPrevious();
    EXPECT_EQ(page.shownDraw(), 3);
}

TEST_F(DatabasePage, TheDrawsFoundAreMarkedInTheList) {
    startWith({draw(2, 1, sevenA), draw(3, 1, sevenB), draw(4, 1, sevenA)});
    const auto marked = [this] {
        std::string rows;
        for (std::int64_t i = 0; i < page.lvwDBcomb.rowCount(); ++i)
            rows += page.lvwDBcomb.isMarked(i) ? "x" : "-";
        return rows;
    };
    EXPECT_EQ(marked(), "---");
    page.typeSearch("31");
    EXPECT_EQ(marked(), "x-x");
    page.typeSearch("3/1/2003");
    EXPECT_EQ(marked(), "-x-");
    EXPECT_EQ(page.finder.lblFound, "1 tirage trouvé");
    page.typeSearch("");
    EXPECT_EQ(marked(), "---");
    EXPECT_EQ(page.finder.lblFound, "");
    EXPECT_EQ(page.shownDraw(), 2) << "one stays where one is";
}

TEST_F(DatabasePage, ASearchThatFindsNothingLeavesTheDrawAndSaysSo) {
    startWith({draw(2, 1, sevenA), draw(9, 1, sevenB)});
    page.clickRow(1);
    for (const auto &[text, told] : {std::pair{"31 1", "Aucun tirage trouvé"},
                                     {"2004", "Aucun tirage trouvé"},
                                     {"50", "Ni une date, ni des numéros de 1 à 49"}}) {
        page.typeSearch(text);
        EXPECT_EQ(page.finder.lblFound, told) << text;
        page.findNext();
        page.findPrevious();
        EXPECT_EQ(page.shownDraw(), 1) << text;
    }
    page.typeSearch("8/1/2003");
    EXPECT_EQ(page.finder.lblFound, "Pas de tirage ce jour-là ; le plus proche : 09-01-2003");
    EXPECT_EQ(page.shownDraw(), 2);
}

TEST_F(DatabasePage, ASearchGoesOnInTheBaseAsItIsAfterACommand) {
    startWith({draw(2, 1, sevenA), draw(3, 1, sevenB), draw(4, 1, sevenA)});
    page.typeSearch("31");
    selected = {3};
    page.clickButton(databasePage::removeDraw);
    EXPECT_EQ(page.finder.lblFound, "1 tirage trouvé");
    EXPECT_EQ(page.shownDraw(), 2) << "the newest draw, as after each command";
    page.findNext();
    EXPECT_EQ(page.shownDraw(), 1);
}

TEST_F(DatabasePage, AnEmptyBaseCanBeSearched) {
    startWith({});
    page.typeSearch("7");
    page.findNext();
    EXPECT_EQ(page.finder.lblFound, "Aucun tirage trouvé");
    page.typeSearch("1/1/2003");
    EXPECT_EQ(page.finder.lblFound, "Aucun tirage trouvé");
}

TEST_F(DatabasePage, EachCommandSaysWhatItDid) {
    startWith({draw(2, 1, sevenA)});
    desktop.answerNumbers(NumberScript().click(sevenB).ok());
    desktop.answerDate({dateOf({2003, 1, 4}), 2});
    page.clickButton(databasePage::enterDraw);
    selected = {2};
    desktop.answerNumbers(NumberScript().ok());
    desktop.answerDate({dateOf({2003, 1, 5}), 2});
    page.clickButton(databasePage::modifyDraw);
    selected = {1};
    page.clickButton(databasePage::removeDraw);
    desktop.answerSave(file("base.txt"));
    page.clickButton(databasePage::exportBase);
    page.clickButton(databasePage::printBase);
    EXPECT_EQ(desktop.announcements,
              (std::vector<std::string>{
                  "Tirage ajouté. Ctrl+Z l'annule.", "Tirage modifié. Ctrl+Z l'annule.",
                  "Tirage supprimé. Ctrl+Z l'annule.", "Base exportée dans base.txt.",
                  "Document « base de données » remis à "
                  "l'imprimante Bureau"}));
}

TEST_F(DatabasePage, ACancelledCommandSaysNothingAndLeavesNothingToUndo) {
    startWith({draw(2, 1, sevenA)});
    selected = {1};
    for (const int button : {databasePage::enterDraw, databasePage::modifyDraw}) {
        desktop.answerNumbers(NumberScript().cancel());
        page.clickButton(button);
        desktop.answerNumbers(NumberScript().clear().click(sevenB).ok());
        desktop.leaveDate();
        page.clickButton(button);
    }
    desktop.cancelOpen();
    page.clickButton(databasePage::importDraws);
    desktop.cancelSave();
    page.clickButton(databasePage::exportBase);
    EXPECT_TRUE(desktop.announcements.empty());
    EXPECT_FALSE(gUndo->canUndo());
    EXPECT_EQ(gDbCombs->Count(), 1);
    EXPECT_EQ(row(0), (std::vector<std::string>{"02-01-2003", "1", "31", "15", "33", "27", "36",
                                                "48", "34"}));
}

TEST_F(DatabasePage, AnImportSaysHowManyDrawsAreNewAndHowManyWereThere) {
    startWith({draw(2, 1, sevenA)});
    importText("6;5;4;3;2;1;7;20030104;2\r\n1;2;3;4;5;6;8;20030102;1\r\n"
               "1;2;3;4;5;6;8;20030109;1\r\n");
    importText("6;5;4;3;2;1;7;20030104;2\r\n1;2;3;4;5;6;8;20030110;1\r\n");
    importText("6;5;4;3;2;1;7;20030104;2\r\n");
    EXPECT_EQ(desktop.announcements,
              (std::vector<std::string>{"2 nouveaux tirages importés, 1 déjà présent.",
                                        "1 nouveau tirage importé, 1 déjà présent.",
                                        "Aucun nouveau tirage, 1 déjà présent."}));
}

TEST_F(DatabasePage, EachChangeOfTheBaseIsTakenBackAndDoneAgainInMemoryInItsFileAndInTheWindow) {
    startWith({draw(2, 1, sevenA), draw(3, 1, sevenB)});
    gDbCombs->saveAgain();
    const auto fileOf = [this] { return testing_support::readBytes(file("tirages.dbl")); };
    for (const int button : {databasePage::removeDraw, databasePage::modifyDraw,
                             databasePage::enterDraw, databasePage::importDraws}) {
        page.clickRow(gDbCombs->Count());
        const std::vector<std::string> before = shown();
        const std::string fileBefore = fileOf();
        selected = {1};
        if (button == databasePage::importDraws)
            desktop.answerOpen(file("h.txt"));
        if (button == databasePage::modifyDraw || button == databasePage::enterDraw) {
            desktop.answerNumbers(NumberScript().clear().click({10, 11, 12, 13, 14, 15, 16}).ok());
            desktop.answerDate({dateOf({2003, 1, 20}), 1});
        }
        testing_support::writeBytes(file("h.txt"), importHeader + "6;5;4;3;2;1;7;20020104;2\r\n");
        page.clickButton(button);
        const std::vector<std::string> after = shown();
        const std::string fileAfter = fileOf();
        EXPECT_NE(after, before) << button;
        mainWindow->undo();
        page.clickRow(gDbCombs->Count()); // a draw that comes back is shown; the rest must be equal
        EXPECT_EQ(shown(), before) << button;
        EXPECT_EQ(fileOf(), fileBefore) << button;
        EXPECT_TRUE(gDbCombs->isSaved());
        mainWindow->redo();
        page.clickRow(gDbCombs->Count());
        EXPECT_EQ(shown(), after) << button;
        EXPECT_EQ(fileOf(), fileAfter) << button;
        mainWindow->undo();
    }
}

TEST_F(DatabasePage, ADeletedDrawThatComesBackIsShownAndSelected) {
    startWith({draw(2, 1, sevenA), draw(3, 1, sevenB), draw(4, 1, sevenA)});
    selected = {2};
    page.clickButton(databasePage::removeDraw);
    EXPECT_EQ(gUndo->undoName(), "Supprimer un tirage");
    selected = {};
    mainWindow->undo();
    EXPECT_EQ(selected, (std::vector<std::int64_t>{2}));
    EXPECT_EQ(page.lblDBCombDesc, "Tirage n° 1 du 03-01-2003");
    EXPECT_EQ(desktop.announcements.back(), "Annulé : Supprimer un tirage");
}

TEST_F(DatabasePage, ACancelledImportIsTakenBackAndComesBackUnsaved) {
    startWith({draw(2, 1, sevenA)});
    gDbCombs->saveAgain();
    const std::string saved = testing_support::readBytes(file("tirages.dbl"));
    desktop.cancelProgressAt(2);
    importText("6;5;4;3;2;1;7;20030104;2\r\n1;2;3;4;5;6;8;20030102;1\r\n");
    EXPECT_EQ(desktop.announcements.back(),
              "Importation interrompue. Ctrl+Z retire les tirages déjà lus.");
    EXPECT_EQ(gDbCombs->Count(), 3);
    mainWindow->undo();
    EXPECT_EQ(gDbCombs->Count(), 1);
    EXPECT_EQ(page.lvwDBcomb.rowCount(), 1);
    EXPECT_TRUE(gDbCombs->isSaved());
    mainWindow->redo();
    EXPECT_EQ(gDbCombs->Count(), 3);
    EXPECT_FALSE(gDbCombs->isSaved());
    EXPECT_EQ(testing_support::readBytes(file("tirages.dbl")), saved);
}

TEST_F(DatabasePage, AChangeThatCouldNotBeSavedIsTakenBackAllTheSame) {
    startWith({draw(2, 1, sevenA), draw(3, 1, sevenB)});
    gDbCombs->saveAgain();
    loseTheFolder();
    selected = {1};
    page.clickButton(databasePage::removeDraw);
    EXPECT_EQ(gDbCombs->Count(), 1);
    desktop.messages.clear();
    mainWindow->undo();
    EXPECT_EQ(desktop.messages.size(), 1U) << "it cannot be written yet";
    EXPECT_EQ(gDbCombs->Count(), 1) << "and all stays as it was";
    EXPECT_FALSE(gDbCombs->isSaved());
    gDbCombs->dbFile().path(folder());
    mainWindow->undo();
    EXPECT_EQ(gDbCombs->Count(), 2);
    EXPECT_TRUE(gDbCombs->isSaved());
    EXPECT_FALSE(gUndo->canUndo());
}

TEST_F(DatabasePage, AnEmptyBaseLeadsToTheImportAndToTheSampleWhereItIsInstalled) {
    startWith({});
    EXPECT_EQ(page.lvwDBcomb.whenEmpty().sentence, "La base est vide.");
    EXPECT_EQ(page.lvwDBcomb.whenEmpty().link, "Importer un historique");
    EXPECT_EQ(page.lvwDBcomb.whenEmpty().otherLink, "");
    desktop.cancelOpen();
    page.lvwDBcomb.whenEmpty().follow();
    EXPECT_EQ(desktop.openQuestions.size(), 1U);
    std::filesystem::create_directory(file("samples"));
    testing_support::writeBytes(file("samples/historique-exemple.txt"),
                                importHeader + "6;5;4;3;2;1;7;20030104;2\r\n"
                                               "1;2;3;4;5;6;8;20030104;1\r\n");
    mainWindow->frmUpdateDBList();
    EXPECT_EQ(page.lvwDBcomb.whenEmpty().otherLink, "Importer l'historique d'exemple, inventé");
    page.lvwDBcomb.whenEmpty().followOther();
    EXPECT_EQ(desktop.openQuestions.size(), 1U) << "nothing is asked";
    EXPECT_EQ(page.lvwDBcomb.rowCount(), 2);
    EXPECT_EQ(status(), "2 combinaisons dans la base de données");
    EXPECT_EQ(desktop.announcements.back(), "2 nouveaux tirages importés, 0 déjà présent.");
}

} // namespace
} // namespace boulix
