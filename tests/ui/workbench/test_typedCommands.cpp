// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a player gets who types into a box and gives a command without leaving the box.

#include "games/gameComb.h"
#include "stats/graphSettings.h"
#include "support/lottery.h"
#include "ui/printing/qtPrintWindows.h"
#include "ui/support/gameScreenTest.h"

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>

namespace boulix {
namespace {

class TypedCommandsTest : public GameScreenTest {
  protected:
    TypedCommandsTest() {
        std::mt19937 random{7};
        addRandomDraws(20, random);
        mainWindow->frmUpdateDBList();
        goToPage(1);
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    void goToPage(int page) { control<QTabWidget>(window, "TabStrip").setCurrentIndex(page); }
    static void type(QWidget &box, const char *text) {
        box.setFocus();
        QTest::keySequence(&box, QKeySequence::SelectAll);
        QTest::keyClicks(&box, QString::fromLatin1(text));
    }
    QLineEdit &box(const char *name) { return control<QLineEdit>(window, name); }
    /// Clicks a button of a toolbar, as a mouse does.
    static void clickTool(const QWidget &where, const char *bar, const char *action) {
        click(*control<QToolBar>(where, bar).widgetForAction(&control<QAction>(where, action)));
    }
    QWidget &toolButton(const char *bar, const char *action) {
        return *control<QToolBar>(window, bar).widgetForAction(&control<QAction>(window, action));
    }
    /// How many draws were counted by the statistic in the list.
    int drawsCounted() {
        int numbers = 0;
        const QAbstractItemModel &counts = *list("lvwStatsResult").model();
        for (int row = 0; row < counts.rowCount(); ++row)
            numbers += counts.index(row, 1).data().toString().toInt();
        return numbers / 6;
    }
    std::int32_t start() const { return mainWindow->statistics.updStatStart.value(); }
};

TEST_F(TypedCommandsTest, TheTypedRangeIsTheOneThatIsCounted) {
    type(box("txtStatStart"), "15");
    clickTool(window, "tbarStats", "tbarStats_1");
    EXPECT_EQ(drawsCounted(), 6);
    EXPECT_EQ(box("txtStatStart").text().toStdString(), "15");
    EXPECT_TRUE(box("txtStatStart").hasFocus());
    type(box("txtStatEnd"), "17");
    QTest::keySequence(window.windowHandle(), QKeySequence(Qt::Key_F5));
    EXPECT_EQ(drawsCounted(), 3);
}

TEST_F(TypedCommandsTest, AScreenReadersPressOnAButtonCountsToo) {
    type(box("txtStatStart"), "15");
    QAccessible::queryAccessibleInterface(&toolButton("tbarStats", "tbarStats_1"))
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(drawsCounted(), 6);
}

TEST_F(TypedCommandsTest, AStepBeginsAtWhatWasTyped) {
    goToPage(2);
    type(box("txtTirNbr"), "10");
    click(*control<QWidget>(window, "updnTirNbr").findChildren<QToolButton *>().front());
    EXPECT_EQ(box("txtTirNbr").text().toStdString(), "11");
    type(box("txtTirNbr"), "5");
    QTest::keyClick(&box("txtTirNbr"), Qt::Key_Down);
    EXPECT_EQ(box("txtTirNbr").text().toStdString(), "4");
}

TEST_F(TypedCommandsTest, TheTypedNumbersMakeTheSystem) {
    goToPage(4);
    goTo(gameDesign::createTab);
    type(box("txtWinNbr"), "2");
    type(box("txtChoosenNbr"), "8");
    clickTool(window, "tbarCreateGame", "tbarCreateGame_3");
    EXPECT_EQ(mainWindow->games.design.systems.nChoosen.upDownControl.value(), 8);
    EXPECT_EQ(box("txtWinNbr").text().toStdString(), "2");
}

/// The preview of nine grids, which stand on two slips.
class TypedInPreviewTest : public TypedCommandsTest {
  protected:
    TypedInPreviewTest() {
        for (std::int16_t i = 1; i <= 9; ++i) {
            gameComb &grid = currentGame->Add();
            for (std::int16_t k = 1; k <= 6; ++k)
                grid.num(k, static_cast<std::int16_t>(i + k));
        }
        goToPage(4);
        setPrintWindows(&windows_);
    }
    ~TypedInPreviewTest() override { setPrintWindows(nullptr); }
    /// Prints as far as grid 5, by `command`, and gives the number of slips.
    int slipsPrintedBy(const std::function<void(QWidget &preview)> &command) {
        printers.documents.clear();
        robot.in("frmPrintGridPreview", [&](QWidget &preview) {
            type(control<QSpinBox>(preview, "updnEnd"), "5");
            command(preview);
        });
        press("mnuPrintGame_2");
        return printers.onlyDocument().pages;
    }

