// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/typedField.h"

namespace boulix {

RuntimeFailure inField(const RuntimeFailure &failure, const TypedField &field,
                       const std::string &typed) {
    const std::string found =
        typed.empty() ? "rien n'y était écrit" : "il y avait « " + typed + " »";
    return withLine(failure,
                    "« " + field.caption + " » attend " + field.holds + " ; " + found + ".")
        .inBox(field.name);
}

} // namespace boulix
