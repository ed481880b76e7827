// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a screen reader is told, through Qt's own interface to it.

#include "core/globals.h"
#include "everyWindow.h"
#include "sill/numberBoard.h"
#include "sill/reportList.h"
#include "ui/support/places.h"
#include "ui/widgets/accessibleList.h"
#include "ui/widgets/numberBall.h"
#include "ui/widgets/numberBoardView.h"
#include "ui/widgets/reportView.h"
#include "ui/widgets/upDownView.h"
#include "workbench/frmMain.h"

#include <QAccessible>
#include <QLineEdit>
#include <QtTest/QTest>

#include <set>

namespace boulix {
namespace {

using testing_support::EveryWindowTest;

/// What needs no name of its own: what only holds others, texts that are their own name, and parts
/// of a control that has one.
const std::set<QAccessible::Role> nameless = {
    QAccessible::Client,     QAccessible::Pane,        QAccessible::Grouping,
    QAccessible::StaticText, QAccessible::ToolBar,     QAccessible::ScrollBar,
    QAccessible::StatusBar,  QAccessible::Splitter,    QAccessible::Separator,
    QAccessible::MenuBar,    QAccessible::LayeredPane, QAccessible::Border,
    QAccessible::Cell,       QAccessible::PageTabList, QAccessible::Graphic,
    QAccessible::PopupMenu,  QAccessible::Indicator,   QAccessible::Grip,
};

QAccessibleInterface &seen(QObject &object) {
    QAccessibleInterface *found = QAccessible::queryAccessibleInterface(&object);
    if (!found)
        throw std::runtime_error("nothing for a screen reader");
    return *found;
}

std::string nameOf(const QAccessibleInterface &part) {
    return part.text(QAccessible::Name).toStdString();
}

/// Counts the controls below `part`, and fails for each without a name.
int expectNames(QAccessibleInterface &part, const std::string &path) {
    if (!part.isValid() || part.state().invisible)
        return 0;
    std::string here = path + "/" + std::to_string(int(part.role()));
    if (part.object())
        here += " " + part.object()->objectName().toStdString();
    int count = 1;
    if (!nameless.contains(part.role())) {
        EXPECT_NE(nameOf(part), "") << here;
    }
    constexpr int enough = 200; // of the cells of a table
    for (int i = 0; i < std::min(part.childCount(), enough); ++i)
        if (QAccessibleInterface *child = part.child(i))
            count += expectNames(*child, here);
    return count;
}

class ScreenReaderTest : public EveryWindowTest {
  protected:
    ScreenReaderTest() { QAccessible::setActive(true); }
    ~ScreenReaderTest() override { QAccessible::setActive(false); }
};

TEST_F(ScreenReaderTest, HearsANameForEveryControlOfThePages) {
    int count = 0;
    lookAtEveryPage([&count](QWidget &page, const std::string &name) {
        count += expectNames(seen(page), name + ": ");
    });
    EXPECT_GT(count, 2000);
}

TEST_F(ScreenReaderTest, HearsANameForEveryControlOfTheDialogs) {
    int count = 0;
    lookAtEveryDialog([&count](QWidget &dialog, const std::string &name) {
        count += expectNames(seen(dialog), name + ": ");
    });
    EXPECT_GT(count, 700);
}

TEST_F(ScreenReaderTest, FindsEveryListAsATableWithItsHeadersRowsAndCells) {
    int lists = 0;
    const auto look = [&lists](QWidget &shown, const std::string &name) {
        for (auto *view : shown.findChildren<ReportView *>()) {
            if (!view->isVisible())
                continue;
            ++lists;
            QAccessibleInterface &list = seen(*view);
            const std::string where = name + ", " + view->objectName().toStdString();
            EXPECT_EQ(list.role(), QAccessible::Table) << where;
            QAccessibleTableInterface &table = *list.tableInterface();
            EXPECT_EQ(table.rowCount(), view->model()->rowCount()) << where;
            ASSERT_EQ(table.columnCount(), view->model()->columnCount()) << where;
            for (int column = 0; column < table.columnCount(); ++column) {
                EXPECT_NE(table.columnDescription(column), QString()) << where;
                EXPECT_EQ(list.child(column)->role(), QAccessible::ColumnHeader) << where;
            }
            for (int row = 0; row < std::min(table.rowCount(), 3); ++row)
                for (int column = 0; column < table.columnCount(); ++column) {
                    QAccessibleInterface *cell = table.cellAt(row, column);
                    EXPECT_EQ(cell->text(QAccessible::Name),
                              view->model()->index(row, column).data().toString())
                        << where;
                    EXPECT_EQ(cell->tableCellInterface()->columnHeaderCells().value(0),
                              list.child(column))
                        << where;
                    EXPECT_EQ(list.child(list.indexOfChild(cell)), cell) << where;
                }
        }
    };
    lookAtEveryPage(look);
    lookAtEveryDialog(look);
    EXPECT_GT(lists, 20);
}

TEST_F(ScreenReaderTest, PressesARowLikeAClick) {
    auto &view = control<ReportView>(window, "lvwDBcomb");
    QAccessibleTableInterface &table = *seen(view).tableInterface();
    QAccessibleInterface *cell = table.cellAt(4, 0);
    EXPECT_FALSE(cell->state().selected);
    cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(cell->state().selected);
    EXPECT_EQ(table.selectedRows(), QList<int>{4});
    EXPECT_EQ(seen(view).focusChild(), cell);
    EXPECT_EQ(mainWindow->database.lblDBCombDesc,
              "Tirage n° " + table.cellAt(4, 1)->text(QAccessible::Name).toStdString() + " du " +
                  nameOf(*cell));
}

TEST_F(ScreenReaderTest, SelectsAndUnselectsRows) {
    auto &view = control<ReportView>(window, "lvwDBcomb");
    QAccessibleTableInterface &table = *seen(view).tableInterface();
    EXPECT_TRUE(table.selectRow(2));
    EXPECT_TRUE(table.isRowSelected(2));
    EXPECT_EQ(table.selectedCellCount(), table.columnCount());
    EXPECT_EQ(table.selectedCells().size(), table.columnCount());
    EXPECT_TRUE(table.unselectRow(2));
    EXPECT_EQ(table.selectedRowCount(), 0);
    EXPECT_FALSE(table.selectRow(table.rowCount()));
}

TEST_F(ScreenReaderTest, PressesAHeaderToSort) {
    mainWindow->clickTab(6);
    auto &view = control<ReportView>(window, "lvwPronoResults");
    QAccessibleInterface &list = seen(view);
    list.child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(mainWindow->forecasts.lvwPronoResults.sortColumn(), 1);
}

TEST_F(ScreenReaderTest, TicksARow) {
    mainWindow->clickTab(6);
    auto &view = control<ReportView>(window, "lvwPronoResults");
    QAccessibleInterface *cell = seen(view).tableInterface()->cellAt(6, 0);
    EXPECT_TRUE(cell->state().checkable);
    EXPECT_FALSE(cell->state().checked);
    cell->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(cell->state().checked);
    EXPECT_TRUE(mainWindow->forecasts.ticked(6));
    EXPECT_FALSE(seen(view).tableInterface()->cellAt(6, 1)->state().checkable);
}

TEST_F(ScreenReaderTest, SetsAnUpDownAsASpinBox) {
    mainWindow->clickTab(5);
    testing_support::Place{4, winningsPage::verification}.goThere(window);
    auto &arrows = control<UpDownView>(window, "updVerifComb");
    QAccessibleInterface &spin = seen(arrows);
    EXPECT_EQ(spin.role(), QAccessible::SpinBox);
    EXPECT_EQ(nameOf(spin), "Tirage");
    EXPECT_EQ(nameOf(seen(control<QLineEdit>(window, "txtVerifComb"))), "Tirage");
    ASSERT_NE(spin.valueInterface(), nullptr);
    EXPECT_EQ(spin.valueInterface()->minimumValue(), 1);
    EXPECT_EQ(spin.valueInterface()->maximumValue(), 60);
    spin.valueInterface()->setCurrentValue(17);
    EXPECT_EQ(mainWindow->winnings.updVerifComb.value(), 17);
    spin.actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(spin.valueInterface()->currentValue(), 18);
    EXPECT_EQ(spin.text(QAccessible::Value).toStdString(), "18");
}

TEST_F(ScreenReaderTest, MarksABallThatTakesClicksAndReadsTheOthers) {
    mainWindow->clickTab(3);
    auto &ball = control<NumberBall>(window, "lblNumTir_1");
    QAccessibleInterface &box = seen(ball);
    EXPECT_EQ(box.role(), QAccessible::CheckBox);
    EXPECT_EQ(nameOf(box), "Numéro " + ball.text().toStdString());
    const bool before = box.state().checked;
    box.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_NE(bool(box.state().checked), before);
    testing_support::Place{4, winningsPage::verification}.goThere(window);
    auto &shown = control<NumberBall>(window, "lblVerifCompl");
    EXPECT_EQ(seen(shown).role(), QAccessible::StaticText);
    EXPECT_EQ(nameOf(seen(shown)), "Complémentaire " + shown.text().toStdString());
    EXPECT_FALSE(seen(shown).state().checkable);
}

TEST_F(ScreenReaderTest, ReadsTheChartsAsSentences) {
    std::set<std::string> charts;
    lookAtEveryDialog([&charts](QWidget &dialog, const std::string &) {
        for (auto *part : dialog.findChildren<QWidget *>())
            if (seen(*part).role() == QAccessible::Chart) {
                charts.insert(part->objectName().toStdString());
                EXPECT_NE(seen(*part).text(QAccessible::Description), QString());
                if (part->objectName() == QStringLiteral("PlotPane")) {
                    EXPECT_EQ(seen(*part).text(QAccessible::Description).toStdString(),
                              "Fréquence selon N° : 4 points, de 4 à 9");
                }
            }
    });
    EXPECT_EQ(charts, (std::set<std::string>{"PlotPane", "chanceBars", "curve"}));
}

/// A list of its own, as long as no statistic ever is.
class LongList : public ::testing::Test {
  protected:
    LongList() {
        list.columns({{"N°", "00000000)", false}, {"Un", "00", true}, {"Deux", "00", true}});
        list.rows(14'000'000, [this](std::int64_t row, int column) {
            ++asked;
            return std::to_string(row + column);
        });
        view = std::make_unique<ReportView>(list);
    }
    reportList list;
    std::unique_ptr<ReportView> view;
    int asked = 0;
};

TEST_F(LongList, IsReadToItsEndWithoutMakingItsCellsAhead) {
    QAccessibleInterface &seenList = seen(*view);
    EXPECT_EQ(seenList.childCount(), 3 * 14'000'001);
    asked = 0;
    QAccessibleInterface *last = seenList.child(seenList.childCount() - 1);
    EXPECT_EQ(nameOf(*last), "14000001");
    EXPECT_EQ(seenList.indexOfChild(last), seenList.childCount() - 1);
    EXPECT_EQ(asked, 1);
}

TEST_F(LongList, KeepsTheLastCellsOnly) {
    QAccessibleTableInterface &table = *seen(*view).tableInterface();
    const QAccessible::Id first = QAccessible::uniqueId(table.cellAt(0, 0));
    QAccessible::Id second = 0;
    for (int row = 1; row < static_cast<int>(AccessibleList::mostKept); ++row) {
        const QAccessible::Id id = QAccessible::uniqueId(table.cellAt(row, 0));
        second = row == 1 ? id : second;
    }
    EXPECT_NE(QAccessible::accessibleInterface(first), nullptr);
    table.cellAt(5, 1);
    EXPECT_EQ(QAccessible::accessibleInterface(first), nullptr) << "the oldest makes room";
    EXPECT_NE(QAccessible::accessibleInterface(second), nullptr);
    view.reset();
    EXPECT_EQ(QAccessible::accessibleInterface(second), nullptr) << "none outlives its list";
}

TEST_F(LongList, GivesNoMoreSelectedCellsThanItKeeps) {
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    QAccessibleTableInterface &table = *seen(*view).tableInterface();
    for (int row = 0; row < 100; ++row)
        table.cellAt(row, 0);
    view->selectAll();
    EXPECT_EQ(table.selectedRowCount(), 14'000'000);
    const auto cells = table.selectedCells();
    EXPECT_GT(cells.size(), 4000);
    for (int i = 0; i < cells.size(); ++i)
        ASSERT_EQ(cells[i]->tableCellInterface()->rowIndex(), i / 3);
}

TEST_F(LongList, ACellTellsWhatStandsAtItsPlaceByNow) {
    QAccessibleTableInterface &table = *seen(*view).tableInterface();
    QAccessibleInterface *cell = table.cellAt(2, 1);
    list.rows(3, [](std::int64_t, int) { return std::string("neuf"); });
    EXPECT_EQ(nameOf(*cell), "neuf");
    list.rows(1, [](std::int64_t, int) { return std::string("seul"); });
    EXPECT_FALSE(cell->isValid());
    EXPECT_EQ(nameOf(*cell), "");
    EXPECT_TRUE(cell->rect().isEmpty());
    EXPECT_TRUE(cell->actionInterface()->actionNames().isEmpty());
}

TEST_F(LongList, ReadsTheSentenceOfAnEmptyListAndFollowsItsLink) {
    int followed = 0;
    list.clear();
    list.whenEmpty({"Aucun tirage.", "Importer un historique", [&followed] { ++followed; }});
    QAccessibleInterface &seenList = seen(*view);
    ASSERT_EQ(seenList.childCount(), 4);
    QAccessibleInterface *place = seenList.child(3);
    EXPECT_EQ(place->role(), QAccessible::Link);
    EXPECT_EQ(nameOf(*place), "Aucun tirage. Importer un historique");
    EXPECT_EQ(seenList.indexOfChild(place), 3);
    place->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(followed, 1);
    list.whenEmpty({"Choisissez un type."});
    EXPECT_EQ(seenList.child(3)->role(), QAccessible::StaticText);
    EXPECT_TRUE(seenList.child(3)->actionInterface()->actionNames().isEmpty());
    list.rows(1, [](std::int64_t, int) { return std::string("un"); });
    EXPECT_EQ(seenList.childCount(), 6);
}

class BoardForAScreenReader : public ::testing::Test {
  protected:
    BoardForAScreenReader() {
        view.show();
        view.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }
    QAccessibleTableInterface &table() { return *seen(view).tableInterface(); }
    QAccessibleInterface &number(int n) { return *table().cellAt(n % 10, n / 10); }

