// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "faultySystem.h"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <map>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace boulix::testing_support {

namespace {

struct Watch {
    std::string folder;
    std::map<int, std::string> files; // the open ones, by their number
    std::vector<std::string> calls;
    std::size_t failAt = 0;
    int error = 0;
    bool forGood = false;
    bool half = false;
};

Watch *watch = nullptr; // nothing while no test looks on

/// What the calls write down of a file of the folder; empty for any other.
std::string nameIn(const char *path) {
    if (!watch)
        return {};
    const std::string full = path;
    if (full == watch->folder)
        return ".";
    return full.rfind(watch->folder + "/", 0) == 0 ? full.substr(watch->folder.size() + 1) : "";
}

std::string nameOf(int file) {
    if (!watch)
        return {};
    const auto found = watch->files.find(file);
    return found == watch->files.end() ? "" : found->second;
}

/// Writes the call down; true when it is one that fails.
bool fails(const char *call, const std::string &name) {
    if (name.empty())
        return false;
    watch->calls.push_back(std::string(call) + " " + name);
    const std::size_t n = watch->calls.size();
    const bool due =
        watch->failAt != 0 && (n == watch->failAt || (watch->forGood && n > watch->failAt));
    if (due)
        errno = watch->error;
    return due;
}

/// As a system call answers: -1 and errno, or the result.
template <class... Arguments>
long systemCall(long number, Arguments... arguments) {
    return syscall(number, arguments...);
}

int openHere(const char *path, int flags, mode_t mode) {
    const std::string name = nameIn(path);
    if (fails("open", name))
        return -1;
    const auto file = static_cast<int>(systemCall(SYS_openat, AT_FDCWD, path, flags, mode));
    if (file >= 0 && !name.empty())
        watch->files[file] = name;
    return file;
}

int unlinkHere(const char *call, const char *path) {
    if (fails(call, nameIn(path)))
        return -1;
    return static_cast<int>(systemCall(SYS_unlinkat, AT_FDCWD, path, 0));
}

} // namespace

FaultySystem::FaultySystem(const std::string &folder) {
    watch = new Watch{folder, {}, {}};
}

FaultySystem::~FaultySystem() {
    delete watch;
    watch = nullptr;
}

void FaultySystem::failAt(std::size_t n, int error, bool forGood) {
    watch->failAt = watch->calls.size() + n;
    watch->error = error;
    watch->forGood = forGood;
}

void FaultySystem::writeHalf(bool half) {
    watch->half = half;
}

const std::vector<std::string> &FaultySystem::calls() const {
    return watch->calls;
}

} // namespace boulix::testing_support

using namespace boulix::testing_support;

// The linker hands these names out to the libraries, too, ahead of the system's own.
extern "C" {

int open(const char *path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return openHere(path, flags, mode);
}

int open64(const char *path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return openHere(path, flags, mode);
}

ssize_t read(int file, void *to, size_t count) {
    return fails("read", nameOf(file)) ? -1 : systemCall(SYS_read, file, to, count);
}

ssize_t write(int file, const void *bytes, size_t count) {
    if (!fails("write", nameOf(file)))
        return systemCall(SYS_write, file, bytes, count);
    const int error = errno;
    if (watch->half && count > 1)
        systemCall(SYS_write, file, bytes, count / 2);
    errno = error;
    return -1;
}

off_t lseek(int file, off_t offset, int whence) noexcept {
    return fails("lseek", nameOf(file)) ? -1 : systemCall(SYS_lseek, file, offset, whence);
}

int fsync(int file) {
    return fails("fsync", nameOf(file)) ? -1 : static_cast<int>(systemCall(SYS_fsync, file));
}

int close(int file) {
    const bool refused = fails("close", nameOf(file));
    const int error = errno;
    if (watch)
        watch->files.erase(file);
    const auto closed = static_cast<int>(systemCall(SYS_close, file)); // gone all the same
    if (!refused)
        return closed;
    errno = error;
    return -1;
}

int unlink(const char *path) noexcept {
    return unlinkHere("unlink", path);
}

int remove(const char *path) noexcept {
    const int removed = unlinkHere("remove", path);
    if (removed == 0 || errno != EISDIR)
        return removed;
    return static_cast<int>(systemCall(SYS_unlinkat, AT_FDCWD, path, AT_REMOVEDIR));
}

int rename(const char *from, const char *to) noexcept {
    if (fails("rename", nameIn(from)))
        return -1;
    return static_cast<int>(systemCall(SYS_renameat, AT_FDCWD, from, AT_FDCWD, to));
}

int statvfs(const char *__restrict path, struct statvfs *__restrict answer) noexcept {
    if (fails("statvfs", nameIn(path)))
        return -1;
    using Statvfs = int (*)(const char *, struct statvfs *);
    static const auto real = reinterpret_cast<Statvfs>(dlsym(RTLD_NEXT, "statvfs"));
    return real(path, answer);
}
}
