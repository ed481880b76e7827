// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/gameDocument.h"

#include "files/xFile.h"

#include <utility>

namespace boulix {

std::string gameDocument::name() const {
    xFile named;
    named.fullName(file());
    return named.name();
}

bool gameDocument::isSaved() const {
    const auto held = held_.find(file_);
    return held != held_.end() && held->second == number_;
}

void gameDocument::changed() {
    number_ = ++last_;
}

void gameDocument::emptied() {
    changed();
    file_.clear();
}

void gameDocument::saved(const std::string &file) {
    held_[file] = number_;
    file_ = file;
}

void gameDocument::loaded(const std::string &file) {
    changed();
    saved(file);
}

void gameDocument::close(Step &step) {
    if (number_ == step.number)
        changed();
    step.renamed = file_ != step.file;
}

void gameDocument::exchange(Step &step) {
    std::swap(number_, step.number);
    if (step.renamed)
        file_.swap(step.file);
}

std::string documentText(const gameDocument &document, std::int32_t grids) {
    constexpr const char *mark = "\u25cf "; // a filled circle
    if (document.file().empty())
        return grids == 0 ? "" : std::string(mark) + "Jeu non enregistré";
    return document.isSaved() ? document.name() : mark + document.name() + " (modifié)";
}

} // namespace boulix
