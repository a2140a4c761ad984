// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/panel_ground.h"

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

const ScriptedBoxes::Asked InvalidTime{u"Invalid input for time."_s, 16, {}};

} // namespace

class ReminderEntryTest : public QObject {
    Q_OBJECT
private slots:
    void theMessageFrameShowsAtFirst();
    void tickingRemindMeBringsTheReminderFrameAndDisablesSave();
    void untickingRemindMeChangesNothing();
    void okReturnsToTheMessageAndLeavesRemindMeTicked();
    void cancelReturnsToTheMessageAndTakesEverythingBack();
    void findAndBackSwapTheFrames();
    void newReturnsToTheMessageFromEveryFrame();
    void newLeavesSaveAsItIs();
    void backFromASearchLeadsToTheMessageAlsoFromTheReminderFrame();
    void theFocusFollowsTheFrames();
    void aDisabledSaveLooksSoAndCannotBePressed();
    void typingMarksTheMessageAsChanged();
    void choosingAnHourSetsTheTimeWithoutATest();
    void choosingTheSameEntryCountsToo();
    void typedTimesReachTheLabel();
    void anEmptyFieldIsTakenAsItStands();
    void aTimeThatIsNoneIsReportedAndStays_data();
    void aTimeThatIsNoneIsReportedAndStays();
    void typingSevenAndOkPutsTheHourInTwoDigits();
    void typingTwentyFourIsReportedAndOkTakesItAsItStands();
    void aChoiceIsNotTestedEvenBesideATextThatIsNone();
    void aChangeIsTestedInItsOwnFieldAlone();
    void theSoundTickChangesNothing();
    void okGivesAnEmptyEventMessageItsStandIn();
    void okKeepsTheEventMessage();
    void newAsksForAChangedMessage_data();
    void newAsksForAChangedMessage();
    void newStartsOver();
    void aTitleThatDoesNotFitIsReadFromItsBeginning();
    void newSetsSizeEightWhateverTheSettingHolds();
    void exitAsksForAChangedMessage_data();
    void exitAsksForAChangedMessage();
    void exitAsksNothingWhileAnAlarmIsSet();
    void typingThenErasingAsksNothing();
    void theFontDialogIsLoadedFromTheSelection();
    void eachEffectIsLoadedAndWrittenBack_data();
    void eachEffectIsLoadedAndWrittenBack();
    void theChosenFontGoesToTheSelectionAndToTheListsCaret();
    void aCancelledFontDialogChangesNothing();
    void aMixedSelectionShowsTheDialogAndAppliesNothing();
    void aMixedSelectionAndCancelEndSilently();

private:
    /// A message of two sizes, all of it selected.
    static void selectMixed(RichTextBox& box) {
        box.SetText(u"small"_s);
        box.SetSelStart(5);
        box.SetSelFontSize(20);
        box.SetSelText(u"large"_s);
        box.SetSelStart(0);
        box.SetSelLength(10);
    }
    static const FontChoice& chosen() {
        static const FontChoice choice{.italic = true,
                                       .bold = true,
                                       .name = u"Courier New"_s,
                                       .size = 14,
                                       .strikethrough = true,
                                       .underline = true,
                                       .colour = 0x0000FF};
        return choice;
    }
};

void ReminderEntryTest::theMessageFrameShowsAtFirst() {
    PanelGround ground;
    QVERIFY(ground.isUp(u"Frame2"_s));
    QVERIFY(!ground.isUp(u"Frame3"_s));
    QVERIFY(!ground.isUp(u"Frame1"_s));
    QVERIFY(ground.control<Image>(u"imgSave"_s).isEnabled());
}

void ReminderEntryTest::tickingRemindMeBringsTheReminderFrameAndDisablesSave() {
    PanelGround ground;
    ground.shown();
    QTest::mouseClick(&ground.control<QCheckBox>(u"chkRemind"_s), Qt::LeftButton, {},
                      QPoint(8, 10));
    QVERIFY(!ground.isUp(u"Frame2"_s));
    QVERIFY(ground.isUp(u"Frame3"_s));
    QVERIFY(!ground.control<Image>(u"imgSave"_s).isEnabled());
}

