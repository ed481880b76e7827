// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace boulix {

/// One rule that throws grids out of a game: its text, the threshold with its range, whether it
/// is on, and the list of numbers that only the eighth rule uses.
class eliminator {
  public:
    static constexpr int lastNumber = 49;
    /// The stored words of a boolean; any word but 0 counts as true.
    static constexpr std::int16_t off = 0;
    static constexpr std::int16_t on = -1;

    /// The rule's text as shown to the user.
    const std::string &label() const { return label_; }
    void label(const std::string &text) { label_ = text; }
    /// The threshold, and the smallest and largest one that the set accepts.
    std::int16_t Value() const { return value_; }
    void Value(std::int16_t v) { value_ = v; }
    std::int16_t ValMin() const { return valMin_; }
    void ValMin(std::int16_t v) { valMin_ = v; }
    std::int16_t ValMax() const { return valMax_; }
    void ValMax(std::int16_t v) { valMax_ = v; }
    /// Whether the rule is active, as a stored word.
    std::int16_t status() const { return status_; }
    void status(std::int16_t word) { status_ = word; }

    /// The flag of number `index`, 1 to 49, as a stored word. Outside 0 to 49 the fatal box
    /// appears (2802 for a read, 2801 for a write), a read gives 0 and a write does nothing.
    /// Index 0 fails with `Failure::subscriptOutOfRange`.
    std::int16_t eliminNbr(int index) const;
    void eliminNbr(int index, std::int16_t word);

    bool operator==(const eliminator &) const = default;

  private:
    std::array<std::int16_t, lastNumber> flags_{};
    std::string label_;
    std::int16_t value_ = 0;
    std::int16_t valMin_ = 0;
    std::int16_t valMax_ = 0;
    std::int16_t status_ = off;
};

} // namespace boulix
