// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

namespace boulix {

class reportList;

/// A window that only shows a list, until its button "Quitter" is clicked.
class ListDialog : public QDialog {
    Q_OBJECT

  public:
    /// Shows `list` under `title`; it must live longer than the dialog.
    ListDialog(reportList &list, const QString &title, QWidget *parent = nullptr);

  protected:
    /// The object names of the window and of its list.
    void setNames(const QString &window, const QString &list);
};

} // namespace boulix
