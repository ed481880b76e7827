// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The tab that computes new systems of play, and the windows that manage them.

#include "core/settings.h"
#include "gamePageTest.h"
#include "printing/gridConfig.h"

#include <filesystem>

namespace boulix {
namespace {

class SystemMakerTest : public GamePageTest {
  protected:
    SystemMakerTest() {
        gGridConfig->load();
        page.design.clickTab(gameDesign::createTab);
    }
    void type(const std::string &nWin, const std::string &nFixed, const std::string &nChoosen) {
        maker.nWin.text = nWin;
        maker.nFixed.text = nFixed;
        maker.nChoosen.text = nChoosen;
    }
    void click(systemMaker::Button button) { page.design.clickCreateButton(button); }
    void computeAndAdd(const std::string &name, const std::string &nFixed = "0") {
        type("3", nFixed, "9");
        click(systemMaker::computeSystem);
        desktop.answerText(name);
        click(systemMaker::addSystem);
    }
    int value(const numberBox &box) const { return box.upDownControl.value(); }

    systemMaker &maker = page.design.systems;
};

TEST_F(SystemMakerTest, TheThreeValuesBeginAtTheirLowest) {
    EXPECT_EQ(maker.nFixed.text, "0");
    EXPECT_EQ(maker.nWin.text, "1");
    EXPECT_EQ(maker.nChoosen.text, "7");
    EXPECT_EQ(maker.nFixed.upDownControl.max(), 5);
    EXPECT_EQ(maker.nWin.upDownControl.min(), 1);
    EXPECT_EQ(maker.nWin.upDownControl.max(), 6);
    EXPECT_EQ(maker.nChoosen.upDownControl.max(), 49);
}

TEST_F(SystemMakerTest, RaisingTheFixedNumbersToTheWinningOnesRaisesThoseToo) {
    maker.nWin.upDownControl.set(3);
    maker.nFixed.upDownControl.set(2);
    EXPECT_EQ(value(maker.nWin), 3);
    maker.nFixed.upDownControl.set(3);
    EXPECT_EQ(value(maker.nWin), 4);
    EXPECT_EQ(maker.nWin.text, "4");
}

TEST_F(SystemMakerTest, LoweringTheWinningNumbersToTheFixedOnesLowersThoseToo) {
    maker.nFixed.upDownControl.set(4);
    EXPECT_EQ(value(maker.nWin), 5);
    maker.nWin.upDownControl.set(2);
    EXPECT_EQ(value(maker.nFixed), 1);
    EXPECT_EQ(maker.nFixed.text, "1");
}

TEST_F(SystemMakerTest, TheWinningNumbersCanNotStandAtTheFixedOnes) {
    maker.nFixed.upDownControl.set(2);
    EXPECT_EQ(value(maker.nWin), 3);
    maker.nWin.upDownControl.set(2);
    EXPECT_EQ(value(maker.nFixed), 1);
}

TEST_F(SystemMakerTest, AConfirmedTextIsBroughtBetweenTheLimits) {
    const std::pair<const char *, const char *> typed[] = {
        {"99999", "49"}, {"-4", "7"},  {"", "7"},      {"  ", "7"},
        {"douze", "7"},  {"20", "20"}, {"20.5", "20"}, {"1e9", "7"}};
    for (const auto &[text, shown] : typed) {
        maker.nChoosen.text = text;
        maker.nChoosen.confirm();
        EXPECT_EQ(maker.nChoosen.text, shown) << text;
        EXPECT_EQ(std::to_string(value(maker.nChoosen)), shown);
    }
}

TEST_F(SystemMakerTest, TheTextsAreConfirmedInTheirOrderBeforeTheCalculation) {
    type("3", "5", "8"); // the fixed ones, confirmed second, raise the winning ones
    click(systemMaker::computeSystem);
    EXPECT_EQ(value(maker.nWin), 6);
    EXPECT_EQ(maker.lblnGameDefComb, "3 combinaisons");
}

TEST_F(SystemMakerTest, TheWinningNumbersAreConfirmedBeforeTheFixedOnes) {
    maker.nFixed.upDownControl.set(4);
    type("3", "5", "8"); // 3, below the four of the up-down control, writes 2 over the 5
    click(systemMaker::computeSystem);
    EXPECT_EQ(maker.nWin.text, "3");
    EXPECT_EQ(maker.nFixed.text, "2");
}

TEST_F(SystemMakerTest, AComputedSystemIsListedCountedAndPriced) {
    type("6", "0", "8");
    click(systemMaker::computeSystem);
    EXPECT_EQ(page.design.lvwGameDef.rowCount(), 28);
    EXPECT_EQ(rows(page.design.lvwGameDef)[0], (Texts{"1)", "1", "2", "3", "4", "5", "6"}));
    EXPECT_EQ(maker.lblnGameDefComb, "28 combinaisons");
    EXPECT_EQ(maker.lblCost, "16.8 euros");
}

TEST_F(SystemMakerTest, EighteenGridsAreCountedInEuros) {
    gGridConfig->price(0.6F);
    type("1", "0", "49");
    click(systemMaker::computeSystem);
    EXPECT_EQ(maker.lblnGameDefComb, "9 combinaisons");
    EXPECT_EQ(maker.lblCost, "5.4 euros");
}

TEST_F(SystemMakerTest, APriceOfZeroLeavesTheUnitInTheSingular) {
    gGridConfig->price(0);
    type("6", "0", "7");
    click(systemMaker::computeSystem);
    EXPECT_EQ(maker.lblCost, "0 euro");
}

TEST_F(SystemMakerTest, ACancelledCalculationLeavesListAndLabels) {
    type("6", "0", "8");
    click(systemMaker::computeSystem);
    desktop.cancelProgressAt(20);
    type("6", "0", "9");
    click(systemMaker::computeSystem);
    EXPECT_EQ(page.design.lvwGameDef.rowCount(), 28);
    EXPECT_EQ(maker.lblnGameDefComb, "28 combinaisons");
    EXPECT_EQ(desktop.announcements.back(), "Calcul annulé");
}

TEST_F(SystemMakerTest, AjouterWithoutASystemIsAFailureThatIsShown) {
    click(systemMaker::addSystem);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 91");
    EXPECT_EQ(modGame::nReducedGames(), 9);
}

TEST_F(SystemMakerTest, HalfASystemCanNotBeAdded) {
    desktop.cancelProgressAt(20);
    type("6", "0", "9");
    click(systemMaker::computeSystem);
    click(systemMaker::addSystem);
    EXPECT_EQ(desktop.messages.back().title, "Boulix Erreur système N° 91");
}

TEST_F(SystemMakerTest, AReducedSystemIsAddedSavedAndFoundAtTheNextStart) {
    computeAndAdd("Mon système");
    ASSERT_EQ(modGame::nReducedGames(), 10);
    EXPECT_EQ(modGame::reducedGames[10].label(), "Mon système");
    EXPECT_EQ(settings::read("jeux reduits", "jeu0", "rien"), "rgame-0.gam");
    EXPECT_EQ(page.design.cmbGameType().back(), modGame::fixedGames[1].label())
        << "the labels of both lists are appended";
    page.design.clickTab(gameDesign::reducedTab);
    EXPECT_EQ(page.design.cmbGameType().size(), 10U);
    EXPECT_EQ(page.design.cmbGameType().back(), "Mon système");
    modGame::init();
    modGame::loadUserGames();
    EXPECT_EQ(modGame::reducedGames[10].label(), "Mon système");
    EXPECT_EQ(modGame::reducedGames[10].nWin(), 3);
}

TEST_F(SystemMakerTest, AFixedPositionSystemGoesToTheOtherList) {
    computeAndAdd("Fixe", "1");
    EXPECT_EQ(modGame::nReducedGames(), 9);
    ASSERT_EQ(modGame::nFixedGames(), 2);
    EXPECT_EQ(settings::read("jeux a positions fixes", "jeu0", "rien"), "fgame-0.gam");
}

TEST_F(SystemMakerTest, TheSecondSystemGetsTheNextNumber) {
    computeAndAdd("un");
    computeAndAdd("deux");
    EXPECT_TRUE(fileExists(file("rgame-0.gam")));
    EXPECT_TRUE(fileExists(file("rgame-1.gam")));
}

TEST_F(SystemMakerTest, ASystemWhoseSaveFailsCanBeAddedAgainOnceTheReasonIsGone) {
    std::filesystem::create_directory(file("rgame-0.gam"));
    computeAndAdd("un");
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 75");
    EXPECT_EQ(modGame::nReducedGames(), 9);
    std::filesystem::remove(file("rgame-0.gam"));
    desktop.answerText("un");
    click(systemMaker::addSystem);
    modGame::init();
    modGame::loadUserGames();
    ASSERT_EQ(modGame::nReducedGames(), 10);
    EXPECT_EQ(modGame::reducedGames[10].label(), "un");
}

class GameListTest : public SystemMakerTest, protected gameListView {
  protected:
    GameListTest() {
        computeAndAdd("réduit");
        computeAndAdd("fixe", "1");
    }
    void refresh() override {}
    void runDisplayGame(frmDisplayGame &window) override { displayed = rows(window.lvwGame); }
    /// Opens the window and does `steps` in it.
    void inList(const std::function<void(frmGameList &)> &steps) {
        onGameList = [&](frmGameList &window) {
            window.view(this);
            steps(window);
        };
        click(systemMaker::listSystems);
    }

