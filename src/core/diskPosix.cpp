// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/disk.h"

#include "core/failure.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace boulix::disk {

namespace {

constexpr mode_t everybody = 0666; // less what the user's mask takes away
constexpr std::uint64_t statBlock = 512;

int openFile(const std::string &fullName, int flags) {
    const int file = ::open(fullName.c_str(), flags | O_CLOEXEC, everybody);
    if (file < 0)
        failForFile(errno, fullName);
    return file;
}

std::string folderOf(const std::string &fullName) {
    const std::string folder = std::filesystem::path(fullName).parent_path().string();
    return folder.empty() ? "." : folder;
}

/// What the disk gets back when the file is deleted. A file of several names stays, and of a link
/// only the link goes.
std::uint64_t roomHeldBy(const std::string &fullName) {
    struct stat file {};
    const bool goes =
        ::lstat(fullName.c_str(), &file) == 0 && S_ISREG(file.st_mode) && file.st_nlink == 1;
    return goes ? static_cast<std::uint64_t>(file.st_blocks) * statBlock : 0;
}

/// Flushes the entry that a new file has in its folder. Not every disk can do that on request,
/// and those keep their entries in their own way: the bytes of the file are safe by now.
void flushFolder(const std::string &name) {
    const int folder = ::open(name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    ::fsync(folder);
    ::close(folder);
}

} // namespace

std::uint64_t missingRoom(const std::string &fullName, std::uint64_t bytes) {
    struct statvfs disk {};
    if (::statvfs(folderOf(fullName).c_str(), &disk) != 0) {
        if (errno == ENOSYS)
            return 0;
        failForFile(errno, fullName);
    }
    if ((disk.f_flag & ST_RDONLY) != 0)
        failForFile(EROFS, fullName);
    if (disk.f_blocks == 0) // some network disks do not know their size
        return 0;
    const std::uint64_t block = std::max<std::uint64_t>(disk.f_frsize, 1);
    const std::uint64_t wanted = (bytes + block - 1) / block * block;
    const std::uint64_t room = disk.f_bavail * block + roomHeldBy(fullName);
    return wanted > room ? wanted - room : 0;
}

InputFile::InputFile(const std::string &fullName)
    : name_(fullName), file_(openFile(fullName, O_RDONLY)) {}

InputFile::~InputFile() {
    ::close(file_);
}

std::size_t InputFile::read(char *to, std::size_t count) {
    std::size_t done = 0;
    while (done < count) {
        const ssize_t got = ::read(file_, to + done, count - done);
        if (got == 0)
            break;
        if (got > 0)
            done += static_cast<std::size_t>(got);
        else if (errno != EINTR)
            failForFile(errno, name_);
    }
    return done;
}

void InputFile::seek(std::int64_t offset) {
    if (::lseek(file_, offset, SEEK_SET) < 0)
        failForFile(errno, name_);
}

OutputFile::OutputFile(const std::string &fullName)
    : name_(fullName), folder_(folderOf(fullName)) {}

OutputFile::~OutputFile() {
    if (file_ >= 0)
        ::close(file_);
}

void OutputFile::open() {
    file_ = openFile(name_, O_WRONLY | O_CREAT | O_TRUNC);
}

void OutputFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file_, bytes.data(), bytes.size());
        if (written > 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
        else if (written == 0 || errno != EINTR)
            failForFile(written == 0 ? EIO : errno, name_);
    }
}

void OutputFile::flush() {
    if (::fsync(file_) != 0) {
        if (errno == EINVAL || errno == ENOTSUP) // a device, a pipe
            return;
        failForFile(errno, name_);
    }
    flushFolder(folder_);
}

void OutputFile::close() {
    const int file = file_;
    file_ = -1; // gone, whatever the system answers
    if (::close(file) != 0)
        failForFile(errno, name_);
}

} // namespace boulix::disk
