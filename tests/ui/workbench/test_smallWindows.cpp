// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The smallest laptop that is in use has 910 by 512 points: every window must fit it.

#include "core/globals.h"
#include "support/lottery.h"
#include "ui/support/everyDialog.h"
#include "ui/support/layoutTest.h"
#include "ui/support/places.h"
#include "ui/widgets/scrollPanel.h"
#include "ui/widgets/toolbar.h"
#include "workbench/frmMain.h"

#include <QLineEdit>
#include <QScreen>
#include <QToolBar>
#include <QVBoxLayout>

namespace boulix {
namespace {

using testing_support::clippedControls;
using testing_support::forEveryDialog;
using testing_support::Place;
using testing_support::placesOfMainWindow;

constexpr QSize smallest(640, 520);

void settle() {
    constexpr int tabStripsInOneAnother = 3;
    for (int level = 0; level <= tabStripsInOneAnother; ++level)
        QApplication::processEvents(); // a new size travels outwards, strip by strip
}

bool fits(const QSize &size, const QSize &room) {
    return size.width() <= room.width() && size.height() <= room.height();
}

::testing::AssertionResult fitsSmallest(const QSize &size) {
    if (fits(size, smallest))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << size.width() << " x " << size.height();
}

class SmallWindowTest : public ScreenTest {
  protected:
    SmallWindowTest() : window(start()) {
        addDraw({1, 2, 3, 4, 5, 6, 7});
        addDraw({10, 20, 30, 40, 41, 42, 43});
        mainWindow->frmUpdateDBList();
        mainWindow->showSelectedCount("10 numéros sélectionnés");
    }
    MainWindow &window;
};

TEST_F(SmallWindowTest, TheMainWindowCanBeMadeSmallOnEveryPage) {
    for (const Place &place : placesOfMainWindow()) {
        place.goThere(window);
        settle();
        EXPECT_TRUE(fitsSmallest(window.minimumSizeHint())) << place;
        window.resize(smallest);
        settle();
        EXPECT_EQ(window.size(), smallest) << place;
        EXPECT_THAT(clippedControls(window), ::testing::IsEmpty()) << place;
    }
}

TEST_F(SmallWindowTest, EveryDialogCanBeMadeSmall) {
    forEveryDialog([](QWidget &dialog) {
        const QSize least = dialog.minimumSizeHint().expandedTo(dialog.minimumSize());
        EXPECT_TRUE(fitsSmallest(least)) << dialog.objectName().toStdString();
        EXPECT_THAT(clippedControls(dialog), ::testing::IsEmpty());
    });
}

TEST_F(SmallWindowTest, NoDialogIsNarrowerThanItsTitle) {
    forEveryDialog([](QWidget &dialog) {
        QFont bold = dialog.font();
        bold.setBold(true);
        const int title = QFontMetrics(bold).horizontalAdvance(dialog.windowTitle());
        const int buttons = 3 * QFontMetrics(bold).height();
        EXPECT_GE(dialog.width(), title + buttons) << dialog.objectName().toStdString();
    });
}

TEST_F(SmallWindowTest, TheToolbarsOfAllPagesKeepTheirTextsInASmallWindow) {
    window.resize(smallest);
    for (const Place &place : placesOfMainWindow()) {
        place.goThere(window);
        settle();
        for (const QToolBar *bar : window.findChildren<QToolBar *>())
            if (bar->isVisible()) {
                EXPECT_NE(bar->toolButtonStyle(), Qt::ToolButtonIconOnly)
                    << place << " " << bar->objectName().toStdString();
            }
    }
}

TEST_F(SmallWindowTest, TheWindowStartsWithinTheScreen) {
    const QSize room = window.screen()->availableGeometry().size();
    EXPECT_TRUE(fits(window.size(), room));
    EXPECT_TRUE(fits(window.frameGeometry().size(), room));
}

TEST(ScrollPanelTest, TheControlThatGetsTheFocusComesIntoSight) {
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    QLineEdit *last = nullptr;
    for (int i = 0; i < 30; ++i)
        column->addWidget(last = new QLineEdit(content));
    ScrollPanel panel(content);
    panel.resize(panel.minimumSizeHint());
    panel.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    ASSERT_TRUE(last->visibleRegion().isEmpty());
    last->setFocus(Qt::ShortcutFocusReason);
    EXPECT_EQ(last->visibleRegion().boundingRect(), last->rect());
}

TEST(FittingToolbarTest, TheIconsStandAloneWhereTheTextsHaveNoRoom) {
    QWidget window;
    QToolBar *bar = makeToolbar(
        QStringLiteral("bar"),
        {{QStringLiteral("Une longue commande"), {}, QStringLiteral("add"), {}},
         {QStringLiteral("Une autre encore"), {}, QStringLiteral("edit"), {}}},
        [](int) {}, &window);
    window.show();
    bar->resize(bar->sizeHint());
    EXPECT_EQ(bar->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    const QSize full = bar->sizeHint();
    bar->resize(full.width() - 1, full.height());
    EXPECT_EQ(bar->toolButtonStyle(), Qt::ToolButtonIconOnly);
    bar->resize(full);
    EXPECT_EQ(bar->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
}

} // namespace
} // namespace boulix
