// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/small_capitals.h"

#include "controls/range_formats.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace orvalis {
namespace {

/// The runs of a fragment, of small letters and of others.
void addRuns(std::vector<RangeFormat>& runs, const QTextFragment& fragment) {
    constexpr qreal SmallShare = 0.8;
    const QTextCharFormat format = fragment.charFormat();
    const qreal size = format.font().pointSizeF();
    if (format.fontCapitalization() != QFont::SmallCaps || size <= 0)
        return;
    const QString text = fragment.text();
    for (int at = 0; at < text.size() && runs.size() < MostRanges;) {
        const bool isSmall = text[at].isLower();
        int end = at + 1;
        while (end < text.size() && text[end].isLower() == isSmall)
            ++end;
        QTextCharFormat capitals = format;
        capitals.setFontCapitalization(isSmall ? QFont::AllUppercase : QFont::MixedCase);
        if (isSmall)
            capitals.setFontPointSize(size * SmallShare);
        runs.push_back({fragment.position() + at, fragment.position() + end, capitals});
        at = end;
    }
}

} // namespace

void setSmallCapitals(QTextDocument& document) {
    std::vector<RangeFormat> runs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto it = block.begin(); !it.atEnd(); ++it)
            addRuns(runs, it.fragment());
    setFormats(document, runs, &QTextCursor::setCharFormat);
}

} // namespace orvalis
