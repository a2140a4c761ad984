// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/characters/bullet_sign.h"
#include "rtf/formats/list_formats.h"
#include "rtf/kept/kept_text.h"
#include "rtf/reading/interpreter.h"
#include "rtf/reading/shape_scan.h"

#include <algorithm>

namespace orvalis::rtf {

namespace {

constexpr qsizetype MostColors = 65536;

constexpr QRgb OpaqueBlack = 0xff000000;

constexpr int LastView = 5;

constexpr qsizetype LongestTheme = 100; // characters

} // namespace

bool Interpreter::destinationWord(const Token& token) {
    // The outermost group is the file.
    if (m_groups.size() < 2 || !m_head.isHead())
        return false;
    const Action action = token.word->action;
    if (m_unstoredGroups > 0) {
        if (action >= Action::SkipGroup)
            skipGroup();
        return true;
    }
    const bool inBody = m_state.destination == Destination::Body;
    const auto openInBody = [&](Destination destination) {
        if (inBody)
            openDestination(destination);
        else
            skipGroup();
    };
    const auto openTable = [&](Destination destination) {
        if (inBody)
            dissolveLineBox(); // it tells of the whole file
        openInBody(destination);
    };
    switch (action) {
    case Action::SkipGroup:
        skipGroup();
        return true;
    case Action::Generator:
        m_nameless = m_nameless && (m_headEnded || !inBody);
        skipGroup();
        return true;
    case Action::KeepGroup:
        keepGroup(token, static_cast<KeptPlace>(token.word->value));
        return true;
    case Action::FontTable:
        openTable(Destination::FontTable);
        return true;
    case Action::FontPlainName:
        openDestination(Destination::PlainFontName);
        return true;
    case Action::ColorTable:
        if (inBody) {
            m_colors.clear();
            m_color = AutomaticColor;
            m_colorTheme.clear();
            m_themes.clear();
        }
        openTable(Destination::ColorTable);
        return true;
    case Action::ListTable:
        openTable(Destination::ListTable);
        return true;
    case Action::ListOverrideTable:
        openTable(Destination::ListOverrideTable);
        return true;
    case Action::PictureGroup:
        if (!inBody && m_state.destination != Destination::ShapePropertyValue) {
            skipGroup();
            return true;
        }
        m_picture = {};
        m_pictureNumbers.clear();
        m_pictureGroups.clear();
        m_box.picturePlace = placeHere();
        m_halfByte = -1;
        openDestination(Destination::Picture);
        return true;
    case Action::ShapePicture:
        m_shapePictureShown = false;
        return true;
    case Action::NoShapePicture: {
        // The same picture once more, for readers that do not know the first form; a frame has
        // none.
        const bool isOther = std::exchange(m_shapePictureShown, false);
        if (isOther && !isInFrame() && !m_lineBox.isOpen && m_sink.wantsFallback())
            m_state.fallback = true;
        else if (isOther || isInFrame())
            skipGroup();
        return true;
    }
    case Action::Field:
        if (m_state.ownField != NothingKept)
            return true;
        m_fieldText.clear();
        m_fieldDepth = inBody ? m_groups.size() : 0;
        if (inBody)
            keepField();
        return true;
    case Action::IndexEntry:
        keepEntry(token.bytes);
        return true;
    case Action::NestedTable:
        keepNestedRow();
        return true;
    case Action::FieldInstruction:
        m_fieldsAroundInstruction = m_state.fieldsAround;
        openInBody(Destination::FieldInstruction);
        return true;
    case Action::UnicodePair:
        openInBody(Destination::UnicodePair);
        return true;
    case Action::UnicodeHalf:
        if (m_state.destination == Destination::UnicodePair)
            openDestination(Destination::Body);
        return true;
    case Action::ShapeGroup:
        if (inBody)
            keepShape(token);
        return true;
    case Action::ShapeInstruction:
        // A group of shapes holds further ones in its own instruction.
        if (!inBody && m_state.destination != Destination::Shape) {
            skipGroup();
            return true;
        }
        openDestination(Destination::Shape);
        m_shapeProperty.clear();
        return true;
    case Action::ShapeText:
        if ((m_state.destination == Destination::Shape || inBody) && !isEmptyText()) {
            openDestination(Destination::Body);
            expectBox();
        } else {
            skipGroup();
        }
        return true;
    case Action::ShapeProperty:
        if (m_state.destination != Destination::Shape)
            skipGroup();
        return true;
    case Action::ShapePropertyName:
        if (m_state.destination == Destination::Shape)
            m_shapeProperty = shapePropertyName(m_tokenizer.groupAhead());
        skipGroup();
        return true;
    case Action::ShapePropertyValue:
        if (m_state.destination == Destination::Shape && m_shapeProperty == "pib")
            openDestination(Destination::ShapePropertyValue);
        else
            skipGroup();
        return true;
    case Action::Numbering:
        m_numbering = {};
        m_numberingSymbols = SymbolFont::None;
        m_numberingShows = true;
        m_numbering.numbering = ++m_numberings;
        m_numbering.source = ListSource::Numbering;
        openInBody(Destination::Numbering);
        return true;
    case Action::NumberingTextBefore:
    case Action::NumberingTextAfter:
        if (m_state.destination == Destination::Numbering)
            openDestination(action == Action::NumberingTextBefore
                                ? Destination::NumberingTextBefore
                                : Destination::NumberingTextAfter);
        else
            skipGroup();
        return true;
    case Action::LabelText:
        m_label.symbols = SymbolFont::None;
        openInBody(Destination::Label);
        return true;
    case Action::ListLevelText:
        if (m_state.destination == Destination::ListTable ||
            m_state.destination == Destination::ListOverrideTable)
            openDestination(Destination::LevelText);
        else
            skipGroup();
        return true;
    default:
        return false;
    }
}

void Interpreter::openDestination(Destination destination) {
    if (m_state.destination == Destination::Body)
        endHalfCharacter();
    m_state.destination = destination;
    m_state.ownsDestination = true;
    m_capture.clear();
    m_captureFormat = m_state.chars;
}

void Interpreter::closeDestination(Destination destination) {
    m_highSurrogate = 0;
    const QString captured = std::exchange(m_capture, {});
    switch (destination) {
    case Destination::FontTable:
        m_fonts.commit(m_names, *m_documentPage);
        selectFont();
        return;
    case Destination::ListTable:
    case Destination::ListOverrideTable:
        m_lists.endEntry();
        if (m_headEnded)
            knowOfParagraphs();
        return;
    case Destination::ColorTable:
        // The last entry may lack its semicolon.
        if (m_color != AutomaticColor)
            colorBytes(";");
        return;
    case Destination::PlainFontName:
        m_fonts.setPlainName(captured.section(u';', 0, 0));
        return;
    case Destination::LevelText:
        if (isInList())
            m_lists.setLevelText(captured);
        return;
    case Destination::Picture:
        deliverPicture();
        return;
    case Destination::FieldInstruction:
        takeInstruction(captured);
        return;
    case Destination::Numbering:
        if (m_numbering.kind == ListKind::Bullet)
            m_numbering.prefix = bulletSign(m_numbering.prefix, m_numberingSymbols);
        m_state.paragraph.list = m_numbering;
        return;
    case Destination::NumberingTextBefore:
        m_numbering.prefix = cleanLabel(captured);
        return;
    case Destination::NumberingTextAfter:
        m_numbering.suffix = cleanLabel(captured);
        return;
    case Destination::Label:
        m_label.text = captured.trimmed();
        m_label.list = m_state.paragraph.list;
        return;
    default:
        return;
    }
}

bool Interpreter::tableWord(const Token& token) {
    const int number = token.parameter;
    // In a group that is kept as it is they say nothing of the document.
    const bool ofDocument = token.word->action <= Action::ViewKind;
    if (ofDocument && m_state.destination != Destination::Body)
        return true;
    switch (token.word->action) {
    case Action::FixedCodePage:
    case Action::AnsiCodePage: {
        const int page = token.word->action == Action::FixedCodePage ? token.word->value : number;
        setDocumentPage(page);
        return true;
    }
    case Action::Utf8Version:
        setDocumentPage(Utf8Page);
        return true;
    case Action::DefaultFont:
        m_fonts.setUsual(number);
        selectFont();
        return true;
    case Action::FurtherDefaultFont:
        m_furtherDefaults[size_t(token.word->value)] = number;
        return true;
    case Action::DefaultTab:
        if (number > 0)
            m_sink.defaultTab(std::min(number, 31680));
        return true;
    case Action::DefaultLanguage:
        if (token.hasParameter)
            m_parts.language = number;
        return true;
    case Action::ViewKind:
        if (token.hasParameter)
            m_parts.viewKind = std::clamp(number, 0, LastView);
        return true;
    case Action::FontKind:
        m_fonts.setKind(token.word->name);
        return true;
    case Action::FontDirections:
        m_fonts.setAnyDirection();
        return true;
    case Action::FontPitch:
        m_fonts.setPitch(number);
        return true;
    case Action::FontCharset:
        m_fonts.setCharset(number);
        return true;
    case Action::FontCodePage:
        m_fonts.setPage(number);
        return true;
    case Action::Red:
        m_color = OpaqueBlack | (m_color & 0x00ffffu) | QRgb(std::clamp(number, 0, 255)) << 16;
        return true;
    case Action::Green:
        m_color = OpaqueBlack | (m_color & 0xff00ffu) | QRgb(std::clamp(number, 0, 255)) << 8;
        return true;
    case Action::Blue:
        m_color = OpaqueBlack | (m_color & 0xffff00u) | QRgb(std::clamp(number, 0, 255));
        return true;
    case Action::ColorTheme:
        if (m_state.destination == Destination::ColorTable && m_colorTheme.size() < LongestTheme)
            m_colorTheme += QString::fromLatin1(spelled(token));
        return true;
    default:
        return false;
    }
}

/// It holds from here on, whatever groups end.
/// A document's own page has letters: the codes of signs are of a font alone.
void Interpreter::setDocumentPage(int number) {
    dissolveLineBox(); // whose copy does not tell it
    m_documentPage = &CodePage::forNumber(number == SymbolPage ? Latin1Page : number);
    m_fonts.pageHasChanged();
    selectFont();
}

void Interpreter::colorBytes(QByteArrayView run) {
    // An entry that names no part of a colour is the automatic one.
    const qsizetype ends = std::count(run.begin(), run.end(), ';');
    for (qsizetype i = 0; i < ends && m_colors.size() < MostColors; ++i)
        endColor();
}

/// A colour that the table has more than once is the first of them where it is written.
void Interpreter::endColor() {
    const QString theme = std::exchange(m_colorTheme, {});
    const QRgb color = std::exchange(m_color, AutomaticColor);
    m_colors.append(color);
    if (color != AutomaticColor && !m_themes.contains(color))
        m_themes.insert(color, theme);
}

void Interpreter::fontBytes(QByteArrayView run) {
    const qsizetype end = run.indexOf(';');
    m_fonts.addName(end < 0 ? run : run.first(end));
    if (end >= 0)
        m_fonts.commit(m_names, *m_documentPage);
}

} // namespace orvalis::rtf
