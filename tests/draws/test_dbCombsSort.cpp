// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/drawsTest.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace boulix {
namespace {

constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

/// A draw reduced to what a sort looks at, and a mark that tells equal draws apart.
struct Key {
    double day;
    int id;
    int mark;
};

bool isGreater(const Key &a, const Key &b) {
    const double days = std::floor(b.day) - std::floor(a.day);
    if (days < 0)
        return true;
    return days == 0 && a.id > b.id;
}

/// The sort once more, in the plainest way: positions from 1 (element 0 is not used), calls for
/// both parts, every exchange through a scratch.
void plainQuickSort(std::vector<Key> &keys, long first, long last) {
    const auto at = [&keys](long position) -> Key & {
        return keys.at(static_cast<std::size_t>(position));
    };
    long i = first;
    long j = last;
    long half = (first + last) / 2;
    if ((first + last) % 2 != 0 && half % 2 != 0)
        half = half + 1;
    const Key &pivot = at(half);
    do {
        while (isGreater(pivot, at(i)))
            i = i + 1;
        while (isGreater(at(j), pivot))
            j = j - 1;
        if (i > j)
            break;
        if (i != j) {
            const Key scratch = at(i);
            at(i) = at(j);
            at(j) = scratch;
        }
        i = i + 1;
        j = j - 1;
    } while (i <= j);
    if (first < j)
        plainQuickSort(keys, first, j);
    if (i < last)
        plainQuickSort(keys, i, last);
}

std::vector<Key> plainlySorted(std::vector<Key> keys) {
    keys.insert(keys.begin(), Key{});
    plainQuickSort(keys, 1, static_cast<long>(keys.size()) - 1);
    keys.erase(keys.begin());
    return keys;
}

std::vector<int> marksOf(const std::vector<Key> &keys) {
    std::vector<int> marks;
    for (const Key &key : keys)
        marks.push_back(key.mark);
    return marks;
}

class DrawSort : public DrawsTest {
  protected:
    /// The marks of `keys` in the order in which the base sorts them. The mark travels as a sum.
    std::vector<int> sortedMarks(const std::vector<Key> &keys) {
        gDbCombs->clear();
        for (const Key &key : keys)
            add({key.day, key.id, {}, key.mark % 30000, key.mark / 30000});
        gDbCombs->sort();
        std::vector<int> marks;
        for (const dbComb &draw : *gDbCombs)
            marks.push_back(draw.comb().sumtot() * 30000 + draw.comb().sum());
        return marks;
    }

    static std::vector<Key> keysOf(int count, const std::function<Key(int)> &keyAt) {
        std::vector<Key> keys;
        for (int i = 0; i < count; ++i) {
            keys.push_back(keyAt(i));
            keys.back().mark = i;
        }
        return keys;
    }
};

TEST_F(DrawSort, FailsOnAnEmptyBase) {
    EXPECT_EQ(failureNumber([] { gDbCombs->sort(); }), 9);
}

TEST_F(DrawSort, LeavesASingleDraw) {
    EXPECT_EQ(sortedMarks({{1, 1, 7}}), (std::vector<int>{7}));
}

TEST_F(DrawSort, OrdersDrawsByDayAndDrawOfTheDay) {
    EXPECT_EQ(sortedMarks({{2, 2, 4}, {1, 1, 1}, {2, 1, 3}, {3, 1, 5}, {1, 2, 2}}),
              (std::vector<int>{1, 2, 3, 4, 5}));
}

TEST_F(DrawSort, FollowsItsPivotToTheValueThatComesToLieThere) {
    for (const double day : {1, 2, 3, 4, 4, 3, 2, 1})
        add({day});
    gDbCombs->sort();
    std::vector<double> days;
    for (const dbComb &draw : *gDbCombs)
        days.push_back(draw.day());
    EXPECT_EQ(days, (std::vector<double>{1, 1, 2, 3, 2, 3, 4, 4}));
}

TEST_F(DrawSort, AgreesWithThePlainSortOnRandomDrawsWithDoubles) {
    std::mt19937 random(1976);
    for (int round = 0; round < 3000; ++round) {
        const int count = std::uniform_int_distribution<int>(1, 60)(random);
        std::uniform_int_distribution<int> day(1,
                                               std::uniform_int_distribution<int>(1, 80)(random));
        std::uniform_int_distribution<int> id(1, 2);
        const auto keys = keysOf(count, [&](int) {
            return Key{static_cast<double>(day(random)), id(random), 0};
        });
        ASSERT_EQ(sortedMarks(keys), marksOf(plainlySorted(keys))) << "round " << round;
    }
}

TEST_F(DrawSort, AgreesWithThePlainSortOnDaysThatAreNoNumbersOrNotWhole) {
    std::mt19937 random(2008);
    const double days[] = {noNumber, 1, 1.5,   2,
                           -1.25,    3, 1e300, std::numeric_limits<double>::max()};
    std::uniform_int_distribution<std::size_t> pick(0, std::size(days) - 1);
    for (int round = 0; round < 3000; ++round) {
        const int count = std::uniform_int_distribution<int>(1, 40)(random);
        const auto keys = keysOf(count, [&](int i) {
            return Key{days[pick(random)], i % 2 + 1, 0};
        });
        ASSERT_EQ(sortedMarks(keys), marksOf(plainlySorted(keys))) << "round " << round;
    }
}

/// What a base looks like in life, and what asks most of a sort with a pivot in the middle.
struct Shape {
    const char *name;
    double (*dayAt)(int i, int count);
};
const Shape shapes[] = {
    {"ascending", [](int i, int) -> double { return i; }},
    {"descending", [](int i, int n) -> double { return n - i; }},
    {"all equal", [](int, int) -> double { return 1; }},
    {"up and down", [](int i, int n) -> double { return i < n / 2 ? i : n - i; }},
    {"twice, backwards the second time",
     [](int i, int n) -> double { return i < n / 2 ? i : n - 1 - i; }},
    {"one behind its place", [](int i, int n) -> double { return i == n - 1 ? n / 3 : i; }},
};

TEST_F(DrawSort, AgreesWithThePlainSortOnBasesOfEveryShape) {
    for (const Shape &shape : shapes)
        for (const int count : {2, 3, 10, 101, 4858}) {
            const auto keys = keysOf(count, [&](int i) {
                return Key{shape.dayAt(i, count), 1, 0};
            });
            ASSERT_EQ(sortedMarks(keys), marksOf(plainlySorted(keys)))
                << shape.name << " " << count;
        }
}

TEST_F(DrawSort, NeverLosesADraw) {
    std::mt19937 random(6);
    std::uniform_int_distribution<int> day(1, 20);
    const auto keys = keysOf(5000, [&](int) {
        return Key{static_cast<double>(day(random)), 1, 0};
    });
    std::vector<int> marks = sortedMarks(keys);
    std::sort(marks.begin(), marks.end());
    EXPECT_EQ(marks, marksOf(keys));
}

} // namespace
} // namespace boulix
