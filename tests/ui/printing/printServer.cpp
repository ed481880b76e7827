// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "printServer.h"

#include "core/text.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QStandardPaths>
#include <QString>
#include <QThread>

#include <filesystem>
#include <functional>
#include <stdexcept>

namespace boulix::testing_support {

namespace {

namespace fs = std::filesystem;

constexpr int patience = 20000; // milliseconds
constexpr std::size_t longestSocketName = 100;

QString qt(const std::string &text) {
    return QString::fromStdString(text);
}

/// Whether everybody can reach the folder: the filters run as a user without rights.
bool openToAll(const fs::path &folder) {
    for (fs::path at = folder;; at = at.parent_path()) {
        if ((fs::status(at).permissions() & fs::perms::others_exec) == fs::perms::none)
            return false;
        if (at == at.root_path())
            return true;
    }
}

const char *const configuration = R"(LogLevel warn
MaxLogSize 0
Listen %1/cups.sock
Browsing Off
DefaultAuthType None
WebInterface No
DirtyCleanInterval 0
PreserveJobFiles Yes
PreserveJobHistory Yes
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
)";

const char *const fileConfiguration = R"(User lp
Group lp
SystemGroup root
FileDevice Yes
RequestRoot %1/spool
CacheDir %1/cache
StateDir %1/state
ServerRoot %1
TempDir %1/tmp
AccessLog %1/log/access
ErrorLog %1/log/error
PageLog %1/log/page
ServerKeychain %1/ssl
)";

/// A printer for A4 that takes PDF and can not reach the outer 10 mm of its sheet.
const char *const printerDescription = R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "SALON.PPD"
*Manufacturer: "Boulix"
*Product: "(Salon)"
*ModelName: "Salon"
*ShortNickName: "Salon"
*NickName: "Salon"
*PSVersion: "(3010) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*cupsFilter2: "application/vnd.cups-pdf application/pdf 0 -"
*OpenUI *PageSize: PickOne
*DefaultPageSize: A4
*PageSize A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*DefaultPageRegion: A4
*PageRegion A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4: "28.3 28.3 566.7 813.7"
*DefaultPaperDimension: A4
*PaperDimension A4: "595 842"
)PPD";

/// Waits for what the server does behind the back of its clients.
void waitUntil(const std::function<bool()> &done, const std::string &trouble) {
    for (const QDeadlineTimer deadline(patience); !done(); QThread::msleep(20))
        if (deadline.hasExpired())
            throw std::runtime_error(trouble);
}

} // namespace

std::string outputOf(const QString &tool, const QStringList &arguments) {
    QProcess process;
    process.start(tool, arguments);
    const bool finished = process.waitForFinished(patience);
    const std::string words = process.readAllStandardError().toStdString();
    if (!finished || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        throw std::runtime_error(tool.toStdString() + ": " +
                                 (finished ? words : process.errorString().toStdString()));
    return process.readAllStandardOutput().toStdString();
}

PrintServer::PrintServer() {
    try {
        prepareFolder();
        start();
        makeQueues();
    } catch (const std::exception &reason) {
        problem_ = std::string("no print server here: ") + reason.what();
    }
}

PrintServer::~PrintServer() {
    server_.terminate();
    if (server_.state() != QProcess::NotRunning && !server_.waitForFinished(patience))
        server_.kill();
}

void PrintServer::prepareFolder() {
    // Beside the test in the build folder, from wherever it was started.
    const fs::path wanted = fs::read_symlink("/proc/self/exe").parent_path() / "print-server";
    fs::remove_all(wanted);
    if (wanted.string().size() < longestSocketName && openToAll(wanted.parent_path())) {
        folder_ = wanted.string();
    } else {
        elsewhere_.emplace();
        folder_ = elsewhere_->path();
        fs::permissions(folder_, fs::perms(0755));
    }
    for (const char *name : {"spool", "cache", "state", "log", "ssl", "tmp", "ppd"})
        fs::create_directories(fs::path(folder_) / name);
    writeBytes(folder_ + "/cupsd.conf",
               QString::fromUtf8(configuration).arg(qt(folder_)).toStdString());
    writeBytes(folder_ + "/cups-files.conf",
               QString::fromUtf8(fileConfiguration).arg(qt(folder_)).toStdString());
    writeBytes(folder_ + "/salon.ppd", printerDescription);
}

void PrintServer::start() {
    // Before the first call into the print system: it looks at both only once.
    qputenv("CUPS_SERVER", QFile::encodeName(qt(folder_ + "/cups.sock")));
    qputenv("HOME", QFile::encodeName(qt(folder_)));
    const QString program =
        QStandardPaths::findExecutable(QStringLiteral("cupsd"), {QStringLiteral("/usr/sbin")});
    if (program.isEmpty())
        throw std::runtime_error("cupsd is not installed");
    server_.start(program, {QStringLiteral("-f"), QStringLiteral("-c"), qt(folder_ + "/cupsd.conf"),
                            QStringLiteral("-s"), qt(folder_ + "/cups-files.conf")});
    const QDeadlineTimer deadline(patience);
    while (!server_.waitForFinished(50)) {
        if (fs::exists(folder_ + "/cups.sock") && fs::exists(folder_ + "/state/certs"))
            return;
        if (deadline.hasExpired())
            throw std::runtime_error("cupsd does not open its socket");
    }
    throw std::runtime_error("cupsd gives up: " +
                             server_.readAllStandardError().trimmed().toStdString());
}

void PrintServer::makeQueues() {
    addRawQueue("Bureau");
    outputOf(QStringLiteral("lpadmin"),
             {QStringLiteral("-p"), QStringLiteral("Salon"), QStringLiteral("-E"),
              QStringLiteral("-v"), qt("file:" + folder_ + "/salon.pdf"), QStringLiteral("-P"),
              qt(folder_ + "/salon.ppd")});
    outputOf(QStringLiteral("lpadmin"), {QStringLiteral("-d"), QStringLiteral("Salon")});
}

void PrintServer::removeQueues() {
    removeQueue("Bureau");
    removeQueue("Salon");
}

void PrintServer::addRawQueue(const std::string &name) {
    outputOf(QStringLiteral("lpadmin"),
             {QStringLiteral("-p"), qt(name), QStringLiteral("-E"), QStringLiteral("-v"),
              QStringLiteral("file:/dev/null"), QStringLiteral("-m"), QStringLiteral("raw")});
}

void PrintServer::removeQueue(const std::string &name) {
    outputOf(QStringLiteral("lpadmin"), {QStringLiteral("-x"), qt(name)});
}

int PrintServer::documents() const {
    int count = 0;
    while (fs::exists(spoolFile('d', count + 1, "-001")))
        ++count;
    return count;
}

std::string PrintServer::lastDocument() const {
    return readBytes(spoolFile('d', documents(), "-001"));
}

std::string PrintServer::lastOrder() const {
    const std::string order = spoolFile('c', documents(), "");
    waitUntil([&order] { return fs::exists(order); }, "the server keeps the order to itself");
    return readBytes(order);
}

std::string PrintServer::lastOutput() const {
    waitUntil([this] { return !waits("Salon"); }, "the document does not come out of the queue");
    return readBytes(folder_ + "/salon.pdf");
}

bool PrintServer::waits(const std::string &queue) const {
    return !outputOf(QStringLiteral("lpstat"), {QStringLiteral("-o"), qt(queue)}).empty();
}

std::string PrintServer::spoolFile(char kind, int number, const std::string &suffix) const {
    return folder_ + "/spool/" + kind + zeroPadded(number, 5) + suffix;
}

} // namespace boulix::testing_support
