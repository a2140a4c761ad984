// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/control_marks.h"

#include "controls/selection_format.h"
#include "rtf/characters/control_marks.h"
#include "rtf/room/intake.h"

#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace orvalis {
namespace {

/// Characters that Qt's documents keep for themselves.
bool isReserved(char16_t c) {
    return c == 0xFDD0 || c == 0xFDD1 || c == QChar::ObjectReplacementCharacter;
}

/// Puts text into a document run by run: all of a run is marks and ordinary characters, or marks
/// that somebody typed.
class PlainInserter {
public:
    PlainInserter(QTextCursor& cursor, const QTextCharFormat& format)
        : m_cursor(cursor)
        , m_ordinary(format)
        , m_marks(format)
        , m_intake(cursor)
        , m_letters(rtf::measuredHeight(format, cursor.document()->defaultFont()))
        , m_shape(rtf::paragraphShape(cursor.blockFormat()))
        , m_beginsPage(cursor.blockFormat().hasProperty(QTextFormat::PageBreakPolicy)) {
        m_ordinary.clearProperty(rtf::ControlMarks);
        m_marks.setProperty(rtf::ControlMarks, true);
    }

    bool insert(QStringView text, const rtf::Progress& progress) {
        m_run.reserve(std::min(text.size(), LongestPiece));
        qsizetype tellAt = progress ? 0 : text.size();
        for (qsizetype at = 0; at < text.size() && !m_intake.isFull(); ++at) {
            if (m_run.size() >= LongestPiece && !text[at].isLowSurrogate())
                flush();
            if (at >= tellAt) {
                progress(double(at) / double(text.size()));
                tellAt = at + LongestPiece;
            }
            const char16_t c = text[at].unicode();
            if (c == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n') {
                endParagraph();
                ++at;
            } else if (rtf::needsMark(c)) {
                add(Kind::Marks, rtf::markOf(c));
            } else if (rtf::isMark(c)) {
                add(Kind::Typed, c);
            } else {
                m_run += isReserved(c) ? QChar(QChar::ReplacementCharacter) : QChar(c);
            }
        }
        flush();
        return !m_intake.isFull();
    }

private:
    static constexpr qsizetype LongestPiece = 1 << 16;

    enum class Kind { Any, Marks, Typed };

    void endParagraph() {
        if (!m_beginsPage) {
            m_run += u'\n'; // what the cursor takes for a paragraph's end
            return;
        }
        flush();
        if (!m_intake.takesParagraph(m_letters, m_shape))
            return;
        m_cursor.insertBlock(followingParagraph(m_cursor.blockFormat()), m_ordinary);
        m_beginsPage = false;
    }

    void add(Kind kind, char16_t c) {
        if (m_kind != Kind::Any && m_kind != kind)
            flush();
        m_kind = kind;
        m_run += QChar(c);
    }

    void flush() {
        m_run.truncate(m_intake.takenLines(m_run, m_letters, m_shape));
        if (!m_run.isEmpty())
            m_cursor.insertText(m_run, m_kind == Kind::Marks ? m_marks : m_ordinary);
        m_run.clear();
        m_kind = Kind::Any;
    }

    QTextCursor& m_cursor;
    QTextCharFormat m_ordinary;
    QTextCharFormat m_marks;
    rtf::Intake m_intake;
    rtf::LetterHeight m_letters;
    rtf::ParagraphShape m_shape;
    bool m_beginsPage;
    QString m_run;
    Kind m_kind = Kind::Any;
};

void markToCode(QChar& c) {
    if (rtf::isMark(c.unicode()))
        c = QChar(rtf::codeOf(c.unicode()));
}

/// Turns the marks of a block into codes. \a plain holds the block's characters from \a from on,
/// beginning at \a start.
void marksToCodes(QString& plain, qsizetype start, const QTextBlock& block, int from, int to) {
    constexpr int Short = 1024;
    if (to - from <= Short) {
        // The runs of a block can only be had from its first one on, and there can be many.
        QTextCursor cursor(block);
        for (int at = from; at < to; ++at) {
            QChar& c = plain[start + at - from];
            if (!rtf::isMark(c.unicode()))
                continue;
            cursor.setPosition(block.position() + at + 1);
            if (cursor.charFormat().boolProperty(rtf::ControlMarks))
                markToCode(c);
        }
        return;
    }
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const int begin = std::max(fragment.position() - block.position(), from);
        const int end = std::min(fragment.position() - block.position() + fragment.length(), to);
        if (begin >= end || !fragment.charFormat().boolProperty(rtf::ControlMarks))
            continue;
        for (int at = begin; at < end; ++at)
            markToCode(plain[start + at - from]);
    }
}

/// A part of a block as it stands in the document; a whole block's text is not copied for it.
QString rawPart(const QTextBlock& block, int from, int to) {
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + from);
    cursor.setPosition(block.position() + to, QTextCursor::KeepAnchor);
    return cursor.selectedText();
}

} // namespace

bool insertPlain(QTextCursor& cursor, QStringView text, const QTextCharFormat& format,
                 const rtf::Progress& progress) {
    return PlainInserter(cursor, format).insert(text, progress);
}

void appendPlain(QString& plain, const QTextBlock& block, int from, int to) {
    const qsizetype start = plain.size();
    plain += rawPart(block, from, to);
    bool marks = false;
    bool breaks = false;
    for (qsizetype at = start; at < plain.size(); ++at) {
        const char16_t c = plain.at(at).unicode();
        if (c < QChar::LineSeparator)
            continue;
        marks = marks || rtf::isMark(c);
        breaks = breaks || c == QChar::LineSeparator;
        if (c == QChar::ObjectReplacementCharacter)
            plain[at] = u' ';
    }
    if (marks)
        marksToCodes(plain, start, block, from, to);
    if (breaks) {
        const QString tail =
            plain.mid(start).replace(QChar(QChar::LineSeparator), QStringLiteral("\r\n"));
        plain.replace(start, plain.size() - start, tail);
    }
}

bool appendWithoutMarks(QString& plain, QStringView raw) {
    qsizetype done = 0;
    for (qsizetype at = 0; at < raw.size(); ++at) {
        const char16_t c = raw[at].unicode();
        if (c < QChar::LineSeparator)
            continue;
        if (rtf::isMark(c))
            return false;
        const bool lineEnd = c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
        if (!lineEnd && c != QChar::ObjectReplacementCharacter)
            continue;
        plain += raw.mid(done, at - done);
        plain += lineEnd ? QStringView(u"\r\n") : QStringView(u" ");
        done = at + 1;
    }
    plain += raw.mid(done);
    return true;
}

} // namespace orvalis
