// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "likeness.h"

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

Share compareLeftEdges(const PdfText& expected, const PdfText& found, QString& miss) {
    const auto firstPage = [](const PdfText& text) {
        QList<Word> words = text.words;
        words.removeIf([](const Word& word) { return word.page != 1; });
        return words;
    };
    const QList<Word> words = firstPage(expected);
    Share share{0, words.size()};
    qsizetype met = 0;
    visitPairs<Word>(words, firstPage(found), [&](const Word& one, const Word& other) {
        ++met;
        const double apart = other.corner.x() - one.corner.x();
        if (std::abs(apart) <= NearLeftEdge)
            ++share.alike;
        else if (miss.isEmpty())
            miss = u"\"%1\" stands at %2, not at %3"_s.arg(one.text)
                       .arg(other.corner.x(), 0, 'f', 1)
                       .arg(one.corner.x(), 0, 'f', 1);
    });
    if (miss.isEmpty() && met < words.size())
        miss = u"%1 of %2 words are missing"_s.arg(words.size() - met).arg(words.size());
    return share;
}

QString folded(QString text) {
    static const QRegularExpression unseen(
        u"[\u00ad\u2006\u200b-\u200f\u202a-\u202e\ufeff\ufffc]"_s);
    return text.remove(unseen).simplified();
}

} // namespace orvalis::likeness
