// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/document_sink.h"

#include "rtf/formats/block_formats.h"
#include "rtf/formats/format_properties.h"
#include "rtf/formats/list_formats.h"
#include "rtf/formats/text_formats.h"
#include "rtf/kept/kept_parts.h"
#include "rtf/kept/kept_text.h"

#include <QFontMetricsF>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <atomic>
#include <cmath>

namespace orvalis::rtf {

namespace {

// What a document keeps for each of them, undo included, rounded up.
constexpr qint64 BytesOfRun = 160;
constexpr qint64 BytesOfParagraph = 400;
constexpr qint64 BytesOfList = 1200;
constexpr qint64 BytesOfFormat = 1500;
constexpr qint64 BytesOfPicture = 3000;
constexpr int RasterBytes = 4;

// The share of the memory allowed, 40 times the file and 64 MB, that structure and pixels get.
constexpr qint64 StructureShare = 20;
constexpr qint64 PixelShare = 8;
constexpr qint64 Ground = qint64(24) << 20;

// A document searches all formats that differ only in their family, or in their tab stops, for each
// run and paragraph that it takes. So many are searched before it is felt; each further one costs
// the time in which so many bytes are filled.
constexpr qint64 FormatsSearchedAtOnce = 64;
constexpr qint64 BytesOfSearch = 4;

qint64 searchAmong(qint64 formats) {
    return std::max<qint64>(formats - FormatsSearchedAtOnce, 0) * BytesOfSearch;
}

constexpr qint64 BytesOfTabStop = 64;

constexpr size_t MostFormats = 16384;
// The shapes of a text alternate; among so many it costs less to look than to make one anew.
constexpr size_t ShapesKept = 16;

// The part of their size that the letters of labels are wide at most.
constexpr double WidestLetter = 0.7;

/// What tells anchors apart that hold the same: no two of the program have one number.
QString ownNumber() {
    static std::atomic<int> last = 0;
    return QString::number(++last) + NumberEnd;
}

QTextCharFormat withoutFont(QTextCharFormat format) {
    for (const int property :
         {QTextFormat::FontFamilies, QTextFormat::FontPointSize, QTextFormat::FontWeight,
          QTextFormat::FontItalic, QTextFormat::FontCapitalization})
        format.clearProperty(property);
    return format;
}

} // namespace

DocumentSink::DocumentSink(QTextCursor& cursor, const ReadOptions& options, qsizetype fileSize,
                           std::optional<int> tabTwips)
    : m_cursor(cursor)
    , m_options(options)
    , m_intake(cursor)
    , m_structureLeft(StructureShare * fileSize + Ground)
    , m_pictures{(PixelShare * fileSize + Ground) / RasterBytes}
    , m_tabTwips(tabTwips)
    , m_intoNothing(cursor.document()->isEmpty())
    , m_textBefore(!cursor.atBlockStart())
    , m_textBehind(!cursor.atBlockEnd())
    , m_targetFormat(cursor.blockFormat()) {
    if (m_textBefore) // which keeps what begins a page
        m_targetFormat.clearProperty(QTextFormat::PageBreakPolicy);
}

void DocumentSink::begin(const Names& names) {
    m_names = &names;
}

/// The stops of paragraphs go on in steps of it.
void DocumentSink::defaultTab(int twips) {
    m_defaultTab = twips;
    m_shapes.clear();
    m_oldestShape = 0;
}

bool DocumentSink::spend(qint64 bytes) {
    m_structureLeft -= bytes;
    return m_structureLeft > 0;
}

bool DocumentSink::takesStyles(const QString& styles) {
    return m_options.replacesDocument || styles == keptParts(*m_cursor.document()).styles;
}

bool DocumentSink::takesAuthors(const QString& authors) {
    return m_options.replacesDocument || authors == keptParts(*m_cursor.document()).authors;
}

void DocumentSink::anchor(const QString& kept) {
    if (m_runs.empty() || m_runs.back().length == 0 || !spend(BytesOfFormat))
        return;
    if (m_runs.back().image != NoName) {
        QTextImageFormat& image = m_images.back();
        const QString before = image.stringProperty(KeptAnchors);
        image.setProperty(KeptAnchors, (before.isEmpty() ? ownNumber() : before) + kept);
        return;
    }
    if (m_runs.back().anchors == NoName) {
        const bool pair = m_text.back().isLowSurrogate() && m_runs.back().length > 1;
        const Run last{pair ? 2 : 1, m_runs.back().format, NoName, int(m_anchors.size())};
        m_runs.back().length -= last.length;
        if (m_runs.back().length == 0)
            m_runs.pop_back();
        m_runs.push_back(last);
        m_anchors.push_back(ownNumber());
    }
    m_anchors.back() += kept;
}

void DocumentSink::kept(const KeptParts& parts) {
    if (m_options.replacesDocument)
        setKeptParts(*m_cursor.document(), parts);
}

int DocumentSink::formatIndex(const CharFormat& format) {
    if (m_lastIndex != NoName && (format == m_lastFormat || m_structureLeft <= 0))
        return m_lastIndex;
    m_lastFormat = format;
    const auto found = m_formatIndex.constFind(format);
    if (found != m_formatIndex.constEnd()) {
        m_lastIndex = *found;
    } else if (m_formats.size() < MostFormats) {
        spend(BytesOfFormat);
        m_families.insert(format.family);
        m_formats.push_back(textFormat(format, *m_names));
        // A file that names no font means that of whoever shows it.
        if (format.family == NoName)
            m_formats.back().setFontFamilies({m_cursor.document()->defaultFont().family()});
        const QFont defaultFont = m_cursor.document()->defaultFont();
        if (!DocumentRoom::of(*m_cursor.document()).takesFont(m_formats.back())) {
            m_fontsLeftOut = true;
            m_formats.back() = withoutFont(m_formats.back());
        }
        m_letters.push_back(measuredHeight(m_formats.back(), defaultFont));
        m_lastIndex = int(m_formats.size()) - 1;
        m_formatIndex.insert(format, m_lastIndex);
    }
    return m_lastIndex;
}

void DocumentSink::text(QStringView text, const CharFormat& format) {
    const int index = formatIndex(format);
    const bool goesOn = m_paragraphs == 0 && m_textBefore;
    const qsizetype room =
        (goesOn ? m_intake.mostInParagraph() : m_intake.mostInFurtherParagraph()) - m_text.size();
    if (room < text.size()) {
        m_full = true;
        text.truncate(wholeCharacters(text, room));
    }
    m_text.append(text);
    if (!m_runs.empty() && m_runs.back().format == index && m_runs.back().image == NoName &&
        m_runs.back().anchors == NoName) {
        m_runs.back().length += text.size();
        return;
    }
    spend(BytesOfRun + searchAmong(m_families.size()));
    m_runs.push_back(Run{text.size(), index});
}

bool DocumentSink::picture(const Picture& picture, const CharFormat& format) {
    if (!spend(BytesOfPicture))
        return false;
    const QTextImageFormat image =
        pictureFormat(*m_cursor.document(), picture, m_options.metafiles, m_pictures);
    if (!image.isValid() || image.name().isEmpty())
        return false;
    const int index = formatIndex(format);
    QTextCharFormat merged = m_formats[size_t(index)];
    merged.merge(format.hidden ? hiddenPicture(image) : image);
    m_images.push_back(merged.toImageFormat());
    m_runs.push_back(Run{1, index, int(m_images.size()) - 1});
    m_text.append(QChar::ObjectReplacementCharacter);
    return true;
}

bool DocumentSink::wantsFallback() const {
    if (m_runs.empty() || m_runs.back().image == NoName)
        return false;
    const QTextImageFormat& last = m_images.back();
    return last.boolProperty(PictureIsBox) && !last.hasProperty(HiddenPictureSize) &&
           !last.hasProperty(PictureFallback);
}

void DocumentSink::fallbackPicture(const Picture& picture) {
    showFallback(*m_cursor.document(), picture, m_options.metafiles, m_pictures, m_images.back());
}

void DocumentSink::paragraphEnd(const ParagraphFormat& paragraph, const CharFormat& mark) {
    if (!spend(BytesOfParagraph + searchAmong(m_families.size()) + searchAmong(m_tabRows.size()))) {
        text(QStringView(u"\u2028"), mark);
        return;
    }
    insertParagraph(paragraph, mark);
}

void DocumentSink::countTabs(const QTextBlockFormat& format) {
    if (!format.hasProperty(QTextFormat::TabPositions))
        return;
    const QList<QTextOption::Tab> stops = format.tabPositions();
    size_t hash = 0;
    for (const QTextOption::Tab& stop : stops)
        hash = qHashMulti(hash, stop.position, int(stop.type));
    const qsizetype known = m_tabRows.size();
    m_tabRows.insert(hash);
    if (m_tabRows.size() > known)
        spend(BytesOfTabStop * stops.size());
}

void DocumentSink::rowStaysOpen() {
    QTextBlockFormat format;
    format.setProperty(RowStaysOpen, true);
    if (m_paragraphs > 0)
        m_cursor.mergeBlockFormat(format);
}

void DocumentSink::end(const ParagraphFormat& paragraph, const CharFormat& mark) {
    // What is kept of a place needs one, where a document has no text, or ends with that of a box.
    const bool onlyAnchors = m_runs.empty() && m_intoNothing && paragraph.anchors != NothingKept;
    const bool isBehindText = m_paragraphs > 0 && !m_cursor.blockFormat().hasProperty(KeptBox);
    if (!m_runs.empty() || (onlyAnchors && !isBehindText))
        insertParagraph(paragraph, mark);
    else if (onlyAnchors && !isFull())
        anchorAtEnd(m_names->keptAt(paragraph.anchors));
    if (m_paragraphs <= 1 || !m_targetStands)
        return;
    // The paragraph that follows the insertion keeps the shape it had, unless what was inserted
    // ahead of it in its line is too high in it. Nothing is higher in none than as it was counted.
    const bool keeps = m_intake.takesShape(m_cursor.block(), paragraphShape(m_targetFormat));
    m_cursor.setBlockFormat(keeps ? m_targetFormat : QTextBlockFormat());
}

/// There is no paragraph behind the last one that could hold what is kept there: it goes behind the
/// text of that.
void DocumentSink::anchorAtEnd(const QString& kept) {
    QTextCursor last = m_cursor;
    if (last.atBlockStart()) {
        const QTextBlockFormat own = last.blockFormat();
        if (own.hasProperty(TableRow)) // which nothing but this would make a row of its own
            return;
        QTextBlockFormat format;
        format.setProperty(KeptAtStart, own.stringProperty(KeptAtStart) + kept);
        last.mergeBlockFormat(format);
        return;
    }
    const QString before = last.charFormat().stringProperty(KeptAnchors);
    last.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor);
    QTextCharFormat format;
    format.setProperty(KeptAnchors, (before.isEmpty() ? ownNumber() : before) + kept);
    last.mergeCharFormat(format);
}

