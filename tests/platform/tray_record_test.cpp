// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/tray_icon.h"
#include "support/test_main.h"

#include <QGuiApplication>

using namespace orvalis;
using namespace Qt::StringLiterals;

class TrayRecordTest : public QObject {
    Q_OBJECT
private slots:
    void aTipOfMoreThan63CharactersIsCutByTheFixedField() {
        TrayTip tip;
        tip.set(QString(63, u'a') + u"bcd"_s);
        QCOMPARE(tip.text(), QString(63, u'a'));
        QVERIFY(tip.holds(QString(63, u'a')));
        QVERIFY2(tip.holds(QString(63, u'a') + u"other"_s),
                 "what lies behind the field's end makes no difference");
        QVERIFY(!tip.holds(QString(62, u'a')));
    }

    void aTipOf63CharactersIsKeptWhole() {
        TrayTip tip;
        const QString text = QString(62, u'x') + u'y';
        tip.set(text);
        QCOMPARE(tip.text(), text);
    }

    void aShorterTipLeavesNothingOfALongerOne() {
        TrayTip tip;
        tip.set(u" Orvalis - Alarm set at 07:30:00"_s);
        tip.set(u" Orvalis "_s);
        QCOMPARE(tip.text(), u" Orvalis "_s);
        QVERIFY(tip.holds(u" Orvalis "_s));
    }

    void aTipEndsAtItsFirstNul() {
        TrayTip tip;
        tip.set(u"before"_s + QChar() + u"behind"_s);
        QCOMPARE(tip.text(), u"before"_s);
        QVERIFY(!tip.holds(u"before"_s));
    }

    void anEmptyTipIsEmpty() {
        QCOMPARE(TrayTip().text(), QString());
        QVERIFY(TrayTip().holds(QString()));
    }

    void aNewRecordHasTheSizeTheMessageAndAllThreeFlags() {
        const TrayRecord record;
        QCOMPARE(record.cbSize, 88U);
        QCOMPARE(record.uFlags, 7U);
        QCOMPARE(record.uCallbackMessage, 512U);
    }
};

ORVALIS_TEST_MAIN_WITH(QGuiApplication, TrayRecordTest)
#include "tray_record_test.moc"
