// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/numberBoard.h"

#include "core/numbers.h"

#include <algorithm>

namespace boulix {

void NumberBoard::editable(bool takesClicks) {
    editable_ = takesClicks;
    changed();
}

void NumberBoard::clearSelection() {
    marked_.clear();
    complementary_ = 0;
    changed();
}

void NumberBoard::selectNumber(std::int16_t n) {
    if (n < 1 || n > lastNumber || isSelected(n))
        return;
    marked_.push_back(n);
    changed();
}

void NumberBoard::selectComplementary(std::int16_t n) {
    selectNumber(n);
    if (isSelected(n))
        complementary_ = n;
    changed();
}

void NumberBoard::complementaryAt(std::int16_t place) {
    complementaryAt_ = place;
    changed();
}

bool NumberBoard::isComplementary(std::int16_t n) const {
    const bool byPlace = complementaryAt_ > 0 && complementaryAt_ <= selectedCount() &&
                         selectedNumber(complementaryAt_) == n;
    return byPlace || (n != 0 && n == complementary_);
}

void NumberBoard::toggle(std::int16_t n) {
    if (isSelected(n))
        unmark(n);
    else
        selectNumber(n);
}

std::int16_t NumberBoard::selectedNumber(std::int16_t i) const {
    return marked_[static_cast<std::size_t>(checkedIndex(i, 1, selectedCount()) - 1)];
}

bool NumberBoard::isSelected(std::int16_t n) const {
    return std::find(marked_.begin(), marked_.end(), n) != marked_.end();
}

bool NumberBoard::click(std::int16_t n) {
    if (!editable_ || n < 1 || n > lastNumber)
        return false;
    const bool full = maxSelected_ > 0 && selectedCount() >= maxSelected_;
    if (full && !isSelected(n)) {
        if (refused)
            refused(n);
        changed();
        return false;
    }
    toggle(n);
    if (selectionChanged)
        selectionChanged();
    changed(); // what the handler has changed shows, too
    return true;
}

void NumberBoard::unmark(std::int16_t n) {
    marked_.erase(std::remove(marked_.begin(), marked_.end(), n), marked_.end());
    if (complementary_ == n)
        complementary_ = 0;
    changed();
}

void NumberBoard::changed() const {
    if (repaint)
        repaint();
}

} // namespace boulix
