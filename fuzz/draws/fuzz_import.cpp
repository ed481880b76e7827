// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/failure.h"
#include "core/fileAccess.h"
#include "support/demand.h"
#include "support/quietProgram.h"

#include <cstddef>
#include <cstdint>

using namespace boulix;
using fuzzing::demand;

// The input is a file of the operator, imported into an empty base.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static bench_support::QuietDesktop desktop;
    static const bench_support::QuietProgram program(desktop);
    gDbCombs->clear();
    desktop.fileName = program.file("import.txt");
    replaceFile(desktop.fileName, {reinterpret_cast<const char *>(data), size});
    try {
        if (!gDbCombs->ImportFdjFile()) {
            demand(gDbCombs->Count() == 0, "a refused file leaves the base alone");
            return 0;
        }
    } catch (const RuntimeFailure &) {
        return 0;
    }
    for (std::int32_t i = 2; i <= gDbCombs->Count(); ++i)
        demand(gDbCombs->Item(i).isGreater(gDbCombs->Item(i - 1)),
               "an imported base is in order and without doubles");
    const auto wholeSize = static_cast<std::uintmax_t>(gDbCombs->Count()) * 128 + 28;
    demand(std::filesystem::file_size(program.baseFile()) == wholeSize, "the base was saved whole");
    return 0;
}
