// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/frmPrint.h"

#include "printing/modPrinter.h"
#include "support/boulixTest.h"

namespace boulix {
namespace {

class FrmPrintTest : public BoulixTest {};

TEST_F(FrmPrintTest, OpensOnTheCurrentValues) {
    printers.names = {"Salon", "Bureau", "Grenier"};
    modPrinter::currentPrinter("Grenier");
    modPrinter::offset_X = 2.5F;
    modPrinter::offset_Y = -0.1F;
    modPrinter::direction = 1;
    const frmPrint window;
    EXPECT_EQ(window.cmbPrinter, (std::vector<std::string>{"Salon", "Bureau", "Grenier"}));
    EXPECT_EQ(window.cmbPrinterIndex, 2);
    EXPECT_EQ(window.txtOffsetX, "2.5");
    EXPECT_EQ(window.txtOffsetY, "-0.1");
    EXPECT_EQ(window.optPrintDir, 1);
    EXPECT_TRUE(window.cmdOKEnabled);
    EXPECT_FALSE(window.closed());
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(FrmPrintTest, WithoutAChoiceTheDefaultPrinterIsChosen) {
    printers.names = {"Salon", "Bureau"};
    EXPECT_EQ(frmPrint().cmbPrinterIndex, 1);
}

TEST_F(FrmPrintTest, WithoutAPrinterItSaysSoAndCanNotBeConfirmed) {
    printers.names.clear();
    printers.standard.clear();
    const frmPrint window;
    EXPECT_FALSE(window.cmdOKEnabled);
    EXPECT_EQ(window.cmbPrinterIndex, -1);
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{{"Aucune imprimante est installée sur votre ordinateur!!!",
                                      Icon::information, "boulix: Erreur N° 901"}}));
}

TEST_F(FrmPrintTest, TheOffsetsTakeADotOrAComma) {
    frmPrint window;
    window.txtOffsetX = "1.25";
    window.txtOffsetY = "-1,5";
    window.clickOK();
    EXPECT_EQ(modPrinter::offset_X, 1.25F);
    EXPECT_EQ(modPrinter::offset_Y, -1.5F);
    EXPECT_EQ(window.result(), 1);
    EXPECT_TRUE(window.closed());
}

TEST_F(FrmPrintTest, AnOffsetThatIsNoNumberChangesNothingAndStaysOpen) {
    for (const char *text : {"", "  ", "deux", "1 mm", "--1"}) {
        frmPrint window;
        window.txtOffsetX = "4";
        window.txtOffsetY = text;
        window.optPrintDir = 0;
        EXPECT_EQ(failureNumber([&window] { window.clickOK(); }), 13) << text;
        EXPECT_EQ(modPrinter::offset_X, 0.0F);
        EXPECT_EQ(modPrinter::direction, 2);
        EXPECT_EQ(window.result(), 0);
        EXPECT_FALSE(window.closed());
    }
}

TEST_F(FrmPrintTest, AnOffsetBeyondSinglePrecisionIsAnOverflow) {
    frmPrint window;
    window.txtOffsetX = std::string(60, '9');
    EXPECT_EQ(failureNumber([&window] { window.clickOK(); }), 6);
    EXPECT_FALSE(window.closed());
}

TEST_F(FrmPrintTest, CancelGivesZero) {
    frmPrint window;
    window.clickCancel();
    EXPECT_EQ(window.result(), 0);
    EXPECT_TRUE(window.closed());
}

} // namespace
} // namespace boulix
