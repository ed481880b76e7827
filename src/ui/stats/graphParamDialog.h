// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;

namespace boulix {

class frmGraphParam;

/// The defaults of the graph window on the screen.
class GraphParamDialog : public QDialog {
    Q_OBJECT

  public:
    explicit GraphParamDialog(frmGraphParam &rules, QWidget *parent = nullptr);

  private:
    void layOut();
    void confirm();

    frmGraphParam &rules_;
    QComboBox *cmbGraphType;
    QCheckBox *chkShowAxes;
    QCheckBox *chkShowGrid;
};

} // namespace boulix
