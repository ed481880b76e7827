// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

namespace boulix {

/// A point of the slip, in millimetres from the slip's top left corner; turned, a point of the
/// sheet as it comes out of the printer.
class orientedPoint {
  public:
    void setRefPoint(float x, float y);
    void translate(float dx, float dy);
    /// The same point of a slip that is fed in `direction`, an index of the direction table; any
    /// other index gives the origin.
    orientedPoint getRelPoint(std::int32_t direction) const;

    float xRef() const { return x_; }
    float yRef() const { return y_; }

  private:
    float x_ = 0;
    float y_ = 0;
};

} // namespace boulix
