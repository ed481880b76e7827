// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/countWatch.h"

#include "sill/desktop.h"
#include "sill/frmProgress.h"

#include <cstdint>

namespace boulix {

bool CountWatch::advance(std::size_t done) {
    progress_.ProgressBar.value += static_cast<std::int64_t>(done);
    desktop().runEvents();
    return !progress_.cancelled();
}

} // namespace boulix
