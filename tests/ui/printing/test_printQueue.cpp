// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Documents on their way to a print system that is slow, refuses or is not there: the tests put an
// `lp` of their own in the place of the system's.

#include "ui/printing/printQueue.h"

#include "support/files.h"
#include "ui/printing/printQueueWindow.h"
#include "ui/support/screenTest.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QtTest/QTest>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace boulix {
namespace {

namespace fs = std::filesystem;
using testing_support::fileExists;
using testing_support::readBytes;
using testing_support::TemporaryFolder;
using testing_support::writeBytes;

/// Writes down each order in `orders`, keeps what it is given as `taken`, and does what the files
/// beside it say: `slow` before it takes a document, `slowly-told` after, `refuses`, `no-release`.
const char *const scriptedLp = R"sh(#!/bin/sh
here=$(dirname "$0")
cd "$here" || exit 2
wait_for() { while [ -e "$1" ]; do sleep 0.02; done; }
for last; do :; done
case "$*" in
*"-H hold"*)
    all="$*"
    echo "lodge ${all%% -- *}" >>orders
    wait_for slow
    if [ -e refuses ]; then
        echo "lp: La file n'accepte pas de documents." >&2
        exit 1
    fi
    cat "$last" >>taken
    echo "l'identifiant de requête est Bureau-7 (1 fichier(s))"
    wait_for slowly-told
    ;;
*)
    echo "$*" >>orders
    if [ -e no-release ]; then
        echo "lp: Le serveur ne répond plus." >&2
        exit 1
    fi
    ;;
esac
)sh";

const char *const scriptedCancel = R"sh(#!/bin/sh
cd "$(dirname "$0")" || exit 2
echo "cancel $*" >>orders
)sh";

class PrintQueueTest : public ScreenTest {
  protected:
    PrintQueueTest() : path_(qgetenv("PATH")) {
        install("lp", scriptedLp);
        install("cancel", scriptedCancel);
        qputenv("PATH", QByteArray::fromStdString(tools_.path()) + ':' + path_);
    }
    ~PrintQueueTest() override {
        for (const char *wish : {"slow", "slowly-told", "refuses", "no-release"})
            does(wish, false); // a script that still waits comes to its end
        qputenv("PATH", path_);
    }

    /// Turns a wish of the script on or off.
    void does(const char *wish, bool on = true) const {
        if (on)
            writeBytes(tool(wish), "");
        else
            fs::remove(tool(wish));
    }
    std::vector<std::string> orders() const {
        std::vector<std::string> lines;
        std::istringstream all(fileExists(tool("orders")) ? readBytes(tool("orders")) : "");
        for (std::string line; std::getline(all, line);)
            lines.push_back(line);
        return lines;
    }
    std::string taken() const { return fileExists(tool("taken")) ? readBytes(tool("taken")) : ""; }

    void add(const char *title, const char *content = "%PDF") {
        auto document = std::make_unique<QTemporaryFile>();
        ASSERT_TRUE(document->open());
        document->write(content);
        document->flush();
        lastFile = document->fileName();
        queue.add({std::move(document),
                   QStringLiteral("Bureau"),
                   QString::fromUtf8(title),
                   {QStringLiteral("-o"), QStringLiteral("sides=one-sided")}});
    }
    bool becomesIdle() {
        return QTest::qWaitFor([this] { return queue.isIdle(); }, patience);
    }
    bool begins(std::size_t count) const {
        return QTest::qWaitFor([&] { return orders().size() >= count; }, patience);
    }
    static QWidget *window() { return visibleWindow(QStringLiteral("printQueueWindow")); }
    static bool windowComes() {
        return QTest::qWaitFor([] { return window() != nullptr; }, patience);
    }
    static std::string info() {
        return control<QLabel>(*window(), "lblPrintInfo").text().toStdString();
    }

    static constexpr int patience = 15'000; // milliseconds
    static inline const std::string lodged = "lodge -d Bureau -t ";
    static inline const std::string options = " -o sides=one-sided -H hold";
    static inline const std::string released = "-i Bureau-7 -H immediate";
    PrintQueue queue;
    QString lastFile;

  private:
    std::string tool(const char *name) const { return tools_.path() + "/" + name; }
    void install(const char *name, const char *script) const {
        writeBytes(tool(name), script);
        fs::permissions(tool(name), fs::perms::owner_all);
    }

