// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QWidget>

class QFont;

namespace boulix {

/// One line of the credits.
struct CreditLine {
    QString text;
    QColor colour;
    int pointSize;
};

/// A picture box with the credit text: its lines centred one under another, long ones cut at
/// blanks to fit the width. Its ground is light in every palette, as the ink is dark.
class CreditPicture : public QWidget {
    Q_OBJECT

  public:
    CreditPicture(const QList<CreditLine> &lines, int width, QWidget *parent);

    /// How high the text is, its margins included.
    int textHeight() const { return textHeight_; }
    /// The lines as they are drawn, after cutting.
    QStringList drawnLines() const;
    /// The font size of each of them, in points.
    QList<int> drawnSizes() const;

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    struct Placed {
        QString text;
        QColor colour;
        QFont font;
        int top;
        int height;
    };

    void place(const CreditLine &line, int width);

    QList<Placed> placed_;
    int textHeight_ = 0;
};

/// `text` cut at its blanks into lines that `font` shows within `width`; a longer word has a line
/// to itself.
QStringList cutAtBlanks(const QString &text, const QFont &font, int width);

} // namespace boulix
