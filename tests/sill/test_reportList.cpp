// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/reportList.h"

#include <gtest/gtest.h>

namespace boulix {
namespace {

class ReportList : public ::testing::Test {
  protected:
    ReportList() {
        list.columns({{"Numéro", "", false}, {"Sorties", "", true}});
        list.changed = [this] { ++changes; };
    }

    void fill() {
        list.rows(4, [this](std::int64_t row, int column) {
            ++asked;
            return cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
        });
    }
    std::vector<std::int64_t> shownRows() const {
        std::vector<std::int64_t> rows;
        for (std::int64_t row = 0; row < list.rowCount(); ++row)
            rows.push_back(list.sourceRow(row));
        return rows;
    }

    const std::vector<std::vector<std::string>> cells = {
        {"4", "10"}, {"3", "9"}, {"2", "10"}, {"1", ""}};
    reportList list;
    int changes = 0;
    int asked = 0;
};

TEST_F(ReportList, StandsInComputedOrderAndAsksForATextOnlyWhenItIsShown) {
    fill();
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(list.rowCount(), 4);
    EXPECT_EQ(list.text(1, 1), "9");
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(shownRows(), (std::vector<std::int64_t>{0, 1, 2, 3}));
    EXPECT_EQ(list.sortColumn(), -1);
}

TEST_F(ReportList, SortsAColumnAsTextAndKeepsTheOrderOfEqualOnes) {
    fill();
    list.sortByText(1);
    EXPECT_EQ(list.sortColumn(), 1);
    EXPECT_EQ(shownRows(), (std::vector<std::int64_t>{3, 0, 2, 1})); // "" < "10" < "9"
    EXPECT_EQ(list.text(0, 0), "1");
    list.sortByText(0);
    EXPECT_EQ(shownRows(), (std::vector<std::int64_t>{3, 2, 1, 0}));
}

TEST_F(ReportList, SortsTheOtherWayRoundAndKeepsTheOrderOfEqualOnes) {
    fill();
    list.sortByText(1, true);
    EXPECT_TRUE(list.descending());
    EXPECT_EQ(shownRows(), (std::vector<std::int64_t>{1, 0, 2, 3})); // "9" > "10" > ""
}

TEST_F(ReportList, TurnsRoundWhenTheSameColumnIsSortedAgain) {
    fill();
    list.sortOrReverse(0);
    EXPECT_EQ(shownRows(), (std::vector<std::int64_t>{3, 2, 1, 0}));
    list.sortOrReverse(0);
    EXPECT_EQ(shownRows(), (std::vector<std::int64_t>{0, 1, 2, 3}));
    EXPECT_TRUE(list.descending());
    list.sortOrReverse(0);
    EXPECT_EQ(shownRows(), (std::vector<std::int64_t>{3, 2, 1, 0}));
    list.sortOrReverse(0);
    list.sortOrReverse(1); // another column begins ascending
    EXPECT_FALSE(list.descending());
    EXPECT_EQ(shownRows(), (std::vector<std::int64_t>{3, 0, 2, 1}));
}

TEST_F(ReportList, ASortedListIsPutInOrderAgainWhenItsTextsChange) {
    std::vector<std::string> texts = {"a", "b", "c"};
    list.rows(3, [&](std::int64_t row, int) { return texts[static_cast<std::size_t>(row)]; });
    list.textsChanged();
    EXPECT_EQ(list.sortColumn(), -1);
    list.sortByText(0, true);
    texts = {"z", "y", "x"};
    changes = 0;
    list.textsChanged();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(list.sortColumn(), 0);
    EXPECT_EQ(shownRows(), (std::vector<std::int64_t>{0, 1, 2}));
}

TEST_F(ReportList, NewRowsStandInComputedOrderAgain) {
    fill();
    list.sortByText(1, true);
    fill();
    EXPECT_EQ(list.sortColumn(), -1);
    EXPECT_FALSE(list.descending());
    EXPECT_EQ(list.text(0, 0), "4");
}

TEST_F(ReportList, NewColumnsTakeTheRowsAway) {
    fill();
    list.columns({{"Somme", "", false}});
    EXPECT_EQ(list.rowCount(), 0);
    EXPECT_EQ(list.columns().size(), 1U);
}

TEST_F(ReportList, TellsEveryChange) {
    fill();
    list.sortByText(0);
    list.clear();
    EXPECT_EQ(changes, 3);
    EXPECT_EQ(list.rowCount(), 0);
}

TEST_F(ReportList, SortsNothingWithoutRows) {
    list.sortByText(0);
    EXPECT_EQ(list.rowCount(), 0);
}

TEST_F(ReportList, MarksPointerBarsAndAgeBelongToTheRowsThereAreAndFollowTheirOrder) {
    list.rows(3, [](std::int64_t row, int) { return std::to_string(9 - row); });
    list.marks([](std::int64_t row) { return row == 0; });
    list.pointTo(1);
    list.bars({0, [](std::int64_t row) { return 5.0 * static_cast<double>(row) - 1; }, 8, 4});
    list.outdated(true);
    list.sortByText(0); // turned round
    EXPECT_TRUE(list.isMarked(2));
    EXPECT_FALSE(list.isMarked(0));
    EXPECT_TRUE(list.isPointedAt(1));
    EXPECT_FALSE(list.isPointedAt(0));
    EXPECT_EQ(list.barOf(0), 1) << "beyond the largest";
    EXPECT_EQ(list.barOf(1), 0.5);
    EXPECT_EQ(list.barOf(2), 0) << "below zero";
    list.rows(3, [](std::int64_t, int) { return std::string("1"); });
    for (std::int64_t row = 0; row < 3; ++row) {
        EXPECT_FALSE(list.isMarked(row));
        EXPECT_FALSE(list.isPointedAt(row));
        EXPECT_EQ(list.barOf(row), 0);
    }
    EXPECT_FALSE(list.outdated());
}

} // namespace
} // namespace boulix
