// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/writing/writer_tables.h"

#include "rtf/characters/font_table.h"
#include "rtf/kept/kept_text.h"
#include "rtf/words/rtf_output.h"
#include "rtf/writing/kept_writer.h"

#include <QSet>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

namespace {

/// What \levelnfc calls the kind of a label.
int levelFormat(ListKind kind) {
    switch (kind) {
    case ListKind::Bullet:
        return 23;
    case ListKind::UpperRoman:
        return 1;
    case ListKind::LowerRoman:
        return 2;
    case ListKind::UpperLetter:
        return 3;
    case ListKind::LowerLetter:
        return 4;
    default:
        return 0;
    }
}

/// The label of a level: its length, then its characters, with a zero where the number goes; and
/// the place of that.
void levelText(RtfOutput& out, const ListLabel& label) {
    if (label.kind == ListKind::Bullet && label.prefix.isEmpty()) {
        out.structure("{\\leveltext\\'01\\u8226?;}{\\levelnumbers;}");
        return;
    }
    if (label.kind == ListKind::Bullet) {
        out.structure("{\\leveltext");
        out.code(uchar(label.prefix.size()));
        out.text(label.prefix);
        out.structure(";}{\\levelnumbers;}");
        return;
    }
    out.structure("{\\leveltext");
    out.code(uchar(label.prefix.size() + 1 + label.suffix.size()));
    out.text(label.prefix);
    out.code(0);
    out.text(label.suffix);
    out.structure(";}{\\levelnumbers");
    out.code(uchar(label.prefix.size() + 1));
    out.structure(";}");
}

} // namespace

WriterTables::WriterTables()
    : m_symbolFamily(m_names.family(u"Symbol"_s))
    , m_numberedFamilies{m_names.family(u"OpenSymbol"_s), m_names.family(u"StarSymbol"_s)} {}

int WriterTables::font(int family) {
    const auto found = m_fontNumbers.constFind(family);
    if (found != m_fontNumbers.constEnd())
        return *found;
    const int number = unusedFont();
    m_fonts.append(family);
    m_fontNumbers.insert(family, number);
    return number;
}

void WriterTables::expectOdd(const QStringList& families) {
    for (const QString& family : families)
        m_odd.insert(m_names.family(family));
}

SymbolFont WriterTables::symbolFontOf(int family) const {
    return m_odd.contains(family) ? SymbolFont::None : rtf::symbolFontOf(m_names.familyAt(family));
}

bool WriterTables::wantsNumbers(int family) const {
    return family == m_numberedFamilies[0] || family == m_numberedFamilies[1];
}

int WriterTables::color(QRgb color) {
    if (color == AutomaticColor)
        return 0;
    int& number = m_colorNumbers[color];
    if (number == 0) {
        m_colors.append(color);
        number = int(m_colors.size());
    }
    return number;
}

int WriterTables::list(const ParagraphFormat& item) {
    const ListLabel& label = item.list;
    if (label.hasTables()) {
        int& number = m_keptNumbers[{label.keptList, label.keptOverride}];
        if (number == 0) {
            m_lists.append(item);
            number = int(m_lists.size());
        }
        return number;
    }
    const bool isBullet = label.kind == ListKind::Bullet;
    const std::array place{label.identity, isBullet ? item.left : 0, label.tab, int(label.follow),
                           int(label.side)};
    int& number = m_listNumbers[{place, isBullet ? label.prefix : QString()}];
    if (number == 0) {
        m_lists.append(item);
        number = int(m_lists.size());
    }
    return number;
}

void WriterTables::write(RtfOutput& out, QByteArrayView styles, const KeptParts& parts) {
    // What is kept of lists may name fonts and colours that nothing else has.
    const QByteArray lists = listTables(parts.listPictures);
    writeFonts(out, parts.faces);
    writeColors(out, parts.themes);
    if (!styles.isEmpty())
        out.structure(styles);
    out.structure(lists);
}

