// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/upDown.h"

#include <algorithm>

namespace boulix {

void upDown::range(std::int32_t first, std::int32_t last) {
    min_ = first;
    max_ = last;
    set(value_);
}

void upDown::set(std::int32_t value) {
    if (min_ > max_)
        return;
    const std::int32_t inside = std::clamp(value, min_, max_);
    if (inside == value_)
        return;
    value_ = inside;
    if (changed)
        changed();
}

} // namespace boulix
