// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/elidedLabel.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QImage>
#include <QToolTip>

#include <gtest/gtest.h>

namespace boulix {
namespace {

std::string toolTipOver(ElidedLabel &label) {
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), label.mapToGlobal(QPoint(1, 1)));
    QCoreApplication::sendEvent(&label, &event);
    return QToolTip::text().toStdString();
}

TEST(ElidedLabel, ATextThatIsTooLongEndsInAnEllipsisAndStandsWholeInTheToolTip) {
    ElidedLabel label;
    label.setText(QStringLiteral("Jeu enregistré dans mardi.gam"));
    label.resize(label.fontMetrics().horizontalAdvance(label.text()) / 2, 30);
    label.show();
    EXPECT_EQ(toolTipOver(label), "Jeu enregistré dans mardi.gam");
    QLabel cut(label.fontMetrics().elidedText(label.text(), Qt::ElideRight, label.width()));
    cut.resize(label.size());
    EXPECT_EQ(label.grab().toImage(), cut.grab().toImage());
}

TEST(ElidedLabel, ATextThatFitsNeedsNoToolTip) {
    ElidedLabel label;
    label.setText(QStringLiteral("Jeu"));
    label.resize(label.sizeHint());
    label.show();
    EXPECT_EQ(toolTipOver(label), "");
}

TEST(ElidedLabel, ALongTextAsksForNoMoreRoomThanAShortOne) {
    ElidedLabel label;
    const int width = label.minimumSizeHint().width();
    label.setText(QString(500, u'm'));
    EXPECT_EQ(label.minimumSizeHint().width(), width);
}

} // namespace
} // namespace boulix
