// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/document_room.h"

#include "rtf/long_words.h"
#include "rtf/uneven_words.h"

#include <QFont>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace orvalis::rtf {

namespace {

constexpr double Unknown = std::numeric_limits<double>::infinity();
/// Of the height that lines may lend one another ahead of breaking anywhere.
constexpr double MostLent = MostHeight / 4;

size_t fontKey(const QTextCharFormat& format) {
    return qHashMulti(0, format.fontFamilies().toStringList(),
                      format.stringProperty(QTextFormat::OldFontFamily), format.fontPointSize(),
                      format.intProperty(QTextFormat::FontPixelSize), format.fontWeight(),
                      format.fontItalic(), int(format.fontCapitalization()));
}

/// Formats that count for a part of a document beside those that it has.
struct Changed {
    int from = 0;
    int to = 0;
    QTextCharFormat letters;
    QTextBlockFormat paragraphs;

    bool touches(int begin, int end) const { return from < end && to > begin; }
};

/// Measures runs, of which most have the format of the one ahead.
class RunMeasure {
public:
    explicit RunMeasure(const QFont& defaultFont)
        : m_defaultFont(defaultFont) {}

    const LetterHeight& of(const QTextCharFormat& format) {
        if (!m_any || format != m_format) {
            m_any = true;
            m_format = format;
            m_letters = letterHeight(format, m_defaultFont);
        }
        return m_letters;
    }

private:
    QFont m_defaultFont;
    QTextCharFormat m_format;
    LetterHeight m_letters;
    bool m_any = false;
};

QStringView runText(const QTextFragment& run, const QTextBlock& paragraph, QStringView text) {
    return text.sliced(run.position() - paragraph.position(), run.length());
}

double heightOfFragment(const QTextFragment& run, QStringView text, RunMeasure& measure,
                        const ParagraphShape& shape, const Changed& changed) {
    const QTextCharFormat format = run.charFormat();
    const LetterHeight& own = measure.of(format);
    if (format.isImageFormat())
        return run.length() * heightOfPicture(format.toImageFormat().height(), own, shape);
    const int begin = run.position();
    const int end = begin + run.length();
    if (!changed.touches(begin, end) || changed.letters.isEmpty())
        return heightOfRun(text, own, shape);
    const int from = std::max(begin, changed.from) - begin;
    const int to = std::min(end, changed.to) - begin;
    double height = 0;
    if (from > 0)
        height += heightOfRun(text.first(from), own, shape);
    if (to < text.size())
        height += heightOfRun(text.sliced(to), own, shape);
    QTextCharFormat merged = format;
    merged.merge(changed.letters);
    return height + heightOfRun(text.sliced(from, to - from), measure.of(merged), shape);
}

double heightOfDocument(const QTextDocument& document, const Changed& changed) {
    RunMeasure measure(document.defaultFont());
    QTextBlockFormat lastFormat;
    ParagraphShape shape = paragraphShape(lastFormat);
    double height = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        const bool inside = changed.touches(block.position(), block.position() + block.length());
        if (inside)
            format.merge(changed.paragraphs);
        if (format != lastFormat) {
            lastFormat = format;
            shape = paragraphShape(format);
        }
        QTextCharFormat mark = block.charFormat();
        if (inside)
            mark.merge(changed.letters);
        height += heightOfParagraph(measure.of(mark), shape);
        const QString text = block.text();
        for (auto it = block.begin(); !it.atEnd(); ++it)
            height += heightOfFragment(it.fragment(), runText(it.fragment(), block, text), measure,
                                       shape, changed);
    }
    return height;
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
    const QFont defaultFont = m_document.defaultFont();
    double height = 0;
    for (QTextBlock block = m_document.findBlock(from); block.isValid() && block.position() <= to;
         block = block.next())
        height += heightLentInWords(block, defaultFont);
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
    return 2 * heightOfPicture(m_pictures, letters, m_shape) + m_shape.margins;
}

bool DocumentRoom::takesFont(const QTextCharFormat& format) {
    learnFormats();
    const size_t key = fontKey(format);
    if (m_fonts.size() >= MostFonts && !m_fonts.contains(key))
        return false;
    m_fonts.insert(key);
    return true;
}

double paragraphHeight(const QTextBlock& paragraph, const ParagraphShape& shape) {
    RunMeasure measure(paragraph.document()->defaultFont());
    double height = heightOfParagraph(measure.of(paragraph.charFormat()), shape);
    const QString text = paragraph.text();
    for (auto it = paragraph.begin(); !it.atEnd(); ++it)
        height += heightOfFragment(it.fragment(), runText(it.fragment(), paragraph, text), measure,
                                   shape, {});
    return height;
}

double documentHeight(const QTextDocument& document) {
    return heightOfDocument(document, {});
}

double documentHeight(const QTextCursor& changed, const QTextCharFormat& letters,
                      const QTextBlockFormat& paragraphs) {
    return heightOfDocument(*changed.document(),
                            {changed.selectionStart(),
                             std::max(changed.selectionEnd(), changed.selectionStart() + 1),
                             letters, paragraphs});
}

QTextCharFormat fittingFormat(const QTextCursor& selection, QTextCharFormat format) {
    if (!format.hasProperty(QTextFormat::FontPointSize))
        return format;
    constexpr double HalfPoints = 2;
    const auto fits = [&](double points) {
        format.setFontPointSize(points);
        return documentHeight(selection, format, {}) <= MostHeight;
    };
    const double wanted = std::min(format.fontPointSize(), LargestPoints);
    format.setFontPointSize(wanted);
    // Most documents are far too short for any of it to matter.
    DocumentRoom& room = DocumentRoom::of(*selection.document());
    const LetterHeight letters = letterHeight(format, selection.document()->defaultFont());
    if (room.heightWithoutRoom(letters) <= MostHeight || fits(wanted))
        return format;
    int least = 1;
    int most = int(wanted * HalfPoints);
    while (least + 1 < most) {
        const int middle = (least + most) / 2;
        (fits(middle / HalfPoints) ? least : most) = middle;
    }
    format.setFontPointSize(least / HalfPoints);
    return format;
}

bool fitsParagraphs(const QTextCursor& selection, const QTextBlockFormat& format) {
    return DocumentRoom::of(*selection.document()).heightWithoutRoom({}) <= MostHeight ||
           documentHeight(selection, {}, format) <= MostHeight;
}

} // namespace orvalis::rtf
