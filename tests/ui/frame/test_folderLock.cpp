// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The hidden files by which one program claims a folder; real starts of the program are tried in
// tests/install.

#include "ui/frame/folderLock.h"

#include "support/files.h"
#include "support/withoutRights.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSysInfo>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <thread>

namespace boulix {
namespace {

using testing_support::readBytes;
using testing_support::writeBytes;
using Holder = FolderClaim::Holder;

class FolderLockTest : public ::testing::Test {
  protected:
    QString folder() const { return QString::fromStdString(place_.path()); }
    std::string lockName() const { return place_.file(".boulix.lock"); }
    std::string callName() const { return place_.file(".boulix.appel"); }
    QStringList files() const {
        return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    /// The lock of a program of `process` on `machine`.
    void leaveLock(qint64 process, const QString &machine) const {
        writeBytes(lockName(),
                   QStringLiteral("%1\nboulix\n%2\n").arg(process).arg(machine).toStdString());
    }
    /// Calls the holder from another thread, as another process would, while this one lives on.
    bool called(FolderLock &caller) const {
        bool answered = false;
        std::atomic<bool> done = false;
        std::thread other([&] {
            answered = caller.callHolder();
            done = true;
        });
        QElapsedTimer waiting;
        for (waiting.start(); !done && !waiting.hasExpired(20'000);)
            QTest::qWait(10);
        other.join();
        return answered;
    }

  private:
    testing_support::TemporaryFolder place_;
};

TEST_F(FolderLockTest, TheFirstClaimHoldsAndNothingOfItStays) {
    {
        FolderLock first(folder());
        EXPECT_EQ(first.take(), Holder::thisProgram);
        EXPECT_EQ(files(), QStringList{QStringLiteral(".boulix.lock")});
        FolderLock second(folder());
        EXPECT_EQ(second.take(), Holder::sameMachine);
    }
    EXPECT_EQ(files(), QStringList());
    FolderLock third(folder());
    EXPECT_EQ(third.take(), Holder::thisProgram);
}

TEST_F(FolderLockTest, AFolderReachedByAnotherPathIsTheSameFolder) {
    const testing_support::TemporaryFolder elsewhere;
    const std::string link = elsewhere.file("lien");
    std::filesystem::create_directory_symlink(folder().toStdString(), link);
    FolderLock first(folder());
    FolderLock second(QString::fromStdString(link));
    EXPECT_EQ(first.take(), Holder::thisProgram);
    EXPECT_EQ(second.take(), Holder::sameMachine);
}

TEST_F(FolderLockTest, ACallIsAnsweredOnceAndLeavesNoFile) {
    FolderLock first(folder());
    int calls = 0;
    first.called = [&calls] { ++calls; };
    ASSERT_EQ(first.take(), Holder::thisProgram);
    FolderLock second(folder());
    ASSERT_EQ(second.take(), Holder::sameMachine);
    EXPECT_TRUE(called(second));
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(files(), QStringList{QStringLiteral(".boulix.lock")});
    EXPECT_TRUE(called(second));
    EXPECT_EQ(calls, 2);
}

TEST_F(FolderLockTest, ACallHandsOverTheFilesOfItsStart) {
    FolderLock holder(folder());
    ASSERT_EQ(holder.take(), Holder::thisProgram);
    QStringList handed;
    holder.handed = [&](const QStringList &names) { handed += names; };
    FolderLock caller(folder());
    EXPECT_TRUE(called(caller));
    EXPECT_EQ(handed, QStringList());
    caller.files = {QStringLiteral("/jeux/é 100%.lst"), QStringLiteral("/jeux/a\nb.lst")};
    EXPECT_TRUE(called(caller));
    EXPECT_EQ(handed, caller.files);
}

TEST_F(FolderLockTest, ACallThatNobodyAnswersEndsAfterSomeSecondsAndIsTakenBack) {
    FolderLock first(folder());
    ASSERT_EQ(first.take(), Holder::thisProgram);
    FolderLock second(folder());
    ASSERT_EQ(second.take(), Holder::sameMachine);
    QElapsedTimer waiting;
    waiting.start();
    EXPECT_FALSE(second.callHolder()); // the first one's event queue does not run
    EXPECT_GE(waiting.elapsed(), 2900);
    EXPECT_EQ(files(), QStringList{QStringLiteral(".boulix.lock")});
}

TEST_F(FolderLockTest, ACallFromAnotherScreenIsNotAnswered) {
    FolderLock first(folder());
    int calls = 0;
    first.called = [&calls] { ++calls; };
    ASSERT_EQ(first.take(), Holder::thisProgram);
    writeBytes(callName(), "wayland-7 :7\n\n");
    QTest::qWait(300);
    EXPECT_EQ(calls, 0);
    EXPECT_TRUE(QFile::exists(QString::fromStdString(callName())));
}

TEST_F(FolderLockTest, ACallThatAKilledProgramLeftOpenIsGoneAtTheEnd) {
    writeBytes(callName(), "wayland-7 :7\n\n");
    {
        FolderLock first(folder());
        ASSERT_EQ(first.take(), Holder::thisProgram);
    }
    EXPECT_EQ(files(), QStringList());
}

TEST_F(FolderLockTest, ASecondStartThatEndsLeavesTheClaimOfTheFirst) {
    FolderLock first(folder());
    ASSERT_EQ(first.take(), Holder::thisProgram);
    { EXPECT_EQ(FolderLock(folder()).take(), Holder::sameMachine); }
    EXPECT_EQ(files(), QStringList{QStringLiteral(".boulix.lock")});
}

TEST_F(FolderLockTest, TheClaimOfAKilledProgramDoesNotCount) {
    QProcess killed;
    killed.start(QStringLiteral("sleep"), {QStringLiteral("60")});
    ASSERT_TRUE(killed.waitForStarted());
    const qint64 process = killed.processId();
    killed.kill();
    ASSERT_TRUE(killed.waitForFinished());
    leaveLock(process, QSysInfo::machineHostName());
    FolderLock next(folder());
    EXPECT_EQ(next.take(), Holder::thisProgram);
}

TEST_F(FolderLockTest, TheClaimOfAnotherMachineIsNamedAndCanBeTakenOver) {
    leaveLock(1, QStringLiteral("grenier"));
    {
        FolderLock next(folder());
        EXPECT_EQ(next.take(), Holder::otherMachine);
        EXPECT_EQ(next.machine(), "grenier");
    }
    EXPECT_EQ(files(), QStringList{QStringLiteral(".boulix.lock")}) << "it is not ours to remove";
    {
        FolderLock next(folder());
        EXPECT_EQ(next.take(), Holder::otherMachine);
        next.takeOver();
        EXPECT_EQ(FolderLock(folder()).take(), Holder::sameMachine);
    }
    EXPECT_EQ(files(), QStringList());
}

TEST_F(FolderLockTest, AnEmptyOrSpoiltLockDoesNotStopTheProgram) {
    for (const char *bytes : {"", "\n\n\n", "pas un nombre\nboulix\n", "12"}) {
        writeBytes(lockName(), bytes);
        FolderLock next(folder());
        if (next.take() != Holder::thisProgram)
            next.takeOver();
        EXPECT_EQ(FolderLock(folder()).take(), Holder::sameMachine) << bytes;
    }
    EXPECT_EQ(files(), QStringList());
}

TEST_F(FolderLockTest, AFolderWithoutRightsTakesNoClaimAndIsFree) {
    std::filesystem::permissions(folder().toStdString(), std::filesystem::perms::owner_read |
                                                             std::filesystem::perms::owner_exec);
    {
        const testing_support::WithoutRights nobody;
        FolderLock lock(folder());
        EXPECT_EQ(lock.take(), Holder::nobody);
    }
    std::filesystem::permissions(folder().toStdString(), std::filesystem::perms::owner_all);
    EXPECT_EQ(files(), QStringList());
}

} // namespace
} // namespace boulix
