// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/writer.h"

#include "rtf/kept/kept_parts.h"
#include "rtf/kept/kept_shape.h"
#include "rtf/kept/kept_text.h"
#include "rtf/pictures/picture_format.h"
#include "rtf/writing/anchored_runs.h"
#include "rtf/writing/body_writer.h"
#include "rtf/writing/document_formats.h"
#include "rtf/writing/field_runs.h"
#include "rtf/writing/row_scan.h"

#include <QSet>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

namespace orvalis::rtf {

namespace {

/// Walks through a part of a document and tells the body writer what stands there.
class DocumentWalk {
public:
    DocumentWalk(const QTextDocument& document, int from, int to, const Progress& progress)
        : m_document(document)
        , m_from(from)
        , m_to(to)
        , m_progress(progress)
        , m_isWhole(from == 0 && to == document.characterCount() - 1)
        , m_tellAt(progress ? from : std::numeric_limits<int>::max())
        , m_defaultTab(qRound(document.defaultTextOption().tabStopDistance() * TwipsPerPixel))
        , m_body(keptParts(document), document.defaultFont().family())
        , m_formats(document, m_body.names(), m_body.unnamedFamily()) {
        m_bareCell = m_body.names().kept(BareCell.toString());
        if (m_isWhole)
            m_text = document.toRawText();
    }

    QByteArray rtf() {
        QTextBlock block = m_document.findBlock(m_from);
        int position = block.position();
        while (block.isValid() && position <= m_to) {
            if (position >= m_tellAt)
                tellProgress(position);
            const int rows = rowAt(block, position);
            for (int line = 0; line < std::max(rows, 1); ++line, block = block.next()) {
                if (rows == 0)
                    paragraph(block, position);
                else
                    rowLine(block, position, line);
                position += block.length();
            }
        }
        return m_body.file(m_defaultTab, partsToWrite());
    }

private:
    void tellProgress(int position) {
        constexpr int ToldCharacters = 1 << 13;
        m_tellAt = position + ToldCharacters;
        m_progress(double(position - m_from) / (m_to - m_from + 1));
    }

    /// A part of a document has a page of its own wherever it goes.
    KeptParts partsToWrite() const {
        KeptParts parts = keptParts(m_document);
        if (m_isWhole)
            return parts;
        KeptParts ofPart;
        ofPart.language = parts.language;
        ofPart.styles = parts.styles;
        ofPart.authors = parts.authors;
        ofPart.furtherDefaults = parts.furtherDefaults;
        ofPart.defaultFont = parts.defaultFont;
        ofPart.unnamedFamily = parts.unnamedFamily;
        ofPart.oddFamilies = parts.oddFamilies;
        ofPart.listPictures = parts.listPictures;
        ofPart.faces = parts.faces;
        ofPart.themes = parts.themes;
        return ofPart;
    }

    /// The paragraphs of a row that begins with this one and is all there; 0 for none. A row that
    /// somebody has torn is text with tabs.
    int rowAt(const QTextBlock& first, int position) {
        if (position < m_rowsToldTo)
            return 0;
        m_tornIsEmpty = false;
        const ParagraphFormat begin = m_formats.shapeOf(first);
        if (begin.row == NothingKept || !begin.rowBegins || position < m_from)
            return 0;
        RowScan scan(m_body.names());
        int end = position;
        for (QTextBlock block = first; block.isValid(); block = block.next()) {
            const ParagraphFormat& line = m_formats.shapeOf(block);
            if (scan.lines() > 0 &&
                (line.row == NothingKept || line.rowBegins || line.section != NothingKept ||
                 line.box != begin.box || line.boxPlace != begin.boxPlace))
                break;
            scan.line(line, block.length() == 1);
            for (auto it = block.begin(); !it.atEnd(); ++it)
                if (const QTextFragment run = it.fragment(); endsCells(run))
                    scan.cellsEnd(nestingOf(run), run.length());
            end += block.length();
        }
        scan.end();
        m_rowsToldTo = end;
        m_tornIsEmpty = scan.isEmpty();
        if (!scan.isWhole() || end - 1 > m_to)
            return 0;
        m_rowsToldTo = position;
        m_row.emplace(std::move(scan));
        return int(m_row->lines());
    }

    /// Whether the run is tabs that end cells.
    bool endsCells(const QTextFragment& run) {
        const int cell = m_formats.lookOf(run).cell;
        return cell != NothingKept && cell != m_bareCell && run.text().count(u'\t') == run.length();
    }

    /// How deep the table is nested whose cells end with the run.
    int nestingOf(const QTextFragment& run) {
        return nestingOfCell(m_body.names().keptAt(m_formats.lookOf(run).cell));
    }

    /// Whether the run is tabs that are told as the ends of cells, as all of their table is there.
    bool endsToldCells(const QTextFragment& run) {
        return endsCells(run) && (m_row->nestedAreWhole() || nestingOf(run) == 0);
    }

