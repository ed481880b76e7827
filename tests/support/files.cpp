// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/files.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <system_error>

namespace boulix::testing_support {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    path_ = (fs::temp_directory_path() / "boulix-test-XXXXXX").string();
    if (!mkdtemp(path_.data()))
        throw std::runtime_error("no temporary folder: " + path_);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

std::string readBytes(const std::string &fullName) {
    std::ifstream file(fullName, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    // An empty file sets the fail bit of the target, so only the source is asked.
    if (!file.is_open() || file.bad())
        throw std::runtime_error("cannot read " + fullName);
    return bytes.str();
}

void writeBytes(const std::string &fullName, const std::string &bytes) {
    std::ofstream file(fullName, std::ios::binary | std::ios::trunc);
    file << bytes << std::flush;
    if (!file)
        throw std::runtime_error("cannot write " + fullName);
}

bool fileExists(const std::string &fullName) {
    return fs::exists(fullName);
}

} // namespace boulix::testing_support
