// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/frmGridParam.h"

#include "core/globals.h"
#include "core/text.h"
#include "printing/gridConfig.h"
#include "printing/settingValue.h"
#include "sill/desktop.h"
#include "sill/reports.h"
#include "sill/typedField.h"

namespace boulix {

frmGridParam::frmGridParam()
    : txtUnit(gGridConfig->monneyUnit()), txtPrice(plainDecimal(gGridConfig->price())) {}

void frmGridParam::clickOK() {
    const std::string unit = trimmed(txtUnit);
    if (unit.empty()) {
        reportNumbered(601, "L'unité de monnaie doit être précisée.");
        return;
    }
    if (trimmed(txtPrice).empty())
        return;
    const float price =
        readField({"txtPrice", "Prix d'une grille", priceHolds}, txtPrice, typedNumber);
    gGridConfig->monneyUnit(unit);
    gGridConfig->price(price);
    gGridConfig->save();
    desktop().announce("Prix d'une grille : " + plainDecimal(price) + " " + unit);
    closed_ = true;
}

} // namespace boulix
