// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "draws/drawQuery.h"

#include <cstdint>
#include <string>
#include <vector>

namespace boulix {

/// The search in the base: which draws a search line finds, and which of them one stands at. It
/// begins at the newest and goes on to the older ones, round and round.
class drawFinder {
  public:
    /// What was found, in words; empty without a question.
    std::string lblFound;

    /// The text that was asked for last.
    const std::string &text() const { return text_; }
    /// Another text is asked for. The position to go to, 0 to stay.
    std::int32_t ask(const std::string &text);
    /// On to the next older draw, or back to the next newer one. The position to go to, 0 to stay.
    std::int32_t next();
    std::int32_t previous();
    /// The base has changed: the same text is asked again, and one stands nowhere.
    void followBase();

    const DrawQuery &query() const { return query_; }
    /// The positions of the draws found, ascending.
    const std::vector<std::int32_t> &found() const { return found_; }
    bool isFound(std::int32_t position) const;

  private:
    std::int32_t goTo(std::size_t place);
    std::int32_t goNear();
    void tellCount();

    std::string text_;
    DrawQuery query_;
    std::vector<std::int32_t> found_;
    std::size_t place_ = 0; ///< among those found, 1 for the newest; 0 while one stands nowhere
};

} // namespace boulix
