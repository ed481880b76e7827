// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/folderClaim.h"

#include "core/text.h"
#include "sill/desktop.h"

namespace boulix {

namespace {

/// Nothing says whether the other program is still at work: it may have been killed, or hang.
bool startsAnyway(const std::string &whatIsKnown) {
    const std::string question =
        whatIsKnown + crlf +
        "Deux programmes ouverts dans un même dossier écrasent chacun les fichiers de l'autre." +
        crlf + "Voulez-vous tout de même démarrer?";
    return desktop().askYesNo(question, Icon::question, "boulix");
}

} // namespace

bool claimFolder(FolderClaim &claim) {
    std::string whatIsKnown;
    switch (claim.take()) {
    case FolderClaim::Holder::thisProgram:
    case FolderClaim::Holder::nobody:
        return true;
    case FolderClaim::Holder::sameMachine:
        if (claim.callHolder())
            return false;
        whatIsKnown = "Boulix est déjà ouvert dans ce dossier, mais sa fenêtre ne répond pas.";
        break;
    case FolderClaim::Holder::otherMachine:
        whatIsKnown = "Boulix est déjà ouvert dans ce dossier sur l'ordinateur " + claim.machine() +
                      ", ou y a été interrompu.";
        break;
    }
    if (!startsAnyway(whatIsKnown))
        return false;
    claim.takeOver();
    return true;
}

} // namespace boulix
