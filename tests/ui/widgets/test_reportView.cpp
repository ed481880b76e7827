// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/failure.h"
#include "sill/reportList.h"
#include "ui/widgets/reportListModel.h"
#include "ui/widgets/reportView.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace boulix {
namespace {

constexpr std::int64_t allGrids = 13'983'816;

std::string cell(std::int64_t row, int column) {
    return std::to_string((row * 7 + column * 3) % 10);
}

/// A list of ten rows: 0 7 4 1 8 5 2 9 6 3 in its first column.
class ReportViewTest : public ::testing::Test {
  protected:
    ReportViewTest() {
        list.columns({{"Date", " 00/00/0000 ", false}, {"N", " 000 ", true}});
        list.rows(10, cell);
    }
    ReportView &show() {
        view = std::make_unique<ReportView>(list);
        view->resize(view->fullWidth(), 200);
        view->show();
        return *view;
    }
    QPoint middleOf(int row) const {
        return view->visualRect(view->model()->index(row, 0)).center();
    }
    void clickRow(int row) {
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, middleOf(row));
    }
    static std::string copied() { return QApplication::clipboard()->text().toStdString(); }

    reportList list;
    std::unique_ptr<ReportView> view;
};

using Rows = std::vector<std::int64_t>;

TEST_F(ReportViewTest, TheModelKeepsTheRulesOfQtThroughAllChangesOfTheList) {
    ReportListModel model(list);
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    list.sortByText(0);
    list.rows(3, cell);
    list.clear();
    list.columns({{"A", "", false}});
    list.rows(allGrids, cell);
    EXPECT_EQ(model.rowCount(), allGrids);
    EXPECT_EQ(model.columnCount(), 1);
}

TEST_F(ReportViewTest, TheModelShowsTheTextsAndTheirAlignment) {
    const ReportListModel model(list);
    EXPECT_EQ(model.index(1, 0).data().toString().toStdString(), "7");
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString().toStdString(), "N");
    EXPECT_EQ(model.index(0, 0).data(Qt::TextAlignmentRole).toInt(),
              int(Qt::AlignLeft | Qt::AlignVCenter));
    EXPECT_EQ(model.index(0, 1).data(Qt::TextAlignmentRole).toInt(),
              int(Qt::AlignHCenter | Qt::AlignVCenter));
}

TEST_F(ReportViewTest, ACellThatFailsIsDrawnEmpty) {
    list.rows(1, [](std::int64_t, int) -> std::string { fail(Failure::overflow); });
    const ReportListModel model(list);
    EXPECT_EQ(model.index(0, 0).data().toString().toStdString(), "");
    show().grab();
}

TEST_F(ReportViewTest, AClickSelectsTheRowAndTellsIt) {
    show();
    QSignalSpy told(view.get(), &ReportView::rowClicked);
    clickRow(4);
    EXPECT_EQ(view->selectedRows(), Rows{5});
    clickRow(4);
    ASSERT_EQ(told.size(), 2);
    EXPECT_EQ(told[0][0].toLongLong(), 5);
    EXPECT_EQ(told[1][0].toLongLong(), 5);
}

TEST_F(ReportViewTest, AClickBehindTheLastColumnStillMeansTheRow) {
    show().resize(view->fullWidth() + 200, 200);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      QPoint(view->viewport()->width() - 3, middleOf(2).y()));
    EXPECT_EQ(view->selectedRows(), Rows{3});
}

TEST_F(ReportViewTest, AClickBelowTheLastRowSelectsNothing) {
    show().resize(view->fullWidth(), 600);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(10, 590));
    EXPECT_EQ(view->selectedRows(), Rows{});
}

TEST_F(ReportViewTest, TheKeysMoveTheSelectionAndTellTheRow) {
    show();
    QSignalSpy told(view.get(), &ReportView::rowClicked);
    const std::vector<std::pair<Qt::Key, Rows>> steps = {
        {Qt::Key_Down, {1}}, {Qt::Key_Down, {2}},     {Qt::Key_End, {10}},   {Qt::Key_Up, {9}},
        {Qt::Key_Home, {1}}, {Qt::Key_PageDown, {8}}, {Qt::Key_PageUp, {1}},
    };
    view->resize(view->width(), view->header()->height() + 7 * view->rowHeight() + 6);
    for (const auto &[key, rows] : steps) {
        QTest::keyClick(view.get(), key);
        EXPECT_EQ(view->selectedRows(), rows) << "key " << key;
    }
    EXPECT_EQ(told.size(), static_cast<qsizetype>(steps.size()));
}

