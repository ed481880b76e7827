// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/frmProgress.h"
#include "ui/support/screenTest.h"
#include "ui/widgets/reportView.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QtTest/QTest>

#include <thread>

namespace boulix {
namespace {

/// The program while a long job runs.
class ProgressWindowTest : public ScreenTest {
  protected:
    /// Lets the job take long enough for its window to appear.
    QWidget *letItAppear() {
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < 600) {
            desktop->runEvents();
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
        return visibleWindow(QStringLiteral("frmProgress"));
    }
};

TEST_F(ProgressWindowTest, TheMainWindowIsDisabledUntilTheJobEndsByAnyPath) {
    MainWindow &window = start();
    {
        const ProgressShown progress("Calcul", "Lecture");
        EXPECT_FALSE(window.isEnabled());
    }
    EXPECT_TRUE(window.isEnabled());
    try {
        const ProgressShown progress("Calcul", "Lecture");
        throw std::runtime_error("the job fails");
    } catch (const std::runtime_error &) {
    }
    EXPECT_TRUE(window.isEnabled());
    EXPECT_EQ(visibleWindow(QStringLiteral("frmProgress")), nullptr);
}

TEST_F(ProgressWindowTest, TheDisabledMainWindowTakesNoClicksAndDoesNotClose) {
    MainWindow &window = start();
    ProgressShown progress("Calcul", "Lecture");
    click(*window.menuBar());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    progress.unload();
}

TEST_F(ProgressWindowTest, TheFocusReturnsToWhereItWas) {
    MainWindow &window = start();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto &list = control<ReportView>(window, "lvwDBcomb");
    list.setFocus();
    { const ProgressShown progress("Calcul", "Lecture"); }
    EXPECT_TRUE(list.hasFocus());
}

TEST_F(ProgressWindowTest, ItShowsWhatTheJobTells) {
    start();
    ProgressShown progress("Importation", "Ligne 1\r\nde 2");
    QWidget *window = letItAppear();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->windowTitle().toStdString(), "Importation");
    EXPECT_EQ(control<QLabel>(*window, "lblInfo").text().toStdString(), "Ligne 1\nde 2");
    EXPECT_FALSE(control<QProgressBar>(*window, "ProgressBar2").isVisible());
    EXPECT_TRUE(control<QProgressBar>(*window, "ProgressBar").isVisible());

    progress->ProgressBar2.visible = true;
    progress->ProgressBar2.range(0, 4);
    progress->ProgressBar2.value = 1;
    progress->ProgressBar.range(0, 13'983'816);
    progress->ProgressBar.value = 13'983'816 / 2;
    progress->lblInfo = "Tri";
    letItAppear();
    const auto part = [&](const char *name) {
        const auto &bar = control<QProgressBar>(*window, name);
        return bar.value() * 100 / (bar.maximum() - bar.minimum());
    };
    EXPECT_TRUE(control<QProgressBar>(*window, "ProgressBar2").isVisible());
    EXPECT_EQ(part("ProgressBar2"), 25);
    EXPECT_EQ(part("ProgressBar"), 50);
    EXPECT_EQ(control<QLabel>(*window, "lblInfo").text().toStdString(), "Tri");
}

TEST_F(ProgressWindowTest, ABarWithoutARangeStaysAtItsStart) {
    ProgressShown progress("Calcul", "");
    progress->ProgressBar.range(0, 0);
    QWidget *window = letItAppear();
    EXPECT_EQ(control<QProgressBar>(*window, "ProgressBar").value(), 0);
}

TEST_F(ProgressWindowTest, ItsButtonItsCloseBoxAndEscapeCancelTheJob) {
    const std::vector<std::function<void(QWidget &)>> ways = {
        [](QWidget &window) { click(control<QPushButton>(window, "cmdCancel")); },
        [](QWidget &window) { window.close(); },
        [](QWidget &window) { QTest::keyClick(&window, Qt::Key_Escape); },
    };
    for (const auto &way : ways) {
        start();
        ProgressShown progress("Calcul", "");
        QWidget *window = letItAppear();
        ASSERT_NE(window, nullptr);
        EXPECT_FALSE(progress->cancelled());
        way(*window);
        EXPECT_TRUE(progress->cancelled());
        EXPECT_TRUE(window->isVisible()) << "it stays until the job has seen the click";
        EXPECT_FALSE(control<QPushButton>(*window, "cmdCancel").isEnabled());
    }
}

TEST_F(ProgressWindowTest, AJobWithoutCancelShowsNoButtonAndGoesOn) {
    ProgressShown progress("Calcul", "");
    progress->cancelVisible = false;
    QWidget *window = letItAppear();
    EXPECT_FALSE(control<QPushButton>(*window, "cmdCancel").isVisible());
    window->close();
    EXPECT_FALSE(progress->cancelled());
}

TEST_F(ProgressWindowTest, AShortJobShowsNoWindow) {
    start();
    const ProgressShown progress("Calcul", "");
    desktop->runEvents();
    EXPECT_EQ(visibleWindow(QStringLiteral("frmProgress")), nullptr);
}

TEST_F(ProgressWindowTest, AMessageDuringAJobCanBeAnswered) {
    start();
    const ProgressShown progress("Calcul", "");
    robot.box("Attention", "boulix", QMessageBox::Information);
    desktop->showMessage("Attention", Icon::information, "boulix");
}

TEST_F(ProgressWindowTest, AMillionTurnsOfTheEventQueueCostLittle) {
    start();
    const ProgressShown progress("Calcul", "");
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 1'000'000; ++i)
        desktop->runEvents();
    EXPECT_LT(clock.elapsed(), 1500);
}

} // namespace
} // namespace boulix
