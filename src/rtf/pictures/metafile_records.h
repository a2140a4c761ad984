// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

namespace orvalis::rtf {

/// Size of a metafile's own head, in words of two bytes.
inline constexpr quint16 MetafileHeaderWords = 9;

enum class MetafileFunction : quint16 {
    EndOfFile = 0x0000,
    SetMapMode = 0x0103,
    SetStretchBltMode = 0x0107,
    SetWindowOrigin = 0x020b,
    SetWindowExtent = 0x020c,
    DibBitBlt = 0x0940,
    DibStretchBlt = 0x0b41,
    SetDiBitsToDevice = 0x0d33,
    StretchDiBits = 0x0f43,
};

/// Goes through the records of a metafile, which may have a placeable header. It stops at the
/// record that ends the file, at one that is none, and where the bytes end.
class MetafileRecords {
public:
    explicit MetafileRecords(QByteArrayView metafile);

    /// Goes to the next record, the first one at first.
    /// \returns whether there is one.
    bool next();
    MetafileFunction function() const { return m_function; }
    /// What stands behind the record's head; cut where the file is cut.
    QByteArrayView parameters() const { return m_parameters; }

private:
    QByteArrayView m_rest;
    QByteArrayView m_parameters;
    MetafileFunction m_function = MetafileFunction::EndOfFile;
};

} // namespace orvalis::rtf
