// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/hyperlink.h"

#include "rtf/field_words.h"

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

namespace {

constexpr QStringView keyword = u"HYPERLINK";

} // namespace

QString hyperlinkTarget(QStringView instruction) {
    instruction = instruction.trimmed();
    if (!instruction.startsWith(keyword, Qt::CaseInsensitive))
        return {};
    instruction = instruction.sliced(keyword.size());
    QString target;
    QString place;
    while (!instruction.trimmed().isEmpty()) {
        const bool quoted = instruction.trimmed().startsWith(u'"');
        const QString word = takeFieldWord(instruction);
        // One backslash begins a switch, two the name of a server.
        if (quoted || !word.startsWith(u'\\') || word.startsWith(u"\\\\")) {
            if (target.isEmpty())
                target = word;
        } else if (word == u"\\l") {
            place = takeFieldWord(instruction);
        } else if (word == u"\\o" || word == u"\\t") {
            takeFieldWord(instruction);
        }
    }
    return place.isEmpty() ? target : target + u'#' + place;
}

QString hyperlinkInstruction(const QString& target) {
    QString escaped = target;
    escaped.replace(u'\\', "\\\\"_L1).replace(u'"', "\\\""_L1);
    return u"HYPERLINK \"%1\""_s.arg(escaped);
}

} // namespace orvalis::rtf