    TemporaryFolder tools_;
    QByteArray path_;
};

using Orders = std::vector<std::string>;

TEST_F(PrintQueueTest, ADocumentIsLodgedThenReleasedAndItsFileIsGone) {
    add("boulix - grilles", "un bulletin");
    EXPECT_FALSE(queue.isIdle());
    ASSERT_TRUE(becomesIdle());
    EXPECT_EQ(orders(), (Orders{lodged + "boulix - grilles" + options, released}));
    EXPECT_EQ(taken(), "un bulletin");
    EXPECT_FALSE(QFile::exists(lastFile));
    EXPECT_EQ(window(), nullptr) << "no window for a print system that answers at once";
}

TEST_F(PrintQueueTest, TheProgramLivesWhileThePrintSystemTakesItsTime) {
    does("slow");
    QElapsedTimer clock;
    clock.start();
    add("boulix - grilles");
    EXPECT_LT(clock.elapsed(), 1000) << "nobody waits for it";
    int beats = 0;
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, &heart, [&beats] { ++beats; });
    heart.start(10);
    ASSERT_TRUE(windowComes());
    EXPECT_GT(beats, 5);
    EXPECT_EQ(window()->windowTitle().toStdString(), "Impression en cours...");
    EXPECT_EQ(info(), "Le document « boulix - grilles » est remis à l'imprimante Bureau.");
    EXPECT_FALSE(control<QPushButton>(*window(), "cmdStay").isVisible());
    does("slow", false);
    ASSERT_TRUE(becomesIdle());
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(orders().back(), released);
}

TEST_F(PrintQueueTest, ADocumentThatIsGivenUpNeverComesOut) {
    does("slow");
    add("boulix - grilles");
    ASSERT_TRUE(windowComes());
    click(control<QPushButton>(*window(), "cmdGiveUp"));
    ASSERT_TRUE(becomesIdle());
    EXPECT_EQ(window(), nullptr);
    EXPECT_FALSE(QFile::exists(lastFile));
    does("slow", false);
    QTest::qWait(300);
    EXPECT_EQ(orders(), (Orders{lodged + "boulix - grilles" + options}));
    EXPECT_EQ(taken(), "");
}

TEST_F(PrintQueueTest, NorDoesOneThatThePrintSystemHasAlreadyTaken) {
    does("slowly-told");
    add("boulix - grilles");
    ASSERT_TRUE(windowComes());
    ASSERT_TRUE(QTest::qWaitFor([this] { return !taken().empty(); }, patience));
    QTest::qWait(100);
    click(control<QPushButton>(*window(), "cmdGiveUp"));
    ASSERT_TRUE(becomesIdle());
    ASSERT_TRUE(begins(2));
    EXPECT_EQ(orders(), (Orders{lodged + "boulix - grilles" + options, "cancel Bureau-7"}));
}

TEST_F(PrintQueueTest, ARefusalIsShownWhenItComesInThePrintSystemsWords) {
    does("refuses");
    add("boulix - grilles");
    robot.box("L'imprimante n'accepte pas le document « boulix - grilles ».\n"
              "lp: La file n'accepte pas de documents.",
              "Boulix Erreur système N° 482", QMessageBox::Critical);
    robot.finish();
    ASSERT_TRUE(becomesIdle());
    EXPECT_EQ(orders().size(), 1U);
}

TEST_F(PrintQueueTest, WithoutAnLpTheUserIsTold) {
    const TemporaryFolder nothing;
    qputenv("PATH", QByteArray::fromStdString(nothing.path()));
    add("boulix - grilles");
    robot.in("messageBox", [](QWidget &box) {
        const auto &shown = dynamic_cast<QMessageBox &>(box);
        EXPECT_EQ(shown.text().toStdString().rfind(
                      "L'imprimante n'accepte pas le document « boulix - grilles ».\nlp: ", 0),
                  0U);
        EXPECT_EQ(shown.windowTitle().toStdString(), "Boulix Erreur système N° 482");
        QTest::keyClick(&box, Qt::Key_Return);
    });
    robot.finish();
    EXPECT_TRUE(becomesIdle());
}

