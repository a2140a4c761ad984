// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "skin/recorder/recipe.h"

#include <QPicture>

class QPainter;

namespace orvalis::skin::recorder {

/// Draws the SVG files of one folder by the recipes of a book, and records what it drew.
class SvgRecorder {
public:
    SvgRecorder(QString folder, RecipeBook book);

    const QList<Recipe>& recipes() const { return m_book.recipes; }

    /// Draws the whole picture in logical pixels, its upper left corner at the painter's origin.
    /// Throws RecorderError where a drawing is missing, is not SVG, or uses what does not record.
    void draw(QPainter& painter, const Recipe& recipe) const;
    /// The picture without its base, as a record that replays without Qt Svg.
    QPicture record(const Recipe& recipe) const;
    /// What the program reads of a picture: its size (a QPicture keeps only the bounds of what was
    /// drawn), the name of its base, its record.
    QByteArray recordedFile(const Recipe& recipe) const;

private:
    void drawLayers(QPainter& painter, const Recipe& recipe) const;
    QByteArray drawing(const Layer& layer) const;

    QString m_folder;
    RecipeBook m_book;
};

} // namespace orvalis::skin::recorder
