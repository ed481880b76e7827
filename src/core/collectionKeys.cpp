// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/collectionKeys.h"

#include "core/failure.h"

#include <algorithm>

namespace boulix {

void collectionKeys::add(const std::string &key, std::int64_t position) {
    if (key.empty())
        return;
    const bool taken =
        std::any_of(keys_.begin(), keys_.end(), [&](const auto &k) { return k.first == key; });
    if (taken)
        fail(Failure::invalidCall);
    keys_.emplace_back(key, position);
}

std::int64_t collectionKeys::position(const std::string &key) const {
    for (const auto &[name, position] : keys_)
        if (name == key)
            return position;
    fail(Failure::invalidCall);
}

void collectionKeys::removed(std::int64_t position) {
    std::erase_if(keys_, [=](const auto &k) { return k.second == position; });
    for (auto &key : keys_)
        if (key.second > position)
            --key.second;
}

} // namespace boulix
