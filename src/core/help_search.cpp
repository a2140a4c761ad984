// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/help_search.h"

#include "skin/palette.h"

#include <QBitArray>
#include <QColor>

#include <algorithm>

namespace orvalis {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype BeforeWord = 40;
constexpr qsizetype ExcerptLength = 120;

QRegularExpression wordBeginning(const QString& word) {
    return QRegularExpression(uR"((?<![\p{L}\p{N}]))"_s + QRegularExpression::escape(word),
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::UseUnicodePropertiesOption);
}

QString excerptAround(const QString& text, qsizetype place) {
    qsizetype from = std::max<qsizetype>(0, place - BeforeWord);
    if (from > 0) {
        const qsizetype blank = text.indexOf(u' ', from);
        if (blank >= 0 && blank < place)
            from = blank + 1;
    }
    qsizetype to = std::min(text.size(), from + ExcerptLength);
    if (to < text.size()) {
        const qsizetype blank = text.lastIndexOf(u' ', to);
        if (blank > place)
            to = blank;
    }
    return (from > 0 ? u"… "_s : QString()) + text.mid(from, to - from) +
           (to < text.size() ? u" …"_s : QString());
}

} // namespace

QList<QRegularExpression> helpWords(const QString& query) {
    QList<QRegularExpression> words;
    const QStringList parts = query.simplified().split(u' ', Qt::SkipEmptyParts);
    for (const QString& part : parts)
        words.append(wordBeginning(part));
    return words;
}

QString markedHtml(const QString& text, const QList<QRegularExpression>& words) {
    // One word can be the beginning of another: each character is marked once.
    QBitArray marked(text.size());
    for (const QRegularExpression& word : words)
        for (auto hit = word.globalMatch(text); hit.hasNext();) {
            const QRegularExpressionMatch match = hit.next();
            marked.fill(true, match.capturedStart(), match.capturedEnd());
        }
    QString html;
    for (qsizetype from = 0; from < text.size();) {
        qsizetype to = from + 1;
        while (to < text.size() && marked.testBit(to) == marked.testBit(from))
            ++to;
        const QString piece = text.mid(from, to - from).toHtmlEscaped();
        html += marked.testBit(from) ? u"<span style=\"background-color:%1\">%2</span>"_s.arg(
                                           QColor(skin::colour::Found).name(), piece)
                                     : piece;
        from = to;
    }
    return html;
}

QList<HelpFinding> searchHelp(const QList<HelpPage>& pages, const QString& query) {
    const QList<QRegularExpression> words = helpWords(query);
    if (words.isEmpty())
        return {};

    struct Rated {
        HelpFinding finding;
        bool inTitle;
        qsizetype times;
    };
    QList<Rated> rated;
    for (const HelpPage& page : pages) {
        const QString text = page.text.simplified();
        qsizetype times = 0;
        bool everyWord = true;
        bool inTitle = true;
        for (const QRegularExpression& word : words) {
            const qsizetype inText = text.count(word);
            const bool titled = page.title.contains(word);
            everyWord = everyWord && (inText > 0 || titled);
            inTitle = inTitle && titled;
            times += inText;
        }
        if (!everyWord)
            continue;
        const qsizetype place = std::max<qsizetype>(0, text.indexOf(words.constFirst()));
        rated.append({{page.address, page.title, excerptAround(text, place)}, inTitle, times});
    }
    std::stable_sort(rated.begin(), rated.end(), [](const Rated& a, const Rated& b) {
        return a.inTitle != b.inTitle ? a.inTitle : a.times > b.times;
    });
    QList<HelpFinding> findings;
    for (const Rated& page : rated)
        findings.append(page.finding);
    return findings;
}

} // namespace orvalis
