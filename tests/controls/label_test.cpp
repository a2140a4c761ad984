// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/label.h"

#include "support/test_main.h"

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QWindow>

using namespace orvalis;
using namespace Qt::StringLiterals;

class LabelTest : public QObject {
    Q_OBJECT
private slots:
    void anotherCaptionIsAChange();
    void theSameCaptionIsNoChange();
    void theFirstCaptionIsNoChange();
    void aCaptionIsPlainText();
    void aPressOfAnyButtonIsTold();
    void aLeftPressAndReleaseInsideIsAClick();
    void thePointersMovesAreTold();
    void theCaptionIsTheAccessibleName();
    void aLabelThatNobodyListensToIsText();
    void aListenedToLabelCanBePressedByAssistivePrograms();
};

void LabelTest::anotherCaptionIsAChange() {
    Label label(u"lblAlarm"_s, QString());
    QCOMPARE(label.objectName(), u"lblAlarm"_s);
    QSignalSpy changes(&label, &Label::Change);
    label.setCaption(u"07:30:00"_s);
    QCOMPARE(changes.count(), 1);
    label.setText(u"08:30:00"_s);
    QCOMPARE(changes.count(), 2);
    label.setCaption(QString());
    QCOMPARE(changes.count(), 3);
    QCOMPARE(label.Caption(), QString());
}

void LabelTest::theSameCaptionIsNoChange() {
    Label label(u"lblAlarm"_s, u"07:30:00"_s);
    QSignalSpy changes(&label, &Label::Change);
    label.setCaption(u"07:30:00"_s);
    QCOMPARE(changes.count(), 0);
}

void LabelTest::theFirstCaptionIsNoChange() {
    Label label(u"Label5"_s, u"00:00:00"_s);
    QCOMPARE(label.Caption(), u"00:00:00"_s);
    QCOMPARE(label.text(), u"00:00:00"_s);
}

void LabelTest::aCaptionIsPlainText() {
    Label label(u"Label1"_s, u"<b>bold</b>"_s);
    Label plain(u"Label1"_s, u"<b>bold</b>"_s);
    plain.setTextFormat(Qt::PlainText);
    QCOMPARE(label.sizeHint(), plain.sizeHint());
    QCOMPARE(label.textFormat(), Qt::PlainText);
}

void LabelTest::aPressOfAnyButtonIsTold() {
    Label label(u"lblNot"_s, u"Notes"_s);
    label.resize(40, 20);
    QSignalSpy downs(&label, &Label::MouseDown);
    for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        QTest::mousePress(&label, button, {}, {3, 4});
    QCOMPARE(downs.count(), 3);
    QCOMPARE(downs.at(0), (QVariantList{1, 0, 3.0F, 4.0F}));
    QCOMPARE(downs.at(1).first().toInt(), 2);
    QCOMPARE(downs.at(2).first().toInt(), 4);
}

void LabelTest::aLeftPressAndReleaseInsideIsAClick() {
    Label label(u"lblNot"_s, u"Notes"_s);
    label.resize(40, 20);
    QSignalSpy clicks(&label, &Label::Click);
    QTest::mouseClick(&label, Qt::LeftButton);
    QCOMPARE(clicks.count(), 1);
    QTest::mouseClick(&label, Qt::RightButton);
    QTest::mousePress(&label, Qt::LeftButton, {}, {3, 4});
    QTest::mouseRelease(&label, Qt::LeftButton, {}, {-1, 4});
    QCOMPARE(clicks.count(), 1);
}

void LabelTest::thePointersMovesAreTold() {
    Label label(u"lblVreme"_s, u"10 : 24 : 36"_s);
    label.resize(60, 20);
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    QSignalSpy moves(&label, &Label::MouseMove);
    QTest::mouseMove(label.windowHandle(), {5, 6});
    QTRY_VERIFY(!moves.isEmpty());
    QCOMPARE(moves.last(), (QVariantList{0, 0, 5.0F, 6.0F}));
}

void LabelTest::theCaptionIsTheAccessibleName() {
    Label label(u"lblNot"_s, u"Notes"_s);
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&label);
    QVERIFY(interface);
    QCOMPARE(interface->text(QAccessible::Name), u"Notes"_s);
    label.setCaption(u"Reminder"_s);
    QCOMPARE(interface->text(QAccessible::Name), u"Reminder"_s);
    label.setAccessibleName(u"Clock"_s);
    QCOMPARE(interface->text(QAccessible::Name), u"Clock"_s);
}

void LabelTest::aLabelThatNobodyListensToIsText() {
    Label label(u"Label1"_s, u"Hour"_s);
    QCOMPARE(QAccessible::queryAccessibleInterface(&label)->role(), QAccessible::StaticText);
}

void LabelTest::aListenedToLabelCanBePressedByAssistivePrograms() {
    Label label(u"lblNot"_s, u"Notes"_s);
    QSignalSpy clicks(&label, &Label::Click);
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&label);
    QCOMPARE(interface->role(), QAccessible::Button);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicks.count(), 1);
}

ORVALIS_TEST_MAIN_WITH(QApplication, LabelTest)
#include "label_test.moc"