const DocumentSink::Shape& DocumentSink::shapeOf(const ParagraphFormat& paragraph) {
    const auto known = std::find_if(m_shapes.cbegin(), m_shapes.cend(),
                                    [&](const Shape& shape) { return shape.told == paragraph; });
    if (known != m_shapes.cend())
        return *known;
    if (m_shapes.size() < ShapesKept)
        m_shapes.emplace_back();
    Shape& shape = m_shapes[m_oldestShape];
    m_oldestShape = (m_oldestShape + 1) % ShapesKept;
    shape.told = paragraph;
    shape.format = blockFormat(paragraph, *m_names, tabTwips());
    shape.height = paragraphShape(shape.format);
    countTabs(shape.format);
    return shape;
}

void DocumentSink::insertParagraph(const ParagraphFormat& paragraph, const CharFormat& mark) {
    const Shape& shape = shapeOf(paragraph);
    const int start = m_runs.empty() ? formatIndex(mark) : m_runs.front().format;
    const QTextCharFormat& startFormat = m_formats[size_t(start)];
    const bool shapes = m_paragraphs > 0 || !m_textBefore;
    if (shapes && !m_intake.takesParagraph(m_letters[size_t(start)], shape.height))
        return;
    const bool first = m_paragraphs++ == 0;
    m_targetStands = m_textBehind || (m_runs.empty() && !m_intoNothing);
    if (first) {
        // A block that holds text of its own keeps its shape; an empty one takes what comes, and
        // one with text behind the cursor does when its start is cut off by a further paragraph.
        m_firstParagraph = paragraph;
        m_firstStart = start;
        if (!m_textBefore && !m_textBehind) {
            shapeFirst();
            m_cursor.setBlockCharFormat(startFormat);
        }
    } else {
        if (!m_textBefore && !m_firstShaped)
            shapeFirst();
        m_cursor.insertBlock(shape.format, startFormat);
        joinList(paragraph, start);
    }
    if (first && m_textBefore)
        insertRuns(paragraphShape(m_cursor.blockFormat()));
    else if ((first && m_textBehind) ||             // which shape it will have shows later
             paragraph.list.kind != ListKind::None) // whose label takes room
        insertRuns(higherShape(paragraphShape(m_cursor.blockFormat()), shape.height));
    else
        insertRuns(shape.height);
    // Nothing goes on behind a box where none of it has found room.
    if (paragraph.goesOn && !first && isFull() && m_cursor.block().length() == 1)
        m_cursor.deletePreviousChar();
    // It was told beside text that may not have found room.
    if (paragraph.mark != NothingKept && isFull() && !m_textBefore) {
        QTextBlockFormat cut = m_cursor.blockFormat();
        cut.clearProperty(ParagraphMark);
        m_cursor.setBlockFormat(cut);
    }
}

