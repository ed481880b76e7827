// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>

namespace boulix {
class selector;
}

/// The statistics on their way out: as a text file and on paper.
namespace boulix::modStats {

/// Computes the statistic afresh, then asks for a file and writes it. Nothing is written when the
/// file dialog is dismissed.
void ExportStats(std::int16_t type, std::int16_t withCompl, std::int32_t first, std::int32_t last,
                 selector &chooser);

/// Writes the stores as they stand to the text file `name`, in place of what it held. A range
/// that the base does not have fails with `Failure::subscriptOutOfRange`, and no file is written.
void WriteStatsText(const std::string &name, std::int16_t type, std::int16_t withCompl,
                    std::int32_t first, std::int32_t last, const selector &chooser);

/// Prints the stores as they stand. Nothing is printed where there is no printer.
void PrintStats(std::int16_t type, std::int16_t withCompl, std::int32_t first, std::int32_t last,
                const selector &chooser);

} // namespace boulix::modStats
