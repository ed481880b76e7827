// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QProxyStyle>

namespace boulix {

/// Qt's own "Fusion" with flat buttons, toolbars, tabs and headers, all in colours of the palette
/// in use; with the program's icons in message boxes and none on dialog buttons, and with check
/// boxes and radio buttons that can be seen on a dark ground. A style and no style sheet: a sheet
/// doubles the time until the main window is on the screen.
class ProgramStyle : public QProxyStyle {
    Q_OBJECT

  public:
    /// The room around the caption of a tab, both sides together, outline included.
    static constexpr QSize tabRoom{24, 15};
    /// Its width for the tabs of a bar that has the property `tight` set.
    static constexpr int tightTabRoom = 14;
    static constexpr const char *tight = "tight";

    ProgramStyle();
    /// Gives the running program this style and the palette that goes with the desktop's.
    static void dress();

    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option,
                       const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;

  private:
    void drawOutlined(PrimitiveElement element, const QStyleOption &option, QPainter &painter,
                      const QWidget *widget) const;
    void drawButtonLabel(const QStyleOption &option, QPainter &painter,
                         const QWidget *widget) const;
};

} // namespace boulix
