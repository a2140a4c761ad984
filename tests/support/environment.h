// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

#include <utility>

namespace orvalis::test {

/// Sets variables of the environment, or takes them out where the value is null, and puts all back
/// when it goes.
class Environment {
public:
    ~Environment() {
        while (!m_before.isEmpty()) {
            const auto [name, value] = m_before.takeLast();
            put(name, value);
        }
    }
    Environment() = default;
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

    void set(const QByteArray& name, const QByteArray& value) {
        m_before << std::pair(name, qEnvironmentVariableIsSet(name.constData())
                                        ? qgetenv(name.constData())
                                        : QByteArray());
        put(name, value);
    }
    void unset(const QByteArray& name) { set(name, QByteArray()); }

private:
    static void put(const QByteArray& name, const QByteArray& value) {
        if (value.isNull())
            qunsetenv(name.constData());
        else
            qputenv(name.constData(), value);
    }

    QList<std::pair<QByteArray, QByteArray>> m_before;
};

} // namespace orvalis::test
