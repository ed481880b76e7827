// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/disk.h"

#include <string>
#include <vector>

namespace boulix {

/// Reads the text files of the operator, whose lines end in CR LF. A CR or an LF ends a line, and
/// the one character behind it is dropped unread: of a file whose lines end in LF alone, every
/// line but the first loses its first character.
class LineReader {
  public:
    /// A file that cannot be opened is a run-time failure that names it.
    explicit LineReader(const std::string &fullName);

    /// Reads the next line into `line`, without its end; at the end of the file that is an empty
    /// one. A file that cannot be read is a run-time failure that names it.
    void readLine(std::string &line);
    /// Whether the whole file is read.
    bool eof();

  private:
    disk::InputFile file_;
    std::vector<char> block_;
    std::size_t filled_ = 0;
    std::size_t at_ = 0;
};

} // namespace boulix
