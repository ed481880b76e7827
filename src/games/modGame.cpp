// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/modGame.h"

#include "core/fileAccess.h"
#include "core/globals.h"
#include "core/platform.h"
#include "core/settings.h"
#include "core/text.h"
#include "files/xFile.h"
#include "games/predefinedSystems.h"
#include "sill/appInfo.h"
#include "sill/desktop.h"
#include "sill/reports.h"

#include <algorithm>
#include <bit>

namespace boulix::modGame {

namespace {

constexpr auto reducedSection = "jeux reduits";
constexpr auto fixedSection = "jeux a positions fixes";
constexpr auto noEntry = "rien";

std::string keyOf(std::int32_t number) {
    return "jeu" + std::to_string(number);
}

gameDef definitionOf(const PredefinedSystem &system) {
    gameDef def;
    def.label(system.label);
    def.nSelect(system.nSelect);
    def.nCond(system.nCond);
    def.nWin(system.nWin);
    for (const char *row : system.rows)
        def.addStrComb(row);
    return def;
}

/// The positions whose bits are set in `choice`, bit 0 for position 1.
gameComb positionsOf(unsigned choice) {
    gameComb positions;
    int place = 0;
    for (int p = 1; p <= gameComb::size; ++p)
        if ((choice >> (p - 1) & 1U) != 0)
            positions.num(++place, static_cast<std::int16_t>(p));
    return positions;
}

/// Whether the choice `a` comes before `b` of the same size: it has the smallest position in
/// which they differ.
bool comesBefore(unsigned a, unsigned b) {
    const unsigned different = a ^ b;
    return (a & (different & -different)) != 0;
}

void fillSubsets(std::size_t fixed, std::size_t size) {
    const unsigned behindFixed = 0x3FU & ~((1U << fixed) - 1);
    std::vector<unsigned> choices;
    for (unsigned choice = 0; choice <= behindFixed; ++choice)
        if ((choice & ~behindFixed) == 0 && std::popcount(choice) == static_cast<int>(size))
            choices.push_back(choice);
    std::sort(choices.begin(), choices.end(), comesBefore);
    subsetCount[fixed][size] = static_cast<std::int16_t>(choices.size());
    for (std::size_t r = 0; r < choices.size(); ++r)
        subsetList[fixed][size][r + 1] = positionsOf(choices[r]);
}

void fillCouples() {
    std::size_t index = 0;
    for (std::int16_t a = 1; a <= 49; ++a)
        for (auto b = static_cast<std::int16_t>(a + 1); b <= 49; ++b) {
            ++index;
            coupleTable[0][index] = a;
            coupleTable[1][index] = b;
        }
}

void loadEntry(gameDef &def) {
    try {
        def.load();
    } catch (const RuntimeFailure &failure) {
        const std::string text = "Impossible de charger le jeu réduit utilisateur " +
                                 def.file()->name() + ":" + crlf + failure.description();
        showUnexpected(RuntimeFailure(static_cast<Failure>(failure.number()), text));
    }
}

/// Removes the key of an entry whose file could not be written. The failure of that is the one to
/// be told; the settings may be out of reach for the same reason.
void takeKeyBack(const std::string &section, const std::string &key) {
    try {
        settings::remove(section, key);
    } catch (const RuntimeFailure &) {
    }
}

} // namespace

FixedGameFailure::FixedGameFailure(const std::string &key, const std::string &fileName)
    : RuntimeFailure(Failure::objectNotSet, "Jeu à positions fixes sans définition: entrée " + key +
                                                "=" + fileName + " de la section [" + fixedSection +
                                                "] du fichier boulix.ini"),
      key_(key), fileName_(fileName) {}

bool FixedGameFailure::offerRemoval() const {
    const std::string question = "Boulix ne démarre pas tant que l'entrée " + key_ + "=" +
                                 fileName_ + " est dans le fichier boulix.ini." + crlf +
                                 "Voulez-vous l'enlever et démarrer? Le fichier " + fileName_ +
                                 " restera dans le dossier.";
    return desktop().askYesNo(question, Icon::question, gAppInfo->name()) &&
           runCommand([this] { settings::remove(fixedSection, key_); });
}

void init() {
    reducedGames.resize(1);
    fixedGames.resize(1);
    for (const PredefinedSystem &system : predefinedReduced)
        reducedGames.push_back(definitionOf(system));
    for (const PredefinedSystem &system : predefinedFixed)
        fixedGames.push_back(definitionOf(system));
    for (std::size_t fixed = 0; fixed <= maxFixed; ++fixed)
        for (std::size_t size = 1; size <= gameComb::size; ++size)
            fillSubsets(fixed, size);
    fillCouples();
}

void loadUserGames() {
    for (std::int32_t i = 0;; ++i) {
        const std::string name = settings::read(reducedSection, keyOf(i), noEntry);
        if (name == noEntry)
            break;
        gameDef &def = reducedGames.emplace_back();
        auto file = std::make_shared<xFile>();
        file->path(platform().applicationFolder());
        file->name(name);
        def.file(file);
    }
    // The entries of fixed-position games are written by the program and not read back: the
    // first one stops the start, as it always has.
    const std::string fixed = settings::read(fixedSection, keyOf(0), noEntry);
    if (fixed != noEntry)
        throw FixedGameFailure(keyOf(0), fixed);
    for (std::size_t i = nPredefReduced + 1; i < reducedGames.size(); ++i)
        loadEntry(reducedGames[i]);
}

bool addUserGame(const gameDef &source, GameList &list) {
    gameDef def;
    for (std::int32_t i = 1; i <= source.nComb(); ++i)
        def.addGameComb(source.sharedRow(i));
    def.nWin(source.nWin());
    def.nCond(source.nCond());
    def.nSelect(source.nSelect());
    def.nFixed(source.nFixed());
    const auto name = desktop().askText("Donnez le nom du jeu", "Définition du nom du jeu", "",
                                        gameDef::maxLabel);
    def.label(name.value_or(""));
    list.push_back(def);
    return true;
}

void saveNewGame(GameList &list, std::int16_t nReduced, std::int16_t nFixedGame) {
    try {
        list.back().save(nReduced, nFixedGame);
    } catch (...) {
        const bool fixed = list.back().nFixed() != 0;
        list.pop_back();
        takeKeyBack(fixed ? fixedSection : reducedSection, keyOf(fixed ? nFixedGame : nReduced));
        throw;
    }
}

void removeUserGame(std::int32_t position, GameList &list) {
    const auto first = static_cast<std::size_t>(checkedIndex(position, 1, count(list)));
    const bool fixed = list[first].nFixed() != 0;
    const std::string section = fixed ? fixedSection : reducedSection;
    const std::int32_t base = fixed ? nPredefFixed : nPredefReduced;
    for (std::size_t i = first; i < list.size(); ++i) {
        settings::remove(section, keyOf(static_cast<std::int32_t>(i) - base));
        if (!list[i].file())
            fail(Failure::objectNotSet);
        deleteFile(platform().applicationFolder() + pathSeparator + list[i].file()->name());
    }
    for (std::size_t i = first; i + 1 < list.size(); ++i)
        list[i] = list[i + 1];
    for (std::size_t i = first; i + 1 < list.size(); ++i)
        list[i].save(narrow16(nReducedGames() - nPredefReduced),
                     narrow16(nFixedGames() - nPredefFixed));
}

} // namespace boulix::modGame
