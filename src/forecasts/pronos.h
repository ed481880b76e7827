// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace boulix {

/// The conditions under which a rule gives its points to a number.
enum class PronoType : std::int32_t {
    outButNotLately = 1, ///< came out in the N span, but not in the P span
    absent = 2,          ///< did not come out in the N span
    absentCouple = 3,    ///< stands in no couple that came out in the N span
    rare = 4,            ///< came out at most N times in the P span
};

/// A forecast rule: it looks back from one draw and gives the same points to each number that
/// meets its condition. The span of k is k + 1 draws, from `baseTir` - k to `baseTir`.
class pronos {
  public:
    static constexpr std::int16_t lastNumber = 49;

    /// What the user sees. It must not hold "#", which would end it in a file.
    const std::string &label() const { return label_; }
    void label(const std::string &text) { label_ = text; }
    std::int16_t n() const { return n_; }
    void n(std::int16_t v) { n_ = v; }
    std::int16_t p() const { return p_; }
    void p(std::int16_t v) { p_ = v; }
    /// The points of a number that meets the condition.
    std::int32_t nPoint() const { return nPoint_; }
    void nPoint(std::int32_t v) { nPoint_ = v; }
    /// A `PronoType`; `compute` does nothing for any other value.
    std::int32_t pronoType() const { return pronoType_; }
    void pronoType(std::int32_t v) { pronoType_ = v; }
    /// Whether the rule uses N, and P.
    bool enableN() const { return enableN_; }
    void enableN(bool v) { enableN_ = v; }
    bool enableP() const { return enableP_; }
    void enableP(bool v) { enableP_ = v; }
    /// The position of the draw that the rule looks back from.
    std::int16_t baseTir() const { return baseTir_; }
    void baseTir(std::int16_t v) { baseTir_ = v; }

    /// The points given to a number by the last `compute`; a number outside 1 to 49 is reported
    /// with 4551 and gives 0.
    std::int32_t nbrPoint(std::int16_t index) const;
    /// Gives the points. A span that begins before the first draw fails with
    /// `Failure::subscriptOutOfRange`, and no number has points then. Type 3 shows the progress
    /// window.
    void compute();

    /// The rule as a text that takes `length` bytes in a file, filled with blanks. A rule that
    /// needs more is reported with 4552 and gives no text.
    std::string toString(std::int16_t length) const;
    /// Takes the rule from such a text. What is missing is reported with 4553, and false given;
    /// the fields read so far keep their new values. A value beyond its width is an overflow.
    bool fromString(const std::string &text);

  private:
    std::vector<std::uint64_t> span(std::int16_t length) const;
    std::uint64_t outIn(std::int16_t length) const;
    std::uint64_t chosenNumbers() const;
    std::uint64_t inDrawnCouples() const;
    std::uint64_t rareNumbers() const;

    std::string label_;
    std::int16_t n_ = 0;
    std::int16_t p_ = 0;
    std::int32_t nPoint_ = 0;
    std::int32_t pronoType_ = 0;
    bool enableN_ = false;
    bool enableP_ = false;
    std::int16_t baseTir_ = 0;
    std::array<std::int32_t, lastNumber> nbrPoint_{};
};

} // namespace boulix