void ReminderEntryTest::untickingRemindMeChangesNothing() {
    PanelGround ground;
    ground.tick(u"chkRemind"_s);
    ground.press(u"Button1"_s);
    ground.tick(u"chkRemind"_s, false);
    QVERIFY(ground.isUp(u"Frame2"_s));
    QVERIFY(!ground.isUp(u"Frame3"_s));
    QVERIFY(ground.control<Image>(u"imgSave"_s).isEnabled());
}

void ReminderEntryTest::okReturnsToTheMessageAndLeavesRemindMeTicked() {
    PanelGround ground;
    ground.rt1().SetText(u"message"_s);
    ground.tick(u"chkRemind"_s);
    ground.press(u"Button1"_s);
    QVERIFY(ground.isUp(u"Frame2"_s));
    QVERIFY(!ground.isUp(u"Frame3"_s));
    QVERIFY(ground.control<Image>(u"imgSave"_s).isEnabled());
    QVERIFY(ground.control<QCheckBox>(u"chkRemind"_s).isChecked());
    QCOMPARE(ground.rt1().Text(), u"message"_s);
}

void ReminderEntryTest::cancelReturnsToTheMessageAndTakesEverythingBack() {
    PanelGround ground;
    ground.rt1().SetText(u"message"_s);
    ground.tick(u"chkRemind"_s);
    ground.rtMs2().SetText(u"event"_s);
    ground.press(u"Button2"_s);
    QVERIFY(ground.isUp(u"Frame2"_s));
    QVERIFY(!ground.isUp(u"Frame3"_s));
    QVERIFY(ground.control<Image>(u"imgSave"_s).isEnabled());
    QVERIFY(!ground.control<QCheckBox>(u"chkRemind"_s).isChecked());
    QCOMPARE(ground.rt1().Text(), QString());
    QCOMPARE(ground.rtMs2().Text(), QString());
}

void ReminderEntryTest::findAndBackSwapTheFrames() {
    PanelGround ground;
    ground.press(u"imgFind"_s);
    QVERIFY(!ground.isUp(u"Frame2"_s));
    QVERIFY(ground.isUp(u"Frame1"_s));
    QVERIFY(ground.control<Image>(u"imgSave"_s).isEnabled());
    ground.press(u"imgBack"_s);
    QVERIFY(ground.isUp(u"Frame2"_s));
    QVERIFY(!ground.isUp(u"Frame1"_s));
}

void ReminderEntryTest::newReturnsToTheMessageFromEveryFrame() {
    PanelGround ground;
    ground.press(u"imgFind"_s);
    ground.press(u"imgNew"_s);
    QVERIFY(ground.isUp(u"Frame2"_s));
    QVERIFY(!ground.isUp(u"Frame1"_s));
    ground.tick(u"chkRemind"_s);
    ground.press(u"imgNew"_s);
    QVERIFY(ground.isUp(u"Frame2"_s));
    QVERIFY(!ground.isUp(u"Frame3"_s));
}

void ReminderEntryTest::newLeavesSaveAsItIs() {
    PanelGround ground;
    ground.tick(u"chkRemind"_s);
    ground.press(u"imgNew"_s);
    QVERIFY(!ground.control<Image>(u"imgSave"_s).isEnabled());
    QVERIFY(ground.control<QCheckBox>(u"chkRemind"_s).isChecked());
}

void ReminderEntryTest::backFromASearchLeadsToTheMessageAlsoFromTheReminderFrame() {
    PanelGround ground;
    ground.tick(u"chkRemind"_s);
    ground.press(u"imgFind"_s);
    QVERIFY(ground.isUp(u"Frame1"_s));
    QVERIFY(!ground.isUp(u"Frame2"_s));
    QVERIFY(!ground.isUp(u"Frame3"_s));
    ground.press(u"imgBack"_s);
    QVERIFY(ground.isUp(u"Frame2"_s));
    QVERIFY(!ground.isUp(u"Frame1"_s));
    QVERIFY(!ground.isUp(u"Frame3"_s));
    // Neither step touches the tick or the save that the reminder's frame disabled.
    QVERIFY(!ground.control<Image>(u"imgSave"_s).isEnabled());
    QVERIFY(ground.control<QCheckBox>(u"chkRemind"_s).isChecked());
    ground.tick(u"chkRemind"_s, false);
    ground.tick(u"chkRemind"_s);
    QVERIFY(ground.isUp(u"Frame3"_s));
    ground.press(u"Button1"_s);
    QVERIFY(ground.control<Image>(u"imgSave"_s).isEnabled());
}

