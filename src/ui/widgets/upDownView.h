// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QLabel;
class QToolButton;

namespace boulix {

/// A pair of small arrow buttons that move a value within its range; a label beside it shows the
/// value. The arrow keys move it too.
class UpDownView : public QWidget {
    Q_OBJECT

  public:
    explicit UpDownView(QWidget *parent = nullptr);

    int value() const { return value_; }
    int first() const { return first_; }
    int last() const { return last_; }
    void setRange(int first, int last);
    void setValue(int value);
    /// The label that shows the value from now on.
    void setBuddy(QLabel *label);
    /// Without limits and without a value of its own: the arrows only tell their steps.
    void setEndless();
    bool isEndless() const { return endless_; }
    /// As if the user clicked the arrow up (1) or down (-1).
    void step(int by);

  signals:
    void valueChanged(int value);
    /// A step up (1) or down (-1) of an endless pair.
    void stepped(int by);

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    QToolButton *makeArrow(Qt::ArrowType arrow, int by);
    void refresh();

    QToolButton *up_;
    QToolButton *down_;
    QLabel *buddy_ = nullptr;
    bool endless_ = false;
    int first_ = 0;
    int last_ = 100;
    int value_ = 0;
};

} // namespace boulix
