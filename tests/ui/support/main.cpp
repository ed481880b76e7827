// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    ::testing::InitGoogleTest(&argc, argv);
    // ctest asks for the list of tests without the tests' environment: no screen is needed for it.
    if (GTEST_FLAG_GET(list_tests))
        return RUN_ALL_TESTS();
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
