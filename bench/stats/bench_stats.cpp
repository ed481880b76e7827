// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
// The statistics over a whole base, and the analysis of one draw.
//
//   bench_stats                        4858, 50 000 and 200 000 made draws
//   bench_stats --history=FILE         4858 draws become those of the operator's file
//   bench_stats --write=FOLDER         writes base and answers there for the peers, measures
//   nothing
#include "core/globals.h"
#include "core/modMaths.h"
#include "core/numberMask.h"
#include "draws/dbCombs.h"
#include "draws/drawIndex.h"
#include "sill/selector.h"
#include "stats/bases.h"
#include "stats/drawAnalysis.h"
#include "stats/modStats.h"
#include "stats/statStores.h"
#include "stats/statTable.h"
#include "stats/statTypes.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <fstream>
#include <string>

namespace boulix::bench {

namespace {

constexpr std::int32_t usualCount = 4858;
constexpr std::int32_t quarterCount = 50000;
constexpr std::int32_t largeCount = 200000;

std::string history; // empty: made draws

void useBase(std::int32_t count) {
    if (gDbCombs->Count() == count)
        return;
    if (count == usualCount && !history.empty())
        readHistory(history);
    else
        makeBase(count);
}

/// The numbers that the user chooses for `type`: the first ones of the newest draw.
std::uint64_t chosenFor(std::int16_t type) {
    const lotoComb &newest = gDbCombs->Item(gDbCombs->Count()).comb();
    std::uint64_t chosen = 0;
    for (int i = 1; i <= modStats::statTypes(type).nNumbers; ++i)
        chosen |= numberBit(newest.num(i));
    return chosen;
}

/// A selector as the dialog leaves it after one number was chosen.
selector holding(std::uint64_t chosen) {
    selector chooser;
    chooser.setSelect(1, 1);
    chooser.setPrevSelect(1, {static_cast<std::int16_t>(std::countr_zero(chosen))});
    return chooser;
}

/// Computes `type` over the whole base, without the dialog.
void compute(std::int16_t type, std::int16_t withCompl, std::uint64_t chosen) {
    using namespace modStats;
    const std::int32_t last = gDbCombs->Count();
    switch (type) {
    case 6:
        return ComputeSums(withCompl, 1, last);
    case 7:
        return ComputeDelays(withCompl, 1, last);
    case 8:
        return ComputeCurrentRuns(withCompl, 1, last);
    case 9:
        return ComputeMaxAbsence(withCompl, 1, last);
    case 10:
        return ComputeMaxRun(withCompl, 1, last);
    case 11:
        return ComputeTriplets(withCompl);
    case 12:
        ComputeTriplets(withCompl);
        return FilterTriplets(holding(chosen));
    case 13:
    case 14:
    case 15:
    case 16:
        return ComputePeriods(chosen, withCompl, 1, last);
    case 17:
        return ComputeEvenCount(withCompl, 1, last);
    default:
        return ComputeFrequency(type, chosen, withCompl, 1, last);
    }
}

void statistic(benchmark::State &state, std::int16_t type, std::int16_t withCompl,
               std::int32_t count) {
    useBase(count);
    const std::uint64_t chosen = chosenFor(type);
    for (auto step : state) {
        compute(type, withCompl, chosen);
        benchmark::ClobberMemory();
    }
}

/// What the first computation after a change of the base costs in addition.
void indexing(benchmark::State &state, std::int32_t count) {
    useBase(count);
    const std::vector<dbComb> draws(gDbCombs->begin(), gDbCombs->end());
    for (auto step : state)
        benchmark::DoNotOptimize(drawIndex(draws));
}

/// One step of the spin control of the analysis page: all 71 rows of the newest draw.
void analyse(benchmark::State &state, std::int32_t count) {
    const std::vector<std::int32_t> all = {0, 1, 2, 3, 4, 5, 6, 7, 8};
    std::vector<std::int32_t> values;
    std::vector<std::string> labels;
    std::int32_t nRows = 0;
    for (auto step : state) {
        modStats::ComputeDrawAnalysis(count, values, labels, nRows, all, 8);
        benchmark::DoNotOptimize(values.data());
    }
}

void analysis(benchmark::State &state, std::int32_t count) {
    useBase(count);
    analyse(state, count);
}

/// The same where nothing is found, so that the whole base is searched.
void vainAnalysis(benchmark::State &state, std::int32_t count) {
    makeBaseWithNewNumbers(count);
    analyse(state, count);
    gDbCombs->clear();
}

/// A click on the button of type 11 on a base of one draw: nearly all triplets are listed.
void tripletList(benchmark::State &state) {
    makeBase(1);
    std::size_t bytes = 0;
    for (auto step : state) {
        modStats::ComputeTriplets(0);
        const modStats::StatTable table = modStats::statTable(11, selector());
        const std::string summary = modStats::statSummary(11, selector());
        bytes = table.cells.capacity() * sizeof(table.cells[0]);
        benchmark::DoNotOptimize(summary.data());
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}

void registerAll() {
    benchmark::RegisterBenchmark("list11", tripletList);
    for (const std::int32_t count : {usualCount, quarterCount, largeCount}) {
        const std::string draws = "/" + std::to_string(count);
        for (std::int16_t type = 1; type <= modStats::statTypeCount; ++type)
            for (const std::int16_t withCompl : {std::int16_t{0}, std::int16_t{1}}) {
                const std::string name =
                    "type" + std::to_string(type) + "/compl" + std::to_string(withCompl) + draws;
                benchmark::RegisterBenchmark(name.c_str(), statistic, type, withCompl, count);
            }
        benchmark::RegisterBenchmark(("analysis" + draws).c_str(), analysis, count);
        benchmark::RegisterBenchmark(("vain" + draws).c_str(), vainAnalysis, count);
        benchmark::RegisterBenchmark(("index" + draws).c_str(), indexing, count);
    }
}

void writeBase(const std::string &fileName) {
    std::ofstream file(fileName);
    for (const dbComb &draw : *gDbCombs) {
        for (int i = 1; i <= lotoComb::size; ++i)
            file << draw.comb().num(i) << ' ';
        file << draw.comb().compl_() << ' ' << draw.comb().sum() << ' ' << draw.comb().sumtot()
             << '\n';
    }
}

void writeAnswer(std::ofstream &file, std::int16_t type) {
    using namespace modStats;
    if (type == 11 || type == 12)
        for (const Triplet &triplet : tripletTable)
            file << ' ' << triplet.flag;
    else if (type >= 13 && type <= 16)
        for (std::int32_t i = 1; i <= nStatPeriods; ++i)
            file << ' ' << statPeriods[static_cast<std::size_t>(i)];
    else
        for (std::int32_t i = 1; i <= (type == 6 || type == 17 ? nStatResult : lastNumber); ++i)
            file << ' ' << statResult(i);
}

/// What the peers need: the draws, and what each type must come to.
void writeForPeers(const std::string &folder) {
    useBase(usualCount);
    writeBase(folder + "/draws.txt");
    std::ofstream answers(folder + "/answers.txt");
    for (std::int16_t type = 1; type <= modStats::statTypeCount; ++type)
        for (const std::int16_t withCompl : {std::int16_t{0}, std::int16_t{1}}) {
            compute(type, withCompl, chosenFor(type));
            answers << type << ' ' << withCompl;
            writeAnswer(answers, type);
            answers << '\n';
        }
}

std::string valueOf(const std::string &argument, const std::string &option) {
    return argument.rfind(option, 0) == 0 ? argument.substr(option.size()) : std::string();
}

} // namespace
} // namespace boulix::bench

int main(int argc, char **argv) {
    using namespace boulix;
    modMaths::precomputeCnk();
    modStats::InitStatTypes();
    modStats::InitTripletTable();
    benchmark::Initialize(&argc, argv);
    std::string folder;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (!bench::valueOf(argument, "--history=").empty())
            bench::history = bench::valueOf(argument, "--history=");
        if (!bench::valueOf(argument, "--write=").empty())
            folder = bench::valueOf(argument, "--write=");
    }
    if (!folder.empty()) {
        bench::writeForPeers(folder);
        return 0;
    }
    bench::registerAll();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
