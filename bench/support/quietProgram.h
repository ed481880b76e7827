// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "sill/appInfo.h"
#include "support/quietSill.h"

#include <cstdlib>
#include <filesystem>
#include <string>

namespace boulix::bench_support {

/// A program behind `desktop` whose draw base lies in a temporary folder; the folder goes away
/// with it.
class QuietProgram {
  public:
    explicit QuietProgram(Desktop &desktop) : folder_(temporaryFolder()), platform_(folder_) {
        setDesktop(&desktop);
        setPlatform(&platform_);
        resetGlobals();
        gAppInfo->init("", "", "", 2003);
        gDbCombs->dbFile().path(folder_);
        gDbCombs->dbFile().name("tirages.dbl");
    }
    ~QuietProgram() { std::filesystem::remove_all(folder_); }
    QuietProgram(const QuietProgram &) = delete;
    QuietProgram &operator=(const QuietProgram &) = delete;

    std::string baseFile() const { return file("tirages.dbl"); }
    /// The full name of `name` in the program's folder.
    std::string file(const std::string &name) const { return folder_ + "/" + name; }

  private:
    static std::string temporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "boulix-XXXXXX").string();
        if (!mkdtemp(name.data()))
            std::abort();
        return name;
    }

    std::string folder_;
    QuietPlatform platform_;
};

} // namespace boulix::bench_support
