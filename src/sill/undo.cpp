// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/undo.h"

#include <iterator>
#include <utility>

namespace boulix {

void UndoList::record(UndoStep step) {
    undone_.clear();
    done_.push_back(std::move(step));
    dropOldest();
    notify();
}

void UndoList::clear() {
    done_.clear();
    undone_.clear();
    notify();
}

void UndoList::undo() {
    exchange(done_, undone_);
}

void UndoList::redo() {
    exchange(undone_, done_);
}

void UndoList::exchange(std::vector<UndoStep> &from, std::vector<UndoStep> &to) {
    if (from.empty())
        return;
    to.reserve(to.size() + 1); // once exchanged the step must change sides, whatever happens
    from.back().exchange();
    to.push_back(std::move(from.back()));
    from.pop_back();
    notify();
}

void UndoList::dropOldest() {
    std::size_t held = 0;
    std::size_t kept = 0; // from the newest one on
    while (kept < done_.size()) {
        held += done_[done_.size() - 1 - kept].bytes;
        if (held > mostBytes && kept > 0)
            break;
        ++kept;
    }
    done_.erase(done_.begin(), std::prev(done_.end(), static_cast<std::ptrdiff_t>(kept)));
}

void UndoList::notify() const {
    if (changed)
        changed();
}

} // namespace boulix
