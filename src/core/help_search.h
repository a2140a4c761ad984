// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRegularExpression>
#include <QString>

namespace orvalis {

/// A page as far as a search asks for it.
struct HelpPage {
    QString address;
    QString title;
    QString text;
};

/// A page that a search has found.
struct HelpFinding {
    QString address;
    QString title;
    /// A piece of the page's text around the first word found, with "…" where it is cut.
    QString excerpt;

    bool operator==(const HelpFinding&) const = default;
};

/// What the words of a query are looked for with: in either case and also as the beginning of a
/// longer word.
QList<QRegularExpression> helpWords(const QString& query);

/// A text with the places of the words told by a mark, as HTML.
QString markedHtml(const QString& text, const QList<QRegularExpression>& words);

/// The pages that hold every word of the query. Pages with the words in their title come first,
/// then those that say them most often; equals keep their order. An empty query finds nothing.
QList<HelpFinding> searchHelp(const QList<HelpPage>& pages, const QString& query);

} // namespace orvalis
