// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/drawFinder.h"

#include "core/globals.h"
#include "core/platform.h"
#include "draws/dbCombs.h"

#include <algorithm>
#include <utility>

namespace boulix {

std::int32_t drawFinder::ask(const std::string &text) {
    text_ = text;
    query_ = parseDrawQuery(text);
    followBase();
    if (!found_.empty())
        return goTo(1);
    return query_.isOneDay() ? goNear() : 0;
}

std::int32_t drawFinder::next() {
    return found_.empty() ? 0 : goTo(place_ % found_.size() + 1);
}

std::int32_t drawFinder::previous() {
    return found_.empty() ? 0 : goTo(place_ > 1 ? place_ - 1 : found_.size());
}

void drawFinder::followBase() {
    found_ = findDraws(*gDbCombs, query_);
    place_ = 0;
    tellCount();
}

bool drawFinder::isFound(std::int32_t position) const {
    return std::binary_search(found_.begin(), found_.end(), position);
}

std::int32_t drawFinder::goTo(std::size_t place) {
    place_ = place;
    tellCount();
    return found_[found_.size() - place];
}

/// No draw on the day that is asked for: the nearest one is shown in its place.
std::int32_t drawFinder::goNear() {
    const std::int32_t nearest = nearestDraw(*gDbCombs, query_);
    if (nearest > 0)
        lblFound = "Pas de tirage ce jour-là ; le plus proche : " +
                   shortDate(std::as_const(*gDbCombs).Item(nearest).day());
    return nearest;
}

void drawFinder::tellCount() {
    const std::string count = std::to_string(found_.size());
    if (query_.kind == DrawQuery::Kind::nothing)
        lblFound.clear();
    else if (query_.kind == DrawQuery::Kind::unclear)
        lblFound = "Ni une date, ni des numéros de 1 à 49";
    else if (found_.empty())
        lblFound = "Aucun tirage trouvé";
    else if (found_.size() == 1)
        lblFound = "1 tirage trouvé";
    else if (place_ == 0)
        lblFound = count + " tirages trouvés";
    else
        lblFound =
            count + " tirages trouvés, du plus récent : " + std::to_string(place_) + "/" + count;
}

} // namespace boulix
