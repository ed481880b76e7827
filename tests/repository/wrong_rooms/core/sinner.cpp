// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QString>
#include "games/virtue.h"
#include "virtue.h"
#include <vector>
