// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The window opens as it was left, and takes files that are dropped on it.

#include "core/globals.h"
#include "games/game.h"
#include "support/files.h"
#include "ui/support/screenTest.h"
#include "ui/widgets/reportView.h"
#include "workbench/frmMain.h"

#include <QAction>
#include <QCheckBox>
#include <QDropEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QScreen>
#include <QTabWidget>
#include <QUrl>
#include <QtTest/QTest>

namespace boulix {
namespace {

class MemoryScreenTest : public ScreenTest {
  protected:
    void quit(MainWindow &window) {
        robot.box("Etes-vous sûr de vouloir quitter boulix?", "boulix", QMessageBox::Question,
                  QMessageBox::Yes);
        window.close();
        robot.finish();
    }
    std::string savedGame(const std::string &name) {
        game two;
        two.Add(GridRef(gameComb({1, 2, 3, 4, 5, 6})));
        two.Add(GridRef(gameComb({7, 8, 9, 10, 11, 12})));
        robot.chooseFile(file(name));
        two.save();
        return file(name);
    }
    static void drop(MainWindow &window, const QList<QUrl> &urls) {
        QMimeData data;
        data.setUrls(urls);
        const QPoint middle = window.rect().center();
        QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&window, &enter);
        if (!enter.isAccepted())
            return;
        QDropEvent event(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&window, &event);
        QApplication::processEvents();
        QApplication::processEvents();
    }
};

TEST_F(MemoryScreenTest, TheWindowOpensAsItWasLeft) {
    MainWindow &first = start();
    control<QTabWidget>(first, "TabStrip").setCurrentIndex(4);
    control<QCheckBox>(first, "chkSelect_1").setChecked(true);
    control<ReportView>(first, "lvwDBcomb").header()->resizeSection(1, 77);
    first.setGeometry(30, 40, 660, 540);
    QApplication::processEvents();
    quit(first);
    forget();
    MainWindow &second = start();
    EXPECT_EQ(second.geometry(), QRect(30, 40, 660, 540));
    EXPECT_EQ(control<QTabWidget>(second, "TabStrip").currentIndex(), 4);
    EXPECT_TRUE(control<QCheckBox>(second, "chkSelect_1").isChecked());
    EXPECT_FALSE(control<QCheckBox>(second, "chkSelect_0").isChecked());
    EXPECT_EQ(control<ReportView>(second, "lvwDBcomb").header()->sectionSize(1), 77);
}

TEST_F(MemoryScreenTest, AWindowThatWasOnAnotherScreenIsWholeOnThisOne) {
    testing_support::writeBytes(file("boulix.ini"), "[fenetre]\r\ngauche=9000\r\nhaut=-700\r\n"
                                                    "largeur=3000\r\nhauteur=2000\r\n");
    const MainWindow &window = start();
    EXPECT_TRUE(window.screen()->availableGeometry().contains(window.geometry()));
}

TEST_F(MemoryScreenTest, ADroppedGameIsLoaded) {
    MainWindow &window = start();
    const std::string name = savedGame("mardi & co.lst");
    drop(window, {QUrl::fromLocalFile(QString::fromStdString(name))});
    EXPECT_EQ(currentGame->Count(), 2);
    EXPECT_EQ(mainWindow->visiblePage(), 4);
}

TEST_F(MemoryScreenTest, WhatIsNoFileCannotBeDropped) {
    MainWindow &window = start();
    drop(window, {QUrl(QStringLiteral("https://localhost/a.lst"))});
    EXPECT_EQ(mainWindow->visiblePage(), 0);
}

TEST_F(MemoryScreenTest, FilesWaitUntilNoDialogIsUp) {
    MainWindow &window = start();
    const std::string name = savedGame("mardi.lst");
    robot.in("frmAbout", [&](QWidget &about) {
        window.openFiles({QString::fromStdString(name)});
        QTest::qWait(50);
        EXPECT_EQ(currentGame->Count(), 0);
        about.close();
    });
    control<QAction>(window, "mnuAbout").trigger();
    EXPECT_TRUE(QTest::qWaitFor([] { return currentGame->Count() == 2; }));
}

TEST_F(MemoryScreenTest, TheGamesLastUsedStandInTheMenuBehindTheOtherEntries) {
    MainWindow &window = start();
    const std::string name = savedGame("mardi & co.lst");
    mainWindow->memory.gameUsed("/nulle/part.lst");
    mainWindow->memory.gameUsed(name);
    auto &menu = control<QMenu>(window, "mnuFile");
    for (int times = 0; times < 2; ++times) // the entries are made anew each time
        emit menu.aboutToShow();
    QStringList texts;
    for (const QAction *entry : menu.actions())
        texts << entry->text();
    EXPECT_EQ(texts.mid(3), (QStringList{QString(), QStringLiteral("&1  mardi && co.lst"),
                                         QStringLiteral("&2  part.lst")}));
    control<QAction>(window, "mnuRecent_1").trigger();
    EXPECT_TRUE(QTest::qWaitFor([] { return currentGame->Count() == 2; }));
}

} // namespace
} // namespace boulix