TEST_F(ReportViewTest, WhicheverButtonMarksARowTheRowIsTold) {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        show();
        clickRow(1);
        QSignalSpy told(view.get(), &ReportView::rowClicked);
        QTest::mouseClick(view->viewport(), button, {}, middleOf(4));
        EXPECT_EQ(view->selectedRows(), Rows{5}) << button;
        ASSERT_EQ(told.size(), 1) << button;
        EXPECT_EQ(told[0][0].toLongLong(), 5) << button;
    }
}

TEST_F(ReportViewTest, RowsArePickedByAClickBySpaceAndByReturnAndByNothingElse) {
    list.rows(1000, cell);
    show().setSelectionMode(QAbstractItemView::ExtendedSelection);
    QSignalSpy picked(view.get(), &ReportView::rowsPicked);
    clickRow(3);
    EXPECT_EQ(picked.size(), 1);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        picked.clear();
        QTest::keyClick(view.get(), key);
        EXPECT_EQ(picked.size(), 1) << key;
    }
    picked.clear();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp,
                              Qt::Key_End, Qt::Key_Home, Qt::Key_Left, Qt::Key_5, Qt::Key_X}) {
        QTest::keyClick(view.get(), key);
        QTest::keyClick(view.get(), key, Qt::ShiftModifier);
        QTest::keyClick(view.get(), key, Qt::ControlModifier);
    }
    QTest::keyClick(view.get(), Qt::Key_A, Qt::ControlModifier);
    QTest::mouseClick(view->viewport(), Qt::RightButton, {}, middleOf(2));
    QScrollBar &bar = *view->verticalScrollBar();
    QTest::mousePress(&bar, Qt::LeftButton, {}, bar.rect().center());
    QTest::mouseMove(&bar, bar.rect().center() + QPoint(0, 30));
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, bar.rect().center() + QPoint(0, 30));
    QTest::mouseClick(view->header()->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(picked.size(), 0);
}

TEST_F(ReportViewTest, RowsDrawnTogetherArePickedWhenTheButtonComesUp) {
    show().setSelectionMode(QAbstractItemView::ExtendedSelection);
    std::vector<Rows> picked;
    QObject::connect(view.get(), &ReportView::rowsPicked, view.get(),
                     [&] { picked.push_back(view->selectedRows()); });
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, middleOf(1));
    QMouseEvent drag(QEvent::MouseMove, middleOf(3), view->viewport()->mapToGlobal(middleOf(3)),
                     Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view->viewport(), &drag);
    EXPECT_TRUE(picked.empty());
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, middleOf(3));
    EXPECT_EQ(picked, (std::vector<Rows>{{2, 3, 4}}));
}

TEST_F(ReportViewTest, AKeyThatDoesNotMoveTellsNothing) {
    show();
    QTest::keyClick(view.get(), Qt::Key_Down);
    QSignalSpy told(view.get(), &ReportView::rowClicked);
    QTest::keyClick(view.get(), Qt::Key_Up);
    QTest::keyClick(view.get(), Qt::Key_Home);
    EXPECT_EQ(told.size(), 0);
}

TEST_F(ReportViewTest, NewRowsAreNotSelectedAndThePlaceInTheListStays) {
    list.rows(1000, cell);
    show();
    view->verticalScrollBar()->setValue(500);
    clickRow(503);
    list.rows(999, cell);
    EXPECT_EQ(view->selectedRows(), Rows{});
    EXPECT_FALSE(view->currentIndex().isValid());
    EXPECT_EQ(view->verticalScrollBar()->value(), 500);
    list.clear();
    EXPECT_EQ(view->verticalScrollBar()->value(), 0);
    list.rows(998, cell);
    EXPECT_EQ(view->verticalScrollBar()->value(), 500);
}

