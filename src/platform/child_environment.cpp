// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/child_environment.h"

#include <QHash>

namespace orvalis {

namespace {

/// What the user's environment says of the variables that we set, a null text for nothing.
QHash<QByteArray, QByteArray>& usersValues() {
    static QHash<QByteArray, QByteArray> values;
    return values;
}

} // namespace

void setForUsAlone(const char* variable, const QByteArray& value) {
    if (!usersValues().contains(variable))
        usersValues().insert(variable, qgetenv(variable));
    qputenv(variable, value);
}

void giveBack(const char* variable) {
    const auto users = usersValues().constFind(variable);
    if (users == usersValues().cend())
        return;
    if (users->isNull())
        qunsetenv(variable);
    else
        qputenv(variable, *users);
    usersValues().erase(users);
}

QProcessEnvironment childEnvironment() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto users = usersValues().cbegin(); users != usersValues().cend(); ++users) {
        const QString variable = QString::fromLatin1(users.key());
        if (users->isNull())
            environment.remove(variable);
        else
            environment.insert(variable, QString::fromLocal8Bit(*users));
    }
    return environment;
}

} // namespace orvalis
