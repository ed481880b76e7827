// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The start of the program: log, identity, the order of the initialisations, a failed start.

#include "core/globals.h"
#include "core/modMaths.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "eliminators/eliminators.h"
#include "files/slotFile.h"
#include "forecasts/pronostics.h"
#include "games/modGame.h"
#include "printing/gridConfig.h"
#include "printing/modPrinter.h"
#include "sill/appInfo.h"
#include "sill/modMain.h"
#include "stats/graphSettings.h"
#include "support/boulixTest.h"
#include "support/locations.h"
#include "support/saveTexts.h"
#include "support/withoutRights.h"
#include "winnings/rapport.h"
#include "workbench/frmMain.h"

#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace boulix {
namespace {

class StartUp : public FreshProgramTest {
  protected:
    /// A default prize table, without which every start begins with a message.
    void putDefaultPrizes() {
        gAppInfo->init("", "", "", 2003);
        rapport().save(file("defrapp.rap"));
        resetGlobals();
    }
    void start(const std::string &arguments) {
        platform.arguments = arguments;
        modMain::Main();
    }
    std::string doesNotStart(int drawsRead) const {
        return "Boulix ne démarre pas avec le fichier tirages.dbl du répertoire " + folder() +
               " (tirages lus: " + std::to_string(drawsRead) +
               "). Mettez-le dans un autre dossier pour démarrer avec une base vide.";
    }
    std::vector<std::string> logLines() {
        modMain::gLogFile.flush();
        const std::string text = fromWestern(testing_support::readBytes(file("boulix.log")));
        std::vector<std::string> lines;
        for (std::string line : split(text, '\n')) {
            if (!line.empty() && line.back() == '\r')
                line.pop_back();
            lines.push_back(line);
        }
        return lines;
    }
};

const std::vector<std::string> wholeLog = {
    "Fichier généré par boulix Version 4.0.3 le 15/11/2026",
    "modMain.Main: Précalcul des Cnk",
    "modMain.Main: Initialisation des types de statistique",
    "modMain.Main: Initialisation des paramètres graphiques des statistiques",
    "modMain.Main: Initialisation des types de jeu",
    "modMain.Main: Chargement des jeux réduits utilisateur",
    "modMain.Main: Initialisation des paramètres d'impression",
    "modMain.Main: Initialisation des paramètres de grille",
    "modMain.Main: Chargement en mémoire de la base de données des tirages",
    "modMain.Main: Chargement du fichier de rapport par défaut",
    "modMain.Main: Initialisation des éliminateurs",
    "modMain.Main: Initialisation des pronostiques",
    "",
    "modMain.Main: *** Initialisations terminées ***",
    "",
    "frmMain.Load: Chargement de la fenêtre",
    "frmMain.Load: Initialisation des onglets",
    "frmMain.frmInitTab: Mise en place des frames des onglets",
    "frmMain.frmInitTab: Dimensionnement des frames",
    "frmMain.frmInitTab: Onglet courant par défaut",
    "frmMain.frmInitTab: Initialisation de l'onglet de gestion de base de données",
    "frmMain.frmInitTab: Initialisation de l'onglet de statistiques",
    "frmMain.frmInitTab: Initialisation de l'onglet des éliminateurs",
    "frmMain.frmInitTab: Initialisation de l'onglet des jeux",
    "frmMain.frmInitTab: Initialisation de l'onglet des statistiques par tirage",
    "frmMain.frmInitTab: Initialisation de l'onglet de pronostiques",
    "frmMain.frmInitTab: Mise à jour de la base de données des tirages",
    "frmMain.frmUpdateDBList: Remplissage de la liste des combinaisons",
    "frmMain.frmUpdateDBList: -> Remplissage OK",
    "frmMain.frmUpdateDBList: -> 0 combinaisons",
    "frmMain.frmUpdateDBList: -> Sélection du premier item",
    "frmMain.Load: Mise à jour des rapports de gain",
    "frmMain.Load: Fin de chargement de la fenêtre",
    "",
};

TEST_F(StartUp, AnEmptyCommandLineGivesAnEmptyFirstTokenAndNoLog) {
    start("");
    EXPECT_EQ(modMain::parseCommandLine(1), (std::vector<std::string>{"", ""}));
    EXPECT_FALSE(modMain::gDebug);
    EXPECT_FALSE(testing_support::fileExists(file("boulix.log")));
}

TEST_F(StartUp, TheLogIsStartedByTheFirstTokenAloneAndInThisSpellingOnly) {
    const std::vector<std::pair<std::string, bool>> cases = {
        {"-debug", true},    {"-debug x", true}, {"  \t-debug", true}, {"-DEBUG", false},
        {"x -debug", false}, {"-debugx", false}, {"--debug", false},
    };
    for (const auto &[arguments, logged] : cases) {
        resetGlobals();
        modMain::gLogFile.close();
        start(arguments);
        EXPECT_EQ(modMain::gDebug, logged) << arguments;
    }
}

TEST_F(StartUp, TheLogTellsEveryStepInOrder) {
    start("-debug");
    EXPECT_EQ(logLines(), wholeLog);
}

TEST_F(StartUp, TheSplashIsRepaintedBeforeAStepAndBehindTheLastTwo) {
    std::vector<std::string> turns;
    std::vector<bool> done;
    desktop.onEvents = [&] {
        const std::vector<std::string> lines = logLines();
        turns.push_back(lines.at(lines.size() - 2)); // behind the last line end there is nothing
        if (turns.size() == 1)
            done.push_back(modMaths::cnkTable[6][49] != 0);
        else if (turns.size() == 10)
            done.push_back(gEliminators->Count() != 0);
        else if (turns.size() == 11)
            done.push_back(gPronostics->Count() != 0);
    };
    start("-debug");
    EXPECT_EQ(turns, std::vector<std::string>(wholeLog.begin() + 1, wholeLog.begin() + 12));
    EXPECT_EQ(done, (std::vector<bool>{false, true, true}));
}

TEST_F(StartUp, TwoRunsLeaveOnlyTheLogOfTheSecond) {
    start("-debug");
    modMain::gLogFile.close();
    resetGlobals();
    platform.day = dateOf({2026, 11, 16});
    start("-debug");
    std::vector<std::string> second = wholeLog;
    second[0] = "Fichier généré par boulix Version 4.0.3 le 16/11/2026";
    EXPECT_EQ(logLines(), second);
}

TEST_F(StartUp, TheIdentityIsFilledAndTheBinomialTableIsThere) {
    start("");
    EXPECT_EQ(gAppInfo->name(), "boulix");
    EXPECT_EQ(gAppInfo->version(), "4.0.3");
    EXPECT_EQ(gAppInfo->fullName(), "boulix Version 4.0.3");
    EXPECT_EQ(gAppInfo->description(), "");
    EXPECT_EQ(gAppInfo->author(), "Marcel Quillon");
    EXPECT_EQ(gAppInfo->company(), "Quillon Logiciels");
    EXPECT_EQ(gAppInfo->copyright(), 2003);
    EXPECT_EQ(gAppInfo->disclaimer(),
              "Attention!!! Ce logiciel constitue une aide au jeu mais ne saurait en aucun cas "
              "garantir les gains. L'auteur décline toute responsabilité en cas de pertes "
              "d'argent qui auraient pu être dues à l'utilisation de ce produit. En revanche, en "
              "cas de gros gains, pensez à lui!!!");
    EXPECT_EQ(modMaths::cnkTable[6][49], 13983816);
}

TEST_F(StartUp, TheSplashWindowShowsTheIdentityAndIsGoneAtTheEnd) {
    start("");
    ASSERT_EQ(desktop.splashes.size(), 1U);
    const SplashTexts &splash = desktop.splashes[0];
    EXPECT_EQ(splash.lblVersion, "Version 4.0.3");
    EXPECT_EQ(splash.lblProductName, "boulix");
    EXPECT_EQ(splash.lblCompany, "Quillon Logiciels");
    EXPECT_EQ(splash.lblCopyright, "(c) 2003");
    EXPECT_EQ(splash.lblPlatform, "Windows 98, ME, NT, 2000, XP");
    EXPECT_EQ(splash.lblWarning, gAppInfo->disclaimer());
    EXPECT_FALSE(desktop.splashVisible);
    EXPECT_TRUE(desktop.mainWindowShown);
}

TEST_F(StartUp, AnEmptyFolderGivesAnEmptyBaseAndItsFile) {
    start("");
    EXPECT_EQ(gDbCombs->Count(), 0);
    EXPECT_EQ(testing_support::readBytes(file("tirages.dbl")).size(), 86U);
    EXPECT_EQ(mainWindow->StatusBar[0], "0 combinaisons dans la base de données");
    EXPECT_EQ(mainWindow->database.lvwDBcomb.rowCount(), 0);
    EXPECT_EQ(modMain::gCurrentDir, folder());
}

TEST_F(StartUp, AFailureWhileTheBaseIsLoadedClosesTheLogAndShowsNoMainWindow) {
    std::filesystem::create_directory(file("tirages.dbl"));
    start("-debug");
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0],
              (ShownBox{"Erreur d'accès au chemin/fichier : " + file("tirages.dbl") +
                            saveTexts::notBegun + saveTexts::lookAtDisk,
                        Icon::critical, "Boulix Erreur système N° 75"}));
    EXPECT_FALSE(modMain::gLogFile.is_open());
    EXPECT_TRUE(modMain::gDebug);
    EXPECT_FALSE(desktop.mainWindowShown);
    EXPECT_TRUE(desktop.splashVisible);
}

