// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace boulix {

class PrintQueue;

/// The window of a print system that takes its time: it names the document under way and offers to
/// give it up. Closing it only hides it until the next document that takes long. While the end of
/// the program waits for the documents it blocks the others, and closing it keeps the program.
class PrintQueueWindow : public QWidget {
    Q_OBJECT

  public:
    explicit PrintQueueWindow(PrintQueue &queue);

    /// Begins or ends the waiting of the program's end.
    void waitForEnd(bool waits);

  signals:
    /// The user does not want to end the program after all.
    void staying();

  protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

  private:
    void refresh();

    PrintQueue &queue_;
    QLabel *lblInfo;
    QPushButton *cmdGiveUp;
    QPushButton *cmdStay;
    bool waitsForEnd_ = false;
};

} // namespace boulix
