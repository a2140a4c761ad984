// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_text_box.h"
#include "controls/selection_format.h"
#include "rtf/room/document_room.h"
#include "runtime/colour.h"
#include "runtime/failure.h"
#include "runtime/twips.h"

#include <QTextDocument>

// The format of the selection, property by property.

namespace orvalis {
namespace {

constexpr quint32 SystemColor = 0x80000000;

} // namespace

bool RichTextBox::hasNoHistory() const {
    return !document()->isUndoAvailable() && !document()->isRedoAvailable();
}

void RichTextBox::forgetHistory() {
    document()->clearUndoRedoStacks();
    m_undoKinds->stepsChanged(0, false);
}

/// Where nothing was ever written there is nothing to undo: a format that is set there says what
/// the text to come looks like.
void RichTextBox::formatSelection(const std::function<void(QTextCursor&)>& change) {
    const bool bare = m_batches == 0 && document()->isEmpty() && hasNoHistory();
    QTextCursor cursor = editCursor();
    hold();
    change(cursor);
    if (bare)
        forgetHistory();
    takeCursor(cursor);
    release();
}

/// An empty paragraph takes the format itself: what the cursor alone remembers is lost as soon as
/// it moves, and a format chosen for an empty box is to hold for what is typed later.
void RichTextBox::mergeFormat(const QTextCharFormat& wanted) {
    formatSelection([&](QTextCursor& cursor) {
        const QTextCharFormat format = rtf::fittingFormat(cursor, wanted);
        if (!cursor.hasSelection() && cursor.block().length() == 1)
            cursor.mergeBlockCharFormat(format);
        cursor.mergeCharFormat(format);
    });
}

std::optional<bool> RichTextBox::SelBold() const {
    const QFont defaultFont = document()->defaultFont();
    return commonOfRuns<bool>(
        editCursor(), [&](const QTextCharFormat& format) { return isBold(format, defaultFont); });
}

void RichTextBox::SetSelBold(bool on) {
    QTextCharFormat format;
    format.setFontWeight(on ? QFont::Bold : QFont::Normal);
    mergeFormat(format);
}

std::optional<bool> RichTextBox::SelItalic() const {
    const QFont defaultFont = document()->defaultFont();
    return commonOfRuns<bool>(
        editCursor(), [&](const QTextCharFormat& format) { return isItalic(format, defaultFont); });
}

void RichTextBox::SetSelItalic(bool on) {
    QTextCharFormat format;
    format.setFontItalic(on);
    mergeFormat(format);
}

std::optional<bool> RichTextBox::SelUnderline() const {
    return commonOfRuns<bool>(
        editCursor(), [](const QTextCharFormat& format) { return format.fontUnderline(); });
}

void RichTextBox::SetSelUnderline(bool on) {
    QTextCharFormat format;
    format.setFontUnderline(on);
    mergeFormat(format);
}

std::optional<bool> RichTextBox::SelStrikeThru() const {
    return commonOfRuns<bool>(
        editCursor(), [](const QTextCharFormat& format) { return format.fontStrikeOut(); });
}

void RichTextBox::SetSelStrikeThru(bool on) {
    QTextCharFormat format;
    format.setFontStrikeOut(on);
    mergeFormat(format);
}

std::optional<QString> RichTextBox::SelFontName() const {
    const QFont defaultFont = document()->defaultFont();
    return commonOfRuns<QString>(
        editCursor(), [&](const QTextCharFormat& format) { return familyOf(format, defaultFont); });
}

void RichTextBox::SetSelFontName(const QString& family) {
    QTextCharFormat format;
    format.setFontFamilies({family});
    mergeFormat(format);
}

std::optional<qreal> RichTextBox::SelFontSize() const {
    const QFont defaultFont = document()->defaultFont();
    return commonOfRuns<qreal>(
        editCursor(), [&](const QTextCharFormat& format) { return pointsOf(format, defaultFont); });
}

void RichTextBox::SetSelFontSize(qreal points) {
    requireProperty(points > 0);
    QTextCharFormat format;
    format.setFontPointSize(points);
    mergeFormat(format);
}

std::optional<quint32> RichTextBox::SelColor() const {
    return commonOfRuns<quint32>(editCursor(), colorOf);
}

void RichTextBox::SetSelColor(quint32 color) {
    if ((color & SystemColor) == 0) {
        QTextCharFormat format;
        format.setForeground(toQColor(color));
        mergeFormat(format);
        return;
    }
    formatSelection([](QTextCursor& cursor) {
        changeRuns(cursor, [](QTextCharFormat& format) { format.clearForeground(); });
    });
}

std::optional<int> RichTextBox::SelAlignment() const {
    return commonOfParagraphs<int>(editCursor(), alignmentOf);
}

void RichTextBox::SetSelAlignment(int alignment) {
    requireProperty(alignment >= rtfLeft && alignment <= rtfJustify);
    formatSelection([&](QTextCursor& cursor) { alignParagraphs(cursor, alignment); });
}

std::optional<int> RichTextBox::SelIndent() const {
    return commonOfParagraphs<int>(editCursor(), indentOf);
}

void RichTextBox::SetSelIndent(int twips) {
    QTextBlockFormat indented;
    indented.setLeftMargin(twipsToPixelsF(twips));
    formatSelection([&](QTextCursor& cursor) {
        if (rtf::fitsParagraphs(cursor, indented))
            indentParagraphs(cursor, twips);
    });
}

std::optional<bool> RichTextBox::SelBullet() const {
    return commonOfParagraphs<bool>(editCursor(), hasBullet);
}

void RichTextBox::SetSelBullet(bool on) {
    formatSelection([&](QTextCursor& cursor) { bulletParagraphs(cursor, on); });
}

} // namespace orvalis
