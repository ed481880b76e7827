// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/numberBoardView.h"

#include "sill/numberBoard.h"
#include "ui/widgets/numberBoardPainter.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace boulix {

namespace {

constexpr int rim = 3;          // room for the focus ring
constexpr int spacing = 4;      // between two boxes
constexpr int digitPause = 900; // milliseconds until typed digits begin a new number

} // namespace

NumberBoardView::NumberBoardView(NumberBoard &board, QWidget *parent)
    : QWidget(parent), board_(board) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMouseTracking(true);
    setAccessibleName(QStringLiteral("Grille des numéros 1 à 49"));
    board_.repaint = [this] {
        boardChanged();
        emit changed();
    };
    boardChanged();
}

NumberBoardView::~NumberBoardView() {
    board_.repaint = nullptr;
}

std::int16_t NumberBoardView::numberAt(const QPoint &point) const {
    for (std::int16_t n = 1; n <= NumberBoard::lastNumber; ++n)
        if (boxOf(n).contains(point))
            return n;
    return 0;
}

QRectF NumberBoardView::boxOf(std::int16_t n) const {
    const qreal height = (this->height() - 2 * rim + spacing) / qreal{rows};
    const qreal full = (this->width() - 2 * rim + spacing) / qreal{columns};
    const qreal width =
        std::min(full, height * 1.7); // boxes of a slip are not much wider than high
    const qreal left = (this->width() + spacing - width * columns) / 2;
    const int column = n / rows;
    const int row = n % rows;
    return {left + column * width, rim + row * height, width - spacing, height - spacing};
}

QSize NumberBoardView::sizeHint() const {
    return sizeOfBoxes(1.9, 4.8);
}

QSize NumberBoardView::minimumSizeHint() const {
    return sizeOfBoxes(1.05, 2.8);
}

QSize NumberBoardView::sizeOfBoxes(qreal heightInLines, qreal widthInDigits) const {
    const QFontMetricsF metrics(font());
    const qreal width = metrics.horizontalAdvance(QStringLiteral("0")) * widthInDigits;
    return {qRound(columns * (width + spacing)) + 2 * rim,
            qRound(rows * (metrics.height() * heightInLines + spacing)) + 2 * rim};
}

void NumberBoardView::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const bool open = board_.editable() && isEnabled();
    NumberBoardPainter boxes(painter, palette(), open, devicePixelRatioF());
    for (std::int16_t n = 1; n <= NumberBoard::lastNumber; ++n) {
        const BoardBox box{.number = n,
                           .marked = board_.isSelected(n),
                           .complementary = board_.isComplementary(n),
                           .current = hasFocus() && n == current_,
                           .hovered = open && n == hovered_};
        boxes.draw(box, boxOf(n));
    }
}

void NumberBoardView::mousePressEvent(QMouseEvent *event) {
    const std::int16_t n = numberAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || n == 0) {
        event->ignore();
        return;
    }
    pick(n);
}

void NumberBoardView::pick(std::int16_t n) {
    moveTo(n);
    board_.click(n);
}

void NumberBoardView::mouseMoveEvent(QMouseEvent *event) {
    hover(numberAt(event->position().toPoint()));
}

void NumberBoardView::leaveEvent(QEvent *) {
    hover(0);
}

void NumberBoardView::hover(std::int16_t number) {
    if (number == hovered_)
        return;
    hovered_ = number;
    const bool hand = number != 0 && board_.editable();
    setCursor(hand ? Qt::PointingHandCursor : Qt::ArrowCursor);
    update();
}

void NumberBoardView::keyPressEvent(QKeyEvent *event) {
    const int firstOfColumn = std::max(1, current_ / rows * rows);
    if (event->key() >= Qt::Key_0 && event->key() <= Qt::Key_9)
        return typeDigit(event->key() - Qt::Key_0);
    sinceDigit_.invalidate();
    switch (event->key()) {
    case Qt::Key_Left:
        return moveTo(current_ - rows);
    case Qt::Key_Right:
        return moveTo(current_ + rows);
    case Qt::Key_Up:
        return moveTo(current_ - 1);
    case Qt::Key_Down:
        return moveTo(current_ + 1);
    case Qt::Key_Home:
        return moveTo(1);
    case Qt::Key_End:
        return moveTo(NumberBoard::lastNumber);
    case Qt::Key_PageUp:
        return moveTo(firstOfColumn);
    case Qt::Key_PageDown:
        return moveTo(current_ / rows * rows + rows - 1);
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!board_.editable())
            break;
        board_.click(current_);
        return;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

/// A digit makes a number with the one typed just before it, or begins a new one.
void NumberBoardView::typeDigit(int digit) {
    const bool goesOn = sinceDigit_.isValid() && !sinceDigit_.hasExpired(digitPause);
    typed_ = goesOn && typed_ * 10 + digit <= NumberBoard::lastNumber ? typed_ * 10 + digit : digit;
    sinceDigit_.restart();
    moveTo(typed_);
}

void NumberBoardView::moveTo(int number) {
    if (number < 1 || number > NumberBoard::lastNumber || number == current_)
        return;
    current_ = static_cast<std::int16_t>(number);
    tellCurrent();
    update();
}

void NumberBoardView::focusInEvent(QFocusEvent *event) {
    QWidget::focusInEvent(event);
    tellCurrent();
}

void NumberBoardView::boardChanged() {
    // A closed board is still worth reading with the keyboard, but a click gives it no focus.
    setFocusPolicy(board_.editable() ? Qt::StrongFocus : Qt::TabFocus);
    setAccessibleDescription(describe());
    tellMarks();
    update();
}

/// A screen reader goes to the number that the keyboard has reached.
void NumberBoardView::tellCurrent() {
    if (!hasFocus())
        return;
    QAccessibleEvent told(this, QAccessible::Focus);
    told.setChild(current_ - 1);
    QAccessible::updateAccessibility(&told);
}

/// A screen reader hears which numbers are marked or unmarked now.
void NumberBoardView::tellMarks() {
    std::uint64_t marks = 0;
    for (std::int16_t n = 1; n <= NumberBoard::lastNumber; ++n)
        marks |= std::uint64_t{board_.isSelected(n)} << n;
    const std::uint64_t before = std::exchange(toldMarks_, marks);
    for (std::int16_t n = 1; n <= NumberBoard::lastNumber; ++n) {
        if (((before ^ marks) >> n & 1U) == 0)
            continue;
        QAccessible::State checked;
        checked.checked = true;
        QAccessibleStateChangeEvent told(this, checked);
        told.setChild(n - 1);
        QAccessible::updateAccessibility(&told);
    }
}

/// What a screen reader says of the whole board: the marked numbers in their order.
QString NumberBoardView::describe() const {
    QStringList marked;
    for (std::int16_t i = 1; i <= board_.selectedCount(); ++i) {
        const std::int16_t n = board_.selectedNumber(i);
        marked << QString::number(n) +
                      (board_.isComplementary(n) ? QStringLiteral(" (complémentaire)") : QString());
    }
    const QString all =
        marked.isEmpty() ? QStringLiteral("aucun") : marked.join(QStringLiteral(", "));
    return QStringLiteral("Numéros marqués : %1.").arg(all);
}

} // namespace boulix
