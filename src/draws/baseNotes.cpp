// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/baseNotes.h"

#include "core/globals.h"
#include "core/text.h"
#include "files/xFile.h"
#include "sill/appInfo.h"
#include "sill/desktop.h"

#include <string>

namespace boulix {

namespace {

constexpr std::int64_t slotLength = 128;
constexpr std::int64_t recordLength = 28;

std::string nameOf(const xFile &file) {
    return "Le fichier " + file.name() + " du répertoire " + file.path();
}

void tell(const std::string &text) {
    desktop().showMessage(text, Icon::information, gAppInfo->name());
}

} // namespace

void tellRefusedBase(const xFile &file, std::int64_t size) {
    std::string text;
    if (size < static_cast<std::int64_t>(fileHead::recordSize))
        text = nameOf(file) + " est trop court: il a " + std::to_string(size) +
               " octets, et son en-tête seul en a " + std::to_string(fileHead::recordSize) + "." +
               crlf;
    tell(text + "La base des tirages est vide. Le fichier " + file.name() +
         " reste comme il est jusqu'au premier changement de la base, qui le remplacera: "
         "mettez-le d'abord en lieu sûr.");
}

void tellCutBase(const xFile &file, std::int64_t size, std::int32_t count) {
    const std::int64_t lastDraw = size / slotLength; // slot 1 is the header
    const std::int64_t there = size % slotLength;
    if (lastDraw < 1 || there == 0 || there >= recordLength)
        return;
    tell(nameOf(file) + " est trop court: il finit au milieu du tirage n° " +
         std::to_string(lastDraw) + "." + crlf +
         (count >= lastDraw
              ? "Ce qui manque à ce tirage compte pour 0: corrigez-le ou supprimez-le."
              : "Ce tirage n'est pas repris dans la base."));
}

} // namespace boulix
