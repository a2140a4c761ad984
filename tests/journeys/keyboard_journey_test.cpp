// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "keyboard_walk.h"

#include "support/test_main.h"

#include <QCoreApplication>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;
using namespace orvalis::test;

/// The main window, the Reminder panel, stickers and the tray by the keyboard alone.
class KeyboardJourneyTest : public KeyboardWalk {
    Q_OBJECT
private slots:
    void init() { begin(); }
    void cleanup() { end(); }
    void theMainWindowLeadsToItsMenusDialogsAndPanels();
    void aMessageWithAReminderIsWrittenFoundAndSaved();
    void theListsAreClearedAndTheWeekIsSaved();
    void anAlarmIsSetAndStopped();
    void aStickerIsMadeWrittenPinnedAndClosed();
    void everyEntryOfTheTrayMenuIsChosen();

private:
    bool openReminder() { return openPanel(u"imgopen1"_s, u"frmnotes1/rt1"_s); }
    bool setAlarm();
    bool chooseInTray(const QString& entry);
};

bool KeyboardJourneyTest::setAlarm() {
    if (!program().waitAtRest(u"frmnotes/imgSet"_s).visible ||
        !press(u"frmnotes/imgSet"_s, u"Return"_s) || !program().waitVisible(u"frmAlSet"_s) ||
        !write(u"frmAlSet/Combo1"_s, u"23"_s) || !program().tabTo(u"frmAlSet/rt1"_s))
        return false;
    type(u"Tea"_s);
    key(u"ctrl+Return"_s);
    return waitGone(u"frmAlSet"_s) && waitText(u"frmnotes/lblAlarm"_s, u"23:00:00"_s);
}

/// A tray of icons has no keys of its own; the menu that it brings up has.
bool KeyboardJourneyTest::chooseInTray(const QString& entry) {
    return program().click(u"QSystemTrayIconSys"_s, 3) && program().waitVisible(u"mnuPopup"_s) &&
           program().chooseByKeys(u"mnuPopup"_s, entry);
}

void KeyboardJourneyTest::theMainWindowLeadsToItsMenusDialogsAndPanels() {
    QVERIFY(press(u"frmnotes/imgHelp"_s));
    QVERIFY(program().waitVisible(u"mnuhelp"_s));
    const QRect menu = control(u"mnuhelp"_s).rect;
    const QRect button = control(u"frmnotes/imgHelp"_s).rect;
    QVERIFY(qAbs(menu.top() - button.bottom()) <= 4);
    key(u"o"_s);
    QVERIFY(waitFocus(u"frmOptions/Option1(1)"_s));
    key(u"Up"_s);
    QVERIFY(waitFocus(u"frmOptions/Option1(0)"_s));
    QVERIFY(press(u"frmOptions/optSort(0)"_s, u"Right"_s));
    QVERIFY(waitFocus(u"frmOptions/optSort(1)"_s));
    key(u"Return"_s);
    QVERIFY(waitGone(u"frmOptions"_s));
    QFile settings(program().configFolder() + u"/orvalis/orvalis.ini"_s);
    QVERIFY(waitUntil([&] { return settings.exists(); }, 5000));
    QVERIFY(settings.open(QIODevice::ReadOnly));
    const QByteArray written = settings.readAll();
    QVERIFY2(written.contains("Player1=True") && written.contains("2nd=True"), written);

    // Again, and left as it was.
    QVERIFY(chooseHelp(u"o"_s));
    QVERIFY(waitFocus(u"frmOptions/Option1(0)"_s));
    key(u"Down"_s);
    QVERIFY(cancel(u"frmOptions"_s));

    QVERIFY(chooseHelp(u"a"_s));
    QVERIFY(program().waitVisible(u"frmAbout"_s));
    QVERIFY(cancel(u"frmAbout"_s));

    // From panel to panel by their names, and out of the program from there.
    QVERIFY(press(u"frmnotes/imgopen1"_s, u"Return"_s));
    QVERIFY(waitFocus(u"frmnotes1/rt1"_s));
    QVERIFY(press(u"frmnotes1/lblNot"_s));
    QVERIFY(waitFocus(u"frmnotes2/rt1"_s));
    QVERIFY(press(u"frmnotes2/lblPass"_s, u"Return"_s));
    QVERIFY(program().waitVisible(u"frmnotes4"_s));
    QVERIFY(press(u"frmnotes4/imgExit"_s));
    QVERIFY(program().waitForEnd());
}

