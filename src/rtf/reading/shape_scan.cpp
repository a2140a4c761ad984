// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/shape_scan.h"

#include "rtf/kept/kept_shape.h"
#include "rtf/kept/shape_frame.h"
#include "rtf/reading/box_scan.h"
#include "rtf/reading/picture_scan.h"
#include "rtf/reading/unseen_text.h"
#include "rtf/words/control_words.h"
#include "rtf/words/group_head.h"
#include "rtf/words/kept_words.h"
#include "rtf/words/tokenizer.h"

#include <vector>

namespace orvalis::rtf {

namespace {

constexpr QByteArrayView ShownPicture = "pib"; // the property that holds it

/// Whether a word ends or shapes something of the document, and so tells nothing of a shape.
bool shapesDocument(const ControlWord& word) {
    if (word.action != Action::Keep)
        return endsOrShapes(word.action);
    const KeptLevel level = keptWord(word).level;
    return level == KeptLevel::Document || level == KeptLevel::Section || level == KeptLevel::Row ||
           level == KeptLevel::Cell;
}

bool endsLikeAWord(QByteArrayView rtf) {
    return !rtf.isEmpty() && QChar::fromLatin1(rtf.back()).isLetterOrNumber();
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
        for (const Shown& shown : m_shown)
            scan.places.push_back(shown.place);
        return scan;
    }

private:
    struct Piece {
        qsizetype from = 0;
        qsizetype to = 0;
    };
    struct Shown {
        Piece piece;
        qsizetype place = 0; ///< behind the word of its group
        bool isText = false;
        bool endsParagraph = false; ///< with its end
    };
    /// What text is where a group stands.
    enum class Within {
        Document,
        Shape, ///< which it tells of
        Value, ///< of the property that is the picture of a shape
    };
    struct Group {
        qsizetype start = 0;
        Within within = Within::Document;
        bool begins = true; ///< its first word is still to come
        bool wraps = false; ///< a picture that only this program looks into
    };

    void take(const Token& token) {
        m_loose |= isCharacters(token) && shownHere();
        switch (token.kind) {
        case TokenKind::GroupStart:
            if (!m_groups.empty())
                m_groups.back().begins = false;
            m_groups.push_back({m_tokenizer.position() - 1, here()});
            return;
        case TokenKind::GroupEnd:
            if (!m_groups.empty())
                m_groups.pop_back();
            if (m_groups.size() < m_deletedDepth)
                m_deletedDepth = 0;
            return;
        case TokenKind::Word:
            m_loose |= token.word && shapesDocument(*token.word) && shownHere();
            m_loose |= token.word && (token.word->action == Action::Deleted ||
                                      token.word->action == Action::UnicodePair);
            if (token.word && token.word->action == Action::Deleted && passDeleted(token))
                return;
            if (!m_groups.empty())
                word(token);
            else if (token.word)
                m_loose |= opensHere(token.word->action);
            if (m_groups.empty() && m_head.isHead() && token.word &&
                token.word->action == Action::ShapeInstruction)
                m_within = Within::Shape;
            return;
        case TokenKind::Symbol:
            m_loose |= isLineEnd(token) && shownHere();
            return;
        default:
            return;
        }
    }

    /// What a tracked change has taken out shows nothing. The look ahead reads all of its group.
    /// \returns whether the group is nothing else.
    bool passDeleted(const Token& token) {
        const bool isOn = !token.hasParameter || token.parameter != 0;
        if (!isOn || m_groups.empty() || m_deletedDepth > 0)
            return false;
        m_deletedDepth = m_groups.size();
        const bool isAlone = holdsUnseenAlone(m_tokenizer.groupAhead(), UnseenAs::Deleted, true);
        if (isAlone)
            passGroup();
        return isAlone;
    }

    /// Whether a word makes something else of the shape's own group.
    static bool opensHere(Action action) {
        return action == Action::PictureGroup || action == Action::ShapeText ||
               action == Action::AnchorMark ||
               (hidesText(action) && action != Action::ShapeInstruction);
    }

    /// Whether text that stands here is text of the document.
    bool shownHere() const { return here() == Within::Document; }
    Within here() const { return m_groups.empty() ? m_within : m_groups.back().within; }

    void word(const Token& token) {
        const Action action = token.word ? token.word->action : Action::Version;
        // In the middle of a group it would not be read as what it says.
        m_loose |= isDestination(action) && !m_groups.back().begins;
        // What is told of the document, anchored to its text, or a formula is none of the frame.
        const bool isFormula = action == Action::ShapeGroup && isFigure(token);
        m_loose |=
            (tellsOfDocument(action) || action == Action::AnchorMark || isFormula) && shownHere();
        m_groups.back().wraps = token.bytes == StrangePicture;
        m_loose |= token.bytes == "moMath" && !m_head.isStarred();
        if (token.bytes == "mmathPict" || token.bytes == "result")
            m_property = ShownPicture.toByteArray();
        else if (token.bytes == "shprslt" || action == Action::NoShapePicture)
            m_others.push_back(pass());
        else if (m_head.isStarred() && !token.word)
            passGroup();
        else if (action == Action::PictureGroup)
            picture();
        else if (action == Action::ShapeText)
            text();
        else if (hidesText(action))
            ofShape(action);
    }

