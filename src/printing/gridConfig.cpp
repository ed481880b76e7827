// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/gridConfig.h"

#include "core/settings.h"
#include "core/text.h"
#include "printing/settingValue.h"

namespace boulix {

namespace {

constexpr const char *section = "grille";
constexpr const char *unitKey = "unite_monnaie";
constexpr const char *priceKey = "prix_grille";

} // namespace

void gridConfig::load() {
    monneyUnit_ = settings::read(section, unitKey, "euro");
    price_ = settingNumber(section, priceKey, "0.6");
}

void gridConfig::save() const {
    settings::write(section, unitKey, monneyUnit_);
    settings::write(section, priceKey, plainDecimal(price_));
}

} // namespace boulix
