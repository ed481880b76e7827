// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "plainRule.h"

#include "core/globals.h"
#include "draws/dbCombs.h"

namespace boulix::testing_support {

namespace {

bool present(int number, int draw) {
    return gDbCombs->Item(draw).comb().isInside(static_cast<std::int16_t>(number), true);
}

int timesOut(int number, int baseTir, int span) {
    int times = 0;
    for (int draw = baseTir - span; draw <= baseTir; ++draw)
        if (present(number, draw))
            ++times;
    return times;
}

bool inACouple(int number, int baseTir, int span) {
    for (int draw = baseTir - span; draw <= baseTir; ++draw)
        for (int other = 1; other <= 49; ++other)
            if (other != number && present(number, draw) && present(other, draw))
                return true;
    return false;
}

bool chosen(const pronos &rule, int number) {
    switch (rule.pronoType()) {
    case 1:
        return timesOut(number, rule.baseTir(), rule.n()) > 0 &&
               timesOut(number, rule.baseTir(), rule.p()) == 0;
    case 2:
        return timesOut(number, rule.baseTir(), rule.n()) == 0;
    case 3:
        return !inACouple(number, rule.baseTir(), rule.n());
    case 4:
        return timesOut(number, rule.baseTir(), rule.p()) <= rule.n();
    default:
        return false;
    }
}

} // namespace

std::set<int> plainChosen(const pronos &rule) {
    std::set<int> numbers;
    for (int number = 1; number <= 49; ++number)
        if (chosen(rule, number))
            numbers.insert(number);
    return numbers;
}

} // namespace boulix::testing_support
