// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

namespace boulix::testing_support {

/// Gives up the rights of root for the time of a scope; everybody else has none to give up.
class WithoutRights {
  public:
    WithoutRights() : isRoot_(geteuid() == 0) {
        if (isRoot_) {
            EXPECT_EQ(seteuid(65534), 0);
        }
    }
    ~WithoutRights() {
        if (isRoot_) {
            EXPECT_EQ(seteuid(0), 0);
        }
    }
    WithoutRights(const WithoutRights &) = delete;
    WithoutRights &operator=(const WithoutRights &) = delete;

  private:
    bool isRoot_;
};

} // namespace boulix::testing_support

namespace boulix {
using testing_support::WithoutRights;
} // namespace boulix