void DocumentSink::shapeFirst() {
    m_firstShaped = true;
    m_cursor.setBlockFormat(blockFormat(m_firstParagraph, *m_names, tabTwips()));
    joinList(m_firstParagraph, m_firstStart);
}

void DocumentSink::insertText(QStringView text, const Run& run) {
    // A document copies what it takes.
    const QString lent = QString::fromRawData(text.data(), text.size());
    const QTextCharFormat& format = m_formats[size_t(run.format)];
    if (run.anchors == NoName) {
        m_cursor.insertText(lent, format);
        return;
    }
    QTextCharFormat anchored = format;
    anchored.setProperty(KeptAnchors, m_anchors[size_t(run.anchors)]);
    m_cursor.insertText(lent, anchored);
}

void DocumentSink::insertRuns(const ParagraphShape& shape) {
    qsizetype at = 0;
    for (const Run& run : m_runs) {
        const QStringView text = QStringView(m_text).sliced(at, run.length);
        const LetterHeight& letters = m_letters[size_t(run.format)];
        if (run.image != NoName) {
            const QTextImageFormat& image = m_images[size_t(run.image)];
            if (m_intake.takesPicture(image.height(), letters, shape))
                m_cursor.insertText(text.toString(), image);
        } else if (const qsizetype taken = m_intake.taken(text, letters, shape); taken > 0) {
            insertText(text.first(taken), run);
        }
        at += run.length;
    }
    m_runs.clear();
    m_images.clear();
    m_anchors.clear();
    m_text.resize(0);
}

