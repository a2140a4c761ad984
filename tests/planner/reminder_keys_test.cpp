// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "panel_ground.h"

#include <QSignalSpy>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

/// What the keyboard does on the Reminder panel beside what its controls do.
class ReminderKeysTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_ground.reset(); }
    void controlAndANumberShowsASheetAndGoesThere();
    void controlAndSSavesThePageThatIsWorkedOn();
    void controlAndSDoesNothingWhileSavingIsDisabled();
    void controlAndDSetsTheFontOfThePageThatIsWorkedOn();
    void controlAndNBeginsThePageThatIsWorkedOnAnew();
    void aWeekThatIsBegunAnewKeepsTheKeyboard();
    void theWeeklySheetOpensAndSavesAsByKey();
    void controlAndFFindsInTheToDoList();
    void enterInTheReminderIsOkAndEscapeIsCancel_data();
    void enterInTheReminderIsOkAndEscapeIsCancel();
    void inTheEventMessageEnterBeginsALineAndWithControlItIsOk();
    void outsideOfTheReminderEnterAndEscapeLeaveItAlone();
    void escapeLeavesFinding();
    void tabLeavesEveryTextAndControlAndTabWritesOne();
    void theKeyboardReachesAllButTheButtonsThatHaveKeys();

private:
    void key(int key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(m_ground->panel().focusWidget(), static_cast<Qt::Key>(key), held);
    }
    void focus(const QString& name) { m_ground->control<QWidget>(name).setFocus(); }
    /// How often a button or picture is pressed while the work is done.
    template <class Work>
    int presses(const QString& name, const Work& work) {
        auto& control = m_ground->control<QWidget>(name);
        QSignalSpy spy(&control, SIGNAL(Click()));
        work();
        return static_cast<int>(spy.count());
    }

    std::unique_ptr<PanelGround> m_ground;
};

void ReminderKeysTest::init() {
    m_ground = std::make_unique<PanelGround>();
    QVERIFY(QTest::qWaitForWindowActive(&m_ground->shown()));
}

void ReminderKeysTest::controlAndANumberShowsASheetAndGoesThere() {
    const QStringList contents{u"MS3"_s, u"MS1"_s, u"rt1a"_s, u"rt2"_s};
    for (int i = 0; i < 4; ++i) {
        for (const QString& from : {u"rt1"_s, u"txt1"_s, contents[(i + 1) % 4]}) {
            m_ground->press(u"cmdmenu(%1)"_s.arg((i + 1) % 4));
            focus(from);
            key(Qt::Key_1 + i, Qt::ControlModifier);
            QCOMPARE(m_ground->panel().focusWidget()->objectName(), contents[i]);
            QVERIFY(m_ground->isUp(u"OwnerFrame(%1)"_s.arg(i)));
            QCOMPARE(m_ground->control<GGCommand>(u"cmdmenu(%1)"_s.arg(i)).ForeColor(), 0xC00000u);
        }
    }
}

void ReminderKeysTest::controlAndSSavesThePageThatIsWorkedOn() {
    for (const QString& from : {u"txt1"_s, u"rt1"_s, u"chkTop"_s}) {
        focus(from);
        QCOMPARE(presses(u"imgSave"_s, [&] { key(Qt::Key_S, Qt::ControlModifier); }), 1);
    }
    const QList<QPair<QString, QString>> saves{{u"MS3"_s, u"imgso"_s},
                                               {u"MS1"_s, u"imgsoo"_s},
                                               {u"rt1a"_s, u"imstodo"_s},
                                               {u"rt2"_s, u"imgoe"_s}};
    for (int i = 0; i < 4; ++i) {
        m_ground->press(u"cmdmenu(%1)"_s.arg(i));
        focus(saves[i].first);
        QSignalSpy messages(&m_ground->control<Image>(u"imgSave"_s), &Image::Click);
        QCOMPARE(presses(saves[i].second, [&] { key(Qt::Key_S, Qt::ControlModifier); }), 1);
        QCOMPARE(messages.count(), 0);
    }
}

void ReminderKeysTest::controlAndSDoesNothingWhileSavingIsDisabled() {
    m_ground->tick(u"chkRemind"_s);
    QCOMPARE(presses(u"imgSave"_s, [&] { key(Qt::Key_S, Qt::ControlModifier); }), 0);
}

