// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Keys that work wherever the user is, and how they are told.

#include "core/globals.h"
#include "stats/frmGraph.h"
#include "support/files.h"
#include "support/locations.h"
#include "support/lottery.h"
#include "ui/frame/helpHere.h"
#include "ui/stats/graphWindow.h"
#include "ui/stats/plotView.h"
#include "ui/support/screenTest.h"
#include "ui/widgets/toolbar.h"
#include "workbench/frmMain.h"

#include <QAction>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTreeView>
#include <QtTest/QTest>

#include <filesystem>

namespace boulix {
namespace {

class KeysTest : public ScreenTest {
  protected:
    KeysTest() { std::filesystem::copy(testing_support::checkoutFolder() / "help", file("help")); }
    MainWindow &active() {
        MainWindow &window = start();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        return window;
    }
    static std::string helpPage() {
        QWidget *help = visibleWindow(QStringLiteral("frmHelp"));
        return help ? control<QTextBrowser>(*help, "txtHelp").source().fileName().toStdString()
                    : "no help";
    }
};

TEST_F(KeysTest, F1OpensThePageOfThePlace) {
    MainWindow &window = active();
    const std::vector<std::pair<int, const char *>> pages = {
        {0, "base.html"},         {1, "statistiques.html"}, {2, "analyse.html"},
        {3, "eliminateurs.html"}, {4, "jeux.html"},         {5, "pronostiques.html"}};
    for (const auto &[page, name] : pages) {
        control<QTabWidget>(window, "TabStrip").setCurrentIndex(page);
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&window, Qt::Key_F1);
        EXPECT_EQ(helpPage(), name);
    }
}

TEST_F(KeysTest, F1WorksInADialogWhoseHelpCanBeUsedAndLeftByEscape) {
    MainWindow &window = active();
    robot.in("frmGridParam", [](QWidget &dialog) {
        dialog.activateWindow();
        QTest::keyClick(&control<QLineEdit>(dialog, "txtUnit"), Qt::Key_F1);
        EXPECT_EQ(helpPage(), "impression.html");
        QWidget *help = visibleWindow(QStringLiteral("frmHelp"));
        EXPECT_EQ(help->parentWidget(), &dialog);
        help->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(help));
        QTest::keyClick(help, Qt::Key_Escape);
        EXPECT_EQ(helpPage(), "no help");
        EXPECT_TRUE(dialog.isVisible());
        dialog.close();
    });
    control<QAction>(window, "mnuGrid").trigger();
    robot.finish();
}

TEST_F(KeysTest, ThePageOfTheKeysIsInTheMenu) {
    MainWindow &window = active();
    control<QAction>(window, "mnuKeys").trigger();
    EXPECT_EQ(helpPage(), "touches.html");
}

TEST_F(KeysTest, TheToolTipsEndWithTheirKeys) {
    MainWindow &window = active();
    EXPECT_EQ(toolTipWithKey(control<QAction>(window, "tbarDB_1")).toStdString(),
              "Importer des tirages depuis un fichier texte de la française des jeux (Ctrl+I)");
    EXPECT_EQ(toolTipWithKey(control<QAction>(window, "tbarStats_6")).toStdString(),
              "Effacer la liste des numéros sélectionnés");
}

TEST_F(KeysTest, TheGraphIsZoomedAndLeftByKeys) {
    frmGraph rules;
    rules.plot.addCurve({1, 2, 3}, {10, 20, 30});
    const PlotRange all = rules.plot.range();
    GraphWindow graph(rules);
    graph.show();
    graph.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&graph));
    QWidget *plot = graph.focusWidget();
    EXPECT_EQ(plot->objectName(), QStringLiteral("PlotPane"));
    QTest::keyClick(plot, Qt::Key_Plus);
    EXPECT_GT(rules.plot.xMin(), all.xMin);
    EXPECT_LT(rules.plot.yMax(), all.yMax);
    const PlotRange near = rules.plot.range();
    QTest::keyClick(plot, Qt::Key_Right);
    QTest::keyClick(plot, Qt::Key_Up);
    EXPECT_GT(rules.plot.xMin(), near.xMin);
    EXPECT_GT(rules.plot.yMin(), near.yMin);
    QTest::keyClick(plot, Qt::Key_Home);
    EXPECT_EQ(rules.plot.range(), all);
    QTest::keyClick(plot, Qt::Key_Escape);
    EXPECT_FALSE(graph.isVisible());
}

TEST_F(KeysTest, TheFileDialogSpeaksFrench) {
    std::filesystem::create_directory(file("dossier"));
    testing_support::writeBytes(file("a.lst"), "");
    robot.in("comDiag", [](QWidget &dialog) {
        auto *model = dialog.findChild<QFileSystemModel *>();
        const auto kind = [&](const std::string &name) {
            return model->type(model->index(QString::fromStdString(name))).toStdString();
        };
        EXPECT_EQ(kind(static_cast<QFileDialog &>(dialog).directory().path().toStdString()),
                  "Dossier");
        EXPECT_EQ(kind(static_cast<QFileDialog &>(dialog)
                           .directory()
                           .filePath(QStringLiteral("a.lst"))
                           .toStdString()),
                  "Fichier lst");
        dialog.close();
    });
    desktop->openFile({"Tous (*.*)|*.*", "Ouvrir", platform.applicationFolder()});
}

} // namespace
} // namespace boulix
