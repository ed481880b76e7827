// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/folderClaim.h"

#include <QFileSystemWatcher>
#include <QLockFile>
#include <QObject>
#include <QStringList>

#include <functional>

namespace boulix {

/// The claim as two hidden files in the folder itself, which every path to it leads to: the lock,
/// there while the program runs, says on which machine and in which process it does, and a call
/// is there until the program has answered it. Both are gone at the end; what a killed program
/// leaves, the next one takes over.
class FolderLock : public QObject, public FolderClaim {
    Q_OBJECT

  public:
    explicit FolderLock(const QString &folder);
    ~FolderLock() override;

    /// What brings the window to the front when another start calls.
    std::function<void()> called;
    /// The files that this start was given, handed over with its call.
    QStringList files;
    /// What opens the files that another start hands over, called behind `called`.
    std::function<void(const QStringList &files)> handed;

    Holder take() override;
    std::string machine() const override;
    bool callHolder() override;
    void takeOver() override;

  private:
    void listen();
    void answerCall();

    QString folder_;
    QString lockName_;
    QString callName_;
    QLockFile lock_;
    QFileSystemWatcher watcher_;
};

} // namespace boulix
