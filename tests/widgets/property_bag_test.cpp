// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "widgets/property_bag.h"

#include "support/test_main.h"

#include <QCoreApplication>
#include <QDataStream>

using namespace orvalis;
using namespace Qt::StringLiterals;

class PropertyBagTest : public QObject {
    Q_OBJECT
private slots:
    void whatDiffersFromItsDefaultIsHeld();
    void whatIsItsDefaultIsNotHeld();
    void whatIsNotHeldReadsAsItsDefault();
    void theOrderIsThatOfTheWriting();
    void writingADefaultAgainTakesTheOldValueAway();
    void aBagSurvivesAStream();
    void aStreamThatEndsEarlyLeavesDefaults();
};

void PropertyBagTest::whatDiffersFromItsDefaultIsHeld() {
    PropertyBag bag;
    bag.WriteProperty(u"Caption"_s, u"OK"_s, u"imgOK"_s);
    QCOMPARE(bag.ReadProperty(u"Caption"_s, u"imgOK"_s).toString(), u"OK"_s);
}

void PropertyBagTest::whatIsItsDefaultIsNotHeld() {
    PropertyBag bag;
    bag.WriteProperty(u"CaptionAlignment"_s, 4, 4);
    QVERIFY(bag.names().isEmpty());
}

void PropertyBagTest::whatIsNotHeldReadsAsItsDefault() {
    QCOMPARE(PropertyBag().ReadProperty(u"CaptionAlignment"_s, 4).toInt(), 4);
}

void PropertyBagTest::theOrderIsThatOfTheWriting() {
    PropertyBag bag;
    bag.WriteProperty(u"b"_s, 1, 0);
    bag.WriteProperty(u"a"_s, 1, 0);
    bag.WriteProperty(u"c"_s, 1, 0);
    QCOMPARE(bag.names(), (QStringList{u"b"_s, u"a"_s, u"c"_s}));
}

void PropertyBagTest::writingADefaultAgainTakesTheOldValueAway() {
    PropertyBag bag;
    bag.WriteProperty(u"a"_s, 1, 0);
    bag.WriteProperty(u"a"_s, 0, 0);
    QVERIFY(bag.names().isEmpty());
}

void PropertyBagTest::aBagSurvivesAStream() {
    PropertyBag bag;
    bag.WriteProperty(u"Caption"_s, u"Find"_s, QString());
    bag.WriteProperty(u"ForeColor"_s, 0xC00000U, 0U);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << bag;
    PropertyBag read;
    QDataStream in(bytes);
    in >> read;
    QCOMPARE(read.names(), bag.names());
    QCOMPARE(read.ReadProperty(u"ForeColor"_s, 0U).toUInt(), 0xC00000U);
}

void PropertyBagTest::aStreamThatEndsEarlyLeavesDefaults() {
    PropertyBag bag;
    bag.WriteProperty(u"Caption"_s, u"Find"_s, QString());
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << bag;
    bytes.chop(6);
    PropertyBag read;
    QDataStream stream(bytes);
    stream >> read;
    QVERIFY(stream.status() != QDataStream::Ok);
    QCOMPARE(read.ReadProperty(u"Caption"_s, u"default"_s).toString(), u"default"_s);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, PropertyBagTest)
#include "property_bag_test.moc"
