// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace boulix::testing_support {

/// A way of giving a command in a window: a click, a shortcut, a mnemonic, a key, the close box.
struct Command {
    std::string name;
    std::function<void()> give;
    bool canBeOfAnotherPage = false; ///< a shortcut is found whether or not its page is shown
};

/// All ways that `window` offers while `box` in it has the focus, found by looking at its controls.
std::vector<Command> commandsOf(QWidget &window, QWidget &box);

/// Stops each command before the control gets it, and writes down what the rules hold then. What
/// the box itself is there for passes.
class Interceptor : public QObject {
  public:
    /// `inRules` gives what the rules hold.
    Interceptor(QWidget &box, std::function<std::string()> inRules);
    ~Interceptor() override;

    /// What the rules held when the first command came; nothing when none came.
    std::optional<std::string> seen() const { return seen_; }

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    bool isForTheBox(const QObject *watched) const;

    QWidget &box_;
    std::function<std::string()> inRules_;
    std::optional<std::string> seen_;
};

} // namespace boulix::testing_support
