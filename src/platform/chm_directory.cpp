// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/chm_directory.h"

#include <QtEndian>

#include <vector>

namespace orvalis {

namespace {

constexpr qsizetype FileHeaderSize = 0x60;
constexpr qsizetype DirectoryHeaderSize = 0x54;
constexpr qsizetype ListingHeaderSize = 0x14;
constexpr qsizetype IndexHeaderSize = 0x08;
constexpr qint32 MaximalBlockSize = 1 << 16;
constexpr int MaximalDepth = 4;
constexpr int None = -1;

template <class Number>
Number at(const QByteArray& bytes, qsizetype offset) {
    return qFromLittleEndian<Number>(bytes.constData() + offset);
}

/// A place in a block of the directory that is read on from, never past its end.
class Cursor {
public:
    explicit Cursor(QByteArrayView block)
        : m_left(block) {}

    bool atEnd() const { return m_left.isEmpty(); }
    bool isGood() const { return m_good; }

    /// Seven bits a byte, the highest first; the top bit says that more follow.
    quint64 number() {
        quint64 value = 0;
        for (int bytes = 0; bytes < 9; ++bytes) {
            if (m_left.isEmpty())
                break;
            const auto byte = static_cast<quint8>(m_left.front());
            m_left = m_left.sliced(1);
            value = value << 7 | (byte & 0x7f);
            if ((byte & 0x80) == 0)
                return value;
        }
        m_good = false;
        return 0;
    }

    QByteArrayView text(quint64 length) {
        if (length > static_cast<quint64>(m_left.size())) {
            m_good = false;
            return {};
        }
        const QByteArrayView taken = m_left.first(static_cast<qsizetype>(length));
        m_left = m_left.sliced(static_cast<qsizetype>(length));
        return taken;
    }

private:
    QByteArrayView m_left;
    bool m_good = true;
};

/// The directory: a header and blocks of one size, which list the files or index the lists.
class Directory {
public:
    explicit Directory(const QByteArray& bytes)
        : m_bytes(bytes) {}

    std::optional<QList<ChmEntry>> read() {
        if (!readHeaders() || !walkIndex(m_root, m_depth) || !walkListings())
            return std::nullopt;
        return m_entries;
    }

private:
    bool readHeaders() {
        if (m_bytes.size() < FileHeaderSize || !m_bytes.startsWith("ITSF") ||
            at<quint32>(m_bytes, 4) != 3)
            return false;
        const auto sizes = at<quint64>(m_bytes, 0x38);
        const auto directory = at<quint64>(m_bytes, 0x48);
        const auto directoryLength = at<quint64>(m_bytes, 0x50);
        const auto content = at<quint64>(m_bytes, 0x58);
        const auto whole = static_cast<quint64>(m_bytes.size());
        if (sizes > whole - 0x10 || directory > whole || directoryLength > whole - directory ||
            directoryLength < static_cast<quint64>(DirectoryHeaderSize) || content > whole)
            return false;
        // A file that was cut off still says how long it was.
        if (at<quint64>(m_bytes, static_cast<qsizetype>(sizes) + 8) != whole)
            return false;
        m_contentLength = whole - content;

        const auto start = static_cast<qsizetype>(directory);
        m_blockSize = at<qint32>(m_bytes, start + 0x10);
        m_depth = at<qint32>(m_bytes, start + 0x18);
        m_root = at<qint32>(m_bytes, start + 0x1c);
        m_first = at<qint32>(m_bytes, start + 0x20);
        const auto count = at<quint32>(m_bytes, start + 0x2c);
        if (!m_bytes.sliced(start).startsWith("ITSP") ||
            at<quint32>(m_bytes, start + 8) != DirectoryHeaderSize ||
            m_blockSize <= ListingHeaderSize || m_blockSize > MaximalBlockSize || m_depth < 1 ||
            m_depth > MaximalDepth)
            return false;
        m_blocksStart = start + DirectoryHeaderSize;
        const quint64 room = directoryLength - static_cast<quint64>(DirectoryHeaderSize);
        if (static_cast<quint64>(count) * static_cast<quint64>(m_blockSize) > room)
            return false;
        m_visited.resize(count);
        return true;
    }

    /// The block, or nothing where there is none of that number or it is of another kind.
    QByteArray block(qint32 number, const char* kind) const {
        if (number < 0 || static_cast<size_t>(number) >= m_visited.size())
            return {};
        const QByteArray bytes =
            m_bytes.mid(m_blocksStart + static_cast<qsizetype>(number) * m_blockSize, m_blockSize);
        return bytes.startsWith(kind) ? bytes : QByteArray();
    }

    /// The entries of a block: what stands between its header and its free space.
    std::optional<QByteArrayView> body(const QByteArray& bytes, qsizetype header) const {
        const auto unused = at<quint32>(bytes, 4);
        if (unused > static_cast<quint32>(m_blockSize - header))
            return std::nullopt;
        return QByteArrayView(bytes).sliced(header).chopped(static_cast<qsizetype>(unused));
    }

    /// Each level of the index has to lead one level further down.
    bool walkIndex(qint32 number, int levels) {
        if (number == None || levels == 1)
            return true;
        const QByteArray bytes = block(number, "PMGI");
        if (bytes.isEmpty() || m_visited[static_cast<size_t>(number)])
            return false;
        m_visited[static_cast<size_t>(number)] = true;
        const auto entries = body(bytes, IndexHeaderSize);
        if (!entries.has_value())
            return false;
        Cursor cursor(*entries);
        while (!cursor.atEnd()) {
            cursor.text(cursor.number());
            const quint64 child = cursor.number();
            if (!cursor.isGood() || child >= m_visited.size())
                return false;
            const bool leaf = levels == 2;
            if (leaf && block(static_cast<qint32>(child), "PMGL").isEmpty())
                return false;
            if (!leaf && !walkIndex(static_cast<qint32>(child), levels - 1))
                return false;
        }
        return true;
    }

    bool walkListings() {
        for (qint32 number = m_first; number != None;) {
            const QByteArray bytes = block(number, "PMGL");
            if (bytes.isEmpty() || m_visited[static_cast<size_t>(number)])
                return false;
            m_visited[static_cast<size_t>(number)] = true;
            const auto entries = body(bytes, ListingHeaderSize);
            if (!entries.has_value() || !readListing(*entries))
                return false;
            number = at<qint32>(bytes, 0x10);
        }
        return !m_entries.isEmpty();
    }

    bool readListing(QByteArrayView listing) {
        Cursor cursor(listing);
        while (!cursor.atEnd()) {
            ChmEntry entry;
            entry.path = cursor.text(cursor.number()).toByteArray();
            entry.section = cursor.number();
            entry.offset = cursor.number();
            entry.length = cursor.number();
            if (!cursor.isGood() || entry.path.isEmpty())
                return false;
            const bool plain = entry.section == 0;
            if (plain &&
                (entry.offset > m_contentLength || entry.length > m_contentLength - entry.offset))
                return false;
            m_entries.append(entry);
        }
        return true;
    }

    const QByteArray& m_bytes;
    quint64 m_contentLength = 0;
    qsizetype m_blocksStart = 0;
    qint32 m_blockSize = 0;
    qint32 m_depth = 0;
    qint32 m_root = None;
    qint32 m_first = None;
    std::vector<bool> m_visited;
    QList<ChmEntry> m_entries;
};

} // namespace

std::optional<QList<ChmEntry>> readChmDirectory(const QByteArray& bytes) {
    return Directory(bytes).read();
}

} // namespace orvalis
