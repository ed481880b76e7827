// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/pointGroup.h"

#include "games/finiteField.h"

#include <algorithm>
#include <bit>
#include <numeric>
#include <set>
#include <unordered_set>

namespace boulix::covering {

namespace {

Permutation identity() {
    Permutation p{};
    std::iota(p.begin(), p.end(), std::uint8_t{0});
    return p;
}

/// The permutation that treats each of the first `copies` stretches of `size` points like `map`.
Permutation onCopies(const std::vector<int> &map, int copies) {
    Permutation p = identity();
    const auto size = static_cast<int>(map.size());
    for (int c = 0; c < copies; ++c)
        for (int i = 0; i < size; ++i)
            p[static_cast<std::size_t>(c * size + i)] =
                static_cast<std::uint8_t>(c * size + map[static_cast<std::size_t>(i)]);
    return p;
}

std::vector<int> mapOf(int size, auto &&image) {
    std::vector<int> map;
    for (int x = 0; x < size; ++x)
        map.push_back(image(x));
    return map;
}

/// One stretch becomes the next, the last one the first.
Permutation turnCopies(int size, int copies) {
    Permutation p = identity();
    for (int i = 0; i < size * copies; ++i)
        p[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>((i + size) % (size * copies));
    return p;
}

class Collector {
  public:
    void add(const PointGroup &group) {
        if (known_.insert(group).second)
            groups.push_back(group);
    }
    std::vector<PointGroup> groups;

  private:
    std::set<PointGroup> known_;
};

/// The powers of `a` modulo `n`, ascending.
std::vector<int> powers(int a, int n) {
    std::vector<int> found;
    for (int x = a % n; std::find(found.begin(), found.end(), x) == found.end(); x = x * a % n)
        found.push_back(x);
    std::sort(found.begin(), found.end());
    return found;
}

/// x -> x + 1 and x -> a x over the integers modulo `n`.
void addRingGroups(Collector &to, int n, int copies) {
    const Permutation shift = onCopies(mapOf(n, [&](int x) { return (x + 1) % n; }), copies);
    const Permutation turn = turnCopies(n, copies);
    std::set<std::vector<int>> seen;
    for (int a = 1; a < n; ++a) {
        if (std::gcd(a, n) != 1 || !seen.insert(powers(a, n)).second)
            continue;
        PointGroup group{shift};
        if (a > 1)
            group.push_back(onCopies(mapOf(n, [&](int x) { return a * x % n; }), copies));
        to.add(group);
        if (copies > 1) {
            group.push_back(turn);
            to.add(group);
        }
        if (a > 1 && copies > 1) { // the multiplication turns the copies, too
            Permutation both = group[1];
            for (std::uint8_t &x : both)
                x = turn[x];
            to.add({shift, both});
        }
    }
}

/// Translations, multiplications and the Frobenius map of a field.
void addFieldGroups(Collector &to, const FiniteField &field, int copies) {
    const int q = field.size();
    PointGroup shifts;
    for (int unit = 1; unit < q; unit *= field.characteristic())
        shifts.push_back(onCopies(mapOf(q, [&](int x) { return field.add(x, unit); }), copies));
    to.add(shifts);
    const Permutation frobenius =
        onCopies(mapOf(q, [&](int x) { return field.power(x, field.characteristic()); }), copies);
    for (int step = 1; step < q; ++step) {
        if ((q - 1) % step != 0)
            continue;
        const int a = field.power(field.generator(), step);
        PointGroup group = shifts;
        if (step < q - 1)
            group.push_back(
                onCopies(mapOf(q, [&](int x) { return field.multiply(a, x); }), copies));
        to.add(group);
        if (field.characteristic() < q) {
            group.push_back(frobenius);
            to.add(group);
        }
    }
}

/// The groups of the projective line: x -> x + b, x -> a x and x -> -1 / x, with infinity as the
/// point behind the field.
void addProjectiveGroups(Collector &to, const FiniteField &field, int copies) {
    const int q = field.size();
    const auto inverse = [&](int x) {
        if (x == 0)
            return q;
        return x == q ? 0 : field.negative(field.power(x, q - 2));
    };
    PointGroup group{onCopies(mapOf(q + 1, inverse), copies)};
    for (int unit = 1; unit < q; unit *= field.characteristic())
        group.push_back(
            onCopies(mapOf(q + 1, [&](int x) { return x == q ? q : field.add(x, unit); }), copies));
    for (const int step : {2, 1}) {
        const int a = field.power(field.generator(), step);
        PointGroup larger = group;
        larger.push_back(onCopies(
            mapOf(q + 1, [&](int x) { return x == q ? q : field.multiply(a, x); }), copies));
        to.add(larger);
    }
}

} // namespace

PointSet image(PointSet set, const Permutation &permutation) {
    PointSet result = 0;
    for (; set != 0; set &= set - 1)
        result |= PointSet{1} << permutation[static_cast<std::size_t>(std::countr_zero(set))];
    return result;
}

std::vector<PointSet> orbitOf(PointSet set, const PointGroup &group, std::size_t limit) {
    std::vector<PointSet> orbit{set};
    std::unordered_set<PointSet> known{set};
    for (std::size_t i = 0; i < orbit.size() && orbit.size() < limit; ++i)
        for (const Permutation &p : group)
            if (const PointSet next = image(orbit[i], p); known.insert(next).second)
                orbit.push_back(next);
    return orbit;
}

std::vector<PointGroup> symmetryGroups(int points) {
    Collector found;
    for (int n = points; n >= 2; --n) {
        const int most = points / n;
        for (int copies = most; copies >= 1; --copies)
            if (points - copies * n < std::max(4, n))
                addRingGroups(found, n, copies);
        if (FiniteField::exists(n)) {
            const FiniteField field(n);
            if (field.characteristic() < n && points - most * n < std::max(4, n))
                addFieldGroups(found, field, most);
        }
        if (n > 3 && FiniteField::exists(n - 1) && points - most * n <= 3)
            addProjectiveGroups(found, FiniteField(n - 1), most);
    }
    return found.groups;
}

} // namespace boulix::covering
