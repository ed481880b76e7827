// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/memory.h"

#include "core/failure.h"
#include "core/settings.h"
#include "core/text.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <system_error>
#include <utility>

namespace boulix {

namespace {

constexpr const char *windowSection = "fenetre";
constexpr const char *columnSection = "colonnes";
constexpr const char *gameSection = "jeux recents";
constexpr const char *sourceSection = "selecteurs";
constexpr const char *on = "on";
constexpr const char *off = "off";

/// Beyond any screen, and far from where sums of two of them overflow.
constexpr int farthest = 100'000;
constexpr int lastTab = 5;
constexpr int widestColumn = 10'000;

/// The whole of `text` as a number from `least` to `most`.
std::optional<int> number(const std::string &text, int least, int most) {
    int value = 0;
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    const bool good = error == std::errc() && stop == end && value >= least && value <= most;
    return good ? std::optional<int>(value) : std::nullopt;
}

std::optional<int> readNumber(const char *section, const std::string &key, int least, int most) {
    return number(settings::read(section, key, ""), least, most);
}

std::optional<Area> readWindow() {
    const auto left = readNumber(windowSection, "gauche", -farthest, farthest);
    const auto top = readNumber(windowSection, "haut", -farthest, farthest);
    const auto width = readNumber(windowSection, "largeur", 1, farthest);
    const auto height = readNumber(windowSection, "hauteur", 1, farthest);
    if (!left || !top || !width || !height)
        return std::nullopt;
    return Area{*left, *top, *width, *height};
}

/// The stretches of `text` between the separators.
std::vector<std::string> parts(const std::string &text, char separator) {
    std::vector<std::string> found;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find(separator, at), text.size());
        found.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return found;
}

/// "120 40 40;90 200": one stretch for each count of columns. One that has a number which is no
/// width is dropped.
std::vector<std::vector<int>> readWidths(const std::string &list) {
    std::vector<std::vector<int>> all;
    for (const std::string &stretch : parts(settings::read(columnSection, list, ""), ';')) {
        std::vector<int> widths;
        for (const std::string &text : parts(stretch, ' '))
            widths.push_back(number(text, 1, widestColumn).value_or(0));
        if (std::find(widths.begin(), widths.end(), 0) == widths.end())
            all.push_back(std::move(widths));
    }
    return all;
}

std::string widthsText(const std::vector<std::vector<int>> &all) {
    std::string text;
    for (const std::vector<int> &widths : all) {
        text += text.empty() ? "" : ";";
        for (std::size_t i = 0; i < widths.size(); ++i)
            text += (i == 0 ? "" : " ") + std::to_string(widths[i]);
    }
    return text;
}

std::string gameKey(std::size_t i) {
    return "jeu" + std::to_string(i);
}

std::string sourceKey(std::size_t i) {
    return "source" + std::to_string(i);
}

/// Whether the settings file, which is of one byte a letter, can hold the name.
bool canBeKept(const std::string &name) {
    return fromWestern(toWestern(name)) == name;
}

bool isFolder(const std::string &name) {
    std::error_code ignored;
    return !name.empty() && std::filesystem::is_directory(name, ignored);
}

int length(int begin, int end) {
    return std::max(0, end - begin);
}

/// How much of `window` lies on `screen`.
long long covered(const Area &window, const Area &screen) {
    const int across = length(std::max(window.left, screen.left),
                              std::min(window.left + window.width, screen.left + screen.width));
    const int down = length(std::max(window.top, screen.top),
                            std::min(window.top + window.height, screen.top + screen.height));
    return static_cast<long long>(across) * down;
}

} // namespace

const std::array<const char *, 6> Memory::lists = {
    "lvwDBcomb", "lvwStatsResult", "lvwTirStat", "lvwGame", "lvwGameDef", "lvwPronoResults"};

Memory Memory::read() {
    Memory memory;
    memory.window = readWindow();
    memory.maximised = settings::read(windowSection, "agrandie", off) == on;
    memory.tab = readNumber(windowSection, "onglet", 0, lastTab).value_or(0);
    for (std::size_t i = 0; i < memory.sources.size(); ++i)
        memory.sources[i] = settings::read(sourceSection, sourceKey(i), off) == on;
    const std::string folder = settings::read(gameSection, "dossier", "");
    if (isFolder(folder))
        memory.folder = folder;
    for (std::size_t i = mostGames; i-- > 0;)
        memory.gameUsed(settings::read(gameSection, gameKey(i), ""));
    for (const char *list : lists)
        if (auto widths = readWidths(list); !widths.empty())
            memory.columns[list] = std::move(widths);
    return memory;
}

void Memory::write() const {
    std::vector<settings::Entry> entries;
    if (window) {
        entries.push_back({windowSection, "gauche", std::to_string(window->left)});
        entries.push_back({windowSection, "haut", std::to_string(window->top)});
        entries.push_back({windowSection, "largeur", std::to_string(window->width)});
        entries.push_back({windowSection, "hauteur", std::to_string(window->height)});
    }
    entries.push_back({windowSection, "agrandie", maximised ? on : off});
    entries.push_back({windowSection, "onglet", std::to_string(tab)});
    for (const auto &[list, widths] : columns)
        entries.push_back({columnSection, list, widthsText(widths)});
    for (std::size_t i = 0; i < sources.size(); ++i)
        entries.push_back({sourceSection, sourceKey(i), sources[i] ? on : off});
    entries.push_back({gameSection, "dossier", canBeKept(folder) ? folder : ""});
    std::vector<std::string> games = recentGames;
    std::erase_if(games, [](const std::string &name) { return !canBeKept(name); });
    games.resize(mostGames);
    for (std::size_t i = 0; i < mostGames; ++i)
        entries.push_back({gameSection, gameKey(i), games[i]});
    try {
        settings::write(entries);
    } catch (const RuntimeFailure &) { // the next start opens as the first one did
    }
}

void Memory::gameUsed(const std::string &fullName) {
    if (fullName.empty())
        return;
    std::erase(recentGames, fullName);
    recentGames.insert(recentGames.begin(), fullName);
    if (recentGames.size() > mostGames)
        recentGames.resize(mostGames);
}

Area onScreens(Area window, const std::vector<Area> &screens) {
    const auto less = [&](const Area &one, const Area &other) {
        return covered(window, one) < covered(window, other);
    };
    const Area screen = *std::max_element(screens.begin(), screens.end(), less);
    window.width = std::min(window.width, screen.width);
    window.height = std::min(window.height, screen.height);
    window.left = std::clamp(window.left, screen.left, screen.left + screen.width - window.width);
    window.top = std::clamp(window.top, screen.top, screen.top + screen.height - window.height);
    return window;
}

} // namespace boulix
