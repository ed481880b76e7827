// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QElapsedTimer>
#include <QWidget>

#include <cstdint>

namespace boulix {

class NumberBoard;

/// A number board on the screen. It reads like the bet slip: tens in the columns, units in the
/// rows, so that the first column has no number in its first row. The board decides what a click
/// does; the arrows, Home, End and the Page keys move, space and Enter mark, digits typed go to
/// their number.
class NumberBoardView : public QWidget {
    Q_OBJECT

  public:
    static constexpr int columns = 5;
    static constexpr int rows = 10;

    /// Shows `board`, which must live longer than the view.
    explicit NumberBoardView(NumberBoard &board, QWidget *parent = nullptr);
    ~NumberBoardView() override;

    /// The number under `point`, 0 where there is none.
    std::int16_t numberAt(const QPoint &point) const;
    /// The box of number `n` on the widget.
    QRectF boxOf(std::int16_t n) const;
    /// The number that the keyboard acts on.
    std::int16_t currentNumber() const { return current_; }
    const NumberBoard &board() const { return board_; }
    /// As if the user clicked number `n`.
    void pick(std::int16_t n);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    /// The marks of the board have changed, whoever changed them.
    void changed();

  protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

  private:
    void boardChanged();
    void tellMarks();
    void tellCurrent();
    void moveTo(int number);
    void typeDigit(int digit);
    void hover(std::int16_t number);
    QSize sizeOfBoxes(qreal heightInLines, qreal widthInDigits) const;
    QString describe() const;

    NumberBoard &board_;
    std::int16_t current_ = 1;
    std::int16_t hovered_ = 0;
    int typed_ = 0;
    std::uint64_t toldMarks_ = 0; ///< what a screen reader knows, a bit for each number
    QElapsedTimer sinceDigit_;
};

} // namespace boulix
