// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Files that the user drops on the window, or names at the start: no dialog comes up for any.

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "eliminators/eliminators.h"
#include "games/game.h"
#include "games/gameDef.h"
#include "games/modGame.h"
#include "sill/modMain.h"
#include "support/boulixTest.h"
#include "support/locations.h"
#include "winnings/rapport.h"
#include "workbench/fileKind.h"
#include "workbench/frmMain.h"

#include <filesystem>

namespace boulix {
namespace {

using testing_support::sampleHistory;

class OpenFilesTest : public BoulixTest, protected frmMainView {
  protected:
    OpenFilesTest() {
        gDbCombs->dbFile().path(folder());
        gDbCombs->dbFile().name("tirages.dbl");
        gEliminators->init();
        modGame::init();
        mainWindow->load();
        mainWindow->view(this);
    }
    void refresh() override {}
    void goToSide(int side) override { shownSide = side; }
    /// A file made by the save of its room, which asks for the name.
    template <class Save>
    std::string saved(const std::string &name, const Save &save) {
        desktop.answerSave(file(name));
        save();
        return file(name);
    }
    std::string savedGame(const std::string &name) {
        currentGame->Add(GridRef(gameComb({1, 2, 3, 4, 5, 6})));
        currentGame->Add(GridRef(gameComb({7, 8, 9, 10, 11, 12})));
        const std::string saves = saved(name, [] { currentGame->save(); });
        currentGame->clear();
        return saves;
    }

    int shownSide = -1;
};

TEST_F(OpenFilesTest, AGameIsLoadedOnItsPage) {
    const std::string name = savedGame("mardi.lst");
    mainWindow->openFiles({name});
    EXPECT_EQ(currentGame->Count(), 2);
    EXPECT_EQ(mainWindow->visiblePage(), 4);
    EXPECT_EQ(mainWindow->memory.recentGames, std::vector<std::string>{name});
}

TEST_F(OpenFilesTest, ASavedGameIsAmongTheRecentOnesAndARefusedOneIsNot) {
    writeBytes(file("faux.lst"), "rien");
    mainWindow->openFiles({file("faux.lst")});
    EXPECT_TRUE(mainWindow->memory.recentGames.empty());
    desktop.answerSave(file("a.lst"));
    mainWindow->games.clickButton(gamePage::saveGame);
    EXPECT_EQ(mainWindow->memory.recentGames, std::vector<std::string>{file("a.lst")});
}

TEST_F(OpenFilesTest, TheTextOfTheOperatorIsImportedWhateverItsName) {
    for (const char *name : {"draws.txt", "draws.CSV", "draws.lst"}) {
        std::filesystem::copy_file(sampleHistory(), file(name));
        gDbCombs->clear();
        mainWindow->openFiles({file(name)});
        EXPECT_GT(gDbCombs->Count(), 0) << name;
        EXPECT_EQ(mainWindow->visiblePage(), 0);
        EXPECT_EQ(currentGame->Count(), 0);
    }
}

TEST_F(OpenFilesTest, RulesGoToTheirPage) {
    gEliminators->Item(1).status(eliminator::on);
    gEliminators->Item(1).Value(3);
    const std::string name = saved("r.elm", [] { gEliminators->save(); });
    gEliminators->init();
    mainWindow->openFiles({name});
    EXPECT_TRUE(mainWindow->elimination.ticked(0));
    EXPECT_EQ(mainWindow->visiblePage(), 3);
}

TEST_F(OpenFilesTest, PrizesGoToTheirSubTab) {
    gRapport->Value(0, 12.5F);
    gRapport->save(file("p.rap"));
    gRapport->Value(0, 0);
    mainWindow->openFiles({file("p.rap")});
    EXPECT_EQ(gRapport->Value(0), 12.5F);
    EXPECT_EQ(mainWindow->winnings.txtRapPrice[0], "12.5");
    EXPECT_EQ(shownSide, winningsPage::report);
}

TEST_F(OpenFilesTest, ASystemIsShownAsIfItHadBeenComputedAndCanBeKept) {
    gameDef &def = modGame::reducedGames.emplace_back();
    def.nSelect(7);
    def.nWin(4);
    def.nCond(6);
    def.addGameComb(GridRef(gameComb({1, 2, 3, 4, 5, 6})));
    def.label("mon système");
    def.save(0, 0);
    std::filesystem::create_directory(file("elsewhere"));
    std::filesystem::rename(file("rgame-0.gam"), file("elsewhere/s.gam"));
    mainWindow->openFiles({file("elsewhere/s.gam")});
    EXPECT_EQ(mainWindow->games.design.currentTab(), gameDesign::createTab);
    EXPECT_EQ(shownSide, gamePage::designSide);
    EXPECT_EQ(mainWindow->games.design.systems.lblnGameDefComb, "1 combinaisons");
    EXPECT_EQ(desktop.announcements.back(),
              "Système « mon système » ouvert : « Ajouter » le met parmi les jeux");
}

TEST_F(OpenFilesTest, SeveralFilesAreTakenOneAfterTheOtherAndUnknownOnesNamedTogether) {
    const std::string name = savedGame("mardi.lst");
    mainWindow->openFiles({file("photo.png"), name, file("sans"), name});
    EXPECT_EQ(currentGame->Count(), 4);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].text,
              "Boulix n'ouvre pas ce genre de fichier:\r\nphoto.png\r\nsans");
}

TEST_F(OpenFilesTest, ARefusedFileIsToldAsByTheDialogAndTheNextDialogAsksAgain) {
    writeBytes(file("faux.lst"), "rien");
    const std::string name = savedGame("mardi.lst");
    mainWindow->openFiles({file("faux.lst")});
    EXPECT_EQ(currentGame->Count(), 0);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 4401");
    desktop.answerOpen(name);
    mainWindow->games.clickButton(gamePage::loadGame);
    EXPECT_EQ(currentGame->Count(), 2);
}

TEST(FileKindTest, TheExtensionTellsInCapitalsOrNot) {
    EXPECT_EQ(fileKind("/x/a.LST"), FileKind::game);
    EXPECT_EQ(fileKind("a.gam"), FileKind::system);
    EXPECT_EQ(fileKind("a.Elm"), FileKind::eliminators);
    EXPECT_EQ(fileKind("a.rap"), FileKind::prizes);
    EXPECT_EQ(fileKind("a.pro"), FileKind::forecast);
    EXPECT_EQ(fileKind("a.txt"), FileKind::draws);
    for (const char *other : {"a", ".lst", "a.lst.bak", "lst", "a.dbl", ""})
        EXPECT_EQ(fileKind(other), FileKind::unknown) << other;
}

} // namespace
} // namespace boulix