void ReminderKeysTest::controlAndDSetsTheFontOfThePageThatIsWorkedOn() {
    focus(u"rt1"_s);
    m_ground->dialogs.answerFont(std::nullopt);
    QCOMPARE(presses(u"Command2"_s, [&] { key(Qt::Key_D, Qt::ControlModifier); }), 1);
    m_ground->press(u"cmdmenu(3)"_s);
    focus(u"rt2"_s);
    m_ground->dialogs.answerFont(std::nullopt);
    QCOMPARE(presses(u"Button6"_s, [&] { key(Qt::Key_D, Qt::ControlModifier); }), 1);
    m_ground->press(u"cmdmenu(2)"_s);
    focus(u"rt1a"_s);
    QCOMPARE(presses(
                 u"Command2"_s, [&] { key(Qt::Key_D, Qt::ControlModifier); }),
             0);
    QCOMPARE(presses(u"Button6"_s, [&] { key(Qt::Key_D, Qt::ControlModifier); }), 0);
}

void ReminderKeysTest::controlAndNBeginsThePageThatIsWorkedOnAnew() {
    focus(u"txt1"_s);
    QCOMPARE(presses(u"imgNew"_s, [&] { key(Qt::Key_N, Qt::ControlModifier); }), 1);
    m_ground->press(u"cmdmenu(3)"_s);
    focus(u"rt2"_s);
    QSignalSpy messages(&m_ground->control<Image>(u"imgNew"_s), &Image::Click);
    QCOMPARE(presses(u"Button4"_s, [&] { key(Qt::Key_N, Qt::ControlModifier); }), 1);
    QCOMPARE(messages.count(), 0);
}

void ReminderKeysTest::aWeekThatIsBegunAnewKeepsTheKeyboard() {
    key(Qt::Key_4, Qt::ControlModifier);
    key(Qt::Key_N, Qt::ControlModifier);
    QVERIFY(m_ground->control<RichTextBox>(u"rt2"_s).Text().contains(u"Monday"));
    QCOMPARE(m_ground->panel().focusWidget()->objectName(), u"rt2"_s);
}

void ReminderKeysTest::theWeeklySheetOpensAndSavesAsByKey() {
    const auto openPresses = [&] {
        return presses(
            u"imgOpen"_s, [&] { key(Qt::Key_O, Qt::ControlModifier); });
    };
    const auto saveAsPresses = [&] {
        return presses(u"Button5"_s,
                       [&] { key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier); });
    };
    focus(u"rt1"_s);
    QCOMPARE(openPresses(), 0);
    QCOMPARE(saveAsPresses(), 0);
    m_ground->press(u"cmdmenu(3)"_s);
    focus(u"rt2"_s);
    m_ground->dialogs.answerOpen(std::nullopt);
    QCOMPARE(openPresses(), 1);
    m_ground->dialogs.answerSave(std::nullopt);
    QCOMPARE(saveAsPresses(), 1);
}

void ReminderKeysTest::controlAndFFindsInTheToDoList() {
    focus(u"rt1"_s);
    key(Qt::Key_F, Qt::ControlModifier);
    QVERIFY(m_ground->isUp(u"Frame1"_s));
    QCOMPARE(m_ground->panel().focusWidget()->objectName(), u"Text1"_s);
}

void ReminderKeysTest::enterInTheReminderIsOkAndEscapeIsCancel_data() {
    QTest::addColumn<QString>("focused");
    for (const auto& name : {u"Combo1"_s, u"Combo2"_s, u"chkSound"_s})
        QTest::newRow(qPrintable(name)) << name;
}

void ReminderKeysTest::enterInTheReminderIsOkAndEscapeIsCancel() {
    QFETCH(QString, focused);
    for (const int end : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        m_ground->rt1().SetText(u"message"_s);
        m_ground->tick(u"chkRemind"_s);
        focus(focused);
        key(end);
        QVERIFY(!m_ground->isUp(u"Frame3"_s));
        QCOMPARE(m_ground->control<QCheckBox>(u"chkRemind"_s).isChecked(), end != Qt::Key_Escape);
        QCOMPARE(m_ground->rt1().Text(), end == Qt::Key_Escape ? QString() : u"message"_s);
        m_ground->tick(u"chkRemind"_s, false);
    }
}