void ReminderEntryTest::theFocusFollowsTheFrames() {
    PanelGround ground;
    frmnotes1& panel = ground.shown();
    QCOMPARE(panel.focusWidget(), &ground.rt1());
    ground.tick(u"chkRemind"_s);
    QCOMPARE(panel.focusWidget(), &ground.combo(1));
    ground.press(u"Button1"_s);
    QCOMPARE(panel.focusWidget(), &ground.rt1());
    ground.press(u"imgFind"_s);
    QCOMPARE(panel.focusWidget(), &ground.control<QLineEdit>(u"Text1"_s));
    ground.press(u"imgBack"_s);
    QCOMPARE(panel.focusWidget(), &ground.rt1());
}

void ReminderEntryTest::aDisabledSaveLooksSoAndCannotBePressed() {
    PanelGround ground;
    ground.shown();
    Image& save = ground.control<Image>(u"imgSave"_s);
    const QImage enabled = save.grab().toImage();
    ground.tick(u"chkRemind"_s);
    QVERIFY(save.grab().toImage() != enabled);
    QTest::mouseClick(&save, Qt::LeftButton);
    QVERIFY(!ground.folder.names().contains(u"tmp2.brf"_s));
    ground.press(u"Button1"_s);
    QCOMPARE(save.grab().toImage(), enabled);
}

void ReminderEntryTest::typingMarksTheMessageAsChanged() {
    PanelGround ground;
    ground.shown();
    QTest::keyClicks(&ground.rt1(), u"x"_s);
    QCOMPARE(ground.rt1().Tag(), u"promena"_s);
}

void ReminderEntryTest::choosingAnHourSetsTheTimeWithoutATest() {
    PanelGround ground;
    ground.combo(1).setCurrentIndex(7);
    emit ground.combo(1).activated(7);
    QCOMPARE(ground.caption(u"Label5"_s), u"07:00:00"_s);
}

void ReminderEntryTest::choosingTheSameEntryCountsToo() {
    PanelGround ground;
    emit ground.combo(1).Click();
    QCOMPARE(ground.caption(u"Label5"_s), u"00:00:00"_s);
    PanelGround other;
    emit other.combo(2).Click();
    QCOMPARE(other.caption(u"Label5"_s), u"00:00:00"_s);
}

void ReminderEntryTest::typedTimesReachTheLabel() {
    PanelGround ground;
    ground.type(ground.combo(1), u"12"_s);
    QCOMPARE(ground.caption(u"Label5"_s), u"12:00:00"_s);
    ground.type(ground.combo(2), u"45"_s);
    QCOMPARE(ground.caption(u"Label5"_s), u"12:45:00"_s);
}

void ReminderEntryTest::anEmptyFieldIsTakenAsItStands() {
    PanelGround ground;
    ground.type(ground.combo(1), {});
    QCOMPARE(ground.caption(u"Label5"_s), u":00:00"_s);
}

void ReminderEntryTest::aTimeThatIsNoneIsReportedAndStays_data() {
    QTest::addColumn<int>("combo");
    QTest::addColumn<QString>("text");
    QTest::newRow("letter as hour") << 1 << u"x"_s;
    QTest::newRow("24 as hour") << 1 << u"24"_s;
    QTest::newRow("negative hour") << 1 << u"-1"_s;
    QTest::newRow("letter as minute") << 2 << u"x"_s;
    QTest::newRow("60 as minute") << 2 << u"60"_s;
}

void ReminderEntryTest::aTimeThatIsNoneIsReportedAndStays() {
    QFETCH(int, combo);
    QFETCH(QString, text);
    PanelGround ground;
    ground.combo(combo).lineEdit()->selectAll();
    ground.boxes.expect(InvalidTime.text, InvalidTime.flags, Answer::Ok);
    ground.combo(combo).setText(text);
    QCOMPARE(ground.combo(combo).Text(), text);
    QCOMPARE(ground.caption(u"Label5"_s), u"00 : 00 : 00"_s);
}

void ReminderEntryTest::typingSevenAndOkPutsTheHourInTwoDigits() {
    PanelGround ground;
    ground.tick(u"chkRemind"_s);
    ground.type(ground.combo(1), u"7"_s);
    QCOMPARE(ground.caption(u"Label5"_s), u"7:00:00"_s);
    ground.press(u"Button1"_s);
    QCOMPARE(ground.combo(1).Text(), u"07"_s);
    QCOMPARE(ground.caption(u"Label5"_s), u"07:00:00"_s);
}

