// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/frmSelDate.h"

#include "core/platform.h"
#include "ui/style/iconLoader.h"
#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/upDownView.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTextCharFormat>
#include <QToolButton>
#include <QVBoxLayout>

namespace boulix {

frmSelDate::frmSelDate(const std::optional<DrawDate> &changed, QWidget *parent)
    : QDialog(parent), mvwDate(new QCalendarWidget(this)),
      lblTirageTitle(new QLabel(QStringLiteral("Tirage"), this)), lblTirage(new QLabel(this)),
      updTirage(new UpDownView(this)),
      cmdOK(new QPushButton(QStringLiteral("&Utiliser la date définie"), this)),
      cmdCancel(new QPushButton(QStringLiteral("&Annuler"), this)), changed_(changed) {
    setObjectName(QStringLiteral("frmSelDate"));
    setWindowTitle(QStringLiteral("Sélection de la date"));
    mvwDate->setObjectName(QStringLiteral("mvwDate"));
    lblTirageTitle->setObjectName(QStringLiteral("lblTirageTitle"));
    lblTirage->setObjectName(QStringLiteral("lblTirage"));
    updTirage->setObjectName(QStringLiteral("updTirage"));
    updTirage->setAccessibleName(QStringLiteral("Tirage du jour"));
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    makeCalendar();
    updTirage->setBuddy(lblTirage);
    updTirage->setRange(1, 2);
    updTirage->setValue(1);
    cmdOK->setDefault(true);
    cmdCancel->setAutoDefault(false);
    connect(cmdOK, &QPushButton::clicked, this, &frmSelDate::confirm);
    connect(cmdCancel, &QPushButton::clicked, this, &frmSelDate::reject);
    layOut();
}

void frmSelDate::makeCalendar() {
    const CalendarDay today = calendarDay(platform().today());
    mvwDate->setLocale(QLocale(QLocale::French, QLocale::France));
    mvwDate->setFirstDayOfWeek(Qt::Monday);
    mvwDate->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    mvwDate->setSelectedDate(QDate(today.year, today.month, today.day));
    // Draws fall on any day: the calendar has no days of another colour.
    const QTextCharFormat plain = mvwDate->weekdayTextFormat(Qt::Monday);
    mvwDate->setWeekdayTextFormat(Qt::Saturday, plain);
    mvwDate->setWeekdayTextFormat(Qt::Sunday, plain);
    // The days of the months around can be chosen, too: they are quieter, not switched off.
    QPalette days = mvwDate->palette();
    days.setColor(QPalette::Disabled, QPalette::Text, days.color(QPalette::PlaceholderText));
    mvwDate->setPalette(days);
    mvwDate->setAccessibleName(QStringLiteral("Date du tirage"));
    if (auto *grid = mvwDate->findChild<QWidget *>(QStringLiteral("qt_calendar_calendarview")))
        grid->setAccessibleName(QStringLiteral("Jours du mois"));
    giveArrow(QStringLiteral("prevmonth"), QStringLiteral("previous"),
              QStringLiteral("Mois précédent"));
    giveArrow(QStringLiteral("nextmonth"), QStringLiteral("next"), QStringLiteral("Mois suivant"));
    const int cell = fontMetrics().height() * 9 / 4;
    mvwDate->setMinimumSize(8 * cell, 8 * cell);
}

/// The buttons of Qt's calendar stand on the highlight colour; they get the family's arrows.
void frmSelDate::giveArrow(const QString &button, const QString &icon, const QString &name) {
    auto *arrow = mvwDate->findChild<QToolButton *>(QStringLiteral("qt_calendar_") + button);
    if (!arrow)
        return;
    arrow->setAccessibleName(name);
    const QSize size(20, 20);
    arrow->setIcon(loadIcon(icon).pixmap(size, devicePixelRatioF(), QIcon::Selected));
    arrow->setIconSize(size);
}

void frmSelDate::layOut() {
    lblTirage->setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Sunken));
    lblTirage->setAlignment(Qt::AlignCenter);
    lblTirage->setMinimumWidth(fontMetrics().averageCharWidth() * 5);

    auto *draw = new QHBoxLayout;
    draw->setSpacing(theme::gap);
    draw->addWidget(lblTirageTitle);
    draw->addWidget(lblTirage);
    draw->addWidget(updTirage);
    draw->addStretch();
    draw->addWidget(cmdOK);
    draw->addWidget(cmdCancel);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    column->setSpacing(theme::margin);
    if (changed_ && isValidDate(changed_->day))
        column->addLayout(makeOwnDate());
    column->addWidget(mvwDate, 1);
    column->addLayout(draw);
}

/// The draw that is being changed, and the way back to its date.
QLayout *frmSelDate::makeOwnDate() {
    auto *lblChanged = new QLabel(QStringLiteral("Tirage à modifier : n° %1 du %2")
                                      .arg(changed_->id)
                                      .arg(toQt(shortDate(changed_->day))),
                                  this);
    lblChanged->setObjectName(QStringLiteral("lblChanged"));
    auto *cmdOwnDate = new QPushButton(QStringLiteral("&Garder sa date"), this);
    cmdOwnDate->setObjectName(QStringLiteral("cmdOwnDate"));
    cmdOwnDate->setToolTip(
        QStringLiteral("Montre la date du tirage et son numéro du jour, en place d'aujourd'hui"));
    cmdOwnDate->setAutoDefault(false);
    connect(cmdOwnDate, &QPushButton::clicked, this, &frmSelDate::takeOwnDate);
    auto *row = new QHBoxLayout;
    row->setSpacing(theme::gap);
    row->addWidget(lblChanged, 1);
    row->addWidget(cmdOwnDate);
    return row;
}

void frmSelDate::takeOwnDate() {
    const CalendarDay day = calendarDay(changed_->day);
    mvwDate->setSelectedDate(QDate(day.year, day.month, day.day));
    updTirage->setValue(changed_->id);
}

std::optional<DrawDate> frmSelDate::answer() const {
    if (tag_.isEmpty())
        return std::nullopt;
    const QDate day = mvwDate->selectedDate();
    return DrawDate{dateOf({day.year(), day.month(), day.day()}),
                    static_cast<std::int16_t>(updTirage->value())};
}

void frmSelDate::confirm() {
    tag_ = QLocale().toString(mvwDate->selectedDate(), QLocale::ShortFormat);
    hide();
}

} // namespace boulix
