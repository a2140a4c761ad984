// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "pdf_words.h"

#include <QFontDatabase>
#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace orvalis::likeness {

namespace {

QByteArray outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(60'000);
    return process.readAllStandardOutput();
}

// "BAAAAA+LiberationSans-Bold" is of the family "LiberationSans".
QString familyOf(const QString& font) {
    return font.section(u'+', -1).section(u'-', 0, 0).section(u',', 0, 0);
}

bool isBoldFont(const QString& font) {
    return font.contains("Bold"_L1, Qt::CaseInsensitive);
}

// Points. Signs and marks of another font stand a little higher than the letters beside them.
constexpr double Touching = 0.3;
constexpr double OneLine = 1;

/// A word, and where it ends to the right.
struct Piece {
    Word word;
    double right = 0;
};

/// Words are found in pieces where they are drawn in several, and letter by letter where they run
/// from right to left. What stands without a gap behind the other is one word.
bool goOn(Piece& piece, const Piece& next) {
    const QPointF corner = piece.word.corner;
    const double higher = std::abs(next.word.corner.y() - corner.y());
    const bool isMark = !next.word.text.isEmpty() && next.word.text.front().isMark();
    if (next.word.page != piece.word.page || higher > (isMark ? OneLine : 0))
        return false;
    if (std::abs(next.word.corner.x() - piece.right) < Touching) {
        piece.word.text += next.word.text;
        piece.right = next.right;
        return true;
    }
    if (std::abs(next.right - corner.x()) < Touching) {
        piece.word.text.prepend(next.word.text);
        piece.word.corner = next.word.corner;
        return true;
    }
    return false;
}

/// Words that run from right to left stand in a PDF in pieces of any length and in any order. On
/// their lines, what touches is one word, wherever it stands in the PDF.
void joinAlongLines(QList<Piece>& pieces) {
    const auto runsLeft = [](QChar c) {
        return c.direction() == QChar::DirR || c.direction() == QChar::DirAL;
    };
    const auto byPlace = [](const Piece* one, const Piece* other) {
        return one->word.corner.x() < other->word.corner.x();
    };
    for (qsizetype first = 0; first < pieces.size(); ++first) {
        const Word here = pieces[first].word;
        if (std::none_of(here.text.cbegin(), here.text.cend(), runsLeft))
            continue;
        QList<Piece*> line;
        for (Piece& piece : pieces)
            if (!piece.word.text.isEmpty() && piece.word.page == here.page &&
                std::abs(piece.word.corner.y() - here.corner.y()) < OneLine)
                line.append(&piece);
        std::sort(line.begin(), line.end(), byPlace);
        for (qsizetype i = line.size() - 1; i > 0; --i) {
            if (line[i]->word.corner.x() - line[i - 1]->right >= Touching)
                continue;
            line[i - 1]->word.text += line[i]->word.text;
            line[i - 1]->right = std::max(line[i - 1]->right, line[i]->right);
            line[i]->word.text.clear();
        }
    }
    pieces.removeIf([](const Piece& piece) { return piece.word.text.isEmpty(); });
}

/// The number of a list item that reaches up to its text is one word with it, which it is in PDFs
/// that have the two in order.
void joinNumbers(QList<Piece>& pieces) {
    constexpr double Close = 0.7; // points
    static const QRegularExpression number(u"^[0-9]+([.][0-9]+)*[.)]$"_s);
    for (Piece& piece : pieces) {
        if (!number.match(piece.word.text).hasMatch())
            continue;
        for (Piece& next : pieces) {
            const QPointF between = next.word.corner - QPointF(piece.right, piece.word.corner.y());
            if (next.word.page != piece.word.page || std::abs(between.y()) > OneLine ||
                std::abs(between.x()) > Close || next.word.text.isEmpty())
                continue;
            piece.word.text += std::exchange(next.word.text, {});
            piece.right = next.right;
            break;
        }
    }
    pieces.removeIf([](const Piece& piece) { return piece.word.text.isEmpty(); });
}

void readPlaces(const QByteArray& xml, PdfText& text) {
    static const QRegularExpression rare(
        u"[\\x{900}-\\x{109f}\\x{1780}-\\x{17ff}\\x{2e80}-\\x{d7ff}\\x{f900}-\\x{faff}"
        "\\x{fe30}-\\x{fe4f}\\x{ff00}-\\x{ffef}\\x{10000}-\\x{10ffff}]"_s);
    QXmlStreamReader reader(xml);
    QList<Piece> pieces;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == "page"_L1) {
            ++text.pages;
        } else if (reader.name() == "word"_L1) {
            const auto attributes = reader.attributes();
            const QPointF corner(attributes.value("xMin"_L1).toDouble(),
                                 attributes.value("yMin"_L1).toDouble());
            const QString word = reader.readElementText();
            const Piece found{{word, text.pages, corner}, attributes.value("xMax"_L1).toDouble()};
            if (!pieces.isEmpty() && goOn(pieces.last(), found))
                continue;
            pieces.append(found);
        }
    }
    joinAlongLines(pieces);
    joinNumbers(pieces);
    for (Piece& piece : pieces) {
        piece.word.isRare = rare.match(piece.word.text).hasMatch();
        // Ligatures are drawn as one sign by the one, as letters by the other; letters with marks
        // in one piece or in two.
        piece.word.text = piece.word.text.normalized(QString::NormalizationForm_KC);
        text.words.append(piece.word);
    }
}

