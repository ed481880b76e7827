// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/finiteField.h"

namespace boulix {

namespace {

int smallestFactor(int n) {
    int factor = 2;
    while (n % factor != 0)
        ++factor;
    return factor;
}

} // namespace

bool FiniteField::exists(int size) {
    if (size < 2)
        return false;
    const int p = smallestFactor(size);
    while (size % p == 0)
        size /= p;
    return size == 1;
}

FiniteField::FiniteField(int size) : size_(size), characteristic_(smallestFactor(size)) {
    // A polynomial that x is a generator for exists for every field.
    for (int lower = 1; !choosePolynomial(lower); ++lower) {
    }
}

int FiniteField::add(int a, int b) const {
    int sum = 0;
    for (int place = 1; place < size_; place *= characteristic_)
        sum += (a / place + b / place) % characteristic_ * place;
    return sum;
}

int FiniteField::negative(int a) const {
    int result = 0;
    for (int place = 1; place < size_; place *= characteristic_)
        result += (characteristic_ - a / place % characteristic_) % characteristic_ * place;
    return result;
}

int FiniteField::multiply(int a, int b) const {
    if (a == 0 || b == 0)
        return 0;
    const int sum =
        logarithm_[static_cast<std::size_t>(a)] + logarithm_[static_cast<std::size_t>(b)];
    return exponential_[static_cast<std::size_t>(sum % (size_ - 1))];
}

int FiniteField::power(int a, int n) const {
    int result = 1;
    for (; n > 0; --n)
        result = multiply(result, a);
    return result;
}

/// `a` times the generator. In a prime field the generator is a number, else it is x.
int FiniteField::timesX(int a) const {
    if (size_ == characteristic_)
        return a * reduction_ % size_;
    const int top = size_ / characteristic_;
    int result = a % top * characteristic_;
    for (int i = a / top; i > 0; --i)
        result = add(result, reduction_);
    return result;
}

/// Tries `lower` as what x to the power of the degree is. True when the powers of x are then all
/// elements but 0.
bool FiniteField::choosePolynomial(int lower) {
    reduction_ = lower;
    logarithm_.assign(static_cast<std::size_t>(size_), -1);
    exponential_.clear();
    int a = 1;
    while (a != 0 && logarithm_[static_cast<std::size_t>(a)] < 0) {
        logarithm_[static_cast<std::size_t>(a)] = static_cast<int>(exponential_.size());
        exponential_.push_back(a);
        a = timesX(a);
    }
    generator_ = timesX(1);
    return a == 1 && static_cast<int>(exponential_.size()) == size_ - 1;
}

} // namespace boulix
