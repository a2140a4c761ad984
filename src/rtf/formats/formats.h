// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/hyperlink.h"

#include <QHash>
#include <QList>
#include <QRgb>
#include <QString>
#include <QStringList>
#include <QTextOption>

#include <utility>

namespace orvalis::rtf {

/// Twips to a pixel of a document: RTF counts 1440 to the inch, Qt's documents 96.
inline constexpr double TwipsPerPixel = 15.0;
/// Size of a text that names none, in half points.
inline constexpr int DefaultHalfPoints = 24;
inline constexpr int LargestHalfPoints = 3276;
/// A colour that the file leaves to whoever shows the text.
inline constexpr QRgb AutomaticColor = 0;
/// Index of a family or link that there is none of.
inline constexpr int NoName = -1;

/// Index of RTF that is kept as it came, where nothing is.
inline constexpr int NothingKept = 0;

enum class Underline : quint8 {
    None,
    Single,
    Words,
    Double,
    Dotted,
    Dash,
    DashDot,
    Wave,
    Thick,
    DashDotDot,
    LongDash,
    ThickDotted,
    ThickDash,
    ThickLongDash,
    ThickDashDot,
    ThickDashDotDot,
    HeavyWave,
    DoubleWave,
    Hairline,
};
enum class Script : quint8 { Normal, Super, Sub };
enum class Capitals : quint8 { AsTyped, All, Small };
enum class Alignment : quint8 { Left, Right, Center, Justify };
enum class ListKind : quint8 {
    None,
    Bullet,
    Decimal,
    LowerLetter,
    UpperLetter,
    LowerRoman,
    UpperRoman,
};

/// How a run of characters looks. Family, link and what is kept are indexes into the Names of the
/// reading.
struct CharFormat {
    int family = NoName;
    int link = NoName;
    int halfPoints = DefaultHalfPoints;
    int raise = 0;   ///< half points above the base line
    int spacing = 0; ///< twips between the characters
    int kept = NothingKept;
    int cell = NothingKept;    ///< of a tab that ends a cell: the shape of its paragraph
    int anchors = NothingKept; ///< what is kept behind the last of the characters
    int field = NothingKept;   ///< the instruction of the field that the characters are shown by
    int stated = 0;            ///< what the file says, as bits of stated.h
    QRgb color = AutomaticColor;
    QRgb highlight = AutomaticColor;
    Underline underline = Underline::None;
    Script script = Script::Normal;
    Capitals capitals = Capitals::AsTyped;
    bool bold = false;
    bool italic = false;
    bool strike = false;
    bool doubleStrike = false; ///< the strike is a double line
    bool shading = false;      ///< the highlight is the characters' shading
    bool controlMarks = false; ///< marks stand for control characters
    bool hidden = false;
    bool byNumber = false; ///< signs of a font of signs, told by their Unicode numbers

    bool operator==(const CharFormat&) const = default;
};

size_t qHash(const CharFormat& format, size_t seed = 0) noexcept;

/// How a file tells that a paragraph begins a page.
enum class PageWord : quint8 {
    OfParagraph, ///< by the paragraph's shape
    InFront,     ///< by a break ahead of its text
    Between,     ///< by a break that ends the paragraph ahead as well
};

/// What fills the space of a tab.
enum class TabLeader : quint8 { None, Dots, MiddleDots, Hyphens, Underline, ThickLine, Equals };

/// A tab stop, in twips from the margin.
struct TabStop {
    int position = 0;
    QTextOption::TabType type = QTextOption::LeftTab;
    TabLeader leader = TabLeader::None;

