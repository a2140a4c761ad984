// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "keyboard_walk.h"

#include "support/test_main.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;
using namespace orvalis::test;

/// Notes, letters, passwords, addresses and the manual by the keyboard alone.
class KeyboardPanelsJourneyTest : public KeyboardWalk {
    Q_OBJECT
private slots:
    void init() { begin(); }
    void cleanup() { end(); }
    void aNoteIsWrittenWithALetterFoundInAndSaved();
    void aTextIsScrambledAndTheProgramGoesToTheTray();
    void contactsAreAddedFoundAndDeleted();
    void contactsAreGatheredFoundReplacedAndSaved();
    void theManualIsSearched();

private:
    bool openAddressBook();
    bool addContact(const QString& first, const QString& second);
    bool shows(const QString& first) { return waitText(u"frmnotes3/Text1"_s, first); }
};

void KeyboardPanelsJourneyTest::aNoteIsWrittenWithALetterFoundInAndSaved() {
    QVERIFY(openPanel(u"imgopen2"_s, u"frmnotes2/rt1"_s));
    type(u"Dear Anna, "_s);
    key(u"ctrl+a ctrl+b"_s);
    QVERIFY(waitUntil([&] { return control(u"frmnotes2/Toolbar1(5)"_s).checked; }, 8000));
    QVERIFY(waitFocus(u"frmnotes2/rt1"_s));
    key(u"ctrl+End"_s);
    // A tool is pressed like the pictures are.
    QVERIFY(press(u"frmnotes2/Toolbar2(14)"_s, u"Return"_s));
    QVERIFY(waitFocus(u"frmnotes2/rt1"_s));
    QVERIFY(control(u"frmnotes2/Toolbar2(14)"_s).checked);

    QVERIFY(press(u"frmnotes2/imgFind"_s, u"Return"_s));
    QVERIFY(waitFocus(u"frmpisma/TV1"_s));
    key(u"Down Down"_s);
    QVERIFY(waitUntil([&] { return control(u"frmpisma"_s).title == u"Example 1"; }, 8000));
    QVERIFY(program().tabTo(u"frmpisma/rtp"_s));
    key(u"ctrl+Home shift+End ctrl+Return"_s);
    QVERIFY(waitText(u"frmnotes2/rt1"_s, u"Dear Anna, Cover Letter, Example 1"_s));
    QVERIFY(cancel(u"frmpisma"_s));

    QVERIFY(program().tabTo(u"frmnotes2/rt1"_s));
    key(u"ctrl+f"_s);
    QVERIFY(waitFocus(u"frmnotes2/Text1"_s));
    type(u"Letter"_s);
    QVERIFY(program().tabTo(u"frmnotes2/Text2"_s));
    type(u"Note"_s);
    QVERIFY(press(u"frmnotes2/Text1"_s, u"Return"_s));
    QVERIFY(waitFocus(u"frmnotes2/rt1"_s));
    key(u"ctrl+h"_s);
    QVERIFY(answerBox(u"String not found."_s));
    QVERIFY(waitText(u"frmnotes2/rt1"_s, u"Dear Anna, Cover Note, Example 1"_s));
    QVERIFY(cancel(u"frmnotes2/Frame1"_s));
    QVERIFY(waitFocus(u"frmnotes2/rt1"_s));

    key(u"ctrl+End F5"_s);
    QVERIFY(program().waitVisible(u"mnudate"_s));
    key(u"d"_s);
    const QString dated = u"Dear Anna, Cover Note, Example 1Saturday, March 14, 2026"_s;
    QVERIFY(waitText(u"frmnotes2/rt1"_s, dated));

    key(u"ctrl+s"_s);
    QVERIFY(answerFileDialog(program().folder() + u"/anna.rtf"_s));
    QVERIFY(waitText(u"frmnotes2/Label3"_s, u"anna.rtf"_s));
    QVERIFY(waitFile(u"anna.rtf"_s, "Cover Note"));
}

void KeyboardPanelsJourneyTest::aTextIsScrambledAndTheProgramGoesToTheTray() {
    QVERIFY(press(u"frmnotes/imgopen4"_s));
    QVERIFY(program().waitVisible(u"frmnotes4"_s));
    QVERIFY(program().tabTo(u"frmnotes4/txtText"_s));
    type(u"the harbour"_s);
    QVERIFY(program().tabTo(u"frmnotes4/txtPW"_s));
    type(u"rose"_s);
    // Some desktops have lines take this key for themselves.
    key(u"ctrl+e"_s);
    QVERIFY(
        waitUntil([&] { return control(u"frmnotes4/txtText"_s).text != u"the harbour"; }, 8000));
    key(u"ctrl+d"_s);
    QVERIFY(waitText(u"frmnotes4/txtText"_s, u"the harbour"_s));
    QVERIFY(press(u"frmnotes4/imgMini"_s));
    QVERIFY(waitGone(u"frmnotes4"_s));
    QVERIFY(program().isRunning());
}

bool KeyboardPanelsJourneyTest::openAddressBook() {
    return press(u"frmnotes/imgopen3"_s) &&
           answerBox(u"Data file address1.dat not found. Click on Add and create a new address "
                     "data base."_s) &&
           program().waitVisible(u"frmnotes3/Text1"_s);
}

bool KeyboardPanelsJourneyTest::addContact(const QString& first, const QString& second) {
    return write(u"frmnotes3/Text1"_s, first) && write(u"frmnotes3/Text2"_s, second) &&
           press(u"frmnotes3/imgAdd"_s) && answerBox(u"Item added."_s);
}

