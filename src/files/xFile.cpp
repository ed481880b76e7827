// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/xFile.h"

#include "core/failure.h"
#include "core/fileAccess.h"
#include "core/globals.h"
#include "core/numbers.h"
#include "core/text.h"
#include "files/slotFile.h"
#include "sill/appInfo.h"
#include "sill/reports.h"

#include <filesystem>
#include <system_error>

namespace boulix {

namespace {

/// The number before the first dot of a version.
std::int32_t majorNumber(const std::string &version) {
    const std::size_t dot = version.find('.');
    if (dot == std::string::npos)
        fail(Failure::invalidCall);
    return toInt32(wholeNumberText(version.substr(0, dot)));
}

} // namespace

void xFile::fullName(const std::string &text) {
    fullName_ = trimmed(text);
    const std::size_t separator = fullName_.rfind(pathSeparator);
    const std::size_t pathLength = separator == std::string::npos ? 1 : separator + 1;
    path_ = fullName_.substr(0, pathLength);
    name_ = fullName_.substr(path_.size());
}

void xFile::path(const std::string &text) {
    path_ = trimmed(text);
    if (path_.size() > 1 && path_.back() == pathSeparator) // the root is its separator
        path_.pop_back();
    if (!name_.empty())
        fullName_ = path_ + pathSeparator + name_;
}

void xFile::name(const std::string &text) {
    name_ = trimmed(text);
    if (!path_.empty())
        fullName_ = path_ + pathSeparator + name_;
}

bool xFile::exist() const {
    std::error_code ignored;
    const auto status = std::filesystem::status(path_ + pathSeparator + name_, ignored);
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

bool xFile::verifyHead(std::int32_t expectedType) const {
    const auto refuse = [this](int number, const std::string &reason) {
        reportNumbered(number, "Impossible de charger le fichier " + name_ + " du répertoire " +
                                   path_ + crlf + reason);
        return false;
    };
    if (trimmed(head_.software()) != trimmed(gAppInfo->name()))
        return refuse(4401,
                      "Il ne s'agit pas d'un fichier au format reconnu par " + gAppInfo->name());
    if (head_.typ() != expectedType)
        return refuse(4402, "Le type de fichier n'est pas correct!");
    const std::int32_t major = majorVersion();
    if (major > programMajor)
        return refuse(4403, "Le fichier ne peut être lu qu'à partir de la version " +
                                std::to_string(major) + "!");
    return true;
}

std::int32_t xFile::majorVersion() const {
    try {
        return majorNumber(head_.version());
    } catch (const RuntimeFailure &failure) {
        throw withLine(failure, "La version \"" + trimmed(head_.version()) + "\" du fichier " +
                                    name_ + " du répertoire " + path_ + " est illisible.");
    }
}

void xFile::Remove() const {
    deleteFile(fullName_);
}

} // namespace boulix