void KeyboardJourneyTest::aMessageWithAReminderIsWrittenFoundAndSaved() {
    QVERIFY(openReminder());
    QVERIFY(write(u"frmnotes1/txt1"_s, u"Garden"_s));
    QVERIFY(program().tabTo(u"frmnotes1/rt1"_s));
    type(u"Water the roses"_s);
    QVERIFY(press(u"frmnotes1/chkTop"_s));
    QVERIFY(press(u"frmnotes1/chkRemind"_s));
    QVERIFY(waitFocus(u"frmnotes1/Combo1"_s));
    key(u"ctrl+a"_s);
    type(u"11"_s);
    QVERIFY(write(u"frmnotes1/Combo2"_s, u"30"_s));
    QVERIFY(program().tabTo(u"frmnotes1/rtMs2"_s));
    type(u"Fetch the can"_s);
    QVERIFY(press(u"frmnotes1/chkSound"_s, u"Return"_s));
    QVERIFY(waitFocus(u"frmnotes1/rt1"_s));

    key(u"ctrl+s"_s);
    QVERIFY(waitUntil(
        [&] {
            return program().fileBytes(u"tmp2.brf"_s) ==
                   " 3  1 \r\n\r\nSaturday, March 14, 2026/11:30:00\r\nFetch the can\r\n";
        },
        8000));
    QVERIFY(waitFile(u"Vazno.rtf"_s, "Water the roses"));

    // The sheets; what is typed into a list is saved by the key of its sheet.
    key(u"ctrl+1"_s);
    QVERIFY(waitFocus(u"frmnotes1/MS3"_s));
    key(u"ctrl+2"_s);
    QVERIFY(waitFocus(u"frmnotes1/MS1"_s));
    key(u"Down Down"_s);
    type(u"!"_s);
    key(u"ctrl+s"_s);
    QVERIFY(waitFile(u"tmp1.brf"_s, "Water the roses!"));
    key(u"ctrl+3"_s);
    QVERIFY(waitFocus(u"frmnotes1/rt1a"_s));

    // Found, and found no more.
    key(u"ctrl+f"_s);
    QVERIFY(waitFocus(u"frmnotes1/Text1"_s));
    type(u"roses"_s);
    key(u"Return"_s);
    QVERIFY(waitFocus(u"frmnotes1/rt1a"_s));
    key(u"F3"_s);
    QVERIFY(answerBox(u"String not found."_s));
    key(u"Escape"_s);
    QVERIFY(waitFocus(u"frmnotes1/rt1"_s));

    // A date by the arrow keys.
    QVERIFY(press(u"frmnotes1/chkRemind"_s));
    QVERIFY(waitFocus(u"frmnotes1/Combo1"_s));
    QVERIFY(program().tabTo(u"frmnotes1/qt_calendar_calendarview"_s));
    QVERIFY(control(u"frmnotes1/Label9"_s).text.contains(u"14"));
    key(u"Right Return"_s);
    QVERIFY(waitUntil([&] { return control(u"frmnotes1/Label9"_s).text.contains(u"15"); }, 8000));
    QVERIFY(press(u"frmnotes1/Combo2"_s, u"Escape"_s));
    QVERIFY(waitFocus(u"frmnotes1/rt1"_s));
}

