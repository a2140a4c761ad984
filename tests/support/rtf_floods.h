// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QRandomGenerator>

#include <functional>
#include <vector>

namespace orvalis::test {

/// A file that is nothing but one kind of thing, of any size; what costs a reader or a document
/// more with each further piece shows in it. Every flood begins with the word "text".
struct RtfFlood {
    const char* name;
    std::function<QByteArray(qsizetype)> ofSize; ///< in bytes, at least
};

/// Pieces one after the other behind the start; "%" in a piece stands for its number.
inline RtfFlood floodOf(const char* name, const QByteArray& piece,
                        const QByteArray& start = "{\\rtf1 text ") {
    return {name,
            [=](qsizetype size) {
                QByteArray rtf = start;
                rtf.reserve(size + 256);
                for (int number = 1; rtf.size() < size; ++number)
                    rtf += QByteArray(piece).replace('%', QByteArray::number(number));
                return rtf;
            }};
}

/// Random bytes in which no brace ends the file.
inline QByteArray rtfNoise(qsizetype size) {
    QByteArray rtf = "{\\rtf1 text ";
    rtf.reserve(size);
    QRandomGenerator random(2);
    for (int depth = 0; rtf.size() < size;) {
        const char byte = char(random.bounded(256));
        const bool brace = byte == '{' || byte == '}';
        if (brace && (rtf.endsWith('\\') || (byte == '}' && depth == 0)))
            continue;
        if (brace)
            depth += byte == '{' ? 1 : -1;
        rtf += byte;
    }
    return rtf;
}

inline std::vector<RtfFlood> rtfFloods() {
    return {
        {"random bytes", rtfNoise},
        floodOf("opening braces", "{"),
        floodOf("closing braces", "}"),
        floodOf("groups within groups", "{\\b\\tx99 a"),
        floodOf("ignorable groups within groups", "{\\*\\nobody"),
        floodOf("empty paragraphs", "\\par"),
        floodOf("one-letter runs", "\\b a\\b0 b"),
        floodOf("sizes", "\\fs% a"),
        floodOf("a few looks in turn", "\\fs8 a\\fs9\\up3 b\\fs20\\ul c"),
        floodOf("bullets", "\\pard{\\pntext\\bullet}x\\par"),
        floodOf("numbers that stay", "\\pard{\\pntext 7.}x\\par"),
        floodOf("numbers that go on", "\\pard{\\pntext (%)}x\\par\\pard y\\par"),
        floodOf("lists by their identities", "\\pard{\\*\\pn\\pnlvlbody\\orvlist%}x\\par"),
        floodOf("fonts", "{\\fonttbl{\\f% A%;}}\\f% x"),
        floodOf("a font for each paragraph", "{\\fonttbl{\\f% A%;}}\\f% x\\par"),
        floodOf("one font over and over", "{\\f7 A;}", "{\\rtf1 text{\\fonttbl"),
        floodOf("tab stops", "\\pard\\tx% x\\par"),
        floodOf("tab stops of one paragraph", "\\tx%"),
        floodOf("colour tables", "{\\colortbl;\\red%;}\\cf1 x"),
        floodOf("colours of one table", "\\red1;", "{\\rtf1 text{\\colortbl;"),
        floodOf("links", "{\\field{\\*\\fldinst HYPERLINK u%}{\\fldrslt x}}"),
        floodOf("list tables", "{\\*\\listtable{\\list{\\listlevel}\\listid%}}"
                               "{\\*\\listoverridetable\\listid%\\ls%}\\ls% x\\par"),
        floodOf("lists of one table", "{\\list{\\listlevel}\\listid1}",
                "{\\rtf1 text{\\*\\listtable"),
        floodOf(
            "overrides with starts of their own",
            "{\\*\\listoverridetable{\\listoverride\\listid%{\\lfolevel\\levelstartat%}\\ls%}}"),
        floodOf("overrides with labels of their own",
                "{\\*\\listoverridetable{\\listoverride{\\lfolevel{\\listlevel{\\leveltext\\'02\\'"
                "00)}}}\\ls%}}"),
        floodOf("shapes within shapes", "{\\shp{\\*\\shpinst{\\sp{\\sn pib}"),
        floodOf("labels of words", "\\pard{\\pntext Chapter %.}x\\par"),
        floodOf("pictures in two forms that nothing can draw",
                "{\\*\\shppict{\\pict\\emfblip\\picwgoal99999\\pichgoal99999 %00}}"
                "{\\nonshppict{\\pict\\wmetafile8\\picwgoal99999\\pichgoal99999 01000900%00}}"),
        floodOf("hidden pictures", "{\\v{\\pict\\pngblip %00}}"),
        floodOf("pictures of one pixel", "{\\pict\\wbitmap0\\picw1\\pich1 %000000}"),
        floodOf("pictures that claim",
                "{\\pict\\pngblip\\picwgoal99999\\pichgoal99999 89504e470d0a1a0a"
                "0000000d49484452000186a0000186a0080200000027309c9f0000200049444154}"),
        floodOf("pictures that nothing can draw",
                "{\\pict\\dibitmap0\\picwgoal99999\\pichgoal99999 %00}"),
        floodOf("hexadecimal of one picture", "00",
                "{\\rtf1 text{\\pict\\pngblip 89504e470d0a1a0a"),
        floodOf("characters of two bytes", "\\'83\\'56", "{\\rtf1\\ansicpg932 text "),
        floodOf("characters by number", "\\u1078?"),
        floodOf("cells", "\\cell"),
    };
}

} // namespace orvalis::test
