// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/support/screenTest.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QMenu>
#include <QMetaEnum>
#include <QMimeData>
#include <QTimer>
#include <QToolButton>
#include <QUrl>
#include <QtTest/QTest>

#include <filesystem>
#include <fstream>
#include <map>

namespace boulix {
namespace {

namespace fs = std::filesystem;
using testing_support::readBytes;
using testing_support::writeBytes;

enum class Asks { toOpen, toSave };

/// A file dialog over a folder of its own that lies in another one of its own: no key leads out of
/// both.
class FileDialogTest : public ScreenTest, public ::testing::WithParamInterface<Asks> {
  protected:
    FileDialogTest() {
        fs::create_directories(folder() + "/anciens");
        writeBytes(precious(), "un jeu");
        writeBytes(folder() + "/autre.lst", "un autre");
        writeBytes(folder() + "/anciens/vieux.lst", "un vieux");
        writeBytes(file("dehors.lst"), "dehors");
        before_ = everything();
    }
    ~FileDialogTest() override { EXPECT_EQ(everything(), before_) << "a file was touched"; }

    std::string folder() const { return file("jeux"); }
    std::string precious() const { return folder() + "/precieux.lst"; }

    /// Every file below the application folder with what is in it; a folder has no content.
    std::map<std::string, std::string> everything() const {
        std::map<std::string, std::string> found;
        for (const auto &entry : fs::recursive_directory_iterator(platform.applicationFolder()))
            found[entry.path().string()] =
                entry.is_directory() ? "a folder" : readBytes(entry.path().string());
        return found;
    }

    std::string ask() const {
        const FileQuestion question{"Fichier jeu Boulix (*.lst)|*.lst", "Jeux", folder()};
        return GetParam() == Asks::toOpen ? desktop->openFile(question)
                                          : desktop->saveFile(question);
    }
    /// The two ways in which the dialog can show a folder.
    static QAbstractItemView &view(QWidget &dialog, const char *name) {
        auto &view = control<QAbstractItemView>(dialog, name);
        const bool details = view.objectName() == QLatin1String("treeView");
        click(control<QToolButton>(dialog, details ? "detailModeButton" : "listModeButton"));
        return view;
    }
    /// Marks the precious file, once the dialog has read the folder.
    QModelIndex markPrecious(QWidget &window, QAbstractItemView &view) const {
        auto &dialog = dynamic_cast<QFileDialog &>(window);
        const auto &model = dynamic_cast<QFileSystemModel &>(*view.model());
        if (dialog.directory().absolutePath().toStdString() != folder())
            dialog.setDirectory(QString::fromStdString(folder()));
        const QModelIndex index = model.index(QString::fromStdString(precious()));
        EXPECT_TRUE(QTest::qWaitFor([&] { return view.visualRect(index).isValid(); }));
        view.setFocus();
        view.setCurrentIndex(index);
        return index;
    }

