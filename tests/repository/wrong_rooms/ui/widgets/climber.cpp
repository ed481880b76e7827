// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/draws/page.h"
#include "sill/upDown.h"
#include <QString>
