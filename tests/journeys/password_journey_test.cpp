// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/driven_program.h"

#include "support/test_main.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;

/// The Password panel as a person uses it: a text is written, scrambled, saved, and another day it
/// is loaded and brought back.
class PasswordJourneyTest : public QObject {
    Q_OBJECT
private slots:
    void aTextIsScrambledSavedLoadedAndBroughtBack();

private:
    static bool answerBox(DrivenProgram& program, const QString& words) {
        return waitUntil([&] { return program.messageBox().text == words; }, 10000) &&
               program.answer(u"OK"_s);
    }
    static bool answerFile(DrivenProgram& program, const QString& path) {
        if (!program.waitVisible(u"FileDialog"_s))
            return false;
        program.type(path);
        program.key(u"Return"_s);
        return waitUntil([&] { return !program.control(u"FileDialog"_s).visible; }, 10000);
    }
};

void PasswordJourneyTest::aTextIsScrambledSavedLoadedAndBroughtBack() {
    Stage stage({});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    DrivenProgram program(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    QVERIFY(program.start());
    QVERIFY(program.waitVisible(u"frmnotes"_s));
    QVERIFY(program.click(u"frmnotes/imgopen4"_s));
    QVERIFY(program.waitVisible(u"frmnotes4/txtrt1"_s));
    QCOMPARE(program.control(u"frmnotes4/imgMail"_s).tip, u"Sand Email"_s);

    QVERIFY(program.click(u"frmnotes4/imgBack"_s));
    QVERIFY(answerBox(program, u"Write or load text you want to encrypt/decrypt."_s));
    QVERIFY(program.click(u"frmnotes4/txtrt1"_s));
    program.type(u"Meet me at the harbour"_s);
    QVERIFY(program.waitText(u"frmnotes4/txtrt1"_s, u"Meet me at the harbour"_s));
    QVERIFY(program.click(u"frmnotes4/imgBack"_s));
    QVERIFY(program.waitText(u"frmnotes4/txtText"_s, u"Meet me at the harbour"_s));
    QVERIFY(program.click(u"frmnotes4/cmdCrypt(0)"_s));
    QVERIFY(answerBox(program, u"Enter Password."_s));
    QVERIFY(program.click(u"frmnotes4/txtPW"_s));
    program.type(u"rose"_s);
    QVERIFY(program.click(u"frmnotes4/cmdCrypt(0)"_s));
    QVERIFY(waitUntil(
        [&] {
            const QString text = program.control(u"frmnotes4/txtText"_s).text;
            return !text.isEmpty() && text != u"Meet me at the harbour"_s;
        },
        5000));
    QVERIFY(!program.control(u"frmnotes4/PB1"_s).visible);

    QVERIFY(program.click(u"frmnotes4/imgSave"_s));
    QVERIFY(waitUntil([&] { return program.menuEntry(u"mnuencrypted"_s).visible; }, 5000));
    QVERIFY(program.choose(u"mnuencrypted"_s));
    const QString path = program.folder() + u"/secret.txt"_s;
    QVERIFY(answerFile(program, path));
    QVERIFY(waitUntil([&] { return program.fileBytes(u"secret.txt"_s).size() == 44; }, 5000));

    QVERIFY(program.click(u"frmnotes4/imgNew"_s));
    QVERIFY(program.waitText(u"frmnotes4/txtText"_s, QString()));
    QVERIFY(program.click(u"frmnotes4/imgOpen"_s));
    QVERIFY(answerFile(program, path));
    QVERIFY(
        waitUntil([&] { return !program.control(u"frmnotes4/txtrt1"_s).text.isEmpty(); }, 5000));
    QCOMPARE(program.control(u"frmnotes4/txtText"_s).text, QString());
    QVERIFY(program.click(u"frmnotes4/imgBack"_s));
    QVERIFY(program.click(u"frmnotes4/cmdCrypt(1)"_s));
    QVERIFY(program.waitText(u"frmnotes4/txtText"_s, u"Meet me at the harbour"_s));

    // What cannot be brought back is told, and empties the right page.
    QVERIFY(program.click(u"frmnotes4/txtText"_s));
    program.key(u"ctrl+End"_s);
    program.type(u"!"_s);
    QVERIFY(program.click(u"frmnotes4/cmdCrypt(1)"_s));
    QVERIFY(answerBox(program, u"Invalid property value"_s));
    QVERIFY(program.waitText(u"frmnotes4/txtText"_s, QString()));
    QVERIFY(program.control(u"frmnotes4/PB1"_s).visible);

    QVERIFY(program.click(u"frmnotes4/lblNot"_s));
    QVERIFY(program.waitVisible(u"frmnotes1/rt1"_s));
    QVERIFY(program.isRunning());
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, PasswordJourneyTest)
#include "password_journey_test.moc"
