// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace boulix {

/// Which items of an ordered collection can also be reached by a key. Items without a key cost
/// nothing here.
class collectionKeys {
  public:
    /// The item at `position` gets `key`; an empty key is none. A key that is taken fails with
    /// `Failure::invalidCall`.
    void add(const std::string &key, std::int64_t position);
    /// The position of the item added under `key`; an unknown key fails with
    /// `Failure::invalidCall`.
    std::int64_t position(const std::string &key) const;
    /// The item at `position` left the collection: its key goes, those behind move down.
    void removed(std::int64_t position);
    void clear() { keys_.clear(); }
    bool empty() const { return keys_.empty(); }

  private:
    std::vector<std::pair<std::string, std::int64_t>> keys_;
};

} // namespace boulix
