// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/appInfo.h"
#include "core/globals.h"
#include "draws/dbCombs.h"
#include "support/demand.h"
#include "support/quietSill.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace boulix::fuzzing {

/// A program whose draw base lies in a temporary folder that goes away with it.
class FuzzPlace {
  public:
    FuzzPlace() : folder_(temporaryFolder()), platform_(folder_) {
        setDesktop(&desktop);
        setPlatform(&platform_);
        gAppInfo->init("", "", "", 2003);
        gDbCombs->dbFile().path(folder_);
        gDbCombs->dbFile().name("tirages.dbl");
    }
    ~FuzzPlace() { std::filesystem::remove_all(folder_); }
    FuzzPlace(const FuzzPlace &) = delete;
    FuzzPlace &operator=(const FuzzPlace &) = delete;

    std::string baseFile() const { return folder_ + "/tirages.dbl"; }
    std::string write(const std::string &name, const std::uint8_t *data, std::size_t size) const {
        const std::string fullName = folder_ + "/" + name;
        std::ofstream file(fullName, std::ios::binary | std::ios::trunc);
        file.write(reinterpret_cast<const char *>(data), static_cast<std::streamsize>(size));
        return fullName;
    }

    bench_support::QuietDesktop desktop;

  private:
    static std::string temporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "boulix-fuzz-XXXXXX").string();
        if (!mkdtemp(name.data()))
            std::abort();
        return name;
    }

    std::string folder_;
    bench_support::QuietPlatform platform_;
};

} // namespace boulix::fuzzing
