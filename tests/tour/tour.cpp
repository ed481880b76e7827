// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tour/tour.h"

#include "core/text.h"
#include "support/locations.h"
#include "ui/widgets/numberBoardView.h"
#include "ui/widgets/reportView.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QtTest/QTest>

#include <cstdio>
#include <filesystem>

namespace boulix {

namespace {

constexpr int settleMilliseconds = 150; // until windows are mapped, framed and painted

/// The part of the screen that the program's windows take, with their frames.
QRect windowsOnScreen() {
    QRect area;
    for (const QWidget *window : QApplication::topLevelWidgets())
        if (window->isVisible())
            area |= window->frameGeometry();
    return area;
}

} // namespace

Tour::Tour() {
    std::filesystem::remove(file("defrapp.rap")); // the evening begins with nothing
    platform.day = dateOf({2003, 11, 19});
    platform.shortForm = longDate; // the player's system is a French one
    pdfPrinters_.printed = [this](const QString &fileName) { keepDocument(fileName); };
    setPrinterSystem(&pdfPrinters_);
    setPrintWindows(&printWindows_);
}

void Tour::startProgram() {
    start();
    QTest::qWait(settleMilliseconds);
}

void Tour::endProgram() {
    forget();
}

void Tour::picture(const char *name) {
    for (QWidget *window : QApplication::topLevelWidgets())
        EXPECT_TRUE(!window->isVisible() || QTest::qWaitForWindowExposed(window));
    QTest::qWait(settleMilliseconds);
    const QRect area = windowsOnScreen();
    QScreen *screen = QGuiApplication::primaryScreen();
    const QPixmap seen = screen->grabWindow(0, area.x(), area.y(), area.width(), area.height());
    const auto path = testing_support::picturesFolder() / (nextName(name) + ".png");
    EXPECT_TRUE(seen.save(QString::fromStdString(path.string()))) << path;
}

std::string Tour::nextName(const char *name) {
    const std::string numbered = zeroPadded(++pictures_, 2) + "-" + name;
    std::printf("   %s\n", numbered.c_str());
    std::fflush(stdout);
    return numbered;
}

void Tour::keepDocument(const QString &fileName) {
    if (!documentName_) {
        ADD_FAILURE() << "a document was printed that nobody waited for";
        return;
    }
    const auto path = testing_support::picturesFolder() / nextName(documentName_);
    documentName_ = nullptr;
    const QString kept = QString::fromStdString(path.string());
    QFile::remove(kept + QStringLiteral(".pdf")); // of an evening before
    EXPECT_TRUE(QFile::copy(fileName, kept + QStringLiteral(".pdf")));
    EXPECT_EQ(
        QProcess::execute(QStringLiteral("pdftoppm"),
                          {QStringLiteral("-png"), QStringLiteral("-r"), QStringLiteral("80"),
                           QStringLiteral("-singlefile"), kept + QStringLiteral(".pdf"), kept}),
        0);
}

void Tour::turnTo(const char *tabs, int index) {
    if (auto *pages = window().findChild<QTabWidget *>(QString::fromLatin1(tabs)))
        return pages->setCurrentIndex(index);
    control<QTabBar>(window(), tabs).setCurrentIndex(index);
}

void Tour::type(const QWidget &window, const std::string &box, const char *text) {
    auto &edit = control<QLineEdit>(window, box.c_str());
    edit.activateWindow(); // the window manager takes its time behind a dialog
    EXPECT_TRUE(QTest::qWaitForWindowActive(edit.window()));
    edit.setFocus();
    edit.selectAll();
    QTest::keyClicks(&edit, QString::fromLatin1(text));
}

void Tour::press(const char *action) {
    auto &button = control<QAction>(window(), action);
    for (QToolBar *bar : window().findChildren<QToolBar *>())
        if (bar->actions().contains(&button))
            return click(*bar->widgetForAction(&button));
    ADD_FAILURE() << action << " is on no toolbar";
}

void Tour::clickRow(ReportView &list, int row) {
    const QModelIndex index = list.model()->index(row - 1, 0);
    list.scrollTo(index);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
}

void Tour::clickNumbers(NumberBoardView &board, std::initializer_list<std::int16_t> numbers) {
    for (const std::int16_t n : numbers)
        QTest::mouseClick(&board, Qt::LeftButton, {}, board.boxOf(n).center().toPoint());
}

std::string Tour::rowText(const ReportView &list, int row) {
    QStringList cells;
    for (int column = 0; column < list.model()->columnCount(); ++column)
        cells << list.model()->index(row - 1, column).data().toString();
    return cells.join(QLatin1Char(' ')).toStdString();
}

std::string Tour::label(const char *name) const {
    return control<QLabel>(window(), name).text().toStdString();
}

ReportView &Tour::list(const char *name) const {
    return control<ReportView>(window(), name);
}

} // namespace boulix