void KeyboardPanelsJourneyTest::contactsAreAddedFoundAndDeleted() {
    QVERIFY(openAddressBook());
    QVERIFY(addContact(u"Bob"_s, u"Kay"_s));
    QVERIFY(press(u"frmnotes3/imgNew"_s, u"Return"_s));
    QVERIFY(waitText(u"frmnotes3/Text12"_s, u"http://"_s));
    QVERIFY(addContact(u"Ann"_s, u"Lee"_s));
    QVERIFY(press(u"frmnotes3/imgSort"_s));
    QVERIFY(answerBox(u"Items sorted by First Name."_s));
    QVERIFY(press(u"frmnotes3/Command2"_s));
    QVERIFY(shows(u"Ann"_s));
    QVERIFY(press(u"frmnotes3/Command4"_s, u"Return"_s));
    QVERIFY(shows(u"Bob"_s));
    QVERIFY(press(u"frmnotes3/Command3"_s));
    QVERIFY(shows(u"Ann"_s));
    QVERIFY(press(u"frmnotes3/Command5"_s));
    QVERIFY(shows(u"Bob"_s));

    QVERIFY(press(u"frmnotes3/Combo2"_s, u"Down"_s));
    QVERIFY(waitUntil([&] { return control(u"frmnotes3/Combo3"_s).enabled; }, 8000));
    QVERIFY(program().tabTo(u"frmnotes3/Combo3"_s));
    type(u"ann"_s);
    key(u"Return"_s);
    QVERIFY(shows(u"Ann"_s));

    QVERIFY(press(u"frmnotes3/Command2"_s));
    QVERIFY(write(u"frmnotes3/Text9"_s, u"555 0123"_s));
    QVERIFY(press(u"frmnotes3/imgSave"_s));
    QVERIFY(answerBox(u"Changes saved."_s));
    QVERIFY(waitFile(u"address1.dat"_s, "\"555 0123\"\r\n"));
    QVERIFY(press(u"frmnotes3/imgAdresa1"_s));
    QVERIFY(program().waitVisible(u"FileDialog"_s));
    QVERIFY(cancel(u"FileDialog"_s));
    QVERIFY(press(u"frmnotes3/imgBack"_s));
    QVERIFY(answerFileDialog(program().folder() + u"/backup.dat"_s));
    QVERIFY(waitFile(u"backup.dat"_s, "\"555 0123\"\r\n"));

    QVERIFY(press(u"frmnotes3/imgDel"_s));
    QVERIFY(answerBox(u"Do you want to continue?"_s, u"alt+y"_s));
    QVERIFY(shows(u"Bob"_s));
}

void KeyboardPanelsJourneyTest::contactsAreGatheredFoundReplacedAndSaved() {
    QVERIFY(openAddressBook());
    QVERIFY(addContact(u"Ann"_s, u"Lee"_s));
    QVERIFY(press(u"frmnotes3/imgPrint"_s));
    QVERIFY(program().waitVisible(u"mnustampa"_s));
    key(u"c"_s);
    QVERIFY(waitFocus(u"frmPrint/rtb"_s));
    const auto page = [&] { return control(u"frmPrint/rtb"_s).text; };
    QVERIFY(waitUntil([&] { return page().contains(u"Ann"); }, 8000));

    QVERIFY(press(u"frmPrint/tb1(add)"_s));
    QVERIFY(waitUntil([&] { return page().count(u"Ann"_s) == 2; }, 8000));
    QVERIFY(press(u"frmPrint/tb1(find)"_s, u"Return"_s));
    QVERIFY(waitFocus(u"frmFind/Text1"_s));
    type(u"Ann"_s);
    key(u"Return"_s);
    // A hit is shown on the page, which has the keyboard then.
    QVERIFY(waitUntil([&] { return control(u"frmFind/ReplaceAllButton"_s).enabled; }, 8000));
    QVERIFY(waitFocus(u"frmPrint/rtb"_s));
    QVERIFY(press(u"frmPrint/tb1(find)"_s));
    QVERIFY(waitFocus(u"frmFind/Text1"_s));
    QVERIFY(write(u"frmFind/Text2"_s, u"Eve"_s));
    QVERIFY(press(u"frmFind/ReplaceAllButton"_s));
    QVERIFY(answerBox(u"Replacing done."_s));
    QCOMPARE(page().count(u"Eve"_s), 2);
    QVERIFY(cancel(u"frmFind"_s));

    QVERIFY(press(u"frmPrint/tb1(font)"_s));
    QVERIFY(program().waitVisible(u"FontDialog"_s));
    QVERIFY(cancel(u"FontDialog"_s));
    QVERIFY(press(u"frmPrint/tb1(print)"_s));
    QVERIFY(program().waitVisible(u"PrintDialog"_s));
    QVERIFY(cancel(u"PrintDialog"_s));
    QVERIFY(press(u"frmPrint/tb1(save)"_s, u"Return"_s));
    QVERIFY(answerFileDialog(program().folder() + u"/page.txt"_s));
    QVERIFY(waitFile(u"page.txt"_s, "Eve"));
}

void KeyboardPanelsJourneyTest::theManualIsSearched() {
    QVERIFY(chooseHelp(u"c"_s));
    QVERIFY(waitFocus(u"helpViewer/helpSearch"_s));
    type(u"recovered"_s);
    QVERIFY(
        waitUntil([&] { return control(u"helpViewer/helpFindings"_s).rows.size() >= 2; }, 8000));
    QVERIFY(program().tabTo(u"helpViewer/helpFindings"_s));
    key(u"Down"_s);
    QVERIFY(waitUntil([&] { return control(u"helpViewer/helpPage"_s).text.contains(u"recovered"); },
                      8000));
    QVERIFY(cancel(u"helpViewer"_s));
    QVERIFY(waitFocus(u"frmnotes/imgHelp"_s));
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, KeyboardPanelsJourneyTest)
#include "keyboard_panels_journey_test.moc"
