// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/driven_program.h"

#include "support/test_main.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;

/// The whole program without a pointer: it lies in a corner, and only keys are pressed.
class KeyboardJourneyTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void theMainWindowLeadsToItsMenusDialogsAndPanels();
    void aMessageWithAReminderIsWrittenFoundAndSaved();
    void anAlarmIsSetAndStopped();
    void aStickerIsMadeWrittenPinnedAndClosed();
    void aNoteIsWrittenWithALetterFoundInAndSaved();
    void aTextIsScrambledAndTheProgramGoesToTheTray();
    void theManualIsSearched();

private:
    bool waitFocus(const QString& name) {
        return waitUntil([&] { return m_program->control(name).focused; }, 8000);
    }
    bool waitGone(const QString& name) {
        return waitUntil([&] { return !m_program->control(name).visible; }, 8000);
    }
    /// Goes to a control by Tab and presses it.
    bool press(const QString& name, const QString& key = QStringLiteral("space")) {
        if (!m_program->tabTo(name))
            return false;
        m_program->key(key);
        return true;
    }
    bool openPanel() {
        if (!m_program->waitVisible(u"frmnotes"_s) || !waitFocus(u"frmnotes/imgopen1"_s))
            return false;
        m_program->key(u"Tab"_s); // which marks the first picture
        return press(u"frmnotes/imgopen1"_s) && m_program->waitVisible(u"frmnotes1"_s) &&
               waitFocus(u"frmnotes1/rt1"_s);
    }

    std::unique_ptr<Stage> m_stage;
    std::unique_ptr<DrivenProgram> m_program;
};

void KeyboardJourneyTest::init() {
    m_stage = std::make_unique<Stage>(Stage::Plan{});
    QVERIFY2(m_stage->trouble().isEmpty(), qPrintable(m_stage->trouble()));
    m_program = std::make_unique<DrivenProgram>(*m_stage, QStringLiteral(ORVALIS_EXECUTABLE));
    m_program->setClock({QDate(2026, 3, 14), QTime(10, 24, 5), Qt::UTC});
    QVERIFY(m_program->clickAt({2, 2}));
    QVERIFY(m_program->start());
}

void KeyboardJourneyTest::cleanup() {
    m_program.reset();
    m_stage.reset();
}

void KeyboardJourneyTest::theMainWindowLeadsToItsMenusDialogsAndPanels() {
    QVERIFY(m_program->waitVisible(u"frmnotes"_s));
    QVERIFY(waitFocus(u"frmnotes/imgopen1"_s));
    m_program->key(u"Tab"_s);

    // The options, through the help menu.
    QVERIFY(press(u"frmnotes/imgHelp"_s));
    QVERIFY(m_program->waitVisible(u"mnuhelp"_s));
    const QRect menu = m_program->control(u"mnuhelp"_s).rect;
    const QRect button = m_program->control(u"frmnotes/imgHelp"_s).rect;
    QVERIFY(qAbs(menu.top() - button.bottom()) <= 4);
    m_program->key(u"o"_s);
    QVERIFY(m_program->waitVisible(u"frmOptions"_s));
    QVERIFY(waitFocus(u"frmOptions/Option1(1)"_s));
    m_program->key(u"Up"_s);
    QVERIFY(waitFocus(u"frmOptions/Option1(0)"_s));
    QVERIFY(press(u"frmOptions/optSort(0)"_s, u"Right"_s));
    QVERIFY(waitFocus(u"frmOptions/optSort(1)"_s));
    m_program->key(u"Return"_s);
    QVERIFY(waitGone(u"frmOptions"_s));
    QFile settings(m_program->configFolder() + u"/orvalis/orvalis.ini"_s);
    QVERIFY(waitUntil([&] { return settings.exists(); }, 5000));
    QVERIFY(settings.open(QIODevice::ReadOnly));
    const QByteArray written = settings.readAll();
    QVERIFY2(written.contains("Player1=True") && written.contains("2nd=True"), written);

    // Again, and left as it was.
    m_program->key(u"space"_s);
    QVERIFY(m_program->waitVisible(u"mnuhelp"_s));
    m_program->key(u"o"_s);
    QVERIFY(waitFocus(u"frmOptions/Option1(0)"_s));
    m_program->key(u"Down Escape"_s);
    QVERIFY(waitGone(u"frmOptions"_s));

    // The about box.
    m_program->key(u"space"_s);
    QVERIFY(m_program->waitVisible(u"mnuhelp"_s));
    m_program->key(u"a"_s);
    QVERIFY(m_program->waitVisible(u"frmAbout"_s));
    m_program->key(u"Escape"_s);
    QVERIFY(waitGone(u"frmAbout"_s));

    // A panel, and out of the program from there.
    QVERIFY(press(u"frmnotes/imgopen1"_s, u"Return"_s));
    QVERIFY(m_program->waitVisible(u"frmnotes1"_s));
    QVERIFY(press(u"frmnotes1/imgExit"_s));
    QVERIFY(m_program->waitForEnd());
}

