// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/fileAccess.h"

#include "core/failure.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

namespace boulix {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t bufferSize = 1U << 16U;

bool writeProtected(fs::perms rights) {
    constexpr fs::perms anyWrite =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    return (rights & anyWrite) == fs::perms::none;
}

FileHandle openFile(const std::string &fullName, const char *mode) {
    FileHandle file(std::fopen(fullName.c_str(), mode));
    if (!file)
        failForFile(errno, fullName);
    return file;
}

/// Devices and the like are written where they are; only a real file is deleted before.
FileHandle openAnew(const std::string &fullName) {
    std::error_code ignored; // what is wrong with the name shows when it is opened
    if (fs::is_regular_file(fullName, ignored))
        deleteFile(fullName);
    return openFile(fullName, "wb");
}

} // namespace

FileHandle openForReading(const std::string &fullName) {
    return openFile(fullName, "rb");
}

std::string readFile(const std::string &fullName) {
    const FileHandle file = openForReading(fullName);
    std::string bytes;
    std::array<char, bufferSize> buffer{};
    while (const std::size_t length = std::fread(buffer.data(), 1, buffer.size(), file.get()))
        bytes.append(buffer.data(), length);
    if (std::ferror(file.get()))
        failForFile(errno, fullName);
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

FileWriter::FileWriter(const std::string &fullName) : name_(fullName), file_(openAnew(fullName)) {
    std::setvbuf(file_.get(), nullptr, _IOFBF, bufferSize);
}

void FileWriter::write(std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size())
        failForFile(errno, name_);
}

void FileWriter::close() {
    if (std::fclose(file_.release()) != 0) // it flushes first, and tells how that went
        failForFile(errno, name_);
}

void replaceFile(const std::string &fullName, std::string_view bytes) {
    FileWriter file(fullName);
    file.write(bytes);
    file.close();
}

} // namespace boulix
