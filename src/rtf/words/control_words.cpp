// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/words/control_words.h"

#include "rtf/formats/formats.h"
#include "rtf/kept/section_columns.h"
#include "rtf/pictures/picture.h"
#include "rtf/words/kept_word_table.h"

#include <algorithm>
#include <array>

namespace orvalis::rtf {

namespace {

template <class Value>
constexpr int as(Value value) {
    return static_cast<int>(value);
}

constexpr ControlWord Words[] = {
    {"rtf", Action::Version, 0},
    {"urtf", Action::Utf8Version, 0},
    {"ansi", Action::FixedCodePage, 1252},
    {"mac", Action::FixedCodePage, 10000},
    {"pc", Action::FixedCodePage, 437},
    {"pca", Action::FixedCodePage, 850},
    {"ansicpg", Action::AnsiCodePage, 0},
    {"deff", Action::DefaultFont, 0},
    {"adeff", Action::FurtherDefaultFont, 0},
    {"stshfdbch", Action::FurtherDefaultFont, 1},
    {"stshfloch", Action::FurtherDefaultFont, 2},
    {"stshfhich", Action::FurtherDefaultFont, 3},
    {"stshfbi", Action::FurtherDefaultFont, 4},
    {"deftab", Action::DefaultTab, 0},
    {"viewkind", Action::ViewKind, 0},
    {"deflang", Action::DefaultLanguage, 0},

    {"tab", Action::Character, u'\t'},
    {"line", Action::Character, 0x2028},
    {"lbr", Action::Character, 0x2028},
    {"column", Action::Character, 0x2028},
    {"emdash", Action::Character, 0x2014},
    {"endash", Action::Character, 0x2013},
    {"emspace", Action::Character, u' '},
    {"enspace", Action::Character, u' '},
    {"qmspace", Action::Character, u' '},
    {"bullet", Action::Character, 0x2022},
    {"lquote", Action::Character, 0x2018},
    {"rquote", Action::Character, 0x2019},
    {"ldblquote", Action::Character, 0x201c},
    {"rdblquote", Action::Character, 0x201d},
    {"ltrmark", Action::Character, 0x200e},
    {"rtlmark", Action::Character, 0x200f},
    {"zwj", Action::Character, 0x200d},
    {"zwnj", Action::Character, 0x200c},
    {"zwbo", Action::Character, 0x200b},
    {"zwnbo", Action::Character, 0x2060},
    {"u", Action::Unicode, 0},
    {"uc", Action::UnicodeSkip, 0},
    {"par", Action::ParagraphEnd, 0},
    {"sect", Action::SectionEnd, 0},
    {"page", Action::PageEnd, 0},
    {"cell", Action::CellEnd, 0},
    {"nestcell", Action::CellEnd, 1},
    {"row", Action::RowEnd, 0},
    {"trowd", Action::RowDefaults, 0},
    {"cellx", Action::CellRight, 0},
    {"intbl", Action::InTable, 0},
    {"itap", Action::TableNesting, 0},
    {"nestrow", Action::RowEnd, 1},
    {"bin", Action::Binary, 0},

    {"plain", Action::PlainCharacters, 0},
    {"f", Action::Font, 0},
    {"pnf", Action::FurtherFont, 0},
    {"fs", Action::FontSize, 0},
    {"expnd", Action::Spacing, 5},
    {"expndtw", Action::Spacing, 1},
    {"cf", Action::Color, 0},
    {"highlight", Action::Highlight, 0},
    {"cb", Action::Highlight, 1},
    {"chcbpat", Action::Highlight, 1},
    {"b", Action::Bold, 0},
    {"i", Action::Italic, 0},
    {"strike", Action::Strike, 0},
    {"striked", Action::Strike, 1},
    {"orvmarks", Action::ControlMarks, 0},
    {"v", Action::Hidden, 0},
    {"deleted", Action::Deleted, 0},
    {"ul", Action::UnderlineKind, as(Underline::Single)},
    {"ulw", Action::UnderlineKind, as(Underline::Words)},
    {"uldb", Action::UnderlineKind, as(Underline::Double)},
    {"uld", Action::UnderlineKind, as(Underline::Dotted)},
    {"ulthd", Action::UnderlineKind, as(Underline::ThickDotted)},
    {"uldash", Action::UnderlineKind, as(Underline::Dash)},
    {"ulldash", Action::UnderlineKind, as(Underline::LongDash)},
    {"ulthdash", Action::UnderlineKind, as(Underline::ThickDash)},
    {"ulthldash", Action::UnderlineKind, as(Underline::ThickLongDash)},
    {"uldashd", Action::UnderlineKind, as(Underline::DashDot)},
    {"uldashdd", Action::UnderlineKind, as(Underline::DashDotDot)},
    {"ulthdashd", Action::UnderlineKind, as(Underline::ThickDashDot)},
    {"ulthdashdd", Action::UnderlineKind, as(Underline::ThickDashDotDot)},
    {"ulwave", Action::UnderlineKind, as(Underline::Wave)},
    {"ulhwave", Action::UnderlineKind, as(Underline::HeavyWave)},
    {"ululdbwave", Action::UnderlineKind, as(Underline::DoubleWave)},
    {"ulth", Action::UnderlineKind, as(Underline::Thick)},
    {"ulhair", Action::UnderlineKind, as(Underline::Hairline)},
    {"ulnone", Action::NoUnderline, 0},
    {"super", Action::ScriptKind, as(Script::Super)},
    {"sub", Action::ScriptKind, as(Script::Sub)},
    {"nosupersub", Action::ScriptKind, as(Script::Normal)},
    {"up", Action::Raise, 1},
    {"dn", Action::Raise, -1},
    {"caps", Action::CapitalsKind, as(Capitals::All)},
    {"scaps", Action::CapitalsKind, as(Capitals::Small)},

    {"pard", Action::PlainParagraph, 0},
    {"ql", Action::Align, as(Alignment::Left)},
    {"qr", Action::Align, as(Alignment::Right)},
    {"qc", Action::Align, as(Alignment::Center)},
    {"qj", Action::Align, as(Alignment::Justify)},
    {"qd", Action::Align, as(Alignment::Justify)},
    {"qt", Action::Align, as(Alignment::Justify)},
    {"qk", Action::Align, as(Alignment::Justify)},
    {"li", Action::LeftIndent, 0},
    {"fi", Action::FirstIndent, 0},
    {"ri", Action::RightIndent, 0},
    {"sb", Action::SpaceBefore, 0},
    {"sa", Action::SpaceAfter, 0},
    {"sl", Action::LineSpacing, 0},
    {"slmult", Action::LineMultiple, 0},
    {"tqr", Action::TabKind, QTextOption::RightTab},
    {"tqc", Action::TabKind, QTextOption::CenterTab},
    {"tqdec", Action::TabKind, QTextOption::DelimiterTab},
    {"tldot", Action::TabLeaderKind, as(TabLeader::Dots)},
    {"tlmdot", Action::TabLeaderKind, as(TabLeader::MiddleDots)},
    {"tlhyph", Action::TabLeaderKind, as(TabLeader::Hyphens)},
    {"tlul", Action::TabLeaderKind, as(TabLeader::Underline)},
    {"tlth", Action::TabLeaderKind, as(TabLeader::ThickLine)},
    {"tleq", Action::TabLeaderKind, as(TabLeader::Equals)},
    {"tx", Action::TabPosition, 0},
    {"ltrpar", Action::Direction, 0},
    {"rtlpar", Action::Direction, 1},
    {"pagebb", Action::PageBreakBefore, 0},
    {"ls", Action::ListOverride, 0},
    {"ilvl", Action::ListLevel, 0},
    {"sectd", Action::SectionDefaults, 0},
    {"colno", Action::SectionColumn, as(ColumnWord::Number)},
    {"colw", Action::SectionColumn, as(ColumnWord::Width)},
    {"colsr", Action::SectionColumn, as(ColumnWord::Space)},
    {"chftn", Action::AnchorMark, 0},
    {"chatn", Action::AnchorMark, 0},
    {"chpgn", Action::AnchorMark, 0},
    {"chdate", Action::AnchorMark, 0},
    {"chdpl", Action::AnchorMark, 0},
    {"chdpa", Action::AnchorMark, 0},
    {"chtime", Action::AnchorMark, 0},
    {"sectnum", Action::AnchorMark, 0},

    {"stylesheet", Action::KeepGroup, as(KeptPlace::Styles)},
    {"revtbl", Action::KeepGroup, as(KeptPlace::Authors)},
    {"defchp", Action::KeepGroup, as(KeptPlace::Defaults)},
    {"defpap", Action::KeepGroup, as(KeptPlace::Defaults)},
    {"info", Action::KeepGroup, as(KeptPlace::Info)},
    {"windowcaption", Action::KeepGroup, as(KeptPlace::Info)},
    {"userprops", Action::KeepGroup, as(KeptPlace::StarredInfo)},
    {"docvar", Action::KeepGroup, as(KeptPlace::StarredInfo)},
    {"themedata", Action::KeepGroup, as(KeptPlace::StarredInfo)},
    {"colorschememapping", Action::KeepGroup, as(KeptPlace::StarredInfo)},
    {"latentstyles", Action::KeepGroup, as(KeptPlace::StarredInfo)},
    {"datastore", Action::KeepGroup, as(KeptPlace::StarredInfo)},
    {"mmathPr", Action::KeepGroup, as(KeptPlace::StarredInfo)},
    {"pnseclvl", Action::KeepGroup, as(KeptPlace::StarredInfo)},
    {"xmlnstbl", Action::KeepGroup, as(KeptPlace::StarredInfo)},
    {"wgrffmtfilter", Action::KeepGroup, as(KeptPlace::StarredInfo)},
    {"background", Action::KeepGroup, as(KeptPlace::StarredInfo)},
    {"header", Action::KeepGroup, as(KeptPlace::Section)},
    {"headerl", Action::KeepGroup, as(KeptPlace::Section)},
    {"headerr", Action::KeepGroup, as(KeptPlace::Section)},
    {"headerf", Action::KeepGroup, as(KeptPlace::Section)},
    {"footer", Action::KeepGroup, as(KeptPlace::Section)},
    {"footerl", Action::KeepGroup, as(KeptPlace::Section)},
    {"footerr", Action::KeepGroup, as(KeptPlace::Section)},
    {"footerf", Action::KeepGroup, as(KeptPlace::Section)},
    {"footnote", Action::KeepGroup, as(KeptPlace::Anchor)},
    {"ftnsep", Action::KeepGroup, as(KeptPlace::Notes)},
    {"ftnsepc", Action::KeepGroup, as(KeptPlace::Notes)},
    {"ftncn", Action::KeepGroup, as(KeptPlace::Notes)},
    {"aftnsep", Action::KeepGroup, as(KeptPlace::Notes)},
    {"aftnsepc", Action::KeepGroup, as(KeptPlace::Notes)},
    {"aftncn", Action::KeepGroup, as(KeptPlace::Notes)},
    {"annotation", Action::KeepGroup, as(KeptPlace::StarredNote)},
    {"atnid", Action::KeepGroup, as(KeptPlace::StarredAnchor)},
    {"atnauthor", Action::KeepGroup, as(KeptPlace::StarredAnchor)},
    {"atnref", Action::KeepGroup, as(KeptPlace::StarredAnchor)},
    {"atndate", Action::KeepGroup, as(KeptPlace::StarredAnchor)},
    {"atnicn", Action::SkipGroup, 0},
    {"atrfstart", Action::KeepGroup, as(KeptPlace::StarredAnchor)},
    {"atrfend", Action::KeepGroup, as(KeptPlace::StarredAnchor)},
    {"bkmkstart", Action::KeepGroup, as(KeptPlace::StarredAnchor)},
    {"do", Action::KeepGroup, as(KeptPlace::StarredNote)},
    {"bkmkend", Action::KeepGroup, as(KeptPlace::StarredAnchor)},
    {"xe", Action::IndexEntry, 0},
    {"tc", Action::IndexEntry, 0},
    {"tcn", Action::IndexEntry, 0},
    {"rxe", Action::KeepGroup, as(KeptPlace::Anchor)},
    {"txe", Action::KeepGroup, as(KeptPlace::Anchor)},
    {"filetbl", Action::KeepGroup, as(KeptPlace::StarredInfo)},
    {"nextfile", Action::KeepGroup, as(KeptPlace::Info)},
    {"template", Action::KeepGroup, as(KeptPlace::StarredInfo)},
    {"rsidtbl", Action::SkipGroup, 0},
    {"expandedcolortbl", Action::SkipGroup, 0}, // by the order of the colours in the file
    {"oldcprops", Action::SkipGroup, 0},        // of the look around it, which is told anew
    {"oldpprops", Action::SkipGroup, 0},
    {"oldsprops", Action::SkipGroup, 0},
    {"oldtprops", Action::SkipGroup, 0},
    {"abitableprops", Action::SkipGroup, 0}, // what the words of rows and cells tell, once more
    {"abiendtable", Action::SkipGroup, 0},
    {"abicellprops", Action::SkipGroup, 0},
    {"abiendcell", Action::SkipGroup, 0},
    {"private", Action::SkipGroup, 0},
    {"private1", Action::SkipGroup, 0},
    {"object", Action::ShapeGroup, as(ShapeKind::Object)},
    {"objdata", Action::SkipGroup, 0},
    {"objclass", Action::SkipGroup, 0},
    {"objname", Action::SkipGroup, 0},
    {"objalias", Action::SkipGroup, 0},
    {"objsect", Action::SkipGroup, 0},
    {"objtime", Action::SkipGroup, 0},
    {"result", Action::PassThrough, 0},
    {"datafield", Action::SkipGroup, 0},
    {"fldtype", Action::SkipGroup, 0},
    {"formfield", Action::SkipGroup, 0},
    {"nonesttables", Action::SkipGroup, 0},
    {"shprslt", Action::SkipGroup, 0},
    {"background", Action::SkipGroup, 0},
    {"picprop", Action::KeepGroup, as(KeptPlace::Picture)},
    {"blipuid", Action::KeepGroup, as(KeptPlace::Picture)},
    {"listpicture", Action::KeepGroup, as(KeptPlace::ListPictures)},
    {"themedata", Action::SkipGroup, 0},
    {"colorschememapping", Action::SkipGroup, 0},
    {"datastore", Action::SkipGroup, 0},
    {"latentstyles", Action::SkipGroup, 0},
    {"panose", Action::KeepGroup, as(KeptPlace::FontPanose)},
    {"falt", Action::KeepGroup, as(KeptPlace::FontAlternative)},
    {"fontemb", Action::SkipGroup, 0},
    {"fontfile", Action::SkipGroup, 0},
    {"levelnumbers", Action::SkipGroup, 0},
    {"levelmarker", Action::SkipGroup, 0},
    {"listname", Action::SkipGroup, 0},
    {"liststylename", Action::SkipGroup, 0},
    {"generator", Action::Generator, 0},

    {"fonttbl", Action::FontTable, 0},
    {"colortbl", Action::ColorTable, 0},
    {"listtable", Action::ListTable, 0},
    {"listoverridetable", Action::ListOverrideTable, 0},
    {"pict", Action::PictureGroup, 0},
    {"shppict", Action::ShapePicture, 0},
    {"orvpict", Action::ShapePicture, 0}, // this program's own
    {"nonshppict", Action::NoShapePicture, 0},
    {"field", Action::Field, 0},
    {"fldinst", Action::FieldInstruction, 0},
    {"fldrslt", Action::PassThrough, 0},
    {"nesttableprops", Action::NestedTable, 0},
    {"upr", Action::UnicodePair, 0},
    {"ud", Action::UnicodeHalf, 0},
    {"shp", Action::ShapeGroup, as(ShapeKind::Shape)},
    {"shpgrp", Action::ShapeGroup, as(ShapeKind::Shape)},
    {"mmath", Action::ShapeGroup, as(ShapeKind::Formula)},
    {"shpinst", Action::ShapeInstruction, 0},
    {"shptxt", Action::ShapeText, 0},
    {"sp", Action::ShapeProperty, 0},
    {"sn", Action::ShapePropertyName, 0},
    {"sv", Action::ShapePropertyValue, 0},
    {"pn", Action::Numbering, 0},
    {"pntxtb", Action::NumberingTextBefore, 0},
    {"pntxta", Action::NumberingTextAfter, 0},
    {"pntext", Action::LabelText, 0},
    {"listtext", Action::LabelText, 0},

    {"fnil", Action::FontKind, 0},
    {"froman", Action::FontKind, 0},
    {"fswiss", Action::FontKind, 0},
    {"fmodern", Action::FontKind, 0},
    {"fscript", Action::FontKind, 0},
    {"fdecor", Action::FontKind, 0},
    {"ftech", Action::FontKind, 0},
    {"fbidi", Action::FontDirections, 0},
    {"fprq", Action::FontPitch, 0},
    {"fcharset", Action::FontCharset, 0},
    {"cpg", Action::FontCodePage, 0},
    {"fname", Action::FontPlainName, 0},
    {"red", Action::Red, 0},
    {"green", Action::Green, 0},
    {"blue", Action::Blue, 0},
    {"cmaindarkone", Action::ColorTheme, 0},
    {"cmaindarktwo", Action::ColorTheme, 0},
    {"cmainlightone", Action::ColorTheme, 0},
    {"cmainlighttwo", Action::ColorTheme, 0},
    {"cbackgroundone", Action::ColorTheme, 0},
    {"cbackgroundtwo", Action::ColorTheme, 0},
    {"ctextone", Action::ColorTheme, 0},
    {"ctexttwo", Action::ColorTheme, 0},
    {"caccentone", Action::ColorTheme, 0},
    {"caccenttwo", Action::ColorTheme, 0},
    {"caccentthree", Action::ColorTheme, 0},
    {"caccentfour", Action::ColorTheme, 0},
    {"caccentfive", Action::ColorTheme, 0},
    {"caccentsix", Action::ColorTheme, 0},
    {"chyperlink", Action::ColorTheme, 0},
    {"cfollowedhyperlink", Action::ColorTheme, 0},
    {"ctint", Action::ColorTheme, 0},
    {"cshade", Action::ColorTheme, 0},

    {"list", Action::List, 0},
    {"listoverride", Action::ListOverrideEntry, 0},
    {"lfolevel", Action::ListOverrideLevel, 0},
    {"listid", Action::ListIdentity, 0},
    {"listlevel", Action::ListLevelEntry, 0},
    {"levelnfc", Action::ListLevelKind, 0},
    {"levelnfcn", Action::ListLevelKind, 0},
    {"levelstartat", Action::ListLevelStart, 0},
    {"leveltext", Action::ListLevelText, 0},
    {"levelfollow", Action::ListLevelFollow, 0},
    {"leveljc", Action::ListLevelSide, 0},
    {"leveljcn", Action::ListLevelSide, 0},

    {"pnlvlblt", Action::NumberingBullet, 0},
    {"pnlvlbody", Action::NumberingBody, 0},
    {"pnlvl", Action::NumberingLevel, 0},
    {"pnlvlcont", Action::NumberingContinued, 0},
    {"pndec", Action::NumberingKind, as(ListKind::Decimal)},
    {"pncard", Action::NumberingKind, as(ListKind::Decimal)},
    {"pnord", Action::NumberingKind, as(ListKind::Decimal)},
    {"pnordt", Action::NumberingKind, as(ListKind::Decimal)},
    {"pnlcltr", Action::NumberingKind, as(ListKind::LowerLetter)},
    {"pnucltr", Action::NumberingKind, as(ListKind::UpperLetter)},
    {"pnlcrm", Action::NumberingKind, as(ListKind::LowerRoman)},
    {"pnucrm", Action::NumberingKind, as(ListKind::UpperRoman)},
    {"pnstart", Action::NumberingStart, 0},
    {"pnql", Action::NumberingSide, as(LabelSide::Left)},
    {"pnqc", Action::NumberingSide, as(LabelSide::Center)},
    {"pnqr", Action::NumberingSide, as(LabelSide::Right)},

    {"pngblip", Action::PictureSource, as(PictureKind::Png)},
    {"jpegblip", Action::PictureSource, as(PictureKind::Jpeg)},
    {"wmetafile", Action::PictureSource, as(PictureKind::Wmf)},
    {"emfblip", Action::PictureSource, as(PictureKind::Emf)},
    {"dibitmap", Action::PictureSource, as(PictureKind::DeviceIndependent)},
    {"wbitmap", Action::PictureSource, as(PictureKind::DeviceDependent)},
    {"macpict", Action::PictureSource, as(PictureKind::MacPict)},
    {"pmmetafile", Action::PictureSource, as(PictureKind::Os2Metafile)},
    {"picw", Action::PictureWidth, 0},
    {"pich", Action::PictureHeight, 0},
    {"picwgoal", Action::PictureGoalWidth, 0},
    {"pichgoal", Action::PictureGoalHeight, 0},
    {"picscalex", Action::PictureScaleX, 0},
    {"picscaley", Action::PictureScaleY, 0},
    {"piccropl", Action::PictureNumber, 0},
    {"piccropr", Action::PictureNumber, 0},
    {"piccropt", Action::PictureNumber, 0},
    {"piccropb", Action::PictureNumber, 0},
    {"bliptag", Action::PictureNumber, 0},
    {"blipupi", Action::PictureNumber, 0},
    {"wbmbitspixel", Action::BitmapBits, 0},
    {"wbmplanes", Action::BitmapPlanes, 0},
    {"wbmwidthbytes", Action::BitmapRow, 0},
};

// The words that are known come first, those that are only kept behind them.
constexpr size_t WordCount = std::size(Words) + KeptWordTable.size();

constexpr const ControlWord& wordAt(size_t index) {
    return index < std::size(Words) ? Words[index] : KeptWordTable[index - std::size(Words)];
}

constexpr int SlotBits = 12;
constexpr quint32 SlotCount = 1 << SlotBits;
constexpr qint16 EmptySlot = -1;
static_assert(WordCount < SlotCount / 2, "the search ends at an empty slot");

constexpr quint32 slotOf(quint32 hash) {
    return hash * 0x9e3779b1u >> (32 - SlotBits);
}

constexpr auto SlotTable = [] {
    std::array<qint16, SlotCount> table{};
    table.fill(EmptySlot);
    for (size_t i = 0; i < WordCount; ++i) {
        quint32 hash = ControlWordHashStart;
        for (const char letter : wordAt(i).name)
            hash = controlWordHash(hash, uchar(letter));
        quint32 slot = slotOf(hash);
        while (table[slot] != EmptySlot)
            slot = (slot + 1) & (SlotCount - 1);
        table[slot] = qint16(i);
    }
    return table;
}();

} // namespace

int keptOrder(const ControlWord& word) {
    return int(&word - KeptWordTable.data());
}

const ControlWord* findControlWord(QByteArrayView name, quint32 hash) {
    for (quint32 slot = slotOf(hash); SlotTable[slot] != EmptySlot;
         slot = (slot + 1) & (SlotCount - 1)) {
        const ControlWord& word = wordAt(size_t(SlotTable[slot]));
        if (name.size() == word.name.size() &&
            std::equal(name.begin(), name.end(), word.name.begin()))
            return &word;
    }
    return nullptr;
}

} // namespace orvalis::rtf
