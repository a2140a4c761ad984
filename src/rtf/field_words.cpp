// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/field_words.h"

#include <algorithm>

namespace orvalis::rtf {

QString takeFieldWord(QStringView& instruction) {
    instruction = instruction.trimmed();
    QString word;
    if (!instruction.startsWith(u'"')) {
        qsizetype end = 0;
        while (end < instruction.size() && !instruction[end].isSpace())
            ++end;
        word = instruction.first(end).toString();
        instruction = instruction.sliced(end);
        return word;
    }
    qsizetype at = 1;
    for (; at < instruction.size() && instruction[at] != u'"'; ++at) {
        const bool escape = instruction[at] == u'\\' && at + 1 < instruction.size() &&
                            (instruction[at + 1] == u'\\' || instruction[at + 1] == u'"');
        word += instruction[escape ? ++at : at];
    }
    instruction = instruction.sliced(std::min(at + 1, instruction.size()));
    return word;
}

} // namespace orvalis::rtf
