// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/qtPlatform.h"

#include "ui/frame/largePages.h"
#include "ui/widgets/qtText.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QLocale>

#include <chrono>

namespace boulix {

QtPlatform::QtPlatform(int argc, const char *const *argv) {
    for (int i = 1; i < argc; ++i) {
        if (i > 1)
            commandLine_ += ' ';
        commandLine_ += argv[i];
    }
    seedRandomFromClock();
}

Date QtPlatform::today() const {
    const QDate now = QDate::currentDate();
    return dateOf({now.year(), now.month(), now.day()});
}

std::string QtPlatform::shortDate(Date date) const {
    const CalendarDay day = calendarDay(date);
    return fromQt(QLocale().toString(QDate(day.year, day.month, day.day), QLocale::ShortFormat));
}

std::string QtPlatform::applicationFolder() const {
    return fromQt(QDir::toNativeSeparators(QCoreApplication::applicationDirPath()));
}

void QtPlatform::seedRandomFromClock() {
    const auto ticks = std::chrono::system_clock::now().time_since_epoch().count();
    std::seed_seq seed{static_cast<std::uint32_t>(ticks), static_cast<std::uint32_t>(ticks >> 32)};
    random_.seed(seed);
}

float QtPlatform::nextRandom() {
    // 24 bits: every value is exact in single precision, and none rounds up to 1.
    return static_cast<float>(random_() >> 8) * 0x1p-24F;
}

void QtPlatform::wantLargePages(void *memory, std::size_t bytes) {
    askForLargePages(memory, bytes);
}

} // namespace boulix
