// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "forecastTest.h"
#include "plainRule.h"

#include <gtest/gtest.h>

namespace boulix {
namespace {

using testing_support::plainChosen;

class PronosAgainstPlain : public BoulixTest {
  protected:
    std::mt19937 random{20260101};

    std::int16_t upTo(int last) {
        return static_cast<std::int16_t>(random() % static_cast<unsigned>(last + 1));
    }
    /// A rule whose spans fit in front of its draw.
    pronos anyRule() {
        const std::int16_t base = static_cast<std::int16_t>(1 + upTo(gDbCombs->Count() - 1));
        pronos rule = ruleOf(static_cast<PronoType>(1 + upTo(3)), upTo(base - 1), upTo(base - 1),
                             1 + upTo(99));
        rule.baseTir(base);
        return rule;
    }
    void expectEqualOnRandomRules(int rounds) {
        for (int round = 0; round < rounds; ++round) {
            pronos rule = anyRule();
            rule.compute();
            ASSERT_EQ(chosenBy(rule), plainChosen(rule))
                << "type " << rule.pronoType() << " N " << rule.n() << " P " << rule.p() << " draw "
                << rule.baseTir();
        }
    }
};

TEST_F(PronosAgainstPlain, AgreesOnDrawsOfAllNumbers) {
    addRandomDraws(60, random);
    expectEqualOnRandomRules(150);
}

TEST_F(PronosAgainstPlain, AgreesOnDrawsOfFewNumbers) {
    addRandomDraws(40, random, 9);
    expectEqualOnRandomRules(100);
}

TEST_F(PronosAgainstPlain, AgreesOnDrawsWithRepeatedNumbersAndZeros) {
    for (int draw = 0; draw < 40; ++draw) {
        SevenNumbers numbers{};
        for (std::int16_t &n : numbers)
            n = static_cast<std::int16_t>(upTo(55) - 3);
        addDraw(numbers);
    }
    expectEqualOnRandomRules(100);
}

} // namespace
} // namespace boulix
