// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QSize;
class QString;
class QWidget;

/// Shows `window` for a moment and keeps its picture as `name`.png.
void keep(QWidget &window, const QString &name);

void keepForecasts();
void keepGames();
void keepGraph();
void keepPlacesAt(const QSize &size);
void keepPrintWindows();
void keepStatistics();