TEST_F(PrintQueueTest, ADocumentThatCanNotBeReleasedIsSaidToBeHeld) {
    does("no-release");
    add("boulix - grilles");
    robot.box("L'imprimante n'accepte pas le document « boulix - grilles ».\n"
              "Il reste retenu dans la file d'impression (Bureau-7).\n"
              "lp: Le serveur ne répond plus.",
              "Boulix Erreur système N° 482", QMessageBox::Critical);
    robot.finish();
    EXPECT_TRUE(becomesIdle());
}

TEST_F(PrintQueueTest, DocumentsGoOneAfterTheOtherInTheirOrder) {
    does("slow");
    add("boulix - un", "un;");
    add("boulix - deux", "deux;");
    add("boulix - trois", "trois;");
    ASSERT_TRUE(windowComes());
    EXPECT_EQ(info(), "Le document « boulix - un » est remis à l'imprimante Bureau.\n"
                      "2 autres documents attendent.");
    EXPECT_EQ(orders().size(), 1U) << "the second waits for the first";
    does("slow", false);
    ASSERT_TRUE(becomesIdle());
    EXPECT_EQ(orders(), (Orders{lodged + "boulix - un" + options, released,
                                lodged + "boulix - deux" + options, released,
                                lodged + "boulix - trois" + options, released}));
    EXPECT_EQ(taken(), "un;deux;trois;");
}

TEST_F(PrintQueueTest, GivingUpOneDocumentLetsTheNextGo) {
    does("slow");
    add("boulix - un", "un;");
    add("boulix - deux", "deux;");
    ASSERT_TRUE(windowComes());
    EXPECT_EQ(info(), "Le document « boulix - un » est remis à l'imprimante Bureau.\n"
                      "Un autre document attend.");
    click(control<QPushButton>(*window(), "cmdGiveUp"));
    ASSERT_TRUE(begins(2));
    EXPECT_EQ(info(), "Le document « boulix - deux » est remis à l'imprimante Bureau.");
    does("slow", false);
    ASSERT_TRUE(becomesIdle());
    EXPECT_EQ(taken(), "deux;");
}

TEST_F(PrintQueueTest, ClosingTheWindowOnlyHidesIt) {
    does("slow");
    add("boulix - grilles");
    ASSERT_TRUE(windowComes());
    QTest::keyClick(window(), Qt::Key_Escape);
    EXPECT_EQ(window(), nullptr);
    does("slow", false);
    ASSERT_TRUE(becomesIdle());
    EXPECT_EQ(orders().back(), released);
}

TEST_F(PrintQueueTest, TheEndOfTheProgramWaitsForTheDocument) {
    EXPECT_TRUE(queue.finish()) << "nothing to wait for";
    does("slow");
    add("boulix - grilles");
    robot.in("printQueueWindow", [this](QWidget &shown) {
        EXPECT_TRUE(shown.isModal());
        EXPECT_EQ(info(), "Le document « boulix - grilles » est remis à l'imprimante Bureau.\n"
                          "Le programme se fermera ensuite.");
        does("slow", false);
    });
    EXPECT_TRUE(queue.finish());
    EXPECT_TRUE(queue.isIdle());
    EXPECT_EQ(orders().back(), released);
}

TEST_F(PrintQueueTest, TheUserCanStayAndTheDocumentGoesOn) {
    for (const bool byButton : {true, false}) {
        does("slow");
        add("boulix - grilles");
        robot.in("printQueueWindow", [byButton](QWidget &shown) {
            if (byButton)
                click(control<QPushButton>(shown, "cmdStay"));
            else
                shown.close();
        });
        EXPECT_FALSE(queue.finish());
        EXPECT_FALSE(queue.isIdle());
        EXPECT_FALSE(window()->isModal());
        does("slow", false);
        ASSERT_TRUE(becomesIdle());
        EXPECT_EQ(orders().back(), released);
    }
}

TEST_F(PrintQueueTest, ARefusalKeepsTheProgramAndAGivenUpDocumentDoesNot) {
    does("refuses");
    add("boulix - grilles");
    robot.box("L'imprimante n'accepte pas le document « boulix - grilles ».\n"
              "lp: La file n'accepte pas de documents.",
              "Boulix Erreur système N° 482", QMessageBox::Critical);
    EXPECT_FALSE(queue.finish());
    does("refuses", false);
    does("slow");
    add("boulix - grilles");
    robot.clickIn("printQueueWindow", "cmdGiveUp");
    EXPECT_TRUE(queue.finish());
}

} // namespace
} // namespace boulix
