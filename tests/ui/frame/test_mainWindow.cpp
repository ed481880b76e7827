// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "sill/modMain.h"
#include "sill/undo.h"
#include "ui/support/screenTest.h"
#include "workbench/frmMain.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest/QTest>

#include <gmock/gmock.h>

#include <filesystem>
#include <functional>
#include <stdexcept>

namespace boulix {
namespace {

using MainWindowTest = ScreenTest;

std::string withoutMnemonic(QString text) {
    return text.remove(QLatin1Char('&')).toStdString();
}

void clickTab(MainWindow &window, int tab) {
    QTabBar *bar = control<QTabWidget>(window, "TabStrip").tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center());
}

TEST_F(MainWindowTest, ItOpensOnTheDatabasePageWithAnEmptyBase) {
    MainWindow &window = start();
    EXPECT_EQ(window.windowTitle().toStdString(), "boulix Version 4.0.3");
    EXPECT_EQ(window.objectName().toStdString(), "frmMain");
    EXPECT_EQ(control<QLabel>(window, "StatusBar_1").text().toStdString(),
              "0 combinaisons dans la base de données");
    EXPECT_EQ(control<QTabWidget>(window, "TabStrip").currentIndex(), 0);
    EXPECT_EQ(visibleWindow(QStringLiteral("frmSplash")), nullptr);
}

TEST_F(MainWindowTest, ItIsAsWideAndAsHighAsItAlwaysWasInTodaysPixelsWhereTheScreenHasTheRoom) {
    constexpr double pixelsPerTwip = 1.5 / 15;
    constexpr QSize frameRoom{16, 40};
    const MainWindow &window = start();
    const QSize told = QSize(8685, 7560) * pixelsPerTwip;
    EXPECT_EQ(window.size(), told.boundedTo(window.screen()->availableSize() - frameRoom));
}

TEST_F(MainWindowTest, ThereAreSixTabsWithTheirToolTipsAndIcons) {
    MainWindow &window = start();
    const auto &tabs = control<QTabWidget>(window, "TabStrip");
    ASSERT_EQ(tabs.count(), frmMain::tabCount);
    for (int i = 0; i < tabs.count(); ++i) {
        const TabText &told = frmMain::tabs[static_cast<std::size_t>(i)];
        EXPECT_EQ(withoutMnemonic(tabs.tabText(i)), told.caption);
        EXPECT_EQ(tabs.tabToolTip(i).toStdString(), told.toolTip);
        EXPECT_EQ(tabs.widget(i)->objectName().toStdString(), "frameTab_" + std::to_string(i));
        EXPECT_FALSE(tabs.tabIcon(i).isNull());
    }
}

TEST_F(MainWindowTest, AClickOnATabShowsItsPage) {
    MainWindow &window = start();
    auto &tabs = control<QTabWidget>(window, "TabStrip");
    for (const int tab : {4, 1, 1, 5, 0}) {
        clickTab(window, tab);
        EXPECT_EQ(mainWindow->visiblePage(), tab);
        for (int i = 0; i < tabs.count(); ++i)
            EXPECT_EQ(tabs.widget(i)->isVisible(), i == tab);
    }
}

TEST_F(MainWindowTest, TheMenusHaveTheirEntries) {
    MainWindow &window = start();
    struct Entry {
        const char *menu;
        const char *name;
        const char *caption;
    };
    const Entry entries[] = {
        {"mnuFile", "mnuPrintCanvas", "Imprimer le canevas"},
        {"mnuFile", "mnuExit", "Quitter"},
        {"mnuEdit", "mnuUndo", "Annuler"},
        {"mnuEdit", "mnuRedo", "Rétablir"},
        {"mnuConfig", "mnuPrinter", "Paramètres d'impression"},
        {"mnuConfig", "mnuGrid", "Paramètres des grilles"},
        {"mnuConfig", "mnuGraphParam", "Paramètres des graphiques"},
        {"mnuHlp", "mnuHelp", "Aide"},
        {"mnuHlp", "mnuAbout", "A propos"},
    };
    for (const Entry &entry : entries) {
        auto &menu = control<QMenu>(window, entry.menu);
        auto &action = control<QAction>(window, entry.name);
        EXPECT_EQ(withoutMnemonic(action.text()), entry.caption);
        EXPECT_TRUE(menu.actions().contains(&action)) << entry.name;
        EXPECT_FALSE(action.icon().isNull()) << entry.name;
    }
    EXPECT_EQ(withoutMnemonic(control<QMenu>(window, "mnuFile").title()), "Fichier");
    EXPECT_EQ(withoutMnemonic(control<QMenu>(window, "mnuConfig").title()), "Configuration");
    EXPECT_EQ(withoutMnemonic(control<QMenu>(window, "mnuHlp").title()), "?");
}

TEST_F(MainWindowTest, TheMenuEditionStandsBehindTheMenuOfTheFiles) {
    MainWindow &window = start();
    QStringList menus;
    for (const QAction *menu : window.menuBar()->actions())
        menus << menu->menu()->objectName();
    EXPECT_EQ(menus.join(u' ').toStdString(), "mnuFile mnuEdit mnuConfig mnuHlp");
}

TEST_F(MainWindowTest, TheLastCommandIsTakenBackAndDoneAgainFromTheMenuAndFromTheKeyboard) {
    MainWindow &window = start();
    auto &undo = control<QAction>(window, "mnuUndo");
    auto &redo = control<QAction>(window, "mnuRedo");
    EXPECT_FALSE(undo.isEnabled());
    EXPECT_FALSE(redo.isEnabled());
    int value = 1;
    gUndo->record({"Effacer", [&value, kept = 0]() mutable { std::swap(value, kept); }});
    EXPECT_TRUE(undo.isEnabled());
    EXPECT_EQ(withoutMnemonic(undo.text()), "Annuler « Effacer »");
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(value, 0);
    const auto &said = control<QLabel>(window, "announcement");
    EXPECT_EQ(said.text().toStdString(), "Annulé : Effacer");
    EXPECT_FALSE(undo.isEnabled());
    EXPECT_EQ(withoutMnemonic(redo.text()), "Rétablir « Effacer »");
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(value, 1);
    EXPECT_EQ(said.text().toStdString(), "Rétabli : Effacer");
    undo.trigger();
    EXPECT_EQ(value, 0);
}

TEST_F(MainWindowTest, WhatWasDoneStandsBehindThePanelsHoweverNarrowTheWindowIs) {
    MainWindow &window = start();
    const int narrowest = window.minimumSizeHint().width();
    const std::string text(300, 'm');
    desktop->announce(text);
    auto &said = control<QLabel>(window, "announcement");
    EXPECT_EQ(said.text().toStdString(), text);
    EXPECT_EQ(window.minimumSizeHint().width(), narrowest);
    EXPECT_GE(said.x(), control<QLabel>(window, "StatusBar_1").geometry().right());
}

TEST_F(MainWindowTest, AFailureOfABoxGivesItTheFocusWithItsTextSelected) {
    MainWindow &window = start();
    clickTab(window, 3);
    mainWindow->elimination.tick(0, true); // only then the box takes text
    auto &box = control<QLineEdit>(window, "txtEliminator_0");
    box.setText(QStringLiteral("abc"));
    desktop->focusField(box.objectName().toStdString());
    EXPECT_EQ(window.focusWidget(), &box);
    EXPECT_EQ(box.selectedText().toStdString(), "abc");
    desktop->focusField("none of these");
    EXPECT_EQ(window.focusWidget(), &box);
}

TEST_F(MainWindowTest, NoTwoMnemonicsOfTheWindowAreTheSame) {
    MainWindow &window = start();
    QStringList captions;
    for (const QAction *menu : window.menuBar()->actions())
        captions << menu->text();
    const auto &tabs = control<QTabWidget>(window, "TabStrip");
    for (int i = 0; i < tabs.count(); ++i)
        captions << tabs.tabText(i);
    for (int button = 1; button <= 6; ++button)
        captions << control<QAction>(window, ("tbarDB_" + std::to_string(button)).c_str()).text();
    QStringList keys;
    for (const QString &caption : captions) {
        const QString key = QKeySequence::mnemonic(caption).toString();
        EXPECT_FALSE(key.isEmpty()) << caption.toStdString();
        EXPECT_FALSE(keys.contains(key)) << caption.toStdString();
        keys << key;
    }
}

TEST_F(MainWindowTest, TheAnswerNoKeepsTheWindowAndTheLogOpen) {
    platform.arguments = "-debug";
    MainWindow &window = start();
    robot.box("Etes-vous sûr de vouloir quitter boulix?", "boulix", QMessageBox::Question,
              QMessageBox::No);
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(modMain::gLogFile.is_open());
}

TEST_F(MainWindowTest, TheAnswerYesClosesTheOtherWindowsTheLogAndTheWindow) {
    platform.arguments = "-debug";
    MainWindow &window = start();
    auto *other = new QWidget;
    other->setAttribute(Qt::WA_DeleteOnClose);
    const QPointer<QWidget> watched(other);
    other->show();
    robot.box("Etes-vous sûr de vouloir quitter boulix?", "boulix", QMessageBox::Question,
              QMessageBox::Yes);
    control<QAction>(window, "mnuExit").trigger();
    EXPECT_FALSE(window.isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(watched.isNull());
    EXPECT_FALSE(modMain::gLogFile.is_open());
}

/// The quit after a change that no file holds: the second box is left by `step`.
class UnsavedBaseTest : public MainWindowTest {
  protected:
    MainWindow &quitAnd(const std::function<void(QMessageBox &)> &step) {
        MainWindow &window = start();
        gDbCombs->Add(37000, 1, {}, false, "");
        robot.box("Etes-vous sûr de vouloir quitter boulix?", "boulix", QMessageBox::Question,
                  QMessageBox::Yes);
        robot.in("messageBox", [step](QWidget &box) { step(dynamic_cast<QMessageBox &>(box)); });
        window.close();
        return window;
    }
    static QPushButton &answer(const QMessageBox &box, const char *caption) {
        for (QAbstractButton *button : box.buttons())
            if (button->text().toStdString() == caption)
                return dynamic_cast<QPushButton &>(*button);
        throw std::runtime_error(std::string("no answer ") + caption);
    }
};

TEST_F(UnsavedBaseTest, AnswersByMouseSaveAndQuit) {
    const MainWindow &window =
        quitAnd([](QMessageBox &box) { click(answer(box, "&Enregistrer et quitter")); });
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(testing_support::readBytes(file("tirages.dbl")).size(), 128U + 28);
}

TEST_F(UnsavedBaseTest, EscapeStays) {
    const MainWindow &window =
        quitAnd([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(gDbCombs->isSaved());
}

TEST_F(UnsavedBaseTest, EnterStays) {
    const MainWindow &window =
        quitAnd([](QMessageBox &box) { QTest::keyClick(box.focusWidget(), Qt::Key_Return); });
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(gDbCombs->isSaved());
}

TEST_F(UnsavedBaseTest, QuitsWithoutSavingWhereTheUserSaysSo) {
    const MainWindow &window =
        quitAnd([](QMessageBox &box) { click(answer(box, "&Quitter sans enregistrer")); });
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(testing_support::readBytes(file("tirages.dbl")).size(), 86U);
}

TEST_F(MainWindowTest, TheAboutBoxOpensFromTheMenu) {
    MainWindow &window = start();
    robot.clickIn("frmAbout", "CMD_OK");
    control<QAction>(window, "mnuAbout").trigger();
}

TEST_F(MainWindowTest, F1AsksForTheHelpOfTheProgram) {
    MainWindow &window = start();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    robot.box("La page d'aide " + file("help/index.html") + " est introuvable.", "Aide",
              QMessageBox::Information);
    QTest::keyClick(&window, Qt::Key_F1);
    robot.finish();
}

TEST_F(MainWindowTest, AStartThatFailsLeavesTheSplashAndNoMainWindow) {
    std::filesystem::create_directory(file("tirages.dbl")); // nothing that can be read
    robot.in("messageBox", [](QWidget &box) {
        EXPECT_THAT(box.windowTitle().toStdString(),
                    ::testing::StartsWith("Boulix Erreur système N° "));
        click(*box.findChild<QPushButton *>());
    });
    modMain::Main();
    EXPECT_EQ(desktop->mainWidget(), nullptr);
    EXPECT_TRUE(desktop->startEnded());
    QWidget *splash = visibleWindow(QStringLiteral("frmSplash"));
    ASSERT_NE(splash, nullptr);
    click(control<QPushButton>(*splash, "cmdClose"));
    EXPECT_EQ(visibleWindow(QStringLiteral("frmSplash")), nullptr);
}

TEST_F(MainWindowTest, ARefusedBaseIsNoReasonToStop) {
    testing_support::writeBytes(file("tirages.dbl"), std::string(4000, 'x'));
    for (const char *beginning :
         {"Impossible de charger le fichier tirages.dbl ", "La base des tirages est vide. "})
        robot.in("messageBox", [beginning](QWidget &box) {
            EXPECT_EQ(control<QLabel>(box, "qt_msgbox_label").text().toStdString().find(beginning),
                      0U);
            click(*box.findChild<QPushButton *>());
        });
    EXPECT_EQ(control<QLabel>(start(), "StatusBar_1").text().toStdString(),
              "0 combinaisons dans la base de données");
}

} // namespace
} // namespace boulix
