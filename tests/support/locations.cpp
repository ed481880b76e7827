// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/locations.h"

#include <cstdlib>
#include <stdexcept>

namespace boulix::testing_support {

namespace fs = std::filesystem;

fs::path checkoutFolder() {
    if (const char *top = std::getenv("BOULIX_TOP"))
        return top;
    for (fs::path folder = fs::current_path();; folder = folder.parent_path()) {
        if (fs::exists(folder / "CMakePresets.json"))
            return folder;
        if (folder == folder.parent_path())
            throw std::runtime_error("no checkout above the working directory; set BOULIX_TOP");
    }
}

std::optional<fs::path> operatorHistory() {
    const char *named = std::getenv("BOULIX_HISTORY");
    const fs::path file =
        named ? fs::path(named)
              : checkoutFolder().parent_path() / "shared/data/operator-history-1976-2008.txt";
    if (!fs::is_regular_file(file))
        return std::nullopt;
    return file;
}

fs::path sampleHistory() {
    return checkoutFolder() / "samples/historique-exemple.txt";
}

fs::path picturesFolder() {
    const char *named = std::getenv("BOULIX_PICTURES");
    const fs::path folder = named ? fs::path(named) : checkoutFolder() / "out/tour";
    fs::create_directories(folder);
    return folder;
}

} // namespace boulix::testing_support
