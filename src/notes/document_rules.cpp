// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/document_rules.h"

#include "controls/rich_text_box.h"
#include "runtime/app.h"

namespace orvalis {

using namespace Qt::StringLiterals;

QString untitled() {
    return u"Untitled"_s;
}

int documentFlags(const QString& fileTitle) {
    return fileTitle.endsWith(u'f', Qt::CaseInsensitive) ? RichTextBox::rtfRTF
                                                         : RichTextBox::rtfText;
}

bool isNeededFile(const QString& path, const App& app) {
    return path == app.file(u"Vazno.rtf"_s) || path == app.file(u"weekly.rtf"_s);
}

QString replaceQuestion(const QString& path) {
    return u"The File "_s + path + u" already exists.\nDo you want to replace it?"_s;
}

bool mayBeMailed(const QString& title, const QString& path) {
    return !title.startsWith(untitled(), Qt::CaseInsensitive) && !path.isEmpty();
}

QString firstLine(const QString& text) {
    return text.left(text.indexOf(u"\r\n"));
}

QString dateAndTime(int kind, const QString& date, const QString& time) {
    switch (kind) {
    case 1:
        return date;
    case 2:
        return time;
    case 3:
        return date + u" / "_s + time;
    default:
        return {};
    }
}

} // namespace orvalis
