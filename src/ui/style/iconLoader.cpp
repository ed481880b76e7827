// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/style/iconLoader.h"

#include "ui/style/theme.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

/// The resources lie in a static library: without this call the linker leaves them out.
static void openIconFile() {
    Q_INIT_RESOURCE(icons);
}

namespace boulix {

namespace {

QString fileOf(const QString &name) {
    openIconFile();
    return QStringLiteral(":/icons/") + name + QStringLiteral(".svg");
}

/// Draws an icon of two colours in those of the palette, at whatever size it is asked for.
class PaletteIconEngine : public QIconEngine {
  public:
    /// `only`: the one colour of all lines; an invalid one leaves the choice to the palette.
    PaletteIconEngine(QString name, const QColor &only) : name_(std::move(name)), only_(only) {}

    QIconEngine *clone() const override { return new PaletteIconEngine(name_, only_); }
    QString key() const override { return QStringLiteral("boulix"); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override {
        QSvgRenderer(coloured(mode)).render(painter, rect);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
        const Colours c = colours(mode);
        const QString cacheKey =
            QStringLiteral("boulix:%1:%2x%3:%4:%5")
                .arg(name_, QString::number(size.width()), QString::number(size.height()),
                     c.neutral.name(), c.accent.name());
        QPixmap drawn;
        if (QPixmapCache::find(cacheKey, &drawn))
            return drawn;
        drawn = QPixmap(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        painter.end();
        QPixmapCache::insert(cacheKey, drawn);
        return drawn;
    }

  private:
    struct Colours {
        QColor neutral, accent;
    };

    Colours colours(QIcon::Mode mode) const {
        const QPalette palette = QGuiApplication::palette();
        switch (mode) {
        case QIcon::Disabled: {
            const QColor muted = palette.color(QPalette::Disabled, QPalette::ButtonText);
            return {muted, muted};
        }
        case QIcon::Selected: {
            const QColor text = palette.color(QPalette::Active, QPalette::HighlightedText);
            return {text, text};
        }
        default:
            if (only_.isValid())
                return {only_, only_};
            return {palette.color(QPalette::Active, QPalette::ButtonText), theme::accent};
        }
    }

    QByteArray coloured(QIcon::Mode mode) const {
        QFile file(fileOf(name_));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        const Colours c = colours(mode);
        return file.readAll()
            .replace(theme::neutral.name().toLatin1(), c.neutral.name().toLatin1())
            .replace(theme::accent.name().toLatin1(), c.accent.name().toLatin1());
    }

    QString name_;
    QColor only_;
};

} // namespace

QIcon loadIcon(const QString &name) {
    return loadIconIn(name, QColor());
}

QIcon loadIconIn(const QString &name, const QColor &colour) {
    if (!QFile::exists(fileOf(name)))
        return {};
    return QIcon(new PaletteIconEngine(name, colour));
}

QIcon logoIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128})
        icon.addPixmap(loadPicture(QStringLiteral("boulix"), {size, size}, 1.0));
    return icon;
}

QPixmap loadPicture(const QString &name, const QSize &size, qreal ratio) {
    QPixmap picture(size * ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QSvgRenderer(fileOf(name)).render(&painter);
    painter.end();
    picture.setDevicePixelRatio(ratio);
    return picture;
}

} // namespace boulix
