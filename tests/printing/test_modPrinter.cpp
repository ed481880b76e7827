// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/modPrinter.h"

#include "core/globals.h"
#include "printing/frmPrint.h"
#include "sill/appInfo.h"
#include "support/boulixTest.h"

namespace boulix {
namespace {

using namespace testing_support;
using Lines = std::vector<std::string>;

class ModPrinterTest : public BoulixTest {
  protected:
    void settingsAre(const std::string &lines) {
        writeBytes(file("boulix.ini"), "[impression]\r\n" + lines);
    }
    std::string banner(const std::string &name) {
        gAppInfo->name(name);
        modPrinter::startReport("essai");
        return printers.documents.back().lines().at(1);
    }
};

TEST_F(ModPrinterTest, WithoutASettingsFileEverythingHasItsDefault) {
    printers.names = {"Salon", "Bureau"};
    modPrinter::direction = 0;
    modPrinter::offset_X = 7;
    modPrinter::loadSettings();
    EXPECT_EQ(modPrinter::offset_X, 0.0F);
    EXPECT_EQ(modPrinter::offset_Y, 0.0F);
    EXPECT_EQ(modPrinter::direction, 2);
    EXPECT_EQ(modPrinter::currentPrinter(), "Bureau") << "the system's default";
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(ModPrinterTest, ADirectionIsReadInAnyCaseAndWithBlanks) {
    const std::vector<std::pair<std::string, std::int32_t>> words = {
        {"gauche", 0}, {"Droite", 1}, {"HAUT", 2}, {"bas", 3}, {"BAS", 3}, {" Bas ", 3}};
    for (const auto &[word, direction] : words) {
        settingsAre("Direction=" + word + "\r\n");
        modPrinter::loadSettings();
        EXPECT_EQ(modPrinter::direction, direction) << word;
    }
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(ModPrinterTest, ADirectionEndsAtAZeroByte) {
    settingsAre(std::string("Direction=bas\0\r\n", 16));
    modPrinter::loadSettings();
    EXPECT_EQ(modPrinter::direction, 3);
}

TEST_F(ModPrinterTest, AnUnknownDirectionIsReportedAndTakenAsUp) {
    modPrinter::direction = 0;
    settingsAre("Direction= travers\r\n");
    modPrinter::loadSettings();
    EXPECT_EQ(modPrinter::direction, 2);
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{{"Erreur de syntaxe dans le fichier boulix.ini:\r\n"
                                      "TRAVERS valeur innatendue!!!",
                                      Icon::information, "boulix: Erreur N° 2302"}}));
}

TEST_F(ModPrinterTest, OffsetsAreReadWithADotAndWordsAsZero) {
    settingsAre("offset_X=2.5\r\noffset_Y=-0.75 mm\r\n");
    modPrinter::loadSettings();
    EXPECT_EQ(modPrinter::offset_X, 2.5F);
    EXPECT_EQ(modPrinter::offset_Y, -0.75F);
    settingsAre("offset_X=beaucoup\r\noffset_Y=" + std::string(400, '9') + "\r\n");
    modPrinter::loadSettings();
    EXPECT_EQ(modPrinter::offset_X, 0.0F);
    EXPECT_EQ(modPrinter::offset_Y, 0.0F);
}

TEST_F(ModPrinterTest, AnOffsetBeyondAnyMeasureIsZeroAndStopsNothing) {
    for (const std::size_t digits : {39U, 400U}) {
        modPrinter::offset_X = 7;
        settingsAre("offset_X=1" + std::string(digits, '0') + "\r\noffset_Y=2.5\r\n");
        modPrinter::loadSettings();
        EXPECT_EQ(modPrinter::offset_X, 0.0F) << digits;
        EXPECT_EQ(modPrinter::offset_Y, 2.5F) << digits;
    }
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(ModPrinterTest, TheSavedPrinterIsChosenWhateverItsCase) {
    printers.names = {"Salon", "Bureau", "BUREAU"};
    printers.standard = "Salon";
    settingsAre("imprimante=  bureau \r\n");
    modPrinter::loadSettings();
    EXPECT_EQ(modPrinter::currentPrinter(), "Bureau") << "the first equal one";
}

TEST_F(ModPrinterTest, ASavedPrinterThatIsGoneLeavesTheDefaultWithoutAMessage) {
    printers.names = {"Salon", "Bureau"};
    printers.standard = "Salon";
    settingsAre("imprimante=Grenier\r\n");
    modPrinter::loadSettings();
    EXPECT_EQ(modPrinter::currentPrinter(), "Salon");
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(ModPrinterTest, TheSavedPrinterIsLookedForWhenAPrinterIsFirstWanted) {
    printers.names = {"Bureau"};
    settingsAre("imprimante=Grenier\r\n");
    modPrinter::loadSettings();
    printers.names = {"Bureau", "Grenier"};
    EXPECT_EQ(modPrinter::currentPrinter(), "Grenier") << "the start has not asked for printers";
    printers.names = {"Bureau"};
    EXPECT_EQ(modPrinter::currentPrinter(), "Grenier") << "once chosen it stays";
}

TEST_F(ModPrinterTest, WithoutADefaultTheFirstPrinterIsUsed) {
    printers.names = {"Salon", "Bureau"};
    printers.standard.clear();
    EXPECT_EQ(modPrinter::currentPrinter(), "Salon");
    printers.names.clear();
    EXPECT_EQ(modPrinter::currentPrinter(), "");
}

TEST_F(ModPrinterTest, ThePrinterCheckReportsAMissingPrinter) {
    EXPECT_EQ(modPrinter::printerCheck(), 0);
    EXPECT_TRUE(desktop.messages.empty());
    printers.names.clear();
    EXPECT_EQ(modPrinter::printerCheck(), -1);
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{{"Impossible d'imprimer, aucune imprimante est installée sur "
                                      "votre ordinateur!\r\nou l'imprimante est mal configurée.",
                                      Icon::information, "boulix: Erreur N° 2301"}}));
}

TEST_F(ModPrinterTest, TheBannerIsTheNameBetweenTwoLinesOfStars) {
    auto report = modPrinter::startReport("essai");
    ASSERT_TRUE(report);
    const std::string stars(40, '*');
    const auto &document = printers.onlyDocument();
    EXPECT_EQ(document.lines(), (Lines{stars, std::string(17, ' ') + "boulix", stars, ""}));
    for (const Drawn &item : document.drawn) {
        EXPECT_EQ(item.fontName, "Arial");
        EXPECT_EQ(item.points, 10);
    }
    EXPECT_FALSE(document.ended);
    EXPECT_EQ(document.title, "Boulix - essai");
}

TEST_F(ModPrinterTest, TheNameIsCentredRoundedDown) {
    EXPECT_EQ(banner(std::string(39, 'x')), std::string(39, 'x'));
    EXPECT_EQ(banner(std::string(37, 'x')), " " + std::string(37, 'x'));
    EXPECT_EQ(banner("été"), std::string(18, ' ') + "été");
    EXPECT_EQ(banner(""), std::string(20, ' '));
    EXPECT_EQ(banner(std::string(60, 'x')), std::string(60, 'x'));
}

TEST_F(ModPrinterTest, WithoutAPrinterNoReportIsStarted) {
    printers.names.clear();
    desktop.answerNo();
    EXPECT_FALSE(modPrinter::startReport("essai"));
    EXPECT_EQ(desktop.messages.size(), 1U);
    EXPECT_TRUE(printers.documents.empty());
}

TEST_F(ModPrinterTest, APrinterThatWentAwaySinceItWasChosenFails) {
    modPrinter::currentPrinter("Grenier");
    EXPECT_EQ(failureNumber([] { modPrinter::startReport("essai"); }), 482);
}

TEST_F(ModPrinterTest, TheCanvasIsTwoBoxesWithAHintAtTheirTop) {
    modPrinter::offset_X = 5; // moves marks, not the canvas
    modPrinter::printCanvas();
    const auto &document = printers.onlyDocument();
    EXPECT_TRUE(document.ended);
    EXPECT_EQ(document.pages, 1);
    EXPECT_EQ(document.sides, Sides::one);
    const auto boxes = document.ofKind(Drawn::box);
    const auto texts = document.ofKind(Drawn::text);
    ASSERT_EQ(boxes.size(), 2U);
    ASSERT_EQ(texts.size(), 2U);
    const double top[] = {20, 150};
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_DOUBLE_EQ(boxes[i].x1, 25);
        EXPECT_DOUBLE_EQ(boxes[i].y1, top[i]);
        EXPECT_DOUBLE_EQ(boxes[i].x2, 185);
        EXPECT_DOUBLE_EQ(boxes[i].y2, top[i] + 120);
        EXPECT_EQ(boxes[i].penWidth, 2);
        EXPECT_EQ(texts[i].words, "Haut de la grille ici");
        EXPECT_EQ(texts[i].fontName, "Arial");
        EXPECT_EQ(texts[i].points, 10);
        EXPECT_DOUBLE_EQ(texts[i].x1, 105 - document.textWidth("Haut de la grille ici") / 2);
        EXPECT_DOUBLE_EQ(texts[i].y1, top[i] + 2 * document.textHeight());
    }
}

TEST_F(ModPrinterTest, WithoutAPrinterThereIsNoCanvas) {
    printers.names.clear();
    desktop.answerNo();
    modPrinter::printCanvas();
    EXPECT_EQ(desktop.messages.size(), 1U);
    EXPECT_TRUE(printers.documents.empty());
}

TEST_F(ModPrinterTest, TheDialogStoresAndSavesWhatWasConfirmed) {
    printers.names = {"Salon", "Bureau"};
    printWindows.onPrint = [](frmPrint &window) {
        window.cmbPrinterIndex = 0;
        window.txtOffsetX = " 2.5 ";
        window.txtOffsetY = "-3";
        window.optPrintDir = 3;
        window.clickOK();
    };
    modPrinter::printerDialog();
    EXPECT_EQ(modPrinter::currentPrinter(), "Salon");
    EXPECT_EQ(readBytes(file("boulix.ini")),
              "[impression]\r\nimprimante=Salon\r\noffset_X=2.5\r\noffset_Y=-3\r\n"
              "Direction=BAS\r\n");
}

TEST_F(ModPrinterTest, WhatTheDialogSavedIsFoundByTheNextStart) {
    printers.names = {"Salon", "Bureau"};
    printWindows.onPrint = [](frmPrint &window) {
        window.cmbPrinterIndex = 0;
        window.txtOffsetX = "0,1";
        window.txtOffsetY = "12.25";
        window.optPrintDir = 0;
        window.clickOK();
    };
    modPrinter::printerDialog();
    modPrinter::offset_X = 99;
    modPrinter::offset_Y = 99;
    modPrinter::direction = 1;
    modPrinter::currentPrinter("");
    modPrinter::loadSettings();
    EXPECT_EQ(modPrinter::offset_X, 0.1F);
    EXPECT_EQ(modPrinter::offset_Y, 12.25F);
    EXPECT_EQ(modPrinter::direction, 0);
    EXPECT_EQ(modPrinter::currentPrinter(), "Salon");
}

TEST_F(ModPrinterTest, ADialogThatIsLeftChangesAndSavesNothing) {
    printWindows.onPrint = [](frmPrint &window) {
        window.txtOffsetX = "5";
        window.optPrintDir = 0;
        window.clickCancel();
    };
    modPrinter::printerDialog();
    EXPECT_EQ(modPrinter::offset_X, 0.0F);
    EXPECT_EQ(modPrinter::direction, 2);
    EXPECT_FALSE(fileExists(file("boulix.ini")));
}

} // namespace
} // namespace boulix
