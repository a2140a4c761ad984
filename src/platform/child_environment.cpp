// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/child_environment.h"

#include "platform/interface_scale.h"
#include "platform/session_bus.h"

using namespace Qt::StringLiterals;

namespace orvalis {

QProcessEnvironment childEnvironment() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString variable = QString::fromLatin1(ScaleVariable);
    const QByteArray users = userScaleFactor();
    if (users.isEmpty())
        environment.remove(variable);
    else
        environment.insert(variable, QString::fromLocal8Bit(users));
    if (const QByteArray bus = hiddenSessionBus(); !bus.isNull()) {
        const QString address = u"DBUS_SESSION_BUS_ADDRESS"_s;
        if (bus.isEmpty())
            environment.remove(address);
        else
            environment.insert(address, QString::fromLocal8Bit(bus));
    }
    return environment;
}

} // namespace orvalis
