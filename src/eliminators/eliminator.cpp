// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "eliminators/eliminator.h"

#include "core/numbers.h"
#include "core/text.h"
#include "sill/reports.h"

namespace boulix {

namespace {

bool passesGuard(int index) {
    return index >= 0 && index <= eliminator::lastNumber;
}

/// The place of the flag of number `index`: the guard lets 0 through, the array does not.
std::size_t place(int index) {
    return static_cast<std::size_t>(checkedIndex(index, 1, eliminator::lastNumber) - 1);
}

void reportFatal(int number) {
    reportNumbered(
        number, std::string("Erreur fatale!!!") + crlf + "Veuillez contacter le support technique.",
        Icon::critical);
}

} // namespace

std::int16_t eliminator::eliminNbr(int index) const {
    if (!passesGuard(index)) {
        reportFatal(2802);
        return off;
    }
    return flags_[place(index)];
}

void eliminator::eliminNbr(int index, std::int16_t word) {
    if (!passesGuard(index)) {
        reportFatal(2801);
        return;
    }
    flags_[place(index)] = word;
}

} // namespace boulix
