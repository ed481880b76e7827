// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tour/chapters.h"
#include "tour/tour.h"

#include <cstdio>

namespace boulix {
namespace {

struct Chapter {
    const char *title;
    void (*run)(Tour &);
};

constexpr Chapter chapters[] = {
    {"La base de données", baseChapter},
    {"Les statistiques", statisticsChapter},
    {"Les jeux", gamesChapter},
    {"Les gains et les pronostiques", winningsChapter},
};

TEST_F(Tour, APlayersEveningGoesAsTold) {
    int number = 0;
    for (const Chapter &chapter : chapters) {
        SCOPED_TRACE(chapter.title);
        std::printf("== Chapitre %d : %s\n", ++number, chapter.title);
        chapter.run(*this);
        ASSERT_FALSE(HasFailure()) << "the next chapter needs what this one was to leave";
    }
}

} // namespace
} // namespace boulix
