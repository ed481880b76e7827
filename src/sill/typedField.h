// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/failure.h"

#include <string>

namespace boulix {

/// A box of a window into which the user types a value.
struct TypedField {
    std::string name;    ///< the object name of the box
    std::string caption; ///< what stands beside it: "Prix d'une grille"
    std::string holds;   ///< what it may hold: "un nombre entier de 1 à 49"
};

/// A failure that `typed` has brought in `field`: a line more says what the box may hold and what
/// stood in it, and who shows the failure gives the focus back to the box.
RuntimeFailure inField(const RuntimeFailure &failure, const TypedField &field,
                       const std::string &typed);

/// What `read(typed)` gives; a failure of it is one of this field.
template <class Read>
auto readField(const TypedField &field, const std::string &typed, Read read) {
    try {
        return read(typed);
    } catch (const RuntimeFailure &failure) {
        throw inField(failure, field, typed);
    }
}

} // namespace boulix
