// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "likeness/likeness.h"
#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis::likeness;
using namespace Qt::StringLiterals;

namespace {

constexpr double Top = 72;
constexpr double Bottom = 720;

/// A page of words, each at its place in points.
PdfText page(const QList<std::pair<QString, QPointF>>& words) {
    PdfText text;
    text.pages = 1;
    for (const auto& [word, corner] : words)
        text.words.append({word, 1, corner});
    return text;
}

} // namespace

class LeftEdgesTest : public QObject {
    Q_OBJECT
private slots:
    void whatStandsElsewhereIsTold_data();
    void whatStandsElsewhereIsTold();
};

void LeftEdgesTest::whatStandsElsewhereIsTold_data() {
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("found");
    QTest::addColumn<double>("x");
    QTest::addColumn<bool>("alike");
    const auto row = [](const char* name, const QString& expected, const QString& found, double x,
                        bool alike) { QTest::newRow(name) << expected << found << x << alike; };
    row("in its place", u"word"_s, u"word"_s, 100, true);
    row("six points from it", u"word"_s, u"word"_s, 106, true);
    row("seven points from it", u"word"_s, u"word"_s, 107, false);
    row("another word", u"word"_s, u"sword"_s, 100, false);
    row("without a control character", u"wo\u009drd"_s, u"word"_s, 100, true);
    row("with one", u"word"_s, u"wo\u0007rd"_s, 100, true);
    row("with a sign", u"word"_s, u"wo\u00b7rd"_s, 100, false);
    row("its mirror", u"("_s, u")"_s, 100, true);
    row("another bracket", u"("_s, u"{"_s, 100, false);
}

void LeftEdgesTest::whatStandsElsewhereIsTold() {
    QFETCH(QString, expected);
    QFETCH(QString, found);
    QFETCH(double, x);
    QString miss;
    const Share share = compareLeftEdges(page({{expected, {100, 100}}}), page({{found, {x, 300}}}),
                                         Top, Bottom, {}, miss);
    QCOMPARE(share.all, 1);
    QTEST(share.alike == 1, "alike");
    QCOMPARE(miss.isEmpty(), share.alike == 1);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, LeftEdgesTest)
#include "left_edges_test.moc"
