// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/failure.h"
#include "core/fileAccess.h"
#include "core/text.h"
#include "forecasts/pronostics.h"
#include "support/demand.h"
#include "support/quietProgram.h"

#include <cstddef>
#include <cstdint>

using namespace boulix;
using fuzzing::demand;

namespace {

bool sameRule(const pronos &a, const pronos &b) {
    return toWestern(a.label()) == toWestern(b.label()) && a.n() == b.n() && a.p() == b.p() &&
           a.nPoint() == b.nPoint() && a.pronoType() == b.pronoType() &&
           a.enableN() == b.enableN() && a.enableP() == b.enableP();
}

} // namespace

// The input is a file of forecast rules. However it was read, the rules that a save can hold come
// back as they were.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static bench_support::QuietDesktop desktop;
    static const bench_support::QuietProgram program(desktop);
    const std::string name = program.file("rules.pro");
    replaceFile(name, {reinterpret_cast<const char *>(data), size});
    pronostics rules;
    try {
        rules.load(name);
    } catch (const RuntimeFailure &) { // a number beyond its width: the rules before it are there
    }
    rules.save(name);
    pronostics back;
    back.load(name);
    demand(back.Count() <= rules.Count(), "a save invents no rule");
    for (std::int32_t i = 1; i <= back.Count(); ++i)
        demand(sameRule(back.Item(i), rules.Item(i)), "a rule comes back as it was");
    const bool allFit = back.Count() == rules.Count();
    demand(allFit || rules.Item(back.Count() + 1).toString(256).empty(),
           "only a text that is too long ends the file");
    return 0;
}
