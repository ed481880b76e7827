// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/games/displayGameDialog.h"

#include "workbench/frmDisplayGame.h"

namespace boulix {

DisplayGameDialog::DisplayGameDialog(frmDisplayGame &rules, QWidget *parent)
    : ListDialog(rules.lvwGame, QStringLiteral("Grilles du jeu"), parent) {
    setNames(QStringLiteral("frmDisplayGame"), QStringLiteral("lvwGame"));
}

} // namespace boulix
