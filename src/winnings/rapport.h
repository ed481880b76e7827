// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace boulix {

class xFile;

/// The prize table: what one winning grid pays at each of the eleven ranks, and what the ranks
/// are called. Indices count from 0 here; index i is rank i + 1 of a `gameResult`.
class rapport {
  public:
    static constexpr int size = 11;
    /// The file that is read at start-up and replaced without a question.
    static constexpr const char *defaultName = "defrapp.rap";

    /// The name of a rank; an index outside 0 to 10 is reported with 4201 and gives no text.
    std::string label(std::int16_t index) const;
    /// The amount of one winning grid; an index outside 0 to 10 is reported with 4203 and gives 0.
    float Value(std::int16_t index) const;
    /// An index outside 0 to 10 is reported with 4202 and stores nothing.
    void Value(std::int16_t index, float amount);

    /// Reads the default file from the application folder. Without it 4204 is shown and the
    /// amounts stay.
    void loadDefFile();
    /// Asks for a file and reads it; true when the amounts come from it now.
    bool load();
    /// Writes the table, asking first when it would replace a file of another name than the
    /// default one: false when the user has thought better of it. A file that cannot be written is
    /// a run-time failure.
    bool save(const std::string &fileName) const;

  private:
    bool read(xFile &file);
    bool readAmounts(xFile &file);

    std::array<float, size> values_{};
};

} // namespace boulix