    bool operator==(const TabStop&) const = default;
};

/// What a file says of the font of text that names none.
enum class DefaultFont : quint8 {
    Unknown, ///< no file tells
    Named,
    Unsaid,
    Missing, ///< its font table has no such font
};

/// The largest number that a list begins with: what follows it stays far from overflow.
inline constexpr int LargestListStart = 1'000'000;
/// The largest number that an item of a list is told to have.
inline constexpr int LargestListNumber = 2 * LargestListStart;

/// What stands between the label of a list item and its text.
enum class LabelFollow : quint8 { Tab, Blank, Nothing };
/// Which side of a label stands at the hanging indent.
enum class LabelSide : quint8 { Left, Center, Right };

/// How many levels a list has, whose numbers are told by the codes from 0 on.
inline constexpr int NumberCodes = 9;

/// How a file tells of a list.
enum class ListSource : quint8 {
    Made,      ///< not at all: the window has made it
    Tables,    ///< by its list tables
    Both,      ///< by these, and by \pn for those who know no tables
    Numbering, ///< by \pn in the paragraph
    Text,      ///< by the text of the label alone
};

/// The label of a list item. Items of one list of the list tables share the identity; 0 stands for
/// a list that is held together only by its paragraphs following each other.
struct ListLabel {
    ListKind kind = ListKind::None;
    int identity = 0;
    int level = 0;
    int start = 1;
    int tab = 0; ///< stop behind the label in twips from the margin, 0 for none
    LabelFollow follow = LabelFollow::Tab;
    LabelSide side = LabelSide::Left;
    int numbering = 0; ///< which \pn the label comes from, 0 for none
    /// Ahead of the number and behind it; of a bullet, ahead of nothing, its sign where it is not
    /// the usual one. A code below NumberCodes stands for the number that the
    /// level of that index has above the item.
    QString prefix;
    QString suffix;
    ListSource source = ListSource::Made;
    bool showsStart = false; ///< the text of the label begins anew, whatever came before
    QString keptList;        ///< of the list tables: the list and its override, as they are kept
    QString keptOverride;

    /// Whether the file's tables tell of it.
    bool hasTables() const { return source == ListSource::Tables || source == ListSource::Both; }
    /// Whether list tables tell of it where it is written.
    bool isInTables() const {
        return kind != ListKind::None && (source == ListSource::Made || hasTables());
    }
    bool operator==(const ListLabel&) const = default;
};

inline constexpr int NoLength = -1;

/// How a paragraph is shaped, lengths in twips.
struct ParagraphFormat {
    Alignment alignment = Alignment::Left;
    bool rightToLeft = false;
    bool leftToRight = false; ///< the file says so; where it says neither the text tells
    /// It is on the left because the file says so. What is left unsaid is where the text begins.
    bool leftIsSaid = false;
    bool pageBreakBefore = false;
    PageWord pageWord = PageWord::OfParagraph; ///< if it begins a page
    bool lineMultiple = false;                 ///< line spacing counts in 240ths of a line
    int left = 0;
    int first = 0; ///< of the first line, relative to left
    int right = 0;
    int before = 0;
    int after = 0;
    /// What stood for after while the text came, where the file told it only behind; some readers
    /// hold on to that. NoLength where it did not.
    int afterAhead = NoLength;
    int lineSpacing = 0; ///< 0 automatic, above 0 at least, below 0 exactly
    int kept = NothingKept;
    int anchors = NothingKept; ///< what is kept ahead of its first character
    int row = NothingKept;     ///< of the table that the paragraph's cells are of
    bool rowBegins = false;    ///< with the paragraph
    bool rowStaysOpen = false; ///< behind the paragraph, an item of a list
    int nesting = 0; ///< how deep the table in a cell is that the paragraph is of, 0 for none
    int nestedRow = NothingKept; ///< of that table, which ends with the paragraph
    int mark = NothingKept;      ///< its mark's look, where that tells of more than the text does
    bool inTable = false;        ///< the paragraph is written as one of a cell
    int section = NothingKept;   ///< what the file says of the section that begins here
    int box = NothingKept;       ///< the text box that the paragraph stands in
    int boxPlace = 0;            ///< which of the places of its frame that is
    bool boxAhead = false;       ///< of the paragraph that follows, and not behind the text ahead
    bool goesOn = false;         ///< behind a box, with the paragraph that the box stands in
    int stated = 0;              ///< what the file says, as in CharFormat
    QList<TabStop> tabs;
    ListLabel list;

    bool operator==(const ParagraphFormat&) const = default;
};

/// The font families, links and kept pieces of RTF of one reading, each held once.
class Names {
public:
    int family(const QString& name) { return intern(m_families, m_familyIndex, name); }
    int link(const Hyperlink& link);
    QString familyAt(int index) const { return m_families.value(index); }
    Hyperlink linkAt(int index) const { return m_links.value(index); }
    /// NothingKept for an empty text.
    int kept(const QString& text) {
        return text.isEmpty() ? NothingKept : 1 + intern(m_kept, m_keptIndex, text);
    }
    QString keptAt(int index) const { return m_kept.value(index - 1); }

private:
    static int intern(QStringList& list, QHash<QString, int>& index, const QString& name);

    QStringList m_families;
    QList<Hyperlink> m_links;
    QStringList m_kept;
    QHash<QString, int> m_familyIndex;
    QHash<std::pair<QString, QString>, int> m_linkIndex;
    QHash<QString, int> m_keptIndex;
};

} // namespace orvalis::rtf
