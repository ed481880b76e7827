// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/folderAdvice.h"

#include "core/platform.h"
#include "core/text.h"

#include <filesystem>

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

namespace boulix {

namespace {

namespace fs = std::filesystem;

/// Whether it is the folder of `path` that takes no files, and not the file that is protected.
bool folderRefuses(const fs::path &path) {
#ifdef _WIN32
    // Nobody tells the rights on a folder there: what is not the fault of the file is its fault.
    std::error_code ignored;
    const fs::file_status file = fs::status(path, ignored);
    return !fs::exists(file) || (file.permissions() & fs::perms::owner_write) != fs::perms::none;
#else
    const auto may = [](const fs::path &what, int right) {
        return faccessat(AT_FDCWD, what.c_str(), right, AT_EACCESS) == 0;
    };
    const bool unreadable = may(path, F_OK) && !may(path, R_OK); // a copy would not help
    return !unreadable && !may(path.parent_path(), W_OK);
#endif
}

} // namespace

std::string folderAdvice(const std::string &path) {
    const std::string folder = fs::path(path).parent_path().string();
    if (!isApplicationFolder(folder) || !folderRefuses(path))
        return {};
    return std::string(crlf) + "Le dossier " + folder +
           " est protégé en écriture: copiez-le à un endroit où vous pouvez écrire, puis démarrez "
           "Boulix depuis cette copie.";
}

} // namespace boulix
