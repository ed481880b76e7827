// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "workbench/eliminatorPage.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QGridLayout;
class QLineEdit;
class QPushButton;
class QToolBar;

namespace boulix {

/// The page of the elimination rules on the screen.
class EliminatorTab : public QWidget, public eliminatorView {
    Q_OBJECT

  public:
    /// Shows `page`, which must live longer than the widget.
    explicit EliminatorTab(eliminatorPage &page, QWidget *parent = nullptr);
    ~EliminatorTab() override;

    void refresh() override;

  private:
    void makeToolbar();
    QWidget *makeRules();
    void addRule(QGridLayout &grid, int index);
    QLineEdit *makeValueBox(int index);
    QWidget *controlOf(int index) const;

    eliminatorPage &page_;
    QToolBar *tBarEliminator = nullptr;
    std::array<QCheckBox *, eliminatorPage::ruleCount> chkEliminator{};
    std::array<QLineEdit *, eliminatorPage::valueCount> txtEliminator{};
    QPushButton *btnSelectList;
};

} // namespace boulix
