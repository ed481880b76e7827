// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

namespace boulix {

/// The field of `size` elements, written as 0 to size - 1: the digits of an element to the base
/// of the characteristic are the coefficients of a polynomial.
class FiniteField {
  public:
    /// Whether there is a field of this size: a power of a prime.
    static bool exists(int size);
    /// `exists(size)`, size <= 49.
    explicit FiniteField(int size);

    int size() const { return size_; }
    int characteristic() const { return characteristic_; }
    /// An element whose powers are all the others but 0.
    int generator() const { return generator_; }
    int add(int a, int b) const;
    int negative(int a) const;
    int multiply(int a, int b) const;
    /// `a` to the power of `n` >= 0.
    int power(int a, int n) const;

  private:
    int timesX(int a) const;
    bool choosePolynomial(int lower);

    int size_;
    int characteristic_;
    int generator_ = 0;
    int reduction_ = 0;          // what x to the power of the degree is
    std::vector<int> logarithm_; // to the base of the generator
    std::vector<int> exponential_;
};

} // namespace boulix
