// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/shape_scan.h"

#include "rtf/kept/kept_shape.h"
#include "rtf/reading/box_scan.h"
#include "rtf/words/control_words.h"
#include "rtf/words/group_head.h"
#include "rtf/words/tokenizer.h"

#include <vector>

namespace orvalis::rtf {

namespace {

constexpr QByteArrayView ShownPicture = "pib"; // the property that holds it

/// Reads the tokens of a shape once, with an eye on its texts and pictures.
class ShapeTokens {
public:
    explicit ShapeTokens(QByteArrayView content)
        : m_content(content)
        , m_tokenizer(content) {}

    ShapeScan run() {
        Token token;
        for (m_tokenizer.next(token); token.kind != TokenKind::End; m_tokenizer.next(token)) {
            m_head.take(token);
            take(token);
            const bool isContent =
                token.kind == TokenKind::Word || isCharacters(token) || isLineEnd(token);
            if (isContent && !isBlank(token) && !m_groups.empty())
                m_groups.back().begins = false;
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
        bool begins = true; ///< its first word is still to come
    };

    void take(const Token& token) {
        m_loose |= isCharacters(token) && shownHere();
        switch (token.kind) {
        case TokenKind::GroupStart:
            if (!m_groups.empty())
                m_groups.back().begins = false;
            m_groups.push_back({m_tokenizer.position() - 1, shownHere()});
            return;
        case TokenKind::GroupEnd:
            if (!m_groups.empty())
                m_groups.pop_back();
            return;
        case TokenKind::Word:
            m_loose |= token.word && endsOrShapes(token.word->action) && shownHere();
            if (!m_groups.empty())
                word(token);
            else if (token.word)
                m_loose |= opensHere(token.word->action);
            return;
        case TokenKind::Symbol:
            m_loose |= isLineEnd(token) && shownHere();
            return;
        default:
            return;
        }
    }

    /// Whether a word makes something else of the shape's own group.
    static bool opensHere(Action action) {
        return action == Action::PictureGroup || action == Action::ShapeText ||
               action == Action::AnchorMark ||
               (hidesText(action) && action != Action::ShapeInstruction);
    }

    /// Whether text that stands here is text of the document.
    bool shownHere() const { return m_groups.empty() || m_groups.back().shown; }

    void word(const Token& token) {
        const Action action = token.word ? token.word->action : Action::Version;
        // In the middle of a group it would not be read as what it says.
        const bool fills =
            action == Action::PictureGroup && !shownHere() && m_property != ShownPicture;
        m_loose |= isDestination(action) && !fills && !m_groups.back().begins;
        // What is told of the document, anchored to its text, or a formula is none of the frame.
        const bool isFormula = action == Action::ShapeGroup && isFigure(token);
        m_loose |=
            (tellsOfDocument(action) || action == Action::AnchorMark || isFormula) && shownHere();
        if (hidesText(action) || (m_head.isStarred() && !token.word))
            m_groups.back().shown = false;
        if (action == Action::ShapeText)
            text();
        else if (action == Action::ShapePropertyName)
            propertyName();
        else if (token.bytes == "mmathPict")
            m_property = ShownPicture.toByteArray();
        else if (action == Action::PictureGroup)
            picture();
        else if (token.bytes == "shprslt" || action == Action::NoShapePicture)
            pass(m_others);
        else if (token.bytes == "moMath")
            m_loose |= !m_head.isStarred();
    }

    /// Any character that is no plain letter is told as one: no name that matters here has one.
    void propertyName() {
        m_property.clear();
        Tokenizer name(m_tokenizer.groupAhead());
        Token token;
        for (name.next(token); token.kind != TokenKind::End; name.next(token))
            if (token.kind == TokenKind::Text)
                m_property += token.bytes;
            else if (token.kind == TokenKind::Byte)
                m_property += char(token.byte);
            else if (token.kind == TokenKind::Zero)
                m_property += ' ';
            else if (isCharacters(token) || token.kind == TokenKind::GroupStart)
                m_property += '\\';
        m_property = m_property.trimmed();
    }

    /// What fills an area, say, is none that the text shows.
    void picture() {
        const bool fills = m_property != ShownPicture;
        m_loose |= fills && shownHere();
        if (!fills)
            pass(m_pictures);
    }

    void pass(std::vector<Piece>& pieces) {
        const qsizetype from = m_groups.back().start;
        pieces.push_back({from, passGroup()});
    }

    /// Over the rest of the group.
    qsizetype passGroup() {
        m_tokenizer.skipGroup();
        m_head.leave();
        m_groups.pop_back();
        return m_tokenizer.position();
    }

    /// What ends its last paragraph stays with the frame: some end it, some do not.
    void text() {
        const qsizetype from = m_tokenizer.position();
        const BoxScan box = scanBox(m_tokenizer.groupAhead());
        passGroup();
        m_loose |= !box.shows && box.holdsMore;
        m_hasEmptyText |= !box.shows && box.shapes;
        if (!box.shows)
            return;
        m_texts.push_back({from, from + box.end});
        m_textEnds = box.endsParagraph;
    }

    ShapeScan::Shows shows() const {
        const size_t shown = m_texts.size() + m_pictures.size();
        // A box without text would add its paragraph to what is shown.
        if (m_loose || shown > 1 || (m_hasEmptyText && shown > 0) || m_content.contains(ShapePlace))
            return ShapeScan::Shows::More;
        if (shown == 0)
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
    GroupHead m_head{false};
    std::vector<Group> m_groups; ///< that are open
    std::vector<Piece> m_texts;
    std::vector<Piece> m_pictures;
    std::vector<Piece> m_others; ///< forms for readers that know no shapes
    QByteArray m_property;       ///< the name of the one that came last
    bool m_textEnds = false;     ///< with a paragraph
    bool m_hasEmptyText = false; ///< one that has paragraphs all the same
    bool m_loose = false;        ///< something shows that stands in no part of a shape
};

} // namespace

ShapeScan scanShape(QByteArrayView content) {
    return ShapeTokens(content).run();
}

} // namespace orvalis::rtf
