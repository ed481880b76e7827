// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/style/theme.h"

#include <QApplication>

namespace boulix::theme {

namespace {

/// The colours that tell the two palettes apart; all others follow from them. Hints are muted, and
/// can still be read well; what is switched off is paler.
struct Shades {
    QColor window, base, alternate, button, text, muted, off, highlight, link;
};

QPalette paletteOf(const Shades &s) {
    QPalette p(s.text, s.button, blend(s.button, Qt::white, 0.5), blend(s.button, Qt::black, 0.4),
               blend(s.button, Qt::black, 0.2), s.text, Qt::white, s.base, s.window);
    p.setColor(QPalette::Midlight, blend(s.button, Qt::white, 0.25));
    p.setColor(QPalette::AlternateBase, s.alternate);
    p.setColor(QPalette::ToolTipBase, s.base);
    p.setColor(QPalette::ToolTipText, s.text);
    p.setColor(QPalette::PlaceholderText, s.muted);
    p.setColor(QPalette::Highlight, s.highlight);
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Link, s.link);
    p.setColor(QPalette::LinkVisited, s.link);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, s.off);
    p.setColor(QPalette::Disabled, QPalette::Base, s.window); // a closed box does not look open
    p.setColor(QPalette::Disabled, QPalette::Highlight, blend(s.base, s.off, 0.35));
    p.setColor(QPalette::Disabled, QPalette::HighlightedText, s.text);
    return p;
}

} // namespace

QColor blend(const QColor &ground, const QColor &over, qreal part) {
    const auto mix = [part](int a, int b) { return qRound(a + (b - a) * part); };
    return QColor(mix(ground.red(), over.red()), mix(ground.green(), over.green()),
                  mix(ground.blue(), over.blue()));
}

QPalette lightPalette() {
    return paletteOf({.window = {0xf3, 0xf5, 0xf4},
                      .base = {0xff, 0xff, 0xff},
                      .alternate = {0xf4, 0xf8, 0xf6},
                      .button = {0xf0, 0xf2, 0xf1},
                      .text = {0x26, 0x2c, 0x38},
                      .muted = {0x66, 0x6d, 0x77},
                      .off = {0x8a, 0x91, 0x9b},
                      .highlight = {0x26, 0x79, 0x4f},
                      .link = {0x1f, 0x6b, 0x45}});
}

QPalette darkPalette() {
    return paletteOf({.window = {0x2b, 0x2d, 0x31},
                      .base = {0x1f, 0x21, 0x24},
                      .alternate = {0x26, 0x29, 0x2c},
                      .button = {0x36, 0x39, 0x3e},
                      .text = {0xe6, 0xe9, 0xec},
                      .muted = {0xa0, 0xa6, 0xae},
                      .off = {0x80, 0x86, 0x8e},
                      .highlight = {0x26, 0x79, 0x4f},
                      .link = {0x6f, 0xcf, 0x9f}});
}

bool isDark(const QPalette &palette) {
    return palette.color(QPalette::Window).lightness() < 128;
}

void followDesktop() {
    QApplication::setPalette(QPalette()); // none of ours: that of the desktop shows
    QApplication::setPalette(isDark(QApplication::palette()) ? darkPalette() : lightPalette());
}

} // namespace boulix::theme
