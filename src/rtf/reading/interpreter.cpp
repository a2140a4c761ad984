// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/interpreter.h"

#include <limits>

namespace orvalis::rtf {

namespace {

// Real documents nest some tens of groups. Deeper ones are counted, so that their braces match,
// and share the state of the deepest one that is kept.
constexpr size_t MostGroups = 4096;

// What groups that are kept may grow to: fonts and colours stand in them by longer names.
constexpr qint64 KeptShare = 4;
constexpr qint64 KeptGround = qint64(1) << 20;

// What is read between two words of progress.
constexpr qsizetype ToldBytes = qsizetype(1) << 14;

} // namespace

Interpreter::Interpreter(QByteArrayView bytes, Sink& sink, const Progress& progress)
    : m_tokenizer(bytes)
    , m_sink(sink)
    , m_progress(progress)
    , m_size(bytes.size())
    , m_tellAt(progress ? 0 : std::numeric_limits<qsizetype>::max())
    , m_documentPage(&CodePage::forNumber(Latin1Page))
    , m_kept(m_names)
    , m_tracked(m_names)
    , m_keptLeft(KeptShare * bytes.size() + KeptGround) {
    m_state.page = m_documentPage;
    m_furtherDefaults.fill(NoName);
}

ReadResult Interpreter::run() {
    m_sink.begin(m_names);
    Token token;
    do {
        m_tokenizer.next(token);
        m_head.take(token);
        if (m_tokenizer.position() >= m_tellAt)
            tellProgress();
    } while (step(token) && !m_sinkIsFull);
    finish();
    return m_result;
}

bool Interpreter::step(const Token& token) {
    switch (token.kind) {
    case TokenKind::Text:
        bytes(token.bytes);
        return true;
    case TokenKind::Word:
        word(token);
        return true;
    case TokenKind::Byte:
        bytes(QByteArrayView(&token.byte, 1));
        return true;
    case TokenKind::GroupStart:
        openGroup();
        return true;
    case TokenKind::GroupEnd:
        return closeGroup();
    case TokenKind::Symbol:
        symbol(token.byte);
        return true;
    case TokenKind::Zero:
        bytes(" ");
        return true;
    case TokenKind::Binary:
        if (token.binaryCutShort)
            fault(Fault::BadBinary);
        if (m_fallbackToSkip > 0)
            --m_fallbackToSkip;
        else if (m_state.destination == Destination::Picture)
            m_picture.bytes.append(token.bytes);
        return true;
    case TokenKind::End:
        break;
    }
    if (!m_groups.empty())
        fault(Fault::UnexpectedEnd);
    return false;
}

void Interpreter::openGroup() {
    flushPending();
    m_fallbackToSkip = 0;
    if (m_groups.size() >= MostGroups) {
        fault(Fault::TooDeep);
        ++m_unstoredGroups;
        return;
    }
    m_groups.push_back(m_state);
    m_state.ownsDestination = false;
    m_state.tellsPlain = false;
    m_state.ownField = NothingKept;
    m_state.ownBox = NothingKept;
}

bool Interpreter::closeGroup() {
    flushPending();
    m_fallbackToSkip = 0;
    if (m_unstoredGroups > 0) {
        --m_unstoredGroups;
        return true;
    }
    if (m_groups.size() <= 1) {
        // What Windows' control writes ends with a line end and a zero, and other junk may follow.
        // But where a further brace closes the file this one was one too many. To look ahead goes
        // no further than that brace, so no byte is looked at twice.
        if (m_tokenizer.closesFurther()) {
            fault(Fault::UnmatchedBrace);
            return true;
        }
        if (m_tokenizer.hasStructureAhead())
            fault(Fault::GoesOn);
        m_groups.clear();
        return false;
    }
    const Destination closed = m_state.destination;
    const bool owned = m_state.ownsDestination;
    if (closed == Destination::Body)
        fieldEnds();
    groupEnds();
    if (m_state.ownBox != NothingKept)
        shapeEnds();
    m_state = std::move(m_groups.back());
    m_groups.pop_back();
    if (owned)
        closeDestination(closed);
    else if (closed == Destination::FontTable && m_groups.size() < m_fontEntryDepth)
        m_fonts.commit(m_names, *m_documentPage);
    if (m_state.fontsVersion != m_fonts.version())
        selectFont();
    return true;
}

void Interpreter::skipGroup() {
    if (!m_tokenizer.skipGroup()) {
        fault(Fault::UnexpectedEnd);
        return;
    }
    m_head.leave();
    if (m_unstoredGroups > 0)
        --m_unstoredGroups;
    else {
        groupEnds();
        m_state = std::move(m_groups.back());
        m_groups.pop_back();
    }
}

/// Of the shapes and boxes, whatever ends the group.
void Interpreter::groupEnds() {
    if (m_groups.size() == m_box.depth)
        endBox();
    if (m_groups.size() == m_lineBox.depth)
        endLineBox();
}

void Interpreter::symbol(uchar symbol) {
    if (symbol == '\r' || symbol == '\n') {
        flushPending();
        if (shows())
            paragraphEnd();
    } else if (const char16_t told = characterOf(symbol)) {
        character(told);
    }
}

void Interpreter::word(const Token& token) {
    flushPending();
    if (!token.word) {
        m_fallbackToSkip = 0;
        // Only the group of an unknown destination may be ignored; the outermost one is the file.
        if (m_head.isStarred() && (m_groups.size() > 1 || m_unstoredGroups > 0))
            keepStrange(token);
        return;
    }
    switch (token.word->action) {
    case Action::Character:
        character(char16_t(token.word->value));
        return;
    case Action::Unicode:
        unicode(toldCharacter(token));
        return;
    default:
        break;
    }
    // A word that no fallback can be made of ends the wait for one.
    m_fallbackToSkip = 0;
    if (keptWord(token) || characterWord(token) || paragraphWord(token) || rowWord(token) ||
        pictureWord(token) || tableWord(token) || listWord(token))
        return;
    destinationWord(token);
}

void Interpreter::fault(Fault fault) {
    if (m_result.fault == Fault::None)
        m_result = {fault, m_tokenizer.position()};
}

void Interpreter::askForRoom() {
    m_sinkIsFull = m_sink.isFull();
    if (m_sinkIsFull)
        fault(Fault::TooLarge);
}

void Interpreter::tellProgress() {
    m_tellAt = m_tokenizer.position() + ToldBytes;
    m_progress(double(m_tokenizer.position()) / double(m_size));
}

void Interpreter::finish() {
    flushPending();
    dissolveLineBox();
    if (m_state.destination == Destination::Picture) {
        while (m_state.destination == Destination::Picture && !m_groups.empty()) {
            m_state = std::move(m_groups.back());
            m_groups.pop_back();
        }
        deliverPicture();
    }
    cellTabs(m_cellsEnded.size());
    flushText();
    textComes();
    tellKept();
    const ParagraphFormat& last = shapedParagraph();
    tellOpenRow(last);
    m_sink.end(last, told(m_state.chars));
}

} // namespace orvalis::rtf
