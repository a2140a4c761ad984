// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/page_runs.h"

#include "controls/range_formats.h"
#include "rtf/formats/format_properties.h"

#include <QHash>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace orvalis {
namespace {

QTextCharFormat looksOf(QTextCharFormat format) {
    for (const int unseen : {rtf::KeptOfCharacters, rtf::StatedOfCharacters, rtf::SignsByNumber,
                             rtf::KeptAnchors, rtf::KeptField})
        format.clearProperty(unseen);
    return format;
}

} // namespace

void joinAlikeRuns(QTextDocument& document) {
    QHash<int, QTextCharFormat> known;
    std::vector<RangeFormat> runs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        RangeFormat run{block.position(), block.position(), {}};
        int parts = 0;
        const auto keep = [&] {
            if (parts > 1 && runs.size() < MostRanges)
                runs.push_back(run);
        };
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const int index = fragment.charFormatIndex();
            auto looks = known.constFind(index);
            if (looks == known.constEnd())
                looks = known.insert(index, looksOf(fragment.charFormat()));
            const int end = fragment.position() + fragment.length();
            if (parts > 0 && run.format == *looks && !looks->isImageFormat()) {
                run.end = end;
                ++parts;
                continue;
            }
            keep();
            run = {fragment.position(), end, *looks};
            parts = 1;
        }
        keep();
    }
    setFormats(document, runs, &QTextCursor::setCharFormat);
}

} // namespace orvalis
