// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/failure.h"

namespace orvalis {

QString errorDescription(ErrorNumber number) {
    switch (number) {
    case ErrorNumber::InvalidProcedureCall:
        return QStringLiteral("Invalid procedure call or argument");
    case ErrorNumber::Overflow:
        return QStringLiteral("Overflow");
    case ErrorNumber::SubscriptOutOfRange:
        return QStringLiteral("Subscript out of range");
    case ErrorNumber::TypeMismatch:
        return QStringLiteral("Type mismatch");
    case ErrorNumber::FileNotFound:
        return QStringLiteral("File not found");
    case ErrorNumber::InputPastEndOfFile:
        return QStringLiteral("Input past end of file");
    case ErrorNumber::PermissionDenied:
        return QStringLiteral("Permission denied");
    case ErrorNumber::PathFileAccessError:
        return QStringLiteral("Path/File access error");
    case ErrorNumber::PathNotFound:
        return QStringLiteral("Path not found");
    case ErrorNumber::ObjectVariableNotSet:
        return QStringLiteral("Object variable not set");
    case ErrorNumber::InvalidUseOfNull:
        return QStringLiteral("Invalid use of Null");
    case ErrorNumber::InvalidFileFormat:
        return QStringLiteral("Invalid file format");
    case ErrorNumber::InvalidPropertyValue:
        return QStringLiteral("Invalid property value");
    case ErrorNumber::InvalidPicture:
        return QStringLiteral("Invalid picture");
    case ErrorNumber::PrinterError:
        return QStringLiteral("Printer error");
    case ErrorNumber::GridOutOfMemory:
        return QStringLiteral("Unable to allocate memory for the grid");
    case ErrorNumber::InvalidRowValue:
        return QStringLiteral("Invalid row value");
    case ErrorNumber::CannotRemoveLastRow:
        return QStringLiteral("Cannot remove the last row");
    case ErrorNumber::CancelWasSelected:
        return QStringLiteral("Cancel was selected");
    }
    Q_UNREACHABLE();
}

RuntimeError::RuntimeError(ErrorNumber number, const QString& description)
    : m_number(number)
    , m_description(description)
    , m_what("Run-time error '" + QByteArray::number(static_cast<int>(number)) +
             "': " + description.toUtf8()) {}

} // namespace orvalis
