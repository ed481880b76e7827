// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/failure.h"
#include "core/fileAccess.h"
#include "eliminators/eliminators.h"
#include "support/demand.h"
#include "support/quietProgram.h"

#include <cstddef>
#include <cstdint>

using namespace boulix;
using fuzzing::demand;

// The input is a file of elimination rules. What was loaded is checked, saved and loaded again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static bench_support::QuietDesktop desktop;
    static const bench_support::QuietProgram program(desktop);
    desktop.fileName = program.file("regles.elm");
    replaceFile(desktop.fileName, {reinterpret_cast<const char *>(data), size});
    eliminators rules;
    rules.init();
    try {
        if (!rules.load()) {
            demand(rules.Count() == 0, "a refused file leaves no rules");
            return 0;
        }
    } catch (const RuntimeFailure &) {
        demand(rules.Count() <= eliminators::ruleCount, "no rule too many");
        return 0;
    }
    demand(rules.Count() == eliminators::ruleCount, "always eight rules");
    rules.verify();

    rules.save();
    eliminators again;
    demand(again.load(), "saved rules load back");
    for (int i = 1; i <= eliminators::ruleCount; ++i) {
        const eliminator &rule = rules.Item(i);
        const eliminator &copy = again.Item(i);
        demand(copy.Value() == rule.Value() && copy.ValMin() == rule.ValMin() &&
                   copy.ValMax() == rule.ValMax() && copy.status() == rule.status(),
               "with their values");
    }
    return 0;
}
