// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QUrl>
#include <QWidget>

#include <cstdint>
#include <optional>
#include <string>

class QTextBrowser;

namespace boulix {

/// The program's own help window: it shows the pages of the folder "help" beside the help file,
/// which begin with "index.html".
class HelpWindow : public QWidget {
    Q_OBJECT

  public:
    explicit HelpWindow(QWidget *parent = nullptr);

    /// The page that `target` ("file" or "file>window") and `context` stand for: "index.html",
    /// or the page named after the number of the context.
    static QString pageFor(const std::string &target, std::optional<std::int32_t> context);
    /// Shows the page `file`; the links in it lead on, and the contents are the "index.html"
    /// beside it.
    void showPage(const QString &file);

  protected:
    /// Escape closes the window.
    void keyPressEvent(QKeyEvent *event) override;

  private:
    void makeToolbar();

    QTextBrowser *browser_;
    QUrl contents_;
};

} // namespace boulix
