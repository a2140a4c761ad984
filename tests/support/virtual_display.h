// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>

namespace orvalis::test {

/// An X server of its own with one screen of the given size, for as long as it lives.
class VirtualDisplay {
public:
    VirtualDisplay(int width, int height) {
        m_server.setProcessChannelMode(QProcess::SeparateChannels);
        m_server.start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"),
                        QStringLiteral("-screen"), QStringLiteral("0"),
                        QStringLiteral("%1x%2x24").arg(width).arg(height),
                        QStringLiteral("-nolisten"), QStringLiteral("tcp")});
        while (!m_server.canReadLine() && m_server.waitForReadyRead(30000)) {
        }
        m_name = ":" + m_server.readLine().trimmed();
    }
    ~VirtualDisplay() {
        m_server.terminate();
        m_server.waitForFinished();
    }

    bool isRunning() const { return m_name.size() > 1; }
    /// What DISPLAY has to say.
    QByteArray name() const { return m_name; }

private:
    QProcess m_server;
    QByteArray m_name;
};

} // namespace orvalis::test
