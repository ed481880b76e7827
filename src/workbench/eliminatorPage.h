// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <functional>
#include <string>

namespace boulix {

/// What the eliminators page asks of its screen.
class eliminatorView {
  public:
    virtual ~eliminatorView() = default;

    /// Shows the boxes again.
    virtual void refresh() = 0;
};

/// The page on which the elimination rules are turned on and off and get their values. What it
/// shows goes into the rules before a save and before an elimination, not at once.
class eliminatorPage {
  public:
    static constexpr int ruleCount = 8;
    /// Rules with a threshold; the last rule has a list instead.
    static constexpr int valueCount = 7;

    /// The buttons of `tBarEliminator`.
    enum Button { loadRules = 1, saveRules };

    eliminatorPage() = default;
    eliminatorPage(const eliminatorPage &) = delete;
    eliminatorPage &operator=(const eliminatorPage &) = delete;

    std::array<std::string, valueCount> txtEliminator; ///< the user writes here

    /// Takes the texts of the check boxes from the rules; none is ticked.
    void init();
    void view(eliminatorView *view) { view_ = view; }

    /// The text of the check box at `index`, 0 to 7, and whether it is ticked.
    const std::string &chkEliminator(int index) const { return captions_.at(place(index)); }
    bool ticked(int index) const { return ticked_.at(place(index)); }
    void tick(int index, bool on);
    /// A box takes text, and the button opens the selection, exactly while the rule is ticked.
    bool txtEnabled(int index) const { return ticked(index); }
    bool btnSelectListEnabled() const { return ticked(ruleCount - 1); }
    /// What the box of a rule with a threshold takes: "2 à 6". Empty where there is no rule.
    static std::string rangeText(int index);
    /// The numbers of the last rule's list, in words.
    static std::string lblList();
    /// Why there are no rules to tick; empty as long as there are.
    static std::string lblNoRules();

    /// A click on a button of `tBarEliminator`. A failure ends the command and is shown.
    void clickButton(int index);
    /// A click on `btnSelectList`: asks for the numbers of the last rule's list.
    void clickSelectList();

    /// What the page shows goes into the rules, and the boxes show what was taken from them: what
    /// does not begin with a number counts as 0. The value of a rule that is off stays as it is; a
    /// value beyond 16 bits fails with `Failure::overflow`.
    void toRules();
    /// Gives the focus to the box of the first rule that is on and out of its range.
    static void focusRefused();
    /// What the rules hold is shown on the page. A rule that does not exist leaves its box alone.
    void fromRules();

  private:
    /// All that a command on the rules can change.
    struct State;

    static std::size_t place(int index) { return static_cast<std::size_t>(index); }
    void change(const char *name, const std::function<void()> &command);
    void exchange(State &other);
    void load();
    void save();
    static void selectList();
    void refresh() const;

    eliminatorView *view_ = nullptr;
    std::array<std::string, ruleCount> captions_;
    std::array<bool, ruleCount> ticked_{};
};

} // namespace boulix
