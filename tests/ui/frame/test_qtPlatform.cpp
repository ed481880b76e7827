// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/qtPlatform.h"

#include <QCoreApplication>
#include <QDate>
#include <QLocale>

#include <gtest/gtest.h>

#include <set>

namespace boulix {
namespace {

TEST(QtPlatform, TheRawCommandLineIsKeptWithoutTheProgramsName) {
    const char *arguments[] = {"/usr/bin/boulix", "-debug", "jeu 1.lst", "-style"};
    EXPECT_EQ(QtPlatform(4, arguments).commandLine(), "-debug jeu 1.lst -style");
    EXPECT_EQ(QtPlatform(1, arguments).commandLine(), "");
}

TEST(QtPlatform, TheApplicationFolderIsThatOfTheExecutable) {
    const std::string folder = QtPlatform(0, nullptr).applicationFolder();
    EXPECT_EQ(folder, QCoreApplication::applicationDirPath().toStdString());
    EXPECT_NE(folder.back(), '/');
}

TEST(QtPlatform, TodayIsADateWithoutATime) {
    const QDate before = QDate::currentDate();
    const Date today = QtPlatform(0, nullptr).today();
    const QDate after = QDate::currentDate();
    const auto dateOfDay = [](const QDate &d) { return dateOf({d.year(), d.month(), d.day()}); };
    EXPECT_GE(today, dateOfDay(before));
    EXPECT_LE(today, dateOfDay(after));
    EXPECT_EQ(today, static_cast<double>(static_cast<long>(today)));
}

TEST(QtPlatform, DatesHaveTheShortFormOfTheRegionalSettings) {
    const QtPlatform platform(0, nullptr);
    const Date day = dateOf({1976, 5, 19});
    const QLocale before;
    EXPECT_EQ(platform.shortDate(day), "19/05/1976") << "a system without a language is French";
    const std::pair<QLocale, const char *> forms[] = {
        {QLocale(QLocale::German, QLocale::Germany), "19.05.76"},
        {QLocale(QLocale::French, QLocale::Canada), "1976-05-19"},
    };
    for (const auto &[locale, text] : forms) {
        QLocale::setDefault(locale);
        EXPECT_EQ(platform.shortDate(day), text);
    }
    QLocale::setDefault(before);
    EXPECT_EQ(platform.shortDate(dateOf({100, 1, 1})), "01/01/0100");
    EXPECT_EQ(platform.shortDate(dateOf({2008, 10, 4}) + 0.75), "04/10/2008");
}

TEST(QtPlatform, RandomValuesLieFromZeroToBelowOneAndSpread) {
    QtPlatform platform(0, nullptr);
    platform.seedRandomFromClock();
    std::set<float> seen;
    float least = 1;
    float most = 0;
    for (int i = 0; i < 100'000; ++i) {
        const float value = platform.nextRandom();
        least = std::min(least, value);
        most = std::max(most, value);
        seen.insert(value);
    }
    EXPECT_GE(least, 0.0F);
    EXPECT_LT(most, 1.0F);
    EXPECT_LT(least, 0.001F);
    EXPECT_GT(most, 0.999F);
    EXPECT_GT(seen.size(), 90'000U);
}

TEST(QtPlatform, TheClockStartsANewSequence) {
    QtPlatform platform(0, nullptr);
    platform.seedRandomFromClock();
    const float first = platform.nextRandom();
    const float second = platform.nextRandom();
    platform.seedRandomFromClock();
    EXPECT_FALSE(platform.nextRandom() == first && platform.nextRandom() == second);
}

} // namespace
} // namespace boulix
