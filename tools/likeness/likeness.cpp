// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "likeness.h"

#include "page_items.h"
#include "rtf/characters/symbol_font.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <functional>
#include <tuple>

using namespace Qt::StringLiterals;

namespace orvalis::likeness {

namespace {

const QString Bullet = u"\u2022"_s;
constexpr double NearPlace = 2;       // points
constexpr double NearLeftEdge = 6;    // points
constexpr double NearLine = 6;        // points: how much higher the signs of other fonts begin
constexpr qsizetype LongestGap = 200; // words that one of two texts may have more

/// Hands over the words that two texts share, in order: at a difference, those that are nearest.
template <class Item>
void visitPairs(const QList<Item>& a, const QList<Item>& b,
                const std::function<void(const Item&, const Item&)>& visit) {
    qsizetype i = 0;
    qsizetype j = 0;
    const auto meetAfter = [&](qsizetype gap) {
        for (qsizetype inA = 0; inA <= gap; ++inA) {
            const qsizetype inB = gap - inA;
            if (i + inA < a.size() && j + inB < b.size() && a[i + inA].text == b[j + inB].text) {
                i += inA;
                j += inB;
                return true;
            }
        }
        return false;
    };
    while (i < a.size() && j < b.size()) {
        qsizetype gap = 0;
        while (gap <= LongestGap && !meetAfter(gap))
            ++gap;
        if (gap > LongestGap) {
            ++i;
            ++j;
            continue;
        }
        visit(a[i++], b[j++]);
    }
}

/// A word that runs from right to left: a PDF may hold its letters as they are read, or as they
/// stand, and with or without what has no width.
QString inOneOrder(QString word) {
    static const QRegularExpression unseen(u"[\\x{200b}-\\x{200f}\\x{202a}-\\x{202e}]"_s);
    const auto runsLeft = [](QChar c) {
        return c.direction() == QChar::DirR || c.direction() == QChar::DirAL;
    };
    if (std::none_of(word.cbegin(), word.cend(), runsLeft))
        return word;
    word.remove(unseen);
    std::sort(word.begin(), word.end());
    return word;
}

/// What is one sign whichever of the two PDFs holds it: brackets are turned in text that runs from
/// right to left, a sign of a symbol font may stand as the letter of its code, and control
/// characters show nothing. Empty for signs that Unicode does not have.
QString inOneSpelling(QString word) {
    constexpr char32_t FirstBeyondLatin = 0x7f;
    word.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
    word.replace(u')', u'(').replace(u']', u'[').replace(QChar(0x2010), u'-');
    if (word.size() != 1)
        return word;
    // Its two forms of some letters are one to a PDF.
    char32_t sign = word.front().unicode();
    if (sign < FirstBeyondLatin)
        sign = rtf::symbolCharacter(rtf::SymbolFont::Symbol, uchar(sign));
    const QString plain = QString::fromUcs4(&sign, 1).normalized(QString::NormalizationForm_KC);
    const uchar code = rtf::symbolByte(rtf::SymbolFont::Symbol, plain.front().unicode());
    if (rtf::privateByte(sign) || plain.front().category() == QChar::Other_PrivateUse)
        return {};
    return code ? QString(QChar(char16_t(code))) : word;
}

/// The words of the first pages, without what fills the space of tabs, and with one sign for every
/// bullet, every bracket and every hyphen. Characters that the fonts of few machines have stand for
/// no word.
QList<Word> firstPages(const PdfText& text, int pages) {
    static const QRegularExpression leader(u"([._=\\x{00b7}-]){3,}.*$"_s);
    static const QRegularExpression bullet(
        u"^[\\x{2022}\\x{00b7}\\x{25a0}-\\x{27bf}\\x{2b00}-\\x{2bff}\\x{fffd}\\x{e000}-\\x{f8ff}]$"_s);
    static const QRegularExpression outOfUnicode(u"[\\x{e000}-\\x{f8ff}\\x{fffd}]"_s);
    QList<Word> words;
    for (Word word : text.words) {
        if (word.page > pages)
            continue;
        if (bullet.match(word.text).hasMatch())
            word.text = Bullet;
        word.text = inOneSpelling(inOneOrder(word.text.remove(leader)));
        if (!word.text.isEmpty() && !word.isRare && !outOfUnicode.match(word.text).hasMatch())
            words.append(word);
    }
    const auto ahead = [](const Word& one, const Word& other) {
        return std::tuple(one.page, one.corner.y(), one.corner.x()) <
               std::tuple(other.page, other.corner.y(), other.corner.x());
    };
    std::sort(words.begin(), words.end(), ahead);
    return words;
}

/// Where a character stands in no font of a machine, what follows it on its line stands somewhere.
bool standsBehindRare(const Word& word, const QList<Word>& words) {
    return std::any_of(
        words.cbegin(), words.cend(),
        [&](const Word& other) {
            return other.isRare && other.page == word.page &&
                   std::abs(other.corner.y() - word.corner.y()) <= NearLine &&
                   other.corner.x() < word.corner.x();
        });
}

/// The items of a page whose labels are those that the file tells.
QList<PageItem> itemsAsTold(const QList<Word>& words, const QSet<QString>& labels) {
    QSet<QString> told;
    for (const QString& label : labels)
        told.insert(inOneSpelling(label));
    QList<PageItem> items = itemsOf(words);
    items.removeIf([&](const PageItem& item) {
        return !told.contains(item.label.text) && item.label.text != inOneSpelling(Bullet);
    });
    return items;
}

/// Whether a word is the label of an item that the other page has in its place under the label that
/// the file tells.
bool isLabelOf(const Word& word, const QList<PageItem>& items, const QList<PageItem>& told) {
    const auto isIt = [&](const PageItem& item) { return item.label.corner == word.corner; };
    const auto item = std::find_if(items.cbegin(), items.cend(), isIt);
    return item != items.cend() &&
           std::any_of(told.cbegin(), told.cend(), [&](const PageItem& other) {
               const bool isBullet = other.label.text == inOneSpelling(Bullet);
               return other.text == item->text && (!isBullet || word.text.size() == 1) &&
                      std::abs(other.label.corner.x() - word.corner.x()) <= NearLeftEdge;
           });
}

/// Of places in their order down the page, the most that have their like among others in the same
/// order: for each, whether it has.
QList<bool> alikeInOrder(const QList<double>& expected, const QList<double>& found) {
    const qsizetype columns = found.size() + 1;
    const auto near = [&](qsizetype i, qsizetype j) {
        return std::abs(expected[i] - found[j]) <= NearLeftEdge;
    };
    QList<int> most((expected.size() + 1) * columns, 0);
    for (qsizetype i = expected.size() - 1; i >= 0; --i)
        for (qsizetype j = found.size() - 1; j >= 0; --j)
            most[i * columns + j] =
                std::max({most[(i + 1) * columns + j], most[i * columns + j + 1],
                          most[(i + 1) * columns + j + 1] + int(near(i, j))});
    QList<bool> alike(expected.size(), false);
    for (qsizetype i = 0, j = 0; i < expected.size() && j < found.size();) {
        const int here = most[i * columns + j];
        if (near(i, j) && here == most[(i + 1) * columns + j + 1] + 1)
            alike[i++] = ++j > 0;
        else if (here == most[(i + 1) * columns + j])
            ++i;
        else
            ++j;
    }
    return alike;
}

template <class Item>
qint64 characters(const QList<Item>& words) {
    qint64 count = 0;
    for (const Item& word : words)
        count += word.text.size();
    return count;
}

} // namespace

Share& Share::operator+=(const Share& other) {
    alike += other.alike;
    all += other.all;
    return *this;
}

Likeness& Likeness::operator+=(const Likeness& other) {
    font += other.font;
    size += other.size;
    weight += other.weight;
    color += other.color;
    place += other.place;
    return *this;
}

Likeness compare(const PdfText& expected, const PdfText& found) {
    Likeness likeness;
    const qint64 looked = characters(expected.looks);
    for (Share* share : {&likeness.font, &likeness.size, &likeness.weight, &likeness.color})
        share->all = looked;
    visitPairs<LookedWord>(
        expected.looks, found.looks, [&](const LookedWord& one, const LookedWord& other) {
            const qint64 length = one.text.size();
            likeness.font.alike += one.look.font == other.look.font ? length : 0;
            likeness.size.alike += one.look.size == other.look.size ? length : 0;
            likeness.weight.alike += one.look.bold == other.look.bold ? length : 0;
            likeness.color.alike += one.look.color == other.look.color ? length : 0;
        });
    likeness.place.all = characters(expected.words);
    visitPairs<Word>(expected.words, found.words, [&](const Word& one, const Word& other) {
        const QPointF apart = one.corner - other.corner;
        if (one.page == other.page && std::abs(apart.x()) <= NearPlace &&
            std::abs(apart.y()) <= NearPlace)
            likeness.place.alike += one.text.size();
    });
    return likeness;
}

Share compareLeftEdges(const PdfText& expected, const PdfText& found, double top, double bottom,
                       const QSet<QString>& labels, QString& miss) {
    constexpr double Rounding = 4;
    constexpr int PagesOfFound = 2;
    QHash<QString, QList<double>> places;
    const QList<Word> foundWords = firstPages(found, PagesOfFound);
    for (const Word& word : foundWords)
        places[word.text] << word.corner.x();
    QList<Word> words = firstPages(expected, 1);
    words.removeIf([&](const Word& word) {
        return word.corner.y() < top - Rounding || word.corner.y() > bottom ||
               standsBehindRare(word, expected.words);
    });
    const QList<PageItem> items = itemsOf(words);
    const QList<PageItem> toldItems = itemsAsTold(foundWords, labels);
    QHash<QString, QList<double>> wanted;
    for (const Word& word : std::as_const(words))
        wanted[word.text] << word.corner.x();
    QHash<QString, QList<bool>> alike;
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it)
        alike.insert(it.key(), alikeInOrder(*it, places.value(it.key())));
    Share share{0, words.size()};
    for (const Word& word : std::as_const(words)) {
        const bool isAlike = alike[word.text].takeFirst();
        if (isAlike || isLabelOf(word, items, toldItems))
            ++share.alike;
        else if (miss.isEmpty())
            miss = u"\"%1\" at %2, %3"_s.arg(word.text)
                       .arg(word.corner.x(), 0, 'f', 1)
                       .arg(word.corner.y(), 0, 'f', 1) +
                   (places.contains(word.text) ? u" stands elsewhere"_s : u" is missing"_s);
    }
    return share;
}

QString folded(QString text) {
    static const QRegularExpression unseen(
        u"[\u00ad\u2006\u200b-\u200f\u202a-\u202e\ufeff\ufffc]"_s);
    return text.remove(unseen).simplified();
}

} // namespace orvalis::likeness
