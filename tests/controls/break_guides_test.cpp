// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/break_guides.h"
#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis;
using namespace Qt::StringLiterals;

class BreakGuidesTest : public QObject {
    Q_OBJECT
private slots:
    void everyGuideStandsWhereItIsNeeded_data();
    void everyGuideStandsWhereItIsNeeded();
};

void BreakGuidesTest::everyGuideStandsWhereItIsNeeded_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("guided"); // "+" joins, "|" parts
    const auto row = [](const char* name, const QString& text, const QString& guided) {
        QTest::newRow(name) << text << guided;
    };
    row("nothing", {}, {});
    row("plain words", u"and so on - or not, at-once"_s, u"and so on - or not, at-once"_s);
    row("slashes", u"see http://a.org/b"_s, u"see http://+a.org/+b"_s);
    row("slash at the end", u"either/ or/"_s, u"either/ or/"_s);
    row("slash ahead of a letter that changes with its neighbours", u"a/\u0628"_s, u"a/\u0628"_s);
    row("hyphens of an address", u"x http://at-sea.org/on-board 1-a"_s,
        u"x http://+at-+sea.org/+on-board 1-a"_s);
    row("hyphen of the word behind", u"a/b at-sea"_s, u"a/+b at-sea"_s);
    row("numbers", u"26, 519-526."_s, u"26, 519-|526."_s);
    row("number behind a word", u"page-12 +49-30"_s, u"page-|12 +49-|30"_s);
    row("numbers below zero", u"-12 to -34, --5"_s, u"-12 to -34, --5"_s);
    row("path", u"in C:\\Program Files\\a"_s, u"in C:+\\|Program Files+\\|a"_s);
    row("path of the net", u"on \\\\server\\share"_s, u"on \\+\\|server+\\|share"_s);
    row("backslash alone", u"\\ and \\"_s, u"\\ and \\"_s);
}

void BreakGuidesTest::everyGuideStandsWhereItIsNeeded() {
    QFETCH(QString, text);
    QString guided = text;
    const std::vector<BreakGuide> guides = breakGuides(text);
    for (auto guide = guides.rbegin(); guide != guides.rend(); ++guide)
        guided.insert(guide->position, guide->sign == 0x200d   ? u'+'
                                       : guide->sign == 0x200b ? u'|'
                                                               : u'?');
    QTEST(guided, "guided");
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, BreakGuidesTest)
#include "break_guides_test.moc"
