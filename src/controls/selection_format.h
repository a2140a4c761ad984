// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/format_readers.h"

#include <QString>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextCursor>

#include <functional>
#include <optional>

namespace orvalis {

/// Reads and writes the format of a cursor's selection, or of the cursor itself and what is typed
/// there when it selects nothing.

/// The format that plain text takes which replaces the selection: that of its first character
/// without what makes it a picture or a link.
QTextCharFormat formatAtStart(const QTextCursor& selection);

/// A footnote, or its like, that is anchored to the last selected character, as a format to merge:
/// text that takes the place of the selection has it too. Empty where there is none.
QTextCharFormat anchorsAtEnd(const QTextCursor& selection);

/// The format of a paragraph that goes on behind one of this format: it begins no page again.
QTextBlockFormat followingParagraph(QTextBlockFormat format);
/// The format of the paragraph that the end of one at the cursor makes: as above, but behind the
/// last line of a table's row it is no part of the row.
QTextBlockFormat paragraphBehind(const QTextCursor& cursor);

/// Hands over the format of each run of the selection, until the visitor returns false. Pictures
/// count only where there is nothing else: they have no font to speak of.
void visitRuns(const QTextCursor& selection,
               const std::function<bool(const QTextCharFormat&)>& visit);

/// Changes the format of each run of the selection, or the one at the cursor.
void changeRuns(QTextCursor& selection, const std::function<void(QTextCharFormat&)>& change);

/// Hands over each paragraph of the selection, until the visitor returns false. One that the
/// selection only touches with its end does not belong to it.
void visitParagraphs(const QTextCursor& selection,
                     const std::function<bool(const QTextBlock&)>& visit);

/// The value that all runs share, or nothing.
template <class Value, class Read>
std::optional<Value> commonOfRuns(const QTextCursor& selection, Read&& read) {
    std::optional<Value> common;
    visitRuns(selection, [&](const QTextCharFormat& format) {
        const Value value = read(format);
        if (common && *common != value) {
            common.reset();
            return false;
        }
        common = value;
        return true;
    });
    return common;
}

/// The value that all paragraphs share, or nothing.
template <class Value, class Read>
std::optional<Value> commonOfParagraphs(const QTextCursor& selection, Read&& read) {
    std::optional<Value> common;
    visitParagraphs(selection, [&](const QTextBlock& block) {
        const Value value = read(block);
        if (common && *common != value) {
            common.reset();
            return false;
        }
        common = value;
        return true;
    });
    return common;
}

using rtf::familyOf;
using rtf::isBold;
using rtf::isItalic;
using rtf::pointsOf;
/// 0xBBGGRR, 0 where the format has no colour of its own.
quint32 colorOf(const QTextCharFormat& format);

/// 0 left, 1 right, 2 centred, 3 justified.
int alignmentOf(const QTextBlock& block);
void alignParagraphs(QTextCursor& selection, int alignment);
/// Where the paragraph's first line begins, in twips.
int indentOf(const QTextBlock& block);
void indentParagraphs(QTextCursor& selection, int twips);
bool hasBullet(const QTextBlock& block);
void bulletParagraphs(QTextCursor& selection, bool on);

} // namespace orvalis
