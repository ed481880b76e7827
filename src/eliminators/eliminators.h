// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/collectionKeys.h"
#include "eliminators/eliminator.h"
#include "files/xFile.h"

#include <cstdint>
#include <string>
#include <vector>

namespace boulix {

/// The rules that throw grids out of a game, always the same eight in the same order, and the
/// only reader and writer of their file. References to rules hold until the set changes.
class eliminators {
  public:
    static constexpr int ruleCount = 8;
    /// The rule that works with a list of numbers in place of a threshold.
    static constexpr int listRule = 8;

    /// The file last loaded or saved.
    const xFile &file() const { return file_; }
    xFile &file() { return file_; }
    void file(const xFile &file) { file_ = file; }

    /// Adds the eight rules, all off.
    void init();
    /// Appends a rule, under `key` when that is not empty.
    eliminator &Add(const std::string &label, std::int16_t Value, std::int16_t ValMin,
                    std::int16_t ValMax, std::int16_t status, const std::string &key = {});
    /// The rule at a position from 1, or under a key. A position that does not exist fails with
    /// `Failure::subscriptOutOfRange`, an unknown key with `Failure::invalidCall`.
    eliminator &Item(std::int64_t index);
    const eliminator &Item(std::int64_t index) const;
    eliminator &Item(const std::string &key) { return Item(keys_.position(key)); }
    std::int32_t Count() const { return static_cast<std::int32_t>(rules_.size()); }
    void Remove(std::int64_t index);
    void Remove(const std::string &key) { Remove(keys_.position(key)); }

    // The rules in their order.
    auto begin() const { return rules_.begin(); }
    auto end() const { return rules_.end(); }

    /// Whether the rule at `index` is there and on.
    bool isOn(int index) const {
        return index <= Count() && Item(index).status() != eliminator::off;
    }
    /// The first rule, by its position, that is on and whose threshold lies beyond its range; 0
    /// where there is none. The list rule is not looked at.
    int firstOutOfRange() const;
    /// Whether the threshold of every active rule lies in its range. The first one that does not
    /// is reported with its number, 2901 to 2907. The list rule is not checked.
    bool verify() const;
    /// Asks for a file and reads the rules from it; true when it was read. The old rules go
    /// before the file is opened: a refused or unreadable file leaves none, or those read so far.
    /// The list of the eighth rule does not survive: every flag comes back as set.
    bool load();
    /// Asks for a file and writes the rules to it; true when it was written.
    bool save();

  private:
    void clear();
    void readRules(class SlotReader &reader);

    std::vector<eliminator> rules_;
    collectionKeys keys_;
    xFile file_;
};

} // namespace boulix
