// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/failure.h"

#include "core/folderAdvice.h"
#include "core/text.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

namespace boulix {

namespace {

const char *describe(Failure failure) {
    switch (failure) {
    case Failure::invalidCall:
        return "Appel de procédure ou argument incorrect";
    case Failure::overflow:
        return "Dépassement de capacité";
    case Failure::outOfMemory:
        return "Mémoire insuffisante";
    case Failure::subscriptOutOfRange:
        return "L'indice n'appartient pas à la sélection";
    case Failure::divisionByZero:
        return "Division par zéro";
    case Failure::typeMismatch:
        return "Incompatibilité de type";
    case Failure::badFileName:
        return "Nom ou numéro de fichier incorrect";
    case Failure::fileNotFound:
        return "Fichier introuvable";
    case Failure::deviceError:
        return "Erreur d'entrée/sortie de périphérique";
    case Failure::badRecordLength:
        return "Longueur d'enregistrement incorrecte";
    case Failure::diskFull:
        return "Disque plein";
    case Failure::inputPastEnd:
        return "Lecture au-delà de la fin du fichier";
    case Failure::permissionDenied:
        return "Permission refusée";
    case Failure::pathAccess:
        return "Erreur d'accès au chemin/fichier";
    case Failure::pathNotFound:
        return "Chemin d'accès introuvable";
    case Failure::objectNotSet:
        return "Variable objet non définie";
    case Failure::invalidPropertyValue:
        return "Valeur de propriété non valide";
    case Failure::printerError:
        return "Erreur d'impression";
    }
    return "Erreur inconnue";
}

bool folderMissing(const std::string &path) {
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    std::error_code ignored;
    return !folder.empty() && !std::filesystem::exists(folder, ignored);
}

Failure failureOf(int error, const std::string &path) {
    switch (error) {
    case ENOENT:
        return folderMissing(path) ? Failure::pathNotFound : Failure::fileNotFound;
    case ENOTDIR:
        return Failure::pathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return Failure::permissionDenied;
    case EISDIR:
    case ENAMETOOLONG:
        return Failure::pathAccess;
    case ENOSPC:
#ifdef EDQUOT // not every system knows quotas
    case EDQUOT:
#endif
    case EFBIG:
        return Failure::diskFull;
    default:
        return Failure::deviceError;
    }
}

} // namespace

RuntimeFailure::RuntimeFailure(Failure failure) : RuntimeFailure(failure, describe(failure)) {}

RuntimeFailure::RuntimeFailure(Failure failure, std::string description)
    : number_(static_cast<int>(failure)), description_(std::move(description)) {}

RuntimeFailure RuntimeFailure::inBox(std::string name) const {
    RuntimeFailure failure = *this;
    failure.box_ = std::move(name);
    return failure;
}

void fail(Failure failure) {
    throw RuntimeFailure(failure);
}

void fail(Failure failure, const std::string &description) {
    throw RuntimeFailure(failure, description);
}

void failForFile(int error, const std::string &path) {
    const Failure failure = failureOf(error, path);
    const std::string advice = failure == Failure::permissionDenied ? folderAdvice(path) : "";
    throw RuntimeFailure(failure, std::string(describe(failure)) + " : " + path + advice);
}

void failForFile(Failure failure, const std::string &path) {
    throw RuntimeFailure(failure, std::string(describe(failure)) + " : " + path);
}

RuntimeFailure withLine(const RuntimeFailure &failure, const std::string &line) {
    const RuntimeFailure longer(static_cast<Failure>(failure.number()),
                                failure.description() + crlf + line);
    return longer.inBox(failure.box());
}

} // namespace boulix
