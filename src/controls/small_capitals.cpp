// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/small_capitals.h"

#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

#include <vector>

namespace orvalis {
namespace {

struct CaseRun {
    int start;
    int end;
    QTextCharFormat format;
};

/// The runs of a fragment, of small letters and of others.
void addRuns(std::vector<CaseRun>& runs, const QTextFragment& fragment, size_t most) {
    constexpr qreal SmallShare = 0.8;
    const QTextCharFormat format = fragment.charFormat();
    const qreal size = format.font().pointSizeF();
    if (format.fontCapitalization() != QFont::SmallCaps || size <= 0)
        return;
    const QString text = fragment.text();
    for (int at = 0; at < text.size() && runs.size() < most;) {
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
    constexpr size_t MostRuns = 20'000; // more than a document of titles has
    std::vector<CaseRun> runs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto it = block.begin(); !it.atEnd(); ++it)
            addRuns(runs, it.fragment(), MostRuns);
    QTextCursor edit(&document);
    edit.beginEditBlock();
    for (const CaseRun& run : runs) {
        edit.setPosition(run.start);
        edit.setPosition(run.end, QTextCursor::KeepAnchor);
        edit.setCharFormat(run.format);
    }
    edit.endEditBlock();
}

} // namespace orvalis
