// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/disk.h"

#include "core/failure.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <io.h>
#include <sys/stat.h>
#include <system_error>

namespace boulix::disk {

namespace {

/// The system's calls count in 32 bits.
constexpr std::size_t largestPiece = std::size_t{1} << 30U;

std::filesystem::path pathOf(const std::string &fullName) {
    return {std::u8string(fullName.begin(), fullName.end())};
}

int openFile(const std::string &fullName, int flags) {
    const int file =
        ::_wopen(pathOf(fullName).c_str(), flags | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
    if (file < 0)
        failForFile(errno, fullName);
    return file;
}

std::string folderOf(const std::string &fullName) {
    const std::u8string folder = pathOf(fullName).parent_path().u8string();
    return folder.empty() ? "." : std::string(folder.begin(), folder.end());
}

} // namespace

std::uint64_t missingRoom(const std::string &fullName, std::uint64_t bytes) {
    std::error_code error;
    const std::filesystem::space_info disk =
        std::filesystem::space(pathOf(folderOf(fullName)), error);
    if (error) {
        if (error == std::errc::function_not_supported)
            return 0;
        failForFile(error.default_error_condition().value(), fullName);
    }
    std::uint64_t room = disk.available;
    const std::uintmax_t held = std::filesystem::file_size(pathOf(fullName), error);
    if (!error)
        room += held;
    return bytes > room ? bytes - room : 0;
}

InputFile::InputFile(const std::string &fullName)
    : name_(fullName), file_(openFile(fullName, _O_RDONLY)) {}

InputFile::~InputFile() {
    ::_close(file_);
}

std::size_t InputFile::read(char *to, std::size_t count) {
    std::size_t done = 0;
    while (done < count) {
        const std::size_t piece = std::min(count - done, largestPiece);
        const int got = ::_read(file_, to + done, static_cast<unsigned>(piece));
        if (got < 0)
            failForFile(errno, name_);
        if (got == 0)
            break;
        done += static_cast<std::size_t>(got);
    }
    return done;
}

void InputFile::seek(std::int64_t offset) {
    if (::_lseeki64(file_, offset, SEEK_SET) < 0)
        failForFile(errno, name_);
}

OutputFile::OutputFile(const std::string &fullName)
    : name_(fullName), folder_(folderOf(fullName)) {}

OutputFile::~OutputFile() {
    if (file_ >= 0)
        ::_close(file_);
}

void OutputFile::open() {
    file_ = openFile(name_, _O_WRONLY | _O_CREAT | _O_TRUNC);
}

void OutputFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t piece = std::min(bytes.size(), largestPiece);
        const int written = ::_write(file_, bytes.data(), static_cast<unsigned>(piece));
        if (written <= 0)
            failForFile(written == 0 ? ENOSPC : errno, name_);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

/// The entry in the folder is the system's business here.
void OutputFile::flush() {
    if (::_isatty(file_) == 0 && ::_commit(file_) != 0 && errno != EINVAL)
        failForFile(errno, name_);
}

void OutputFile::close() {
    const int file = file_;
    file_ = -1; // gone, whatever the system answers
    if (::_close(file) != 0)
        failForFile(errno, name_);
}

} // namespace boulix::disk
