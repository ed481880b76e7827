// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "printedPages.h"

#include "printServer.h"
#include <QRegularExpression>
#include <QString>
#include <QTransform>
#include <QXmlStreamReader>

#include <map>
#include <stdexcept>

namespace boulix::testing_support {

namespace {

constexpr double millimetresPerPoint = 25.4 / 72;
constexpr int zoom = 3; // pdftohtml tells sizes as whole numbers: in thirds of a point

double number(const QXmlStreamReader &xml, const char *attribute) {
    return xml.attributes().value(QLatin1String(attribute)).toDouble();
}

QString qt(const std::string &text) {
    return QString::fromStdString(text);
}

/// What parts two numbers in a picture file.
const QRegularExpression &separator() {
    static const QRegularExpression expression(QStringLiteral("[ ,]+"));
    return expression;
}

QString toolOutput(const char *tool, const QStringList &arguments) {
    return qt(outputOf(QLatin1String(tool), arguments));
}

/// A word of pdftotext; the element is read to its end.
PrintedWord wordAt(QXmlStreamReader &xml, int page) {
    PrintedWord word{page,
                     {},
                     number(xml, "xMin") * millimetresPerPoint,
                     number(xml, "yMin") * millimetresPerPoint,
                     number(xml, "xMax") * millimetresPerPoint,
                     number(xml, "yMax") * millimetresPerPoint};
    word.text = xml.readElementText().toStdString();
    return word;
}

/// The turn of the plane in the attributes of a drawn element.
QTransform transformOf(const QString &attributes) {
    static const QRegularExpression matrix(QStringLiteral("matrix\\(([^)]*)\\)"));
    const auto found = matrix.match(attributes);
    if (!found.hasMatch())
        return {};
    const QStringList v = found.captured(1).split(separator());
    return {v.at(0).toDouble(), v.at(1).toDouble(), v.at(2).toDouble(),
            v.at(3).toDouble(), v.at(4).toDouble(), v.at(5).toDouble()};
}

/// The corners of a path, told as "M x y L x y ... Z" in points.
std::vector<PrintedPath::Point> cornersOf(const QString &attributes) {
    static const QRegularExpression data(QStringLiteral(" d=\"([^\"]*)\""));
    const QTransform turn = transformOf(attributes);
    const QStringList steps =
        data.match(attributes).captured(1).split(separator(), Qt::SkipEmptyParts);
    std::vector<PrintedPath::Point> corners;
    for (qsizetype i = 0; i < steps.size(); i += 3) {
        if (steps.at(i) == QLatin1String("Z")) {
            corners.push_back(corners.at(0));
            break;
        }
        if (steps.at(i) != QLatin1String("M") && steps.at(i) != QLatin1String("L"))
            throw std::runtime_error("a path with " + steps.at(i).toStdString());
        const QPointF point =
            turn.map(QPointF(steps.at(i + 1).toDouble(), steps.at(i + 2).toDouble()));
        corners.push_back({point.x() * millimetresPerPoint, point.y() * millimetresPerPoint});
    }
    return corners;
}

} // namespace

PrintedPages::PrintedPages(const std::string &pdf) {
    writeBytes(file(), pdf);
    readWords();
    readLines();
}

void PrintedPages::readWords() {
    QXmlStreamReader xml(
        toolOutput("pdftotext", {QStringLiteral("-bbox"), qt(file()), QStringLiteral("-")}));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("page")) {
            ++count_;
            sheetWidth_ = number(xml, "width") * millimetresPerPoint;
            sheetHeight_ = number(xml, "height") * millimetresPerPoint;
        }
        if (xml.name() == QLatin1String("word"))
            words_.push_back(wordAt(xml, count_));
    }
    if (xml.hasError())
        throw std::runtime_error("pdftotext: " + xml.errorString().toStdString());
}

void PrintedPages::readLines() {
    QXmlStreamReader xml(toolOutput("pdftohtml", {QStringLiteral("-xml"), QStringLiteral("-stdout"),
                                                  QStringLiteral("-i"), QStringLiteral("-zoom"),
                                                  QString::number(zoom), qt(file())}));
    std::map<int, double> sizes;
    int page = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("page"))
            page = static_cast<int>(number(xml, "number"));
        if (xml.name() == QLatin1String("fontspec"))
            sizes[static_cast<int>(number(xml, "id"))] = number(xml, "size") / zoom;
        if (xml.name() == QLatin1String("text")) {
            const double points = sizes.at(static_cast<int>(number(xml, "font")));
            lines_.push_back({page, xml.readElementText().toStdString(), points});
        }
    }
    if (xml.hasError())
        throw std::runtime_error("pdftohtml: " + xml.errorString().toStdString());
}

std::vector<PrintedPath> PrintedPages::paths(int page) const {
    const QString number = QString::number(page);
    const QString svg =
        toolOutput("pdftocairo", {QStringLiteral("-svg"), QStringLiteral("-f"), number,
                                  QStringLiteral("-l"), number, qt(file()), QStringLiteral("-")});
    static const QRegularExpression stroked(
        QStringLiteral("<path ([^>]*stroke-width[=:]\"?([0-9.]+)[^>]*)/>"));
    std::vector<PrintedPath> paths;
    for (auto found = stroked.globalMatch(svg); found.hasNext();) {
        const auto path = found.next();
        const QString attributes = path.captured(1);
        const double width = path.captured(2).toDouble() * transformOf(attributes).m11();
        paths.push_back({cornersOf(attributes), width * millimetresPerPoint});
    }
    return paths;
}

} // namespace boulix::testing_support