void ReminderKeysTest::inTheEventMessageEnterBeginsALineAndWithControlItIsOk() {
    m_ground->tick(u"chkRemind"_s);
    focus(u"rtMs2"_s);
    QTest::keyClicks(&m_ground->rtMs2(), u"a"_s);
    key(Qt::Key_Return);
    QVERIFY(m_ground->isUp(u"Frame3"_s));
    QCOMPARE(m_ground->rtMs2().Text(), u"a\r\n"_s);
    key(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(!m_ground->isUp(u"Frame3"_s));
    QVERIFY(m_ground->control<QCheckBox>(u"chkRemind"_s).isChecked());
}

void ReminderKeysTest::outsideOfTheReminderEnterAndEscapeLeaveItAlone() {
    m_ground->rt1().SetText(u"message"_s);
    m_ground->tick(u"chkRemind"_s);
    for (const QString& name : {u"txt1"_s, u"imgNew"_s})
        for (const int end : {Qt::Key_Escape}) {
            focus(name);
            key(end);
            QVERIFY(m_ground->isUp(u"Frame3"_s));
        }
    focus(u"txt1"_s);
    key(Qt::Key_Return);
    QVERIFY(m_ground->isUp(u"Frame3"_s));
    QCOMPARE(m_ground->rt1().Text(), u"message"_s);
}

void ReminderKeysTest::escapeLeavesFinding() {
    for (const QString& name : {u"Text1"_s, u"Check1"_s, u"Check2"_s, u"rt1a"_s}) {
        m_ground->press(u"imgFind"_s);
        focus(name);
        key(Qt::Key_Escape);
        QVERIFY(!m_ground->isUp(u"Frame1"_s));
        QCOMPARE(m_ground->panel().focusWidget()->objectName(), u"rt1"_s);
    }
}

void ReminderKeysTest::tabLeavesEveryTextAndControlAndTabWritesOne() {
    m_ground->tick(u"chkRemind"_s);
    m_ground->press(u"cmdmenu(2)"_s);
    for (const QString& name : {u"rtMs2"_s, u"rt1a"_s, u"rt1"_s, u"rt2"_s}) {
        if (name == u"rt1"_s)
            m_ground->press(u"Button1"_s);
        if (name == u"rt2"_s)
            m_ground->press(u"cmdmenu(3)"_s);
        auto& box = m_ground->control<RichTextBox>(name);
        focus(name);
        key(Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(box.Text(), u"\t"_s);
        QVERIFY(box.hasFocus());
        key(Qt::Key_Tab);
        QCOMPARE(box.Text(), u"\t"_s);
        QVERIFY(!box.hasFocus());
        key(Qt::Key_Backtab);
        QVERIFY(box.hasFocus());
    }
}

void ReminderKeysTest::theKeyboardReachesAllButTheButtonsThatHaveKeys() {
    focus(u"rt1"_s);
    QStringList reached;
    for (int i = 0; i < 40; ++i) {
        key(Qt::Key_Tab);
        reached << m_ground->panel().focusWidget()->objectName();
        if (reached.constLast() == u"rt1"_s)
            break;
    }
    // The calendar hands the keyboard on to its own parts.
    QVERIFY(reached.contains(u"qt_calendar_calendarview"_s));
    QStringList ours;
    for (const QString& name : std::as_const(reached))
        if (!name.startsWith(u"qt_"_s))
            ours << name;
    QCOMPARE(ours, (QStringList{u"chkRemind"_s, u"chkTop"_s, u"imgNew"_s, u"imgSave"_s, u"imgDel"_s,
                                u"imgFind"_s, u"imgNot"_s, u"rt1a"_s, u"lblNot"_s, u"lblAdd"_s,
                                u"lblPass"_s, u"imgSet"_s, u"imgMini"_s, u"imgHelp"_s, u"imgExit"_s,
                                u"txt1"_s, u"rt1"_s}));
}

ORVALIS_TEST_MAIN_WITH(QApplication, ReminderKeysTest)
#include "reminder_keys_test.moc"