void KeyboardJourneyTest::aMessageWithAReminderIsWrittenFoundAndSaved() {
    QVERIFY(openPanel());
    QVERIFY(press(u"frmnotes1/txt1"_s, u"ctrl+a"_s));
    m_program->type(u"Garden"_s);
    QVERIFY(m_program->tabTo(u"frmnotes1/rt1"_s));
    m_program->type(u"Water the roses"_s);
    QVERIFY(press(u"frmnotes1/chkTop"_s));
    QVERIFY(press(u"frmnotes1/chkRemind"_s));
    QVERIFY(waitFocus(u"frmnotes1/Combo1"_s));
    m_program->key(u"ctrl+a"_s);
    m_program->type(u"11"_s);
    QVERIFY(press(u"frmnotes1/Combo2"_s, u"ctrl+a"_s));
    m_program->type(u"30"_s);
    QVERIFY(m_program->tabTo(u"frmnotes1/rtMs2"_s));
    m_program->type(u"Fetch the can"_s);
    QVERIFY(m_program->tabTo(u"frmnotes1/chkSound"_s));
    m_program->key(u"Return"_s);
    QVERIFY(waitFocus(u"frmnotes1/rt1"_s));

    m_program->key(u"ctrl+s"_s);
    QVERIFY(waitUntil(
        [&] {
            return m_program->fileBytes(u"tmp2.brf"_s) ==
                   " 3  1 \r\n\r\nSaturday, March 14, 2026/11:30:00\r\nFetch the can\r\n";
        },
        8000));
    QVERIFY(m_program->fileBytes(u"Vazno.rtf"_s).contains("Water the roses"));

    // The sheets; what is typed into a list is saved by the key of its sheet.
    m_program->key(u"ctrl+1"_s);
    QVERIFY(waitFocus(u"frmnotes1/MS3"_s));
    m_program->key(u"ctrl+2"_s);
    QVERIFY(waitFocus(u"frmnotes1/MS1"_s));
    m_program->key(u"Down Down"_s);
    m_program->type(u"!"_s);
    m_program->key(u"ctrl+s"_s);
    QVERIFY(waitUntil(
        [&] { return m_program->fileBytes(u"tmp1.brf"_s).contains("Water the roses!"); }, 8000));
    m_program->key(u"ctrl+4"_s);
    QVERIFY(waitFocus(u"frmnotes1/rt2"_s));
    m_program->key(u"ctrl+3"_s);
    QVERIFY(waitFocus(u"frmnotes1/rt1a"_s));

    // Found, and found no more: the box is answered by a key too.
    m_program->key(u"ctrl+f"_s);
    QVERIFY(waitFocus(u"frmnotes1/Text1"_s));
    m_program->type(u"roses"_s);
    m_program->key(u"Return"_s);
    QVERIFY(waitFocus(u"frmnotes1/rt1a"_s));
    m_program->key(u"F3"_s);
    QVERIFY(waitUntil([&] { return m_program->messageBox().text == u"String not found."; }, 8000));
    m_program->key(u"Return"_s);
    QVERIFY(waitUntil([&] { return !m_program->messageBox().found; }, 8000));
    m_program->key(u"Escape"_s);
    QVERIFY(waitFocus(u"frmnotes1/rt1"_s));

    // A date by the arrow keys.
    QVERIFY(press(u"frmnotes1/chkRemind"_s));
    QVERIFY(waitFocus(u"frmnotes1/Combo1"_s));
    QVERIFY(m_program->tabTo(u"frmnotes1/qt_calendar_calendarview"_s));
    QVERIFY(m_program->control(u"frmnotes1/Label9"_s).text.contains(u"14"));
    m_program->key(u"Right Return"_s);
    QVERIFY(waitUntil(
        [&] { return m_program->control(u"frmnotes1/Label9"_s).text.contains(u"15"); }, 8000));
    QVERIFY(press(u"frmnotes1/Combo2"_s, u"Escape"_s));
    QVERIFY(waitFocus(u"frmnotes1/rt1"_s));
}

