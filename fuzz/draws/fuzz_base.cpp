// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/failure.h"
#include "core/fileAccess.h"
#include "support/demand.h"
#include "support/quietProgram.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

using namespace boulix;
using fuzzing::demand;

// The input is a draw base file; what was loaded is sorted, which must neither lose a draw nor
// leave the base, whatever days the file holds.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static bench_support::QuietDesktop desktop;
    static const bench_support::QuietProgram program(desktop);
    replaceFile(program.baseFile(), {reinterpret_cast<const char *>(data), size});
    try {
        gDbCombs->load();
    } catch (const RuntimeFailure &) {
        return 0;
    }
    const double slots = (static_cast<double>(size) - 86) / 128;
    const std::int32_t count = gDbCombs->Count();
    demand(count == 0 || count == static_cast<std::int32_t>(std::nearbyint(slots)),
           "the length of the file says how many draws it holds");
    demand(std::filesystem::file_size(program.baseFile()) == size, "a load leaves the file alone");
    if (count > 0)
        gDbCombs->sort();
    demand(gDbCombs->Count() == count, "a sort keeps all draws");
    return 0;
}
