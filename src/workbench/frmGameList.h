// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/reportList.h"
#include "workbench/frmDisplayGame.h"

#include <array>
#include <cstdint>
#include <string>

namespace boulix {

class gameDef;

/// What the window of the user's systems asks of its screen.
class gameListView {
  public:
    virtual ~gameListView() = default;

    /// Shows the labels again.
    virtual void refresh() = 0;
    /// Shows the rows of a system modally until the user closes the window.
    virtual void runDisplayGame(frmDisplayGame &window) = 0;
};

/// The rules of the window that lists the systems of the user. It is modal; the screen shows the
/// public state and hides the window once it is `hidden`.
class frmGameList {
  public:
    static constexpr const char *caption = "Gestion des jeux créés";
    static constexpr const char *descriptionCaption = "Description du jeu";
    /// The buttons of `tbar`.
    enum Button { removeGame = 1, renameGame, exportGame, printGame, displayGame, quit };
    struct ButtonText {
        const char *caption;
        const char *toolTip;
    };
    static const std::array<ButtonText, 6> tbar;

    frmGameList();
    frmGameList(const frmGameList &) = delete;
    frmGameList &operator=(const frmGameList &) = delete;

    reportList lvwGame;
    // The values of the clicked system.
    std::string lblnGrid;     ///< "Nombre de grilles"
    std::string lblnWin;      ///< "Numéros gagnants"
    std::string lblnFixed;    ///< "Numéros fixes"
    std::string lblnSelected; ///< "Numéros sélectionnés"

    void view(gameListView *view) { view_ = view; }
    /// A click on the row `row` of the list, counted from 1: it is the selected one from now on.
    void clickRow(std::int64_t row);
    /// A click on a button of `tbar`; all but the last do nothing without a selected row. A
    /// failure ends the command and is shown.
    void clickButton(int index);
    /// Why a button of `tbar` can do nothing now; empty for one that can.
    std::string whyOff(int index) const;
    /// Whether a system was removed or renamed.
    bool changedMark() const { return changed_; }
    bool hidden() const { return hidden_; }

  private:
    void fill();
    void runButton(int index);
    void removeSelected();

    gameListView *view_ = nullptr;
    std::int64_t selected_ = 0; // 0: no row
    bool changed_ = false;
    bool hidden_ = false;
};

} // namespace boulix