TEST_F(ReportViewTest, NewColumnsBeginAtTheTop) {
    list.rows(1000, cell);
    show();
    view->verticalScrollBar()->setValue(500);
    list.columns({{"Autre", "", false}});
    list.rows(1000, cell);
    EXPECT_EQ(view->verticalScrollBar()->value(), 0);
}

TEST_F(ReportViewTest, CtrlCCopiesTheSelectedRowWithTabs) {
    show();
    view->activateWindow();
    view->setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
    clickRow(1);
    QTest::keyClick(view.get(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copied(), "7\t0\n");
}

TEST_F(ReportViewTest, SeveralSelectedRowsAreCopiedFromTopToBottom) {
    show().setSelectionMode(QAbstractItemView::ExtendedSelection);
    clickRow(3);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ControlModifier, middleOf(1));
    EXPECT_EQ(view->selectedRows(), (Rows{2, 4}));
    view->findChild<QAction *>(QStringLiteral("copySelected"))->trigger();
    EXPECT_EQ(copied(), "7\t0\n1\t4\n");
}

TEST_F(ReportViewTest, ARangeReachesBeyondWhatIsVisibleDownAndUp) {
    list.rows(1000, cell);
    show().setSelectionMode(QAbstractItemView::ExtendedSelection);
    clickRow(2);
    QTest::keyClick(view.get(), Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(view->selectedRows().size(), 998U);
    EXPECT_EQ(view->selectedRows().front(), 3);
    QTest::keyClick(view.get(), Qt::Key_Up);
    EXPECT_EQ(view->selectedRows(), Rows{999});
    QTest::keyClick(view.get(), Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(view->selectedRows().size(), 999U);
}

/// The list of this test with check marks, which `marked` holds by row.
class CheckedRows : public ReportViewTest {
  protected:
    CheckedRows() {
        show().setChecks({[this](std::int64_t row) { return marked[place(row)]; },
                          [this](std::int64_t row, bool on) { marked[place(row)] = on; }});
    }
    static std::size_t place(std::int64_t row) { return static_cast<std::size_t>(row); }
    void clickMark(int row) {
        const QRect cell = view->visualRect(view->model()->index(row, 0));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                          QPoint(cell.left() + 14, cell.center().y()));
    }
    std::array<bool, 10> marked{};
};

TEST_F(CheckedRows, AClickOnTheMarkTurnsItOnAndOff) {
    clickMark(3);
    EXPECT_EQ(marked, (std::array<bool, 10>{false, false, false, true}));
    clickMark(3);
    EXPECT_EQ(marked, (std::array<bool, 10>{}));
}

TEST_F(CheckedRows, AClickBesideTheMarkSelectsTheRowOnly) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      view->visualRect(view->model()->index(3, 1)).center());
    EXPECT_EQ(view->selectedRows(), Rows{4});
    EXPECT_EQ(marked, (std::array<bool, 10>{}));
}

TEST_F(CheckedRows, TheSpaceBarTurnsTheMarkOfTheCurrentRowWhereverItWasClicked) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      view->visualRect(view->model()->index(2, 1)).center());
    QTest::keyClick(view.get(), Qt::Key_Space);
    EXPECT_TRUE(marked[2]);
    EXPECT_EQ(view->selectedRows(), Rows{3});
    QTest::keyClick(view.get(), Qt::Key_Space);
    EXPECT_FALSE(marked[2]);
}

