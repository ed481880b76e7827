// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "support/locations.h"
#include "ui/support/screenTest.h"
#include "ui/widgets/reportView.h"
#include "workbench/databasePage.h"

#include <QAction>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QToolBar>
#include <QtTest/QTest>

#include <cstdlib>

namespace boulix {
namespace {

using testing_support::checkoutFolder;
using testing_support::operatorHistory;
using testing_support::readBytes;
using testing_support::writeBytes;

constexpr std::size_t slotBytes = 128;
constexpr std::size_t lastSlotBytes = 28; // a file ends with the last field of its last draw

/// The program in a real window, with a window manager around it, on a French system.
class RealWindowTest : public ScreenTest {
  protected:
    RealWindowTest() { platform.shortForm = longDate; }

    void import(const std::string &fullName) {
        robot.chooseFile(fullName);
        pressImport();
    }
    void pressImport() {
        MainWindow &window = mainWindowOnScreen();
        auto &bar = control<QToolBar>(window, "tbarDB");
        click(*bar.widgetForAction(&control<QAction>(window, "tbarDB_1")));
    }
    std::string rowText(int row) const {
        const auto *model = control<ReportView>(mainWindowOnScreen(), "lvwDBcomb").model();
        QStringList cells;
        for (int column = 0; column < model->columnCount(); ++column)
            cells << model->index(row - 1, column).data().toString();
        return cells.join(QLatin1Char(' ')).toStdString();
    }
    std::string label(const char *name) const {
        return control<QLabel>(mainWindowOnScreen(), name).text().toStdString();
    }
    void expectTheWholeHistory() const {
        EXPECT_EQ(gDbCombs->Count(), 4858);
        EXPECT_EQ(control<ReportView>(mainWindowOnScreen(), "lvwDBcomb").model()->rowCount(), 4858);
        EXPECT_EQ(rowText(1), "19/05/1976 1 31 15 33 27 36 48 34");
        EXPECT_EQ(rowText(4858), "04/10/2008 2 33 32 42 16 15 49 37");
        EXPECT_EQ(label("lblDBCombDesc"), "Tirage n° 2 du 04/10/2008");
        EXPECT_EQ(label("StatusBar_1"), "4858 combinaisons dans la base de données");
        EXPECT_EQ(readBytes(file("tirages.dbl")).size(), 4858 * slotBytes + lastSlotBytes);
    }
    /// For the documentation, when somebody asks for it.
    static void keepPicture(QWidget &window, const char *name) {
        if (!std::getenv("BOULIX_KEEP_PICTURES"))
            return;
        QTest::qWait(200);
        const auto path = checkoutFolder() / "docs" / name;
        EXPECT_TRUE(window.grab().save(QString::fromStdString(path.string()))) << path;
    }
};

TEST_F(RealWindowTest, TheOperatorsHistoryIsImportedImportedAgainAndThereAfterARestart) {
    const auto history = operatorHistory();
    if (!history)
        GTEST_SKIP() << "the operator's history is not here";
    start();
    import(history->string());
    expectTheWholeHistory();
    keepPicture(mainWindowOnScreen(), "fenetre-principale.png");

    import(history->string());
    expectTheWholeHistory();

    forget();
    start();
    expectTheWholeHistory();
    for (const dbComb &draw : *gDbCombs) {
        int sum = 0;
        for (int i = 1; i <= lotoComb::size; ++i)
            sum += draw.comb().num(i);
        ASSERT_EQ(draw.comb().sum(), sum);
        ASSERT_EQ(draw.comb().sumtot(), sum + draw.comb().compl_());
    }
}

/// A history of `lines` draws that never took place.
std::string madeHistory(int lines) {
    std::string text = "DATE_DE_TIRAGE;1ER_OU_2EME_TIRAGE;BOULE1;BOULE2;BOULE3;BOULE4;BOULE5;"
                       "BOULE6;BOULE_COMPLEMENTAIRE\r\n";
    for (int i = 0; i < lines; ++i) {
        const int day = i / 2;
        const int year = 1000 + day / 336;
        const int month = 1 + day / 28 % 12;
        text += std::to_string(year * 10000 + month * 100 + day % 28 + 1) + ";" +
                std::to_string(i % 2 + 1) + ";1;2;3;4;5;6;7\r\n";
    }
    return text;
}

TEST_F(RealWindowTest, ALongImportShowsItsProgressAndIsCancelledAtOnce) {
    start();
    writeBytes(file("longue.txt"), madeHistory(3'000'000));
    const std::string baseBefore = readBytes(file("tirages.dbl"));
    QElapsedTimer sinceClick;
    robot.chooseFile(file("longue.txt")).in("frmProgress", [&](QWidget &progress) {
        EXPECT_FALSE(mainWindowOnScreen().isEnabled());
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&progress));
        sinceClick.start();
        click(control<QPushButton>(progress, "cmdCancel"));
    });
    pressImport();
    ASSERT_TRUE(sinceClick.isValid()) << "the import was over before its window came";
    EXPECT_LT(sinceClick.elapsed(), 1000);
    EXPECT_TRUE(mainWindowOnScreen().isEnabled());
    EXPECT_TRUE(mainWindowOnScreen().isActiveWindow() ||
                QTest::qWaitForWindowActive(&mainWindowOnScreen()));
    EXPECT_EQ(label("StatusBar_1"), "0 combinaisons dans la base de données");
    EXPECT_EQ(readBytes(file("tirages.dbl")), baseBefore);
}

} // namespace
} // namespace boulix