TEST_F(StartUp, AForeignBaseIsRefusedWithAMessageAndTheStartGoesOn) {
    testing_support::writeBytes(file("tirages.dbl"), std::string(50, 'x'));
    start("");
    ASSERT_FALSE(desktop.messages.empty());
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 4401");
    EXPECT_TRUE(desktop.mainWindowShown);
    EXPECT_EQ(testing_support::readBytes(file("tirages.dbl")), std::string(50, 'x'));
}

TEST_F(StartUp, TheCarriedSystemsAndTheEliminationRulesAreThere) {
    start("");
    EXPECT_EQ(modGame::nReducedGames(), 9);
    EXPECT_EQ(gEliminators->Count(), 8);
    EXPECT_EQ(mainWindow->elimination.chkEliminator(7), gEliminators->Item(8).label());
    EXPECT_EQ(mainWindow->games.design.cmbGameType().size(), 9U);
}

TEST_F(StartUp, UnknownWordsInEverySettingLeaveTheDefaultsAndOneMessage) {
    testing_support::writeBytes(
        file("boulix.ini"),
        "[graphique]\r\ntype=mot\r\nvisualisation_grille=mot\r\nvisualisation_axes=mot\r\n"
        "[impression]\r\nimprimante=mot\r\noffset_X=mot\r\noffset_Y=mot\r\nDirection=mot\r\n"
        "[grille]\r\nunite_monnaie=mot\r\nprix_grille=mot\r\n");
    gAppInfo->init("", "", "", 2003);
    gRapport->save(file("defrapp.rap"));
    resetGlobals();
    start("");
    EXPECT_TRUE(desktop.mainWindowShown);
    EXPECT_EQ(modStats::graphType, 0);
    EXPECT_TRUE(modStats::graphShowGrid);
    EXPECT_TRUE(modStats::graphShowAxes);
    EXPECT_EQ(modPrinter::currentPrinter(), "Bureau");
    EXPECT_EQ(modPrinter::offset_X, 0);
    EXPECT_EQ(modPrinter::offset_Y, 0);
    EXPECT_EQ(modPrinter::direction, 2);
    EXPECT_EQ(gGridConfig->monneyUnit(), "mot");
    EXPECT_EQ(gGridConfig->price(), 0);
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{{"Erreur de syntaxe dans le fichier boulix.ini:\r\nMOT "
                                      "valeur innatendue!!!",
                                      Icon::information, "boulix: Erreur N° 2302"}}));
}

