// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/failure.h"
#include "core/fileAccess.h"
#include "support/demand.h"
#include "support/quietProgram.h"
#include "winnings/rapport.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

using namespace boulix;
using fuzzing::demand;

namespace {

using Amounts = std::array<std::uint32_t, rapport::size>;

Amounts amountsOf(const rapport &table) {
    Amounts amounts{};
    for (std::int16_t i = 0; i < rapport::size; ++i)
        amounts[static_cast<std::size_t>(i)] = std::bit_cast<std::uint32_t>(table.Value(i));
    return amounts;
}

} // namespace

// The input is a prize table. It is taken as a whole or not at all, and what was taken comes back
// bit for bit from a file of our own.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static bench_support::QuietDesktop desktop;
    static const bench_support::QuietProgram program(desktop);
    desktop.fileName = program.file("table.rap");
    replaceFile(desktop.fileName, {reinterpret_cast<const char *>(data), size});
    rapport table;
    table.Value(10, 7);
    const Amounts before = amountsOf(table);
    if (!table.load()) {
        demand(amountsOf(table) == before, "a refused file changes no amount");
        return 0;
    }
    table.save(program.file(rapport::defaultName));
    desktop.fileName = program.file(rapport::defaultName);
    rapport back;
    demand(back.load(), "a saved table can be read");
    demand(amountsOf(back) == amountsOf(table), "amounts come back bit for bit");
    return 0;
}
