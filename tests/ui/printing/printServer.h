// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/files.h"

#include <QProcess>
#include <QStringList>

#include <optional>
#include <string>

namespace boulix::testing_support {

/// What a command line tool answered; a tool that cannot be started or that complains throws
/// std::runtime_error with its words.
std::string outputOf(const QString &tool, const QStringList &arguments);

/// A print server of the tests' own: its configuration, spool and socket lie in a folder below
/// the working one, nothing of the machine's print system is touched, and it ends with this
/// object. It has two queues without paper: "Bureau" keeps documents as they come in, "Salon"
/// sends them through the filters of a printer with margins into a file, and is the default.
class PrintServer {
  public:
    PrintServer();
    ~PrintServer();
    PrintServer(const PrintServer &) = delete;
    PrintServer &operator=(const PrintServer &) = delete;

    /// Why there is no server, empty when it runs.
    const std::string &problem() const { return problem_; }

    /// Makes the two queues anew, or takes all queues away.
    void makeQueues();
    void removeQueues();
    void addRawQueue(const std::string &name);
    void removeQueue(const std::string &name);

    /// How many documents the server was given so far.
    int documents() const;
    /// The last document as it was handed in, a PDF, and the order that came with it.
    std::string lastDocument() const;
    std::string lastOrder() const;
    /// The last document as it came out of "Salon", once it is out.
    std::string lastOutput() const;
    /// Whether a document waits in the queue.
    bool waits(const std::string &queue) const;

  private:
    void prepareFolder();
    void start();
    std::string spoolFile(char kind, int number, const std::string &suffix) const;

    std::string folder_;
    std::optional<TemporaryFolder> elsewhere_;
    std::string problem_;
    QProcess server_;
};

} // namespace boulix::testing_support
