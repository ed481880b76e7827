// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Walks through all pages and sub-tabs: what a visit and a click must leave as it was.

#include "core/globals.h"
#include "support/lottery.h"
#include "ui/support/layoutTest.h"
#include "ui/support/places.h"
#include "workbench/frmMain.h"

#include <QAbstractScrollArea>
#include <QDialog>
#include <QTabBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QtTest/QTest>

namespace boulix {
namespace {

using testing_support::LayoutTest;
using testing_support::nameOf;
using testing_support::Place;

class VisitsTest : public LayoutTest {
  protected:
    VisitsTest() : window(start()) {
        std::mt19937 random{7};
        addRandomDraws(50, random);
        mainWindow->frmUpdateDBList();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    MainWindow &window;
};

TEST_P(VisitsTest, NoFirstVisitMakesTheMainWindowGrow) {
    window.resize(window.minimumSizeHint());
    QApplication::processEvents();
    const QSize before = window.size();
    for (const Place &place : testing_support::placesOfMainWindow()) {
        place.goThere(window);
        for (int level = 0; level < 3; ++level)
            QApplication::processEvents(); // a new size travels outwards, strip by strip
        EXPECT_EQ(window.size(), before) << place;
    }
}

INSTANTIATE_TEST_SUITE_P(Fonts, VisitsTest, LayoutTest::fontSizes(), LayoutTest::nameOf);

/// Leaves whatever a command opens: dialogs are given up, menus are closed.
class Impatience : public QTimer {
  public:
    Impatience() {
        connect(this, &QTimer::timeout, this, [] {
            if (QWidget *menu = QApplication::activePopupWidget())
                menu->close();
            else if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
                dialog->reject();
        });
        start(1);
    }
};

/// Without a window manager the window is not active again after each dialog: its own focus is the
/// one that the user would find.
class FocusTest : public ScreenTest {
  protected:
    FocusTest() : window(start()) {
        std::mt19937 random{7};
        addRandomDraws(50, random);
        mainWindow->frmUpdateDBList();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    /// The boxes, lists and boards that can be seen, each of which may have the focus.
    std::vector<QWidget *> fields() const {
        std::vector<QWidget *> found;
        for (QWidget *field : window.findChildren<QWidget *>())
            if (field->isVisible() && field->isEnabled() && !field->focusProxy() &&
                field->focusPolicy() & Qt::TabFocus && !qobject_cast<QToolButton *>(field) &&
                !qobject_cast<QTabBar *>(field))
                found.push_back(field);
        return found;
    }
    std::vector<QToolButton *> toolButtons() const {
        std::vector<QToolButton *> found;
        for (QToolBar *bar : window.findChildren<QToolBar *>())
            for (QAction *action : bar->actions())
                if (auto *button = qobject_cast<QToolButton *>(bar->widgetForAction(action)))
                    if (button->isVisible() && button->isEnabled() &&
                        action->objectName() != QStringLiteral("tbarStats_2")) // opens a window
                        found.push_back(button);
        return found;
    }

    MainWindow &window;
};

TEST_F(FocusTest, AClickOnAToolButtonLeavesTheFocusWhereItIs) {
    const Impatience nobody;
    mainWindow->games.design.txtNrandomGrid = "0"; // without a count its box would take the focus
    int clicks = 0;
    for (const Place &place : testing_support::placesOfMainWindow()) {
        place.goThere(window);
        for (QWidget *field : fields())
            for (QToolButton *button : toolButtons()) {
                field->setFocus();
                QTest::mouseClick(button, Qt::LeftButton);
                // The link of a list goes with the first row, and the list has the focus then.
                QWidget *stays = field->isVisible() ? field : field->parentWidget()->parentWidget();
                EXPECT_EQ(nameOf(window.focusWidget()), nameOf(stays))
                    << place << ", " << nameOf(button);
                ++clicks;
            }
    }
    EXPECT_GT(clicks, 200);
}

TEST_F(FocusTest, AClickOnATabLeavesTheFocusWhereItIsOrTakesItToThatTab) {
    for (const Place &place : testing_support::placesOfMainWindow()) {
        place.goThere(window);
        for (QTabBar *bar : window.findChildren<QTabBar *>())
            for (int tab = 0; bar->isVisible() && tab < bar->count(); ++tab) {
                place.goThere(window);
                for (QWidget *field : fields()) {
                    place.goThere(window);
                    field->setFocus();
                    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center());
                    QWidget *focus = window.focusWidget();
                    ASSERT_NE(focus, nullptr) << place << ", " << nameOf(field) << ", " << tab;
                    if (field->isVisible())
                        EXPECT_EQ(nameOf(focus), nameOf(field)) << place << ", tab " << tab;
                    else
                        EXPECT_FALSE(qobject_cast<QTabBar *>(focus))
                            << place << ", " << nameOf(field) << ", tab " << tab;
                }
            }
    }
}

} // namespace
} // namespace boulix