void KeyboardJourneyTest::theListsAreClearedAndTheWeekIsSaved() {
    QVERIFY(openReminder());
    type(u"Water the roses"_s);
    key(u"ctrl+s"_s);
    QVERIFY(waitFile(u"Vazno.rtf"_s, "Water the roses"));
    key(u"ctrl+3"_s);
    QVERIFY(waitFocus(u"frmnotes1/rt1a"_s));
    QVERIFY(control(u"frmnotes1/rt1a"_s).text.contains(u"Water the roses"));
    key(u"Menu"_s);
    QVERIFY(program().waitVisible(u"mnibrisi"_s));
    QVERIFY(cancel(u"mnibrisi"_s));

    key(u"ctrl+4"_s);
    QVERIFY(waitFocus(u"frmnotes1/rt2"_s));
    key(u"ctrl+n"_s);
    QVERIFY(waitUntil([&] { return control(u"frmnotes1/rt2"_s).text.contains(u"Monday"); }, 8000));
    key(u"ctrl+End"_s);
    type(u"Harbour"_s);
    key(u"ctrl+s"_s);
    QVERIFY(waitFile(u"weekly.rtf"_s, "Harbour"));
    key(u"ctrl+shift+s"_s);
    QVERIFY(answerFileDialog(program().folder() + u"/week.rtf"_s));
    QVERIFY(waitFile(u"week.rtf"_s, "Harbour"));
}

void KeyboardJourneyTest::anAlarmIsSetAndStopped() {
    QVERIFY(setAlarm());
    QVERIFY(press(u"frmnotes/imgStop"_s));
    QVERIFY(waitText(u"frmnotes/lblAlarm"_s, QString()));
    QVERIFY(waitFocus(u"frmnotes/imgSet"_s));
    key(u"space"_s);
    QVERIFY(program().waitVisible(u"frmAlSet"_s));
    key(u"ctrl+o"_s);
    QVERIFY(program().waitVisible(u"FileDialog"_s));
    QVERIFY(cancel(u"FileDialog"_s));
    QVERIFY(answerBox(u"File not found."_s));
    QVERIFY(cancel(u"frmAlSet"_s));
}

void KeyboardJourneyTest::aStickerIsMadeWrittenPinnedAndClosed() {
    QVERIFY(openReminder());
    QVERIFY(press(u"frmnotes1/imgNot"_s));
    QVERIFY(waitFocus(u"frmstick/Text1"_s));
    type(u"milk"_s);
    QVERIFY(waitText(u"frmstick/Text1"_s, u"milk"_s));
    QVERIFY(press(u"frmstick/imgOff"_s));
    QVERIFY(waitFocus(u"frmstick/imgOn"_s));
    key(u"ctrl+n"_s);
    QVERIFY(waitFocus(u"xn/Text1"_s));
    key(u"ctrl+d"_s);
    QVERIFY(program().waitVisible(u"FontDialog"_s));
    QVERIFY(cancel(u"FontDialog"_s));
    key(u"ctrl+w"_s);
    QVERIFY(waitGone(u"xn"_s));
    QVERIFY(control(u"frmstick"_s).visible);
}

void KeyboardJourneyTest::everyEntryOfTheTrayMenuIsChosen() {
    QVERIFY(setAlarm());
    QVERIFY(press(u"frmnotes/imgMini"_s));
    QVERIFY(waitGone(u"frmnotes"_s));

    QVERIFY(chooseInTray(u"Exit"_s));
    QVERIFY(answerBox(u"The alarm is set.\nDisable alarm before you quit."_s));
    QVERIFY(chooseInTray(u"Options"_s));
    QVERIFY(program().waitVisible(u"frmOptions"_s));
    QVERIFY(cancel(u"frmOptions"_s));
    QVERIFY(chooseInTray(u"Create Sticker"_s));
    QVERIFY(waitFocus(u"frmstick/Text1"_s));
    type(u"milk"_s);
    QVERIFY(waitText(u"frmstick/Text1"_s, u"milk"_s));
    QVERIFY(chooseInTray(u"Disable Alarm"_s));
    QVERIFY(chooseInTray(u"Show Orvalis"_s));
    QVERIFY(program().waitVisible(u"frmnotes"_s));
    QVERIFY(waitText(u"frmnotes/lblAlarm"_s, QString()));

    QVERIFY(press(u"frmnotes/imgMini"_s));
    QVERIFY(waitGone(u"frmnotes"_s));
    const QString question = u"This will close all created stickers. Continue?"_s;
    QVERIFY(chooseInTray(u"Exit"_s));
    QVERIFY(answerBox(question, u"Right Return"_s));
    QVERIFY(program().isRunning());
    QVERIFY(chooseInTray(u"Exit"_s));
    QVERIFY(answerBox(question));
    QVERIFY(program().waitForEnd());
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, KeyboardJourneyTest)
#include "keyboard_journey_test.moc"
