// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/text_positions.h"

#include "controls/control_marks.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFormat>

#include <algorithm>
#include <utility>
#include <vector>

namespace orvalis {

TextPositions::TextPositions(QTextDocument& document)
    : m_document(document)
    , m_characters(document.characterCount()) {
    scanBreaks(0, 0, m_characters);
}

int TextPositions::lastPosition() const {
    return m_document.characterCount() - 1;
}

int TextPositions::length() const {
    return lastPosition() + m_document.blockCount() - 1 + m_lineBreaks.count();
}

int TextPositions::indexOf(int position) const {
    position = std::clamp(position, 0, lastPosition());
    return position + m_document.findBlock(position).blockNumber() + m_lineBreaks.before(position);
}

int TextPositions::positionOf(int index) const {
    if (index <= 0)
        return 0;
    if (index >= length())
        return lastPosition();
    // The index grows with the position by one or, over a break, by two; so the position is found
    // by halving, first among the blocks and then inside one.
    int first = 0;
    int last = m_document.blockCount() - 1;
    while (first < last) {
        const int middle = (first + last + 1) / 2;
        const int position = m_document.findBlockByNumber(middle).position();
        if (position + middle + m_lineBreaks.before(position) <= index)
            first = middle;
        else
            last = middle - 1;
    }
    const QTextBlock block = m_document.findBlockByNumber(first);
    int low = block.position();
    int high = low + block.length() - 1;
    while (low < high) {
        const int middle = (low + high + 1) / 2;
        if (middle + first + m_lineBreaks.before(middle) <= index)
            low = middle;
        else
            high = middle - 1;
    }
    return low;
}

QString TextPositions::between(int from, int to) const {
    to = std::min(to, lastPosition());
    QString plain;
    if (from >= to)
        return plain;
    const QString raw = rawText(from, to);
    plain.reserve(indexOf(to) - indexOf(from));
    if (!appendWithoutMarks(plain, raw)) {
        plain.resize(0);
        appendBlocks(plain, from, to);
    }
    return plain;
}

/// A part of the document as it stands there, in one piece: far quicker than block by block.
QString TextPositions::rawText(int from, int to) const {
    if (from >= to)
        return QString();
    if (from == 0 && to == lastPosition())
        return m_document.toRawText();
    QTextCursor cursor(&m_document);
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    return cursor.selectedText();
}

void TextPositions::appendBlocks(QString& plain, int from, int to) const {
    for (QTextBlock block = m_document.findBlock(from); block.isValid(); block = block.next()) {
        const int start = block.position();
        const int end = start + block.length() - 1;
        appendPlain(plain, block, std::max(from - start, 0), std::min(to, end) - start);
        if (to <= end)
            break;
        plain += QStringLiteral("\r\n");
    }
}

const QString& TextPositions::text() const {
    if (!m_textValid) {
        m_text = between(0, lastPosition());
        m_textValid = true;
    }
    return m_text;
}

int TextPositions::contentsChanged(int from, int removed, int added) {
    const int characters = m_document.characterCount();
    const int end = reach(from, added);
    if (m_seenInBlock) {
        // All of it was taken in step by step.
        m_characters = characters;
        return std::max(end, characters - m_untouched);
    }
    // A document that is emptied counts its last separator in, on one side or on both.
    if (from < 0 || from + added > characters || characters - m_characters != added - removed) {
        m_lineBreaks.clear();
        scanBreaks(0, 0, characters);
        m_textValid = false;
    } else {
        scanBreaks(from, removed, added);
        patchText(from, added);
    }
    m_characters = characters;
    return end;
}

int TextPositions::manyContentsChanged(int from, int removed, int added) {
    if (!hasLists())
        return contentsChanged(from, removed, added);
    m_characters = m_document.characterCount();
    m_lineBreaks.clear();
    scanBreaks(0, 0, m_characters);
    const bool known = std::exchange(m_textValid, false);
    if (!known)
        return m_characters;
    const QString before = m_text;
    const QString& now = text();
    const auto [was, is] =
        std::mismatch(before.crbegin(), before.crend(), now.crbegin(), now.crend());
    return std::max(positionOf(int(now.crend() - is)) + 1, reach(from, added));
}

/// Each paragraph that a list takes in can cost the range one character at its end.
int TextPositions::reach(int from, int added) const {
    const int end = std::clamp(from + added, 0, lastPosition());
    const int breaks =
        m_document.findBlock(end).blockNumber() - m_document.findBlock(from).blockNumber();
    return breaks > 0 && hasLists() ? std::min(end + breaks, lastPosition()) : end;
}

bool TextPositions::hasLists() const {
    const QList<QTextFormat> formats = m_document.allFormats();
    return std::any_of(formats.begin(), formats.end(),
                       [](const QTextFormat& format) { return format.isListFormat(); });
}

void TextPositions::changedInBlock(int from, int removed, int added) {
    scanBreaks(from, removed, added);
    m_textValid = false;
    const int untouched = m_document.characterCount() - (from + added);
    m_untouched = m_seenInBlock ? std::min(m_untouched, untouched) : untouched;
    m_seenInBlock = true;
}

void TextPositions::scanBreaks(int from, int removed, int added) {
    std::vector<int> found;
    const QString raw = rawText(from, std::min(from + added, lastPosition()));
    for (qsizetype at = raw.indexOf(QChar(QChar::LineSeparator)); at >= 0;
         at = raw.indexOf(QChar(QChar::LineSeparator), at + 1))
        found.push_back(from + int(at));
    m_lineBreaks.replace(from, removed, added, found);
}

void TextPositions::patchText(int from, int added) {
    if (!m_textValid)
        return;
    const int to = std::min(from + added, lastPosition());
    const int start = indexOf(from);
    const int tail = length() - indexOf(to);
    const int replaced = int(m_text.size()) - start - tail;
    if (replaced < 0) {
        m_textValid = false;
        return;
    }
    m_text.replace(start, replaced, between(from, to));
}

} // namespace orvalis
