// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/recovery.h"

#include "controls/rich_text_box.h"
#include "runtime/failure.h"
#include "support/test_main.h"
#include "support/test_program.h"
#include "support/without_root.h"

#include <QApplication>
#include <QTextBlock>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

UnsavedText plain(const QString& title, const QString& text) {
    RichTextBox box;
    box.SetText(text);
    return {title, box.TextRTF()};
}

QString textOf(const TestProgram& ground, const QString& name) {
    RichTextBox box;
    box.files().LoadFile(ground.folder.file(name));
    return box.Text();
}

} // namespace

class RecoveryTest : public QObject {
    Q_OBJECT
private slots:
    void nothingUnsavedWritesNothing();
    void eachTextStandsUnderALineThatSaysWhatItWasAndWhen();
    void aTextKeepsItsFormatsAndTheNextOneIsFreeOfThem();
    void anOlderFileIsNeverWrittenOver();
    void theSameTextsAreKeptOnce();
    void whatWasTypedSinceIsKeptAsWell();
    void aWindowThatWentIsNotAsked();
    void aRegistrationMayOutliveTheProgram();
    void aWindowThatFailsTakesNothingFromTheOthers();
    void aFolderThatRefusesIsSilentAndAskedAgain();
};

void RecoveryTest::nothingUnsavedWritesNothing() {
    TestProgram ground;
    const auto held = ground.program.recovery.add([] { return std::vector<UnsavedText>(); });
    ground.program.recovery.keep();
    QVERIFY(ground.folder.names().isEmpty());
}

void RecoveryTest::eachTextStandsUnderALineThatSaysWhatItWasAndWhen() {
    TestProgram ground;
    ground.clock.set(QDateTime(QDate(2026, 3, 14), QTime(9, 5, 7), Qt::UTC));
    const auto first = ground.program.recovery.add([] {
        return std::vector{plain(u"Page"_s, u"one\r\ntwo"_s), plain(u"Other"_s, u"x"_s)};
    });
    const auto second =
        ground.program.recovery.add([] { return std::vector{plain(u"Sticker"_s, u"milk"_s)}; });
    ground.program.recovery.keep();
    QCOMPARE(textOf(ground, u"recovered.rtf"_s),
             u"Page, Saturday, March 14, 2026, 09:05:07\r\none\r\ntwo\r\n\r\n"
             "Other, Saturday, March 14, 2026, 09:05:07\r\nx\r\n\r\n"
             "Sticker, Saturday, March 14, 2026, 09:05:07\r\nmilk"_s);
}

void RecoveryTest::aTextKeepsItsFormatsAndTheNextOneIsFreeOfThem() {
    TestProgram ground;
    const auto held = ground.program.recovery.add([] {
        return std::vector<UnsavedText>{
            {u"A"_s, "{\\rtf1{\\colortbl;\\red255\\green0\\blue0;}\\qc\\b\\cf1\\fs40 loud\\par}"},
            {u"B"_s, "{\\rtf1\\fs16 quiet\\par}"}};
    });
    ground.program.recovery.keep();
    RichTextBox box;
    box.files().LoadFile(ground.folder.file(u"recovered.rtf"_s));
    box.SetSelStart(box.Find(u"loud"_s));
    box.SetSelLength(4);
    QCOMPARE(box.SelBold(), true);
    QCOMPARE(box.SelFontSize(), 20.0);
    QCOMPARE(box.SelColor(), 255u);
    QCOMPARE(box.SelAlignment(), static_cast<int>(RichTextBox::rtfCenter));
    box.SetSelStart(box.Find(u"B, "_s));
    box.SetSelLength(2);
    QCOMPARE(box.SelBold(), true);
    QCOMPARE(box.SelFontSize(), 10.0);
    QCOMPARE(box.SelColor(), 0u);
    QCOMPARE(box.SelAlignment(), static_cast<int>(RichTextBox::rtfLeft));
    box.SetSelStart(box.Find(u"quiet"_s));
    box.SetSelLength(5);
    QCOMPARE(box.SelBold(), false);
    QCOMPARE(box.SelFontSize(), 8.0);
    QCOMPARE(box.SelAlignment(), static_cast<int>(RichTextBox::rtfLeft));
}

