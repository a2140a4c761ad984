// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/ansi_page.h"

namespace orvalis {

/// The bytes of a plain text file: the ANSI page where every character fits and nobody could take
/// the bytes for UTF-8, otherwise UTF-8 with its mark. So a file of one language stays readable
/// for older programs, and no character is ever lost.
QByteArray encodeText(QStringView text, const AnsiPage& page = AnsiPage::ofUser());

/// The text of such bytes: UTF-8 where they carry the mark or are valid UTF-8, otherwise the page.
/// A mark is not part of the text.
QString decodeText(QByteArrayView bytes, const AnsiPage& page = AnsiPage::ofUser());

/// The beginning of such a text, where no more of it is wanted: that of so many bytes behind the
/// mark. All of the bytes say how they are read; the last character may be cut.
QString decodeTextStart(QByteArrayView bytes, qsizetype wanted,
                        const AnsiPage& page = AnsiPage::ofUser());

} // namespace orvalis