    std::vector<Texts> displayed;
};

TEST_F(GameListTest, TheButtonsHaveTheirTexts) {
    const std::vector<std::pair<std::string, std::string>> expected = {
        {"Supprimer", "Supprimer le jeu de la liste des jeux créés"},
        {"Renommer", "Renommer le jeu sélectionné"},
        {"Exporter", "Exporter un je dans une fichier texte"},
        {"Imprimer", "Imprimer le jeu"},
        {"Voir", "Visualiser le jeu"},
        {"Quitter", "Fermer cette boite de dialogue"},
    };
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(frmGameList::tbar[i].caption, expected[i].first);
        EXPECT_EQ(frmGameList::tbar[i].toolTip, expected[i].second);
    }
}

TEST_F(GameListTest, TheReducedSystemsOfTheUserComeFirstThenTheFixedOnes) {
    inList([&](frmGameList &window) {
        EXPECT_EQ(window.lvwGame.columns()[0].header, "Descriptif du jeu");
        EXPECT_EQ(window.lvwGame.columns()[1].header, "Fichier");
        EXPECT_EQ(rows(window.lvwGame),
                  (std::vector<Texts>{{"réduit", "rgame-0.gam"}, {"fixe", "fgame-0.gam"}}));
        window.clickButton(frmGameList::quit);
        EXPECT_TRUE(window.hidden());
        EXPECT_FALSE(window.changedMark());
    });
}

TEST_F(GameListTest, AClickOnARowShowsTheValuesOfItsSystem) {
    inList([](frmGameList &window) {
        window.clickRow(2);
        EXPECT_EQ(window.lblnGrid, std::to_string(modGame::fixedGames[2].nComb()));
        EXPECT_EQ(window.lblnWin, "3");
        EXPECT_EQ(window.lblnFixed, "1");
        EXPECT_EQ(window.lblnSelected, "9");
    });
}

TEST_F(GameListTest, AClickBesideTheRowsSelectsNothing) {
    inList([](frmGameList &window) {
        for (const std::int64_t row : {-1, 0, 3}) {
            window.clickRow(row);
            EXPECT_EQ(window.lblnGrid, "") << row;
        }
        window.clickButton(frmGameList::removeGame);
        EXPECT_FALSE(window.changedMark());
    });
}

TEST_F(GameListTest, WithoutASelectedRowTheButtonsDoNothing) {
    inList([](frmGameList &window) {
        for (int button = 1; button <= 5; ++button)
            window.clickButton(button);
        EXPECT_FALSE(window.changedMark());
    });
    EXPECT_EQ(modGame::reducedGames[10].label(), "réduit");
}

TEST_F(GameListTest, RenommerSetsTheMarkAndTheDropDownGrows) {
    const std::size_t before = page.design.cmbGameType().size();
    inList([&](frmGameList &window) {
        window.clickRow(1);
        const std::string present = window.lvwGame.text(0, 0);
        desktop.answerText("nouveau nom");
        window.clickButton(frmGameList::renameGame);
        EXPECT_EQ(desktop.presentTexts.back(), present);
        EXPECT_EQ(desktop.announcements.back(), "Système renommé : nouveau nom");
        EXPECT_TRUE(window.changedMark());
        EXPECT_EQ(rows(window.lvwGame)[0], (Texts{"nouveau nom", "rgame-0.gam"}));
    });
    EXPECT_EQ(page.design.cmbGameType().size(), before + 10 + 2);
}

TEST_F(GameListTest, AListLeftWithoutAChangeLeavesTheDropDownAsItIs) {
    const Texts before = page.design.cmbGameType();
    inList([](frmGameList &window) {
        window.clickRow(1);
        window.clickButton(frmGameList::displayGame);
        window.clickButton(frmGameList::quit);
    });
    EXPECT_EQ(page.design.cmbGameType(), before);
}

TEST_F(GameListTest, SupprimerRemovesTheSystemAndItsFile) {
    inList([&](frmGameList &window) {
        window.clickRow(2);
        window.clickButton(frmGameList::removeGame);
        EXPECT_TRUE(window.changedMark());
        EXPECT_EQ(window.lvwGame.rowCount(), 2) << "the list keeps its length until the next start";
        window.clickButton(frmGameList::removeGame); // no row is selected any more
    });
    EXPECT_TRUE(desktop.messages.empty()) << "nor is its file looked for again";
    EXPECT_FALSE(fileExists(file("fgame-0.gam")));
    EXPECT_TRUE(fileExists(file("rgame-0.gam")));
}

TEST_F(GameListTest, AFailureInTheListIsShownAndTheListLivesOn) {
    std::remove(file("rgame-0.gam").c_str());
    inList([&](frmGameList &window) {
        window.clickRow(1);
        window.clickButton(frmGameList::removeGame);
        EXPECT_FALSE(window.hidden());
    });
    EXPECT_EQ(desktop.messages.back().title, "Boulix Erreur système N° 53");
}

TEST_F(GameListTest, ExporterAndImprimerWorkOnTheSelectedSystem) {
    inList([&](frmGameList &window) {
        window.clickRow(1);
        desktop.answerSave(file("modele.txt"));
        window.clickButton(frmGameList::exportGame);
        window.clickButton(frmGameList::printGame);
    });
    EXPECT_EQ(readBytes(file("modele.txt")).substr(0, 8), "r\xE9"
                                                          "duit\r\n");
    EXPECT_TRUE(printers.onlyDocument().ended);
}

TEST_F(GameListTest, VoirShowsTheRowsInTwoDigits) {
    inList([](frmGameList &window) {
        window.clickRow(1);
        window.clickButton(frmGameList::displayGame);
    });
    const gameDef &def = modGame::reducedGames[10];
    ASSERT_EQ(displayed.size(), static_cast<std::size_t>(def.nComb()));
    Texts first = {"01"};
    for (const std::int16_t n : def.sharedRow(1)->numbers())
        first.push_back((n < 10 ? "0" : "") + std::to_string(n));
    EXPECT_EQ(displayed[0], first);
}

} // namespace
} // namespace boulix