TEST_F(StartUp, AUserSystemWhoseFileIsGoneIsToldAndTheStartGoesOn) {
    testing_support::writeBytes(file("boulix.ini"), "[jeux reduits]\r\njeu0=rgame-0.gam\r\n");
    start("");
    ASSERT_FALSE(desktop.messages.empty());
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 53");
    EXPECT_EQ(modGame::nReducedGames(), 10);
    EXPECT_TRUE(desktop.mainWindowShown);
}

TEST_F(StartUp, AnEntryOfAFixedPositionSystemStopsTheStart) {
    const std::string entries = "[jeux a positions fixes]\r\njeu0=fgame-0.gam\r\n";
    writeBytes(file("boulix.ini"), entries);
    desktop.answerNo();
    start("");
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0],
              (ShownBox{"Jeu à positions fixes sans définition: entrée jeu0=fgame-0.gam de la "
                        "section [jeux a positions fixes] du fichier boulix.ini",
                        Icon::critical, "Boulix Erreur système N° 91"}));
    EXPECT_EQ(
        desktop.questions,
        (std::vector<ShownBox>{{"Boulix ne démarre pas tant que l'entrée jeu0=fgame-0.gam est "
                                "dans le fichier boulix.ini.\r\nVoulez-vous l'enlever et "
                                "démarrer? Le fichier fgame-0.gam restera dans le dossier.",
                                Icon::question, "boulix"}}));
    EXPECT_FALSE(desktop.mainWindowShown);
    EXPECT_EQ(readBytes(file("boulix.ini")), entries);
}

