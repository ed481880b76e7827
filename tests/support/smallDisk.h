// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/files.h"

#include <cstddef>
#include <string>

namespace boulix::testing_support {

/// A disk of its own in memory, so small that it can be filled, for tests that want a real one.
/// The mount is seen by this process only and gone with it. Where the system does not allow it
/// `mounted` is false, and the test skips with `SmallDisk::whyNot`.
class SmallDisk {
  public:
    static constexpr const char *whyNot =
        "mounting a small disk takes root's rights, in a container too";

    /// A disk of `bytes`, taken up to whole pages of 4096.
    explicit SmallDisk(std::size_t bytes);
    ~SmallDisk();
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

    bool mounted() const { return mounted_; }
    /// From now on nothing on the disk can be changed, not even by root.
    void makeReadOnly();

    const std::string &path() const { return folder_.path(); }
    std::string file(const std::string &name) const { return folder_.file(name); }

  private:
    TemporaryFolder folder_;
    bool mounted_ = false;
};

} // namespace boulix::testing_support

namespace boulix {
using testing_support::SmallDisk;
} // namespace boulix
