// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/recordingCanvas.h"

#include "core/text.h"

#include <utility>

namespace boulix::testing_support {

namespace {

constexpr double millimetresPerPoint = 25.4 / 72;

} // namespace

std::vector<Drawn> Recording::ofKind(Drawn::Kind kind) const {
    std::vector<Drawn> found;
    for (const Drawn &item : drawn)
        if (item.kind == kind)
            found.push_back(item);
    return found;
}

std::vector<std::string> Recording::lines() const {
    std::vector<std::string> lines;
    const Drawn *last = nullptr;
    for (const Drawn &item : drawn) {
        if (item.kind != Drawn::text)
            continue;
        if (last && last->page == item.page && last->y1 == item.y1)
            lines.back() += item.words;
        else
            lines.push_back(item.words);
        last = &item;
    }
    return lines;
}

double Recording::textWidth(const std::string &text) const {
    const auto characters = static_cast<double>(toWestern(text).size());
    return characters * metrics.emWidth * points * millimetresPerPoint;
}

double Recording::textHeight() const {
    return metrics.emHeight * points * millimetresPerPoint;
}

void Recording::add(Drawn item) {
    item.page = page;
    item.color = color;
    drawn.push_back(std::move(item));
}

} // namespace boulix::testing_support
