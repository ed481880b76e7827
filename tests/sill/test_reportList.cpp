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

} // namespace
} // namespace boulix
