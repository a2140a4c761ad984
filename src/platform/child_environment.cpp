// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/child_environment.h"

#include "platform/interface_scale.h"

namespace orvalis {

QProcessEnvironment childEnvironment() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString variable = QString::fromLatin1(ScaleVariable);
    const QByteArray users = userScaleFactor();
    if (users.isEmpty())
        environment.remove(variable);
    else
        environment.insert(variable, QString::fromLocal8Bit(users));
    return environment;
}

} // namespace orvalis
