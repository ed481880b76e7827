// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stats/drawAnalysis.h"

#include "core/globals.h"
#include "core/modMaths.h"
#include "core/numbers.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "stats/tuples.h"

#include <cstddef>

namespace boulix::modStats {

const std::array<const char *, analysisCount> analysisNames = {
    "Somme des numéros sans compl.",       "Somme des numéros avec compl.",
    "Numéros pairs et impairs.",           "Dernière apparition des numéros",
    "Dernière apparition des couples",     "Dernière apparition des triplés",
    "Nbr max de num. de la même septaine", "Nbr max de num. de la même dizaine",
};

namespace {

constexpr std::int32_t size = 7; // the six numbers and the complementary one

/// The numbers of a draw, used from index 1.
using Numbers = std::vector<std::int16_t>;

std::size_t at(std::int32_t i) {
    return static_cast<std::size_t>(i);
}

Numbers numbersOf(const lotoComb &comb) {
    Numbers numbers(at(size) + 1);
    for (std::int32_t i = 1; i <= lotoComb::size; ++i)
        numbers[at(i)] = comb.num(i);
    numbers[at(size)] = comb.compl_();
    return numbers;
}

std::int32_t sumOf(const Numbers &numbers, std::int32_t count) {
    std::int32_t sum = 0;
    for (std::int32_t i = 1; i <= count; ++i)
        sum += numbers[at(i)];
    return sum;
}

std::int32_t evenCount(const Numbers &numbers) {
    std::int32_t even = 0;
    for (std::int32_t i = 1; i <= size; ++i)
        even += numbers[at(i)] % 2 == 0;
    return even;
}

/// The tuples of one, two or three of the numbers, in the order of their positions.
std::vector<Tuple> tuplesOf(const Numbers &num, int length) {
    std::vector<Tuple> tuples;
    for (std::int32_t i = 1; i <= size; ++i) {
        if (length == 1)
            tuples.push_back({num[at(i)]});
        for (std::int32_t j = i + 1; j <= size && length > 1; ++j) {
            if (length == 2)
                tuples.push_back({num[at(i)], num[at(j)]});
            for (std::int32_t k = j + 1; k <= size && length > 2; ++k)
                tuples.push_back({num[at(i)], num[at(j)], num[at(k)]});
        }
    }
    return tuples;
}

std::string tupleLabel(const Tuple &tuple, int length) {
    const std::string start = "Nombre de tirages écoulés pour le ";
    const std::string a = zeroPadded(tuple.a, 2);
    const std::string b = zeroPadded(tuple.b, 2);
    if (length == 1)
        return start + "numéro " + a;
    if (length == 2)
        return start + "couple (" + a + "," + b + ")";
    return start + "triplé (" + a + "," + b + "," + zeroPadded(tuple.c, 2) + ")";
}

/// The group that holds the most of the numbers, the higher one of two, counted from 0; group g
/// holds those that give g when they are divided.
struct Fullest {
    std::int32_t count = 0;
    std::int32_t group = 0;
};

Fullest fullestGroup(const Numbers &numbers, std::int32_t divisor, std::int32_t nGroups) {
    std::vector<std::int32_t> counts(at(nGroups));
    for (std::int32_t i = 1; i <= size; ++i) {
        const std::int64_t group = checkedIndex(numbers[at(i)] / divisor, 0, nGroups - 1);
        ++counts[static_cast<std::size_t>(group)];
    }
    Fullest fullest;
    for (std::int32_t group = 0; group < nGroups; ++group)
        if (counts[at(group)] >= fullest.count)
            fullest = {counts[at(group)], group};
    return fullest;
}

/// Writes the rows one behind the other.
class Rows {
  public:
    Rows(std::vector<std::int32_t> &values, std::vector<std::string> &labels, std::int32_t &nRows)
        : values_(values), labels_(labels), nRows_(nRows) {
        nRows_ = 0;
    }

    void add(const std::string &label, std::int32_t value) {
        ++nRows_;
        if (values_.size() <= at(nRows_))
            values_.resize(at(nRows_) + 1);
        if (labels_.size() <= at(nRows_))
            labels_.resize(at(nRows_) + 1);
        values_[at(nRows_)] = value;
        labels_[at(nRows_)] = label;
    }

  private:
    std::vector<std::int32_t> &values_;
    std::vector<std::string> &labels_;
    std::int32_t &nRows_;
};

void addLastSeen(Rows &rows, std::int32_t draw, const Numbers &numbers, int length) {
    const std::vector<Tuple> tuples = tuplesOf(numbers, length);
    const std::vector<std::int32_t> elapsed = drawsSince(draw, tuples);
    for (std::size_t k = 0; k < tuples.size(); ++k)
        rows.add(tupleLabel(tuples[k], length), elapsed[k]);
}

void addAnalysis(Rows &rows, std::int32_t analysis, std::int32_t draw, Numbers &numbers) {
    if (analysis >= 4 && analysis <= 8)
        modMaths::sortIntegers(numbers, size); // and so they stay for the analyses behind
    switch (analysis) {
    case 1:
        return rows.add("Somme des numéros de la combinaison sans complémentaire",
                        sumOf(numbers, lotoComb::size));
    case 2:
        return rows.add("Somme des numéros de la combinaison avec complémentaire",
                        sumOf(numbers, size));
    case 3:
        rows.add("Nombre de  numéros pairs", evenCount(numbers));
        return rows.add("Nombre de  numéros impairs", size - evenCount(numbers));
    case 4:
    case 5:
    case 6:
        return addLastSeen(rows, draw, numbers, analysis - 3);
    case 7: {
        const Fullest fullest = fullestGroup(numbers, 8, 7); // by eight, in spite of the word
        rows.add("Nombre maxi de numéros de la même septaine", fullest.count);
        return rows.add("Septaine la plus représentée", fullest.group);
    }
    case 8: {
        const Fullest fullest = fullestGroup(numbers, 10, 5);
        rows.add("Nombre maxi de numéros de la même dizaine", fullest.count);
        return rows.add("Dizaine la plus représentée", fullest.group);
    }
    default:
        return;
    }
}

} // namespace

void ComputeDrawAnalysis(std::int32_t draw, std::vector<std::int32_t> &values,
                         std::vector<std::string> &labels, std::int32_t &nRows,
                         const std::vector<std::int32_t> &analyses, std::int32_t nAnalyses) {
    Numbers numbers = numbersOf(gDbCombs->Item(draw).comb());
    Rows rows(values, labels, nRows);
    for (std::int32_t i = 1; i <= nAnalyses; ++i)
        addAnalysis(rows, analyses[at(i)], draw, numbers);
}

std::int32_t CountDrawsSince(std::int32_t draw, std::int16_t a, std::int16_t b, std::int16_t c) {
    return drawsSince(draw, {{a, b, c}}).front();
}

} // namespace boulix::modStats
