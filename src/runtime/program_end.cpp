// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/program_end.h"

#include <QCoreApplication>
#include <QVariant>

namespace orvalis {

namespace {

constexpr const char* EndedProperty = "orvalisEnded";

} // namespace

bool programHasEnded() {
    return qApp != nullptr && qApp->property(EndedProperty).toBool();
}

void markProgramEnded() {
    qApp->setProperty(EndedProperty, true);
}

void throwIfEnded() {
    if (programHasEnded())
        throw ProgramEnded();
}

} // namespace orvalis