void KeyboardJourneyTest::anAlarmIsSetAndStopped() {
    QVERIFY(m_program->waitVisible(u"frmnotes"_s));
    QVERIFY(m_program->waitAtRest(u"frmnotes/imgSet"_s).visible);
    QVERIFY(press(u"frmnotes/imgSet"_s, u"Return"_s));
    QVERIFY(m_program->waitVisible(u"frmAlSet"_s));
    QVERIFY(press(u"frmAlSet/Combo1"_s, u"ctrl+a"_s));
    m_program->type(u"23"_s);
    QVERIFY(m_program->tabTo(u"frmAlSet/rt1"_s));
    m_program->type(u"Tea"_s);
    m_program->key(u"ctrl+Return"_s);
    QVERIFY(waitGone(u"frmAlSet"_s));
    QVERIFY(m_program->waitText(u"frmnotes/lblAlarm"_s, u"23:00:00"_s));
    QVERIFY(press(u"frmnotes/imgStop"_s));
    QVERIFY(m_program->waitText(u"frmnotes/lblAlarm"_s, QString()));
    QVERIFY(waitFocus(u"frmnotes/imgSet"_s));
    m_program->key(u"space"_s);
    QVERIFY(m_program->waitVisible(u"frmAlSet"_s));
    m_program->key(u"Escape"_s);
    QVERIFY(waitGone(u"frmAlSet"_s));
}

void KeyboardJourneyTest::aStickerIsMadeWrittenPinnedAndClosed() {
    QVERIFY(openPanel());
    QVERIFY(press(u"frmnotes1/imgNot"_s));
    QVERIFY(waitFocus(u"frmstick/Text1"_s));
    m_program->type(u"milk"_s);
    QVERIFY(m_program->waitText(u"frmstick/Text1"_s, u"milk"_s));
    QVERIFY(press(u"frmstick/imgOff"_s));
    QVERIFY(waitFocus(u"frmstick/imgOn"_s));
    m_program->key(u"ctrl+n"_s);
    QVERIFY(waitFocus(u"xn/Text1"_s));
    m_program->key(u"ctrl+d"_s);
    QVERIFY(m_program->waitVisible(u"FontDialog"_s));
    m_program->key(u"Escape"_s);
    QVERIFY(waitGone(u"FontDialog"_s));
    m_program->key(u"ctrl+w"_s);
    QVERIFY(waitGone(u"xn"_s));
    QVERIFY(m_program->control(u"frmstick"_s).visible);
}

