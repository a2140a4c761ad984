// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/shape_scan.h"

#include "rtf/control_words.h"
#include "rtf/tokenizer.h"

#include <utility>
#include <vector>

namespace orvalis::rtf {

namespace {

constexpr QByteArrayView ShownPicture = "pib"; // the property that holds it

/// Whether a word ends something of the document, or shapes its rows.
bool endsOrShapes(Action action) {
    switch (action) {
    case Action::ParagraphEnd:
    case Action::SectionEnd:
    case Action::PageEnd:
    case Action::CellEnd:
    case Action::RowEnd:
    case Action::RowDefaults:
    case Action::CellRight:
        return true;
    default:
        return false;
    }
}

/// Reads the tokens of a shape once, with an eye on its texts and pictures.
class ShapeTokens {
public:
    explicit ShapeTokens(QByteArrayView content)
        : m_content(content)
        , m_tokenizer(content) {}

    ShapeScan run() {
        Token token;
        for (m_tokenizer.next(token); token.kind != TokenKind::End; m_tokenizer.next(token)) {
            take(token);
            m_starred = token.kind == TokenKind::Symbol && token.byte == '*';
        }
        ShapeScan scan;
        scan.shows = shows();
        if (scan.shows == ShapeScan::Shows::Nothing)
            scan.frame = m_content.toByteArray();
        else if (scan.shows != ShapeScan::Shows::More)
            scan.frame = frame();
        return scan;
    }

private:
    struct Piece {
        qsizetype from = 0;
        qsizetype to = 0;
    };
    struct Group {
        qsizetype start = 0;
        bool shown = true;
    };

    void take(const Token& token) {
        switch (token.kind) {
        case TokenKind::GroupStart:
            m_groups.push_back({m_tokenizer.position() - 1, shownHere()});
            return;
        case TokenKind::GroupEnd:
            if (!m_groups.empty())
                m_groups.pop_back();
            return;
        case TokenKind::Word:
            if (token.word &&
                (token.word->action == Action::Character || token.word->action == Action::Unicode))
                m_loose |= shownHere();
            if (!m_groups.empty())
                word(token);
            return;
        case TokenKind::Text:
        case TokenKind::Byte:
        case TokenKind::Zero:
            m_loose |= shownHere();
            return;
        default:
            return;
        }
    }

    /// Whether text that stands here is text of the document.
    bool shownHere() const { return m_groups.empty() || m_groups.back().shown; }

    void word(const Token& token) {
        const Action action = token.word ? token.word->action : Action::Version;
        if (hidesText(action) || (m_starred && !token.word))
            m_groups.back().shown = false;
        m_loose |= endsOrShapes(action) && shownHere();
        if (action == Action::ShapeText)
            text();
        else if (action == Action::ShapePropertyName)
            m_property = m_tokenizer.groupAhead().trimmed();
        else if (token.bytes == "mmathPict")
            m_property = ShownPicture;
        else if (action == Action::PictureGroup)
            picture();
        else if (token.bytes == "shprslt" || action == Action::NoShapePicture)
            pass(m_others);
        else if (token.bytes == "moMath")
            m_loose |= !m_starred;
    }

    /// What fills an area, say, is none that the text shows.
    void picture() {
        m_loose |= m_property.isEmpty();
        if (m_property == ShownPicture)
            pass(m_pictures);
    }

    void pass(std::vector<Piece>& pieces) {
        const qsizetype from = m_groups.back().start;
        pieces.push_back({from, passGroup()});
    }

    /// Over the rest of the group.
    qsizetype passGroup() {
        m_tokenizer.skipGroup();
        m_groups.pop_back();
        return m_tokenizer.position();
    }

    /// What ends its last paragraph stays with the frame: some end it, some do not.
    void text() {
        const qsizetype from = m_tokenizer.position();
        Tokenizer inner(m_tokenizer.groupAhead());
        Token token;
        qsizetype end = 0;
        bool any = false;
        bool ended = false;
        bool starred = false;
        for (inner.next(token); token.kind != TokenKind::End; inner.next(token)) {
            const bool isUnknown = token.kind == TokenKind::Word && !token.word;
            if (std::exchange(starred, false) && isUnknown)
                inner.skipGroup();
            starred = token.kind == TokenKind::Symbol && token.byte == '*';
            end = inner.position();
            const bool isWord = token.kind == TokenKind::Word && token.word;
            const Action action = isWord ? token.word->action : Action::Version;
            const bool shown = token.kind == TokenKind::Text || token.kind == TokenKind::Byte ||
                               action == Action::Character || action == Action::Unicode ||
                               action == Action::PictureGroup || action == Action::CellEnd;
            any |= shown;
            if (action == Action::ParagraphEnd)
                ended = true;
            else if (shown)
                ended = false;
        }
        passGroup();
        if (!any)
            return;
        m_texts.push_back({from, from + end});
        m_textEnds = ended;
    }

    ShapeScan::Shows shows() const {
        if (m_loose || m_texts.size() + m_pictures.size() > 1 || m_content.contains(ShapePlace))
            return ShapeScan::Shows::More;
        if (m_texts.empty() && m_pictures.empty())
            return ShapeScan::Shows::Nothing;
        return m_texts.empty() ? ShapeScan::Shows::Picture : ShapeScan::Shows::Text;
    }

    QByteArray frame() const {
        const bool isText = !m_texts.empty();
        const Piece& shown = isText ? m_texts.front() : m_pictures.front();
        QByteArray frame;
        qsizetype at = 0;
        const auto copyTo = [&](qsizetype end) {
            for (const Piece& other : m_others) {
                if (other.from < at || other.to > end)
                    continue;
                frame += m_content.sliced(at, other.from - at);
                at = other.to;
            }
            frame += m_content.sliced(at, end - at);
        };
        copyTo(shown.from);
        frame += ShapePlace;
        if (isText && m_textEnds)
            frame += "\\par";
        frame += ' ';
        at = shown.to;
        copyTo(m_content.size());
        return frame;
    }

    QByteArrayView m_content;
    Tokenizer m_tokenizer;
    std::vector<Group> m_groups; ///< that are open
    std::vector<Piece> m_texts;
    std::vector<Piece> m_pictures;
    std::vector<Piece> m_others; ///< forms for readers that know no shapes
    QByteArrayView m_property;   ///< the name of the one that came last
    bool m_starred = false;      ///< the group that begins
    bool m_textEnds = false;     ///< with a paragraph
    bool m_loose = false;        ///< something shows that stands in no part of a shape
};

} // namespace

ShapeScan scanShape(QByteArrayView content) {
    return ShapeTokens(content).run();
}

} // namespace orvalis::rtf
