// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Each load and the import, once for each of its system calls, which fails: the user is told, the
// file stays as it is, and nothing is in memory that was not there before or stands in the file.

#include "faultTest.h"

namespace boulix {
namespace {

struct Load {
    std::string file;
    std::function<void()> save; ///< makes the file
    std::function<void()> run;
    std::function<std::string()> memory;
    /// What may be in memory after a failure, by what was there before and what the file gives.
    std::function<bool(const std::string &now, const std::string &before, const std::string &whole)>
        allowed;
    int number = 0; ///< of the report, where the load has one of its own
};

bool unchanged(const std::string &now, const std::string &before, const std::string &) {
    return now == before;
}

/// The load empties its store before it opens the file.
bool beginningOfTheFile(const std::string &now, const std::string &, const std::string &whole) {
    return whole.compare(0, now.size(), now) == 0;
}

bool asBeforeAndMore(const std::string &now, const std::string &before, const std::string &) {
    return now.compare(0, before.size(), before) == 0;
}

class FaultyLoads : public FaultTest {
  protected:
    void expectToldAtEveryFault(const Load &load) {
        startAfresh();
        load.save();
        const std::string bytes = bytesOf(load.file);
        const std::string before = load.memory();
        std::vector<std::string> calls;
        {
            const FaultySystem system(folder());
            ASSERT_TRUE(runCommand(load.run));
            calls = system.calls();
        }
        const std::string whole = load.memory();
        ASSERT_GE(calls.size(), 3U);
        for (const Fault &fault : faults)
            for (std::size_t n = 1; n <= calls.size(); ++n) {
                SCOPED_TRACE(calls[n - 1] + " fails with " + std::to_string(fault.error));
                startAfresh();
                load.save();
                {
                    FaultySystem system(folder());
                    system.failAt(n, fault.error, false);
                    runCommand(load.run);
                }
                EXPECT_EQ(bytesOf(load.file), bytes);
                if (calls[n - 1].rfind("close ", 0) == 0) {
                    EXPECT_EQ(desktop.messages, std::vector<ShownBox>{});
                    EXPECT_EQ(load.memory(), whole);
                    continue;
                }
                EXPECT_TRUE(load.allowed(load.memory(), before, whole)) << load.memory();
                expectTold(load, fault);
                EXPECT_TRUE(runCommand(load.run)); // the disk is well again
            }
    }

  private:
    void expectTold(const Load &load, const Fault &fault) {
        ASSERT_EQ(desktop.messages.size(), 1U);
        const ShownBox &box = desktop.messages[0];
        EXPECT_EQ(box.title, load.number == 0
                                 ? "Boulix Erreur système N° " + std::to_string(fault.number)
                                 : "boulix: Erreur N° " + std::to_string(load.number));
        EXPECT_NE(box.text.find(load.file), std::string::npos) << box.text;
    }
};

TEST_F(FaultyLoads, TheBase) {
    expectToldAtEveryFault({"tirages.dbl", [] { gDbCombs->saveAgain(); }, [] { gDbCombs->load(); },
                            [] { return draws(); }, beginningOfTheFile});
}

TEST_F(FaultyLoads, AnImport) {
    std::string lines = "BOULE1;BOULE2;BOULE3;BOULE4;BOULE5;BOULE6;BOULE_COMPLEMENTAIRE;"
                        "DATE_DE_TIRAGE;1ER_OU_2EME_TIRAGE";
    for (int i = 0; i < 3000; ++i) // more than one block of the reader
        lines += "\r\n1;2;3;4;5;6;7;" + std::to_string(20000101 + i % 28) + ";1";
    const testing_support::TemporaryFolder elsewhere; // for the base, whose save is another matter
    const auto run = [&] {
        gDbCombs->dbFile().path(elsewhere.path());
        desktop.answerOpen(file("import.txt"));
        gDbCombs->ImportFdjFile();
    };
    expectToldAtEveryFault({"import.txt", [&] { writeBytes(file("import.txt"), lines); }, run,
                            [] { return draws(); }, asBeforeAndMore});
}

TEST_F(FaultyLoads, AGame) {
    const auto save = [this] {
        desktop.answerSave(file("jeu.lst"));
        currentGame->save();
        currentGame->Remove(1);
    };
    const auto run = [this] {
        desktop.answerOpen(file("jeu.lst"));
        currentGame->load();
    };
    expectToldAtEveryFault({"jeu.lst", save, run, [] { return grids(); }, unchanged});
}

TEST_F(FaultyLoads, ADefinition) {
    gameDef def;
    const auto save = [&] {
        def = gameDef();
        for (int i = 0; i < 20; ++i)
            def.addStrComb("1/2/3/4/5/6");
        def.save(0, 0);
        def.label("autre");
    };
    expectToldAtEveryFault(
        {"rgame-0.gam", save, [&] { def.load(); }, [&] { return textOf(def); }, unchanged});
}

TEST_F(FaultyLoads, TheEliminationRules) {
    const auto save = [this] {
        desktop.answerSave(file("regles.elm"));
        gEliminators->save();
    };
    const auto run = [this] {
        desktop.answerOpen(file("regles.elm"));
        gEliminators->load();
    };
    expectToldAtEveryFault({"regles.elm", save, run, [] { return rules(); }, beginningOfTheFile});
}

TEST_F(FaultyLoads, ThePrizeTable) {
    const auto save = [this] {
        gRapport->save(file("autre.rap"));
        gRapport->Value(10, 1);
    };
    const auto run = [this] {
        desktop.answerOpen(file("autre.rap"));
        gRapport->load();
    };
    expectToldAtEveryFault({"autre.rap", save, run, [] { return prizes(); }, unchanged, 4204});
}

TEST_F(FaultyLoads, TheForecastRules) {
    expectToldAtEveryFault({"regles.pro", [this] { gPronostics->save(file("regles.pro")); },
                            [this] { gPronostics->load(file("regles.pro")); },
                            [] { return forecasts(); }, beginningOfTheFile});
}

} // namespace
} // namespace boulix