TEST_F(CheckedRows, TheModelKeepsTheRulesOfQtAndMarksTheFirstColumnOnly) {
    const QAbstractItemModelTester tester(view->model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    list.sortByText(0);
    EXPECT_TRUE(view->model()->index(0, 0).data(Qt::CheckStateRole).isValid());
    EXPECT_FALSE(view->model()->index(0, 1).data(Qt::CheckStateRole).isValid());
}

TEST_F(ReportViewTest, TheWholeListIsCopiedWithItsHeader) {
    list.rows(2, cell);
    show().findChild<QAction *>(QStringLiteral("copyAll"))->trigger();
    EXPECT_EQ(copied(), "Date\tN\n0\t3\n7\t0\n");
}

TEST_F(ReportViewTest, TheColumnsAreAsWideAsTheirSamples) {
    show();
    const QFontMetrics metrics(view->font());
    const int date = metrics.horizontalAdvance(QStringLiteral(" 00/00/0000 "));
    EXPECT_GE(view->header()->sectionSize(0), date);
    EXPECT_LE(view->header()->sectionSize(0), date + 24);
    EXPECT_EQ(view->horizontalScrollBar()->maximum(), 0);
}

TEST_F(ReportViewTest, NewColumnsAreAsWideAsTheirSamplesToo) {
    show();
    const std::string wide(30, 'M');
    list.columns({{"A", "", false}, {"B", wide, false}, {"C", wide, false}, {"D", "", false}});
    list.rows(5, cell);
    const int sample = view->fontMetrics().horizontalAdvance(QString::fromStdString(wide));
    for (const int column : {1, 2})
        EXPECT_GE(view->header()->sectionSize(column), sample);
}

TEST_F(ReportViewTest, AColumnThatTheUserHasWidenedStaysWide) {
    show();
    view->header()->resizeSection(0, 333);
    list.clear();
    list.rows(5, cell);
    EXPECT_EQ(view->header()->sectionSize(0), 333);
}

TEST_F(ReportViewTest, AScreenReaderHearsTheRowThatTheKeyboardHasReached) {
    show();
    view->activateWindow();
    view->setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
    QTest::keyClick(view.get(), Qt::Key_Down);
    QTest::keyClick(view.get(), Qt::Key_Down);
    QAccessibleInterface *row = QAccessible::queryAccessibleInterface(view.get())->focusChild();
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->tableCellInterface()->rowIndex(), 1);
    EXPECT_EQ(row->text(QAccessible::Name), view->model()->index(1, 0).data().toString());
}

TEST_F(ReportViewTest, ASortedListShowsItsKeyInTheHeader) {
    show();
    EXPECT_FALSE(view->header()->isSortIndicatorShown());
    list.sortByText(0);
    EXPECT_TRUE(view->header()->isSortIndicatorShown());
    EXPECT_EQ(view->header()->sortIndicatorSection(), 0);
    EXPECT_EQ(view->model()->index(1, 0).data().toString().toStdString(), "1");
}

TEST_F(ReportViewTest, AListThatKeepsItsColumnsVisibleFindsRoomForTheArrowOfTheSorting) {
    show().keepAllColumnsVisible();
    view->resize(view->minimumWidth(), 200);
    for (const int column : {0, 1, 0}) {
        list.sortByText(column);
        QApplication::processEvents();
        EXPECT_EQ(view->horizontalScrollBar()->maximum(), 0) << column;
    }
}

TEST_F(ReportViewTest, AClickOnTheHeaderTellsTheColumn) {
    show();
    QSignalSpy told(view.get(), &ReportView::headerClicked);
    const int x = view->header()->sectionViewportPosition(1) + 5;
    QTest::mouseClick(view->header()->viewport(), Qt::LeftButton, {}, QPoint(x, 5));
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(told[0][0].toInt(), 1);
}

TEST_F(ReportViewTest, AnEmptyListSaysWhatBringsSomething) {
    int followed = 0;
    list.whenEmpty({"Le jeu est vide.", "Charger un jeu", [&followed] { ++followed; }});
    show();
    auto &place = *view->findChild<QLabel *>(QStringLiteral("emptyPlace"));
    EXPECT_FALSE(place.isVisible()) << "there are rows";
    list.clear();
    EXPECT_TRUE(place.isVisible());
    EXPECT_EQ(place.text().toStdString(), "Le jeu est vide.<br><a href=\"#\">Charger un jeu</a>");
    EXPECT_TRUE(view->viewport()->rect().contains(place.geometry()));
    emit place.linkActivated(QStringLiteral("#"));
    EXPECT_EQ(followed, 1);
    list.rows(1, cell);
    EXPECT_FALSE(place.isVisible());
}

TEST_F(ReportViewTest, AnEmptyListWithoutALinkTakesNoFocusForItsSentence) {
    list.whenEmpty({"Aucun tirage < 1900 & co."});
    show();
    list.clear();
    auto &place = *view->findChild<QLabel *>(QStringLiteral("emptyPlace"));
    EXPECT_EQ(place.text().toStdString(), "Aucun tirage &lt; 1900 &amp; co.");
    EXPECT_EQ(place.focusPolicy(), Qt::NoFocus);
}

