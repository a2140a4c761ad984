// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/formats.h"
#include "rtf/kept/kept_parts.h"
#include "rtf/kept/shape_frame.h"
#include "rtf/kept/tracked_words.h"
#include "rtf/pictures/picture.h"
#include "rtf/words/rtf_output.h"
#include "rtf/writing/paragraph_writer.h"
#include "rtf/writing/writer_tables.h"

#include <QByteArray>
#include <QStringView>

#include <array>
#include <optional>
#include <vector>

namespace orvalis::rtf {

/// Writes paragraphs as RTF and makes the file of them.
///
/// Only what changes is written, without groups; font and colour tables grow as they are used and
/// are put in front at the end.
class BodyWriter {
public:
    /// \param parts what is kept of the document that it writes of.
    /// \param shownFamily in which text shows that no font is known of.
    BodyWriter(const KeptParts& parts, const QString& shownFamily);
    BodyWriter(const BodyWriter&) = delete;
    BodyWriter& operator=(const BodyWriter&) = delete;

    /// The families and links by which character formats are told.
    Names& names() { return m_tables.names(); }

    /// The family of text that names none.
    int unnamedFamily() const { return m_unnamedFamily; }

    // What formats state (see stated.h) is told, and nothing else that is as usual.
    /// \param number of a numbered list item.
    void beginParagraph(const ParagraphFormat& paragraph, int number);
    void text(QStringView text, const CharFormat& format);
    void picture(const Picture& picture, const CharFormat& format);
    /// Whether a shape has a picture where the paragraph stands, and no text.
    bool isPictureOfBox(const ParagraphFormat& paragraph) const;
    /// A paragraph that is such a picture.
    /// \returns false where the shape has one by now.
    bool pictureOfBox(const ParagraphFormat& paragraph, const Picture& picture);
    /// A field, formula or shape that shows text by itself, in place of the text.
    void shown(const CharFormat& format);
    /// Whether text can be that of a shape in a line which is written anew.
    bool standsInShape(const CharFormat& format);
    /// Behind such a text.
    void endShape();
    /// What is kept behind a character.
    void writeAnchors(int anchors);
    /// \param mark format of the paragraph's mark, null for that of its last run.
    void endParagraph(const CharFormat* mark);

    /// A row of a table, whose cells are begun and ended; the last one ends with the row.
    /// \param row what is kept of it.
    /// \param first of its paragraphs, which a section may begin with.
    void beginRow(int row, const ParagraphFormat& first);
    /// \param shape of its paragraph, as it is kept.
    /// \param anchors what is kept ahead of its first character.
    void beginCell(int shape, int anchors);
    void endCell(const CharFormat& look);
    /// The last cell of a row of a table in a cell, and the row.
    void endNestedRow(int row);
    void endRow();
    /// Whether a row has been begun in the text that a paragraph will be of, that of a box or the
    /// document's own.
    bool hasRows(const ParagraphFormat& paragraph) const;

    /// The whole file.
    /// \param defaultTab twips between default tab stops.
    /// \param parts what is kept of the document.
    QByteArray file(int defaultTab, const KeptParts& parts);

private:
    /// What is kept, on lines of its own.
    QByteArray kept(QStringView text);
    void endLastParagraph();
    void tellAfter();
    void breakPage();
    bool cellsEnd(QStringView text, const CharFormat& format);
    bool isInBox(const ParagraphFormat& paragraph) const;
    bool goToBox(const ParagraphFormat& paragraph);
    void openBox(const ParagraphFormat& paragraph);
    ShapeFrame frameOf(int box) const;
    void passPlaces(int next);
    void enterBox(int place);
    bool isAtPicture() const;
    void leaveText();
    void closeBox();
    bool goesOn(const ParagraphFormat& paragraph) const;
    bool framed(const Picture& picture);
    void goTo(const ParagraphFormat& paragraph);
    void beginSection(QStringView text);
    void goToTracked(const CharFormat& format);
    void closeTracked();
    CharFormat lookOfEnd(CharFormat look);
    void change(const CharFormat& format);
    bool changeKept(int kept);
    void changeHighlight(const CharFormat& format);
    void changeStrike(const CharFormat& format);
    void changeSpacing(int spacing);
    void changeCapitals(Capitals capitals);
    void changeLink(int link);
    void changeField(int field);
    void openGroup();
    void closeGroup();
    ShapeFrame lineFrame(int field) const;
    void plain();
    void toggle(int bit, bool on, QByteArrayView word);

    WriterTables m_tables;
    RtfOutput m_out;
    ParagraphWriter m_paragraphs;
    CharFormat m_format;
    int m_stated = 0; ///< of the look: what was written since it began
    int m_due = 0;    ///< of what the next text states, what is not written yet
    struct Look {
        CharFormat format;
        int stated = 0;
    };
    std::array<Look, 2> m_lookBefore; ///< a link or field that is open
    TrackedWords m_trackedWords;
    int m_tracked = NothingKept; ///< the words of a group that tells of a tracked change
    Look m_aroundTracked;
    CharFormat m_last; ///< how the text looks that was written last
    size_t m_openGroups = 0;
    /// What stands around a text box.
    struct Around {
        Look look;
        ParagraphFormat paragraph;
        int mark = NothingKept;
        int afterBehind = NoLength;
        bool paragraphEnds = false;
        bool paragraphIsEmpty = true;
        bool anyRow = false;
    };
    Around m_around;
    int m_box = NothingKept; ///< that is open
    int m_boxPlace = 0;      ///< what is written of it, of all that its shape shows
    ShapeFrame m_frame;
    bool m_boxIsEmpty = true;     ///< it has no characters by themselves
    bool m_goesOn = false;        ///< the paragraph, which stands behind a box in it
    int m_unnamedFamily = NoName; ///< of text that names no font
    SymbolFont m_symbols = SymbolFont::None;
    bool m_paragraphEnds = false; ///< and the word for it is still to come
    bool m_paragraphIsEmpty = true;
    bool m_pageBreaks = false;    ///< ahead of the text that comes next
    int m_afterBehind = NoLength; ///< the space after the paragraph, to be told behind its text
    bool m_rowEnds = false;       ///< and nothing has come since
    bool m_anyRow = false;
    int m_mark = NothingKept; ///< how the paragraph's mark looks, if other than its text
};

} // namespace orvalis::rtf
