// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_text.h"
#include "rtf/reading/interpreter.h"
#include "rtf/words/hex.h"

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

bool Interpreter::pictureWord(const Token& token) {
    const int number = token.parameter;
    switch (token.word->action) {
    case Action::PictureSource:
        m_picture.kind = static_cast<PictureKind>(token.word->value);
        m_picture.mapMode = token.hasParameter ? number : 8;
        return true;
    case Action::PictureWidth:
        m_picture.width = number;
        return true;
    case Action::PictureHeight:
        m_picture.height = number;
        return true;
    case Action::PictureGoalWidth:
        m_picture.goalWidth = number;
        return true;
    case Action::PictureGoalHeight:
        m_picture.goalHeight = number;
        return true;
    case Action::PictureScaleX:
        m_picture.scaleX = number;
        return true;
    case Action::PictureScaleY:
        m_picture.scaleY = number;
        return true;
    case Action::PictureNumber:
        m_pictureNumbers[token.word->name] = number;
        return true;
    case Action::BitmapBits:
        m_picture.bitmap.bitsPerPixel = number;
        return true;
    case Action::BitmapPlanes:
        m_picture.bitmap.planes = number;
        return true;
    case Action::BitmapRow:
        m_picture.bitmap.bytesPerRow = number;
        return true;
    default:
        return false;
    }
}

void Interpreter::pictureBytes(QByteArrayView run) {
    QByteArray& bytes = m_picture.bytes;
    const qsizetype start = bytes.size();
    bytes.resize(start + (run.size() + 1) / 2);
    char* out = bytes.data() + start;
    for (const char byte : run) {
        const int digit = hexDigit(uchar(byte));
        if (digit < 0)
            continue;
        if (m_halfByte < 0) {
            m_halfByte = digit;
        } else {
            *out++ = char(m_halfByte << 4 | digit);
            m_halfByte = -1;
        }
    }
    bytes.resize(out - bytes.constData());
}

void Interpreter::deliverPicture() {
    if (m_picture.bytes.isEmpty() || m_state.deleted)
        return;
    if (m_state.fallback) {
        if (m_sink.wantsFallback())
            m_sink.fallbackPicture(std::exchange(m_picture, {}));
        return;
    }
    const bool ofBox = m_box.picturePlace != NoPlace;
    if (ofBox)
        beginPictureOfBox();
    textComes();
    m_shapePictureShown = true;
    m_fieldText.clear();
    if (m_lineBox.depth > 0)
        beginLineBox();
    cellTabs(m_cellsEnded.size());
    flushText();
    m_textFormat = m_state.chars;
    // One picture alone would be the whole object, and in an entry it has no place.
    if (holdsTextAlone(m_names.keptAt(m_textFormat.field)))
        m_textFormat.field = NothingKept;
    m_picture.words = wordsOfPicture();
    m_picture.frame = m_names.keptAt(m_state.frame);
    if (m_lineBox.isOpen)
        m_lineBox.pieces.push_back({{}, told(m_textFormat), {}, std::exchange(m_picture, {})});
    else
        showPicture(m_picture, told(m_textFormat));
    m_picture = {};
    if (ofBox)
        endPictureOfBox();
}

QString Interpreter::wordsOfPicture() const {
    QString words = m_pictureGroups;
    for (const auto& [word, number] : m_pictureNumbers)
        if (number != 0)
            words += u'\\' + QLatin1StringView(word) + QString::number(number);
    return words;
}

void Interpreter::showPicture(const Picture& picture, const CharFormat& look) {
    if (m_sink.picture(picture, look))
        beginText();
    else
        fault(Fault::BadPicture);
}

} // namespace orvalis::rtf
