// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/desktop.h"

#include <QDialog>

class QCalendarWidget;
class QLabel;
class QPushButton;

namespace boulix {

class UpDownView;

/// The date dialog, opened on today and the first draw of the day. The only way out is its
/// button: those who ask read the answer whatever happens.
class frmSelDate : public QDialog {
    Q_OBJECT

  public:
    explicit frmSelDate(QWidget *parent = nullptr);

    DrawDate answer() const;
    /// The chosen date as text, once the button was clicked.
    const QString &tag() const { return tag_; }

    void reject() override {}

  private:
    void makeCalendar();
    void giveArrow(const QString &button, const QString &icon);
    void layOut();
    void confirm();

    QCalendarWidget *mvwDate;
    QLabel *lblTirageTitle;
    QLabel *lblTirage;
    UpDownView *updTirage;
    QPushButton *cmdOK;
    QString tag_;
};

} // namespace boulix
