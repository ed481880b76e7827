// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stats/modStats.h"

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "stats/plainStats.h"
#include "stats/statStores.h"
#include "stats/statTypes.h"
#include "stats/statsTest.h"

#include <gtest/gtest.h>
#include <random>

namespace boulix {
namespace {

using testing_support::PlainStats;

/// The statistics and their plain counterpart side by side, store by store.
class StatsAgainstPlain : public StatsTest {
  protected:
    void compareAll(int withCompl, std::int32_t first, std::int32_t last) {
        for (int type = 1; type <= modStats::statTypeCount; ++type)
            compare(type, withCompl, first, last);
    }

    void compare(int type, int withCompl, std::int32_t first, std::int32_t last) {
        const std::vector<std::int16_t> chosen = chooseFor(type);
        compute(type, withCompl, first, last, chosen);
        plain.compute(type, withCompl, first, last, {chosen.begin(), chosen.end()});
        SCOPED_TRACE("type " + std::to_string(type) + ", compl " + std::to_string(withCompl) +
                     ", " + std::to_string(first) + " to " + std::to_string(last) + " of " +
                     std::to_string(gDbCombs->Count()));
        compareResults();
        if (type == 11 || type == 12)
            compareTriplets();
    }

    int below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random); }
    std::int16_t number() { return static_cast<std::int16_t>(1 + below(49)); }

    /// Numbers of a random draw, now and then any numbers, so that all kinds of tuples are met.
    std::vector<std::int16_t> chooseFor(int type) {
        std::vector<std::int16_t> chosen;
        const auto n = static_cast<std::size_t>(modStats::statTypes(type).nNumbers);
        const lotoComb &comb = gDbCombs->Item(1 + below(gDbCombs->Count())).comb();
        for (int tries = 0; chosen.size() < n; ++tries) {
            const int k = 1 + below(8);
            std::int16_t p = k <= 6 ? comb.num(k) : k == 7 ? comb.compl_() : number();
            if (tries > 50)
                p = number();
            if (std::find(chosen.begin(), chosen.end(), p) == chosen.end())
                chosen.push_back(p);
        }
        return chosen;
    }

    PlainStats plain;
    std::mt19937 random{20011};

  private:
    void compareResults() {
        for (int i = 1; i <= modStats::statResult.size; ++i)
            ASSERT_EQ(modStats::statResult(i), plain.statResult[i]) << "entry " << i;
        ASSERT_EQ(modStats::nStatResult, plain.nStatResult);
        ASSERT_EQ(modStats::nStatPeriods, plain.nStatPeriods);
        for (int i = 1; i <= plain.nStatPeriods; ++i)
            ASSERT_EQ(modStats::statPeriods.at(static_cast<std::size_t>(i)), plain.statPeriods[i])
                << "period " << i;
    }

    void compareTriplets() {
        std::int32_t at = 0;
        for (const auto &[triplet, flag] : plain.tripletTable)
            ASSERT_EQ(modStats::tripletTable(++at).flag, flag) << "triplet " << at;
    }
};

/// What a made base is like.
struct Made {
    const char *name;
    int draws;
    int highest;        ///< numbers from 1 to this one
    bool equalAmongSix; ///< a number may stand twice among the six
    bool complAmongSix; ///< the complementary may be one of the six
    bool strangeSums;   ///< the stored sums may be anything
};

class MadeBase : public StatsAgainstPlain, public ::testing::WithParamInterface<Made> {
  protected:
    void make(const Made &made) {
        gDbCombs->clear();
        for (int i = 0; i < made.draws; ++i)
            addDraws({sevenOf(made)});
        if (made.strangeSums)
            for (int i = 1; i <= made.draws; ++i) {
                lotoComb &comb = gDbCombs->Item(i).comb();
                comb.sum(static_cast<std::int16_t>(below(400) - 50));
                comb.sumtot(static_cast<std::int16_t>(below(400) - 50));
            }
    }

  private:
    SevenNumbers sevenOf(const Made &made) {
        SevenNumbers numbers{};
        for (std::size_t k = 0; k < numbers.size();) {
            const auto p = static_cast<std::int16_t>(1 + below(made.highest));
            const auto end = numbers.begin() + static_cast<std::ptrdiff_t>(k);
            const bool known = std::find(numbers.begin(), end, p) != end;
            if (!known || (k == 6 ? made.complAmongSix : made.equalAmongSix))
                numbers[k++] = p;
        }
        return numbers;
    }
};

TEST_P(MadeBase, GivesWhatThePlainStatisticsGive) {
    for (int round = 0; round < 5 && !HasFatalFailure(); ++round) {
        make(GetParam());
        const std::int32_t count = gDbCombs->Count();
        for (const int withCompl : {0, 1, -1}) {
            compareAll(withCompl, 1, count);
            const auto first = static_cast<std::int32_t>(1 + below(count));
            compareAll(withCompl, first, first + below(count - first + 1));
            compareAll(withCompl, first, first);
            compareAll(withCompl, first, first - 1 == 0 ? 1 : first - 1);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Bases, MadeBase,
                         ::testing::Values(Made{"OrdinaryDraws", 300, 49, false, false, false},
                                           Made{"OneDraw", 1, 49, false, false, false},
                                           Made{"TwoDraws", 2, 10, false, false, false},
                                           Made{"FewNumbers", 60, 8, false, false, false},
                                           Made{"TheComplementaryAmongTheSix", 120, 12, false, true,
                                                false},
                                           Made{"EqualNumbersInADraw", 120, 12, true, true, false},
                                           Made{"AnyStoredSums", 200, 49, false, true, true}),
                         [](const auto &tested) { return tested.param.name; });

TEST_F(StatsAgainstPlain, TheRealHistoryGivesWhatThePlainStatisticsGive) {
    if (!importHistory())
        GTEST_SKIP() << noHistory;
    for (const int withCompl : {0, 1}) {
        compareAll(withCompl, 1, 4858);
        compareAll(withCompl, 1, 1000);
        compareAll(withCompl, 2000, 3500);
        compareAll(withCompl, 4800, 4858);
    }
}

} // namespace
} // namespace boulix
