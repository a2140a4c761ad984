// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/body_writer.h"

#include "rtf/code_page.h"
#include "rtf/hyperlink.h"
#include "rtf/list_number.h"
#include "rtf/picture_writer.h"
#include "rtf/symbol_font.h"

#include <array>

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

namespace {

constexpr const char* bulletByte = "\\'B7";
constexpr int factoryTab = 720; // twips, what every reader assumes

constexpr bool canJoinWord(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
           c == u'-' || c == u' ';
}

// What stands for itself in the file.
constexpr auto isPlain = [] {
    std::array<bool, 128> plain{};
    for (size_t c = 0x20; c < 0x7f; ++c)
        plain[c] = c != '\\' && c != '{' && c != '}';
    return plain;
}();

void appendCode(QByteArray& out, uchar byte) {
    static constexpr char digits[] = "0123456789abcdef";
    const char code[] = {'\\', '\'', digits[byte >> 4], digits[byte & 15]};
    out.append(code, sizeof code);
}

void appendUnicode(QByteArray& out, char16_t unit) {
    out.append("\\u").append(QByteArray::number(qint16(unit))).append('?');
}

const char* underlineWord(Underline underline) {
    switch (underline) {
    case Underline::None:
        return "\\ulnone";
    case Underline::Single:
        return "\\ul";
    case Underline::Words:
        return "\\ulw";
    case Underline::Double:
        return "\\uldb";
    case Underline::Dotted:
        return "\\uld";
    case Underline::Dash:
        return "\\uldash";
    case Underline::DashDot:
        return "\\uldashd";
    case Underline::Wave:
        return "\\ulwave";
    case Underline::Thick:
        return "\\ulth";
    }
    return "\\ul";
}

const char* kindWord(ListKind kind) {
    switch (kind) {
    case ListKind::LowerLetter:
        return "\\pnlcltr";
    case ListKind::UpperLetter:
        return "\\pnucltr";
    case ListKind::LowerRoman:
        return "\\pnlcrm";
    case ListKind::UpperRoman:
        return "\\pnucrm";
    default:
        return "\\pndec";
    }
}

} // namespace

BodyWriter::BodyWriter()
    : m_symbolFamily(m_names.family(u"Symbol"_s)) {
    // No text has this size, so that the first one tells its own.
    m_format.halfPoints = 0;
}

void BodyWriter::word(const char* name, int number) {
    m_body.append(name).append(QByteArray::number(number));
    m_needsDelimiter = true;
}

int BodyWriter::fontNumber(int family) {
    const auto found = m_fontNumbers.constFind(family);
    if (found != m_fontNumbers.constEnd())
        return *found;
    const int number = int(m_fonts.size());
    m_fonts.append(family);
    m_fontNumbers.insert(family, number);
    return number;
}

int BodyWriter::colorNumber(QRgb color) {
    if (color == automaticColor)
        return 0;
    int& number = m_colorNumbers[color];
    if (number == 0) {
        m_colors.append(color);
        number = int(m_colors.size());
    }
    return number;
}

void BodyWriter::beginParagraph(const ParagraphFormat& paragraph, int number) {
    // An inherited \pn numbers on by itself, so it is repeated only where the number does not.
    const bool goesOn =
        m_anyParagraph && paragraph == m_paragraph &&
        (paragraph.list.kind == ListKind::None || paragraph.list.kind == ListKind::Bullet ||
         number == m_paragraphNumber + 1);
    m_paragraphNumber = number;
    ListLabel shown = paragraph.list;
    shown.start = number;
    if (goesOn) {
        if (shown.kind != ListKind::None)
            label(shown, number);
        return;
    }
    m_anyParagraph = true;
    m_paragraph = paragraph;
    word("\\pard");
    if (shown.kind != ListKind::None) {
        label(shown, number);
        numbering(shown);
    }
    paragraphWords(paragraph);
}

int BodyWriter::listNumberOf(int identity) {
    int& number = m_listNumbers[identity];
    if (number == 0)
        number = int(m_listNumbers.size());
    return number;
}

void BodyWriter::label(const ListLabel& label, int number) {
    m_body.append("{\\pntext");
    if (label.kind == ListKind::Bullet) {
        word("\\f", fontNumber(m_symbolFamily));
        m_body.append(bulletByte);
    } else {
        m_needsDelimiter = true;
        escaped(label.prefix + listNumber(label.kind, number) + label.suffix);
    }
    m_body.append("\\tab}");
    m_needsDelimiter = false;
}

