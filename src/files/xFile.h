// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "files/fileHead.h"

#include <string>

namespace boulix {

/// The envelope around one file on disk: where it lies, its header, and the check of that header.
/// `fullName` keeps a separator at the end of the path it derives, `path` takes one away: callers
/// rely on both.
class xFile {
  public:
    const fileHead &head() const { return head_; }
    fileHead &head() { return head_; }
    void head(const fileHead &head) { head_ = head; }

    /// Folder, separator and name in one text. The write derives `path` (with its separator) and
    /// `name`; a text without a separator gives its first character to the path.
    const std::string &fullName() const { return fullName_; }
    void fullName(const std::string &text);
    const std::string &path() const { return path_; }
    void path(const std::string &text);
    const std::string &name() const { return name_; }
    void name(const std::string &text);

    /// Whether the file is there.
    bool exist() const;
    /// Whether the header is one that this program reads as `expectedType`. Refusals are reported
    /// with 4401 to 4403; a version without a dot fails with `Failure::invalidCall`, one without a
    /// number before it as `wholeNumberText` does. The description names file and version.
    bool verifyHead(std::int32_t expectedType) const;
    /// Deletes the file; a file that cannot be deleted is a run-time failure.
    void Remove() const;

  private:
    std::int32_t majorVersion() const;

    std::string path_;
    std::string name_;
    std::string fullName_;
    fileHead head_;
};

} // namespace boulix
