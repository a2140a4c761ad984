// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/text_file.h"

#include <algorithm>

namespace orvalis {

namespace {

constexpr QByteArrayView Utf8Mark("\xEF\xBB\xBF");

bool takenForUtf8(QByteArrayView bytes) {
    return bytes.startsWith(Utf8Mark) || QUtf8StringView(bytes).isValidUtf8();
}

bool isAscii(QByteArrayView bytes) {
    return std::all_of(
        bytes.begin(), bytes.end(), [](char byte) { return static_cast<quint8>(byte) < 128; });
}

} // namespace

QByteArray encodeText(QStringView text, const AnsiPage& page) {
    if (page.holds(text)) {
        const QByteArray bytes = page.encode(text);
        if (isAscii(bytes) || !takenForUtf8(bytes))
            return bytes;
    }
    return Utf8Mark.toByteArray() + text.toUtf8();
}

QString decodeText(QByteArrayView bytes, const AnsiPage& page) {
    return decodeTextStart(bytes, bytes.size(), page);
}

QString decodeTextStart(QByteArrayView bytes, qsizetype wanted, const AnsiPage& page) {
    const bool utf8 = takenForUtf8(bytes);
    if (bytes.startsWith(Utf8Mark))
        bytes = bytes.sliced(Utf8Mark.size());
    bytes.truncate(std::min(wanted, bytes.size()));
    return utf8 ? QString::fromUtf8(bytes) : page.decode(bytes);
}

} // namespace orvalis
