// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace orvalis::rtf {

/// What a look ahead tells of a field.
struct FieldScan {
    QByteArray words;           ///< of the field itself, that it is locked, say
    QByteArrayView instruction; ///< what stands behind the word of its group, up to the brace
    bool hasResult = false;     ///< something to show
    bool hasStructure = false;  ///< paragraphs, cells or sections end in it
};

/// \param content of the field's group, behind its first word.
FieldScan scanField(QByteArrayView content);

/// The text of an instruction in the one spelling of what is kept (see kept_text.h).
QString instructionText(QByteArrayView instruction);
/// What an instruction holds to show, where its field brings no result.
QString fieldText(const QString& instruction);
/// The first word of a field's instruction, in capitals.
QByteArray fieldName(QByteArrayView instruction);

} // namespace orvalis::rtf