void ReminderEntryTest::typingTwentyFourIsReportedAndOkTakesItAsItStands() {
    PanelGround ground;
    ground.tick(u"chkRemind"_s);
    ground.boxes.expect(InvalidTime.text, InvalidTime.flags, Answer::Ok);
    ground.type(ground.combo(1), u"24"_s);
    ground.press(u"Button1"_s);
    QCOMPARE(ground.combo(1).Text(), u"24"_s);
    QCOMPARE(ground.caption(u"Label5"_s), u"2:00:00"_s);
}

void ReminderEntryTest::aChoiceIsNotTestedEvenBesideATextThatIsNone() {
    PanelGround ground;
    ground.boxes.expect(InvalidTime.text, InvalidTime.flags, Answer::Ok);
    ground.type(ground.combo(2), u"x"_s);
    ground.combo(1).setCurrentIndex(7);
    emit ground.combo(1).activated(7);
    QCOMPARE(ground.caption(u"Label5"_s), u"07:x:00"_s);
    QCOMPARE(ground.boxes.asked.size(), 1);
}

void ReminderEntryTest::aChangeIsTestedInItsOwnFieldAlone() {
    PanelGround ground;
    ground.boxes.expect(InvalidTime.text, InvalidTime.flags, Answer::Ok);
    ground.combo(1).setText(u"24"_s);
    ground.combo(2).setText(u"45"_s);
    QCOMPARE(ground.caption(u"Label5"_s), u"24:45:00"_s);
    QCOMPARE(ground.boxes.asked.size(), 1);
}

void ReminderEntryTest::theSoundTickChangesNothing() {
    PanelGround ground;
    ground.tick(u"chkRemind"_s);
    ground.tick(u"chkSound"_s);
    QVERIFY(ground.isUp(u"Frame3"_s));
    ground.rtMs2().SetText(u"event"_s);
    ground.press(u"Button1"_s);
    ground.press(u"imgSave"_s);
    QCOMPARE(ground.folder.read(u"tmp2.brf"_s),
             QByteArray(" 3  1 \r\n\r\nSaturday, March 14, 2026/00 : 00 : 00\r\nevent\r\n"));
    QVERIFY(ground.control<QCheckBox>(u"chkSound"_s).isChecked());
    QVERIFY(ground.sound.played.isEmpty());
}

void ReminderEntryTest::okGivesAnEmptyEventMessageItsStandIn() {
    PanelGround ground;
    ground.tick(u"chkRemind"_s);
    ground.press(u"Button1"_s);
    QCOMPARE(ground.rtMs2().Text(), u"Message not set"_s);
}

void ReminderEntryTest::okKeepsTheEventMessage() {
    PanelGround ground;
    ground.tick(u"chkRemind"_s);
    ground.rtMs2().SetText(u"event"_s);
    ground.press(u"Button1"_s);
    QCOMPARE(ground.rtMs2().Text(), u"event"_s);
}

void ReminderEntryTest::newAsksForAChangedMessage_data() {
    QTest::addColumn<bool>("save");
    QTest::newRow("Yes") << true;
    QTest::newRow("No") << false;
}

void ReminderEntryTest::newAsksForAChangedMessage() {
    QFETCH(bool, save);
    PanelGround ground;
    ground.rt1().SetText(u"message"_s);
    ground.boxes.expect(u"Save changes?"_s, 4, save ? Answer::Yes : Answer::No);
    ground.press(u"imgNew"_s);
    QCOMPARE(ground.rt1a().Text().contains(u"message"_s), save);
    QCOMPARE(ground.rt1().Text(), QString());
}

void ReminderEntryTest::aTitleThatDoesNotFitIsReadFromItsBeginning() {
    PanelGround ground;
    ground.shown();
    QApplication::setActiveWindow(&ground.panel());
    auto& title = ground.control<QLineEdit>(u"txt1"_s);
    title.setFocus();
    title.selectAll();
    QTest::keyClicks(&title, QString(100, u'w'));
    QTest::keyClick(&title, Qt::Key_Return);
    QCOMPARE(title.cursorPosition(), 100);
    ground.rt1().setFocus();
    QCOMPARE(title.cursorPosition(), 0);
}

