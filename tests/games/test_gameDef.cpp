// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/gameDef.h"

#include "files/xFile.h"
#include "printing/textReport.h"
#include "support/boulixTest.h"

#include <filesystem>

namespace boulix {
namespace {

class GameDefTest : public BoulixTest {
  protected:
    GameDefTest() {
        def.label("Système à moi");
        def.nSelect(7);
        def.nWin(5);
        def.nCond(6);
        def.addStrComb("01/02/03/04/05/06");
        def.addStrComb("02/03/04/05/06/07");
    }

    gameDef def;
};

TEST_F(GameDefTest, ANewDefinitionHasNoRowsAndNoFile) {
    const gameDef empty;
    EXPECT_EQ(empty.nComb(), 0);
    EXPECT_EQ(empty.label(), "");
    EXPECT_FALSE(empty.file());
}

TEST_F(GameDefTest, AddedRowsComeInOrder) {
    EXPECT_EQ(def.nComb(), 2);
    EXPECT_EQ(def.gameComb(2)->num(6), 7);
    EXPECT_EQ(def.gameComb(2)->sum(), 27);
}

TEST_F(GameDefTest, ARowOutsideTheDefinitionReports3201AndGivesNothing) {
    EXPECT_EQ(def.gameComb(0), nullptr);
    EXPECT_EQ(def.gameComb(3), nullptr);
    const auto box = [](const std::string &index) {
        return ShownBox{"Impossible d'accéder à l'élément numérp " + index +
                            " (Get gameComb)!\r\nVeuillez contacter le support technique.",
                        Icon::critical, "boulix: Erreur N° 3201"};
    };
    EXPECT_EQ(desktop.messages, (std::vector<ShownBox>{box("0"), box("3")}));
    EXPECT_EQ(def.nComb(), 2);
}

TEST_F(GameDefTest, AnAddedRowIsSharedWithTheGiver) {
    const GridRef row(gameComb({1, 2, 3, 4, 5, 6}));
    def.addGameComb(row);
    row->num(1, 40);
    EXPECT_EQ(def.gameComb(3)->num(1), 40);
}

TEST_F(GameDefTest, ARowTextThatIsNoRowAddsNothing) {
    EXPECT_EQ(failureNumber([&] { def.addStrComb("1/2/x/4/5/6"); }), 13);
    EXPECT_EQ(def.nComb(), 2);
}

TEST_F(GameDefTest, ExportWritesTheLabelAndOneLineARow) {
    desktop.answerSave(file("modele.txt"));
    EXPECT_TRUE(def.exportText());
    EXPECT_EQ(readBytes(file("modele.txt")),
              "Syst\xE8me \xE0 moi\r\n01;02;03;04;05;06\r\n02;03;04;05;06;07\r\n");
    ASSERT_EQ(desktop.saveQuestions.size(), 1U);
    EXPECT_EQ(desktop.saveQuestions[0].title, "Exportation d'un modèle de jeu au format texte");
    EXPECT_EQ(desktop.saveQuestions[0].filter,
              "Fichier texte (modèle de jeu Boulix) (*.txt)|*.txt");
}

TEST_F(GameDefTest, ExportWithoutAFileNameDoesNothing) {
    desktop.cancelSave();
    EXPECT_FALSE(def.exportText());
    EXPECT_TRUE(std::filesystem::is_empty(folder()));
}

TEST_F(GameDefTest, ExportToAFullDiskOrAMissingFolderIsARunTimeFailure) {
    desktop.answerSave("/dev/full");
    EXPECT_EQ(failureNumber([&] { def.exportText(); }), 61);
    desktop.answerSave(file("nulle/part.txt"));
    EXPECT_NE(failureNumber([&] { def.exportText(); }), 0);
}

TEST_F(GameDefTest, PrintShowsTheFieldsAndTheRows) {
    auto file = std::make_shared<xFile>();
    file->name("rgame-0.gam");
    def.file(file);
    def.printDef();
    const auto &document = printers.onlyDocument();
    const auto lines = document.lines();
    const std::vector<std::string> body(lines.end() - 9, lines.end());
    EXPECT_EQ(body, (std::vector<std::string>{
                        "Jeu prédéfini: Système à moi", "Fichier: rgame-0.gam", "Numéros fixes: 0",
                        "Numéros Choisis: 7", "Numéros gagnants: 5", "Nombre de grilles: 2", "",
                        "          001)   01   02   03   04   05   06   ",
                        "          002)   02   03   04   05   06   07   "}));
    const auto texts = document.ofKind(testing_support::Drawn::text);
    const double column = document.textWidth("Nombre de grilles ");
    for (const auto &text : texts)
        if (text.words.starts_with(": ")) {
            EXPECT_NEAR(text.x1, TextReport::margin + column, 1e-9);
            EXPECT_EQ(text.fontName, "Arial");
        }
    EXPECT_TRUE(document.ended);
}

TEST_F(GameDefTest, ASystemWithoutAFileIsPrintedWithoutAFileName) {
    gameDef carried;
    carried.label("Système livré");
    carried.printDef();
    const auto lines = printers.onlyDocument().lines();
    const std::vector<std::string> body(lines.end() - 7, lines.end());
    EXPECT_EQ(body, (std::vector<std::string>{"Jeu prédéfini: Système livré",
                                              "Fichier: ", "Numéros fixes: 0", "Numéros Choisis: 0",
                                              "Numéros gagnants: 0", "Nombre de grilles: 0", ""}));
}

TEST_F(GameDefTest, WithoutAPrinterNothingIsPrinted) {
    printers.names.clear();
    desktop.answerNo();
    def.printDef();
    EXPECT_TRUE(printers.documents.empty());
    EXPECT_EQ(desktop.messages.size(), 1U);
}

} // namespace
} // namespace boulix