    // Positions are counted along the way: a block and a fragment find theirs only by a search.
    void paragraph(const QTextBlock& block, int position) {
        const ParagraphFormat& own = m_formats.shapeOf(block);
        const bool isPicture = own.box != NothingKept && m_body.isPictureOfBox(own);
        if (isPicture && pictureOfBox(block, position))
            return;
        if (own.row == NothingKept && !isPicture) {
            m_body.beginParagraph(own, m_formats.numberOf(block));
        } else {
            ParagraphFormat torn = own;
            if (isPicture) // to which somebody has added text
                torn.box = NothingKept;
            torn.row = NothingKept;
            leaveOutListOfCell(torn);
            torn.rowBegins = torn.rowStaysOpen = false;
            torn.nesting = 0;
            torn.nestedRow = NothingKept;
            // Some readers leave out what stands between the rows of a table.
            torn.inTable = m_tornIsEmpty && m_body.hasRows(own);
            m_body.beginParagraph(torn, m_formats.numberOf(block));
        }
        m_inCell = false;
        runs(block, position, [](const QTextFragment&, int) { return false; });
    }

    /// A picture that a shape has beside others, and that is all of the paragraph.
    /// \returns whether it is that.
    bool pictureOfBox(const QTextBlock& block, int position) {
        if (block.length() != 2 || position < m_from || position >= m_to)
            return false;
        const QTextImageFormat image = block.begin().fragment().charFormat().toImageFormat();
        return image.isValid() &&
               m_body.pictureOfBox(m_formats.shapeOf(block), pictureOfFormat(m_document, image));
    }

    /// A line of the document that holds cells of a row.
    void rowLine(const QTextBlock& block, int position, int line) {
        const bool last = line == m_row->lines() - 1;
        const bool nests = m_row->nestedAreWhole() && !last;
        const bool endsNested = nests && m_row->endsNested(line);
        ParagraphFormat own = m_formats.shapeOf(block);
        own.inTable = true;
        const int nestedRow = std::exchange(own.nestedRow, NothingKept);
        if (!nests)
            own.nesting = 0;
        if (line == 0)
            m_body.beginRow(m_row->row(), own);
        // What holds for the whole row is told by now.
        own.section = NothingKept;
        own.row = NothingKept;
        own.rowBegins = false;
        if (std::exchange(own.pageWord, PageWord::OfParagraph) != PageWord::OfParagraph)
            own.pageBreakBefore = false;
        std::vector<int> shapes;
        for (auto it = block.begin(); !it.atEnd(); ++it)
            if (const QTextFragment run = it.fragment(); endsToldCells(run))
                shapes.insert(shapes.end(), size_t(run.length()), m_formats.lookOf(run).cell);
        if (last || endsNested)
            leaveOutLabel(own, shapes.empty());
        else
            leaveOutListOfCell(own);
        size_t cell = 0;
        const auto beginCell = [&](int anchors) {
            own.anchors = anchors;
            if (cell < shapes.size())
                m_body.beginCell(shapes[cell++], anchors);
            else
                m_body.beginParagraph(
                    own, own.list.kind == ListKind::None ? 0 : m_formats.numberOf(block));
        };
        beginCell(own.anchors);
        m_inCell = true;
        runs(block, position, [&](const QTextFragment& run, int anchors) {
            if (!endsToldCells(run))
                return false;
            for (int mark = 1; mark <= run.length(); ++mark) {
                m_body.endCell(m_formats.lookOf(run));
                beginCell(mark == run.length() ? anchors : NothingKept);
            }
            return true;
        });
        if (last)
            m_body.endRow();
        else if (endsNested)
            m_body.endNestedRow(nestedRow);
    }

    /// It is told where a cell ends.
    void leaveOutListOfCell(ParagraphFormat& paragraph) {
        const QString kept = m_body.names().keptAt(paragraph.kept);
        if (!isInList(kept))
            return;
        paragraph.kept = m_body.names().kept(withoutListOfCell(kept));
        m_formats.tellWhatCounts(paragraph);
    }

    /// What ends a row is no item of a list any more where that is read.
    /// \param isAlone the cell that the paragraph ends is all of its line.
    void leaveOutLabel(ParagraphFormat& paragraph, bool isAlone) {
        ListLabel& list = paragraph.list;
        if (list.source == ListSource::Numbering && isAlone)
            return;
        if (list.kind != ListKind::None && list.hasTables())
            paragraph.kept =
                m_body.names().kept(m_body.names().keptAt(paragraph.kept) + listOfCell(list));
        list = {};
        paragraph.mark = NothingKept;
    }

