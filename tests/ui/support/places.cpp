// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/support/places.h"

#include "ui/support/robot.h"

#include <QAction>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include <ostream>

namespace boulix::testing_support {

namespace {

constexpr int gamePage = 4;
constexpr int designSide = 3;

} // namespace

void Place::goThere(QWidget &mainWindow) const {
    control<QTabWidget>(mainWindow, "TabStrip").setCurrentIndex(page);
    if (side >= 0)
        control<QTabWidget>(mainWindow, "TabGame").setCurrentIndex(side);
    if (method >= 0)
        control<QTabBar>(mainWindow, "tabGameDesign").setCurrentIndex(method);
}

std::ostream &operator<<(std::ostream &stream, const Place &place) {
    stream << "page " << place.page;
    if (place.side >= 0)
        stream << ", sub-tab " << place.side;
    if (place.method >= 0)
        stream << ", method " << place.method;
    return stream;
}

std::vector<Place> placesOfMainWindow() {
    std::vector<Place> places;
    for (int page = 0; page < gamePage; ++page)
        places.push_back({page});
    for (int side = 0; side < designSide; ++side)
        places.push_back({gamePage, side});
    for (int method = 0; method < 6; ++method)
        places.push_back({gamePage, designSide, method});
    places.push_back({gamePage + 1});
    return places;
}

std::string nameOf(const QWidget *control) {
    if (!control)
        return "nothing";
    const auto *button = qobject_cast<const QToolButton *>(control);
    const QAction *action = button ? button->defaultAction() : nullptr;
    const QString name = action ? action->objectName() : control->objectName();
    if (name.isEmpty() && control->parentWidget())
        return nameOf(control->parentWidget()) + "/" + control->metaObject()->className();
    return name.toStdString();
}

} // namespace boulix::testing_support
