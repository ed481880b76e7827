// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "forecasts/pronos.h"
#include "support/boulixTest.h"
#include "support/lottery.h"

#include <set>

namespace boulix::testing_support {

/// A rule with its parameters, looking back from the last draw of the base.
inline pronos ruleOf(PronoType type, std::int16_t n, std::int16_t p, std::int32_t points = 10) {
    pronos rule;
    rule.label("x");
    rule.pronoType(static_cast<std::int32_t>(type));
    rule.n(n);
    rule.p(p);
    rule.nPoint(points);
    rule.enableN(true);
    rule.enableP(type == PronoType::outButNotLately || type == PronoType::rare);
    rule.baseTir(static_cast<std::int16_t>(gDbCombs->Count()));
    return rule;
}

/// The numbers that have the points of the rule; all others have none.
inline std::set<int> chosenBy(const pronos &rule) {
    std::set<int> numbers;
    for (std::int16_t number = 1; number <= 49; ++number) {
        if (rule.nbrPoint(number) == 0)
            continue;
        EXPECT_EQ(rule.nbrPoint(number), rule.nPoint());
        numbers.insert(number);
    }
    return numbers;
}

/// All numbers but these.
inline std::set<int> allBut(const std::set<int> &left) {
    std::set<int> numbers;
    for (int number = 1; number <= 49; ++number)
        if (left.count(number) == 0)
            numbers.insert(number);
    return numbers;
}

} // namespace boulix::testing_support

namespace boulix {
using testing_support::allBut;
using testing_support::chosenBy;
using testing_support::ruleOf;
} // namespace boulix
