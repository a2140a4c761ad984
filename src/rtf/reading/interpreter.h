// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/characters/font_table.h"
#include "rtf/formats/stated.h"
#include "rtf/kept/kept_group.h"
#include "rtf/kept/kept_sets.h"
#include "rtf/kept/section_columns.h"
#include "rtf/kept/tracked_words.h"
#include "rtf/reader.h"
#include "rtf/reading/group_state.h"
#include "rtf/reading/list_tables.h"
#include "rtf/reading/shape_state.h"
#include "rtf/reading/sink.h"
#include "rtf/reading/text_state.h"
#include "rtf/reading/unseen_text.h"
#include "rtf/words/group_head.h"
#include "rtf/words/tokenizer.h"

#include <QList>

#include <array>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace orvalis::rtf {

struct ShapeScan;

/// The state machine between tokens and a sink.
///
/// It follows groups with a stack of its own, bounded in depth, keeps the tables of the file's head
/// and gathers text until its format changes. One object reads one file.
class Interpreter {
public:
    Interpreter(QByteArrayView bytes, Sink& sink, const Progress& progress);
    ReadResult run();

private:
    // Structure (interpreter.cpp)
    bool step(const Token& token);
    void openGroup();
    bool closeGroup();
    void skipGroup();
    void groupEnds();
    void symbol(uchar character);
    void word(const Token& token);
    void fault(Fault fault);
    void askForRoom();
    void tellProgress();
    void finish();

    // Text (interpreter_text.cpp)
    void bytes(QByteArrayView run);
    void decode(QByteArrayView run);
    void appendLetters(QStringView text);
    static bool isByNumber(char32_t character, SymbolFont font, const CodePage* page);
    void flushPending();
    void character(char16_t character);
    void unicode(char32_t code);
    void appendOfWord(char16_t character);
    void append(QStringView text);
    void appendSigns(QStringView text, SymbolFont font);
    void prepareText();
    void endHalfCharacter();
    void beginText();
    void flushText();
    void giveText();
    bool shows() const {
        return m_state.destination == Destination::Body && !m_state.deleted &&
               !(m_state.entriesAround > 0 && m_state.chars.hidden);
    }
    bool captures() const;
    const CodePage& pageOfText() const;

    // Paragraphs (interpreter_paragraphs.cpp)
    void paragraphEnd();
    void tellOpenRow(const ParagraphFormat& next);
    void pageEnd();
    void showStart(ListLabel& list) const;
    const ParagraphFormat& shapedParagraph();
    int lookOfParagraphMark(bool tracked);

    // Properties (interpreter_properties.cpp)
    bool characterWord(const Token& token);
    bool paragraphWord(const Token& token);
    void tabStop(int position);
    void selectFont();
    bool namesFont() const;
    void plainCharacters();
    QRgb color(int index) const;

    // What holds for the whole document (interpreter_head.cpp)
    void headEnds() {
        if (!std::exchange(m_headEnded, true))
            settleHead();
    }
    /// Something of the text is about to come.
    void textComes() {
        headEnds();
        boxComes();
    }
    void boxComes() {
        if (m_box.depth > 0 && !m_box.isOpen && !m_box.begins)
            beginBox();
    }
    void settleHead();
    void settleLook(CharFormat& look) const;
    void takeTextForSigns(SymbolFont font, const CodePage* page);
    void knowOfParagraphs();
    int known() const { return m_countedOfCharacters & stated::Knows; }
    CharFormat told(CharFormat chars) const;

    // Directions (interpreter_directions.cpp)
    void turn(bool rightToLeft);
    Side thisSide() const;
    bool sideWord(const KeptCall& call);
    static bool saysOfSide(KeptCall& call);
    void sayOfSide(int bit);
    void tellOther();

    // Destinations (interpreter_destinations.cpp)
    bool destinationWord(const Token& token);
    void openDestination(Destination destination);
    void closeDestination(Destination destination);
    bool tableWord(const Token& token);
    void setDocumentPage(int number);
    void colorBytes(QByteArrayView run);
    void endColor();
    void fontBytes(QByteArrayView run);

