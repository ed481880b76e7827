// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/support/gameScreenTest.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

namespace boulix {
namespace {

/// The window that searches for smaller systems, opened from the game page.
class OptimiserDialogTest : public GameScreenTest {
  protected:
    OptimiserDialogTest() { goTo(gameDesign::createTab); }

    void optimise(const char *nWin, const char *nSelect,
                  const testing_support::Robot::Step &inWindow) {
        type("txtWinNbr", nWin);
        type("txtChoosenNbr", nSelect);
        robot.in("frmOptimiser", inWindow);
        press("tbarCreateGame_4");
    }
    void type(const char *name, const char *text) {
        auto &box = control<QLineEdit>(window, name);
        box.clear();
        QTest::keyClicks(&box, QString::fromLatin1(text));
        QTest::keyClick(&box, Qt::Key_Return);
    }
    static std::string label(const QWidget &dialog, const char *name) {
        return control<QLabel>(dialog, name).text().toStdString();
    }
    static QPushButton &button(const QWidget &dialog, const char *name) {
        return control<QPushButton>(dialog, name);
    }
};

TEST_F(OptimiserDialogTest, ASearchIsStartedUsedAndListed) {
    optimise("5", "8", [](QWidget &dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(), "Optimiser un système");
        EXPECT_EQ(label(dialog, "lblRecord"), "12 grilles");
        EXPECT_FALSE(button(dialog, "cmdStop").isEnabled());
        click(button(dialog, "cmdStart"));
        EXPECT_EQ(label(dialog, "lblGrids"), "12 grilles");
        EXPECT_FALSE(button(dialog, "cmdStart").isEnabled()); // the bound is reached
        click(button(dialog, "cmdUse"));
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(rows("lvwGameDef"), 12);
    EXPECT_EQ(label(window, "lblnGameDefComb"), "12 combinaisons");
}

TEST_F(OptimiserDialogTest, ARunningSearchIsStoppedFromTheKeyboardAndGoesOn) {
    optimise("4", "13", [](QWidget &dialog) {
        auto &start = button(dialog, "cmdStart");
        auto &stop = button(dialog, "cmdStop");
        bool stopWasReady = false;
        QTimer::singleShot(300, &dialog, [&] {
            stopWasReady = stop.isEnabled() && stop.hasFocus() && !start.isEnabled() &&
                           !control<QComboBox>(dialog, "cmbGuarantee").isEnabled();
            QTest::keyClick(&stop, Qt::Key_Space);
        });
        EXPECT_TRUE(start.hasFocus());
        QTest::keyClick(&start, Qt::Key_Space);
        EXPECT_TRUE(stopWasReady);
        EXPECT_TRUE(start.isEnabled());
        EXPECT_TRUE(start.hasFocus());
        EXPECT_EQ(start.text().toStdString(), "&Continuer");
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(rows("lvwGameDef"), 0);
}

TEST_F(OptimiserDialogTest, EscapeEndsASearchAndClosesTheWindow) {
    optimise("4", "13", [](QWidget &dialog) {
        QTimer::singleShot(200, &dialog, [&] {
            QTest::keyClick(&dialog, Qt::Key_Escape);
            EXPECT_TRUE(dialog.isVisible()); // not before the search has ended
        });
        click(button(dialog, "cmdStart"));
        EXPECT_FALSE(dialog.isVisible());
    });
}

TEST_F(OptimiserDialogTest, TheGuaranteeIsChosenFromTheList) {
    optimise("3", "17", [](QWidget &dialog) {
        auto &guarantees = control<QComboBox>(dialog, "cmbGuarantee");
        EXPECT_EQ(guarantees.count(), 4);
        guarantees.setFocus();
        QTest::keyClick(&guarantees, Qt::Key_End);
        EXPECT_EQ(guarantees.currentText().toStdString(), "3 gagnants si 6 sortis");
        EXPECT_EQ(label(dialog, "lblGrids"), "6 grilles");
        click(button(dialog, "cmdExit"));
        EXPECT_FALSE(dialog.isVisible());
    });
}

} // namespace
} // namespace boulix
