// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/fileDialogs.h"

#include "ui/frame/messageBox.h"
#include "ui/widgets/qtText.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QHeaderView>
#include <QTreeView>

namespace boulix::fileDialogs {

namespace {

/// Qt's own dialog takes the kinds of files from here, and knows no French ones.
class FrenchKinds : public QFileIconProvider {
  public:
    QString type(const QFileInfo &info) const override {
        if (info.isRoot())
            return QStringLiteral("Lecteur");
        if (info.isDir())
            return QStringLiteral("Dossier");
        const QString extension = info.suffix();
        return extension.isEmpty() ? QStringLiteral("Fichier")
                                   : QStringLiteral("Fichier %1").arg(extension);
    }
};

/// The patterns of one filter, parted by blanks as Qt wants them.
QString qtPatterns(const QString &patterns) {
    QStringList list = patterns.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (QString &pattern : list) {
        pattern = pattern.trimmed();
        if (pattern == QLatin1String("*.*"))
            pattern = QStringLiteral("*");
    }
    return list.join(QLatin1Char(' '));
}

/// The description without the pattern that it repeats in brackets at its end.
QString bareDescription(const QString &description) {
    const qsizetype bracket = description.lastIndexOf(QLatin1Char('('));
    if (bracket < 0 || !description.endsWith(QLatin1Char(')')))
        return description;
    return description.left(bracket).trimmed();
}

/// A dialog that asks for a name deletes, renames and moves nothing. Only Qt's own can be told so:
/// those of the desktops bring their own context menus.
void forbidChanges(QFileDialog &dialog) {
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setOption(QFileDialog::ReadOnly);
    for (const char *offer : {"qt_rename_action", "qt_delete_action", "qt_new_folder_action"})
        if (auto *action = dialog.findChild<QAction *>(QLatin1String(offer)))
            action->setVisible(false); // off already, and off for good
}

void prepare(QFileDialog &dialog, const FileQuestion &question) {
    dialog.setObjectName(QStringLiteral("comDiag"));
    forbidChanges(dialog);
    dialog.setWindowTitle(toQt(question.title));
    static FrenchKinds kinds;
    dialog.setIconProvider(&kinds);
    dialog.setDirectory(toQt(question.folder));
    dialog.setNameFilters(nameFilters(question.filter));
    // The columns shall be as wide as what they say.
    if (auto *files = dialog.findChild<QTreeView *>(QStringLiteral("treeView"))) {
        dialog.resize(760, 480);
        files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    }
}

QString chosenFile(QFileDialog &dialog) {
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return QDir::toNativeSeparators(dialog.selectedFiles().constFirst());
}

} // namespace

QStringList nameFilters(const std::string &filter) {
    const QStringList parts = toQt(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        filters << QStringLiteral("%1 (%2)").arg(bareDescription(parts[i].trimmed()),
                                                 qtPatterns(parts[i + 1]));
    return filters;
}

QString onlyExtension(const std::string &filter) {
    const QStringList parts = toQt(filter).split(QLatin1Char('|'));
    if (parts.size() != 2)
        return {};
    const QString pattern = parts[1].trimmed();
    const QString extension = pattern.mid(2);
    const bool single = pattern.startsWith(QLatin1String("*.")) &&
                        !extension.contains(QLatin1Char('*')) &&
                        !extension.contains(QLatin1Char(';'));
    return single ? extension : QString();
}

std::string open(QWidget *parent, const FileQuestion &question) {
    QFileDialog dialog(parent);
    prepare(dialog, question);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return fromQt(chosenFile(dialog));
}

std::string save(QWidget *parent, const FileQuestion &question) {
    QFileDialog dialog(parent);
    prepare(dialog, question);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setDefaultSuffix(onlyExtension(question.filter));
    if (!question.name.empty())
        dialog.selectFile(toQt(question.name));
    while (true) {
        const QString file = chosenFile(dialog);
        const QString folder = QFileInfo(file).absolutePath();
        if (file.isEmpty() || QDir(folder).exists())
            return fromQt(file);
        const std::string text =
            "Le dossier " + fromQt(QDir::toNativeSeparators(folder)) + " n'existe pas.";
        runMessageBox(parent, text, Icon::information, question.title);
    }
}

} // namespace boulix::fileDialogs
