// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/collectionKeys.h"
#include "forecasts/pronos.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace boulix {

/// The forecast rules, the points that they give together, and the numbers that the user selected
/// from them. References to rules hold until the set changes.
class pronostics {
  public:
    static constexpr std::int16_t lastNumber = pronos::lastNumber;

    /// Adds the four rules of the program, one of each type, without parameters.
    void init();
    /// Appends a copy of `source`, which looks back from no draw yet, under `key` when that is
    /// not empty. The points are no longer valid.
    pronos &Add(const pronos &source, const std::string &key = {});
    /// The rule at a position from 1, or under a key. A position that does not exist fails with
    /// `Failure::subscriptOutOfRange`, an unknown key with `Failure::invalidCall`.
    pronos &Item(std::int64_t index);
    pronos &Item(const std::string &key) { return Item(keys_.position(key)); }
    std::int32_t Count() const { return static_cast<std::int32_t>(rules_.size()); }
    /// Removes a rule; the points stay valid as they are.
    void Remove(std::int64_t index);
    void Remove(const std::string &key) { Remove(keys_.position(key)); }
    /// Removes all rules; the points are no longer valid.
    void clear();

    // The rules in their order.
    auto begin() { return rules_.begin(); }
    auto end() { return rules_.end(); }

    /// Reads the rules from a file; the old ones go before it is opened. A rule that cannot be
    /// understood is reported and left out. An unreadable file, or a number beyond its width, is
    /// a run-time failure that leaves the rules read so far.
    void load(const std::string &fileName);
    /// Writes the rules to a file, replacing it without a question. A rule whose text is too long
    /// is reported and ends the file before its place.
    void save(const std::string &fileName) const;

    /// Sums the points of all rules, unless they are valid: then nothing is calculated, whatever
    /// has changed in the rules. With `checkFirst` a rule without its parameters is reported with
    /// 4501 to 4503, and false given.
    bool compute(bool checkFirst);
    /// Computes the forecast at the draw `testDraw`, unless the points are valid, takes the
    /// `best` numbers with the most points and counts how many of them came out in each draw from
    /// `before` draws before it to `after` draws behind it, as far as the base goes. False when a
    /// rule lacks its parameters; the earlier result stays then.
    bool test(std::int32_t testDraw, std::int32_t before, std::int32_t after, std::int32_t best);

    /// The points of a number in the last `compute`; a number outside 1 to 49 is reported with
    /// 4504 and gives 0.
    std::int32_t nbrPoint(std::int32_t number) const;
    /// Says whether the points are valid.
    void computed(bool valid) { computed_ = valid; }

    /// Forgets the selected numbers.
    void clearSelection() { nSelected_ = 0; }
    /// Adds a number to the selection; a fiftieth one fails with `Failure::subscriptOutOfRange`
    /// and has been counted in `nSelected` by then.
    void selNbr(std::int16_t number);
    std::int16_t nSelected() const { return nSelected_; }
    /// The number at the place `i` of the selection, 1 to 49; any other place fails with
    /// `Failure::subscriptOutOfRange`.
    std::int16_t Selected(std::int16_t i) const;

    /// How many draws the last `test` looked at.
    std::int32_t maxSearched() const { return static_cast<std::int32_t>(nFound_.size()); }
    /// How many of the best numbers came out in the `i`-th of them, `i` from 1.
    std::int16_t nFound(std::int32_t i) const;

  private:
    bool check() const;
    void baseTir(std::int32_t draw);
    std::uint64_t bestNumbers(std::int32_t count) const;

    std::vector<pronos> rules_;
    collectionKeys keys_;
    std::array<std::int32_t, lastNumber> nbrPoint_{};
    std::array<std::int16_t, lastNumber> selected_{};
    std::int16_t nSelected_ = 0;
    std::vector<std::int16_t> nFound_;
    bool computed_ = false;
};

} // namespace boulix
