// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/rich_text_box.h"

#include <QAbstractTextDocumentLayout>
#include <QPixmap>
#include <QTest>

namespace orvalis::test {

/// Shows the box in a small window with its beginning and its end, and types into it at both.
inline void showAndType(RichTextBox& box) {
    box.resize(220, 160);
    box.grab();
    for (const auto end : {QTextCursor::End, QTextCursor::Start}) {
        box.moveCursor(end);
        QTest::keyClick(&box, Qt::Key_X);
        box.grab();
    }
}

inline double heightOf(const RichTextBox& box) {
    return box.document()->documentLayout()->documentSize().height();
}

} // namespace orvalis::test
