// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "sill/numberBoard.h"
#include "support/locations.h"
#include "ui/support/screenTest.h"
#include "ui/widgets/numberBoardView.h"
#include "ui/widgets/reportView.h"
#include "ui/widgets/upDownView.h"
#include "workbench/frmMain.h"

#include <QAction>
#include <QCalendarWidget>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>
#include <QtTest/QTest>

namespace boulix {
namespace {

using testing_support::fileExists;
using testing_support::sampleHistory;
using testing_support::writeBytes;

const std::string threeDraws =
    "DATE_DE_TIRAGE;1ER_OU_2EME_TIRAGE;BOULE1;BOULE2;BOULE3;BOULE4;BOULE5;BOULE6;"
    "BOULE_COMPLEMENTAIRE\r\n"
    "20010106;1;19;36;27;25;38;30;31\r\n"
    "20010103;1;13;10;24;36;35;1;2\r\n"
    "20010103;2;7;30;35;22;4;12;48\r\n";

/// The database page of a running program.
class DatabaseTabTest : public ScreenTest {
  protected:
    DatabaseTabTest() : window(start()) {}

    void press(int button) {
        auto &bar = control<QToolBar>(window, "tbarDB");
        auto &action = control<QAction>(window, ("tbarDB_" + std::to_string(button)).c_str());
        click(*bar.widgetForAction(&action));
    }
    void importThreeDraws() {
        writeBytes(file("histo.txt"), threeDraws);
        robot.chooseFile(file("histo.txt"));
        press(databasePage::importDraws);
        ASSERT_EQ(gDbCombs->Count(), 3);
    }
    ReportView &list() const { return control<ReportView>(window, "lvwDBcomb"); }
    void clickRow(int row) const {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          list().visualRect(list().model()->index(row - 1, 0)).center());
    }
    std::string rowText(int row) const {
        std::string text;
        for (int column = 0; column < list().model()->columnCount(); ++column)
            text += (column > 0 ? " " : "") +
                    list().model()->index(row - 1, column).data().toString().toStdString();
        return text;
    }
    std::string label(const char *name) const {
        return control<QLabel>(window, name).text().toStdString();
    }