void ReminderEntryTest::newStartsOver() {
    PanelGround ground;
    ground.rt1().SetText(u"message"_s);
    ground.rt1().SetTag({});
    ground.rt1().setReadOnly(true);
    ground.rt1().hide();
    ground.control<QLineEdit>(u"txt1"_s).setText(u"Ann"_s);
    ground.press(u"imgNew"_s);
    QCOMPARE(ground.rt1().Text(), QString());
    QVERIFY(!ground.rt1().isReadOnly());
    QVERIFY(!ground.rt1().isHidden());
    QCOMPARE(ground.control<QLineEdit>(u"txt1"_s).text(), u"Title"_s);
    QVERIFY(ground.boxes.asked.isEmpty());
    // To clear the text is a change of it.
    QCOMPARE(ground.rt1().Tag(), u"promena"_s);
}

void ReminderEntryTest::newSetsSizeEightWhateverTheSettingHolds() {
    PanelGround ground;
    ground.settings.putSetting(u"RT1"_s, u"FS"_s, u"20"_s);
    QCOMPARE(ground.rt1().SelFontSize(), 20.0);
    ground.press(u"imgNew"_s);
    QCOMPARE(ground.rt1().SelFontSize(), 8.0);
}

void ReminderEntryTest::exitAsksForAChangedMessage_data() {
    newAsksForAChangedMessage_data();
}

void ReminderEntryTest::exitAsksForAChangedMessage() {
    QFETCH(bool, save);
    PanelGround ground;
    ground.program.state.StickerCount = 1; // so that the program goes on
    ground.rt1().SetText(u"message"_s);
    ground.boxes.expect(u"Save changes before you quit?"_s, 4, save ? Answer::Yes : Answer::No);
    ground.panel().exitClick();
    QCOMPARE(ground.rt1a().Text().contains(u"message"_s), save);
    QCOMPARE(ground.settings.setting(u"RT1"_s, u"FN"_s, {}).toString(), u"Arial"_s);
}

void ReminderEntryTest::exitAsksNothingWhileAnAlarmIsSet() {
    PanelGround ground;
    ground.program.state.alarmArmed = true;
    ground.program.state.alarmTimeText = u"11:00:00"_s;
    ground.panel().SetAlarm0();
    ground.rt1().SetText(u"message"_s);
    ground.boxes.answer(Answer::Ok);
    ground.panel().exitClick();
    QCOMPARE(ground.boxes.asked.size(), 1);
    QVERIFY(ground.boxes.asked.first().text.startsWith(u"The alarm is set."_s));
    QCOMPARE(ground.store.valueCount(), 0);
}

void ReminderEntryTest::typingThenErasingAsksNothing() {
    PanelGround ground;
    ground.shown();
    QTest::keyClicks(&ground.rt1(), u"x"_s);
    QTest::keyClick(&ground.rt1(), Qt::Key_Backspace);
    QCOMPARE(ground.rt1().Tag(), u"promena"_s);
    QCOMPARE(ground.rt1().Text(), QString());
    ground.press(u"imgNew"_s);
    ground.program.state.StickerCount = 1; // so that the program goes on
    ground.panel().exitClick();
    QVERIFY(ground.boxes.asked.isEmpty());
}

void ReminderEntryTest::theFontDialogIsLoadedFromTheSelection() {
    PanelGround ground;
    RichTextBox& message = ground.rt1();
    message.SetText(u"message"_s);
    message.SetSelLength(7);
    message.SetSelItalic(true);
    message.SetSelFontName(u"Courier New"_s);
    message.SetSelFontSize(12);
    message.SetSelColor(0x00FF00);
    ground.dialogs.answerFont(std::nullopt);
    ground.press(u"Command2"_s);
    QCOMPARE(ground.dialogs.fonts.size(), 1);
    QCOMPARE(ground.dialogs.fonts.first(), (FontChoice{.italic = true,
                                                       .bold = false,
                                                       .name = u"Courier New"_s,
                                                       .size = 12,
                                                       .strikethrough = false,
                                                       .underline = false,
                                                       .colour = 0x00FF00}));
}

void ReminderEntryTest::eachEffectIsLoadedAndWrittenBack_data() {
    QTest::addColumn<int>("effect");
    QTest::newRow("italic") << 0;
    QTest::newRow("bold") << 1;
    QTest::newRow("strikethrough") << 2;
    QTest::newRow("underline") << 3;
}

