// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace boulix::testing_support {

/// What the description of a failed save says behind its first line: what has become of the file
/// and what to do.
namespace saveTexts {

inline const std::string notBegun =
    "\r\nRien n'a été écrit ni effacé, et rien n'est perdu en mémoire.";
inline const std::string brokenOff =
    "\r\nLe fichier sur le disque est effacé ou incomplet, mais rien n'est perdu en mémoire tant "
    "que le programme reste ouvert.";

inline const std::string freeRoom = " Libérez de la place sur le disque, puis recommencez.";
inline const std::string otherFolder =
    " Le fichier ou son dossier est protégé en écriture : levez cette protection, ou "
    "choisissez-en un autre.";
inline const std::string lookAtDisk = " Vérifiez le disque et le nom du fichier, puis recommencez.";

inline const std::string baseLater =
    "\r\nLa base sera enregistrée avec la prochaine modification ; sinon, le programme proposera "
    "de le faire avant de quitter.";

} // namespace saveTexts

} // namespace boulix::testing_support

namespace boulix {
namespace saveTexts = testing_support::saveTexts;
} // namespace boulix
