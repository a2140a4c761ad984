// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

namespace orvalis {

/// Knows whether the X server has a tray that icons can be embedded in, and hears of its coming and
/// going while it is awake.
class XEmbedWatch final : public QObject {
    Q_OBJECT
public:
    XEmbedWatch();

    /// Asks the server. False on other displays.
    static bool hasTray();

    void setAwake(bool awake);

signals:
    /// The tray came or went.
    void changed();

private:
    QTimer m_look;
    bool m_had = false;
};

} // namespace orvalis
