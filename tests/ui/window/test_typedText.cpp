// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Typing, clicking and the focus in a real window, where the window manager has its say.

#include "core/globals.h"
#include "support/lottery.h"
#include "ui/support/places.h"
#include "ui/support/screenTest.h"
#include "workbench/frmMain.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QWindow>
#include <QtTest/QTest>

namespace boulix {
namespace {

using testing_support::nameOf;

class TypedInWindowTest : public ScreenTest {
  protected:
    TypedInWindowTest() : window(start()) {
        std::mt19937 random{7};
        addRandomDraws(200, random);
        mainWindow->frmUpdateDBList();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    /// Presses the mouse over the window, not over the control: Qt finds out who gets it.
    static void clickAt(QWidget &control, QPoint place) {
        QTest::mouseClick(control.window()->windowHandle(), Qt::LeftButton, {},
                          control.mapTo(control.window(), place));
        QApplication::processEvents();
    }
    static void clickAt(QWidget &control) { clickAt(control, control.rect().center()); }
    static void clickTool(const QWidget &where, const char *bar, const char *action) {
        clickAt(*control<QToolBar>(where, bar).widgetForAction(&control<QAction>(where, action)),
                {8, 8});
    }
    void goToPage(int page) {
        auto &tabs = *control<QTabWidget>(window, "TabStrip").tabBar();
        clickAt(tabs, tabs.tabRect(page).center());
    }
    /// Types into the box that has the focus.
    static void type(QWidget &where, const char *text) {
        QTest::keySequence(where.windowHandle(), QKeySequence::SelectAll);
        for (const char *key = text; *key; ++key)
            QTest::keyClick(where.windowHandle(), *key);
    }
    static std::string focus() { return nameOf(QApplication::focusWidget()); }

    MainWindow &window;
};

TEST_F(TypedInWindowTest, AClickOnAToolButtonTakesTheTextOverAndLeavesTheFocus) {
    goToPage(1);
    clickAt(control<QLineEdit>(window, "txtStatStart"));
    type(window, "150");
    clickTool(window, "tbarStats", "tbarStats_1");
    EXPECT_EQ(mainWindow->statistics.updStatStart.value(), 150);
    EXPECT_EQ(control<QLineEdit>(window, "txtStatStart").text().toStdString(), "150");
    EXPECT_EQ(focus(), "txtStatStart");
    type(window, "160");
    QTest::keySequence(window.windowHandle(), QKeySequence(Qt::Key_F5));
    EXPECT_EQ(mainWindow->statistics.updStatStart.value(), 160);
    EXPECT_EQ(focus(), "txtStatStart");
}

TEST_F(TypedInWindowTest, AnArrowAMenuAndATabTakeTheTextOver) {
    goToPage(2);
    clickAt(control<QLineEdit>(window, "txtTirNbr"));
    type(window, "100");
    const auto arrows = control<QWidget>(window, "updnTirNbr").findChildren<QWidget *>();
    clickAt(*arrows.front());
    EXPECT_EQ(mainWindow->analysis.updnTirNbr.value(), 101);
    type(window, "50");
    QTest::keySequence(window.windowHandle(), QKeySequence(Qt::ALT | Qt::Key_F));
    EXPECT_EQ(mainWindow->analysis.updnTirNbr.value(), 50);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    while (QApplication::activePopupWidget())
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    clickAt(control<QLineEdit>(window, "txtTirNbr"));
    type(window, "60");
    goToPage(1);
    EXPECT_EQ(mainWindow->analysis.updnTirNbr.value(), 60);
}

TEST_F(TypedInWindowTest, TheForecastTestKeepsTheFocusThroughItsComputation) {
    goToPage(5);
    for (QLineEdit *box : window.findChildren<QLineEdit *>())
        if (box->isVisible())
            QTest::keyClicks(box, QStringLiteral("3"));
    clickTool(window, "tBarPronos", "tBarPronos_3");
    robot.in("frmTestProno", [](QWidget &dialog) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        for (const char *name : {"txtTirBefore", "txtTirAfter", "txtNbrCount"}) {
            clickAt(control<QLineEdit>(dialog, name));
            type(dialog, "6");
        }
        clickTool(dialog, "toolBar", "toolBar_1");
        QTest::qWait(100);
        EXPECT_EQ(focus(), "txtNbrCount");
        dialog.close();
    });
    clickAt(control<QLineEdit>(window, "txtN_2"));
    clickTool(window, "tBarPronos", "tBarPronos_4");
    QTRY_COMPARE(QString::fromStdString(focus()), QStringLiteral("txtN_2"));
}

TEST_F(TypedInWindowTest, NoPageMakesTheWindowGrow) {
    QTest::qWait(50);
    const QSize before = window.size();
    for (const testing_support::Place &place : testing_support::placesOfMainWindow()) {
        place.goThere(window);
        QTest::qWait(20);
        EXPECT_EQ(window.size(), before) << place;
    }
}

} // namespace
} // namespace boulix
