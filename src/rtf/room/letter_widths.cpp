// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/room/letter_widths.h"

#include <QChar>
#include <QFontMetricsF>
#include <QHash>
#include <QRawFont>

#include <algorithm>
#include <cmath>

namespace orvalis::rtf {

namespace {

/// More than documents have; those of hostile ones are measured again.
constexpr qsizetype MostKept = 128;

/// Marks are put onto other letters, and a soft hyphen shows where a line ends.
bool standsBeside(QChar c) {
    constexpr char16_t SoftHyphen = 0xad;
    return c.isPrint() && !c.isMark() && c.unicode() != SoftHyphen;
}

} // namespace

std::shared_ptr<LetterWidths> LetterWidths::of(const QFont& font) {
    thread_local QHash<QString, std::shared_ptr<LetterWidths>> kept;
    const QString key = font.key();
    if (const auto found = kept.constFind(key); found != kept.constEnd())
        return *found;
    if (kept.size() >= MostKept)
        kept.clear();
    return *kept.insert(key, std::make_shared<LetterWidths>(font));
}

LetterWidths::LetterWidths(const QFont& font)
    : m_font(font)
    , m_widths(EuroIndex + 1, NotAsked) {
    const QRawFont raw = QRawFont::fromFont(font);
    m_line = std::ceil(
        std::max(raw.ascent() + raw.descent() + raw.leading(), QFontMetricsF(font).lineSpacing()));
    std::fill_n(m_widths.begin(), FirstMeasured, Unknown);
}

/// A letter that another font stands in for may need higher lines than those of its own.
float LetterWidths::measure(char16_t c) {
    float& width = m_widths[size_t(indexOf(c))];
    width = standsBeside(QChar(c)) && QRawFont::fromFont(m_font).supportsCharacter(QChar(c))
                ? float(QFontMetricsF(m_font).horizontalAdvance(QChar(c)))
                : Unknown;
    return width;
}

} // namespace orvalis::rtf