TEST_F(ReportViewTest, FourteenMillionRowsAppearAtOnceAndAskOnlyForWhatIsSeen) {
    std::int64_t asked = 0;
    show();
    QElapsedTimer clock;
    clock.start();
    list.rows(allGrids, [&asked](std::int64_t row, int column) {
        ++asked;
        return cell(row, column);
    });
    QTest::keyClick(view.get(), Qt::Key_End);
    view->grab();
    EXPECT_EQ(view->selectedRows(), Rows{allGrids});
    EXPECT_TRUE(view->rect().contains(middleOf(int{allGrids} - 1)));
    EXPECT_LT(asked, 200);
    EXPECT_LT(clock.elapsed(), 500);
}

/// The colours along a row of the list as it is painted.
std::vector<QRgb> inkOfRow(ReportView &view, int row, int from) {
    const QImage picture = view.viewport()->grab().toImage();
    const int y = view.visualRect(view.model()->index(row, 0)).center().y();
    std::vector<QRgb> ink;
    for (int x = from; x < picture.width() / picture.devicePixelRatio(); ++x)
        ink.push_back(picture.pixel(x, y));
    return ink;
}

TEST_F(ReportViewTest, BarsAreAsLongAsTheirValuesAndTheMeanStandsInEachRow) {
    list.columns({{"N", " 000 ", true}, {"Fréquence", "", true}});
    list.rows(4, cell);
    const std::array<double, 4> values = {0, 25, 50, 100};
    list.bars(
        {1, [&](std::int64_t row) { return values[static_cast<std::size_t>(row)]; }, 100, 40});
    view = std::make_unique<ReportView>(list);
    view->resize(500, 200);
    view->show();
    const int from = view->visualRect(view->model()->index(0, 1)).left() +
                     view->fontMetrics().horizontalAdvance(QStringLiteral("000000")) + 12;
    std::vector<int> lengths;
    for (int row = 0; row < 4; ++row) {
        const std::vector<QRgb> ink = inkOfRow(*view, row, from);
        const QRgb ground = ink.back(); // no bar reaches the edge
        lengths.push_back(static_cast<int>(
            std::count_if(ink.begin(), ink.end(), [&](QRgb c) { return c != ground; })));
    }
    EXPECT_LE(lengths[0], 2) << "the mean alone";
    EXPECT_NEAR(lengths[1], lengths[3] / 4.0, 3);
    EXPECT_NEAR(lengths[2], lengths[3] / 2.0, 3);
    EXPECT_GT(lengths[3], 150);
    EXPECT_EQ(view->model()->index(0, 1).data(Qt::TextAlignmentRole).toInt(),
              int(Qt::AlignLeft | Qt::AlignVCenter))
        << "the bars begin behind the numbers";
}

TEST_F(ReportViewTest, MarkedRowsAndTheOneShownBesideTheListStandOutWithoutBeingSelected) {
    show();
    const auto edgeAndGround = [this](int row) {
        const std::vector<QRgb> ink = inkOfRow(*view, row, 0);
        return std::pair{ink[1], ink.back()};
    };
    const std::vector plain = {edgeAndGround(0), edgeAndGround(1), edgeAndGround(2)};
    const QSignalSpy resets(view->model(), &QAbstractItemModel::modelReset);
    clickRow(4);
    list.marks([](std::int64_t row) { return row == 2; });
    list.pointTo(0);
    EXPECT_EQ(edgeAndGround(1), plain[1]);
    EXPECT_NE(edgeAndGround(2).second, plain[2].second);
    EXPECT_NE(edgeAndGround(0).first, plain[0].first);
    EXPECT_EQ(edgeAndGround(0).second, plain[0].second);
    EXPECT_EQ(resets.count(), 0);
    EXPECT_EQ(view->selectedRows(), Rows{5}) << "the selection stays";
    list.rows(10, cell);
    EXPECT_EQ(edgeAndGround(0), plain[0]);
    EXPECT_EQ(edgeAndGround(2), plain[2]);
}

} // namespace
} // namespace boulix
