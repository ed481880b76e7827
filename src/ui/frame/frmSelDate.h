// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/desktop.h"

#include <QDialog>

#include <optional>

class QCalendarWidget;
class QLabel;
class QLayout;
class QPushButton;

namespace boulix {

class UpDownView;

/// The date dialog, opened on today and the first draw of the day. Where a draw is being changed it
/// is named, and its own date is one click away. It can be left without an answer.
class frmSelDate : public QDialog {
    Q_OBJECT

  public:
    explicit frmSelDate(const std::optional<DrawDate> &changed = std::nullopt,
                        QWidget *parent = nullptr);

    /// What was confirmed; nothing while it was not.
    std::optional<DrawDate> answer() const;
    /// The chosen date as text, once the button was clicked.
    const QString &tag() const { return tag_; }

  private:
    void makeCalendar();
    QLayout *makeOwnDate();
    void takeOwnDate();
    void giveArrow(const QString &button, const QString &icon, const QString &name);
    void layOut();
    void confirm();

    QCalendarWidget *mvwDate;
    QLabel *lblTirageTitle;
    QLabel *lblTirage;
    UpDownView *updTirage;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;
    std::optional<DrawDate> changed_;
    QString tag_;
};

} // namespace boulix
