// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/html_bound.h"

#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis;
using namespace Qt::StringLiterals;

class HtmlBoundTest : public QObject {
    Q_OBJECT
private slots:
    void whatPeopleCopyIsReadWhole_data();
    void whatPeopleCopyIsReadWhole();
    void whatWouldTakeTooLongIsCutAheadOfATag_data();
    void whatWouldTakeTooLongIsCutAheadOfATag();
};

void HtmlBoundTest::whatPeopleCopyIsReadWhole_data() {
    QTest::addColumn<QString>("html");
    QTest::newRow("nothing") << QString();
    QTest::newRow("text alone") << u"text "_s.repeated(1'000'000);
    QTest::newRow("paragraphs") << u"<p>text</p>"_s.repeated(30'000);
    QTest::newRow("line breaks are not inside each other") << u"text<BR>"_s.repeated(50'000);
    QTest::newRow("deep elements")
        << u"<div>"_s.repeated(30) + u"<b>a</b>"_s.repeated(20'000) + u"</div>"_s.repeated(30);
    QTest::newRow("a style sheet of a word processor")
        << u"<style>"_s + u"p.a{margin:0}"_s.repeated(300) + u"</style>"_s +
               u"<p class=a>a</p>"_s.repeated(5000);
    QTest::newRow("signs that are no tags") << u"a < b <3 "_s.repeated(300'000);
}

void HtmlBoundTest::whatPeopleCopyIsReadWhole() {
    QFETCH(QString, html);
    QCOMPARE(htmlWithinBounds(html).size(), html.size());
}

void HtmlBoundTest::whatWouldTakeTooLongIsCutAheadOfATag_data() {
    QTest::addColumn<QString>("html");
    QTest::newRow("elements within elements") << u"<span>a"_s.repeated(10'000);
    QTest::newRow("ends of elements that are not open")
        << u"<div>"_s.repeated(5000) + u"</p>"_s.repeated(5000);
    QTest::newRow("rules for many elements") << u"<style>"_s + u".a{b:c}"_s.repeated(5000) +
                                                    u"</style>"_s + u"<p>a</p>"_s.repeated(5000);
    QTest::newRow("very many elements") << u"<p>a</p>"_s.repeated(200'000);
}

void HtmlBoundTest::whatWouldTakeTooLongIsCutAheadOfATag() {
    QFETCH(QString, html);
    const QStringView read = htmlWithinBounds(html);
    QVERIFY(read.size() < html.size());
    QVERIFY(read.size() > html.size() / 100);
    QCOMPARE(html[read.size()], QChar(u'<'));
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, HtmlBoundTest)
#include "html_bound_test.moc"
