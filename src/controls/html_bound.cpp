// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/html_bound.h"

#include <algorithm>

namespace orvalis {
namespace {

// A step is one element or rule that is looked at; millions of them take a part of a second.
constexpr qint64 MostSteps = 6'000'000;
constexpr qint64 StepsOfTag = 64;

/// Elements that nothing can be inside of.
bool isEmptyElement(QStringView name) {
    static constexpr QStringView Names[] = {u"br",   u"img",   u"hr",  u"meta", u"link",
                                            u"base", u"input", u"col", u"wbr",  u"area"};
    return std::any_of(std::begin(Names), std::end(Names), [&](QStringView known) {
        return name.compare(known, Qt::CaseInsensitive) == 0;
    });
}

QStringView nameAt(QStringView html, qsizetype at) {
    qsizetype end = at;
    while (end < html.size() && html[end].isLetterOrNumber())
        ++end;
    return html.sliced(at, end - at);
}

} // namespace

QStringView htmlWithinBounds(QStringView html) {
    qint64 steps = 0;
    qint64 depth = 0;
    qint64 rules = 0;
    for (qsizetype at = 0; at + 1 < html.size(); ++at) {
        if (html[at] == u'{')
            ++rules;
        if (html[at] != u'<')
            continue;
        const bool closes = html[at + 1] == u'/';
        if (!closes && !html[at + 1].isLetter())
            continue;
        steps += depth + rules + StepsOfTag;
        if (steps > MostSteps)
            return html.first(at);
        if (closes)
            depth = std::max<qint64>(0, depth - 1);
        else if (!isEmptyElement(nameAt(html, at + 1)))
            ++depth;
    }
    return html;
}

} // namespace orvalis
