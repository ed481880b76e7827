// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace boulix::bench {

/// Fills the base with `count` made draws, two a day, always the same ones. The sums are true.
void makeBase(std::int32_t count);
/// Makes a base whose newest draw has no number with any draw before it in common.
void makeBaseWithNewNumbers(std::int32_t count);

/// Fills the base with the operator's history `fileName`, oldest draw first, sums true.
void readHistory(const std::string &fileName);

} // namespace boulix::bench
