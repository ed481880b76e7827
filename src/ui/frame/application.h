// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/widgets/typedText.h"

#include <QApplication>

namespace boulix {

/// The program as Qt sees it: French texts of Qt's own dialogs, the system's date form, the
/// look. Made first, before any window.
class Application : public QApplication {
    Q_OBJECT

  public:
    Application(int &argc, char **argv);

    /// What is typed is taken over before a command runs. A failure that no command has taken
    /// ends here: it is shown, and the program lives on.
    bool notify(QObject *receiver, QEvent *event) override;

    /// The full names of the files that the command line names, behind the switch of the log.
    static QStringList namedFiles();

  private:
    void speakFrench();

    TypedText typedText_;
};

} // namespace boulix
