// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/interpreter.h"

#include <algorithm>

namespace orvalis::rtf {

namespace {

constexpr qsizetype LongestRun = 32768;
constexpr qsizetype LongestCapture = 8192;

// Characters that a text document takes for structure of its own.
char16_t harmless(char16_t character) {
    switch (character) {
    case u'\0':
        return u' ';
    case u'\n':
    case u'\r':
    case QChar::ParagraphSeparator:
        return QChar::LineSeparator;
    case 0xfdd0:
    case 0xfdd1:
    case QChar::ObjectReplacementCharacter:
        return QChar::ReplacementCharacter;
    default:
        return character;
    }
}

} // namespace

/// A font of signs has few of the characters that words stand for. One that only is named as such,
/// but is none by its page, has letters.
bool Interpreter::isByNumber(char32_t character, SymbolFont font, const CodePage* page) {
    if (font == SymbolFont::None)
        return false;
    const bool hasLetters = !page || page->symbols() == SymbolFont::None;
    return hasLetters ? isLetterAmongSigns(character)
                      : privateByte(character) == 0 && isToldByNumber(font, character);
}

bool Interpreter::captures() const {
    switch (m_state.destination) {
    case Destination::PlainFontName:
    case Destination::LevelText:
    case Destination::FieldInstruction:
    case Destination::NumberingTextBefore:
    case Destination::NumberingTextAfter:
    case Destination::Label:
        return true;
    default:
        return false;
    }
}

void Interpreter::bytes(QByteArrayView run) {
    // Blanks between "\\*" and the name of the destination are no text.
    if (m_head.hasStar())
        return;
    if (m_fallbackToSkip > 0) {
        const auto skipped = std::min<qsizetype>(m_fallbackToSkip, run.size());
        m_fallbackToSkip -= int(skipped);
        run = run.sliced(skipped);
        if (run.isEmpty())
            return;
    }
    switch (m_state.destination) {
    case Destination::Body:
        if (shows())
            decode(run);
        return;
    case Destination::FontTable:
        fontBytes(run);
        return;
    case Destination::ColorTable:
        colorBytes(run);
        return;
    case Destination::Picture:
        pictureBytes(run);
        return;
    default:
        if (captures())
            decode(run);
        return;
    }
}

/// An instruction or a label is no text of the font of signs that holds around it.
const CodePage& Interpreter::pageOfText() const {
    const bool toBody = m_state.destination == Destination::Body;
    if (m_state.destination == Destination::LevelText)
        return *m_documentPage;
    return toBody || m_state.page->symbols() == SymbolFont::None ? *m_state.page : *m_documentPage;
}

void Interpreter::decode(QByteArrayView run) {
    const bool toBody = m_state.destination == Destination::Body;
    const CodePage& page = pageOfText();
    if (page.symbols() != SymbolFont::None) {
        QString signs;
        page.decode(run, signs);
        append(signs);
        return;
    }
    const CodePage::Table* table = page.table();
    if (!table) {
        // The second byte of a character may look like ASCII, so only a run that begins a character
        // can be taken as it is.
        const auto isAscii = [](char byte) { return uchar(byte) < 0x80; };
        if (!m_pending.isEmpty() || !std::all_of(run.begin(), run.end(), isAscii)) {
            m_pending.append(run);
            if (m_pending.size() > LongestRun) {
                QString text;
                const qsizetype taken = pageOfText().decode(m_pending, text);
                m_pending.remove(0, taken);
                appendLetters(text);
            }
            return;
        }
        table = CodePage::forNumber(Latin1Page).table();
    }
    if (toBody && m_state.symbols != SymbolFont::None) {
        QString letters;
        page.decode(run, letters);
        appendLetters(letters);
        return;
    }
    if (toBody)
        prepareText();
    else
        m_captureFormat = m_state.chars;
    QString& target = toBody ? m_text : m_capture;
    if (!toBody)
        run = run.first(
            std::min(run.size(), LongestCapture - std::min(target.size(), LongestCapture)));
    const qsizetype start = target.size();
    target.resize(start + run.size());
    QChar* out = target.data() + start;
    for (const char byte : run)
        *out++ = QChar((*table)[uchar(byte)]);
    // A byte below a blank can only stand alone, written as a code.
    if (run.size() == 1 && toBody)
        out[-1] = QChar(harmless(out[-1].unicode()));
}

/// A font that is named as one of signs, but is none by its page, has letters at its bytes.
void Interpreter::appendLetters(QStringView text) {
    if (m_state.destination != Destination::Body || m_state.symbols == SymbolFont::None) {
        append(text);
        return;
    }
    const auto isSign = [](QChar c) { return !isLetterAmongSigns(c.unicode()); };
    while (!text.isEmpty()) {
        const qsizetype letters = std::find_if(text.begin(), text.end(), isSign) - text.begin();
        const QStringView piece = text.first(std::max<qsizetype>(letters, 1));
        m_state.chars.byNumber = letters > 0;
        append(piece);
        m_state.chars.byNumber = false;
        text = text.sliced(piece.size());
    }
}

void Interpreter::flushPending() {
    if (m_pending.isEmpty())
        return;
    QString text;
    const qsizetype taken = pageOfText().decode(m_pending, text);
    if (taken < m_pending.size())
        text.append(QChar::ReplacementCharacter);
    m_pending.clear();
    appendLetters(text);
}

void Interpreter::append(QStringView text) {
    if (m_state.destination != Destination::Body) {
        m_captureFormat = m_state.chars;
        m_capture.append(text.first(
            std::min(text.size(), LongestCapture - std::min(m_capture.size(), LongestCapture))));
        return;
    }
    prepareText();
    appendSigns(text, m_state.symbols);
}

/// Word processors tell signs by their bytes, in the area for private use.
void Interpreter::appendSigns(QStringView text, SymbolFont font) {
    for (const QChar character : text) {
        const uchar byte = font == SymbolFont::None ? uchar(0) : privateByte(character.unicode());
        if (byte)
            m_text.append(QChar::fromUcs4(symbolCharacter(font, byte)));
        else
            m_text.append(QChar(harmless(character.unicode())));
    }
}

void Interpreter::character(char16_t character) {
    flushPending();
    if (m_fallbackToSkip > 0)
        --m_fallbackToSkip;
    else if (m_state.destination == Destination::FontTable)
        m_fonts.addName(character);
    else if (shows() || captures())
        appendOfWord(character);
}

void Interpreter::appendOfWord(char16_t character) {
    m_state.chars.byNumber = m_state.destination == Destination::Body &&
                             isByNumber(character, m_state.symbols, m_state.page);
    append(QStringView(&character, 1));
    m_state.chars.byNumber = false;
}

void Interpreter::unicode(char32_t code) {
    // A picture has digits alone, and what comes behind a character is none that stands for it.
    if (m_state.destination == Destination::Picture)
        return;
    m_fallbackToSkip = m_state.unicodeSkip;
    if (m_state.destination == Destination::FontTable) {
        m_fonts.addName(char16_t(code));
        return;
    }
    if (!shows() && !captures())
        return;
    const bool toBody = m_state.destination == Destination::Body;
    const bool isHigh = QChar::isHighSurrogate(code);
    const bool isLow = QChar::isLowSurrogate(code);
    const char16_t high = isLow ? std::exchange(m_highSurrogate, char16_t(0)) : char16_t(0);
    if (isLow && !high)
        code = QChar::ReplacementCharacter;
    const char16_t pair[] = {high, char16_t(code)};
    m_state.chars.byNumber =
        toBody && m_state.symbols != SymbolFont::None && isLetterAmongSigns(code);
    if (high)
        append(QStringView(pair, 2));
    else if (!isHigh)
        append(QChar::fromUcs4(code));
    else if (toBody)
        prepareText();
    m_state.chars.byNumber = false;
    if (isHigh)
        m_highSurrogate = char16_t(code);
}

void Interpreter::prepareText() {
    boxComes();
    m_fieldText.clear();
    endHalfCharacter();
    if (m_lineBox.depth > 0)
        beginLineBox();
    if (!m_cellsEnded.empty())
        cellTabs(m_cellsEnded.size());
    if (!m_text.isEmpty() && (m_textFormat != m_state.chars || m_text.size() > LongestRun))
        flushText();
    if (m_text.isEmpty())
        m_textFormat = m_state.chars;
    m_text.append(QString(std::exchange(m_lineBox.linesDue, 0), QChar::LineSeparator));
    beginText();
}

/// Nothing came that makes a whole one of it.
void Interpreter::endHalfCharacter() {
    if (std::exchange(m_highSurrogate, char16_t(0)))
        m_text.append(QChar::ReplacementCharacter);
}

void Interpreter::beginText() {
    if (std::exchange(m_inParagraph, true))
        return;
    m_afterAhead = m_state.paragraph.after;
    m_afterSaidAhead = m_state.paragraph.stated & stated::After;
}

void Interpreter::flushText() {
    endHalfCharacter();
    if (m_text.isEmpty())
        return;
    headEnds();
    giveText();
    askForRoom();
}

void Interpreter::giveText() {
    if (m_text.isEmpty())
        return;
    m_textFormat.stated |= known();
    if (m_lineBox.isOpen)
        m_lineBox.pieces.push_back({m_text, m_textFormat, {}});
    else
        m_sink.text(m_text, m_textFormat);
    m_text.resize(0);
}

} // namespace orvalis::rtf
