// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QGridLayout;
class QLabel;

namespace boulix {

class UpDownField;
class gameDesign;
class numberBox;

/// The controls of the tab on which new systems are computed, without its list.
class SystemMakerPanel : public QWidget {
    Q_OBJECT

  public:
    /// Shows the systems of `design`, which must live longer than the panel.
    explicit SystemMakerPanel(gameDesign &design, QWidget *parent = nullptr);

    void refresh();

  private:
    QWidget *makeToolbar();
    UpDownField *addNumber(QGridLayout &grid, const QString &title, const QString &boxName,
                           const QString &arrowsName, numberBox &number);
    QLabel *makeResult(const QString &name);

    gameDesign &design_;
    UpDownField *nFixed_;
    UpDownField *nWin_;
    UpDownField *nChoosen_;
    QLabel *lblnGameDefComb;
    QLabel *lblCost;
};

} // namespace boulix