    NumberBoard board;
    NumberBoardView view{board};
};

TEST_F(BoardForAScreenReader, IsATableOfTensAndUnits) {
    EXPECT_EQ(seen(view).role(), QAccessible::Table);
    EXPECT_EQ(table().rowCount(), 10);
    EXPECT_EQ(table().columnCount(), 5);
    EXPECT_EQ(table().cellAt(0, 0), nullptr);
    EXPECT_EQ(table().cellAt(10, 0), nullptr);
    EXPECT_EQ(seen(view).childCount(), 49);
    for (int n = 1; n <= 49; ++n) {
        EXPECT_EQ(nameOf(number(n)), "Numéro " + std::to_string(n));
        EXPECT_EQ(seen(view).indexOfChild(&number(n)), n - 1);
        EXPECT_EQ(seen(view).child(n - 1), &number(n));
        const QPoint middle = number(n).rect().center();
        EXPECT_EQ(seen(view).childAt(middle.x(), middle.y()), &number(n));
    }
}

TEST_F(BoardForAScreenReader, TellsWhichNumbersAreMarkedAndWhichIsComplementary) {
    board.selectNumber(13);
    board.selectComplementary(34);
    EXPECT_TRUE(number(13).state().checked);
    EXPECT_EQ(number(13).text(QAccessible::Description), QString());
    EXPECT_TRUE(number(34).state().checked);
    EXPECT_EQ(number(34).text(QAccessible::Description).toStdString(), "complémentaire");
    EXPECT_FALSE(number(12).state().checked);
    EXPECT_EQ(table().selectedCells(), (QList{&number(13), &number(34)}));
}

TEST_F(BoardForAScreenReader, MarksANumberUnlessTheBoardIsClosed) {
    int clicks = 0;
    board.selectionChanged = [&clicks] { ++clicks; };
    number(27).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(board.isSelected(27));
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(seen(view).focusChild(), &number(27));
    board.editable(false);
    EXPECT_TRUE(number(27).state().readOnly);
    EXPECT_TRUE(number(27).actionInterface()->actionNames().isEmpty());
    number(27).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(board.isSelected(27));
}

TEST_F(BoardForAScreenReader, FollowsTheKeyboard) {
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_3);
    QTest::keyClick(&view, Qt::Key_1);
    EXPECT_EQ(seen(view).focusChild(), &number(31));
    EXPECT_TRUE(number(31).state().focused);
    EXPECT_FALSE(number(30).state().focused);
}

} // namespace
} // namespace boulix
