// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_parts.h"

#include "rtf/formats/format_properties.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextDocument>
#include <QVariant>

namespace orvalis::rtf {

namespace {

constexpr const char* PartsProperty = "orvalisKeptParts";

} // namespace

KeptParts keptParts(const QTextDocument& document) {
    return document.property(PartsProperty).value<KeptParts>();
}

void setKeptParts(QTextDocument& document, const KeptParts& parts) {
    const bool any = parts != KeptParts();
    document.setProperty(PartsProperty, any ? QVariant::fromValue(parts) : QVariant());
}

void clearKept(QTextCharFormat& format) {
    format.clearProperty(KeptOfCharacters);
    format.clearProperty(KeptAnchors);
    format.clearProperty(CellShape);
    format.clearProperty(KeptField);
    format.clearProperty(StatedOfCharacters);
}

void clearKept(QTextBlockFormat& format) {
    if (format.hasProperty(KeptOfParagraph))
        format.clearBackground();
    format.clearProperty(KeptOfParagraph);
    format.clearProperty(KeptOfSection);
    format.clearProperty(KeptAtStart);
    format.clearProperty(TableRow);
    format.clearProperty(RowBegins);
    format.clearProperty(RowStaysOpen);
    format.clearProperty(TableNesting);
    format.clearProperty(NestedRow);
    format.clearProperty(KeptBox);
    format.clearProperty(BoxPlace);
    format.clearProperty(SpaceAfterAhead);
    format.clearProperty(GoesOnBehindBox);
    format.clearProperty(StatedOfParagraph);
    format.clearProperty(ParagraphMark);
}

} // namespace orvalis::rtf
