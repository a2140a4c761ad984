// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/panel_ground.h"

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

/// What an end that nobody asked for leaves.
QString recovered(PanelGround& ground) {
    ground.program.recovery.keep();
    if (!ground.folder.names().contains(u"recovered.rtf"_s))
        return {};
    RichTextBox box;
    box.files().LoadFile(ground.folder.file(u"recovered.rtf"_s));
    return box.Text();
}

} // namespace

/// What the Reminder panel tells of a message that is in no file.
class UnsavedMessageTest : public QObject {
    Q_OBJECT
private slots:
    void aTypedMessageIsToldUnderItsTitle();
    void theEventMessageIsToldToo();
    void whatStandsInForAnEventMessageIsNotTold();
    void aPanelThatWasOnlyOpenedTellsNothing();
    void aSavedMessageIsNotTold();
    void anUnloadedPanelTellsNothing();
};

void UnsavedMessageTest::aTypedMessageIsToldUnderItsTitle() {
    PanelGround ground;
    ground.shown();
    ground.control<QLineEdit>(u"txt1"_s).setText(u"Garden"_s);
    QTest::keyClicks(&ground.rt1(), u"Water the roses"_s);
    QCOMPARE(recovered(ground),
             u"Reminder panel, message \"Garden\", Saturday, March 14, 2026, 10:24:36\r\n"
             "Water the roses"_s);
}

void UnsavedMessageTest::theEventMessageIsToldToo() {
    PanelGround ground;
    ground.shown();
    ground.tick(u"chkRemind"_s);
    QTest::keyClicks(&ground.rtMs2(), u"Fetch the can"_s);
    QCOMPARE(recovered(ground),
             u"Reminder panel, event message, Saturday, March 14, 2026, 10:24:36\r\n"
             "Fetch the can"_s);
}

void UnsavedMessageTest::whatStandsInForAnEventMessageIsNotTold() {
    PanelGround ground;
    ground.shown();
    ground.tick(u"chkRemind"_s);
    ground.press(u"Button1"_s);
    QCOMPARE(ground.rtMs2().Text(), u"Message not set"_s);
    QCOMPARE(recovered(ground), QString());
}

void UnsavedMessageTest::aPanelThatWasOnlyOpenedTellsNothing() {
    PanelGround ground;
    ground.folder.write(u"Vazno.rtf"_s, "{\\rtf1 on the disk}");
    ground.shown();
    QCOMPARE(recovered(ground), QString());
}

void UnsavedMessageTest::aSavedMessageIsNotTold() {
    PanelGround ground;
    ground.shown();
    ground.tick(u"chkRemind"_s);
    QTest::keyClicks(&ground.rtMs2(), u"Fetch the can"_s);
    ground.press(u"Button1"_s);
    QTest::keyClicks(&ground.rt1(), u"Water the roses"_s);
    ground.press(u"imgSave"_s);
    QCOMPARE(recovered(ground), QString());
}

void UnsavedMessageTest::anUnloadedPanelTellsNothing() {
    PanelGround ground;
    ground.shown();
    QTest::keyClicks(&ground.rt1(), u"Water the roses"_s);
    ground.leave();
    QCOMPARE(recovered(ground), QString());
}

ORVALIS_TEST_MAIN_WITH(QApplication, UnsavedMessageTest)
#include "unsaved_message_test.moc"
