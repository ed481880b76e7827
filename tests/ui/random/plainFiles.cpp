// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/random/plainFiles.h"

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "games/game.h"
#include "support/files.h"

#include <cstddef>
#include <cstring>
#include <stdexcept>
#include <utility>

namespace boulix::testing_support {

namespace {

constexpr std::size_t slot = 128;

/// The number that stands at this place of the file.
template <class Number>
Number at(const std::string &bytes, std::size_t place) {
    Number number{};
    if (place + sizeof number > bytes.size())
        throw std::runtime_error("a file is cut short");
    std::memcpy(&number, bytes.data() + place, sizeof number);
    return number;
}

/// How many slots with `used` bytes in each follow the header; the last one is not filled out.
std::size_t slotsOf(const std::string &bytes, std::size_t used) {
    if (bytes.size() < slot)
        return 0;
    if (bytes.size() % slot != used)
        throw std::runtime_error("a file has " + std::to_string(bytes.size()) + " bytes");
    return bytes.size() / slot;
}

} // namespace

std::vector<PlainDraw> drawsOnDisk(const std::string &fullName) {
    const std::string bytes = readBytes(fullName);
    std::vector<PlainDraw> draws(slotsOf(bytes, 28));
    for (std::size_t i = 0; i < draws.size(); ++i) {
        const std::size_t start = (i + 1) * slot;
        draws[i].day = at<double>(bytes, start);
        for (std::size_t f = 0; f < draws[i].fields.size(); ++f)
            draws[i].fields.at(f) = at<std::int16_t>(bytes, start + 8 + 2 * f);
    }
    return draws;
}

std::vector<PlainDraw> drawsInMemory() {
    std::vector<PlainDraw> draws;
    for (std::int32_t i = 1; i <= gDbCombs->Count(); ++i) {
        const dbComb &draw = std::as_const(*gDbCombs).Item(i);
        const lotoComb &comb = draw.comb();
        draws.push_back({draw.day(),
                         {draw.id(), comb.num(1), comb.num(2), comb.num(3), comb.num(4),
                          comb.num(5), comb.num(6), comb.compl_(), comb.sum(), comb.sumtot()}});
    }
    return draws;
}

std::vector<PlainGrid> gridsOnDisk(const std::string &fullName) {
    const std::string bytes = readBytes(fullName);
    std::vector<PlainGrid> grids(slotsOf(bytes, 14));
    for (std::size_t i = 0; i < grids.size(); ++i)
        for (std::size_t f = 0; f < grids[i].size(); ++f)
            grids[i].at(f) = at<std::int16_t>(bytes, (i + 1) * slot + 2 * f);
    return grids;
}

std::vector<PlainGrid> gridsInMemory() {
    std::vector<PlainGrid> grids;
    for (const gameComb &grid : std::as_const(*currentGame))
        grids.push_back({grid.num(1), grid.num(2), grid.num(3), grid.num(4), grid.num(5),
                         grid.num(6), grid.sum()});
    return grids;
}

} // namespace boulix::testing_support