double DocumentSink::advance(int format, QChar character) {
    const auto known = m_advances.constFind({format, character});
    if (known != m_advances.constEnd())
        return *known;
    const double width =
        QFontMetricsF(m_formats[size_t(format)].font()).horizontalAdvance(character);
    m_advances.insert({format, character}, width);
    return width;
}

/// Of a label that hangs well within its room nobody has to know the size.
LabelSize DocumentSink::labelSize(const ParagraphFormat& paragraph, int start) {
    const ListLabel& label = paragraph.list;
    const QString text = labelText(m_lists.newLabel(), m_lists.number());
    const double room = paragraph.first / -TwipsPerPixel;
    const bool hangs = label.follow == LabelFollow::Tab && label.side == LabelSide::Left &&
                       paragraph.tabs.isEmpty() && label.tab == 0;
    if (hangs && WidestLetter * double(text.size()) * m_letters[size_t(start)].size <= room)
        return {};
    double width = 0;
    for (const QChar character : text)
        width += advance(start, character);
    return {int(std::lround(width * TwipsPerPixel)),
            int(std::lround(advance(start, u' ') * TwipsPerPixel))};
}

void DocumentSink::joinList(const ParagraphFormat& paragraph, int start) {
    const ListLabel& label = paragraph.list;
    if (label.kind == ListKind::None) {
        m_lists.interrupt();
        return;
    }
    QTextList* list = m_lists.goOn(paragraph);
    if (!list) {
        if (!spend(BytesOfList + label.keptList.size() + label.keptOverride.size()))
            return;
        list = m_cursor.createList(listFormat(m_lists.newLabel()));
        m_lists.began(paragraph, list);
    }
    QTextBlockFormat item = m_cursor.blockFormat();
    item.merge(itemFormat(*list));
    if (const LabelSize size = labelSize(paragraph, start); size.width > 0) {
        placeParagraph(item, paragraph, tabTwips(), size);
        countTabs(item);
    }
    m_cursor.setBlockFormat(item);
}

} // namespace orvalis::rtf