void BodyWriter::numbering(const ListLabel& label) {
    m_body.append("{\\*\\pn");
    if (label.kind == ListKind::Bullet) {
        m_body.append("\\pnlvlblt");
        word("\\pnf", fontNumber(m_symbolFamily));
        m_body.append("\\pnindent0{\\pntxtb").append(bulletByte).append("}}");
        m_needsDelimiter = false;
        return;
    }
    // Neighbouring lists look alike to other readers; this word tells ours which is which.
    m_body.append("\\pnlvlbody\\pnindent0");
    word("\\orvlist", listNumberOf(label.identity));
    word("\\pnstart", label.start);
    word(kindWord(label.kind));
    if (!label.prefix.isEmpty()) {
        m_body.append("{\\pntxtb");
        m_needsDelimiter = true;
        escaped(label.prefix);
        m_body.append('}');
    }
    if (!label.suffix.isEmpty()) {
        m_body.append("{\\pntxta");
        m_needsDelimiter = true;
        escaped(label.suffix);
        m_body.append('}');
    }
    m_body.append('}');
    m_needsDelimiter = false;
}

void BodyWriter::paragraphWords(const ParagraphFormat& paragraph) {
    const auto unlessZero = [this](const char* name, int number) {
        if (number != 0)
            word(name, number);
    };
    if (paragraph.rightToLeft)
        word("\\rtlpar");
    if (paragraph.pageBreakBefore)
        word("\\pagebb");
    unlessZero("\\fi", paragraph.first);
    unlessZero("\\li", paragraph.left);
    unlessZero("\\ri", paragraph.right);
    unlessZero("\\sb", paragraph.before);
    unlessZero("\\sa", paragraph.after);
    if (paragraph.lineSpacing != 0) {
        word("\\sl", paragraph.lineSpacing);
        word("\\slmult", paragraph.lineMultiple ? 1 : 0);
    }
    switch (paragraph.alignment) {
    case Alignment::Left:
        break;
    case Alignment::Right:
        word("\\qr");
        break;
    case Alignment::Center:
        word("\\qc");
        break;
    case Alignment::Justify:
        word("\\qj");
        break;
    }
    for (const TabStop& tab : paragraph.tabs) {
        switch (tab.type) {
        case QTextOption::LeftTab:
            break;
        case QTextOption::RightTab:
            word("\\tqr");
            break;
        case QTextOption::CenterTab:
            word("\\tqc");
            break;
        case QTextOption::DelimiterTab:
            word("\\tqdec");
            break;
        }
        word("\\tx", tab.position);
    }
}

void BodyWriter::change(const CharFormat& format) {
    if (format == m_format)
        return;
    if (format.link != m_format.link) {
        if (m_format.link != noName) {
            // The closing braces bring back what held before the link.
            m_body.append("}}");
            m_needsDelimiter = false;
            m_format = m_formatBeforeLink;
            m_fontIsSymbol = isSymbolFont(m_names.familyAt(m_format.family));
        }
        if (format.link != noName)
            openLink(format.link);
    }
    const auto toggle = [this](bool on, bool was, const char* name) {
        if (on == was)
            return;
        if (on)
            word(name);
        else
            word(name, 0);
    };
    if (format.color != m_format.color)
        word("\\cf", colorNumber(format.color));
    if (format.highlight != m_format.highlight)
        word("\\highlight", colorNumber(format.highlight));
    if (format.underline != m_format.underline)
        word(underlineWord(format.underline));
    toggle(format.bold, m_format.bold, "\\b");
    toggle(format.italic, m_format.italic, "\\i");
    toggle(format.strike, m_format.strike, "\\strike");
    toggle(format.controlMarks, m_format.controlMarks, "\\orvmarks");
    toggle(format.hidden, m_format.hidden, "\\v");
    if (format.capitals != m_format.capitals) {
        toggle(format.capitals == Capitals::Small, m_format.capitals == Capitals::Small, "\\scaps");
        toggle(format.capitals == Capitals::All, m_format.capitals == Capitals::All, "\\caps");
    }
    if (format.raise != m_format.raise)
        word(format.raise < 0 ? "\\dn" : "\\up", std::abs(format.raise));
    if (format.script != m_format.script)
        word(format.script == Script::Super ? "\\super"
             : format.script == Script::Sub ? "\\sub"
                                            : "\\nosupersub");
    if (format.family != m_format.family) {
        word("\\f", fontNumber(format.family));
        m_fontIsSymbol = isSymbolFont(m_names.familyAt(format.family));
    }
    if (format.halfPoints != m_format.halfPoints)
        word("\\fs", format.halfPoints);
    m_format = format;
}

