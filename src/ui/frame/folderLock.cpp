// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/folderLock.h"

#include "ui/widgets/qtText.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSysInfo>
#include <QThread>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace boulix {

namespace {

/// How long a call waits for its answer, in milliseconds, and how often it looks for it.
constexpr int answerWithin = 3000;
constexpr unsigned long lookEvery = 25;

constexpr const char *activationToken = "XDG_ACTIVATION_TOKEN";

/// What is in a lock.
struct LockInfo {
    qint64 process = 0;
    QString machine;
};

LockInfo infoOf(const QLockFile &lock) {
    LockInfo info;
    QString program;
    if (!lock.getLockInfo(&info.process, &info.machine, &program))
        info.machine = QSysInfo::machineHostName(); // it was just being written, or removed
    return info;
}

/// The screen on which the windows of this program appear, in the words of the session.
QByteArray screenName() {
    return qgetenv("WAYLAND_DISPLAY") + ' ' + qgetenv("DISPLAY");
}

/// A leading dot does not hide a file everywhere.
void hide([[maybe_unused]] const QString &fileName) {
#ifdef Q_OS_WIN
    SetFileAttributesW(reinterpret_cast<const wchar_t *>(fileName.utf16()), FILE_ATTRIBUTE_HIDDEN);
#endif
}

/// The start that the user has just asked for may come to the front, and hands that on.
void letToFront([[maybe_unused]] qint64 process) {
#ifdef Q_OS_WIN
    AllowSetForegroundWindow(static_cast<DWORD>(process));
#endif
}

} // namespace

FolderLock::FolderLock(const QString &folder)
    : folder_(folder), lockName_(folder + QStringLiteral("/.boulix.lock")),
      callName_(folder + QStringLiteral("/.boulix.appel")), lock_(lockName_) {
    lock_.setStaleLockTime(0); // a program may run for weeks
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &FolderLock::answerCall);
}

FolderLock::~FolderLock() {
    if (lock_.isLocked())
        QFile::remove(callName_);
}

FolderClaim::Holder FolderLock::take() {
    if (lock_.tryLock(0)) {
        listen();
        return Holder::thisProgram;
    }
    // Where nothing can be written nobody can do harm, and a dead program's lock stays for ever.
    if (lock_.error() != QLockFile::LockFailedError || !QFileInfo(folder_).isWritable())
        return Holder::nobody;
    const bool here = infoOf(lock_).machine == QSysInfo::machineHostName();
    return here ? Holder::sameMachine : Holder::otherMachine;
}

std::string FolderLock::machine() const {
    return fromQt(infoOf(lock_).machine);
}

bool FolderLock::callHolder() {
    letToFront(infoOf(lock_).process);
    QSaveFile call(callName_); // it appears in one piece
    if (!call.open(QIODevice::WriteOnly))
        return false;
    call.write(screenName() + '\n' + qgetenv(activationToken) + '\n');
    for (const QString &file : files)
        call.write(file.toUtf8().toPercentEncoding() + '\n'); // a name may hold a line end
    if (!call.commit())
        return false;
    hide(callName_);
    QElapsedTimer waiting;
    for (waiting.start(); QFile::exists(callName_); QThread::msleep(lookEvery))
        if (waiting.hasExpired(answerWithin))
            return !QFile::remove(callName_);
    return true;
}

void FolderLock::takeOver() {
    if (lock_.removeStaleLockFile() && lock_.tryLock(0))
        listen();
}

void FolderLock::listen() {
    hide(lockName_);
    watcher_.addPath(folder_);
    answerCall(); // one that a killed program left open
}

/// A call from another screen, or by somebody else, is left open: nobody would see the window
/// there.
void FolderLock::answerCall() {
    QFile call(callName_);
    if (!call.open(QIODevice::ReadOnly))
        return;
    const QByteArray screen = call.readLine().chopped(1);
    const QByteArray token = call.readLine().chopped(1);
    QStringList names;
    while (!call.atEnd())
        names << QString::fromUtf8(QByteArray::fromPercentEncoding(call.readLine().trimmed()));
    call.close();
    const bool sameUser = QFileInfo(callName_).ownerId() == QFileInfo(lockName_).ownerId();
    if (screen != screenName() || !sameUser || !call.remove())
        return;
    if (!token.isEmpty())
        qputenv(activationToken, token); // where only who has it may come to the front
    if (called)
        called();
    if (handed && !names.isEmpty())
        handed(names);
}

} // namespace boulix
