// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace boulix::testing_support {

/// The operating system as it is when a disk breaks. The executable that this is linked into has
/// `open`, `read`, `write`, `lseek`, `fsync`, `close`, `remove`, `unlink`, `rename` and `statvfs`
/// of its own; what the program, the standard library and any other library call by these names
/// passes here. They do what the system does, except that from construction to destruction of this
/// object the calls on files of one folder are written down, and those that were asked for fail.
/// Nothing outside the folder is ever touched.
class FaultySystem {
  public:
    /// Watches `folder`, which has no separator at its end.
    explicit FaultySystem(const std::string &folder);
    ~FaultySystem();
    FaultySystem(const FaultySystem &) = delete;
    FaultySystem &operator=(const FaultySystem &) = delete;

    /// The `n`-th call from now on, counted from 1, fails with `error` (errno), and so do all
    /// behind it where `forGood` is set.
    void failAt(std::size_t n, int error, bool forGood);
    /// A write that fails takes half of its bytes first, as a disk does that fills up.
    void writeHalf(bool half);

    /// The calls so far, as in "write tirages.dbl"; "." is the folder itself.
    const std::vector<std::string> &calls() const;
};

} // namespace boulix::testing_support
