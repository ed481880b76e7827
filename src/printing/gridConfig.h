// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace boulix {

/// The price of a grid and the unit it is counted in, kept in the settings file.
class gridConfig {
  public:
    /// Reads both values; a missing one is the euro or 0.6.
    void load();
    /// Writes both values.
    void save() const;

    const std::string &monneyUnit() const { return monneyUnit_; }
    void monneyUnit(const std::string &unit) { monneyUnit_ = unit; }
    float price() const { return price_; }
    void price(float price) { price_ = price; }

  private:
    std::string monneyUnit_;
    float price_ = 0;
};

} // namespace boulix
