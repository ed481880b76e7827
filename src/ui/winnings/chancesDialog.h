// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

class QLabel;
class QLayout;

namespace boulix {

class frmChances;
class ReportView;
class reportList;

/// The window of the chances of a game, until its button "Quitter" is clicked.
class ChancesDialog : public QDialog {
    Q_OBJECT

  public:
    /// Shows `rules`, which must live longer than the dialog.
    explicit ChancesDialog(frmChances &rules, QWidget *parent = nullptr);

  private:
    QLabel *makeLabel(const char *name, const std::string &text);
    ReportView *makeList(const char *name, const char *accessibleName, reportList &list, int rows);
    QLayout *makeLeftSide();
    QLayout *makeMoney();
    QLayout *makeButtons();

    frmChances &rules_;
};

} // namespace boulix