TEST_F(StartUp, AnEntryOfAFixedPositionSystemIsTakenOutWhenTheUserWantsSo) {
    writeBytes(file("boulix.ini"), "; à moi\r\n[jeux a positions fixes]\r\njeu0=fgame-0.gam\r\n"
                                   "jeu1=fgame-1.gam\r\n");
    writeBytes(file("fgame-0.gam"), "abc");
    putDefaultPrizes();
    desktop.answerYes();
    start("-debug");
    EXPECT_EQ(desktop.messages.size(), 1U) << "the failure, and nothing after it";
    EXPECT_TRUE(desktop.mainWindowShown);
    EXPECT_FALSE(desktop.splashVisible);
    EXPECT_EQ(readBytes(file("boulix.ini")),
              "; à moi\r\n[jeux a positions fixes]\r\njeu1=fgame-1.gam\r\n");
    EXPECT_EQ(readBytes(file("fgame-0.gam")), "abc");
    EXPECT_EQ(modGame::nReducedGames(), 9);
    EXPECT_EQ(gPronostics->Count(), 4);
    EXPECT_EQ(logLines(), wholeLog) << "the log tells the start that came to its end";
}

TEST_F(StartUp, AnEntryThatCannotBeTakenOutIsToldAndTheProgramDoesNotStart) {
    writeBytes(file("boulix.ini"), "[jeux a positions fixes]\r\njeu0=fgame-0.gam\r\n");
    std::filesystem::permissions(file("boulix.ini"), std::filesystem::perms::owner_read);
    desktop.answerYes();
    start("");
    ASSERT_EQ(desktop.messages.size(), 2U);
    EXPECT_EQ(desktop.messages[1], (ShownBox{"Permission refusée : " + file("boulix.ini") +
                                                 saveTexts::notBegun + saveTexts::otherFolder,
                                             Icon::critical, "Boulix Erreur système N° 70"}));
    EXPECT_FALSE(desktop.mainWindowShown);
}

struct StoppingBase {
    const char *version;
    int number;
    const char *firstLine;
};

TEST_F(StartUp, ABaseThatStopsTheStartIsNamedWithItsVersionAndWhatToDo) {
    const StoppingBase cases[] = {{"4", 5, "Appel de procédure ou argument incorrect"},
                                  {"", 5, "Appel de procédure ou argument incorrect"},
                                  {"x.1", 13, "Incompatibilité de type"}};
    gAppInfo->init("", "", "", 2003);
    for (const StoppingBase &expected : cases) {
        fileHead head;
        head.initialize(1);
        head.version(expected.version);
        writeBytes(file("tirages.dbl"), head.toRecord());
        desktop.messages.clear();
        start("");
        const std::string versionLine = std::string("La version \"") + expected.version +
                                        "\" du fichier tirages.dbl du répertoire " + folder() +
                                        " est illisible.";
        EXPECT_EQ(
            desktop.messages,
            (std::vector<ShownBox>{
                {expected.firstLine + ("\r\n" + versionLine + "\r\n" + doesNotStart(0)),
                 Icon::critical, "Boulix Erreur système N° " + std::to_string(expected.number)}}));
        EXPECT_FALSE(desktop.mainWindowShown);
    }
}

TEST_F(StartUp, ABaseWithImpossibleNumbersIsNamedWithThePlaceInIt) {
    gAppInfo->init("", "", "", 2003);
    fileHead head;
    head.initialize(1);
    std::string base = head.toRecord();
    base.resize(2 * 128 + 8 + 2); // a draw of zeros, then the day and the draw of the day
    appendInt16(base, 30000);
    appendInt16(base, 30000);
    base.resize(2 * 128 + 28);
    writeBytes(file("tirages.dbl"), base);
    start("");
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{{"Dépassement de capacité\r\n" + doesNotStart(1),
                                      Icon::critical, "Boulix Erreur système N° 6"}}));
}

TEST_F(StartUp, AFolderWithoutRightsAndWithoutABaseSaysWhatToDo) {
    putDefaultPrizes();
    std::filesystem::permissions(folder(), static_cast<std::filesystem::perms>(0555));
    {
        const testing_support::WithoutRights nobody;
        start("");
    }
    std::filesystem::permissions(folder(), std::filesystem::perms::owner_all);
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{
                  {"Permission refusée : " + file("tirages.dbl") + "\r\nLe dossier " + folder() +
                       " est protégé en écriture: copiez-le à un endroit où vous pouvez écrire, "
                       "puis démarrez Boulix depuis cette copie." +
                       saveTexts::notBegun,
                   Icon::critical, "Boulix Erreur système N° 70"}}));
}

