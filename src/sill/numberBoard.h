// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace boulix {

/// The board of the numbers 1 to 49: which are marked, in which order, and which clicks are
/// taken. The screens draw it and hand it the user's clicks.
class NumberBoard {
  public:
    static constexpr std::int16_t lastNumber = 49;

    /// How many numbers may be marked at most; 0 for no limit.
    std::int16_t maxSelected() const { return maxSelected_; }
    void maxSelected(std::int16_t limit) { maxSelected_ = limit; }
    /// Whether the user's clicks are taken.
    bool editable() const { return editable_; }
    void editable(bool takesClicks);

    /// Unmarks all numbers.
    void clearSelection();
    /// Marks `n`, behind those already marked; a number that is marked or outside 1 to 49 is
    /// left as it is.
    void selectNumber(std::int16_t n);
    /// Marks `n` as the complementary number, in its own look. It counts as a marked number.
    void selectComplementary(std::int16_t n);
    /// From now on the `place`-th marked number, counted from 1, looks like the complementary one;
    /// 0: none does by its place.
    void complementaryAt(std::int16_t place);
    /// Marks `n` where it is unmarked and the other way round, on behalf of the program.
    void toggle(std::int16_t n);
    /// How many numbers are marked.
    std::int16_t selectedCount() const { return static_cast<std::int16_t>(marked_.size()); }
    /// The `i`-th marked number, in the order of marking; `i` outside 1 to the count fails with
    /// `Failure::subscriptOutOfRange`.
    std::int16_t selectedNumber(std::int16_t i) const;
    bool isSelected(std::int16_t n) const;
    bool isComplementary(std::int16_t n) const;

    /// A click of the user on `n`: marks or unmarks it and raises `selectionChanged`. False when
    /// the board is closed or the click would go beyond the limit.
    bool click(std::int16_t n);

    /// Called after a click of the user that changed the marks.
    std::function<void()> selectionChanged;
    /// Called after a click of the user that would have gone beyond the limit.
    std::function<void(std::int16_t n)> refused;
    /// Called after any change, so that the board on the screen is drawn again.
    std::function<void()> repaint;

  private:
    void unmark(std::int16_t n);
    void changed() const;

    std::vector<std::int16_t> marked_;
    std::int16_t maxSelected_ = 0;
    std::int16_t complementary_ = 0;
    std::int16_t complementaryAt_ = 0;
    bool editable_ = true;
};

} // namespace boulix
