// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QtEndian>

namespace orvalis::rtf {

/// Numbers of Windows' formats, little end first. Past the end of the bytes everything is 0.
inline quint16 readU16(QByteArrayView bytes, qsizetype at) {
    return at >= 0 && at <= bytes.size() - 2 ? qFromLittleEndian<quint16>(bytes.data() + at)
                                             : quint16(0);
}

inline quint32 readU32(QByteArrayView bytes, qsizetype at) {
    return at >= 0 && at <= bytes.size() - 4 ? qFromLittleEndian<quint32>(bytes.data() + at) : 0u;
}

inline void appendU16(QByteArray& bytes, quint16 number) {
    char out[sizeof number];
    qToLittleEndian(number, out);
    bytes.append(out, sizeof out);
}

inline void appendU32(QByteArray& bytes, quint32 number) {
    char out[sizeof number];
    qToLittleEndian(number, out);
    bytes.append(out, sizeof out);
}

} // namespace orvalis::rtf
