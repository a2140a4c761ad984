// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/control_marks.h"
#include "controls/document_reading.h"
#include "controls/layout_pause.h"
#include "controls/rich_text_box.h"
#include "controls/selection_format.h"
#include "controls/text_positions.h"
#include "rtf/kept/kept_parts.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "runtime/text_file.h"

#include <QTextDocument>

#include <optional>

// The content as a whole, as text and as RTF: what it is, and how another takes its place.

namespace orvalis {

QString RichTextBox::Text() const {
    return m_positions->text();
}

void RichTextBox::SetText(const QString& text) {
    replaceEverything(text, formatAtStart(editCursor()), editCursor().blockFormat());
}

/// \returns whether all of it had room.
bool RichTextBox::replaceEverything(const QString& text, QTextCharFormat format,
                                    QTextBlockFormat paragraph) {
    // What a file said and nobody sees goes with its text.
    rtf::setKeptParts(*document(), {});
    rtf::clearKept(format);
    rtf::clearKept(paragraph);
    const bool keepsHistory = document()->isUndoRedoEnabled();
    const bool inBatch = m_batches > 0;
    bool whole = true;
    hold();
    std::optional<LayoutPause> pause;
    if (!inBatch)
        pause.emplace(*document());
    if (!inBatch)
        document()->setUndoRedoEnabled(false);
    QTextCursor everything(document());
    everything.select(QTextCursor::Document);
    editAt(everything, [&](QTextCursor& cursor) {
        cursor.beginEditBlock();
        cursor.removeSelectedText();
        cursor.setBlockFormat(paragraph);
        cursor.setBlockCharFormat(format);
        whole = insertPlain(cursor, text, format, m_progress);
        cursor.endEditBlock();
    });
    // What a document says of all its tabs goes with it.
    QTextOption option = document()->defaultTextOption();
    if (option.tabStopDistance() != m_usualTabs) {
        option.setTabStopDistance(m_usualTabs);
        document()->setDefaultTextOption(option);
    }
    if (!inBatch)
        document()->setUndoRedoEnabled(keepsHistory);
    contentWasSet(format);
    pause.reset();
    release();
    return whole;
}

/// The caret goes to the start, in the format given for what is typed into an empty document; the
/// selection counts as changed even where it stands as it stood.
void RichTextBox::contentWasSet(const QTextCharFormat& format) {
    QTextCursor caret(document());
    if (document()->isEmpty())
        caret.setCharFormat(format);
    m_toldAnchor = -1;
    takeCursor(caret);
}

QByteArray RichTextBox::TextRTF() const {
    return rtf::writeRtf(*document(), m_progress);
}

void RichTextBox::SetTextRTF(const QByteArray& rtf) {
    if (rtf::looksLikeRtf(rtf))
        takeRtf(rtf);
    else
        SetText(decodeText(rtf));
}

/// \returns whether all of it could be read.
bool RichTextBox::takeRtf(const QByteArray& rtf) {
    QTextCursor everything(document());
    everything.select(QTextCursor::Document);
    rtf::ReadOptions options = readOptions();
    options.replacesDocument = true;
    options.progress = m_progress;
    rtf::ReadResult result;
    hold();
    std::optional<LayoutPause> pause;
    if (m_batches == 0)
        pause.emplace(*document());
    editAt(everything, [&](QTextCursor& cursor) {
        if (m_batches > 0) {
            result = rtf::insertRtf(rtf, cursor, options);
            return;
        }
        result = rtf::readRtf(rtf, *document(), options);
        cursor = QTextCursor(document());
    });
    contentWasSet(QTextCursor(document()).charFormat());
    pause.reset();
    release();
    return result.ok();
}

} // namespace orvalis
