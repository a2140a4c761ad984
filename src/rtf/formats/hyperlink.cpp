// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/hyperlink.h"

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

namespace {

constexpr QStringView Keyword = u"HYPERLINK";

// Takes one word off the front: what stands in quotes, or up to the next blank. Inside quotes a
// backslash stands before a quote or another backslash.
QString takeWord(QStringView& text) {
    text = text.trimmed();
    QString word;
    if (!text.startsWith(u'"')) {
        qsizetype end = 0;
        while (end < text.size() && !text[end].isSpace())
            ++end;
        word = text.first(end).toString();
        text = text.sliced(end);
        return word;
    }
    qsizetype at = 1;
    for (; at < text.size() && text[at] != u'"'; ++at) {
        const bool escape = text[at] == u'\\' && at + 1 < text.size() &&
                            (text[at + 1] == u'\\' || text[at + 1] == u'"');
        word += text[escape ? ++at : at];
    }
    text = text.sliced(std::min(at + 1, text.size()));
    return word;
}

QString quoted(QString text) {
    text.replace(u'\\', "\\\\"_L1).replace(u'"', "\\\""_L1);
    return u'"' + text + u'"';
}

} // namespace

Hyperlink hyperlinkOf(QStringView instruction) {
    instruction = instruction.trimmed();
    if (!instruction.startsWith(Keyword, Qt::CaseInsensitive))
        return {};
    instruction = instruction.sliced(Keyword.size());
    const bool ends = instruction.isEmpty() || instruction.front().isSpace() ||
                      instruction.front() == u'"' || instruction.front() == u'\\';
    if (!ends)
        return {};
    QString target;
    QString place;
    QString switches;
    while (!instruction.trimmed().isEmpty()) {
        const bool isQuoted = instruction.trimmed().startsWith(u'"');
        const QString word = takeWord(instruction);
        // One backslash begins a switch, two the name of a server.
        if (isQuoted || !word.startsWith(u'\\') || word.startsWith(u"\\\\")) {
            if (target.isEmpty())
                target = word;
        } else if (word == u"\\l") {
            place = takeWord(instruction);
        } else if (word == u"\\o" || word == u"\\t") {
            switches += u' ' + word + u' ' + quoted(takeWord(instruction));
        } else if (word == u"\\m" || word == u"\\n") {
            switches += u' ' + word;
        }
    }
    return {place.isEmpty() ? target : target + u'#' + place, switches};
}

QString hyperlinkInstruction(const Hyperlink& link) {
    return u"HYPERLINK "_s + quoted(link.target) + link.switches;
}

} // namespace orvalis::rtf
