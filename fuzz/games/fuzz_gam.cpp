// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/failure.h"
#include "core/fileAccess.h"
#include "files/xFile.h"
#include "games/gameDef.h"
#include "support/demand.h"
#include "support/quietProgram.h"

#include <cstddef>
#include <cstdint>

using namespace boulix;
using fuzzing::demand;

namespace {

std::shared_ptr<xFile> placed(const bench_support::QuietProgram &program, const char *name) {
    auto file = std::make_shared<xFile>();
    file->fullName(program.file(name));
    return file;
}

} // namespace

// The input is a file of a definition. What was loaded holds no more rows than the file has room
// for, and what was refused has changed nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static bench_support::QuietDesktop desktop;
    static const bench_support::QuietProgram program(desktop);
    replaceFile(program.file("jeu.gam"), {reinterpret_cast<const char *>(data), size});
    gameDef def;
    def.label("avant");
    def.file(placed(program, "jeu.gam"));
    bool loaded = false;
    try {
        loaded = def.load();
    } catch (const RuntimeFailure &) {
    }
    if (!loaded) {
        demand(def.label() == "avant" && def.nComb() == 0 && def.file()->name() == "jeu.gam",
               "a refused file leaves the definition alone");
        return 0;
    }
    demand(static_cast<std::size_t>(def.nComb()) <= size / 128, "each row has a slot of its own");

    def.file(placed(program, "copie.gam"));
    def.save(-1, -1);
    gameDef again;
    again.file(placed(program, "copie.gam"));
    demand(again.load(), "a saved definition loads back");
    demand(again.nComb() == def.nComb() && again.nSelect() == def.nSelect(), "with its rows");
    for (std::int32_t i = 1; i <= def.nComb(); ++i)
        demand(again.sharedRow(i)->numbers() == def.sharedRow(i)->numbers(), "number by number");
    return 0;
}