    // Lists (interpreter_lists.cpp)
    bool listWord(const Token& token);
    void tellOfList(const Token& token);
    bool numberingWord(const Token& token);
    QString keptOfLists(const Token& token);
    bool mayBeginList() const;
    bool isInList() const;

    // Fields (interpreter_fields.cpp)
    void keepField();
    void keepEntry(QByteArrayView word);
    void keepObjectOfText(QByteArrayView word);
    bool beginField(const QString& opening);
    bool goesWithShape(QByteArrayView field, bool isLink) const;
    QString inField(const QString& shape) const;
    void fieldEnds();
    void takeInstruction(const QString& instruction);

    // Tables (interpreter_tables.cpp)
    bool rowWord(const Token& token);
    void keepOfRow(KeptLevel level, const KeptCall& call);
    int row();
    int unevenRow(int cells);
    int rowOfParagraph();
    bool endsCellOfRow(int cell) const { return cell != NothingKept && cell != m_bareCell; }
    int cellShape(bool nested);
    int bareCell();
    QString listInCell();
    void cellTabs(size_t count);
    void rowEnd(bool outermost);
    void keepNestedRow();
    int endedNestedRow();
    void rowParagraphEnd(bool kept, bool outermost);

    // What is kept as it came (interpreter_keeping.cpp)
    bool keptWord(const Token& token);
    bool furtherFont(KeptCall& call) const;
    void keepScript();
    void setEastern(const ControlWord* word);
    void keepCharacters(int set);
    void keepParagraph(int set);
    void keepGroup(const Token& token, KeptPlace place);
    void keepStrange(const Token& token);
    FileTables fileTables(const FontTable::Font* usual) const;
    void placeGroup(KeptPlace place, const QString& group);

    // What is anchored to a place in the text (interpreter_anchors.cpp)
    void anchor(const QString& kept);
    void anchorMark(const QString& word);
    void anchorBehindCells();
    QString lookOfMark() const;
    bool keepDeleted();
    bool keepUnseen(QByteArrayView word, UnseenAs as, bool isUnseen);

    // Sections, and the document as a whole (interpreter_sections.cpp)
    void sectionEnd();
    QString sectionBreak();
    void tellFirstSection();
    QString sectionText() const;
    QString furtherDefaults() const;
    void tellKept();

    // Shapes (interpreter_shapes.cpp)
    void keepShape(const Token& token);
    void keepFormula();
    void expectBox();
    void expectBoxAt(int place);
    void enterText();
    void leaveText();
    int placeHere() const;
    bool isInFrame() const;
    bool isEmptyText() const;
    void beginPictureOfBox();
    void endPictureOfBox();
    void beginBox();
    void endBox();
    void shapeEnds();
    bool endsBehindBox();
    void shapeBesideBox();
    void showPicture(const Picture& picture, const CharFormat& look);

    // Shapes in cells (interpreter_line_boxes.cpp)
    void expectLineBox(const Token& token, const ShapeScan& scan);
    void beginLineBox();
    void endLineBox();
    void dissolveLineBox();

    // Pictures (interpreter_pictures.cpp)
    bool pictureWord(const Token& token);
    void pictureBytes(QByteArrayView run);
    void deliverPicture();
    QString wordsOfPicture() const;

    Tokenizer m_tokenizer;
    Sink& m_sink;
    const Progress& m_progress;
    qsizetype m_size;
    qsizetype m_tellAt; ///< the place in the bytes behind which the progress is told next
    ReadResult m_result;
    Names m_names;

    std::vector<GroupState> m_groups;
    GroupState m_state;
    qsizetype m_unstoredGroups = 0;
    GroupHead m_head{false};

    const CodePage* m_documentPage;
    FontTable m_fonts;
    size_t m_fontEntryDepth = 0; ///< of the groups, where the entry of the font table began
    std::array<int, 5> m_furtherDefaults; ///< numbers of fonts by what they are of, or NoName
    bool m_headEnded = false;             ///< text has come
    bool m_bodyBegun = false;             ///< or at least words that shape a paragraph or a row
    /// What counts of what is stated. Whatever it will be, all is held until the text begins.
    int m_countedOfCharacters = stated::All;
    int m_countedOfParagraphs = ~0;
    bool m_nameless = true;
    QList<QRgb> m_colors;
    QRgb m_color = AutomaticColor;
    QString m_colorTheme; ///< of that colour
    ColorThemes m_themes;
    ListTables m_lists;

