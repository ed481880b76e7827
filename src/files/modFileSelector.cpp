// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/modFileSelector.h"

#include "files/xFile.h"
#include "sill/desktop.h"
#include "sill/modMain.h"

#include <utility>

namespace boulix::modFileSelector {

namespace {

/// What the next open dialog is answered with, empty where it asks.
std::string given;

/// Keeps the folder of `fullName` for the next dialog; an empty name means that none was chosen.
std::string remembered(const std::string &fullName) {
    if (!fullName.empty()) {
        xFile file;
        file.fullName(fullName);
        modMain::gCurrentDir = file.path();
    }
    return fullName;
}

} // namespace

std::string openDialog(const std::string &filter, const std::string &title) {
    if (!given.empty())
        return remembered(std::exchange(given, {}));
    return remembered(desktop().openFile({filter, title, modMain::gCurrentDir}));
}

std::string saveDialog(const std::string &filter, const std::string &title,
                       const std::string &name) {
    return remembered(desktop().saveFile({filter, title, modMain::gCurrentDir, name}));
}

GivenFile::GivenFile(const std::string &fullName) {
    given = fullName;
}

GivenFile::~GivenFile() {
    given.clear();
}

bool mayReplace(const xFile &file, const std::string &boxTitle) {
    return !file.exist() ||
           desktop().askToErase("Le fichier " + file.name() +
                                    " existe déjà. Etes-vous sûr de vouloir le remplacer?",
                                Icon::question, boxTitle);
}

} // namespace boulix::modFileSelector
