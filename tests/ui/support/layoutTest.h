// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/globals.h"
#include "sill/appInfo.h"
#include "ui/support/clipping.h"
#include "ui/support/screenTest.h"

#include <QApplication>
#include <QFont>
#include <QtTest/QTest>

#include <gmock/gmock.h>

#include <string>

namespace boulix::testing_support {

/// Every window, with fonts of the usual size and half as large again.
class LayoutTest : public ScreenTest, public ::testing::WithParamInterface<double> {
  protected:
    LayoutTest() : usual_(QApplication::font()) {
        QFont scaled = usual_;
        scaled.setPointSizeF(usual_.pointSizeF() * GetParam());
        QApplication::setFont(scaled);
        gAppInfo->init("Attention!!! Ce logiciel constitue une aide au jeu mais ne saurait en "
                       "aucun cas garantir les gains. L'auteur décline toute responsabilité.",
                       "Marcel Quillon", "Quillon Logiciels", 2003);
    }
    ~LayoutTest() override {
        forget();
        QApplication::setFont(usual_);
    }

    static void expectNothingClipped(QWidget &window) {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        constexpr int tabStripsInOneAnother = 2;
        for (int level = 0; level <= tabStripsInOneAnother; ++level)
            QApplication::processEvents(); // a new size travels outwards, strip by strip
        EXPECT_THAT(clippedControls(window), ::testing::IsEmpty());
    }

  public:
    static auto fontSizes() { return ::testing::Values(1.0, 1.5); }
    static std::string nameOf(const ::testing::TestParamInfo<double> &font) {
        return font.param > 1 ? "Large" : "Usual";
    }

  private:
    QFont usual_;
};

} // namespace boulix::testing_support
