// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "likeness.h"

#include <QMultiHash>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <functional>

using namespace Qt::StringLiterals;

namespace orvalis::likeness {

namespace {

constexpr double NearPlace = 2;       // points
constexpr double NearLeftEdge = 6;    // points
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

/// The words of the first page, without what fills the space of tabs, and with one sign for every
/// bullet. Characters that the fonts of few machines have stand for no word.
QList<Word> firstPage(const PdfText& text) {
    static const QRegularExpression leader(u"([._=\\x{00b7}-]){3,}.*$"_s);
    static const QRegularExpression bullet(
        u"^[\\x{2022}\\x{00b7}\\x{25aa}\\x{25cf}\\x{fffd}\\x{e000}-\\x{f8ff}]$"_s);
    static const QRegularExpression rare(u"[\\x{2e80}-\\x{fffd}\\x{10000}-\\x{10ffff}]"_s);
    QList<Word> words;
    for (Word word : text.words) {
        if (word.page != 1)
            continue;
        word.text.remove(leader);
        if (bullet.match(word.text).hasMatch())
            word.text = u"\u2022"_s;
        if (!word.text.isEmpty() && !rare.match(word.text).hasMatch())
            words.append(word);
    }
    return words;
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
                       QString& miss) {
    QList<Word> words = firstPage(expected);
    constexpr double Rounding = 4;
    words.removeIf([&](const Word& word) {
        return word.corner.y() < top - Rounding || word.corner.y() > bottom;
    });
    QMultiHash<QString, QPointF> places;
    for (const Word& word : firstPage(found))
        places.insert(word.text, word.corner);
    Share share{0, words.size()};
    for (const Word& word : words) {
        const auto distance = [&](const QPointF& place) {
            return (place - word.corner).manhattanLength();
        };
        auto nearest = places.end();
        for (auto it = places.find(word.text); it != places.end() && it.key() == word.text; ++it)
            if (nearest == places.end() || distance(*it) < distance(*nearest))
                nearest = it;
        if (nearest != places.end() && std::abs(nearest->x() - word.corner.x()) <= NearLeftEdge)
            ++share.alike;
        else if (miss.isEmpty())
            miss = u"\"%1\" at %2, %3"_s.arg(word.text)
                       .arg(word.corner.x(), 0, 'f', 1)
                       .arg(word.corner.y(), 0, 'f', 1) +
                   (nearest == places.end() ? u" is missing"_s
                                            : u" stands at %1, %2"_s.arg(nearest->x(), 0, 'f', 1)
                                                  .arg(nearest->y(), 0, 'f', 1));
        if (nearest != places.end())
            places.erase(nearest);
    }
    return share;
}

QString folded(QString text) {
    static const QRegularExpression unseen(
        u"[\u00ad\u2006\u200b-\u200f\u202a-\u202e\ufeff\ufffc]"_s);
    return text.remove(unseen).simplified();
}

} // namespace orvalis::likeness
