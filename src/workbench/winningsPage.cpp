// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/winningsPage.h"

#include "core/failure.h"
#include "core/frenchNumbers.h"
#include "core/globals.h"
#include "core/numbers.h"
#include "core/platform.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "files/modFileSelector.h"
#include "files/slotFile.h"
#include "files/xFile.h"
#include "games/frmRandomComb.h"
#include "games/game.h"
#include "printing/gridConfig.h"
#include "sill/appInfo.h"
#include "sill/desktop.h"
#include "sill/reports.h"
#include "sill/typedField.h"
#include "winnings/balance.h"
#include "winnings/chances.h"
#include "winnings/gameResult.h"
#include "winnings/money.h"
#include "winnings/rapport.h"
#include "workbench/frmChances.h"
#include "workbench/frmWinDate.h"

#include <cmath>

namespace boulix {

namespace {

/// Says that a check is under way for as long as it lives; the bar goes back to its start.
class Busy {
  public:
    Busy(bool &busy, progressBar &bar) : busy_(busy), bar_(bar) { busy_ = true; }
    ~Busy() {
        busy_ = false;
        bar_.value = bar_.min;
    }
    Busy(const Busy &) = delete;
    Busy &operator=(const Busy &) = delete;

  private:
    bool &busy_;
    progressBar &bar_;
};

bool isNumber(const std::string &text) {
    try {
        wholeNumberText(text);
        return true;
    } catch (const RuntimeFailure &) {
        return false;
    }
}

std::string counted(std::int64_t count, const char *one, const char *many) {
    return groupedNumber(static_cast<std::uint64_t>(count)) + " " + (count < 2 ? one : many);
}

std::size_t place(std::int16_t rank) {
    return static_cast<std::size_t>(rank - 1);
}

} // namespace

winningsPage::winningsPage() {
    updVerifComb.enabled = false;
    updVerifComb.changed = [this] { showVerification(); };
}

void winningsPage::init() {
    for (std::int16_t i = 0; i < ranks; ++i)
        lblVerWinTitle[static_cast<std::size_t>(i)] = gRapport->label(i);
}

void winningsPage::showPrizes() {
    for (std::int16_t i = 0; i < ranks; ++i)
        txtRapPrice[static_cast<std::size_t>(i)] = plainDecimal(gRapport->Value(i));
    refresh();
}

void winningsPage::followBase() {
    const std::int32_t count = gDbCombs->Count();
    updVerifComb.enabled = count > 0;
    if (count == 0)
        return;
    updVerifComb.range(1, count);
    updVerifComb.set(count);
    showVerification(); // the draw can be another one under the same number
}

void winningsPage::showVerification() {
    runCommand([this] { verifyDraw(); });
    refresh();
}

void winningsPage::verifyDraw() {
    const std::int32_t position = updVerifComb.value();
    if (position < 1 || position > gDbCombs->Count())
        return;
    const dbComb &draw = gDbCombs->Item(position);
    txtVerifComb = std::to_string(position);
    lblVerifComb = "Tirage n° " + std::to_string(draw.id()) + " du " + shortDate(draw.day());
    for (int i = 1; i <= lotoComb::size; ++i)
        lblVerifNum[static_cast<std::size_t>(i - 1)] = std::to_string(draw.comb().num(i));
    lblVerifCompl = std::to_string(draw.comb().compl_());
    if (subTab_ == performance)
        blankResults();
    if (subTab_ != verification)
        return;
    const gameResult result = currentGame->verify(draw.comb());
    showRanks(result);
    float total = 0;
    for (std::int16_t rank = 1; rank <= ranks; ++rank)
        total = addMoney(total, result.price(rank));
    lblVerWinTot = plainAmount(total);
}

void winningsPage::clickSubTab(int index) {
    subTab_ = index;
    if (index == verification || index == performance || index == report)
        titleFrame_ = static_cast<SubTab>(index);
    if (index == verification || index == performance)
        resultFrame_ = static_cast<SubTab>(index);
    if (index == performance)
        blankResults();
    if (index == verification)
        showVerification();
    runCommand([this] { takeBoxes(); });
    refresh();
}

/// The amounts in the boxes become those of the prize table; behind an empty box the amount stays.
void winningsPage::takeBoxes() {
    for (std::int16_t i = 0; i < ranks; ++i) {
        std::string &text = txtRapPrice[static_cast<std::size_t>(i)];
        if (trimmed(text).empty())
            continue;
        const TypedField field{"txtRapPrice_" + std::to_string(i), gRapport->label(i),
                               "un montant, avec ou sans décimales"};
        gRapport->Value(
            i, readField(field, text, [](const std::string &typed) { return moneyText(typed); }));
        if (!isNumber(text)) // a word has counted as 0, and what follows a number as nothing
            text = plainDecimal(gRapport->Value(i));
    }
}

void winningsPage::leaveVerifComb(const std::string &text) {
    const double position = roundHalfEven(numericPrefix(text));
    if (updVerifComb.enabled && position >= 1 && position <= updVerifComb.max())
        updVerifComb.set(toInt32(position));
    refresh();
}

void winningsPage::clickPerfo(int index) {
    if (busy_)
        return;
    runCommand([&] {
        if (index == checkBase)
            checkOverBase();
        else if (index == checkRandomDraws)
            checkOverRandomDraws();
        else if (index == showChances)
            tellChances();
    });
    refresh();
}

void winningsPage::checkOverBase() {
    const Busy running(busy_, pgrScanDB);
    refresh();
    const gameResult result = gDbCombs->VerifyGame(*currentGame, pgrScanDB, wins_, winsCount_);
    datesKnown_ = true;
    checkedBase_ = BaseMark(*gDbCombs);
    showCheck(result, gDbCombs->Count());
}

void winningsPage::checkOverRandomDraws() {
    frmRandomComb dialog;
    if (view_)
        view_->runRandomComb(dialog);
    if (randomDraws.empty())
        return;
    const Busy running(busy_, pgrScanDB);
    refresh();
    const auto count = narrow16(std::ssize(randomDraws));
    showCheck(currentGame->verifyCombList(randomDraws, count, pgrScanDB), count);
    datesKnown_ = false; // random draws have no dates
}

/// The chances of the game as it stands. They are counted anew each time: its grids, the prizes or
/// the price may have changed.
void winningsPage::tellChances() {
    const float price = gGridConfig->price();
    const std::string refusal = chancesRefusal(*currentGame, *gRapport, price);
    if (!refusal.empty())
        return desktop().showMessage(refusal, Icon::information, gAppInfo->name());
    ProgressShown progress(frmChances::caption, "Calcul des chances sur tous les tirages...");
    const auto chances = chancesOf(*currentGame, *gRapport, price, *progress);
    progress.unload();
    if (!chances || !view_)
        return;
    frmChances window(*chances, gGridConfig->monneyUnit());
    view_->runChances(window);
}

void winningsPage::clickRapp(int index) {
    if (busy_)
        return;
    runCommand([&] { runRapp(index); });
    refresh();
}

void winningsPage::runRapp(int index) {
    if (index == loadTable) {
        if (gRapport->load()) {
            showPrizes();
            desktop().announce("Rapports chargés");
        }
        return;
    }
    takeBoxes();
    xFile file;
    file.fullName(index == saveDefault
                      ? platform().applicationFolder() + pathSeparator + rapport::defaultName
                      : modFileSelector::saveDialog("Fichier de rapport Boulix (*.rap)|*.rap",
                                                    "Sauvegarde d'un fichier de rapport",
                                                    "rapports.rap"));
    if (!file.fullName().empty() && gRapport->save(file.fullName()))
        desktop().announce("Rapports enregistrés dans " + file.name());
}

void winningsPage::clickPerfDate(int index) {
    if (busy_ || !datesKnown_)
        return;
    runCommand([&] {
        const auto rank = static_cast<std::size_t>(checkedIndex(index, 0, ranks - 1) + 1);
        const auto first = wins_[rank].begin() + 1;
        // The wins are known by the places of their draws: in another base those are others.
        const bool baseStands = checkedBase_.stillIn(*gDbCombs);
        frmWinDate window({first, first + (baseStands ? winsCount_[rank] : 0)}, baseStands);
        if (view_)
            view_->runWinDate(window);
    });
}

/// The user may have gone to another sub-tab while the check was under way: the labels are no
/// longer this one's then.
void winningsPage::showCheck(const gameResult &result, std::int64_t draws) {
    if (subTab_ != performance)
        return;
    showRanks(result);
    showBalance(result, draws);
}

void winningsPage::showBalance(const gameResult &result, std::int64_t draws) {
    const std::string &unit = gGridConfig->monneyUnit();
    const std::int64_t grids = currentGame->Count();
    const Balance balance = balanceOf(result, grids, draws, gGridConfig->price());
    const std::string sign = balance.rest() > 0 ? "+" : balance.rest() < 0 ? "−" : "";
    lblPerfSum = amountWithUnit(balance.won, unit);
    lblPerfStake = amountWithUnit(balance.stake, unit);
    lblPerfBalance = sign + amountWithUnit(std::abs(balance.rest()), unit);
    desktop().announce(counted(grids, "grille vérifiée", "grilles vérifiées") + " sur " +
                       counted(draws, "tirage", "tirages"));
}

void winningsPage::showRanks(const gameResult &result) {
    for (std::int16_t rank = 1; rank <= ranks; ++rank) {
        lblVerComb[place(rank)] = std::to_string(result.nWin(rank));
        lblVerPrice[place(rank)] = plainAmount(result.price(rank));
    }
}

void winningsPage::blankResults() {
    lblVerComb.fill({});
    lblVerPrice.fill({});
    lblVerWinTot.clear();
    lblPerfSum.clear();
    lblPerfStake.clear();
    lblPerfBalance.clear();
}

void winningsPage::refresh() const {
    if (view_)
        view_->refresh();
}

} // namespace boulix
