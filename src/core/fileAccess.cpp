// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/fileAccess.h"

#include "core/failure.h"
#include "core/text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <system_error>

namespace boulix {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t readSize = 1U << 16U;
/// How many bytes go out together.
constexpr std::size_t writeSize = 1U << 20U;
/// A piece of so many bytes is worth a write of its own.
constexpr std::size_t largePiece = writeSize / 2;

bool writeProtected(fs::perms rights) {
    constexpr fs::perms anyWrite =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    return (rights & anyWrite) == fs::perms::none;
}

/// Devices and the like are written where they are; only a real file is deleted before.
bool isReplaced(const std::string &fullName) {
    std::error_code ignored; // what is wrong with the name shows when it is opened
    return fs::is_regular_file(fullName, ignored);
}

bool takesRoom(const std::string &fullName) {
    std::error_code ignored;
    return isReplaced(fullName) || !fs::exists(fullName, ignored);
}

std::string sizeText(std::uint64_t bytes) {
    constexpr std::uint64_t kilo = 1024;
    constexpr std::uint64_t manyKilos = 10'000;
    const std::uint64_t kilos = (bytes + kilo - 1) / kilo;
    if (kilos < manyKilos)
        return std::to_string(kilos) + " Ko";
    return std::to_string((kilos + kilo - 1) / kilo) + " Mo";
}

std::string adviceOn(const RuntimeFailure &failure) {
    switch (static_cast<Failure>(failure.number())) {
    case Failure::diskFull:
        return " Libérez de la place sur le disque, puis recommencez.";
    case Failure::permissionDenied:
        if (failure.description().find(crlf) != std::string::npos) // it says so itself
            return "";
        return " Le fichier ou son dossier est protégé en écriture : levez cette protection, ou "
               "choisissez-en un autre.";
    default:
        return " Vérifiez le disque et le nom du fichier, puis recommencez.";
    }
}

/// Runs a step of a save. Its failure tells, behind its own description, what has become of the
/// file, and what to do.
void step(bool fileTouched, const std::function<void()> &action) {
    try {
        action();
    } catch (const RuntimeFailure &failure) {
        const char *state =
            fileTouched ? "Le fichier sur le disque est effacé ou incomplet, mais rien n'est perdu "
                          "en mémoire tant que le programme reste ouvert."
                        : "Rien n'a été écrit ni effacé, et rien n'est perdu en mémoire.";
        throw withLine(failure, std::string(state) + adviceOn(failure));
    }
}

} // namespace

std::string readFile(const std::string &fullName) {
    disk::InputFile file(fullName);
    std::string bytes;
    std::array<char, readSize> buffer{};
    while (const std::size_t length = file.read(buffer.data(), buffer.size()))
        bytes.append(buffer.data(), length);
    return bytes;
}

void deleteFile(const std::string &fullName) {
    std::error_code error;
    const fs::file_status status = fs::status(fullName, error);
    if (fs::is_directory(status))
        failForFile(EISDIR, fullName);
    if (fs::exists(status) && writeProtected(status.permissions()))
        failForFile(EACCES, fullName);
    if (!fs::remove(fullName, error))
        failForFile(error ? error.value() : ENOENT, fullName);
}

void requireRoom(const std::string &fullName, std::uint64_t size) {
    step(false, [&] {
        if (!takesRoom(fullName))
            return;
        if (const std::uint64_t missing = disk::missingRoom(fullName, size))
            fail(Failure::diskFull, RuntimeFailure(Failure::diskFull).description() + " : " +
                                        fullName + crlf + "Il manque " + sizeText(missing) +
                                        " sur le disque.");
    });
}

FileWriter::FileWriter(const std::string &fullName, std::uint64_t size) : file_(fullName) {
    waiting_.reserve(static_cast<std::size_t>(std::min<std::uint64_t>(size, writeSize)));
    requireRoom(fullName, size);
    const bool replaces = isReplaced(fullName);
    if (replaces)
        step(false, [&] { deleteFile(fullName); });
    step(replaces, [this] { file_.open(); });
}

void FileWriter::write(std::string_view bytes) {
    const bool large = bytes.size() >= largePiece;
    if (large || waiting_.size() + bytes.size() > waiting_.capacity())
        writeWaiting();
    if (large || bytes.size() > waiting_.capacity())
        step(true, [&] { file_.write(bytes); });
    else
        waiting_ += bytes;
}

void FileWriter::close() {
    writeWaiting();
    step(true, [this] {
        file_.flush();
        file_.close();
    });
}

void FileWriter::writeWaiting() {
    step(true, [this] { file_.write(waiting_); });
    waiting_.clear();
}

void replaceFile(const std::string &fullName, std::string_view bytes) {
    FileWriter file(fullName, bytes.size());
    file.write(bytes);
    file.close();
}

} // namespace boulix
