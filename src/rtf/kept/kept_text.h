// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>
#include <QString>
#include <QStringView>

#include <optional>

namespace orvalis::rtf {

struct ListLabel;

/// RTF that is kept as it came, in one spelling: 7-bit, text in code page 1252 with \u for the
/// rest. Fonts and colours stand in it by what they are, each in a place of its own, because the
/// tables of the file that it is written to number them otherwise.

/// The place of a font's number; of no family, the number of the first font.
QString keptFont(const QString& family);
/// The number of a font that the file's table does not have: none of any table.
inline constexpr int NoSuchFont = 32767;
/// The place of a colour's number.
QString keptColor(QRgb color);

/// The place of the number of a list of the list tables, told by it and its override.
QString keptList(const QString& list, const QString& listOverride);

/// The place in a list of a cell, which shows no label.
QString listOfCell(const ListLabel& label);
/// Whether what is kept of a paragraph tells such a place.
bool isInList(const QString& kept);
/// What is kept of a cell's paragraph, which ends with that place, without it.
QString withoutListOfCell(const QString& kept);

/// What stands between the number that a file gave something and what is kept of it.
inline constexpr QChar NumberEnd(0x3);

/// What a field shows by itself, or a formula or a shape in a line.
struct KeptShown {
    QStringView group; ///< all that is kept of it
    QStringView frame; ///< of a shape with one text: the same with a place for that
    QStringView text;
};
/// What is kept of it, behind its number; nothing of a field that shows the text in it.
std::optional<KeptShown> shownBy(QStringView kept);
/// How that is kept.
QString keptOf(const KeptShown& shown);

/// Whether what is kept is the instruction of a field, behind what is said of the field itself.
bool isOfField(QStringView group);

/// What opens and closes a field around its text, or an entry of an index or an object of another
/// program, which go with their text as fields do.
struct FieldGroups {
    QString opening; ///< as it is kept
    QByteArrayView closing;
};
/// \param kept of it, with its number.
FieldGroups fieldGroups(QStringView kept);

/// Whether only text can be of what such groups tell, pictures cannot.
bool holdsTextAlone(QStringView kept);

/// Whether kept words of characters tell of a tracked change.
bool isTracked(QStringView kept);
/// The same words without those.
QString withoutTracked(const QString& kept);

/// What is kept without the numbers that have a place in it.
QByteArray keptWithoutPlaces(QStringView kept);

/// What the kept text of a section's begin starts with where the section ahead of it ends behind a
/// paragraph of its own, which most readers show as a further one.
inline constexpr QStringView ParagraphEndsFirst = u"\\par";

/// How wide kept words of characters make them, in per cent of their own width; 100 for none.
int stretchOf(QStringView kept);

/// Whether kept words of a document ask for lines of justified text that a line break ends to be as
/// wide as the others.
bool fillsBrokenLines(QStringView kept);

/// The colour that kept words of a paragraph lay behind it; AutomaticColor for none.
QRgb shadeOf(QStringView kept);

} // namespace orvalis::rtf
