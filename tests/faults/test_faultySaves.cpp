// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Each save and each export, once for each of its system calls, which fails: the user is told, the
// memory is whole, the file is the old one where the message says so, and the same command succeeds
// as soon as the disk is well again.

#include "core/settings.h"
#include "faultTest.h"
#include "sill/selector.h"
#include "stats/statReport.h"
#include "stats/statTypes.h"
#include "support/saveTexts.h"

namespace boulix {
namespace {

struct Save {
    std::string file;
    std::function<void()> prepare; ///< the memory and the old file, if there is one
    std::function<void()> run;
    std::function<void()> again;
    std::function<std::string()> memory;
};

class FaultySaves : public FaultTest {
  protected:
    void expectWholeAtEveryFault(const Save &save);

  private:
    void prepare(const Save &save) {
        startAfresh();
        save.prepare();
        old_ = bytesOf(save.file);
    }
    void expectAfterFault(const Save &save, const Fault &fault, bool maySucceed);

    std::string old_;
    std::string new_;
    std::string memory_;
    std::vector<std::string> calls_;
};

/// Whether the save goes on in spite of it: the file is on the disk by then, or was only read.
bool isHarmless(const std::vector<std::string> &calls, std::size_t n) {
    const std::string &call = calls[n - 1];
    return call == "open ." || call == "fsync ." || call == "close ." || closesARead(calls, n);
}

void FaultySaves::expectWholeAtEveryFault(const Save &save) {
    prepare(save);
    {
        const FaultySystem system(folder());
        ASSERT_TRUE(runCommand(save.run));
        calls_ = system.calls();
    }
    new_ = bytesOf(save.file);
    memory_ = save.memory();
    ASSERT_NE(old_, new_);
    ASSERT_GE(calls_.size(), 5U);
    for (const Fault &fault : faults)
        for (std::size_t n = 1; n <= calls_.size(); ++n)
            for (const bool forGood : {false, true})
                for (const bool half : {false, true}) {
                    SCOPED_TRACE(calls_[n - 1] + " fails with " + std::to_string(fault.error) +
                                 (forGood ? " for good" : " once") +
                                 (half ? ", writes by halves" : ""));
                    prepare(save);
                    {
                        FaultySystem system(folder());
                        system.failAt(n, fault.error, forGood);
                        system.writeHalf(half);
                        runCommand(save.run);
                    }
                    expectAfterFault(save, fault, !forGood && isHarmless(calls_, n));
                }
}

void FaultySaves::expectAfterFault(const Save &save, const Fault &fault, bool maySucceed) {
    EXPECT_EQ(save.memory(), memory_);
    const std::string now = bytesOf(save.file);
    if (maySucceed) {
        EXPECT_EQ(desktop.messages, std::vector<ShownBox>{});
        EXPECT_EQ(now, new_);
        return;
    }
    ASSERT_EQ(desktop.messages.size(), 1U);
    const ShownBox &box = desktop.messages[0];
    EXPECT_EQ(box.title, "Boulix Erreur système N° " + std::to_string(fault.number));
    EXPECT_EQ(box.icon, Icon::critical);
    const std::string firstLine = box.text.substr(0, box.text.find('\r'));
    EXPECT_NE(firstLine.find(" : " + file(save.file)), std::string::npos) << firstLine;
    if (box.text.find(saveTexts::brokenOff) == std::string::npos)
        EXPECT_EQ(now, old_);
    else
        EXPECT_TRUE(now == "(none)" || new_.compare(0, now.size(), now) == 0);
    desktop.messages.clear();
    EXPECT_TRUE(runCommand(save.again));
    EXPECT_EQ(bytesOf(save.file), new_);
    EXPECT_EQ(save.memory(), memory_);
}

TEST_F(FaultySaves, TheBaseAfterADrawIsRemoved) {
    expectWholeAtEveryFault({"tirages.dbl", [] { gDbCombs->saveAgain(); },
                             [] { gDbCombs->Remove(1); }, [] { gDbCombs->saveAgain(); },
                             [] { return draws(); }});
}

TEST_F(FaultySaves, TheBaseAfterAnImport) {
    const testing_support::TemporaryFolder elsewhere;
    writeBytes(elsewhere.file("import.txt"),
               "BOULE1;BOULE2;BOULE3;BOULE4;BOULE5;BOULE6;BOULE_COMPLEMENTAIRE;DATE_DE_TIRAGE;"
               "1ER_OU_2EME_TIRAGE\r\n1;2;3;4;5;6;7;20200101;1\r\n1;2;3;4;5;6;7;20200102;1");
    expectWholeAtEveryFault({"tirages.dbl", [] { gDbCombs->saveAgain(); },
                             [&] {
                                 desktop.answerOpen(elsewhere.file("import.txt"));
                                 EXPECT_TRUE(gDbCombs->ImportFdjFile());
                             },
                             [] { gDbCombs->saveAgain(); }, [] { return draws(); }});
}

TEST_F(FaultySaves, TheBaseIsKnownToBeUnsavedExactlyWhereTheUserWasTold) {
    startAfresh();
    std::size_t calls = 1;
    for (std::size_t n = 1; n <= calls; ++n) {
        FaultySystem system(folder());
        system.failAt(n, EIO, true);
        EXPECT_FALSE(runCommand([] { gDbCombs->saveAgain(); }));
        EXPECT_FALSE(gDbCombs->isSaved());
        system.failAt(0, 0, false); // well again
        EXPECT_TRUE(runCommand([] { gDbCombs->saveAgain(); }));
        EXPECT_TRUE(gDbCombs->isSaved());
        const std::size_t before = system.calls().size();
        gDbCombs->saveAgain();
        calls = system.calls().size() - before;
    }
    EXPECT_GE(calls, 7U);
}

TEST_F(FaultySaves, TheExportOfTheBase) {
    const auto run = [this] {
        desktop.answerSave(file("base.txt"));
        gDbCombs->ExportDB();
    };
    expectWholeAtEveryFault({"base.txt", [this] { writeBytes(file("base.txt"), "vieux"); }, run,
                             run, [] { return draws(); }});
}

TEST_F(FaultySaves, AGame) {
    const auto run = [this] {
        desktop.answerSave(file("jeu.lst"));
        if (fileExists(file("jeu.lst")))
            desktop.answerYes();
        currentGame->save();
    };
    expectWholeAtEveryFault({"jeu.lst", [this] { writeBytes(file("jeu.lst"), "vieux"); }, run, run,
                             [] { return grids(); }});
}

TEST_F(FaultySaves, ADefinitionThatIsRenamed) {
    gameDef def;
    const auto prepare = [&] {
        def = gameDef();
        for (int i = 0; i < 20; ++i)
            def.addStrComb("1/2/3/4/5/6");
        def.label("vieux");
        def.save(0, 0);
    };
    const auto run = [&] {
        desktop.answerText("nouveau");
        def.rename();
    };
    expectWholeAtEveryFault(
        {"rgame-0.gam", prepare, run, [&] { def.save(-1, -1); }, [&] { return textOf(def); }});
}

TEST_F(FaultySaves, ANewDefinitionIsThereWithItsKeyOrNeitherIs) {
    const auto key = [] { return settings::read("jeux reduits", "jeu0", "rien"); };
    for (std::size_t n = 1;; ++n) {
        startAfresh();
        writeBytes(file("boulix.ini"), "[grille]\r\nunite_monnaie=franc\r\n");
        gameDef def;
        def.addStrComb("1/2/3/4/5/6");
        FaultySystem system(folder());
        system.failAt(n, EIO, false);
        const bool saved = runCommand([&] { def.save(0, 0); });
        if (system.calls().size() < n) {
            EXPECT_GE(n, 18U); // three for the reading of the settings, eight for each of the files
            break;
        }
        SCOPED_TRACE(system.calls()[n - 1]);
        EXPECT_EQ(key(), saved ? "rgame-0.gam" : "rien");
        EXPECT_EQ(def.file() != nullptr, saved);
        EXPECT_EQ(settings::read("grille", "unite_monnaie", "-"), "franc");
        EXPECT_EQ(desktop.messages.size(), saved ? 0U : 1U);
        def.save(0, 0); // the disk is well again
        EXPECT_EQ(key(), "rgame-0.gam");
        EXPECT_TRUE(def.load());
    }
}

TEST_F(FaultySaves, TheExportOfADefinition) {
    gameDef def;
    for (int i = 0; i < 20; ++i)
        def.addStrComb("1/2/3/4/5/6");
    const auto run = [&] {
        desktop.answerSave(file("modele.txt"));
        def.exportText();
    };
    expectWholeAtEveryFault({"modele.txt", [] {}, run, run, [&] { return textOf(def); }});
}

TEST_F(FaultySaves, TheEliminationRules) {
    const auto run = [this] {
        desktop.answerSave(file("regles.elm"));
        gEliminators->save();
    };
    expectWholeAtEveryFault({"regles.elm", [this] { writeBytes(file("regles.elm"), "vieux"); }, run,
                             run, [] { return rules(); }});
}

TEST_F(FaultySaves, ThePrizeTable) {
    const auto run = [this] { gRapport->save(file("defrapp.rap")); };
    expectWholeAtEveryFault({"defrapp.rap", [this] { writeBytes(file("defrapp.rap"), "vieux"); },
                             run, run, [] { return prizes(); }});
}

TEST_F(FaultySaves, TheForecastRules) {
    const auto run = [this] { gPronostics->save(file("regles.pro")); };
    expectWholeAtEveryFault({"regles.pro", [] {}, run, run, [] { return forecasts(); }});
}

TEST_F(FaultySaves, AStatistic) {
    selector nobody;
    modStats::InitStatTypes();
    const auto run = [&] {
        modStats::WriteStatsText(file("stat.txt"), 1, 0, 1, gDbCombs->Count(), nobody);
    };
    expectWholeAtEveryFault({"stat.txt", [this] { writeBytes(file("stat.txt"), "vieux"); }, run,
                             run, [] { return draws(); }});
}

TEST_F(FaultySaves, ASettingAndThoseBesideIt) {
    const auto run = [] { settings::write("grille", "prix_grille", "0.7"); };
    expectWholeAtEveryFault({"boulix.ini",
                             [this] {
                                 writeBytes(file("boulix.ini"),
                                            "; note\r\n[grille]\r\nunite_monnaie=franc\r\n"
                                            "prix_grille=0.5\r\n[jeux reduits]\r\njeu0=x.gam\r\n");
                             },
                             run, run,
                             [] {
                                 return settings::read("grille", "unite_monnaie", "-") +
                                        settings::read("jeux reduits", "jeu0", "-");
                             }});
}

} // namespace
} // namespace boulix