    /// \param takes whether a run has been written otherwise, and what is anchored to it.
    template <class Takes>
    void runs(const QTextBlock& block, int position, const Takes& takes) {
        const QStringView text = textOf(block, position);
        m_anchored.beginParagraph();
        bool empty = true;
        int at = 0;
        Field field;
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const int length = fragment.length();
            const int start = std::max(at, m_from - position);
            const int end = std::min(at + length, m_to - position);
            at += length;
            if (start >= end)
                continue;
            empty = false;
            CharFormat look = m_formats.lookOf(fragment);
            if (look.anchors != NothingKept && !m_anchored.ends(look.anchors, it, at - length))
                look.anchors = NothingKept;
            if (takes(fragment, look.anchors))
                continue;
            if (look.field != field.kept) {
                field = fieldFrom(it, at - length, text, position);
                if (field.runs == FieldRuns::Are::Shown)
                    m_body.shown(look);
            }
            const QStringView part = text.sliced(start, end - start);
            const bool isOfField = field.runs && start < field.end;
            switch (isOfField ? *field.runs : FieldRuns::Are::Text) {
            case FieldRuns::Are::Shown:
                m_body.writeAnchors(look.anchors);
                break;
            case FieldRuns::Are::ShapeText:
                shapeText(part, look, end == field.end);
                break;
            case FieldRuns::Are::Text:
                if (field.runs)
                    look.field = NothingKept;
                run(fragment, part, look);
            }
        }
        if (empty) {
            const CharFormat mark = m_formats.look(block.charFormat());
            m_body.endParagraph(&mark);
        } else {
            m_body.endParagraph(nullptr);
        }
    }

    void run(const QTextFragment& fragment, QStringView text, const CharFormat& look) {
        if (!m_formats.isImage(fragment)) {
            m_body.text(text, look);
            return;
        }
        const Picture picture = pictureOfFormat(m_document, fragment.charFormat().toImageFormat());
        for (qsizetype i = 0; i < text.size(); ++i)
            m_body.picture(picture, look);
    }

    void shapeText(QStringView text, CharFormat look, bool endsShape) {
        const int behind = std::exchange(look.anchors, NothingKept);
        m_body.text(text, look);
        if (endsShape)
            m_body.endShape();
        m_body.writeAnchors(behind);
    }

    /// A field of a paragraph.
    struct Field {
        int kept = NothingKept;
        std::optional<FieldRuns::Are> runs = {}; ///< nothing where it holds its text
        int end = 0;                             ///< of the runs, in the paragraph
    };

    /// \param it the first run of a field.
    /// \param at where it begins in the paragraph.
    Field fieldFrom(QTextBlock::iterator it, int at, QStringView text, int position) {
        Field field{m_formats.lookOf(it.fragment()).field};
        const QString kept = m_body.names().keptAt(field.kept);
        const std::optional<KeptShown> shown = shownBy(kept);
        if (!shown)
            return field;
        FieldRuns runs(*shown);
        for (; !it.atEnd(); ++it) {
            const CharFormat& look = m_formats.lookOf(it.fragment());
            if (look.field != field.kept)
                break;
            runs.run(it.fragment().length(), m_body.standsInShape(look),
                     look.anchors != NothingKept);
        }
        field.end = at + runs.length();
        field.runs = FieldRuns::Are::Text;
        const bool isWhole = position + at >= m_from && position + field.end <= m_to;
        const bool isShape = isShapeInLine(shown->group);
        if (!isWhole || (isShape && !m_inCell))
            return field;
        const FieldRuns::Are are = runs.are(text.sliced(at, runs.length()));
        // A part of the text that has been pasted elsewhere is none of a second shape.
        if (are != FieldRuns::Are::ShapeText || !m_shapesWritten.contains(field.kept))
            field.runs = are;
        if (isShape)
            m_shapesWritten.insert(field.kept);
        return field;
    }

    /// The text of a paragraph. That of a whole document is taken at once, which costs least.
    QStringView textOf(const QTextBlock& block, int position) {
        if (m_isWhole)
            return QStringView(m_text).sliced(position, block.length() - 1);
        m_text = block.text();
        return m_text;
    }

    const QTextDocument& m_document;
    int m_from;
    int m_to;
    const Progress& m_progress;
    bool m_isWhole;
    QString m_text; ///< of the document, or of the paragraph
    int m_tellAt;   ///< the place behind which the progress is told next
    int m_defaultTab;
    BodyWriter m_body;
    DocumentFormats m_formats;
    int m_rowsToldTo = 0; ///< torn rows reach up to there
    bool m_tornIsEmpty = false;
    bool m_inCell = false; ///< the paragraph that is written
    int m_bareCell = NothingKept;
    std::optional<RowScan> m_row; ///< that is written
    AnchoredRuns m_anchored{m_formats};
    QSet<int> m_shapesWritten; ///< in lines
};

} // namespace

QByteArray writeRtf(const QTextDocument& document, const Progress& progress) {
    return DocumentWalk(document, 0, document.characterCount() - 1, progress).rtf();
}

QByteArray writeRtf(const QTextDocument& document, int from, int to) {
    const int last = document.characterCount() - 1;
    from = std::clamp(from, 0, last);
    to = std::clamp(to, 0, last);
    return DocumentWalk(document, std::min(from, to), std::max(from, to), {}).rtf();
}

} // namespace orvalis::rtf
