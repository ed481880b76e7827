// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace boulix {
class xFile;
}

namespace boulix::modFileSelector {

/// Ask the user for a file, in the folder of the last one chosen. `filter` has the form
/// "Fichier jeu Boulix (*.lst)|*.lst". The full file name, empty when none was chosen; a chosen
/// file's folder becomes the one where the next dialog opens. A save dialog proposes `name`.
std::string openDialog(const std::string &filter, const std::string &title);
std::string saveDialog(const std::string &filter, const std::string &title,
                       const std::string &name = {});

/// The user has named a file beforehand, by dropping it on the window for instance: while this
/// object lives the next open dialog takes it, without coming up.
class GivenFile {
  public:
    explicit GivenFile(const std::string &fullName);
    ~GivenFile();
    GivenFile(const GivenFile &) = delete;
    GivenFile &operator=(const GivenFile &) = delete;
};

/// The question before a whole file is replaced: true when `file` is not there, or when the user
/// says that it may be replaced.
bool mayReplace(const xFile &file, const std::string &boxTitle);

} // namespace boulix::modFileSelector
