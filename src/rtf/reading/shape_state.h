// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/pictures/picture.h"
#include "rtf/reading/group_state.h"

#include <QByteArrayView>
#include <QString>

#include <optional>
#include <vector>

namespace orvalis::rtf {

inline constexpr int NoPlace = -1;

/// A shape whose texts and pictures have paragraphs of their own.
struct TextBox {
    int last = NothingKept;        ///< that has text
    size_t shapeDepth = 0;         ///< of the groups, where the shape stands
    std::vector<qsizetype> places; ///< in the bytes: of what the shape shows
    int picturePlace = NoPlace;    ///< of the picture that comes
    GroupState aroundPicture;
    size_t depth = 0;    ///< of the groups, where a text of it stands
    int place = 0;       ///< of that text
    bool isOpen = false; ///< and some of it has come
    bool hasParagraph = false;
    bool begins = false;       ///< and ends what stands ahead of it in the paragraph
    bool isBehindText = false; ///< of the paragraph that it stands in
    bool hasEnded = false;     ///< and that paragraph has not
    QString anchorsAhead; ///< what comes with that paragraph, where the box is ahead of its text
    bool pageBreakAhead = false; ///< the same
};

/// Text of a shape in a cell. A line of the document holds all cells of a row, so that it gets
/// no paragraphs of its own: it is a run that shows the shape, if that brings text and pictures
/// alone.
struct LineBox {
    struct Piece {
        QString text;
        CharFormat look;
        QString anchor;                      ///< in place of text
        std::optional<Picture> picture = {}; ///< the same
    };

    QByteArrayView word; ///< of the shape's group
    QByteArrayView content;
    QString kept;  ///< all of it, in the look of what is around it
    QString frame; ///< the same of a shape with one text, without that
    size_t depth = 0;
    bool isOpen = false;      ///< and some of it has come
    bool inParagraph = false; ///< which something was in ahead of it
    int linesDue = 0;         ///< that have ended since the last text
    std::vector<Piece> pieces;
};

} // namespace orvalis::rtf