void KeyboardJourneyTest::aNoteIsWrittenWithALetterFoundInAndSaved() {
    QVERIFY(m_program->waitVisible(u"frmnotes"_s));
    QVERIFY(waitFocus(u"frmnotes/imgopen1"_s));
    QVERIFY(press(u"frmnotes/imgopen2"_s));
    QVERIFY(m_program->waitVisible(u"frmnotes2"_s));
    QVERIFY(waitFocus(u"frmnotes2/rt1"_s));
    m_program->type(u"Dear Anna, "_s);
    m_program->key(u"ctrl+a ctrl+b"_s);
    QVERIFY(
        waitUntil([&] { return m_program->control(u"frmnotes2/Toolbar1(5)"_s).checked; }, 8000));
    QVERIFY(waitFocus(u"frmnotes2/rt1"_s));
    m_program->key(u"ctrl+End"_s);
    // A tool is pressed like the pictures are.
    QVERIFY(press(u"frmnotes2/Toolbar2(14)"_s, u"Return"_s));
    QVERIFY(waitFocus(u"frmnotes2/rt1"_s));
    QVERIFY(m_program->control(u"frmnotes2/Toolbar2(14)"_s).checked);

    QVERIFY(press(u"frmnotes2/imgFind"_s, u"Return"_s));
    QVERIFY(m_program->waitVisible(u"frmpisma"_s));
    QVERIFY(waitFocus(u"frmpisma/TV1"_s));
    m_program->key(u"Down Down"_s);
    QVERIFY(
        waitUntil([&] { return m_program->control(u"frmpisma"_s).title == u"Example 1"; }, 8000));
    QVERIFY(m_program->tabTo(u"frmpisma/rtp"_s));
    m_program->key(u"ctrl+Home shift+End ctrl+Return"_s);
    QVERIFY(m_program->waitText(u"frmnotes2/rt1"_s, u"Dear Anna, Cover Letter, Example 1"_s));
    m_program->key(u"Escape"_s);
    QVERIFY(waitGone(u"frmpisma"_s));

    QVERIFY(m_program->tabTo(u"frmnotes2/rt1"_s));
    m_program->key(u"ctrl+f"_s);
    QVERIFY(waitFocus(u"frmnotes2/Text1"_s));
    m_program->type(u"Letter"_s);
    QVERIFY(m_program->tabTo(u"frmnotes2/Text2"_s));
    m_program->type(u"Note"_s);
    QVERIFY(m_program->tabTo(u"frmnotes2/Text1"_s));
    m_program->key(u"Return"_s);
    QVERIFY(waitFocus(u"frmnotes2/rt1"_s));
    m_program->key(u"ctrl+h"_s);
    QVERIFY(waitUntil([&] { return m_program->messageBox().text == u"String not found."; }, 8000));
    m_program->key(u"Return"_s);
    QVERIFY(m_program->waitText(u"frmnotes2/rt1"_s, u"Dear Anna, Cover Note, Example 1"_s));
    QVERIFY(waitUntil([&] { return !m_program->messageBox().found; }, 8000));
    m_program->key(u"Escape"_s);
    QVERIFY(waitGone(u"frmnotes2/Frame1"_s));
    QVERIFY(waitFocus(u"frmnotes2/rt1"_s));

    m_program->key(u"ctrl+s"_s);
    QVERIFY(m_program->waitAtRest(u"FileDialog"_s).visible);
    m_program->type(m_program->folder() + u"/anna.rtf"_s);
    m_program->key(u"Return"_s);
    QVERIFY(m_program->waitText(u"frmnotes2/Label3"_s, u"anna.rtf"_s));
    QVERIFY(m_program->fileBytes(u"anna.rtf"_s).contains("Cover Note"));
}

void KeyboardJourneyTest::aTextIsScrambledAndTheProgramGoesToTheTray() {
    QVERIFY(m_program->waitVisible(u"frmnotes"_s));
    QVERIFY(waitFocus(u"frmnotes/imgopen1"_s));
    QVERIFY(press(u"frmnotes/imgopen4"_s));
    QVERIFY(m_program->waitVisible(u"frmnotes4"_s));
    QVERIFY(m_program->tabTo(u"frmnotes4/txtText"_s));
    m_program->type(u"the harbour"_s);
    QVERIFY(m_program->tabTo(u"frmnotes4/txtPW"_s));
    m_program->type(u"rose"_s);
    // Some desktops have lines take this key for themselves.
    m_program->key(u"ctrl+e"_s);
    QVERIFY(waitUntil(
        [&] { return m_program->control(u"frmnotes4/txtText"_s).text != u"the harbour"; }, 8000));
    m_program->key(u"ctrl+d"_s);
    QVERIFY(m_program->waitText(u"frmnotes4/txtText"_s, u"the harbour"_s));
    QVERIFY(press(u"frmnotes4/imgMini"_s));
    QVERIFY(waitGone(u"frmnotes4"_s));
    QVERIFY(m_program->isRunning());
}

void KeyboardJourneyTest::theManualIsSearched() {
    QVERIFY(m_program->waitVisible(u"frmnotes"_s));
    QVERIFY(waitFocus(u"frmnotes/imgopen1"_s));
    QVERIFY(press(u"frmnotes/imgHelp"_s));
    QVERIFY(m_program->waitVisible(u"mnuhelp"_s));
    m_program->key(u"c"_s);
    QVERIFY(m_program->waitVisible(u"helpViewer"_s));
    QVERIFY(waitFocus(u"helpViewer/helpSearch"_s));
    m_program->type(u"recovered"_s);
    QVERIFY(waitUntil(
        [&] { return m_program->control(u"helpViewer/helpFindings"_s).rows.size() >= 2; }, 8000));
    QVERIFY(m_program->tabTo(u"helpViewer/helpFindings"_s));
    m_program->key(u"Down"_s);
    QVERIFY(waitUntil(
        [&] { return m_program->control(u"helpViewer/helpPage"_s).text.contains(u"recovered"); },
        8000));
    m_program->key(u"Escape"_s);
    QVERIFY(waitGone(u"helpViewer"_s));
    QVERIFY(waitFocus(u"frmnotes/imgHelp"_s));
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, KeyboardJourneyTest)
#include "keyboard_journey_test.moc"