TEST_F(StartUp, AnyDamageToTheBaseThatStopsTheStartIsToldWithTheNameOfItsFile) {
    gAppInfo->init("", "", "", 2003);
    fileHead head;
    head.initialize(1);
    std::string whole = head.toRecord();
    for (int draw = 0; draw < 3; ++draw) {
        whole.resize(whole.size() + 128 - whole.size() % 128);
        appendDouble(whole, 37632 + draw);
        for (const int value : {1, 1, 2, 3, 4, 5, 6, 7, 21, 28})
            appendInt16(whole, static_cast<std::int16_t>(value));
    }
    putDefaultPrizes();
    std::mt19937 random(17);
    for (int round = 0; round < 150; ++round) {
        std::string bytes = whole;
        for (int k = 0; k < 3; ++k)
            bytes[random() % bytes.size()] = static_cast<char>(random());
        if (round % 3 == 0)
            bytes.resize(random() % bytes.size());
        writeBytes(file("tirages.dbl"), bytes);
        desktop.messages.clear();
        desktop.mainWindowShown = false;
        resetGlobals();
        start("");
        if (desktop.mainWindowShown)
            continue;
        ASSERT_EQ(desktop.messages.size(), 1U);
        ASSERT_NE(desktop.messages[0].text.find("tirages.dbl"), std::string::npos)
            << desktop.messages[0].text;
    }
}

TEST_F(StartUp, TheInstalledPrizeTableIsWhatTheProgramItselfWritesAndGreetsNobody) {
    const std::string installed =
        readBytes(testing_support::checkoutFolder() / "packaging" / "defrapp.rap");
    gAppInfo->init("", "", "", 2003);
    platform.day = dateOf({2026, 11, 21});
    rapport().save(file("defrapp.rap"));
    EXPECT_EQ(readBytes(file("defrapp.rap")), installed);
    resetGlobals();
    start("");
    EXPECT_TRUE(desktop.messages.empty());
    for (const std::string &amount : mainWindow->winnings.txtRapPrice)
        EXPECT_EQ(amount, "0");
}

TEST_F(StartUp, ALogThatCannotBeOpenedIsAFailureOfTheWholeStart) {
    std::filesystem::create_directory(file("boulix.log"));
    EXPECT_EQ(failureNumber([this] { start("-debug"); }), 75);
    EXPECT_FALSE(desktop.mainWindowShown);
}

TEST_F(StartUp, ALogWithoutRoomOnItsDiskIsNoReasonNotToStartAndIsToldAtTheEnd) {
    std::filesystem::create_symlink("/dev/full", file("boulix.log"));
    start("-debug");
    EXPECT_TRUE(desktop.mainWindowShown);
    desktop.messages.clear();
    desktop.answerYes();
    EXPECT_TRUE(mainWindow->queryClose());
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{{"Disque plein : " + file("boulix.log"), Icon::critical,
                                      "Boulix Erreur système N° 61"}}));
}

TEST_F(StartUp, WithoutADefaultPrizeTableOneMessageIsShownAndTheProgramStartsWithZeros) {
    start("");
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0], (ShownBox{"Erreur lors de l'accès au fichier defrapp.rap.",
                                             Icon::information, "boulix: Erreur N° 4204"}));
    EXPECT_TRUE(desktop.mainWindowShown);
    for (const std::string &amount : mainWindow->winnings.txtRapPrice)
        EXPECT_EQ(amount, "0");
}

TEST_F(StartUp, ASpoiltDefaultPrizeTableDoesNotKeepTheProgramFromStarting) {
    for (const std::size_t length : {0U, 50U, 200U, 1408U}) {
        testing_support::writeBytes(file("defrapp.rap"), std::string(length, 'x'));
        desktop.messages.clear();
        desktop.mainWindowShown = false;
        resetGlobals();
        start("");
        EXPECT_EQ(desktop.messages.size(), 1U) << length;
        EXPECT_TRUE(desktop.mainWindowShown) << length;
    }
}

TEST_F(StartUp, TheDefaultPrizeTableIsInTheBoxesWhenTheWindowAppears) {
    gAppInfo->init("", "", "", 2003);
    rapport table;
    table.Value(10, 1234.5F);
    table.save(file("defrapp.rap"));
    start("");
    EXPECT_EQ(desktop.messages.size(), 0U);
    EXPECT_EQ(mainWindow->winnings.txtRapPrice[10], "1234.5");
}

TEST_F(StartUp, TheFourForecastRulesAreThereAndOnTheirPage) {
    start("");
    EXPECT_EQ(gPronostics->Count(), 4);
    EXPECT_EQ(mainWindow->forecasts.lblPronoTitle[1],
              "Le numéro n'est pas sorti depuis plus de N tirages");
}

} // namespace
} // namespace boulix
