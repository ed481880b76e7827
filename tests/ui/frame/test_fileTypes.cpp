// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the desktops are told of the files that Boulix opens.

#include "support/locations.h"
#include "workbench/fileKind.h"

#include <QFile>
#include <QMap>
#include <QTextStream>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <filesystem>

namespace boulix {
namespace {

QByteArray packaged(const char *name) {
    QFile file(testing_support::checkoutFolder() / "packaging" / name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// The pattern of each type.
QMap<QString, QString> toldTypes() {
    QXmlStreamReader xml(packaged("boulix-types.xml"));
    QMap<QString, QString> types;
    QString type;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("mime-type"))
            type = xml.attributes().value(QLatin1String("type")).toString();
        else if (xml.name() == QLatin1String("glob"))
            types[type] += xml.attributes().value(QLatin1String("pattern")).toString();
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return types;
}

TEST(FileTypes, EachKindOfDataFileHasItsType) {
    QStringList patterns = toldTypes().values();
    patterns.sort();
    EXPECT_EQ(patterns, (QStringList{QStringLiteral("*.elm"), QStringLiteral("*.gam"),
                                     QStringLiteral("*.lst"), QStringLiteral("*.pro"),
                                     QStringLiteral("*.rap")}));
    for (const QString &pattern : patterns)
        EXPECT_NE(fileKind(pattern.toStdString()), FileKind::unknown) << pattern.toStdString();
}

TEST(FileTypes, TheMenuEntryTakesFilesOfAllTypes) {
    const QList<QByteArray> lines = packaged("boulix.desktop.in").split('\n');
    QString types;
    bool takesFiles = false;
    for (const QByteArray &line : lines) {
        if (line.startsWith("MimeType="))
            types = QString::fromUtf8(line.mid(9));
        takesFiles = takesFiles || (line.startsWith("Exec=") && line.endsWith(" %F"));
    }
    EXPECT_TRUE(takesFiles);
    EXPECT_EQ(types.split(QLatin1Char(';'), Qt::SkipEmptyParts), QStringList(toldTypes().keys()))
        << "both in the order of the alphabet";
}

} // namespace
} // namespace boulix
