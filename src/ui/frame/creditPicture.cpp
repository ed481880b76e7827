// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/creditPicture.h"

#include "ui/style/theme.h"

#include <QFontMetrics>
#include <QPainter>

namespace boulix {

CreditPicture::CreditPicture(const QList<CreditLine> &lines, int width, QWidget *parent)
    : QWidget(parent) {
    textHeight_ = theme::margin;
    for (const CreditLine &line : lines)
        place(line, width - 2 * theme::margin);
    textHeight_ += 2 * theme::margin;
    resize(width, textHeight_);
}

void CreditPicture::place(const CreditLine &line, int width) {
    QFont font = this->font();
    font.setPointSize(line.pointSize);
    const QFontMetrics metrics(font);
    for (const QString &piece : cutAtBlanks(line.text, font, width)) {
        placed_.append({piece, line.colour, font, textHeight_, metrics.lineSpacing()});
        textHeight_ += metrics.lineSpacing();
    }
    textHeight_ += theme::gap;
}

QStringList CreditPicture::drawnLines() const {
    QStringList lines;
    for (const Placed &line : placed_)
        lines << line.text;
    return lines;
}

QList<int> CreditPicture::drawnSizes() const {
    QList<int> sizes;
    for (const Placed &line : placed_)
        sizes << line.font.pointSize();
    return sizes;
}

void CreditPicture::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    for (const Placed &line : placed_) {
        painter.setFont(line.font);
        painter.setPen(line.colour);
        painter.drawText(QRect(0, line.top, width(), line.height),
                         int(Qt::AlignHCenter) | int(Qt::AlignVCenter), line.text);
    }
}

QStringList cutAtBlanks(const QString &text, const QFont &font, int width) {
    const QFontMetrics metrics(font);
    QStringList lines;
    QString line;
    for (const QString &word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
        if (!line.isEmpty() && metrics.horizontalAdvance(longer) > width) {
            lines << line;
            line = word;
        } else {
            line = longer;
        }
    }
    if (!line.isEmpty())
        lines << line;
    return lines;
}

} // namespace boulix
