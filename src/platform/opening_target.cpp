// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/opening_target.h"

#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace orvalis {

namespace {

/// Whether a text begins with a scheme. One letter is a drive, and a name with a point ahead of a
/// number is a host with its port.
bool hasScheme(const QString& text) {
    static const QRegularExpression scheme(u"^[A-Za-z][A-Za-z0-9+.-]+:"_s);
    static const QRegularExpression port(u"^[^:/]*\\.[^:/]*:[0-9]"_s);
    return scheme.match(text).hasMatch() && !port.match(text).hasMatch();
}

} // namespace

QString openingTarget(const QString& documentOrAddress) {
    if (documentOrAddress.isEmpty())
        return {};
    const QFileInfo file(documentOrAddress);
    if (file.exists())
        return file.absoluteFilePath();
    if (file.isAbsolute())
        return {};
    if (hasScheme(documentOrAddress))
        return documentOrAddress;
    const QString address = documentOrAddress.trimmed();
    return hasScheme(address) ? address : u"http://"_s + address;
}

} // namespace orvalis
