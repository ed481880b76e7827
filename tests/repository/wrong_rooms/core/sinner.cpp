// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/virtue.h"
#include "virtue.h"
#include <QString>
#include <vector>
