// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/fileKind.h"

#include "core/text.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <utility>

namespace boulix {

namespace {

constexpr std::array<std::pair<const char *, FileKind>, 7> extensions = {{
    {".LST", FileKind::game},
    {".GAM", FileKind::system},
    {".ELM", FileKind::eliminators},
    {".RAP", FileKind::prizes},
    {".PRO", FileKind::forecast},
    {".TXT", FileKind::draws},
    {".CSV", FileKind::draws},
}};

/// Whether the first line names the columns of the operator's draws.
bool holdsDraws(const std::string &fullName) {
    std::string start(1024, '\0');
    std::ifstream file(std::filesystem::path(fullName), std::ios::binary);
    file.read(start.data(), static_cast<std::streamsize>(start.size()));
    start.resize(static_cast<std::size_t>(file.gcount()));
    const std::string line = upperCased(start.substr(0, start.find_first_of("\r\n")));
    return line.find(';') != std::string::npos && line.find("BOULE1") != std::string::npos;
}

} // namespace

FileKind fileKind(const std::string &fullName) {
    const std::string extension = upperCased(std::filesystem::path(fullName).extension().string());
    for (const auto &[known, kind] : extensions)
        if (extension == known)
            return kind == FileKind::game && holdsDraws(fullName) ? FileKind::draws : kind;
    return FileKind::unknown;
}

} // namespace boulix
