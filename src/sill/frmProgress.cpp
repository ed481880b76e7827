// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/frmProgress.h"

#include "core/failure.h"
#include "core/numbers.h"
#include "sill/desktop.h"

namespace boulix {

void progressBar::range(std::int64_t first, std::int64_t last) {
    if (last < first)
        fail(Failure::invalidPropertyValue);
    min = first;
    max = last;
    value = first;
}

bool frmProgress::cancelled() const {
    // The tag is mostly untouched, and some loops ask for each few steps of many millions.
    return cancelTag != "0" && numericPrefix(cancelTag) == 1;
}

ProgressShown::ProgressShown(const std::string &caption, const std::string &info) {
    window_.caption = caption;
    window_.lblInfo = info;
    window_.ProgressBar2.visible = false;
    desktop().progressLoaded(window_);
}

ProgressShown::~ProgressShown() {
    unload();
}

void ProgressShown::unload() {
    if (!loaded_)
        return;
    loaded_ = false;
    desktop().progressUnloaded();
}

} // namespace boulix
