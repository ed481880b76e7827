// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QProxyStyle>

namespace boulix {

/// Qt's own "Fusion" with the program's icons in message boxes and none on dialog buttons,
/// and with check boxes that can be seen on a dark ground.
class ProgramStyle : public QProxyStyle {
    Q_OBJECT

  public:
    ProgramStyle();

    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option,
                       const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
};

} // namespace boulix