    KeptSets m_kept;
    TrackedWords m_tracked;
    int m_keptOfSection = 0;
    int m_keptOfDocument = 0;
    SectionColumns m_columns;
    QString m_sectionGroups;
    QString m_anchorsAtStart; ///< of the paragraph
    /// What is kept of a place behind the cell that ended last; where it has a look, the word for
    /// the number of a note.
    struct AnchorBehindCell {
        QString kept;
        std::optional<CharFormat> look;
        bool tellsPlain = false; ///< the group that it stands in
    };
    std::vector<AnchorBehindCell> m_anchorsBehindCell;
    bool m_sectionBegins = false;          ///< with the paragraph, and is not the first one
    bool m_paragraphBeforeSection = false; ///< it ended by itself, not by the section's end
    bool m_firstSectionTold = false;
    KeptParts m_parts;
    bool m_stylesKept = false;
    bool m_authorsKept = false;
    qsizetype m_listKeptTo = 0; ///< where the list ends that was kept last
    qint64 m_keptLeft;          ///< bytes that groups may still take

    QString m_text;
    CharFormat m_textFormat;
    QByteArray m_pending;
    int m_numberings = 0;
    int m_fallbackToSkip = 0;
    char16_t m_highSurrogate = 0;
    std::vector<CharFormat> m_cellsEnded; ///< the looks of tabs that are still to come
    ParagraphFormat m_lastOfCell;
    ParagraphFormat m_shapeOfCell; ///< the last one that was written down, as m_cellShape
    int m_cellShape = NothingKept;
    RowState m_rows;
    QString m_nestedGroup;         ///< what shapes the nested row that ends
    int m_nestedRow = NothingKept; ///< that ends with the paragraph
    int m_nestedRows = 0;
    struct Uneven {
        int row = NothingKept;
        int cells = 0;
        int kept = NothingKept;
    };
    Uneven m_uneven; ///< the last one
    int m_bareCell = NothingKept;
    int m_cellsOfLine = 0; ///< that have ended since the last paragraph
    bool m_rowEnds = false;
    bool m_inParagraph = false;
    int m_afterAhead = 0;     ///< the space after the paragraph as its text began
    int m_afterSaidAhead = 0; ///< and whether it was stated
    bool m_pageBreak = false;
    PageWord m_pageWord = PageWord::InFront;
    int m_shapes = 0; ///< that are kept
    TextBox m_box;    ///< that came last
    LineBox m_lineBox;
    TextLabel m_label;
    TextAround m_around;
    ListKind m_lastListKind = ListKind::None;
    ParagraphFormat m_shaped;

    QString m_capture;
    CharFormat m_captureFormat;
    QString m_fieldText; ///< of a field that is not kept, to show where it brings no result
    int m_fields = 0;    ///< that are kept
    /// The look of the instruction of a field that shows what this holds.
    struct FieldLook {
        int fieldsAround = 0; ///< with the field
        std::optional<CharFormat> look;
    };
    std::vector<FieldLook> m_fieldLooks; ///< as they stand in each other
    int m_fieldsAroundInstruction = 0;   ///< that came last
    size_t m_fieldDepth = 0;             ///< of the groups, where that field stands
    QByteArray m_shapeProperty;
    ListLabel m_numbering;
    SymbolFont m_numberingSymbols = SymbolFont::None; ///< that the font of its bullet is
    bool m_numberingShows = false;                    ///< a number, and not the room for one alone
    Picture m_picture;
    std::map<QByteArrayView, int> m_pictureNumbers; ///< that are kept, by their words
    QString m_pictureGroups;                        ///< the same
    int m_halfByte = -1;
    bool m_shapePictureShown = false;
    bool m_sinkIsFull = false;
};

} // namespace orvalis::rtf
