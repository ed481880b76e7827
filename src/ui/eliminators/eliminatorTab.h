// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "workbench/eliminatorPage.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolBar;

namespace boulix {

class ElidedLabel;

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
    void addLines(QGridLayout &grid);
    void addRule(QGridLayout &grid, int index);
    QLineEdit *makeValueBox(int index);
    QWidget *controlOf(int index) const;
    void showValueBox(std::size_t i);

    eliminatorPage &page_;
    QToolBar *tBarEliminator = nullptr;
    std::array<QCheckBox *, eliminatorPage::ruleCount> chkEliminator{};
    std::array<QLineEdit *, eliminatorPage::valueCount> txtEliminator{};
    QPushButton *btnSelectList;
    ElidedLabel *list_ = nullptr; ///< the numbers of the last rule
    QLabel *noRules_ = nullptr;
};

} // namespace boulix
