// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/systemOptimiser.h"

#include "games/coveringRecords.h"
#include "games/gameDef.h"
#include "games/modGame.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace boulix {

using namespace covering;

namespace {

/// The whole search and the parts take turns of so much work.
constexpr std::int64_t quantum = 4'000'000;
constexpr std::size_t mostDivisions = 8;
/// All parts keep their problems in memory, so they must not be large.
constexpr std::int64_t mostPartSets = 3'000'000;

CoveringDesign designOf(const Guarantee &g) {
    return {g.nSelect - g.nFixed, 6 - g.nFixed, g.nWin - g.nFixed, g.nCond - g.nFixed};
}

PointSet blockOf(const gameComb &row, int fixed) {
    PointSet block = 0;
    for (const std::int16_t n : row.numbers())
        if (n > fixed)
            block |= PointSet{1} << (n - fixed - 1);
    return block;
}

Blocks blocksOf(const std::vector<gameComb> &rows, int fixed) {
    Blocks blocks;
    for (const gameComb &row : rows)
        blocks.push_back(blockOf(row, fixed));
    return blocks;
}

gameComb rowOf(PointSet block, int fixed) {
    gameComb::Numbers numbers{};
    auto at = numbers.begin();
    for (int n = 1; n <= fixed; ++n)
        *at++ = static_cast<std::int16_t>(n);
    for (int point = 0; at != numbers.end(); ++point)
        if ((block >> point & 1U) != 0)
            *at++ = static_cast<std::int16_t>(point + fixed + 1);
    return gameComb(numbers);
}

Blocks smallest(const Guarantee &guarantee, const std::vector<std::vector<gameComb>> &systems) {
    const std::vector<gameComb> *best = nullptr;
    for (const std::vector<gameComb> &rows : systems)
        if ((!best || rows.size() < best->size()) && keepsGuarantee(rows, guarantee))
            best = &rows;
    return best ? blocksOf(*best, guarantee.nFixed) : Blocks();
}

/// A covering to begin with: whatever lies open gets a block of its own, filled up.
Blocks simpleCovering(const CoveringDesign &design) {
    std::vector<bool> covered(static_cast<std::size_t>(binomial(design.points, design.strength)));
    Blocks blocks;
    std::size_t rank = 0;
    const PointSet end = PointSet{1} << design.points;
    for (PointSet set = firstSubset(design.strength); set < end; set = nextSubset(set), ++rank) {
        if (covered[rank])
            continue;
        PointSet block = set;
        for (PointSet point = 1; std::popcount(block) < design.blockSize; point <<= 1U)
            block |= point;
        for (const PointSet subset : subsetsOf(block, design.strength))
            covered[rankOf(subset)] = true;
        blocks.push_back(block);
    }
    return blocks;
}

using Parts = std::vector<CoveringDesign>;

std::int64_t boundOf(const Parts &parts) {
    std::int64_t bound = 0;
    for (const CoveringDesign &part : parts)
        bound += lowerBound(part);
    return bound;
}

/// Adds the ways to serve `rest` behind the parts chosen already, no part with fewer than `lowest`
/// drawn points. Points that are left unplayed cost one drawn point each; of two parts, with a and
/// b points drawn, one gets its share when a + b - 1 points are drawn in all.
void addWays(std::vector<Parts> &ways, Parts &chosen, const CoveringDesign &rest, int lowest) {
    for (int drawn = lowest; drawn <= rest.drawn; ++drawn) {
        CoveringDesign last = rest;
        last.drawn = drawn;
        last.points -= rest.drawn - drawn;
        if (last.points < last.blockSize || last.points < drawn)
            continue;
        ways.push_back(chosen);
        ways.back().push_back(last);
    }
    for (int drawn = lowest; 2 * drawn <= rest.drawn + 1; ++drawn)
        for (int size = rest.blockSize; size + rest.blockSize <= rest.points; ++size) {
            CoveringDesign part = rest;
            part.points = size;
            part.drawn = drawn;
            CoveringDesign others = rest;
            others.points -= size;
            others.drawn -= drawn - 1;
            chosen.push_back(part);
            addWays(ways, chosen, others, drawn);
            chosen.pop_back();
        }
}

/// All divisions, those with the lowest bounds first.
std::vector<Parts> divisionsOf(const CoveringDesign &whole) {
    std::vector<Parts> ways;
    Parts chosen;
    if (whole.strength > 1) // else one point of each block counts: the whole search finds the best
        addWays(ways, chosen, whole, whole.strength);
    std::erase(ways, Parts{whole});
    std::erase_if(ways, [](const Parts &parts) {
        return std::any_of(parts.begin(), parts.end(), [](const CoveringDesign &part) {
            return SetCover::sets(part) > mostPartSets;
        });
    });
    std::stable_sort(ways.begin(), ways.end(),
                     [](const Parts &a, const Parts &b) { return boundOf(a) < boundOf(b); });
    // The plain covering of fewer points needs no luck.
    const CoveringDesign plain{whole.points - (whole.drawn - whole.strength), whole.blockSize,
                               whole.strength, whole.strength};
    std::erase(ways, Parts{plain});
    if (plain.points >= plain.blockSize)
        ways.insert(ways.begin(), Parts{plain});
    return ways;
}

} // namespace

