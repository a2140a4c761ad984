// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QRectF>
#include <QSize>
#include <QString>

#include <stdexcept>
#include <utility>

namespace orvalis::skin::recorder {

/// What is wrong with the list of pictures or one of the drawings; the words are for the build's
/// log.
class RecorderError : public std::runtime_error {
public:
    explicit RecorderError(const QString& what)
        : std::runtime_error(what.toStdString()) {}
};

/// One drawing of a picture: which SVG, in which tint, and where it stands in the picture.
struct Layer {
    QString svg;
    QString tint;
    QRectF place;
};

/// How one picture is put together: its name, its own size in logical pixels, the picture that it
/// lies on (of the same size; often none), its layers from the back to the front.
struct Recipe {
    QString name;
    QSize size;
    QString base;
    QList<Layer> layers;
};

/// The colours that a tint exchanges, as they stand in the SVG text ("#1F5E6B" for "#FFFFFF").
using Tint = QList<std::pair<QByteArray, QByteArray>>;

/// The list of pictures: every recipe, and the tints that their layers name.
struct RecipeBook {
    QList<Recipe> recipes;
    QHash<QString, Tint> tints;
};

/// Reads the list of pictures. Throws RecorderError, naming the line, for a line that is neither a
/// tint nor a recipe, a name given twice, an empty size, a tint that stands nowhere, or a base that
/// does not stand above or has another size.
RecipeBook readRecipes(const QString& text);

} // namespace orvalis::skin::recorder