  private:
    QtPrintWindows windows_;
};

TEST_F(TypedInPreviewTest, OnlyTheTypedRangeIsPrinted) {
    EXPECT_EQ(
        slipsPrintedBy([](QWidget &preview) { clickTool(preview, "tbarPrint", "tbarPrint_3"); }),
        1);
    EXPECT_EQ(slipsPrintedBy([](QWidget &preview) {
                  QTest::keySequence(preview.windowHandle(), QKeySequence(QKeySequence::Print));
              }),
              1);
}

TEST_F(TypedCommandsTest, WhoIsAskedBeforeTheEndHasHisTextTakenOver) {
    type(box("txtStatStart"), "15");
    robot.in("messageBox", [this](QWidget &question) {
        EXPECT_EQ(start(), 15);
        click(*dynamic_cast<QMessageBox &>(question).button(QMessageBox::No));
    });
    window.close();
    EXPECT_TRUE(window.isVisible());
}

TEST_F(TypedCommandsTest, NothingIsTakenOverWhileTheUserIsTyping) {
    QLineEdit &first = box("txtStatStart");
    type(first, "0"); // no draw has this number: taken over, it would become 1
    QTest::keyClick(&first, Qt::Key_Shift);
    QTest::keyClick(&first, Qt::Key_Left);
    QTest::mouseClick(&first, Qt::LeftButton);
    QTest::mouseClick(&first, Qt::RightButton);
    QWidget tip(nullptr, Qt::ToolTip);
    tip.show();
    tip.close();
    EXPECT_EQ(first.text().toStdString(), "0");
    mainWindow->statistics.pickType(3); // the page shows its state again
    EXPECT_EQ(first.text().toStdString(), "0");
    QTest::keyClick(&first, Qt::Key_Return);
    EXPECT_EQ(first.text().toStdString(), "1");
}

TEST_F(TypedCommandsTest, ATextThatCannotBeTakenIsToldAndTheCommandWaitsForTheNextClick) {
    clickTool(window, "tbarStats", "tbarStats_2");
    QWidget &graph = *visibleWindow(QStringLiteral("frmGraph"));
    click(control<QAbstractButton>(graph, "optManualRange"));
    QApplication::processEvents();
    graph.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&graph));
    auto &limit = control<QLineEdit>(graph, "txtXMin");
    auto &grid = control<QCheckBox>(graph, "chkShowGrid");
    const float before = modStats::graphXMin;
    const bool shown = grid.isChecked();
    const auto overflow = [](QWidget &box) {
        EXPECT_EQ(box.windowTitle().toStdString(), "Boulix Erreur système N° 6");
        click(*dynamic_cast<QMessageBox &>(box).button(QMessageBox::Ok));
    };
    const std::string tooLarge(50, '9');
    type(limit, tooLarge.c_str());
    robot.in("messageBox", overflow);
    click(grid);
    EXPECT_EQ(grid.isChecked(), shown);
    EXPECT_EQ(modStats::graphXMin, before);
    click(grid);
    EXPECT_NE(grid.isChecked(), shown);

    graph.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&graph));
    type(limit, tooLarge.c_str());
    robot.in("messageBox", overflow);
    const QPointer<QWidget> open = &graph;
    open->close();
    ASSERT_TRUE(open && open->isVisible());
    open->close();
    EXPECT_FALSE(open && open->isVisible());
}

/// The forecast test over the same draws.
TEST_F(TypedCommandsTest, LeavingTheBoxOfTheTestDrawIsTold) {
    goToPage(5);
    robot.in("frmTestProno", [](QWidget &dialog) {
        const auto told = [&dialog] {
            return control<QLabel>(dialog, "lblDescTir").text().contains(QStringLiteral(" du & "));
        };
        const auto arrows = control<QWidget>(dialog, "spnTir").findChildren<QToolButton *>();
        click(*arrows.back());
        EXPECT_FALSE(told()) << "a step downward";
        control<QLineEdit>(dialog, "txtNumTir").setFocus();
        EXPECT_FALSE(told());
        control<QLineEdit>(dialog, "txtTirAfter").setFocus();
        EXPECT_TRUE(told()) << "left without a new text";
        type(control<QLineEdit>(dialog, "txtNumTir"), "7");
        EXPECT_FALSE(told());
        control<QLineEdit>(dialog, "txtTirAfter").setFocus();
        EXPECT_TRUE(told()) << "left with a new text";
        dialog.close();
    });
    press("tBarPronos_4");
}

} // namespace
} // namespace boulix
