// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

namespace boulix {

class appInfo;
class dbCombs;
class eliminators;
class frmMain;
class game;
class gridConfig;
class pronostics;
class rapport;
class UndoList;

/// One object for the whole run, made on first use. A reference taken from it stays good until
/// `resetGlobals`.
template <class T>
class Global {
  public:
    T &operator*() {
        if (!object_)
            object_ = std::make_shared<T>();
        return *object_;
    }
    T *operator->() { return &**this; }
    void reset() { object_.reset(); }

  private:
    std::shared_ptr<T> object_; // shared: its deleter needs no complete T in this header
};

// The data of the running program. The whole system is built on these few objects; everything
// else is handed over as an argument.
inline Global<appInfo> gAppInfo;
inline Global<dbCombs> gDbCombs;
inline Global<gridConfig> gGridConfig;
inline Global<rapport> gRapport;
inline Global<eliminators> gEliminators;
inline Global<pronostics> gPronostics;
inline Global<game> currentGame;
inline Global<game> constructionGame;
inline Global<UndoList> gUndo;
inline Global<frmMain> mainWindow;

/// Drops all of them, so that each test starts as the program does.
inline void resetGlobals() {
    mainWindow.reset(); // first: its pages look at the others
    gUndo.reset(); // and its steps exchange them
    gAppInfo.reset();
    gDbCombs.reset();
    gGridConfig.reset();
    gRapport.reset();
    gEliminators.reset();
    gPronostics.reset();
    currentGame.reset();
    constructionGame.reset();
}

} // namespace boulix
