// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/fuzzPlace.h"

#include "core/failure.h"

using namespace boulix;
using fuzzing::demand;

// The input is a file of the operator, imported into an empty base.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static fuzzing::FuzzPlace place;
    gDbCombs->clear();
    place.desktop.fileName = place.write("import.txt", data, size);
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
    const auto size128 = static_cast<std::uintmax_t>(gDbCombs->Count()) * 128 + 28;
    demand(std::filesystem::file_size(place.baseFile()) == size128, "the base was saved whole");
    return 0;
}
