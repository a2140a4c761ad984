// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/pictures/metafile_records.h"

#include "rtf/pictures/little_endian.h"
#include "rtf/pictures/picture.h"

#include <algorithm>

namespace orvalis::rtf {

namespace {

constexpr qsizetype PlaceableHeaderSize = 22;
constexpr qsizetype RecordHeaderSize = 6;

} // namespace

MetafileRecords::MetafileRecords(QByteArrayView metafile) {
    if (hasPlaceableHeader(metafile))
        metafile = metafile.sliced(std::min(PlaceableHeaderSize, metafile.size()));
    if (readU16(metafile, 2) == MetafileHeaderWords)
        m_rest = metafile.sliced(std::min<qsizetype>(MetafileHeaderWords * 2, metafile.size()));
}

bool MetafileRecords::next() {
    const qint64 size = qint64(readU32(m_rest, 0)) * 2;
    m_function = static_cast<MetafileFunction>(readU16(m_rest, 4));
    if (m_rest.size() < RecordHeaderSize || size < RecordHeaderSize ||
        m_function == MetafileFunction::EndOfFile)
        return false;
    const auto end = qsizetype(std::min<qint64>(size, m_rest.size()));
    m_parameters = m_rest.first(end).sliced(RecordHeaderSize);
    m_rest = m_rest.sliced(end);
    return true;
}

} // namespace orvalis::rtf
