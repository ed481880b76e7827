// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/sinner.h"
#include "draws/dbCombs.h"
