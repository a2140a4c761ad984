// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/progress_bar.h"

#include "runtime/failure.h"
#include "support/test_main.h"

#include <QApplication>

using namespace orvalis;
using namespace Qt::StringLiterals;

class ProgressBarTest : public QObject {
    Q_OBJECT
private slots:
    void itGoesFromNothingToAHundred();
    void aValueOutsideItsRangeIsRefused_data();
    void aValueOutsideItsRangeIsRefused();
    void aFractionIsKept();
    void itShowsTheWholePercents();
};

void ProgressBarTest::itGoesFromNothingToAHundred() {
    const ProgressBar bar(u"PB1"_s);
    QCOMPARE(bar.objectName(), u"PB1"_s);
    QCOMPARE(bar.Min(), 0);
    QCOMPARE(bar.Max(), 100);
    QCOMPARE(bar.Value(), 0.0F);
}

void ProgressBarTest::aValueOutsideItsRangeIsRefused_data() {
    QTest::addColumn<float>("value");
    QTest::newRow("below") << -0.5F;
    QTest::newRow("a little above") << 100.01F;
    QTest::newRow("no number") << static_cast<float>(qQNaN());
}

void ProgressBarTest::aValueOutsideItsRangeIsRefused() {
    QFETCH(float, value);
    ProgressBar bar(u"PB1"_s);
    bar.SetValue(40);
    const auto failure = firstFailure([&] { bar.SetValue(value); });
    QVERIFY(failure);
    QCOMPARE(failure->number(), ErrorNumber::InvalidPropertyValue);
    QCOMPARE(bar.Value(), 40.0F);
}

void ProgressBarTest::aFractionIsKept() {
    ProgressBar bar(u"PB1"_s);
    bar.SetValue(33.5F);
    QCOMPARE(bar.Value(), 33.5F);
}

void ProgressBarTest::itShowsTheWholePercents() {
    ProgressBar bar(u"PB1"_s);
    bar.resize(200, 10);
    bar.show();
    const auto filled = [&] {
        bar.SetValue(0);
        const QImage empty = bar.grab().toImage();
        bar.SetValue(50.9F);
        const QImage half = bar.grab().toImage();
        int differing = 0;
        for (int x = 0; x < half.width(); ++x)
            differing += half.pixel(x, half.height() / 2) != empty.pixel(x, half.height() / 2);
        return differing;
    };
    const int width = filled();
    QVERIFY2(width > 60 && width < 140, qPrintable(QString::number(width)));
}

ORVALIS_TEST_MAIN_WITH(QApplication, ProgressBarTest)
#include "progress_bar_test.moc"
