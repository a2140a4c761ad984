// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/ini_value.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace orvalis {

namespace {

constexpr QStringView NumberPrefix = u"dword:";
constexpr QStringView ExpandPrefix = u"expand:";
constexpr QStringView BytesPrefix = u"hex(";

/// What no editor shows as it stands; the byte-order mark would be dropped at a file's start.
bool isControl(QChar c) {
    return c.unicode() < 0x20 || (c.unicode() >= 0x7F && c.unicode() < 0xA0) ||
           c.unicode() == 0x2028 || c.unicode() == 0x2029 || c == QChar::ByteOrderMark;
}

bool holdsControls(QStringView text) {
    return std::any_of(text.begin(), text.end(), isControl);
}

QString quoted(const QString& text) {
    // Halves of a character that stand alone can't be told in UTF-8.
    const bool escapeSurrogates = !text.isValidUtf16();
    QString written = u"\""_s;
    for (const QChar c : text)
        if (c == u'"' || c == u'\\')
            written += u'\\' + QString(c);
        else if (c == u'\n')
            written += u"\\n"_s;
        else if (c == u'\r')
            written += u"\\r"_s;
        else if (c == u'\t')
            written += u"\\t"_s;
        else if (isControl(c) || (escapeSurrogates && c.isSurrogate()))
            written += u"\\u%1"_s.arg(c.unicode(), 4, 16, QChar(u'0'));
        else
            written += c;
    return written + u'"';
}

/// The character of an escape behind "\" at \a position, which moves behind it.
std::optional<QChar> escaped(QStringView text, qsizetype& position) {
    const QChar c = text[position++];
    switch (c.unicode()) {
    case u'"':
    case u'\\':
        return c;
    case u'n':
        return u'\n';
    case u'r':
        return u'\r';
    case u't':
        return u'\t';
    case u'u': {
        bool valid = false;
        const ushort code = text.mid(position, 4).toUShort(&valid, 16);
        if (!valid || position + 4 > text.size())
            return std::nullopt;
        position += 4;
        return QChar(code);
    }
    default:
        return std::nullopt;
    }
}

std::optional<QString> unquoted(QStringView written) {
    if (written.size() < 2 || written.front() != u'"' || written.back() != u'"')
        return std::nullopt;
    const QStringView inner = written.sliced(1, written.size() - 2);
    QString text;
    for (qsizetype i = 0; i < inner.size();) {
        const QChar c = inner[i++];
        if (c == u'"' || isControl(c))
            return std::nullopt;
        if (c != u'\\') {
            text += c;
            continue;
        }
        if (i == inner.size())
            return std::nullopt; // the last quote was an escaped one
        const std::optional<QChar> character = escaped(inner, i);
        if (!character)
            return std::nullopt;
        text += *character;
    }
    return text;
}

bool hasPrefix(QStringView text, QStringView prefix) {
    return text.startsWith(prefix, Qt::CaseInsensitive);
}

QString writtenText(const QString& text) {
    const bool plain = text == text.trimmed() && !text.startsWith(u'"') && !holdsControls(text) &&
                       text.isValidUtf16() && !hasPrefix(text, NumberPrefix) &&
                       !hasPrefix(text, ExpandPrefix) && !hasPrefix(text, BytesPrefix);
    return plain ? text : quoted(text);
}

std::optional<StoredValue> readNumber(QStringView digits) {
    bool valid = false;
    const uint number = digits.toUInt(&valid, 16);
    if (!valid || digits.size() > 8)
        return std::nullopt;
    return StoredValue::doubleWord(number);
}

/// "type):aa,bb,cc"
std::optional<StoredValue> readBytes(QStringView written) {
    const qsizetype close = written.indexOf(u"):"_s);
    bool valid = false;
    const uint type = written.first(std::max<qsizetype>(close, 0)).toUInt(&valid, 16);
    if (!valid)
        return std::nullopt;
    StoredValue value{type, {}, 0, {}};
    const QStringView list = written.sliced(close + 2).trimmed();
    if (list.isEmpty())
        return value;
    for (const QStringView pair : list.split(u',')) {
        const uint byte = pair.trimmed().toUInt(&valid, 16);
        if (!valid || byte > 0xFF)
            return std::nullopt;
        value.bytes += static_cast<char>(byte);
    }
    return value;
}

} // namespace

QString writtenIniName(const QString& name) {
    const bool plain = !name.isEmpty() && name == name.trimmed() && !name.contains(u'=') &&
                       !name.contains(u']') && !holdsControls(name) && name.isValidUtf16() &&
                       !u"\"[;#"_s.contains(name.front());
    return plain ? name : quoted(name);
}

std::optional<QString> readIniName(QStringView written) {
    if (written.startsWith(u'"'))
        return unquoted(written);
    if (holdsControls(written))
        return std::nullopt;
    return written.toString();
}

QString writtenIniValue(const StoredValue& value) {
    switch (value.type) {
    case REG_SZ:
        return writtenText(value.text);
    case REG_EXPAND_SZ:
        return ExpandPrefix.toString() + quoted(value.text);
    case REG_DWORD:
        return NumberPrefix.toString() + u"%1"_s.arg(value.number, 8, 16, QChar(u'0'));
    default:
        return u"hex(%1):"_s.arg(value.type, 0, 16) + QString::fromLatin1(value.bytes.toHex(','));
    }
}

std::optional<StoredValue> readIniValue(QStringView written) {
    if (hasPrefix(written, NumberPrefix))
        return readNumber(written.sliced(NumberPrefix.size()));
    if (hasPrefix(written, BytesPrefix))
        return readBytes(written.sliced(BytesPrefix.size()));
    const bool expand = hasPrefix(written, ExpandPrefix);
    const QStringView rest = expand ? written.sliced(ExpandPrefix.size()) : written;
    std::optional<QString> text;
    if (expand || rest.startsWith(u'"'))
        text = unquoted(rest);
    else if (!holdsControls(rest))
        text = rest.toString();
    if (!text)
        return std::nullopt;
    return StoredValue{expand ? REG_EXPAND_SZ : REG_SZ, *text, 0, {}};
}

} // namespace orvalis
