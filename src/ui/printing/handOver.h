// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryFile>
#include <QTimer>

#include <memory>

namespace boulix {

/// A document that is ready for the print system.
struct PrintOrder {
    std::unique_ptr<QTemporaryFile> file;
    QString printer; ///< the device name of the printer
    QString title;   ///< what the print queue shows
    QStringList options;
};

/// One document on its way to the print system's `lp`, beside the event loop. It goes in two
/// steps: first it is lodged, held back by the print system; then it is released. So a document
/// that is given up while it is lodged never comes out, however far it got.
class HandOver : public QObject {
    Q_OBJECT

  public:
    explicit HandOver(PrintOrder order, QObject *parent = nullptr);
    ~HandOver() override;

    const QString &title() const { return order_.title; }
    const QString &printer() const { return order_.printer; }
    /// Whether the document can still be given up: not once it is being released.
    bool canBeGivenUp() const { return lodged_.isEmpty(); }

    void start();
    /// Gives the document up; `ended` follows. Nothing where it is too late.
    void giveUp();

  signals:
    /// The document is being released and can not be given up any more.
    void lodged();
    /// The print system has the document, or it was given up: no complaint. Or it was refused, in
    /// the words of the print system.
    void ended(const QString &complaint);

  private:
    void run(const QStringList &arguments);
    void finished();
    void lodgingFinished();
    void end(const QString &complaint);
    bool succeeded() const;
    QString complaint();
    QString jobIn(const QString &answer) const;

    PrintOrder order_;
    QProcess lp_;
    QTimer patience_;
    QString lodged_; ///< the job's name in the print system, once it is lodged
    bool givenUp_ = false;
    bool ended_ = false;
};

} // namespace boulix