void WriterTables::writeFonts(RtfOutput& out, const FontFaces& faces) const {
    out.structure("{\\fonttbl");
    for (qsizetype number = 0; number < m_fonts.size(); ++number) {
        QString name = m_names.familyAt(m_fonts[number]);
        const FontFace face = faces.value(name);
        out.word("{\\f", m_firstFont + int(number));
        const bool signs = isSymbolFamily(name) != m_odd.contains(m_fonts[number]);
        if (face.anyDirection)
            out.word("\\fbidi");
        out.word('\\' + face.kind.toByteArray());
        out.word("\\fcharset", signs ? 2 : 0);
        if (face.pitch != 0)
            out.word("\\fprq", face.pitch);
        if (!face.panose.isEmpty())
            out.structure(face.panose.toLatin1());
        name.remove(u';');
        // A reader would take the end of such a name for the script of its letters.
        if (withoutScript(name) != name) {
            out.structure("{\\*\\fname ");
            out.text(name);
            out.structure(";}");
        }
        out.text(name);
        out.structure(face.alternative.toLatin1() + ";}");
    }
    out.structure("}\r\n");
}

void WriterTables::writeColors(RtfOutput& out, const ColorThemes& themes) const {
    if (m_colors.isEmpty())
        return;
    out.structure("{\\colortbl ;");
    for (const QRgb color : m_colors) {
        out.structure(themes.value(color).toLatin1());
        out.word("\\red", qRed(color));
        out.word("\\green", qGreen(color));
        out.word("\\blue", qBlue(color));
        out.structure(";");
    }
    out.structure("}\r\n");
}

/// A list of the window's making.
void WriterTables::writeMade(RtfOutput& out, const ParagraphFormat& item, int number) {
    out.word("{\\list\\listtemplateid", number);
    out.word("\\listsimple{\\listlevel\\levelnfc", levelFormat(item.list.kind));
    out.word("\\leveljc", int(item.list.side));
    out.word("\\levelfollow", int(item.list.follow));
    out.word("\\levelstartat", item.list.start);
    levelText(out, item.list);
    // Some readers take the indents of the level, whatever the item says.
    out.word("\\fi", item.first);
    out.word("\\li", item.left);
    if (item.list.tab != 0)
        out.word("\\jclisttab\\tx", item.list.tab);
    out.structure("}");
    out.word("\\listid", number);
    out.structure("}");
}

/// What is kept of a list or an override, up to the brace that closes it.
void WriterTables::writeKeptHead(RtfOutput& out, QStringView kept) {
    writeKept(out, *this, kept.sliced(kept.indexOf(NumberEnd) + 1).chopped(1));
}

QByteArray WriterTables::listTables(const QString& pictures) {
    if (m_lists.isEmpty())
        return {};
    RtfOutput lists;
    RtfOutput overrides;
    lists.structure("{\\*\\listtable");
    const auto hasPicture = [](const ParagraphFormat& item) {
        return item.list.keptList.contains(u"\\levelpicture");
    };
    if (std::any_of(m_lists.begin(), m_lists.end(), hasPicture))
        lists.structure(pictures.toLatin1());
    overrides.structure("{\\*\\listoverridetable");
    QHash<QString, int> identities; ///< of kept lists
    QSet<int> taken;
    for (qsizetype number = 1; number <= m_lists.size(); ++number)
        taken.insert(int(number));
    for (qsizetype index = 0; index < m_lists.size(); ++index) {
        const ParagraphFormat& item = m_lists[index];
        const int number = int(index) + 1;
        if (!item.list.hasTables()) {
            writeMade(lists, item, number);
            overrides.word("{\\listoverride\\listid", number);
            overrides.word("\\listoverridecount0\\ls", number);
            overrides.structure("}");
            continue;
        }
        const QString& kept = item.list.keptList;
        auto known = identities.constFind(kept);
        if (known == identities.constEnd()) {
            int identity = kept.first(kept.indexOf(NumberEnd)).toInt();
            while (taken.contains(identity))
                identity = identity < std::numeric_limits<int>::max() ? identity + 1 : 1;
            taken.insert(identity);
            known = identities.insert(kept, identity);
            writeKeptHead(lists, kept);
            lists.word("\\listid", identity);
            lists.structure("}");
        }
        writeKeptHead(overrides, item.list.keptOverride);
        overrides.word("\\listid", *known);
        overrides.word("\\ls", number);
        overrides.structure("}");
    }
    lists.structure("}\r\n");
    overrides.structure("}\r\n");
    return lists.take() + overrides.take();
}

} // namespace orvalis::rtf
