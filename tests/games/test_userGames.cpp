// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/settings.h"
#include "files/xFile.h"
#include "games/modGame.h"
#include "support/boulixTest.h"

#include <filesystem>

namespace boulix {
namespace {

using modGame::fixedGames;
using modGame::reducedGames;

class UserGamesTest : public BoulixTest {
  protected:
    UserGamesTest() { modGame::init(); }
    ~UserGamesTest() override { modGame::init(); }

    /// Adds a system of one row that begins with `mark`, and saves it as the page does.
    void addAndSave(const std::string &label, int mark, std::int16_t nFixed = 0) {
        modGame::GameList &list = nFixed == 0 ? reducedGames : fixedGames;
        const auto nReduced =
            static_cast<std::int16_t>(modGame::nReducedGames() - modGame::nPredefReduced);
        const auto nFixedGame =
            static_cast<std::int16_t>(modGame::nFixedGames() - modGame::nPredefFixed);
        gameDef source;
        source.nFixed(nFixed);
        source.nSelect(20);
        source.addGameComb(GridRef(gameComb({static_cast<std::int16_t>(mark), 2, 3, 4, 5, 6})));
        desktop.answerText(label);
        modGame::addUserGame(source, list);
        modGame::saveNewGame(list, nReduced, nFixedGame);
    }
    void restart() {
        modGame::init();
        modGame::loadUserGames();
    }
    std::vector<std::string> userLabels() const {
        std::vector<std::string> labels;
        for (std::size_t i = modGame::nPredefReduced + 1; i < reducedGames.size(); ++i)
            labels.push_back(reducedGames[i].label());
        return labels;
    }
    using Labels = std::vector<std::string>;
};

TEST_F(UserGamesTest, AnAddedGameSharesTheRowsAndTakesTheFields) {
    gameDef source;
    source.nSelect(12);
    source.nWin(4);
    source.nCond(5);
    source.nFixed(0);
    const GridRef row(gameComb({1, 2, 3, 4, 5, 6}));
    source.addGameComb(row);
    desktop.answerText("Le mien");
    EXPECT_TRUE(modGame::addUserGame(source, reducedGames));
    ASSERT_EQ(modGame::nReducedGames(), 10);
    const gameDef &added = reducedGames[10];
    EXPECT_EQ(added.label(), "Le mien");
    EXPECT_EQ(added.nSelect(), 12);
    EXPECT_EQ(added.nWin(), 4);
    EXPECT_EQ(added.nCond(), 5);
    row->num(1, 9);
    EXPECT_EQ(added.gameComb(1)->num(1), 9);
    EXPECT_EQ(desktop.inputs, (std::vector<ShownBox>{{"Donnez le nom du jeu", Icon::none,
                                                      "Définition du nom du jeu"}}));
    EXPECT_EQ(desktop.inputLengths, (std::vector<std::size_t>{126}));
}

TEST_F(UserGamesTest, ACancelledNameIsTheEmptyLabel) {
    desktop.cancelText();
    EXPECT_TRUE(modGame::addUserGame(gameDef(), reducedGames));
    EXPECT_EQ(reducedGames.back().label(), "");
}

TEST_F(UserGamesTest, SavedGamesComeBackAtTheNextStart) {
    addAndSave("premier", 1);
    addAndSave("deuxième", 7);
    EXPECT_EQ(settings::read("jeux reduits", "jeu0", "rien"), "rgame-0.gam");
    EXPECT_EQ(settings::read("jeux reduits", "jeu1", "rien"), "rgame-1.gam");
    restart();
    EXPECT_EQ(userLabels(), (Labels{"premier", "deuxième"}));
    EXPECT_EQ(reducedGames[11].gameComb(1)->num(1), 7);
    EXPECT_EQ(modGame::nFixedGames(), 1);
}

TEST_F(UserGamesTest, ANameOf126CharactersComesBackAtTheNextStart) {
    std::string name;
    for (int i = 0; i < 126; ++i)
        name += i % 2 == 0 ? "é" : "€"; // two and three bytes in memory, one in the file
    addAndSave(name, 1);
    restart();
    EXPECT_EQ(userLabels(), (Labels{name}));
}

TEST_F(UserGamesTest, AnEntryThatCannotBeSavedLeavesNoHoleInTheChainOfKeys) {
    addAndSave("premier", 1);
    std::filesystem::create_directory(file("rgame-1.gam")); // in the way of the second file
    EXPECT_EQ(failureNumber([&] { addAndSave("deuxième", 2); }), 75);
    EXPECT_EQ(modGame::nReducedGames(), 10);
    EXPECT_EQ(settings::read("jeux reduits", "jeu1", "rien"), "rien");
    std::filesystem::remove(file("rgame-1.gam"));
    addAndSave("troisième", 3);
    EXPECT_EQ(settings::read("jeux reduits", "jeu1", "rien"), "rgame-1.gam");
    restart();
    EXPECT_EQ(userLabels(), (Labels{"premier", "troisième"}));
}

TEST_F(UserGamesTest, AFixedPositionEntryThatCannotBeSavedGoesFromItsOwnListAndSection) {
    addAndSave("réduit", 1);
    std::filesystem::create_directory(file("fgame-0.gam"));
    EXPECT_EQ(failureNumber([&] { addAndSave("fixe", 2, 1); }), 75);
    EXPECT_EQ(modGame::nFixedGames(), 1);
    EXPECT_EQ(settings::read("jeux a positions fixes", "jeu0", "rien"), "rien");
    EXPECT_EQ(settings::read("jeux reduits", "jeu0", "rien"), "rgame-0.gam");
}

TEST_F(UserGamesTest, WhereTheSettingsCannotBeWrittenEitherTheirFailureIsTold) {
    std::filesystem::create_directory(file("boulix.ini"));
    EXPECT_EQ(failureNumber([&] { addAndSave("premier", 1); }), 75);
    EXPECT_EQ(modGame::nReducedGames(), 9);
    EXPECT_FALSE(fileExists(file("rgame-0.gam")));
}

TEST_F(UserGamesTest, TheEntriesBehindAGapAreNotRead) {
    addAndSave("premier", 1);
    addAndSave("deuxième", 1);
    addAndSave("troisième", 1);
    settings::remove("jeux reduits", "jeu1");
    restart();
    EXPECT_EQ(userLabels(), (Labels{"premier"}));
}

TEST_F(UserGamesTest, AGameWhoseHeaderIsRefusedStaysInTheListWithoutRows) {
    addAndSave("premier", 1);
    addAndSave("deuxième", 1);
    std::string bytes = readBytes(file("rgame-0.gam"));
    bytes[64] = 5;
    writeBytes(file("rgame-0.gam"), bytes);
    restart();
    EXPECT_EQ(userLabels(), (Labels{"", "deuxième"}));
    EXPECT_EQ(reducedGames[10].nComb(), 0);
    EXPECT_EQ(reducedGames[10].file()->name(), "rgame-0.gam");
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 4402");
}

TEST_F(UserGamesTest, AGameWhoseFileIsMissingOrCutStaysWithoutRowsAfterOneMessage) {
    addAndSave("premier", 1);
    addAndSave("deuxième", 1);
    addAndSave("troisième", 1);
    std::remove(file("rgame-0.gam").c_str());
    writeBytes(file("rgame-1.gam"), readBytes(file("rgame-1.gam")).substr(0, 700));
    restart();
    EXPECT_EQ(userLabels(), (Labels{"", "", "troisième"}));
    EXPECT_EQ(
        desktop.messages,
        (std::vector<ShownBox>{{"Impossible de charger le jeu réduit utilisateur rgame-0.gam:\r\n"
                                "Fichier introuvable : " +
                                    file("rgame-0.gam"),
                                Icon::critical, "Boulix Erreur système N° 53"},
                               {"Impossible de charger le jeu réduit utilisateur rgame-1.gam:\r\n"
                                "Lecture au-delà de la fin du fichier : " +
                                    file("rgame-1.gam"),
                                Icon::critical, "Boulix Erreur système N° 62"}}));
}

TEST_F(UserGamesTest, AFixedPositionEntryFailsAtTheNextStartAndSaysWhere) {
    addAndSave("fixe", 1, 1);
    EXPECT_EQ(settings::read("jeux a positions fixes", "jeu0", "rien"), "fgame-0.gam");
    const auto failure = failureOf([&] { restart(); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 91);
    EXPECT_EQ(failure->description(),
              "Jeu à positions fixes sans définition: entrée jeu0=fgame-0.gam de la section "
              "[jeux a positions fixes] du fichier boulix.ini");
}

TEST_F(UserGamesTest, AFixedPositionEntryFailsBeforeAnyFileIsRead) {
    addAndSave("réduit", 1);
    addAndSave("fixe", 1, 1);
    writeBytes(file("rgame-0.gam"), "abc");
    EXPECT_EQ(failureNumber([&] { restart(); }), 91);
    EXPECT_TRUE(desktop.questions.empty()) << "the offer is the start's";
    EXPECT_TRUE(desktop.messages.empty()) << "the spoilt reduced system has not been looked at";
    EXPECT_EQ(modGame::nReducedGames(), 10);
    EXPECT_EQ(reducedGames[10].label(), "");
}

TEST_F(UserGamesTest, RemovingTheLastGameDeletesItsFileAndLeavesItsKey) {
    addAndSave("premier", 1);
    addAndSave("deuxième", 2);
    modGame::removeUserGame(11, reducedGames);
    EXPECT_FALSE(fileExists(file("rgame-1.gam")));
    EXPECT_TRUE(fileExists(file("rgame-0.gam")));
    EXPECT_EQ(settings::read("jeux reduits", "jeu1", "rien"), "rgame-1.gam");
    EXPECT_EQ(modGame::nReducedGames(), 11) << "the list keeps its length";
}

TEST_F(UserGamesTest, RemovingAGameMovesTheOthersDownUnderTheNextFreeNumber) {
    addAndSave("premier", 1);
    addAndSave("deuxième", 2);
    addAndSave("troisième", 3);
    modGame::removeUserGame(10, reducedGames);
    EXPECT_EQ(userLabels(), (Labels{"deuxième", "troisième", "troisième"}));
    for (const char *gone : {"rgame-0.gam", "rgame-1.gam", "rgame-2.gam"})
        EXPECT_FALSE(fileExists(file(gone))) << gone;
    EXPECT_TRUE(fileExists(file("rgame-3.gam")));
    EXPECT_EQ(reducedGames[10].file()->name(), "rgame-3.gam");
    EXPECT_EQ(reducedGames[11].file()->name(), "rgame-3.gam");
    EXPECT_EQ(reducedGames[12].file()->name(), "rgame-2.gam");
    EXPECT_EQ(settings::read("jeux reduits", "jeu0", "rien"), "rgame-0.gam");
    EXPECT_EQ(settings::read("jeux reduits", "jeu1", "rien"), "rien");
    EXPECT_EQ(settings::read("jeux reduits", "jeu2", "rien"), "rien");
    EXPECT_EQ(settings::read("jeux reduits", "jeu3", "rien"), "rgame-3.gam");
}

TEST_F(UserGamesTest, AMovedGameIsAnObjectOfItsOwn) {
    addAndSave("premier", 1);
    addAndSave("deuxième", 2);
    modGame::removeUserGame(10, reducedGames);
    reducedGames[10].label("autre");
    EXPECT_EQ(reducedGames[11].label(), "deuxième");
}

TEST_F(UserGamesTest, AFixedPositionGameIsRemovedFromItsOwnSection) {
    addAndSave("fixe", 1, 2);
    addAndSave("fixe bis", 1, 2);
    modGame::removeUserGame(2, fixedGames);
    EXPECT_EQ(settings::read("jeux a positions fixes", "jeu0", "rien"), "fgame-0.gam");
    EXPECT_EQ(settings::read("jeux a positions fixes", "jeu1", "rien"), "rien");
    EXPECT_EQ(settings::read("jeux a positions fixes", "jeu2", "rien"), "fgame-2.gam");
    EXPECT_FALSE(fileExists(file("fgame-0.gam")));
    EXPECT_EQ(fixedGames[2].label(), "fixe bis");
}

TEST_F(UserGamesTest, RemovingAGameWhoseFileIsGoneIsARunTimeFailure) {
    addAndSave("premier", 1);
    std::remove(file("rgame-0.gam").c_str());
    EXPECT_EQ(failureNumber([&] { modGame::removeUserGame(10, reducedGames); }), 53);
    EXPECT_EQ(failureNumber([&] { modGame::removeUserGame(11, reducedGames); }), 9);
}

} // namespace
} // namespace boulix
