// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/emptyPlaceView.h"

#include "sill/emptyPlace.h"
#include "sill/reports.h"
#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"

#include <QEvent>

namespace boulix {

namespace {

QString linkTo(const char *target, const std::string &words) {
    return QStringLiteral("<br><a href=\"%1\">%2</a>")
        .arg(QString::fromLatin1(target), toQt(words).toHtmlEscaped());
}

} // namespace

EmptyPlaceView::EmptyPlaceView(QWidget *ground) : QLabel(ground) {
    setObjectName(QStringLiteral("emptyPlace"));
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setTextFormat(Qt::RichText);
    setForegroundRole(QPalette::PlaceholderText);
}

void EmptyPlaceView::tell(const EmptyPlace &place) {
    QString text = toQt(place.sentence).toHtmlEscaped();
    if (!place.link.empty())
        text += linkTo("#", place.link);
    if (!place.otherLink.empty())
        text += linkTo("#other", place.otherLink);
    setText(text);
    setTextInteractionFlags(place.link.empty()
                                ? Qt::NoTextInteraction
                                : Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setAttribute(Qt::WA_TransparentForMouseEvents, place.link.empty());
    disconnect(this, &QLabel::linkActivated, nullptr, nullptr);
    connect(this, &QLabel::linkActivated, this,
            [one = place.follow, other = place.followOther](const QString &link) {
                const auto follow = link == QLatin1String("#other") ? other : one;
                runCommand([&follow] { follow(); });
            });
    setVisible(!place.sentence.empty());
    cover();
}

void EmptyPlaceView::cover() {
    setGeometry(parentWidget()->rect().adjusted(theme::margin, theme::margin, -theme::margin,
                                                -theme::margin));
}

/// A link takes its colour from the palette of the moment in which the text is set.
void EmptyPlaceView::changeEvent(QEvent *event) {
    QLabel::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || text().isEmpty())
        return;
    const QString words = text();
    setText({});
    setText(words);
}

} // namespace boulix