  private:
    std::map<std::string, std::string> before_;
};

const std::initializer_list<const char *> views = {"listView", "treeView"};

/// The captions of what a context menu offers and can do; the menu is left again.
QStringList offersOf(QAbstractItemView &view, const QPoint &place) {
    QStringList offers;
    bool came = false;
    QTimer::singleShot(0, &view, [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu)
            return;
        came = true;
        for (const QAction *action : menu->actions())
            if (action->isVisible() && !action->isSeparator())
                offers << action->text().remove(QLatin1Char('&'));
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, view.viewport()->mapToGlobal(place));
    QApplication::sendEvent(view.viewport(), &event);
    EXPECT_TRUE(came) << "no context menu";
    return offers;
}

TEST_P(FileDialogTest, TheContextMenuOffersNeitherToDeleteNorToRename) {
    robot.in("comDiag", [this](QWidget &dialog) {
        for (const char *name : views) {
            QAbstractItemView &shown = view(dialog, name);
            const QModelIndex index = markPrecious(dialog, shown);
            const QStringList onlyHidden{QStringLiteral("Afficher les fichiers cachés")};
            EXPECT_EQ(offersOf(shown, shown.visualRect(index).center()), onlyHidden) << name;
            EXPECT_EQ(offersOf(shown, shown.viewport()->rect().bottomRight() - QPoint(2, 2)),
                      onlyHidden)
                << name;
        }
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(ask(), "");
}

TEST_P(FileDialogTest, NoKeyDeletesOrRenames) {
    const auto keys = QMetaEnum::fromType<Qt::Key>();
    robot.in("comDiag", [&](QWidget &dialog) {
        for (const char *name : views) {
            QAbstractItemView &shown = view(dialog, name);
            for (int i = 0; i < keys.keyCount(); ++i) {
                const auto key = static_cast<Qt::Key>(keys.value(i));
                const bool leaves = key == Qt::Key_Escape || key == Qt::Key_Return ||
                                    key == Qt::Key_Enter || key == Qt::Key_Select ||
                                    key == Qt::Key_F1; // for the help
                for (const auto modifier : {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier})
                    if (!leaves) {
                        markPrecious(dialog, shown);
                        // Not keyClick, which knows no letter for some of them and ends the
                        // program.
                        QTest::sendKeyEvent(QTest::Click, &shown, key, QString(), modifier);
                    }
            }
        }
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(ask(), "");
}

TEST_P(FileDialogTest, TheKeyForRenamingOpensNoEditor) {
    for (const char *name : views) {
        robot.in("comDiag", [&](QWidget &dialog) {
            QAbstractItemView &shown = view(dialog, name);
            const QModelIndex index = markPrecious(dialog, shown);
            QTest::keyClick(&shown, Qt::Key_F2);
            EXPECT_FALSE(shown.isPersistentEditorOpen(index));
            EXPECT_EQ(shown.viewport()->findChild<QLineEdit *>(), nullptr);
            QTest::mouseClick(shown.viewport(), Qt::LeftButton, {},
                              shown.visualRect(index).center());
            QTest::qWait(QApplication::doubleClickInterval() + 100);
            QTest::mouseClick(shown.viewport(), Qt::LeftButton, {},
                              shown.visualRect(index).center());
            QTest::qWait(QApplication::doubleClickInterval() + 100);
            EXPECT_EQ(shown.viewport()->findChild<QLineEdit *>(), nullptr);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        EXPECT_EQ(ask(), "");
    }
}

TEST_P(FileDialogTest, NothingCanBeDraggedFromOneFolderIntoAnother) {
    robot.in("comDiag", [this](QWidget &dialog) {
        for (const char *name : views) {
            QAbstractItemView &shown = view(dialog, name);
            const QModelIndex index = markPrecious(dialog, shown);
            QAbstractItemModel &model = *shown.model();
            QMimeData file;
            file.setUrls({QUrl::fromLocalFile(QString::fromStdString(this->file("dehors.lst")))});
            for (const auto action : {Qt::MoveAction, Qt::CopyAction, Qt::LinkAction})
                EXPECT_FALSE(model.dropMimeData(&file, action, -1, -1, index.parent()));
            EXPECT_FALSE(model.flags(index) & Qt::ItemIsEditable);
            EXPECT_FALSE(model.flags(index.parent()) & Qt::ItemIsDropEnabled);
        }
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(ask(), "");
}

TEST_P(FileDialogTest, AFileCanStillBeChosenByItsRow) {
    robot.in("comDiag", [this](QWidget &dialog) {
        QAbstractItemView &shown = view(dialog, "treeView");
        markPrecious(dialog, shown);
        QTest::keyClick(&shown, Qt::Key_Return);
    });
    EXPECT_EQ(ask(), precious());
}

INSTANTIATE_TEST_SUITE_P(Asking, FileDialogTest, ::testing::Values(Asks::toOpen, Asks::toSave),
                         [](const auto &asks) {
                             return std::string(asks.param == Asks::toOpen ? "Opening" : "Saving");
                         });

} // namespace
} // namespace boulix
