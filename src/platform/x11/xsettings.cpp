// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/x11/xsettings.h"

#include <QByteArray>
#include <QList>
#include <QtEndian>

namespace orvalis {

namespace {

constexpr double SettingsUnit = 1024; // to a dot to the inch, in the desktop's settings

/// Reads the settings' binary form; every step is bounded by what is left of it.
class SettingsReader {
public:
    explicit SettingsReader(QByteArrayView bytes)
        : m_bytes(bytes) {}

    bool failed() const { return m_failed; }

    QByteArrayView take(qint64 length) {
        if (m_failed || length > m_bytes.size()) {
            m_failed = true;
            return {};
        }
        const QByteArrayView taken = m_bytes.first(length);
        m_bytes = m_bytes.sliced(length);
        return taken;
    }

    template <class Number>
    Number number() {
        const QByteArrayView taken = take(sizeof(Number));
        if (taken.isEmpty())
            return 0;
        return m_bigEndian ? qFromBigEndian<Number>(taken.data())
                           : qFromLittleEndian<Number>(taken.data());
    }

    void setBigEndian(bool bigEndian) { m_bigEndian = bigEndian; }

    /// Texts are filled up to multiples of four bytes.
    QByteArrayView paddedText(qint64 length) {
        const QByteArrayView text = take(length);
        take((4 - length % 4) % 4);
        return text;
    }

private:
    QByteArrayView m_bytes;
    bool m_failed = false;
    bool m_bigEndian = false;
};

} // namespace

std::optional<double> resolutionOfResources(QByteArrayView resources) {
    for (const QByteArray& line : resources.toByteArray().split('\n')) {
        const qsizetype colon = line.indexOf(':');
        if (colon <= 0 || line.first(colon).trimmed() != "Xft.dpi")
            continue;
        bool valid = false;
        const double resolution = line.sliced(colon + 1).trimmed().toDouble(&valid);
        return valid && resolution > 0 ? std::optional(resolution) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<double> resolutionOfSettings(QByteArrayView settings) {
    enum : quint8 { Integer = 0, Text = 1, Colour = 2 };
    SettingsReader reader(settings);
    reader.setBigEndian(reader.number<quint8>() == 1);
    reader.take(3);
    reader.number<quint32>(); // serial number
    const quint32 count = reader.number<quint32>();
    for (quint32 i = 0; i < count && !reader.failed(); ++i) {
        const quint8 type = reader.number<quint8>();
        reader.take(1);
        const QByteArrayView name = reader.paddedText(reader.number<quint16>());
        reader.number<quint32>(); // serial number of the last change
        if (type == Integer) {
            const auto value = reader.number<qint32>();
            if (name == "Xft/DPI" && value > 0 && !reader.failed())
                return value / SettingsUnit;
        } else if (type == Text) {
            reader.paddedText(reader.number<quint32>());
        } else if (type == Colour) {
            reader.take(8);
        } else {
            break;
        }
    }
    return std::nullopt;
}

} // namespace orvalis
