// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/style/iconLoader.h"
#include "ui/style/theme.h"

#include <QApplication>
#include <QDir>
#include <QImage>

#include <gtest/gtest.h>

#include <set>

namespace boulix {
namespace {

QStringList iconNames() {
    loadIcon(QStringLiteral("import")); // opens the resources
    QStringList names;
    for (const QString &file : QDir(QStringLiteral(":/icons")).entryList({QStringLiteral("*.svg")}))
        names << file.chopped(4);
    return names;
}

/// The colours of all opaque pixels.
std::set<QRgb> coloursOf(const QIcon &icon, QIcon::Mode mode) {
    const QImage image =
        icon.pixmap(QSize(48, 48), mode).toImage().convertToFormat(QImage::Format_ARGB32);
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) == 255)
                colours.insert(image.pixel(x, y));
    return colours;
}

TEST(IconLoader, EveryIconOfTheFamilyHasPixels) {
    const QStringList names = iconNames();
    ASSERT_GT(names.size(), 30);
    for (const QString &name : names)
        EXPECT_FALSE(coloursOf(loadIcon(name), QIcon::Normal).empty()) << name.toStdString();
}

TEST(IconLoader, AnUnknownNameGivesANullIcon) {
    EXPECT_TRUE(loadIcon(QStringLiteral("no such icon")).isNull());
}

TEST(IconLoader, AnIconTakesTheTextColourOfThePaletteAndKeepsTheAccent) {
    const QPalette before = QApplication::palette();
    const QIcon icon = loadIcon(QStringLiteral("import"));
    for (const QPalette &palette : {theme::lightPalette(), theme::darkPalette()}) {
        QApplication::setPalette(palette);
        const std::set<QRgb> colours = coloursOf(icon, QIcon::Normal);
        EXPECT_TRUE(colours.contains(palette.color(QPalette::ButtonText).rgb()));
        EXPECT_TRUE(colours.contains(theme::accent.rgb()));
        EXPECT_FALSE(colours.contains(theme::neutral.rgb()));
    }
    QApplication::setPalette(before);
}

TEST(IconLoader, ADisabledIconHasOneMutedColour) {
    const QColor muted = QApplication::palette().color(QPalette::Disabled, QPalette::ButtonText);
    const std::set<QRgb> colours = coloursOf(loadIcon(QStringLiteral("print")), QIcon::Disabled);
    EXPECT_EQ(colours, std::set<QRgb>{muted.rgb()});
}

TEST(IconLoader, AnIconIsDrawnForTheDensityOfTheScreen) {
    const QPixmap dense = loadIcon(QStringLiteral("add")).pixmap(QSize(24, 24), 1.5);
    EXPECT_EQ(dense.size(), QSize(36, 36));
    EXPECT_EQ(dense.devicePixelRatio(), 1.5);
}

TEST(IconLoader, TheLogoIsThereInTheSizesOfTitleBarsAndDesktops) {
    const QIcon logo = logoIcon();
    for (const int size : {16, 32, 128})
        EXPECT_EQ(logo.actualSize(QSize(size, size)), QSize(size, size));
    EXPECT_GT(coloursOf(logo, QIcon::Normal).size(), 5U);
}

} // namespace
} // namespace boulix
