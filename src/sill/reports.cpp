// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/reports.h"

#include "sill/modMain.h"

#include <new>

namespace boulix {

void reportNumbered(int number, const std::string &text, Icon icon) {
    desktop().showMessage(text, icon, "boulix: Erreur N° " + std::to_string(number));
}

void handleUnexpected(const RuntimeFailure &failure) {
    if (modMain::gDebug)
        modMain::gLogFile.close();
    showUnexpected(failure);
}

void underHandler(const std::function<void()> &routine) {
    try {
        routine();
    } catch (const RuntimeFailure &failure) {
        handleUnexpected(failure);
    } catch (const std::bad_alloc &) {
        handleUnexpected(RuntimeFailure(Failure::outOfMemory));
    }
}

void showUnexpected(const RuntimeFailure &failure) {
    desktop().showMessage(failure.description(), Icon::critical,
                          "Boulix Erreur système N° " + std::to_string(failure.number()));
    if (!failure.box().empty())
        desktop().focusField(failure.box());
}

bool runCommand(const std::function<void()> &command) {
    try {
        command();
        return true;
    } catch (const RuntimeFailure &failure) {
        showUnexpected(failure);
    } catch (const std::bad_alloc &) {
        showUnexpected(RuntimeFailure(Failure::outOfMemory));
    }
    return false;
}

} // namespace boulix
