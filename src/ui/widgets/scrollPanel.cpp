// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/scrollPanel.h"

#include "ui/style/theme.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>

#include <algorithm>

namespace boulix {

namespace {

constexpr int leastLines = 5;

} // namespace

ScrollPanel::ScrollPanel(QWidget *content, QWidget *parent) : QScrollArea(parent) {
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus); // its controls have it
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    setViewportMargins(0, 0, theme::gap, 0); // between the controls and the scroll bar
    setWidget(content);
    content->setAutoFillBackground(false); // the ground of the window
    viewport()->setAutoFillBackground(false);
    content->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget *, QWidget *now) { follow(now); });
}

/// A window that goes passes the focus on while it is none of ours any more.
ScrollPanel::~ScrollPanel() {
    disconnect(qApp, nullptr, this, nullptr);
}

QSize ScrollPanel::sizeHint() const {
    return widget()->sizeHint().expandedTo(minimumSizeHint());
}

QSize ScrollPanel::minimumSizeHint() const {
    const int width =
        widget()->minimumSizeHint().width() + theme::gap + verticalScrollBar()->sizeHint().width();
    return {width, std::min(widget()->minimumSizeHint().height(),
                            leastLines * fontMetrics().lineSpacing())};
}

bool ScrollPanel::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

void ScrollPanel::follow(QWidget *focus) {
    if (focus && widget()->isAncestorOf(focus))
        ensureWidgetVisible(focus, 0, fontMetrics().lineSpacing());
}

} // namespace boulix
