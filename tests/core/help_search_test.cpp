// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/help_search.h"
#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

const QList<HelpPage> Pages{
    {u"first.html"_s, u"First steps"_s, u"Set the alarm. The alarm rings."_s},
    {u"alarm.html"_s, u"The alarm"_s, u"It has a time of day."_s},
    {u"tray.html"_s, u"In the tray"_s, u"Alarms go on in the tray."_s},
};

QStringList addresses(const QString& query) {
    QStringList found;
    for (const HelpFinding& finding : searchHelp(Pages, query))
        found << finding.address;
    return found;
}

} // namespace

class HelpSearchTest : public QObject {
    Q_OBJECT
private slots:
    void aPageWithTheWordInItsTitleComesFirst() {
        QCOMPARE(addresses(u"alarm"_s),
                 (QStringList{u"alarm.html"_s, u"first.html"_s, u"tray.html"_s}));
    }
    void everyWordMustBeThere() {
        QCOMPARE(addresses(u"alarm tray"_s), QStringList{u"tray.html"_s});
        QCOMPARE(addresses(u"alarm zebra"_s), QStringList());
    }
    void wordsAreMarkedOnceAndTheRestIsNoMarkup() {
        const QString mark = u"<span style=\"background-color:#ffe9a8\">"_s;
        QCOMPARE(markedHtml(u"a <b> Bells & bell"_s, helpWords(u"bell bells"_s)),
                 u"a &lt;b&gt; "_s + mark + u"Bells</span> &amp; "_s + mark + u"bell</span>"_s);
        QCOMPARE(markedHtml(u"doorbell"_s, helpWords(u"bell"_s)), u"doorbell"_s);
    }
    void caseMakesNoDifferenceAndABeginningIsEnough() {
        QCOMPARE(addresses(u"RIN"_s), QStringList{u"first.html"_s});
        QCOMPARE(addresses(u"ings"_s), QStringList());
    }
    void anEmptyQueryFindsNothing() {
        QCOMPARE(addresses(QString()), QStringList());
        QCOMPARE(addresses(u"  \t "_s), QStringList());
    }
    void signsOfAPatternAreOnlySigns() {
        QCOMPARE(addresses(u".*"_s), QStringList());
        QCOMPARE(addresses(u"(["_s), QStringList());
    }
    void theExcerptShowsTheWordInItsPlace() {
        const QList<HelpPage> pages{
            {u"a"_s, u"A"_s, u"word "_s.repeated(40) + u"needle "_s + u"after "_s.repeated(40)}};
        const QString excerpt = searchHelp(pages, u"needle"_s).constFirst().excerpt;
        QVERIFY(excerpt.contains(u"needle"_s));
        QVERIFY(excerpt.startsWith(u"… "_s));
        QVERIFY(excerpt.endsWith(u" …"_s));
        QVERIFY(excerpt.size() < 140);
        QCOMPARE(searchHelp(Pages, u"day"_s).constFirst().excerpt, u"It has a time of day."_s);
    }
};

ORVALIS_TEST_MAIN_WITH(QCoreApplication, HelpSearchTest)
#include "help_search_test.moc"