std::vector<std::vector<gameComb>> carriedSystems(const Guarantee &guarantee) {
    std::vector<std::vector<gameComb>> systems;
    for (std::int32_t i = 1; i <= modGame::nPredefReduced; ++i) {
        const gameDef &def = modGame::reducedGames[static_cast<std::size_t>(i)];
        if (def.nSelect() == guarantee.nSelect && guarantee.nFixed == 0)
            systems.push_back(systemRows(def));
    }
    return systems;
}

std::vector<gameComb> systemRows(const gameDef &def) {
    std::vector<gameComb> rows;
    for (std::int32_t i = 1; i <= def.nComb(); ++i)
        rows.push_back(*def.sharedRow(i));
    return rows;
}

SystemOptimiser::SystemOptimiser(const Guarantee &guarantee,
                                 const std::vector<std::vector<gameComb>> &systems,
                                 std::uint64_t seed)
    : guarantee_(guarantee), direct_(designOf(guarantee), smallest(guarantee, systems), seed) {
    if (guarantee.nCond > guarantee.nWin && !direct_.finished())
        divide(seed);
}

/// Takes those divisions whose parts have the lowest bounds together.
void SystemOptimiser::divide(std::uint64_t seed) {
    const std::vector<std::vector<CoveringDesign>> ways = divisionsOf(direct_.design());
    for (std::size_t i = 0; i < std::min(ways.size(), mostDivisions); ++i) {
        Division division;
        int offset = 0;
        for (const CoveringDesign &part : ways[i]) {
            division.push_back(
                {offset, std::make_unique<CoveringOptimiser>(part, simpleCovering(part), seed)});
            offset += part.points;
        }
        divisions_.push_back(std::move(division));
    }
}

void SystemOptimiser::run(std::int64_t work) {
    for (; work > 0 && !finished(); work -= quantum) {
        const std::int64_t piece = std::min(work, quantum);
        if (!divisions_.empty() && (turn_ % 2 == 0 || direct_.exhausted()))
            runParts(piece);
        else
            direct_.run(piece);
        ++turn_;
    }
}

/// Goes on with the part whose turn it is; a division that is now the best one is taken over.
void SystemOptimiser::runParts(std::int64_t work) {
    std::size_t count = 0;
    for (const Division &division : divisions_)
        count += division.size();
    std::size_t turn = turn_ / 2 % count;
    for (Division &division : divisions_) {
        if (turn >= division.size()) {
            turn -= division.size();
            continue;
        }
        division[turn].search->run(work);
        Blocks joined;
        for (const Part &part : division)
            for (const PointSet block : part.search->best())
                joined.push_back(block << part.offset);
        direct_.offer(joined);
        return;
    }
}

bool SystemOptimiser::finished() const {
    if (direct_.finished())
        return true;
    if (!direct_.exhausted())
        return false;
    for (const Division &division : divisions_)
        for (const Part &part : division)
            if (!part.search->finished() && !part.search->exhausted())
                return false;
    return true;
}

std::vector<gameComb> SystemOptimiser::rows() const {
    std::vector<gameComb> rows;
    for (const PointSet block : direct_.best())
        rows.push_back(rowOf(block, guarantee_.nFixed));
    std::sort(rows.begin(), rows.end(),
              [](const gameComb &a, const gameComb &b) { return a.numbers() < b.numbers(); });
    return rows;
}

std::optional<std::int64_t> SystemOptimiser::record() const {
    return knownRecord(direct_.design());
}

} // namespace boulix
