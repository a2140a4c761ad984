// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/writing/document_formats.h"

#include "rtf/formats/block_formats.h"
#include "rtf/formats/stated.h"
#include "rtf/formats/text_formats.h"
#include "rtf/kept/kept_parts.h"
#include "rtf/kept/kept_text.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

namespace orvalis::rtf {

namespace {

/// Of paragraphs, remembered at a time: more than a text of people has.
constexpr size_t MostShapes = 256;

} // namespace

DocumentFormats::DocumentFormats(const QTextDocument& document, Names& names, int unnamedFamily)
    : m_document(document)
    , m_names(names)
    , m_unnamedFamily(unnamedFamily) {
    const KeptParts parts = keptParts(document);
    m_hasStyles = !parts.styles.isEmpty();
    m_countedOfCharacters = stated::countedOfCharacters(m_hasStyles, parts.defaultFont);
}

CharFormat DocumentFormats::look(const QTextCharFormat& format) {
    CharFormat look = charFormat(format, m_names, m_document.defaultFont());
    look.stated = stated::by(look, m_countedOfCharacters, m_unnamedFamily);
    return look;
}

const CharFormat& DocumentFormats::lookOf(const QTextFragment& run) {
    const auto at = size_t(run.charFormatIndex());
    if (at >= m_known.size()) {
        m_known.resize(at + 1);
        m_looks.resize(at + 1);
        m_isImage.resize(at + 1);
    }
    if (!m_known[at]) {
        const QTextCharFormat from = run.charFormat();
        m_known[at] = true;
        m_isImage[at] = from.isImageFormat();
        m_looks[at] = look(from);
    }
    return m_looks[at];
}

bool DocumentFormats::isImage(const QTextFragment& run) const {
    return m_isImage[size_t(run.charFormatIndex())];
}

// A list is named by the format of its items.
const ParagraphFormat& DocumentFormats::shapeOf(const QTextBlock& block) {
    const bool isEmpty = block.length() == 1;
    const int key = 2 * block.blockFormatIndex() + (isEmpty ? 1 : 0);
    const auto known = m_shapes.find(key);
    if (known != m_shapes.end())
        return known->second;
    if (m_shapes.size() >= MostShapes)
        m_shapes.clear();
    ParagraphFormat& shape = m_shapes[key];
    shape =
        paragraphFormat(block.blockFormat(), block.textList(), m_document.indentWidth(), m_names);
    // There is no place behind the text of a paragraph that has none.
    if (isEmpty)
        shape.afterAhead = NoLength;
    ListLabel& list = shape.list;
    if (list.source == ListSource::Text && !m_listsByText.tells(*block.textList()))
        list.source = ListSource::Made;
    tellWhatCounts(shape);
    return shape;
}

void DocumentFormats::tellWhatCounts(ParagraphFormat& paragraph) const {
    const bool inLists = paragraph.list.isInTables() || isInList(m_names.keptAt(paragraph.kept));
    paragraph.stated = stated::by(paragraph, stated::countedOfParagraphs(m_hasStyles, inLists));
}

int DocumentFormats::numberOf(const QTextBlock& block) {
    const ListLabel& label = shapeOf(block).list;
    return label.kind == ListKind::None ? 0 : m_items[block.textList()]++ + label.start;
}

} // namespace orvalis::rtf