void RecoveryTest::anOlderFileIsNeverWrittenOver() {
    TestProgram ground;
    ground.folder.write(u"recovered.rtf"_s, "older");
    ground.folder.write(u"recovered 2.rtf"_s, "old");
    const auto held =
        ground.program.recovery.add([] { return std::vector{plain(u"A"_s, u"text"_s)}; });
    ground.program.recovery.keep();
    QCOMPARE(ground.folder.read(u"recovered.rtf"_s), QByteArray("older"));
    QCOMPARE(ground.folder.read(u"recovered 2.rtf"_s), QByteArray("old"));
    QVERIFY(textOf(ground, u"recovered 3.rtf"_s).endsWith(u"\r\ntext"_s));
    QCOMPARE(ground.folder.names().size(), 3);
}

void RecoveryTest::theSameTextsAreKeptOnce() {
    TestProgram ground;
    const auto held =
        ground.program.recovery.add([] { return std::vector{plain(u"A"_s, u"text"_s)}; });
    ground.program.recovery.keep();
    ground.clock.set(ground.clock.now().addSecs(60));
    ground.program.recovery.keep();
    QCOMPARE(ground.folder.names(), QStringList{u"recovered.rtf"_s});
}

void RecoveryTest::whatWasTypedSinceIsKeptAsWell() {
    TestProgram ground;
    QString text = u"first"_s;
    const auto held = ground.program.recovery.add([&] { return std::vector{plain(u"A"_s, text)}; });
    ground.program.recovery.keep();
    text = u"second"_s;
    ground.program.recovery.keep();
    QVERIFY(textOf(ground, u"recovered.rtf"_s).endsWith(u"\r\nfirst"_s));
    QVERIFY(textOf(ground, u"recovered 2.rtf"_s).endsWith(u"\r\nsecond"_s));
}

void RecoveryTest::aWindowThatWentIsNotAsked() {
    TestProgram ground;
    {
        const auto held =
            ground.program.recovery.add([] { return std::vector{plain(u"A"_s, u"text"_s)}; });
    }
    ground.program.recovery.keep();
    QVERIFY(ground.folder.names().isEmpty());
}

void RecoveryTest::aRegistrationMayOutliveTheProgram() {
    Recovery::Registration held;
    {
        TestProgram ground;
        held = ground.program.recovery.add([] { return std::vector<UnsavedText>(); });
    }
    held.reset();
}

void RecoveryTest::aWindowThatFailsTakesNothingFromTheOthers() {
    TestProgram ground;
    const auto bad = ground.program.recovery.add(
        []() -> std::vector<UnsavedText> { throw RuntimeError(ErrorNumber::Overflow); });
    const auto good =
        ground.program.recovery.add([] { return std::vector{plain(u"A"_s, u"text"_s)}; });
    ground.program.recovery.keep();
    QVERIFY(textOf(ground, u"recovered.rtf"_s).endsWith(u"\r\ntext"_s));
}

void RecoveryTest::aFolderThatRefusesIsSilentAndAskedAgain() {
    const WithoutRoot ordinaryUser;
    TestProgram ground;
    const auto held =
        ground.program.recovery.add([] { return std::vector{plain(u"A"_s, u"text"_s)}; });
    ground.folder.setWritable(false);
    ground.program.recovery.keep();
    ground.folder.setWritable(true);
    QVERIFY(ground.folder.names().isEmpty());
    ground.program.recovery.keep();
    QCOMPARE(ground.folder.names(), QStringList{u"recovered.rtf"_s});
}

ORVALIS_TEST_MAIN_WITH(QApplication, RecoveryTest)
#include "recovery_test.moc"
