// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/page_runs.h"

#include "rtf/formats/format_properties.h"

#include <QHash>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

#include <vector>

namespace orvalis {
namespace {

QTextCharFormat looksOf(QTextCharFormat format) {
    for (const int unseen : {rtf::KeptOfCharacters, rtf::StatedOfCharacters, rtf::SignsByNumber,
                             rtf::KeptAnchors, rtf::KeptField})
        format.clearProperty(unseen);
    return format;
}

struct AlikeRun {
    int start;
    int end;
    int parts;
    QTextCharFormat looks;
};

} // namespace

void joinAlikeRuns(QTextDocument& document) {
    constexpr size_t Most = 20'000; // more than a document has of words that are parted
    QHash<int, QTextCharFormat> known;
    std::vector<AlikeRun> runs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        AlikeRun run{block.position(), block.position(), 0, {}};
        const auto keep = [&] {
            if (run.parts > 1 && runs.size() < Most)
                runs.push_back(run);
        };
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const int index = fragment.charFormatIndex();
            auto looks = known.constFind(index);
            if (looks == known.constEnd())
                looks = known.insert(index, looksOf(fragment.charFormat()));
            const int end = fragment.position() + fragment.length();
            if (run.parts > 0 && run.looks == *looks && !looks->isImageFormat()) {
                run.end = end;
                ++run.parts;
                continue;
            }
            keep();
            run = {fragment.position(), end, 1, *looks};
        }
        keep();
    }
    QTextCursor edit(&document);
    edit.beginEditBlock();
    for (const AlikeRun& run : runs) {
        edit.setPosition(run.start);
        edit.setPosition(run.end, QTextCursor::KeepAnchor);
        edit.setCharFormat(run.looks);
    }
    edit.endEditBlock();
}

} // namespace orvalis
