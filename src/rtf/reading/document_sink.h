// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/paragraph_place.h"
#include "rtf/pictures/picture_format.h"
#include "rtf/reader.h"
#include "rtf/reading/list_keeper.h"
#include "rtf/reading/sink.h"
#include "rtf/room/document_room.h"
#include "rtf/room/intake.h"

#include <QSet>
#include <QTextCursor>
#include <QTextImageFormat>

#include <optional>
#include <vector>

namespace orvalis::rtf {

/// Writes what it is told at a cursor of a text document.
///
/// A paragraph is kept until its shape is known, so that each takes one insertion a run. Small
/// pieces cost a document much more memory and time than the bytes that name them; when they have
/// cost what the size of the file allows, the rest comes in as text alone, its paragraphs as lines.
/// What is more than a document can show (see DocumentRoom) is left out.
class DocumentSink final : public Sink {
public:
    /// \param fileSize bytes of the file, by which the memory that is spent is bounded.
    /// \param tabTwips between the document's default stops; none where the file is to tell them.
    DocumentSink(QTextCursor& cursor, const ReadOptions& options, qsizetype fileSize,
                 std::optional<int> tabTwips = {});

    void begin(const Names& names) override;
    void text(QStringView text, const CharFormat& format) override;
    bool picture(const Picture& picture, const CharFormat& format) override;
    bool wantsFallback() const override;
    void fallbackPicture(const Picture& picture) override;
    void paragraphEnd(const ParagraphFormat& paragraph, const CharFormat& mark) override;
    void end(const ParagraphFormat& paragraph, const CharFormat& mark) override;
    void rowStaysOpen() override;
    void defaultTab(int twips) override;
    bool takesStyles(const QString& styles) override;
    bool takesAuthors(const QString& authors) override;
    void anchor(const QString& kept) override;
    void kept(const KeptParts& parts) override;
    bool isFull() const override { return m_full || m_intake.isFull(); }

    /// Whether the document holds less than the file: text, or fonts.
    bool leftOut() const { return m_fontsLeftOut || isFull(); }

    /// Twips, where the file named them.
    int defaultTabTwips() const { return m_defaultTab; }

private:
    /// How a paragraph is shaped, in terms of the document.
    struct Shape {
        ParagraphFormat told;
        QTextBlockFormat format;
        ParagraphShape height;
    };

    /// A part of the paragraph's text with one format; a picture when it has an image, a single
    /// character when something is anchored to it.
    struct Run {
        qsizetype length = 0;
        int format = 0;
        int image = NoName;
        int anchors = NoName;
    };

    int formatIndex(const CharFormat& format);
    const Shape& shapeOf(const ParagraphFormat& paragraph);
    void insertParagraph(const ParagraphFormat& paragraph, const CharFormat& mark);
    void anchorAtEnd(const QString& kept);
    void shapeFirst();
    void insertText(QStringView text, const Run& run);
    void insertRuns(const ParagraphShape& shape);
    void joinList(const ParagraphFormat& paragraph, int start);
    LabelSize labelSize(const ParagraphFormat& paragraph, int start);
    double advance(int format, QChar character);
    int tabTwips() const { return m_tabTwips.value_or(m_defaultTab); }
    bool spend(qint64 bytes);
    void countTabs(const QTextBlockFormat& format);

    QTextCursor& m_cursor;
    ReadOptions m_options;
    const Names* m_names = nullptr;
    Intake m_intake;
    bool m_full = false;
    bool m_fontsLeftOut = false;
    qint64 m_structureLeft; ///< bytes that runs and paragraphs may still cost
    PictureBounds m_pictures;
    int m_defaultTab = 720;
    std::optional<int> m_tabTwips;

    std::vector<QTextCharFormat> m_formats;
    std::vector<LetterHeight> m_letters;             ///< of the formats
    QHash<std::pair<int, QChar>, double> m_advances; ///< pixels of a character in a format
    QHash<CharFormat, int> m_formatIndex;
    CharFormat m_lastFormat;
    int m_lastIndex = NoName;
    QSet<int> m_families;
    QSet<size_t> m_tabRows; ///< hashes of the tab stops of paragraphs

    QString m_text;
    std::vector<Run> m_runs;
    std::vector<QTextImageFormat> m_images;
    std::vector<QString> m_anchors;

    std::vector<Shape> m_shapes; ///< that paragraphs had last
    size_t m_oldestShape = 0;
    ListKeeper m_lists;

    int m_paragraphs = 0;
    bool m_intoNothing = false; ///< the document was empty
    bool m_textBefore = false;  ///< the block held text before the cursor
    bool m_textBehind = false;
    bool m_targetStands = false; ///< what follows the insertion is a paragraph of its own
    bool m_firstShaped = false;
    ParagraphFormat m_firstParagraph;
    int m_firstStart = 0; ///< the format with which it begins
    QTextBlockFormat m_targetFormat;
};

} // namespace orvalis::rtf