    /// What tells of the shape; other groups show nothing there, whatever is in them.
    void ofShape(Action action) {
        Within& within = m_groups.back().within;
        const bool isValue = action == Action::ShapePropertyValue;
        if (action == Action::ShapePropertyName && within == Within::Shape)
            m_property = shapePropertyName(m_tokenizer.groupAhead());
        if (action == Action::ShapeInstruction && within != Within::Value) {
            within = Within::Shape;
            m_property.clear();
        } else if (isValue && within == Within::Shape && m_property == ShownPicture)
            within = Within::Value;
        else if (action != Action::ShapeProperty || within != Within::Shape)
            passGroup();
    }

    /// What fills an area, say, is none that the text shows.
    void picture() {
        m_loose |= shownHere() && m_property != ShownPicture;
        if (here() == Within::Shape) {
            passGroup();
            return;
        }
        const qsizetype place = m_tokenizer.position();
        const bool shows = hasPictureBytes(m_tokenizer.groupAhead());
        Piece piece = pass();
        if (shows && !m_groups.empty() && m_groups.back().wraps)
            piece = pass();
        if (shows)
            m_shown.push_back({piece, place});
    }

    Piece pass() {
        const qsizetype from = m_groups.back().start;
        return {from, passGroup()};
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
        const bool isRead = here() != Within::Value;
        passGroup();
        m_loose |= !isRead; // it would be, were the picture that it stands beside not there
        if (!isRead)
            return;
        m_loose |= !box.shows && box.holdsMore;
        if (!box.shows) // and stays in the frame
            return;
        m_shown.push_back({{from, from + box.end}, from, true, box.endsParagraph});
        m_isOdd |= !box.isCertain || box.endsSection || box.endsCell;
    }

    ShapeScan::Shows shows() const {
        if ((m_isOdd && m_shown.size() > 1) || m_loose || m_content.contains(ShapePlace))
            return ShapeScan::Shows::More;
        if (m_shown.empty())
            return ShapeScan::Shows::Nothing;
        return isPicture() ? ShapeScan::Shows::Picture : ShapeScan::Shows::Boxes;
    }

    bool isPicture() const { return m_shown.size() == 1 && !m_shown.front().isText; }

    QByteArray frame() const {
        QByteArray frame;
        qsizetype at = 0;
        auto other = m_others.begin();
        const auto copyTo = [&](qsizetype end) {
            for (; other != m_others.end() && other->to <= end; ++other) {
                if (other->from < at)
                    continue;
                frame += m_content.sliced(at, other->from - at);
                if (endsLikeAWord(frame)) // which would go on with what is behind the gap
                    frame += ' ';
                at = other->to;
            }
            frame += m_content.sliced(at, end - at);
        };
        for (const Shown& shown : m_shown) {
            copyTo(shown.piece.from);
            frame += ShapePlace;
            if (!shown.isText && !isPicture())
                frame += PictureMark;
            if (shown.endsParagraph)
                frame += "\\par";
            frame += ' ';
            at = shown.piece.to;
        }
        copyTo(m_content.size());
        return frame;
    }

    QByteArrayView m_content;
    Tokenizer m_tokenizer;
    GroupHead m_head{true};
    Within m_within = Within::Document; ///< the shape's own group
    std::vector<Group> m_groups;        ///< that are open
    size_t m_deletedDepth = 0; ///< of them, where one has text that was taken out; 0 for none
    std::vector<Shown> m_shown;
    std::vector<Piece> m_others; ///< forms for readers that know no shapes
    QByteArray m_property;       ///< the name of the one that came last
    bool m_isOdd =
        false; ///< a text that may show nothing, or ends what it has not begun: it must be alone
    bool m_loose = false; ///< something shows that stands in no part of a shape
};

} // namespace

/// Any character that is no plain letter is told as one: no name that matters here has one.
QByteArray shapePropertyName(QByteArrayView content) {
    QByteArray name;
    Tokenizer tokenizer(content);
    Token token;
    for (tokenizer.next(token); token.kind != TokenKind::End; tokenizer.next(token))
        if (token.kind == TokenKind::Text)
            name += token.bytes;
        else if (token.kind == TokenKind::Byte)
            name += char(token.byte);
        else if (token.kind == TokenKind::Zero)
            name += ' ';
        else if (isCharacters(token) || token.kind == TokenKind::GroupStart)
            name += '\\';
    return name.trimmed();
}

ShapeScan scanShape(QByteArrayView content) {
    return ShapeTokens(content).run();
}

} // namespace orvalis::rtf
