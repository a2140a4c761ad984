// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/hyperlink.h"
#include "rtf/kept/kept_group.h"
#include "rtf/kept/kept_text.h"
#include "rtf/reading/entry_scan.h"
#include "rtf/reading/field_scan.h"
#include "rtf/reading/field_shape.h"
#include "rtf/reading/form_field.h"
#include "rtf/reading/interpreter.h"
#include "rtf/reading/object_scan.h"
#include "rtf/reading/shape_scan.h"

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

namespace {

constexpr int MostFields = 4096; // each makes a format of its own

} // namespace

/// The instruction of a field goes with the text that shows it, within a paragraph; where nothing
/// does, the field is kept at its place.
void Interpreter::keepField() {
    constexpr int MostFieldsAround = 4; // each look ahead reads all that is in a field
    if (++m_state.fieldsAround > MostFieldsAround || m_fields >= MostFields || !shows())
        return;
    const FieldScan scan = scanField(m_tokenizer.groupAhead());
    if (scan.instruction.isEmpty() || scan.hasStructure)
        return;
    const FileTables tables = fileTables(m_fonts.usual());
    QString kept = GroupKeeper(scan.instruction, tables).kept("{\\*\\", "fldinst", m_keptLeft);
    m_keptLeft -= kept.size();
    // Its name, and what it shows, are those by which it will be read when it has been written.
    const QByteArray written = keptWithoutPlaces(kept);
    const QByteArray name = fieldName(written);
    const QString instruction = instructionText(written);
    const QString entry = name == "FORMDROPDOWN" ? chosenEntry(written) : QString();
    const QString shown = scan.hasResult ? QString() : fieldText(instruction) + entry;
    if (name.isEmpty())
        return;
    kept.prepend(QLatin1StringView(scan.words));
    const bool isLink = !hyperlinkOf(instruction).target.isEmpty();
    if (goesWithShape(m_tokenizer.groupAhead(), isLink)) {
        m_state.fieldHead = m_names.kept(u"{\\field"_s + kept + u"{\\fldrslt"_s);
        m_fieldDepth = 0;
        return;
    }
    if (isLink)
        return;
    m_fieldDepth = 0;
    if (!scan.hasResult && shown.isEmpty()) {
        anchor(u"{\\field"_s + kept + u"{\\fldrslt}}"_s);
        return;
    }
    if (m_state.chars.field != NothingKept)
        return;
    const QString number = QString::number(++m_fields) + NumberEnd;
    if (scan.hasResult) {
        m_state.chars.field = m_names.kept(number + kept);
    } else {
        m_state.ownField = m_names.kept(number + keptOf({kept, {}, shown}));
        m_fieldLooks.push_back({m_state.fieldsAround, {}});
    }
}

/// An entry of an index or a table of contents is text of the document, and goes on to be an entry;
/// a hidden one is kept at its place.
/// \param word of its group, behind which one stands.
void Interpreter::keepEntry(QByteArrayView word) {
    constexpr int MostEntriesAround = 4; // each look ahead reads all that is in an entry
    const bool mayShow = shows();
    if (++m_state.entriesAround > MostEntriesAround || !mayShow ||
        keepUnseen(word, UnseenAs::Hidden, m_state.chars.hidden))
        return;
    const EntryScan entry = scanEntry(m_tokenizer.groupAhead());
    if (!entry.hasStructure)
        beginField(QString::fromLatin1("{\\" + word.toByteArray() + entry.words));
}

/// What an object of another program shows goes with it, as the text of a field does.
/// \param word of its group, behind which one stands.
void Interpreter::keepObjectOfText(QByteArrayView word) {
    const ObjectScan object = scanObject(m_tokenizer.groupAhead());
    if (object.frame.isEmpty() || object.hasStructure)
        return;
    const FileTables tables = fileTables(m_fonts.usual());
    const QString kept = GroupKeeper(object.frame, tables).kept("{\\", word, m_keptLeft);
    m_keptLeft -= kept.size();
    // What is anchored to its end stands within it, another object say.
    if (!kept.isEmpty() && beginField(kept.chopped(1) + u"{\\result"_s))
        m_state.inObject = false;
}

/// The text of the group is that of a field, unless it is that of another one by now.
/// \param opening as it is kept.
/// \returns whether it is.
bool Interpreter::beginField(const QString& opening) {
    CharFormat& chars = m_state.chars;
    if (chars.field != NothingKept || chars.link != NoName || m_fields >= MostFields)
        return false;
    chars.field = m_names.kept(QString::number(++m_fields) + NumberEnd + opening);
    return true;
}

/// Whether a field that shows one shape and nothing else is kept as its outer part. A picture is a
/// character that the field can go with, and a link goes with the text of a shape.
bool Interpreter::goesWithShape(QByteArrayView field, bool isLink) const {
    const QByteArrayView shape = shapeOfField(field);
    if (shape.isNull())
        return false;
    const ShapeScan::Shows shows = scanShape(shape).shows;
    return shows == ShapeScan::Shows::Nothing ||
           (shows == ShapeScan::Shows::Boxes && (!isLink || m_state.inTable));
}

QString Interpreter::inField(const QString& shape) const {
    if (m_state.fieldHead == NothingKept || shape.isEmpty())
        return shape;
    return m_names.keptAt(m_state.fieldHead) + shape + u"}}"_s;
}

void Interpreter::fieldEnds() {
    const int own = m_state.ownField;
    if (own == NothingKept && m_groups.size() != m_fieldDepth)
        return;
    m_fieldDepth = 0;
    QString text = std::exchange(m_fieldText, {});
    CharFormat look = m_captureFormat;
    if (own != NothingKept) {
        const QString kept = m_names.keptAt(own);
        text = shownBy(kept)->text.toString();
        look = m_fieldLooks.back().look.value_or(m_state.chars);
        m_fieldLooks.pop_back();
    }
    if (text.isEmpty() || !shows())
        return;
    const CharFormat around = std::exchange(m_state.chars, look);
    m_state.chars.field = own;
    append(text);
    m_state.chars = around;
}

/// The target of a link, and the text of a field that is not kept and brings no result.
void Interpreter::takeInstruction(const QString& instruction) {
    const Hyperlink link = hyperlinkOf(instruction);
    if (!link.target.isEmpty()) {
        m_state.chars.link = m_names.link(link);
        m_state.chars.field = NothingKept;
    }
    m_fieldText = fieldText(instruction);
    const bool isOwn =
        !m_fieldLooks.empty() && m_fieldLooks.back().fieldsAround == m_fieldsAroundInstruction;
    if (isOwn && !m_fieldLooks.back().look)
        m_fieldLooks.back().look = m_captureFormat;
}

} // namespace orvalis::rtf
