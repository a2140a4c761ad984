// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "skin/recorder/svg_recorder.h"

#include <QDataStream>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace orvalis::skin::recorder {

namespace {

// Qt's renderer passes over what it does not know, and text would depend on the fonts of the
// machine: a drawing that needs either would look different from what its author saw. A <rect> is
// filled by another routine than its record, which leaves other pixels: draw a path instead.
void refuseWhatDoesNotRecord(const QString& name, const QByteArray& svg) {
    static const QStringList known{
        u"svg"_s,  u"title"_s, u"defs"_s,     u"linearGradient"_s, u"radialGradient"_s,
        u"stop"_s, u"g"_s,     u"path"_s,     u"circle"_s,         u"ellipse"_s,
        u"line"_s, u"use"_s,   u"polyline"_s, u"polygon"_s,
    };
    QXmlStreamReader xml(svg);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && !known.contains(xml.name()))
            throw RecorderError(u"%1.svg:%2: <%3> does not record"_s.arg(name)
                                    .arg(xml.lineNumber())
                                    .arg(xml.name()));
    }
    if (xml.hasError())
        throw RecorderError(
            u"%1.svg:%2: %3"_s.arg(name).arg(xml.lineNumber()).arg(xml.errorString()));
}

} // namespace

SvgRecorder::SvgRecorder(QString folder, RecipeBook book)
    : m_folder(std::move(folder))
    , m_book(std::move(book)) {}

QByteArray SvgRecorder::drawing(const Layer& layer) const {
    QFile file(m_folder + u'/' + layer.svg + u".svg"_s);
    if (!file.open(QIODevice::ReadOnly))
        throw RecorderError(u"%1: %2"_s.arg(file.fileName(), file.errorString()));
    QByteArray svg = file.readAll();
    refuseWhatDoesNotRecord(layer.svg, svg);
    for (const auto& [from, to] : m_book.tints.value(layer.tint))
        svg.replace(from, to);
    return svg;
}

void SvgRecorder::draw(QPainter& painter, const Recipe& recipe) const {
    for (const Recipe& other : m_book.recipes)
        if (!recipe.base.isEmpty() && other.name == recipe.base)
            drawLayers(painter, other);
    drawLayers(painter, recipe);
}

void SvgRecorder::drawLayers(QPainter& painter, const Recipe& recipe) const {
    for (const Layer& layer : recipe.layers) {
        QSvgRenderer renderer;
        if (!renderer.load(drawing(layer)))
            throw RecorderError(layer.svg + u".svg: not an SVG drawing"_s);
        renderer.render(&painter, layer.place);
    }
}

QPicture SvgRecorder::record(const Recipe& recipe) const {
    QPicture picture;
    QPainter painter(&picture);
    drawLayers(painter, recipe);
    painter.end();
    return picture;
}

QByteArray SvgRecorder::recordedFile(const Recipe& recipe) const {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << recipe.size << recipe.base << record(recipe);
    return bytes;
}

} // namespace orvalis::skin::recorder
