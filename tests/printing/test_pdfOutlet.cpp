// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Documents that go into a PDF file in place of paper.

#include "printing/frmPrint.h"
#include "printing/frmPrintGridPreview.h"
#include "printing/modPrinter.h"
#include "printing/slipRun.h"
#include "support/boulixTest.h"

namespace boulix {
namespace {

using namespace testing_support;

const ShownBox noPrinter{"Impossible d'imprimer, aucune imprimante est installée sur votre "
                         "ordinateur!\r\nou l'imprimante est mal configurée.",
                         Icon::information, "boulix: Erreur N° 2301"};
const ShownBox offer{"Voulez-vous enregistrer le document dans un fichier PDF ?", Icon::question,
                     "boulix"};

class PdfOutletTest : public BoulixTest {
  protected:
    void choosePdf() { modPrinter::currentPrinter(modPrinter::pdfEntry); }
    void printSlips(int button) {
        printWindows.onGridPreview = [button](frmPrintGridPreview &window) {
            window.clickToolbar(button);
        };
        slipRun::run(
            9, slipRun::Sheets::slips,
            [](std::int32_t, std::int16_t position, Canvas &target, slip::Placement placement) {
                slip::drawGrid(target, {1, 2, 3, 4, 5, 6}, position, placement);
            });
    }
};

TEST_F(PdfOutletTest, WithoutAPrinterTheMessageComesFirstThenTheOffer) {
    printers.names.clear();
    desktop.answerYes();
    desktop.answerSave(file("canevas.pdf"));
    modPrinter::printCanvas();
    EXPECT_EQ(desktop.messages, (std::vector<ShownBox>{noPrinter}));
    EXPECT_EQ(desktop.questions, (std::vector<ShownBox>{offer}));
    EXPECT_EQ(printers.onlyDocument().pdfFile, file("canevas.pdf"));
    EXPECT_EQ(printers.onlyDocument().title, "Boulix - canevas");
    EXPECT_EQ(printers.onlyDocument().ofKind(Drawn::box).size(), 2U);
    EXPECT_TRUE(printers.onlyDocument().ended);
    EXPECT_EQ(desktop.announcements,
              (std::vector<std::string>{"Document enregistré dans canevas.pdf"}));
}

TEST_F(PdfOutletTest, ADeclinedOfferPrintsNothing) {
    printers.names.clear();
    desktop.answerNo();
    printSlips(3);
    EXPECT_EQ(printWindows.previewShowings, 0);
    EXPECT_TRUE(desktop.saveQuestions.empty());
    EXPECT_TRUE(desktop.announcements.empty());
}

TEST_F(PdfOutletTest, TheFileDialogProposesTheNameOfTheDocument) {
    choosePdf();
    desktop.cancelSave();
    EXPECT_FALSE(modPrinter::startReport("Sorties / couples"));
    ASSERT_EQ(desktop.saveQuestions.size(), 1U);
    EXPECT_EQ(desktop.saveQuestions[0].filter, "Document PDF (*.pdf)|*.pdf");
    EXPECT_EQ(desktop.saveQuestions[0].title, "Enregistrement en PDF");
    EXPECT_EQ(desktop.saveQuestions[0].name, "Sorties - couples.pdf");
    EXPECT_TRUE(printers.documents.empty());
}

TEST_F(PdfOutletTest, AFileThatIsThereIsReplacedAfterAQuestionOnly) {
    choosePdf();
    writeBytes(file("liste.pdf"), "ancien");
    desktop.answerSave(file("liste.pdf"));
    desktop.answerNo();
    EXPECT_FALSE(modPrinter::startReport("jeu"));
    EXPECT_EQ(desktop.questions,
              (std::vector<ShownBox>{
                  {"Le fichier liste.pdf existe déjà. Etes-vous sûr de vouloir le remplacer?",
                   Icon::question, "boulix"}}));
    desktop.answerSave(file("liste.pdf"));
    desktop.answerYes();
    EXPECT_TRUE(modPrinter::startReport("jeu"));
}

TEST_F(PdfOutletTest, AReportGoesWhereTheSettingsSay) {
    choosePdf();
    desktop.answerSave(file("jeu.pdf"));
    auto report = modPrinter::startReport("jeu");
    report->line("une ligne");
    EXPECT_TRUE(desktop.announcements.empty()) << "nothing is there yet";
    report->end();
    EXPECT_EQ(printers.onlyDocument().lines().back(), "une ligne");
    EXPECT_EQ(desktop.announcements.back(), "Document enregistré dans jeu.pdf");
    modPrinter::currentPrinter("Bureau");
    modPrinter::startReport("jeu")->end();
    EXPECT_EQ(printers.documents.back().printer, "Bureau");
    EXPECT_EQ(desktop.announcements.back(), "Document « jeu » remis à l'imprimante Bureau");
}

TEST_F(PdfOutletTest, ThePreviewOffersAPdfFileBesideThePrinter) {
    desktop.answerSave(file("mercredi.pdf"));
    printSlips(6);
    EXPECT_EQ(printers.onlyDocument().pdfFile, file("mercredi.pdf"));
    EXPECT_EQ(printers.onlyDocument().pages, 2);
    printSlips(3);
    EXPECT_EQ(printers.documents.back().printer, "Bureau") << "the settings are as before";
}

TEST_F(PdfOutletTest, SlipsGoIntoTheFileWithoutAPrinter) {
    printers.names.clear();
    desktop.answerYes();
    desktop.answerSave(file("bulletins.pdf"));
    printSlips(3);
    EXPECT_EQ(printers.onlyDocument().pdfFile, file("bulletins.pdf"));
    EXPECT_TRUE(printers.onlyDocument().ended);
}

TEST_F(PdfOutletTest, TheChoiceIsSavedAndFoundAgain) {
    printers.names = {"Salon", "Bureau"};
    printWindows.onPrint = [](frmPrint &window) {
        EXPECT_FALSE(window.pdfChosen());
        window.cmbPrinterIndex = 2; // behind the two printers
        window.clickOK();
    };
    modPrinter::printerDialog();
    EXPECT_EQ(modPrinter::currentPrinter(), modPrinter::pdfEntry);
    modPrinter::currentPrinter("");
    modPrinter::loadSettings();
    EXPECT_EQ(modPrinter::currentPrinter(), modPrinter::pdfEntry);
    EXPECT_TRUE(frmPrint().pdfChosen());
    EXPECT_EQ(frmPrint().cmbPrinterIndex, 2);
}

TEST_F(PdfOutletTest, WithoutAPrinterTheSettingsOfferNone) {
    printers.names.clear();
    choosePdf();
    EXPECT_FALSE(frmPrint().pdfChosen());
    EXPECT_EQ(frmPrint().cmbPrinterIndex, -1);
}

} // namespace
} // namespace boulix
