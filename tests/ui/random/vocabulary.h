// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/random/dice.h"

#include <QKeyCombination>
#include <QString>

namespace boulix::testing_support::vocabulary {

/// Something to type: numbers at the edges of 16 bits and beyond, words, blanks, other scripts,
/// long and empty texts.
QString text(Dice &dice);
/// A key or a shortcut.
QKeyCombination key(Dice &dice);

} // namespace boulix::testing_support::vocabulary
