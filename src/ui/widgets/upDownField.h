// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QLineEdit;

namespace boulix {

class UpDownView;
class upDown;

/// A text box with the arrows of an up-down control. The arrows step at once; what is typed is
/// handed over when the focus leaves the box, Return is pressed or a command is given. A screen
/// reader calls both parts by the label whose buddy the field is.
class UpDownField : public QWidget {
    Q_OBJECT

  public:
    /// `boxName` and `arrowsName` become the object names of the two parts.
    UpDownField(upDown &control, const QString &boxName, const QString &arrowsName,
                QWidget *parent = nullptr);

    /// Shows the range and the value of the control again, and `text` in the box unless the user
    /// is typing in it.
    void refresh(const QString &text);

  signals:
    /// The user has typed this text into the box and left it there.
    void boxLeft(const QString &text);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

  private:
    upDown &control_;
    QLineEdit *box_;
    UpDownView *arrows_;
};

} // namespace boulix
