// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/room/document_room.h"

#include "rtf/room/document_height.h"
#include "rtf/room/format_heights.h"
#include "rtf/room/long_words.h"
#include "rtf/room/uneven_words.h"

#include <QFont>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

namespace orvalis::rtf {

namespace {

constexpr double Unknown = std::numeric_limits<double>::infinity();
/// Of the height that lines may lend one another ahead of breaking anywhere.
constexpr double MostLent = (EndlessHeight - MostHeight) / 2;

size_t fontKey(const QTextCharFormat& format) {
    return qHashMulti(0, format.fontFamilies().toStringList(),
                      format.stringProperty(QTextFormat::OldFontFamily), format.fontPointSize(),
                      format.intProperty(QTextFormat::FontPixelSize), format.fontWeight(),
                      format.fontItalic(), int(format.fontCapitalization()));
}

ChangedFormats changedTo(const QTextCursor& selection, const QTextCharFormat& letters) {
    const int from = selection.selectionStart();
    return {from, std::max(selection.selectionEnd(), from + 1), letters, {}};
}

bool fits(const QTextCursor& selection, const ChangedFormats& changed) {
    QTextDocument& document = *selection.document();
    return DocumentRoom::of(document).heightWithoutRoom({}) <= MostHeight ||
           documentHeight(document, changed) <= MostHeight;
}

/// Beside the size.
constexpr int WidthsOfLetters[] = {QTextFormat::FontFamilies, QTextFormat::FontWeight,
                                   QTextFormat::FontItalic};

bool changesWidths(const QTextCharFormat& format) {
    return std::any_of(
        std::begin(WidthsOfLetters), std::end(WidthsOfLetters),
        [&](int property) { return format.hasProperty(property); });
}

} // namespace

DocumentRoom& DocumentRoom::of(QTextDocument& document) {
    auto* const room = document.findChild<DocumentRoom*>(QString(), Qt::FindDirectChildrenOnly);
    return room ? *room : *new DocumentRoom(document);
}

DocumentRoom::DocumentRoom(QTextDocument& document)
    : QObject(&document)
    , m_document(document)
    , m_sum(document.isEmpty() ? 0 : Unknown) {
    connect(&document, &QTextDocument::contentsChange, this,
            [this](int from, int /*removed*/, int added) { takeChange(from, added); });
    connect(&document, &QTextDocument::contentsChanged, this, &DocumentRoom::contentsChanged);
}

double DocumentRoom::heightLeft(double wanted, double gathered) {
    if (MostHeight - m_sum < wanted)
        m_sum = heightWithoutRoom({}) + gathered;
    if (MostHeight - m_sum < wanted)
        m_sum = documentHeight(m_document) + gathered;
    return std::max(0.0, MostHeight - m_sum);
}

double DocumentRoom::heightWithoutRoom(const LetterHeight& letters) {
    return m_document.characterCount() * mostOfOne(letters);
}

void DocumentRoom::forget() {
    m_sum = Unknown;
}

void DocumentRoom::takeChange(int from, int added) {
    m_told = true;
    m_sum += added * mostOfOne({});
    m_lent += heightLent(from, from + added);
    if (m_breaksAnywhere || m_lent > MostLent || holdsLongWord(from, from + added))
        breakLines();
}

/// Only a document that is laid out tells what it changes.
void DocumentRoom::contentsChanged() {
    if (!std::exchange(m_told, false))
        forget();
}

bool DocumentRoom::holdsLongWord(int from, int to) const {
    for (QTextBlock block = m_document.findBlock(from); block.isValid() && block.position() <= to;
         block = block.next())
        if (block.length() > LongestWord && rtf::holdsLongWord(block.text()))
            return true;
    return false;
}

double DocumentRoom::heightLent(int from, int to) const {
    FormatHeights heights(m_document.defaultFont(), letterHeight);
    double height = 0;
    for (QTextBlock block = m_document.findBlock(from); block.isValid() && block.position() <= to;
         block = block.next())
        height += heightLentInWords(block, heights);
    return height;
}

QTextOption::WrapMode DocumentRoom::wrapMode() const {
    return m_breaksAnywhere ? QTextOption::WrapAnywhere : QTextOption::WrapAtWordBoundaryOrAnywhere;
}

void DocumentRoom::breakLines() {
    m_lent = heightLent(0, m_document.characterCount());
    m_breaksAnywhere = m_lent > MostLent || holdsLongWord(0, m_document.characterCount());
    QTextOption option = m_document.defaultTextOption();
    if (option.wrapMode() == wrapMode() || option.wrapMode() == QTextOption::NoWrap)
        return;
    option.setWrapMode(wrapMode());
    m_document.setDefaultTextOption(option);
}

void DocumentRoom::learnFormats() {
    const QList<QTextFormat> formats = m_document.allFormats();
    // A document that is cleared begins its formats anew.
    if (m_formatsKnown > formats.size() ||
        (m_formatsKnown > 0 && formats[m_formatsKnown - 1] != m_lastFormat)) {
        m_formatsKnown = 0;
        m_fonts.clear();
        m_letters = {};
        m_lineOfSize = 0;
        m_shape = {};
        m_pictures = 0;
    }
    const QFont defaultFont = m_document.defaultFont();
    const LetterHeight own = letterHeight({}, defaultFont);
    m_letters.line = std::max(m_letters.line, own.line);
    for (; m_formatsKnown < formats.size(); ++m_formatsKnown) {
        m_lastFormat = formats[m_formatsKnown];
        if (m_lastFormat.isBlockFormat()) {
            const ParagraphShape shape = paragraphShape(m_lastFormat.toBlockFormat());
            m_shape.multiple = std::max(m_shape.multiple, shape.multiple);
            m_shape.least = std::max(m_shape.least, shape.least);
            m_shape.margins = std::max(m_shape.margins, shape.margins);
        } else if (m_lastFormat.isCharFormat()) {
            const QTextCharFormat format = m_lastFormat.toCharFormat();
            const LetterHeight letters = letterHeight(format, defaultFont);
            m_letters.line = std::max(m_letters.line, letters.line);
            if (letters.size > 0)
                m_lineOfSize = std::max(m_lineOfSize, letters.line / letters.size);
            m_fonts.insert(fontKey(format));
            if (format.isImageFormat())
                m_pictures = std::max(m_pictures, format.toImageFormat().height());
        }
    }
}

/// The height of any one character that the document may hold, a run of its own, or a paragraph.
double DocumentRoom::mostOfOne(LetterHeight letters) {
    learnFormats();
    // What is raised keeps its share of a size that it is given.
    letters.line = std::max({letters.line, m_letters.line, letters.size * m_lineOfSize});
    constexpr double Lines = 3;
    return Lines * heightOfPicture(m_pictures, letters, m_shape) + m_shape.margins;
}

bool DocumentRoom::takesFont(const QTextCharFormat& format) {
    learnFormats();
    const size_t key = fontKey(format);
    if (m_fonts.size() >= MostFonts && !m_fonts.contains(key))
        return false;
    m_fonts.insert(key);
    return true;
}

QTextCharFormat fittingFormat(const QTextCursor& selection, QTextCharFormat format) {
    const bool sized = format.hasProperty(QTextFormat::FontPointSize);
    if (!sized && (!selection.hasSelection() || !changesWidths(format)))
        return format;
    const double wanted = std::min(format.fontPointSize(), LargestPoints);
    if (sized)
        format.setFontPointSize(wanted);
    // Most documents are far too short for any of it to matter.
    DocumentRoom& room = DocumentRoom::of(*selection.document());
    const LetterHeight letters = letterHeight(format, selection.document()->defaultFont());
    const auto fits = [&] {
        return documentHeight(*selection.document(), changedTo(selection, format)) <= MostHeight;
    };
    if (room.heightWithoutRoom(letters) <= MostHeight || fits())
        return format;
    if (!sized) {
        for (const int property : WidthsOfLetters)
            format.clearProperty(property);
        return format;
    }
    constexpr double HalfPoints = 2;
    int least = 1;
    int most = int(wanted * HalfPoints);
    while (least + 1 < most) {
        const int middle = (least + most) / 2;
        format.setFontPointSize(middle / HalfPoints);
        (fits() ? least : most) = middle;
    }
    format.setFontPointSize(least / HalfPoints);
    return format;
}

bool fitsParagraphs(const QTextCursor& selection, const QTextBlockFormat& format) {
    ChangedFormats changed = changedTo(selection, {});
    changed.paragraphs = format;
    return fits(selection, changed);
}

bool fitsNarrower(const QTextCursor& selection, double pixels) {
    ChangedFormats changed = changedTo(selection, {});
    changed.narrower = pixels;
    return fits(selection, changed);
}

} // namespace orvalis::rtf