/// Words in their looks: a word ends at a blank, or where a line of the page does.
class LookReader {
public:
    LookReader(const QByteArray& xml, QList<LookedWord>& words)
        : m_reader(xml)
        , m_words(words) {}

    void read() {
        while (!m_reader.atEnd())
            switch (m_reader.readNext()) {
            case QXmlStreamReader::StartElement:
                start();
                break;
            case QXmlStreamReader::EndElement:
                if (m_reader.name() == "text"_L1)
                    m_inWord = false;
                m_bold -= m_reader.name() == "b"_L1;
                break;
            case QXmlStreamReader::Characters:
                characters(m_reader.text());
                break;
            default:
                break;
            }
    }

private:
    void start() {
        const auto attributes = m_reader.attributes();
        if (m_reader.name() == "fontspec"_L1) {
            const QString font = attributes.value("family"_L1).toString();
            m_fonts.insert(attributes.value("id"_L1).toString(),
                           {familyOf(font), attributes.value("size"_L1).toInt(), isBoldFont(font),
                            attributes.value("color"_L1).toString()});
        } else if (m_reader.name() == "text"_L1) {
            m_look = m_fonts.value(attributes.value("font"_L1).toString());
            m_inText = true;
        } else if (m_reader.name() == "b"_L1) {
            ++m_bold;
        }
    }

    void characters(QStringView text) {
        if (!m_inText)
            return;
        for (const QChar c : text) {
            if (c.isSpace()) {
                m_inWord = false;
                continue;
            }
            if (!m_inWord) {
                m_words.append({QString(), m_look});
                m_words.last().look.bold |= m_bold > 0;
            }
            m_inWord = true;
            m_words.last().text += c;
        }
    }

    QXmlStreamReader m_reader;
    QList<LookedWord>& m_words;
    QHash<QString, Look> m_fonts;
    Look m_look;
    int m_bold = 0;
    bool m_inText = false;
    bool m_inWord = false;
};

} // namespace

QString mainFamily(const QString& path) {
    const QByteArray firstPage = outputOf(
        u"pdftohtml"_s, {u"-xml"_s, u"-i"_s, u"-nomerge"_s, u"-l"_s, u"1"_s, u"-stdout"_s, path});
    QList<LookedWord> words;
    LookReader(firstPage, words).read();
    QHash<QString, qsizetype> characters;
    QString name;
    for (const LookedWord& word : std::as_const(words))
        if ((characters[word.look.font] += word.text.size()) > characters.value(name))
            name = word.look.font;
    const QStringList families = QFontDatabase::families();
    for (const QString& family : families)
        if (QString(family).remove(u' ') == name)
            return family;
    return u"Times New Roman"_s;
}

PdfText readPdf(const QString& path) {
    PdfText text;
    readPlaces(outputOf(u"pdftotext"_s, {u"-raw"_s, u"-bbox"_s, path, u"-"_s}), text);
    const QByteArray looks =
        outputOf(u"pdftohtml"_s, {u"-xml"_s, u"-i"_s, u"-nomerge"_s, u"-stdout"_s, path});
    LookReader(looks, text.looks).read();
    return text;
}

} // namespace orvalis::likeness
