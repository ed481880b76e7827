// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stats/plainStats.h"

#include "core/globals.h"
#include "core/text.h"
#include "draws/dbCombs.h"

#include <algorithm>

namespace boulix::testing_support {

namespace {

int num(int draw, int k) {
    return gDbCombs->Item(draw).comb().num(k);
}

int compl_(int draw) {
    return gDbCombs->Item(draw).comb().compl_();
}

bool isAmongSix(int draw, int n) {
    for (int k = 1; k <= 6; ++k)
        if (num(draw, k) == n)
            return true;
    return false;
}

/// How often the chosen numbers are met in the draw.
int met(int draw, const std::vector<int> &chosen, int withCompl) {
    int m = 0;
    for (int k = 1; k <= 6; ++k)
        for (const int p : chosen)
            if (num(draw, k) == p)
                ++m;
    if (withCompl == 1)
        for (const int p : chosen)
            if (compl_(draw) == p)
                ++m;
    return m;
}

void clear(PlainStats::Values &values, int count, int value = 0) {
    for (int i = 1; i <= count; ++i)
        values[i] = value;
}

} // namespace

PlainStats::PlainStats() {
    for (int a = 1; a <= 47; ++a)
        for (int b = a + 1; b <= 48; ++b)
            for (int c = b + 1; c <= 49; ++c)
                tripletTable[{a, b, c}] = 0;
}

void PlainStats::compute(int type, int withCompl, int first, int last,
                         const std::vector<int> &chosen) {
    if (type >= 1 && type <= 5)
        frequency(type, chosen, withCompl, first, last);
    if (type == 6)
        sums(withCompl, first, last);
    if (type == 7)
        delays(withCompl, first, last);
    if (type == 8)
        currentRuns(withCompl, first, last);
    if (type == 9)
        maxAbsence(withCompl, first, last);
    if (type == 10)
        maxRun(withCompl, first, last);
    if (type == 11 || type == 12)
        triplets(withCompl);
    if (type == 12)
        filterTriplets(chosen);
    if (type >= 13 && type <= 16)
        periods(chosen, withCompl, first, last);
    if (type == 17)
        evenCount(withCompl, first, last);
}

void PlainStats::frequency(int type, const std::vector<int> &chosen, int withCompl, int first,
                           int last) {
    clear(statResult, 49);
    for (int i = first; i <= last; ++i) {
        if (type == 1) {
            for (int k = 1; k <= 6; ++k)
                ++statResult[num(i, k)];
            if (withCompl == 1)
                ++statResult[compl_(i)];
        } else if (met(i, chosen, withCompl) == static_cast<int>(chosen.size())) {
            for (int k = 1; k <= 6; ++k)
                ++statResult[num(i, k)];
            for (const int p : chosen)
                statResult[p] = 0;
        }
    }
}

void PlainStats::sums(int withCompl, int first, int last) {
    nStatResult = withCompl != 0 ? 322 : 279;
    clear(statResult, nStatResult);
    for (int i = first; i <= last; ++i) {
        const lotoComb &comb = gDbCombs->Item(i).comb();
        int sum = withCompl != 0 ? comb.sumtot() : comb.sum();
        const bool possible = withCompl != 0 ? sum >= 28 && sum <= 322 : sum >= 21 && sum <= 279;
        if (!possible) {
            sum = withCompl != 0 ? comb.compl_() : 0;
            for (int k = 1; k <= 6; ++k)
                sum += comb.num(k);
        }
        ++statResult[sum];
    }
}

void PlainStats::delays(int withCompl, int first, int last) {
    clear(statResult, 49);
    int found = 0;
    for (int i = last; i >= first; --i) {
        for (int k = 1; k <= 7; ++k) {
            if (k == 7 && withCompl != 1)
                continue;
            const int p = k == 7 ? compl_(i) : num(i, k);
            if (statResult[p] == 0) {
                statResult[p] = gDbCombs->Count() + 1 - i;
                ++found;
            }
        }
        if (found == 49)
            return;
    }
}

void PlainStats::currentRuns(int withCompl, int first, int last) {
    clear(statResult, 49);
    for (int k = 1; k <= 6; ++k)
        statResult[num(last, k)] = 1;
    statResult[compl_(last)] = 1;
    int c = 1;
    for (int i = last - 1; i >= first; --i) {
        bool changed = false;
        for (int k = 1; k <= 7; ++k) {
            if (k == 7 && withCompl != 1)
                continue;
            const int p = k == 7 ? compl_(i) : num(i, k);
            if (statResult[p] == c) {
                ++statResult[p];
                changed = true;
            }
        }
        if (!changed)
            return;
        ++c;
    }
}

void PlainStats::maxAbsence(int withCompl, int first, int last) {
    Values gap;
    clear(statResult, 49);
    for (int i = first; i <= last; ++i) {
        for (int n = 1; n <= 49; ++n)
            ++gap[n];
        for (int k = 1; k <= 7; ++k) {
            if (k == 7 && withCompl != 1)
                continue;
            const int p = k == 7 ? compl_(i) : num(i, k);
            statResult[p] = std::max(statResult[p], gap[p] - 1);
            gap[p] = 0;
        }
    }
}

void PlainStats::maxRun(int withCompl, int first, int last) {
    Values run;
    clear(run, 49, 1);
    Values seen;
    clear(statResult, 49, 1);
    for (int i = first + 1; i <= last; ++i) {
        const auto goesOn = [&](int p) {
            ++run[p];
            seen[p] = i;
            statResult[p] = std::max(statResult[p], run[p]);
        };
        for (int k = 1; k <= 6; ++k)
            if (isAmongSix(i - 1, num(i, k)))
                goesOn(num(i, k));
        if (withCompl == 1 && compl_(i) == compl_(i - 1))
            goesOn(compl_(i));
        for (int n = 1; n <= 49; ++n)
            if (seen[n] != i)
                run[n] = 1;
    }
}

void PlainStats::triplets(int withCompl) {
    for (auto &[triplet, flag] : tripletTable)
        flag = 0;
    for (int i = 1; i <= gDbCombs->Count(); ++i) {
        std::vector<int> numbers;
        for (int k = 1; k <= 6; ++k)
            numbers.push_back(num(i, k));
        if (withCompl == 1)
            numbers.push_back(compl_(i));
        std::sort(numbers.begin(), numbers.end());
        for (std::size_t x = 0; x < numbers.size(); ++x)
            for (std::size_t y = x + 1; y < numbers.size(); ++y)
                for (std::size_t z = y + 1; z < numbers.size(); ++z)
                    if (numbers[x] < numbers[y] && numbers[y] < numbers[z])
                        tripletTable[{numbers[x], numbers[y], numbers[z]}] = -1;
    }
}

void PlainStats::filterTriplets(const std::vector<int> &chosen) {
    for (auto &[triplet, flag] : tripletTable) {
        std::size_t marked = 0;
        for (const int n : triplet)
            for (const int p : chosen)
                if (n == p)
                    ++marked;
        if (marked < chosen.size())
            flag = -1;
    }
}

void PlainStats::periods(const std::vector<int> &chosen, int withCompl, int first, int last) {
    nStatPeriods = 0;
    bool inPeriod = false;
    for (int i = first; i <= last; ++i) {
        if (met(i, chosen, withCompl) < static_cast<int>(chosen.size())) {
            if (!inPeriod) {
                ++nStatPeriods;
                statPeriods[nStatPeriods] = 0;
                inPeriod = true;
            }
            ++statPeriods[nStatPeriods];
        } else {
            inPeriod = false;
        }
    }
}

void PlainStats::evenCount(int withCompl, int first, int last) {
    nStatResult = withCompl == 1 ? 8 : 7;
    clear(statResult, nStatResult);
    for (int i = first; i <= last; ++i) {
        int even = 0;
        for (int k = 1; k <= 6; ++k)
            if (num(i, k) % 2 == 0)
                ++even;
        if (withCompl == 1 && compl_(i) % 2 == 0)
            ++even;
        ++statResult[even + 1];
    }
}

int plainDrawsSince(int draw, int a, int b, int c) {
    int elapsed = 0;
    for (int i = draw - 1; i >= 1; --i) {
        ++elapsed;
        int m = 0;
        if (c != 0) {
            for (int k = 1; k <= 6; ++k)
                if (num(i, k) == a || num(i, k) == b || num(i, k) == c)
                    ++m;
            if (compl_(i) == a || compl_(i) == b)
                ++m;
            if (m == 3)
                return elapsed;
        } else if (b != 0) {
            for (int k = 1; k <= 6; ++k)
                if (num(i, k) == a || num(i, k) == b)
                    ++m;
            if (compl_(i) == a || compl_(i) == b)
                ++m;
            if (m == 2)
                return elapsed;
        } else if (isAmongSix(i, a) || compl_(i) == a) {
            return elapsed;
        }
    }
    return elapsed;
}

namespace {

using PlainRows = std::vector<std::pair<std::string, std::int32_t>>;

std::string twoDigits(int n) {
    return zeroPadded(n, 2);
}

void addGroups(PlainRows &rows, const std::vector<int> &numbers, int divisor,
               const std::string &group) {
    std::map<int, int> counts;
    for (const int n : numbers)
        ++counts[n / divisor + 1];
    int best = 0;
    int bestAt = 1;
    for (const auto &[number, count] : counts) {
        best = std::max(best, count);
        if (best == count)
            bestAt = number;
    }
    rows.emplace_back("Nombre maxi de numéros de la même " + group, best);
    rows.emplace_back((group == "septaine" ? "Septaine" : "Dizaine") +
                          std::string(" la plus représentée"),
                      bestAt - 1);
}

} // namespace

std::vector<std::pair<std::string, std::int32_t>> plainAnalysis(int draw,
                                                                const std::vector<int> &analyses) {
    PlainRows rows;
    std::vector<int> seven;
    for (int k = 1; k <= 6; ++k)
        seven.push_back(num(draw, k));
    seven.push_back(compl_(draw));
    const std::string elapsed = "Nombre de tirages écoulés pour le ";
    for (const int analysis : analyses) {
        if (analysis >= 4)
            std::sort(seven.begin(), seven.end());
        int sum = 0;
        int even = 0;
        for (std::size_t i = 0; i < 7; ++i) {
            sum += seven[i];
            even += seven[i] % 2 == 0;
        }
        if (analysis == 1)
            rows.emplace_back("Somme des numéros de la combinaison sans complémentaire",
                              sum - seven[6]);
        if (analysis == 2)
            rows.emplace_back("Somme des numéros de la combinaison avec complémentaire", sum);
        if (analysis == 3) {
            rows.emplace_back("Nombre de  numéros pairs", even);
            rows.emplace_back("Nombre de  numéros impairs", 7 - even);
        }
        for (std::size_t x = 0; x < 7; ++x) {
            const std::string a = twoDigits(seven[x]);
            if (analysis == 4)
                rows.emplace_back(elapsed + "numéro " + a, plainDrawsSince(draw, seven[x], 0, 0));
            for (std::size_t y = x + 1; y < 7; ++y) {
                const std::string ab = a + "," + twoDigits(seven[y]);
                if (analysis == 5)
                    rows.emplace_back(elapsed + "couple (" + ab + ")",
                                      plainDrawsSince(draw, seven[x], seven[y], 0));
                for (std::size_t z = y + 1; z < 7 && analysis == 6; ++z)
                    rows.emplace_back(elapsed + "triplé (" + ab + "," + twoDigits(seven[z]) + ")",
                                      plainDrawsSince(draw, seven[x], seven[y], seven[z]));
            }
        }
        if (analysis == 7)
            addGroups(rows, seven, 8, "septaine");
        if (analysis == 8)
            addGroups(rows, seven, 10, "dizaine");
    }
    return rows;
}

} // namespace boulix::testing_support