void BodyWriter::openLink(int link) {
    m_formatBeforeLink = m_format;
    m_body.append("{\\field{\\*\\fldinst{");
    m_needsDelimiter = false;
    escaped(hyperlinkInstruction(m_names.linkAt(link)));
    m_body.append("}}{\\fldrslt");
    m_needsDelimiter = true;
    m_format.link = link;
}

void BodyWriter::text(QStringView text, const CharFormat& format) {
    change(format);
    if (m_fontIsSymbol)
        escapedSymbols(text);
    else
        escaped(text);
}

void BodyWriter::picture(const Picture& picture, const CharFormat& format) {
    change(format);
    if (!picture.bytes.isEmpty()) {
        appendPicture(m_body, picture);
        m_needsDelimiter = false;
    }
}

void BodyWriter::endParagraph(const CharFormat* mark) {
    // A link ends with its paragraph: fields that span paragraphs confuse many readers.
    CharFormat atEnd = mark ? *mark : m_format;
    atEnd.link = noName;
    if (m_format.link != noName || mark)
        change(atEnd);
    m_body.append("\\par\r\n");
    m_needsDelimiter = false;
}

void BodyWriter::escaped(QStringView text) {
    const QChar* at = text.data();
    const QChar* const end = at + text.size();
    while (at != end) {
        const char16_t c = at->unicode();
        if (c < isPlain.size() && isPlain[c]) {
            if (m_needsDelimiter && canJoinWord(c))
                m_body.append(' ');
            m_needsDelimiter = false;
            const QChar* start = at;
            do
                ++at;
            while (at != end && at->unicode() < isPlain.size() && isPlain[at->unicode()]);
            const qsizetype before = m_body.size();
            m_body.resize(before + (at - start));
            char* out = m_body.data() + before;
            for (; start != at; ++start)
                *out++ = char(start->unicode());
            continue;
        }
        ++at;
        m_needsDelimiter = false;
        switch (c) {
        case u'\\':
        case u'{':
        case u'}':
            m_body.append('\\').append(char(c));
            break;
        case u'\t':
            word("\\tab");
            break;
        case QChar::LineSeparator:
            word("\\line");
            break;
        case QChar::Nbsp:
            m_body.append("\\~");
            break;
        case QChar::SoftHyphen:
            m_body.append("\\-");
            break;
        case 0x2011:
            m_body.append("\\_");
            break;
        case QChar::ObjectReplacementCharacter:
            break;
        default:
            if (const uchar byte = latin1Byte(c); byte >= 0x20)
                appendCode(m_body, byte);
            else
                appendUnicode(m_body, c);
            break;
        }
    }
}

void BodyWriter::escapedSymbols(QStringView text) {
    // What the font does not have by a byte keeps its own code, which no table touches.
    for (const QChar character : text) {
        const char16_t c = character.unicode();
        const uchar byte = symbolByte(c);
        if (byte == ' ' || c == u'\t' || c == QChar::LineSeparator)
            escaped(QStringView(&character, 1));
        else if (c == QChar::ObjectReplacementCharacter)
            continue;
        else if (byte != 0)
            appendCode(m_body, byte), m_needsDelimiter = false;
        else
            appendUnicode(m_body, c), m_needsDelimiter = false;
    }
}

QByteArray BodyWriter::file(int defaultTab) const {
    BodyWriter head;
    QByteArray& out = head.m_body;
    out.reserve(m_body.size() + 1024);
    out.append("{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1033");
    if (defaultTab != factoryTab && defaultTab > 0)
        out.append("\\deftab").append(QByteArray::number(defaultTab));
    out.append("{\\fonttbl");
    for (qsizetype number = 0; number < m_fonts.size(); ++number) {
        QString name = m_names.familyAt(m_fonts[number]);
        out.append("{\\f").append(QByteArray::number(number));
        out.append(isSymbolFamily(name) ? "\\fnil\\fcharset2" : "\\fnil\\fcharset0");
        head.m_needsDelimiter = true;
        head.escaped(name.remove(u';'));
        out.append(";}");
    }
    out.append("}\r\n");
    if (!m_colors.isEmpty()) {
        out.append("{\\colortbl ;");
        for (const QRgb color : m_colors) {
            out.append("\\red").append(QByteArray::number(qRed(color)));
            out.append("\\green").append(QByteArray::number(qGreen(color)));
            out.append("\\blue").append(QByteArray::number(qBlue(color))).append(';');
        }
        out.append("}\r\n");
    }
    out.append("{\\*\\generator Orvalis;}\\viewkind4\\uc1");
    out.append(m_body);
    out.append("}\r\n");
    return out;
}

} // namespace orvalis::rtf
