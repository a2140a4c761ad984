// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace orvalis {

/// The kinds of tray that a desktop may have.
enum class TrayKind { StatusNotifier, XEmbed };

/// Knows which trays the desktop has, and hears of their coming and going while it is awake.
class TrayWatch : public QObject {
    Q_OBJECT
public:
    virtual bool has(TrayKind kind) = 0;
    /// Whether has() knows. Each waking asks anew, and the answer may come a moment later.
    virtual bool isSettled() const { return true; }
    /// Asleep it wakes nobody up; `changed` may then be late.
    virtual void setAwake(bool awake) = 0;

signals:
    /// A tray came or went, or it is known at last which there are.
    void changed();
};

} // namespace orvalis
