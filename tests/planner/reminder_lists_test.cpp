// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/panel_ground.h"

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

class ReminderListsTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_ground.reset(); }
    void aReminderHeaderRefusesEveryKey_data();
    void aReminderHeaderRefusesEveryKey();
    void aReminderBodyCanBeEdited();
    void aRedPriorityHeaderCanBeEdited();
    void rowZeroTakesNoText();
    void enterInTheLastRowWrapsToRowOne();
    void enterInAnEmptyListIsSilent();
    void editsStayInMemoryUntilTheListsSave();
    void theRemindSaveWritesTheListAndReadsTheHiddenCopy();
    void sv1WritesThePriorityList();
    void sv3LeavesTheHiddenCopyInTheFile();
    void aRightClickSelectsTheCellAndNoSubPanel();
    void savingWhereNothingCanBeWrittenIsSilent();

private:
    void typeInto(MSFlexGrid& grid, const QString& text) {
        grid.setFocus();
        QTest::keyClicks(&grid, text);
    }

    std::unique_ptr<PanelGround> m_ground;
};

void ReminderListsTest::init() {
    m_ground = std::make_unique<PanelGround>();
    m_ground->folder.write(u"tmp1.brf"_s, " 3  1 \r\n\r\nFriday\r\nurgent\r\n");
    m_ground->folder.write(u"tmp2.brf"_s, " 5  1 \r\n\r\nh1\r\nb1\r\nh2\r\nb2\r\n");
    m_ground->shown();
    m_ground->press(u"cmdmenu(0)"_s);
}

void ReminderListsTest::aReminderHeaderRefusesEveryKey_data() {
    QTest::addColumn<QString>("key");
    QTest::newRow("letter") << u"x"_s;
    QTest::newRow("Enter") << u"\r"_s;
    QTest::newRow("Backspace") << u"\b"_s;
}

void ReminderListsTest::aReminderHeaderRefusesEveryKey() {
    QFETCH(QString, key);
    m_ground->MS3().setRow(3);
    m_ground->boxes.expect(u"Can't edit this field."_s, 16, Answer::Ok, u"Remind List"_s);
    emit m_ground->MS3().KeyPress(key);
    QCOMPARE(m_ground->MS3().Row(), 3);
    QCOMPARE(m_ground->MS3().Text(), u"h2"_s);
}

void ReminderListsTest::aReminderBodyCanBeEdited() {
    m_ground->MS3().setRow(2);
    typeInto(m_ground->MS3(), u"x y"_s);
    QTest::keyClick(&m_ground->MS3(), Qt::Key_Backspace);
    QCOMPARE(m_ground->MS3().TextMatrix(2, 0), u"b1x "_s);
}

void ReminderListsTest::aRedPriorityHeaderCanBeEdited() {
    m_ground->press(u"cmdmenu(1)"_s);
    m_ground->MS1().setRow(1);
    QCOMPARE(m_ground->MS1().CellBackColor(), 255u);
    typeInto(m_ground->MS1(), u"!"_s);
    QCOMPARE(m_ground->MS1().TextMatrix(1, 0), u"Friday!"_s);
}

void ReminderListsTest::rowZeroTakesNoText() {
    for (MSFlexGrid* grid : {&m_ground->MS1(), &m_ground->MS3()}) {
        grid->setRow(0);
        emit grid->KeyPress(u"x"_s);
        QCOMPARE(grid->TextMatrix(0, 0), QString());
    }
}

void ReminderListsTest::enterInTheLastRowWrapsToRowOne() {
    m_ground->MS3().setRow(4);
    m_ground->MS3().setFocus();
    QTest::keyClick(&m_ground->MS3(), Qt::Key_Return);
    QCOMPARE(m_ground->MS3().Row(), 1);
    m_ground->MS1().setRow(2);
    emit m_ground->MS1().KeyPress(u"\r"_s);
    QCOMPARE(m_ground->MS1().Row(), 1);
}

void ReminderListsTest::enterInAnEmptyListIsSilent() {
    for (MSFlexGrid* grid : {&m_ground->MS1(), &m_ground->MS3()}) {
        grid->setRows(1);
        emit grid->KeyPress(u"\r"_s);
        QCOMPARE(grid->Row(), 0);
    }
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void ReminderListsTest::editsStayInMemoryUntilTheListsSave() {
    m_ground->MS1().setRow(2);
    emit m_ground->MS1().KeyPress(u"!"_s);
    QVERIFY(!m_ground->folder.read(u"tmp1.brf"_s).contains("urgent!"));
    m_ground->press(u"imgsoo"_s);
    QCOMPARE(m_ground->folder.read(u"tmp1.brf"_s),
             QByteArray(" 3  1 \r\n\r\nFriday\r\nurgent!\r\n"));
}

void ReminderListsTest::theRemindSaveWritesTheListAndReadsTheHiddenCopy() {
    m_ground->MS3().setRow(2);
    emit m_ground->MS3().KeyPress(u"!"_s);
    QCOMPARE(m_ground->MS2().Rows(), 1);
    m_ground->press(u"imgso"_s);
    QCOMPARE(m_ground->folder.read(u"tmp2.brf"_s),
             QByteArray(" 5  1 \r\n\r\nh1\r\nb1!\r\nh2\r\nb2\r\n"));
    QCOMPARE(m_ground->MS2().Rows(), 5);
    QCOMPARE(m_ground->MS2().TextMatrix(2, 0), u"b1!"_s);
    QVERIFY(!m_ground->program.state.RemindPending);
}

void ReminderListsTest::sv1WritesThePriorityList() {
    m_ground->MS1().AddItem(u"more"_s);
    m_ground->panel().sv1();
    QCOMPARE(m_ground->folder.read(u"tmp1.brf"_s),
             QByteArray(" 4  1 \r\n\r\nFriday\r\nurgent\r\nmore\r\n"));
}

void ReminderListsTest::sv3LeavesTheHiddenCopyInTheFile() {
    m_ground->MS2().AddItem(u"hidden"_s);
    m_ground->panel().sv3();
    QCOMPARE(m_ground->folder.read(u"tmp2.brf"_s), QByteArray(" 2  1 \r\n\r\nhidden\r\n"));
    QCOMPARE(m_ground->MS3().Rows(), 5);
}

void ReminderListsTest::aRightClickSelectsTheCellAndNoSubPanel() {
    MSFlexGrid& grid = m_ground->MS3();
    QTest::mouseClick(grid.viewport(), Qt::RightButton, {},
                      grid.visualRect(grid.model()->index(3, 0)).center());
    QCOMPARE(grid.Row(), 3);
    QCOMPARE(m_ground->control<GGCommand>(u"cmdmenu(0)"_s).ForeColor(), 0xC00000u);
    QVERIFY(!QApplication::activePopupWidget());
}

void ReminderListsTest::savingWhereNothingCanBeWrittenIsSilent() {
    for (const QString& name : {u"tmp1.brf"_s, u"tmp2.brf"_s}) {
        QVERIFY(QFile::remove(m_ground->folder.file(name)));
        QVERIFY(QDir(m_ground->folder.path()).mkdir(name));
    }
    m_ground->press(u"imgsoo"_s);
    m_ground->press(u"imgso"_s);
    m_ground->panel().sv3();
    QVERIFY(m_ground->boxes.asked.isEmpty());
    QCOMPARE(m_ground->MS2().Rows(), 1);
}

ORVALIS_TEST_MAIN_WITH(QApplication, ReminderListsTest)
#include "reminder_lists_test.moc"
