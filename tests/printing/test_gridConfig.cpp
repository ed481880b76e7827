// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/gridConfig.h"

#include "core/globals.h"
#include "printing/frmGridParam.h"
#include "support/boulixTest.h"

namespace boulix {
namespace {

using testing_support::fileExists;
using testing_support::readBytes;
using testing_support::writeBytes;

class GridConfigTest : public BoulixTest {};

TEST_F(GridConfigTest, WithoutASettingsFileAGridCostsSixtyCents) {
    gGridConfig->load();
    EXPECT_EQ(gGridConfig->price(), 0.6F);
    EXPECT_EQ(gGridConfig->monneyUnit(), "euro");
}

TEST_F(GridConfigTest, UnitAndPriceComeFromTheSettingsFile) {
    writeBytes(file("boulix.ini"),
               "[grille]\r\nunite_monnaie=franc suisse\r\nprix_grille=1.25\r\n");
    gGridConfig->load();
    EXPECT_EQ(gGridConfig->price(), 1.25F);
    EXPECT_EQ(gGridConfig->monneyUnit(), "franc suisse");
}

TEST_F(GridConfigTest, APriceThatIsNoNumberIsZero) {
    writeBytes(file("boulix.ini"), "[grille]\r\nprix_grille=cher\r\n");
    gGridConfig->load();
    EXPECT_EQ(gGridConfig->price(), 0.0F);
}

TEST_F(GridConfigTest, SavedValuesAreFoundByTheNextStart) {
    gGridConfig->monneyUnit("livre égyptienne");
    gGridConfig->price(0.1F);
    gGridConfig->save();
    EXPECT_EQ(readBytes(file("boulix.ini")),
              "[grille]\r\nunite_monnaie=livre \xE9gyptienne\r\nprix_grille=0.1\r\n");
    gGridConfig.reset();
    gGridConfig->load();
    EXPECT_EQ(gGridConfig->monneyUnit(), "livre égyptienne");
    EXPECT_EQ(gGridConfig->price(), 0.1F);
}

class GridParamTest : public GridConfigTest {
  protected:
    GridParamTest() { gGridConfig->load(); }
    void expectUntouched(const frmGridParam &window) {
        EXPECT_FALSE(window.closed());
        EXPECT_EQ(gGridConfig->price(), 0.6F);
        EXPECT_EQ(gGridConfig->monneyUnit(), "euro");
        EXPECT_FALSE(fileExists(file("boulix.ini")));
    }
};

TEST_F(GridParamTest, OpensOnTheTwoValues) {
    const frmGridParam window;
    EXPECT_EQ(window.txtUnit, "euro");
    EXPECT_EQ(window.txtPrice, "0.6");
    EXPECT_FALSE(window.closed());
}

TEST_F(GridParamTest, StoresTheTrimmedUnitAndThePriceAndSaves) {
    frmGridParam window;
    window.txtUnit = "  franc ";
    window.txtPrice = "2,5";
    window.clickOK();
    EXPECT_TRUE(window.closed());
    EXPECT_EQ(gGridConfig->monneyUnit(), "franc");
    EXPECT_EQ(gGridConfig->price(), 2.5F);
    EXPECT_EQ(readBytes(file("boulix.ini")),
              "[grille]\r\nunite_monnaie=franc\r\nprix_grille=2.5\r\n");
}

TEST_F(GridParamTest, ABlankUnitIsRefused) {
    frmGridParam window;
    window.txtUnit = "   ";
    window.clickOK();
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{{"L'unité de monnaie doit être précisée.", Icon::information,
                                      "boulix: Erreur N° 601"}}));
    expectUntouched(window);
}

TEST_F(GridParamTest, ABlankPriceChangesNothingAndStaysOpen) {
    frmGridParam window;
    window.txtUnit = "franc";
    window.txtPrice = " ";
    window.clickOK();
    EXPECT_TRUE(desktop.messages.empty());
    expectUntouched(window);
}

TEST_F(GridParamTest, APriceInWordsFailsAndStaysOpen) {
    frmGridParam window;
    window.txtUnit = "franc";
    window.txtPrice = "deux";
    EXPECT_EQ(failureNumber([&window] { window.clickOK(); }), 13);
    expectUntouched(window);
}

TEST_F(GridParamTest, CancelClosesAndChangesNothing) {
    frmGridParam window;
    window.txtUnit = "franc";
    window.clickCancel();
    EXPECT_TRUE(window.closed());
    EXPECT_EQ(gGridConfig->monneyUnit(), "euro");
}

TEST_F(GridParamTest, TheUnitIsAskedForFirstAlsoWhereThePriceIsMissingToo) {
    for (const char *price : {"", "   ", "1.2"}) {
        frmGridParam window;
        window.txtUnit = "  ";
        window.txtPrice = price;
        desktop.messages.clear();
        window.clickOK();
        EXPECT_EQ(desktop.messages,
                  (std::vector<ShownBox>{{"L'unité de monnaie doit être précisée.",
                                          Icon::information, "boulix: Erreur N° 601"}}));
        EXPECT_FALSE(window.closed());
    }
    EXPECT_EQ(gGridConfig->monneyUnit(), "euro");
}

} // namespace
} // namespace boulix
