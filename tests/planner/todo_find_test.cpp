// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/panel_ground.h"

#include "runtime/failure.h"

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

class TodoFindTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_ground.reset(); }
    void theFindCommandClearsTheFieldAndFocusesItAndShowsToDo();
    void findSelectsTheFirstMatchAndFocusesTheList();
    void aMatchAtTheVeryFirstCharacterIsNotFound();
    void nextGoesOnBehindTheLastMatch();
    void findStartsOver();
    void aMissIsReported();
    void nextAfterAMissStartsAtTheBeginningAndReportsAMatchThere();
    void matchCaseIsAsked();
    void wholeWordIsAsked();
    void anEmptyTextFindsNothing();
    void enterInTheFieldFinds();
    void f3InTheFieldFindsTheNext();
    void f3InTheListFindsTheNextUnlessTheFieldIsEmpty();
    void aMatchBeyondThe16BitPositionsOverflows();
    void searchingOnBehindTheLastPositionOverflows();

private:
    void search(const QString& text, const QString& wanted) {
        m_ground->rt1a().SetText(text);
        field().setText(wanted);
    }
    QLineEdit& field() { return m_ground->control<QLineEdit>(u"Text1"_s); }
    void expectMiss() { m_ground->boxes.expect(u"String not found."_s, 0, Answer::Ok); }
    int found() { return m_ground->rt1a().SelStart(); }
    int pressAndFail(const QString& button) {
        const auto failure = firstFailure([&] { m_ground->press(button); });
        return failure ? static_cast<int>(failure->number()) : 0;
    }

    std::unique_ptr<PanelGround> m_ground;
};

void TodoFindTest::init() {
    m_ground = std::make_unique<PanelGround>();
    m_ground->shown();
}

void TodoFindTest::theFindCommandClearsTheFieldAndFocusesItAndShowsToDo() {
    m_ground->press(u"cmdmenu(0)"_s);
    field().setText(u"old"_s);
    m_ground->press(u"imgFind"_s);
    QCOMPARE(field().text(), QString());
    QCOMPARE(m_ground->panel().focusWidget(), &field());
    QVERIFY(m_ground->isUp(u"OwnerFrame(2)"_s));
    QCOMPARE(m_ground->control<GGCommand>(u"cmdmenu(2)"_s).ForeColor(), 0xC00000u);
}

void TodoFindTest::findSelectsTheFirstMatchAndFocusesTheList() {
    search(u"one two three two"_s, u"two"_s);
    m_ground->press(u"FindButton"_s);
    QCOMPARE(found(), 4);
    QCOMPARE(m_ground->rt1a().SelText(), u"two"_s);
    QCOMPARE(m_ground->panel().focusWidget(), &m_ground->rt1a());
}

void TodoFindTest::aMatchAtTheVeryFirstCharacterIsNotFound() {
    search(u"two"_s, u"two"_s);
    expectMiss();
    m_ground->press(u"FindButton"_s);
}

void TodoFindTest::nextGoesOnBehindTheLastMatch() {
    m_ground->press(u"imgFind"_s);
    search(u"a two two two"_s, u"two"_s);
    m_ground->press(u"FindButton"_s);
    field().setFocus();
    m_ground->press(u"FindNextButton"_s);
    QCOMPARE(found(), 6);
    QCOMPARE(m_ground->panel().focusWidget(), &m_ground->rt1a());
    m_ground->press(u"FindNextButton"_s);
    QCOMPARE(found(), 10);
    expectMiss();
    m_ground->press(u"FindNextButton"_s);
}

void TodoFindTest::findStartsOver() {
    search(u"a two two"_s, u"two"_s);
    m_ground->press(u"FindButton"_s);
    m_ground->press(u"FindNextButton"_s);
    m_ground->press(u"FindButton"_s);
    QCOMPARE(found(), 2);
}

void TodoFindTest::aMissIsReported() {
    m_ground->press(u"imgFind"_s);
    search(u"one two"_s, u"three"_s);
    m_ground->rt1a().SetSelStart(4);
    m_ground->rt1a().SetSelLength(3);
    expectMiss();
    m_ground->press(u"FindButton"_s);
    QCOMPARE(m_ground->panel().focusWidget(), &field());
    QCOMPARE(m_ground->rt1a().SelText(), u"two"_s);
}

void TodoFindTest::nextAfterAMissStartsAtTheBeginningAndReportsAMatchThere() {
    search(u"two"_s, u"two"_s);
    expectMiss();
    m_ground->press(u"FindButton"_s);
    expectMiss();
    m_ground->press(u"FindNextButton"_s);
    QCOMPARE(m_ground->rt1a().SelText(), u"two"_s);
}

void TodoFindTest::matchCaseIsAsked() {
    search(u"a TWO two"_s, u"two"_s);
    m_ground->press(u"FindButton"_s);
    QCOMPARE(found(), 2);
    m_ground->tick(u"Check1"_s);
    m_ground->press(u"FindButton"_s);
    QCOMPARE(found(), 6);
}

void TodoFindTest::wholeWordIsAsked() {
    search(u"a twofold two"_s, u"two"_s);
    m_ground->press(u"FindButton"_s);
    QCOMPARE(found(), 2);
    m_ground->tick(u"Check2"_s);
    m_ground->press(u"FindButton"_s);
    QCOMPARE(found(), 10);
}

void TodoFindTest::anEmptyTextFindsNothing() {
    search(u"two"_s, {});
    expectMiss();
    m_ground->press(u"FindButton"_s);
}

void TodoFindTest::enterInTheFieldFinds() {
    m_ground->press(u"imgFind"_s);
    search(u"a two two"_s, u"two"_s);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyClick(&field(), key);
        QCOMPARE(found(), 2);
    }
}

void TodoFindTest::f3InTheFieldFindsTheNext() {
    m_ground->press(u"imgFind"_s);
    search(u"a two two"_s, u"two"_s);
    QTest::keyClick(&field(), Qt::Key_F3);
    QCOMPARE(found(), 2);
    field().setFocus();
    QTest::keyClick(&field(), Qt::Key_F3);
    QCOMPARE(found(), 6);
}

void TodoFindTest::f3InTheListFindsTheNextUnlessTheFieldIsEmpty() {
    m_ground->press(u"imgFind"_s);
    search(u"a two two"_s, u"two"_s);
    m_ground->rt1a().setFocus();
    QTest::keyClick(&m_ground->rt1a(), Qt::Key_F3);
    QCOMPARE(found(), 2);
    field().clear();
    QTest::keyClick(&m_ground->rt1a(), Qt::Key_F3);
    QCOMPARE(found(), 2);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void TodoFindTest::aMatchBeyondThe16BitPositionsOverflows() {
    search(QString(32'768, u'.') + u"two"_s, u"two"_s);
    QCOMPARE(pressAndFail(u"FindButton"_s), 6);
    search(QString(32'767, u'.') + u"two"_s, u"two"_s);
    QCOMPARE(pressAndFail(u"FindButton"_s), 0);
    QCOMPARE(found(), 32'767);
}

void TodoFindTest::searchingOnBehindTheLastPositionOverflows() {
    search(QString(32'767, u'.') + u"two"_s, u"two"_s);
    QCOMPARE(pressAndFail(u"FindButton"_s), 0);
    QCOMPARE(pressAndFail(u"FindNextButton"_s), 6);
}

ORVALIS_TEST_MAIN_WITH(QApplication, TodoFindTest)
#include "todo_find_test.moc"
