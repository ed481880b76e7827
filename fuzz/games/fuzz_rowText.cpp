// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/failure.h"
#include "games/gameComb.h"
#include "support/demand.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

using namespace boulix;
using fuzzing::demand;

// The input is the text form of a row. A row of exactly six fields is summed, and comes out the
// same when its numbers are written down again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string text(reinterpret_cast<const char *>(data), size);
    gameComb row;
    try {
        row.fromString(text);
    } catch (const RuntimeFailure &failure) {
        const int number = failure.number();
        demand(number == 6 || number == 9 || number == 13, "the failures of a row's text");
        return 0;
    }
    const auto bars = std::count(text.begin(), text.end(), '/');
    demand(bars <= 6, "a seventh bar is a failure");
    if (bars < 5)
        return 0;
    demand(row.sum() == row.total(), "the sum is that of the numbers");
    std::string again;
    for (const std::int16_t n : row.numbers())
        again += (again.empty() ? "" : " / ") + std::to_string(n);
    gameComb other;
    other.fromString(again);
    demand(other.numbers() == row.numbers(), "the text form gives the row back");
    return 0;
}