void ReminderEntryTest::eachEffectIsLoadedAndWrittenBack() {
    QFETCH(int, effect);
    PanelGround ground;
    RichTextBox& message = ground.rt1();
    message.SetText(u"message"_s);
    message.SetSelLength(7);
    message.SetSelItalic(effect == 0);
    message.SetSelBold(effect == 1);
    message.SetSelStrikeThru(effect == 2);
    message.SetSelUnderline(effect == 3);
    // What comes up is turned round: each effect that was on goes off, and the others come on.
    ground.dialogs.answerFont(FontChoice{.italic = effect != 0,
                                         .bold = effect != 1,
                                         .name = u"Arial"_s,
                                         .size = 8,
                                         .strikethrough = effect != 2,
                                         .underline = effect != 3});
    ground.press(u"Command2"_s);
    const FontChoice& shown = ground.dialogs.fonts.constFirst();
    QCOMPARE(shown.italic, effect == 0);
    QCOMPARE(shown.bold, effect == 1);
    QCOMPARE(shown.strikethrough, effect == 2);
    QCOMPARE(shown.underline, effect == 3);
    QCOMPARE(message.SelItalic(), effect != 0);
    QCOMPARE(message.SelBold(), effect != 1);
    QCOMPARE(message.SelStrikeThru(), effect != 2);
    QCOMPARE(message.SelUnderline(), effect != 3);
}

void ReminderEntryTest::theChosenFontGoesToTheSelectionAndToTheListsCaret() {
    PanelGround ground;
    ground.shown();
    RichTextBox& message = ground.rt1();
    message.SetText(u"message"_s);
    message.SetSelLength(7);
    ground.dialogs.answerFont(chosen());
    ground.press(u"Command2"_s);
    QCOMPARE(message.SelText(), u"message"_s);
    QCOMPARE(message.SelItalic(), true);
    QCOMPARE(message.SelBold(), true);
    QCOMPARE(message.SelFontName(), u"Courier New"_s);
    QCOMPARE(message.SelFontSize(), 14.0);
    QCOMPARE(message.SelStrikeThru(), true);
    QCOMPARE(message.SelUnderline(), true);
    QCOMPARE(message.SelColor(), 0x0000FFu);
    QCOMPARE(ground.rt1a().SelFontName(), u"Courier New"_s);
    QCOMPARE(ground.rt1a().SelFontSize(), 14.0);
    QCOMPARE(ground.rt1a().SelBold(), false);
    QCOMPARE(ground.panel().focusWidget(), &message);
}

void ReminderEntryTest::aCancelledFontDialogChangesNothing() {
    PanelGround ground;
    RichTextBox& message = ground.rt1();
    message.SetText(u"message"_s);
    message.SetSelFontName(u"Courier New"_s);
    const QByteArray before = message.TextRTF();
    const auto listFont = ground.rt1a().SelFontName();
    ground.dialogs.answerFont(std::nullopt);
    ground.press(u"Command2"_s);
    QCOMPARE(message.TextRTF(), before);
    QCOMPARE(ground.rt1a().SelFontName(), listFont);
    QVERIFY(ground.boxes.asked.isEmpty());
}

void ReminderEntryTest::aMixedSelectionShowsTheDialogAndAppliesNothing() {
    PanelGround ground;
    RichTextBox& message = ground.rt1();
    selectMixed(message);
    const QByteArray before = message.TextRTF();
    ground.dialogs.answerFont(chosen());
    ground.press(u"Command2"_s);
    QCOMPARE(ground.dialogs.fonts.size(), 1);
    QCOMPARE(message.TextRTF(), before);
    QVERIFY(ground.rt1a().SelFontName() != u"Courier New"_s);
}

void ReminderEntryTest::aMixedSelectionAndCancelEndSilently() {
    PanelGround ground;
    selectMixed(ground.rt1());
    ground.dialogs.answerFont(std::nullopt);
    ground.press(u"Command2"_s);
    QCOMPARE(ground.dialogs.fonts.size(), 1);
    QVERIFY(ground.boxes.asked.isEmpty());
}

ORVALIS_TEST_MAIN_WITH(QApplication, ReminderEntryTest)
#include "reminder_entry_test.moc"
