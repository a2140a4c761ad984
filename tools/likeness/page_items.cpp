// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "page_items.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace orvalis::likeness {

QList<PageItem> itemsOf(QList<Word> words) {
    constexpr double OneLine = 5; // points: how much higher the signs of other fonts begin
    static const QRegularExpression label(
        u"^(\\(?[A-Za-z0-9]{1,6}([.][A-Za-z0-9]{1,3})*[.(]|.)$"_s);
    const auto isHigher = [](const Word& one, const Word& other) {
        return std::pair(one.page, one.corner.y()) < std::pair(other.page, other.corner.y());
    };
    const auto isAhead = [](const Word& one, const Word& other) {
        return one.corner.x() < other.corner.x();
    };
    std::sort(words.begin(), words.end(), isHigher);
    QList<PageItem> items;
    for (auto line = words.begin(); line != words.end();) {
        const auto end = std::find_if(line, words.end(), [&](const Word& word) {
            return word.page != line->page || word.corner.y() - line->corner.y() > OneLine;
        });
        std::sort(line, end, isAhead);
        if (end - line > 1 && label.match(line->text).hasMatch())
            items.append({*line, line[1].text});
        line = end;
    }
    return items;
}

} // namespace orvalis::likeness
