// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/frmDisplayGame.h"

#include "core/text.h"
#include "games/gameDef.h"
#include "workbench/gridList.h"

namespace boulix {

frmDisplayGame::frmDisplayGame(const gameDef &def) {
    lvwGame.columns(gridList::columns());
    lvwGame.rows(def.nComb(), [&def](std::int64_t row, int column) {
        const auto position = static_cast<std::int32_t>(row + 1);
        if (column == 0)
            return zeroPadded(position, 2);
        return zeroPadded(def.sharedRow(position)->num(column), 2);
    });
}

} // namespace boulix