    MainWindow &window;
};

TEST_F(DatabaseTabTest, TheToolbarHasItsCaptionsToolTipsAndIcons) {
    importThreeDraws();
    clickRow(1);
    const std::pair<const char *, const char *> buttons[] = {
        {"Importer", "Importer des tirages depuis un fichier texte de la française des jeux"},
        {"Ajouter", "Ajouter une combinaison à la base de données des tirages"},
        {"Modifier", "Modifier une combinaison de la base de données des tirages"},
        {"Supprimer", "Supprimer une combinaison de la base de données des tirages"},
        {"Imprimer", "Imprimer la base de données des tirages"},
        {"Exporter", "Exporter la base de données des tirages"},
    };
    auto &bar = control<QToolBar>(window, "tbarDB");
    EXPECT_EQ(bar.actions().size(), 6);
    EXPECT_EQ(bar.toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    int number = 0;
    for (const auto &[caption, toolTip] : buttons) {
        const auto &action =
            control<QAction>(window, ("tbarDB_" + std::to_string(++number)).c_str());
        EXPECT_EQ(action.text().remove(QLatin1Char('&')).toStdString(), caption);
        EXPECT_EQ(action.toolTip().toStdString(), toolTip);
        EXPECT_FALSE(action.icon().isNull());
        const auto &button =
            dynamic_cast<QToolButton &>(*bar.widgetForAction(const_cast<QAction *>(&action)));
        EXPECT_FALSE(QKeySequence::mnemonic(button.text()).isEmpty()) << caption;
    }
}

TEST_F(DatabaseTabTest, TheListHasTheColumnsOfADraw) {
    QStringList headers;
    for (int column = 0; column < list().model()->columnCount(); ++column)
        headers << list().model()->headerData(column, Qt::Horizontal).toString();
    EXPECT_EQ(headers.join(QLatin1Char(' ')).toStdString(), "Date T 1 2 3 4 5 6 C");
    EXPECT_EQ(list().model()->rowCount(), 0);
}

TEST_F(DatabaseTabTest, AnImportFillsTheListAndShowsTheLastDrawUnselected) {
    importThreeDraws();
    EXPECT_EQ(rowText(1), "03-01-2001 1 13 10 24 36 35 1 2");
    EXPECT_EQ(rowText(2), "03-01-2001 2 7 30 35 22 4 12 48");
    EXPECT_EQ(rowText(3), "06-01-2001 1 19 36 27 25 38 30 31");
    EXPECT_EQ(label("StatusBar_1"), "3 combinaisons dans la base de données");
    EXPECT_EQ(label("lblDBCombDesc"), "Tirage n° 1 du 06-01-2001");
    EXPECT_TRUE(mainWindow->database.grdDB.isSelected(19));
    EXPECT_TRUE(mainWindow->database.grdDB.isComplementary(31));
    EXPECT_EQ(list().selectedRows(), std::vector<std::int64_t>{});
    EXPECT_TRUE(fileExists(file("tirages.dbl")));
}

TEST_F(DatabaseTabTest, ACancelledImportChangesNothing) {
    importThreeDraws();
    robot.in("comDiag", [](QWidget &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    press(databasePage::importDraws);
    EXPECT_EQ(gDbCombs->Count(), 3);
    EXPECT_EQ(label("StatusBar_1"), "3 combinaisons dans la base de données");
}

TEST_F(DatabaseTabTest, AClickedRowIsShownOnTheBoard) {
    importThreeDraws();
    clickRow(2);
    EXPECT_EQ(label("lblDBCombDesc"), "Tirage n° 2 du 03-01-2001");
    EXPECT_TRUE(mainWindow->database.grdDB.isComplementary(48));
    EXPECT_EQ(mainWindow->database.getSelectedDraw(), 2);
    QTest::keyClick(&list(), Qt::Key_Up);
    EXPECT_EQ(label("lblDBCombDesc"), "Tirage n° 1 du 03-01-2001");
    EXPECT_EQ(mainWindow->database.getSelectedDraw(), 1);
}

TEST_F(DatabaseTabTest, ARowMarkedByTheRightButtonIsShownOnTheBoard) {
    importThreeDraws();
    clickRow(3);
    QTest::mouseClick(list().viewport(), Qt::RightButton, {},
                      list().visualRect(list().model()->index(1, 0)).center());
    EXPECT_EQ(mainWindow->database.getSelectedDraw(), 2);
    EXPECT_EQ(label("lblDBCombDesc"), "Tirage n° 2 du 03-01-2001");
    EXPECT_TRUE(mainWindow->database.grdDB.isComplementary(48));
}

TEST_F(DatabaseTabTest, TheBoardOnlyDisplays) {
    importThreeDraws();
    auto &board = control<NumberBoardView>(window, "grdDB");
    QTest::mouseClick(&board, Qt::LeftButton, {}, board.boxOf(1).center().toPoint());
    EXPECT_FALSE(mainWindow->database.grdDB.isSelected(1));
    EXPECT_EQ(mainWindow->database.grdDB.selectedCount(), 7);
}

TEST_F(DatabaseTabTest, TheBoardOfAnEmptyBaseTakesNoClicksEither) {
    auto &board = control<NumberBoardView>(window, "grdDB");
    QTest::mouseClick(&board, Qt::LeftButton, {}, board.boxOf(1).center().toPoint());
    EXPECT_EQ(mainWindow->database.grdDB.selectedCount(), 0);
}

TEST_F(DatabaseTabTest, ADrawIsAddedThroughTheTwoDialogs) {
    importThreeDraws();
    robot
        .in("frmNbrSelector",
            [](QWidget &dialog) {
                auto &board = control<NumberBoardView>(dialog, "grd");
                for (const char *number : {"6", "12", "18", "24", "30", "36", "42"}) {
                    QTest::keyClicks(&board, QString::fromLatin1(number));
                    QTest::keyClick(&board, Qt::Key_Space);
                }
                click(control<QPushButton>(dialog, "cmdOK"));
            })
        .in("frmSelDate", [](QWidget &dialog) {
            control<QCalendarWidget>(dialog, "mvwDate").setSelectedDate(QDate(2003, 11, 19));
            QTest::keyClick(&control<UpDownView>(dialog, "updTirage"), Qt::Key_Up);
            click(control<QPushButton>(dialog, "cmdOK"));
        });
    press(databasePage::enterDraw);
    EXPECT_EQ(rowText(4), "19-11-2003 2 6 12 18 24 30 36 42");
    EXPECT_EQ(label("lblDBCombDesc"), "Tirage n° 2 du 19-11-2003");
    EXPECT_EQ(list().selectedRows(), std::vector<std::int64_t>{});
    EXPECT_EQ(label("StatusBar_1"), "4 combinaisons dans la base de données");
}

TEST_F(DatabaseTabTest, TheSelectedDrawIsChanged) {
    importThreeDraws();
    clickRow(3);
    robot.clickIn("frmNbrSelector", "cmdOK").in("frmSelDate", [](QWidget &dialog) {
        control<QCalendarWidget>(dialog, "mvwDate").setSelectedDate(QDate(2000, 12, 30));
        click(control<QPushButton>(dialog, "cmdOK"));
    });
    press(databasePage::modifyDraw);
    EXPECT_EQ(rowText(1), "30-12-2000 1 19 36 27 25 38 30 31");
    EXPECT_EQ(list().model()->rowCount(), 3);
}

TEST_F(DatabaseTabTest, TheSelectedDrawIsDeletedByButtonAndByKey) {
    importThreeDraws();
    clickRow(1);
    press(databasePage::removeDraw);
    EXPECT_EQ(gDbCombs->Count(), 2);
    EXPECT_EQ(label("StatusBar_1"), "2 combinaisons dans la base de données");
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    clickRow(1);
    QTest::keyClick(&list(), Qt::Key_Delete);
    EXPECT_EQ(gDbCombs->Count(), 1);
    EXPECT_EQ(rowText(1), "06-01-2001 1 19 36 27 25 38 30 31");
}

TEST_F(DatabaseTabTest, WithoutASelectedRowNothingIsChangedOrDeleted) {
    importThreeDraws();
    press(databasePage::modifyDraw);
    press(databasePage::removeDraw);
    EXPECT_EQ(gDbCombs->Count(), 3);
}

TEST_F(DatabaseTabTest, AnImportThatFailsGivesTheWindowBack) {
    writeBytes(file("histo.txt"), threeDraws.substr(0, threeDraws.find("20010103")));
    robot.chooseFile(file("histo.txt")).in("messageBox", [](QWidget &box) {
        EXPECT_EQ(box.windowTitle().toStdString(), "Boulix Erreur système N° 9");
        click(*box.findChild<QAbstractButton *>());
    });
    press(databasePage::importDraws);
    EXPECT_TRUE(window.isEnabled());
    EXPECT_EQ(visibleWindow(QStringLiteral("frmProgress")), nullptr);
}

TEST_F(DatabaseTabTest, TheSampleHistoryComesInThroughTheRealDialog) {
    robot.chooseFile(sampleHistory().string());
    press(databasePage::importDraws);
    EXPECT_EQ(list().model()->rowCount(), 600);
    EXPECT_EQ(label("StatusBar_1"), "600 combinaisons dans la base de données");
}

TEST_F(DatabaseTabTest, WithoutASelectedDrawTheButtonsThatNeedOneAreOffAndSayWhy) {
    importThreeDraws();
    const auto &modify = control<QAction>(window, "tbarDB_3");
    const auto &remove = control<QAction>(window, "tbarDB_4");
    EXPECT_FALSE(modify.isEnabled());
    EXPECT_FALSE(remove.isEnabled());
    EXPECT_EQ(remove.toolTip().toStdString(),
              "Supprimer une combinaison de la base de données des tirages\n"
              "Choisissez d'abord un tirage dans la liste.");
    clickRow(2);
    EXPECT_TRUE(modify.isEnabled());
    press(databasePage::removeDraw);
    EXPECT_FALSE(remove.isEnabled());
    EXPECT_TRUE(control<QAction>(window, "tbarDB_6").isEnabled());
}

/// The base of the sample history: more draws than the list can show at once.
class DatabaseSearchTest : public DatabaseTabTest {
  protected:
    DatabaseSearchTest() : line(control<QLineEdit>(window, "txtFind")) {
        robot.chooseFile(sampleHistory().string());
        press(databasePage::importDraws);
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    bool isInSight(std::int64_t row) const {
        const QRect place = list().visualRect(list().model()->index(static_cast<int>(row) - 1, 0));
        return list().viewport()->rect().contains(QPoint(1, place.center().y()));
    }
    std::string dateOf(std::int64_t row) const {
        return mainWindow->database.lvwDBcomb.text(row - 1, 0);
    }

    QLineEdit &line;
};

TEST_F(DatabaseSearchTest, TheListOpensAtTheNewestDrawWithoutSelectingIt) {
    EXPECT_TRUE(isInSight(600));
    EXPECT_FALSE(isInSight(1));
    EXPECT_TRUE(mainWindow->database.lvwDBcomb.isPointedAt(599));
    EXPECT_EQ(list().selectedRows(), std::vector<std::int64_t>{});
}

TEST_F(DatabaseSearchTest, ControlFLeadsIntoTheLineAndEscapeBackToTheList) {
    list().setFocus();
    QTest::keySequence(&window, QKeySequence(QKeySequence::Find));
    EXPECT_TRUE(line.hasFocus());
    QTest::keyClicks(&line, QStringLiteral("7 13"));
    EXPECT_NE(label("lblFound"), "");
    QTest::keyClick(&line, Qt::Key_Escape);
    EXPECT_TRUE(list().hasFocus());
    EXPECT_EQ(line.text().toStdString(), "");
    EXPECT_EQ(label("lblFound"), "");
}

TEST_F(DatabaseSearchTest, ADateTypedInTheListJumpsToItsDraw) {
    const std::int64_t wanted = 20;
    list().setFocus();
    const QString date = QString::fromStdString(dateOf(wanted));
    QTest::keyClicks(&list(), date.left(1));
    EXPECT_TRUE(line.hasFocus());
    QTest::keyClicks(&line, date.mid(1));
    EXPECT_EQ(line.text(), date);
    const std::vector<std::int64_t> rows = list().selectedRows();
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(dateOf(rows.front()), date.toStdString());
    EXPECT_TRUE(isInSight(rows.front()));
    EXPECT_EQ(mainWindow->database.shownDraw(), rows.front());
}

TEST_F(DatabaseSearchTest, ReturnAndF3GoFromOneDrawFoundToTheNext) {
    QTest::keyClicks(&line, QStringLiteral("7"));
    const std::vector<std::int32_t> found = mainWindow->database.finder.found();
    ASSERT_GT(found.size(), 3U);
    const auto at = [&](std::size_t fromNewest) { return found[found.size() - 1 - fromNewest]; };
    EXPECT_EQ(mainWindow->database.getSelectedDraw(), at(0));
    line.setFocus();
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(mainWindow->database.getSelectedDraw(), at(1));
    QTest::keySequence(&window, QKeySequence(Qt::Key_F3));
    EXPECT_EQ(mainWindow->database.getSelectedDraw(), at(2));
    QTest::keySequence(&window, QKeySequence(Qt::SHIFT | Qt::Key_F3));
    EXPECT_EQ(mainWindow->database.getSelectedDraw(), at(1));
    QTest::keyClick(&line, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(mainWindow->database.getSelectedDraw(), at(0));
    click(control<QToolButton>(window, "cmdFindNext"));
    EXPECT_EQ(mainWindow->database.getSelectedDraw(), at(1));
    EXPECT_TRUE(isInSight(at(1)));
}

TEST_F(DatabaseSearchTest, TheArrowsOfTheLineGoOnInTheList) {
    QTest::keyClicks(&line, QStringLiteral("7"));
    const std::int32_t found = mainWindow->database.getSelectedDraw();
    QTest::keyClick(&line, Qt::Key_Up);
    EXPECT_EQ(mainWindow->database.getSelectedDraw(), found - 1);
    EXPECT_TRUE(list().hasFocus());
    EXPECT_EQ(line.text().toStdString(), "7");
}

} // namespace
} // namespace boulix
