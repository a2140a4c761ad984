// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/range_formats.h"

#include <QTextCursor>
#include <QTextDocument>

namespace orvalis {

void setFormats(QTextDocument& document, const std::vector<RangeFormat>& ranges,
                void (QTextCursor::*set)(const QTextCharFormat&)) {
    QTextCursor edit(&document);
    edit.beginEditBlock();
    for (const auto& [start, end, format] : ranges) {
        edit.setPosition(start);
        edit.setPosition(end, QTextCursor::KeepAnchor);
        (edit.*set)(format);
    }
    edit.endEditBlock();
}

} // namespace orvalis
