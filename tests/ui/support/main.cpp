// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/application.h"

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    ::testing::InitGoogleTest(&argc, argv);
    // ctest asks for the list of tests without the tests' environment: no screen is needed for it.
    if (GTEST_FLAG_GET(list_tests))
        return RUN_ALL_TESTS();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // a test cannot reach into those
    boulix::Application application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false); // windows come and go from test to test
    return RUN_ALL_TESTS();
}
