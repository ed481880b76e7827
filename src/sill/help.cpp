// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/help.h"

#include "core/fileAccess.h"
#include "core/platform.h"
#include "core/text.h"
#include "sill/desktop.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace boulix::help {

namespace {

/// The contexts count from here; the numbers stay for good, because a help file can hold them.
constexpr std::int32_t firstContext = 100;

constexpr std::array<const char *, 13> pages = {
    "index", "base",         "statistiques", "analyse",    "eliminateurs", "jeux",   "systemes",
    "gains", "pronostiques", "numeros",      "impression", "fichiers",     "touches"};

struct Place {
    std::string_view name; ///< of a page, a sub-tab, a panel or a window
    std::string_view page;
};

constexpr std::array<Place, 29> places = {{
    {"frameTab_0", "base"},
    {"frameTab_1", "statistiques"},
    {"frameTab_2", "analyse"},
    {"frameTab_3", "eliminateurs"},
    {"frameTab_4", "jeux"},
    {"frameTab_5", "pronostiques"},
    {"frameGameTab_0", "gains"},
    {"frameGameTab_1", "gains"},
    {"frameGameTab_2", "gains"},
    {"systemMaker", "systemes"},
    {"frmSelDate", "base"},
    {"frmNbrSelector", "numeros"},
    {"frmGraph", "statistiques"},
    {"frmGraphParam", "statistiques"},
    {"frmPrint", "impression"},
    {"frmGridParam", "impression"},
    {"frmPrintGridPreview", "impression"},
    {"printQueueWindow", "impression"},
    {"frmGameList", "systemes"},
    {"frmDisplayGame", "systemes"},
    {"frmOptimiser", "systemes"},
    {"frmRandomComb", "gains"},
    {"frmWinDate", "gains"},
    {"frmChances", "gains"},
    {"frmTestProno", "pronostiques"},
    {"comDiag", "fichiers"},
    {"mnuFile", "fichiers"},
    {"mnuConfig", "impression"},
    {"keys", "touches"},
}};

} // namespace

void Show(const std::string &file, const std::string &window,
          std::optional<std::int32_t> contextId) {
    const std::string target = window.empty() ? file : trimmed(file) + ">" + trimmed(window);
    desktop().showHelp(target, contextId);
}

void showPageOf(const std::vector<std::string> &place) {
    Show(platform().applicationFolder() + pathSeparator + "boulix.chm", "DefaultWindow",
         contextOf(place));
}

std::int32_t contextOf(const std::vector<std::string> &place) {
    for (const std::string &name : place)
        for (const Place &known : places)
            if (known.name == name) {
                const auto page = std::find(pages.begin(), pages.end(), known.page);
                return firstContext + static_cast<std::int32_t>(page - pages.begin());
            }
    return firstContext;
}

std::string pageName(std::int32_t context) {
    const std::int32_t page = context - firstContext;
    if (page < 0 || page >= static_cast<std::int32_t>(pages.size()))
        return std::to_string(context);
    return pages[static_cast<std::size_t>(page)];
}

} // namespace boulix::help
