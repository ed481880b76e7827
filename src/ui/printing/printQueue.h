// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/printing/handOver.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <deque>
#include <memory>

namespace boulix {

class PrintQueueWindow;

/// The documents on their way to the print system, one after the other in the order in which they
/// were printed. The program goes on meanwhile; where it takes long, a window shows the document
/// and offers to give it up. A refusal is shown when it comes.
class PrintQueue : public QObject {
    Q_OBJECT

  public:
    PrintQueue();
    ~PrintQueue() override;

    void add(PrintOrder order);
    /// Whether every document is out of the house, or was refused and told, or given up.
    bool isIdle() const { return !current_ && waiting_.empty() && refusals_ == 0; }

    /// For the end of the program: waits, with the window up, until the queue is idle. False when
    /// the program must not end: a document was refused meanwhile, or the user wants to stay.
    bool finish();

    /// What the window shows: the document under way and how many wait behind it.
    const HandOver *current() const { return current_.get(); }
    std::size_t waiting() const { return waiting_.size(); }
    void giveUpCurrent();

  signals:
    void changed();
    void becameIdle();

  private:
    void startNext();
    void currentEnded(const QString &complaint);
    void tellRefusal(const QString &title, const QString &complaint);
    void tellChange();

    std::deque<PrintOrder> waiting_;
    std::unique_ptr<HandOver> current_;
    int refusals_ = 0; ///< that are being shown
    bool refused_ = false;
    QTimer slow_;
    std::unique_ptr<PrintQueueWindow> window_;
};

} // namespace boulix
