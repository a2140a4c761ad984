// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/find_window.h"

#include "controls/label.h"
#include "controls/rich_text_box.h"
#include "runtime/failure.h"
#include "support/plain_windows.h"
#include "support/test_main.h"
#include "support/test_program.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QWindow>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

class FindWindowTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_test.reset(); }

    void theWindowHasItsWordsAndSize();
    void itLiesOnTopOfAllWindows();
    void itOpensEmptyWithTheStepsDisabled();
    void findSelectsOnThePageAndEnablesTheSteps();
    void aHitAtTheFirstCharacterIsNotFound();
    void aMissOfFindDisablesAllThreeSteps();
    void aMissOfFindNextKeepsFindNext();
    void aMissOfReplaceKeepsFindNext();
    void replaceAllKeepsFindNext();
    void aChangeOfTheTextDisablesAllThreeSteps();
    void enterFinds_data();
    void enterFinds();
    void f3FindsTheNext_data();
    void f3FindsTheNext();
    void enterInTheSecondFieldDoesNothing();
    void cancelClosingAndEscapeUnloadIt();
    void findNextIsThatOfTheButton();
    void itsStateIsItsOwn();
    void aHitBeyond32767LeavesTheHandler();

private:
    struct Test : TestProgram {
        Test() {
            program.windows.registerMaker<PrintWindow>(
                [] { return std::make_unique<PlainWindow<PrintWindow>>(u"frmPrint"_s); });
            program.windows.registerMaker<FindWindow>(
                [this] { return std::make_unique<frmFind>(program); });
        }
        ~Test() {
            program.windows.unload<FindWindow>();
            program.windows.unload<PrintWindow>();
        }
    };

    frmFind& window() { return static_cast<frmFind&>(m_test->program.windows.get<FindWindow>()); }
    RichTextBox& rtb() { return m_test->program.windows.get<PrintWindow>().rtb(); }
    template <class Control>
    Control& control(const QString& name) {
        auto* found = window().findChild<Control*>(name);
        if (!found)
            qFatal("no control %s", qPrintable(name));
        return *found;
    }
    void press(const QString& name) { control<QPushButton>(name).click(); }
    void search(const QString& text, const QString& what, const QString& with = {}) {
        rtb().SetText(text);
        control<QLineEdit>(u"Text1"_s).setText(what);
        control<QLineEdit>(u"Text2"_s).setText(with);
    }
    void expectMiss() { m_test->boxes.expect(u"String not found."_s, 0, Answer::Ok); }
    QStringList steps() {
        QStringList names;
        for (const QString& name : allSteps())
            if (control<QPushButton>(name).isEnabled())
                names << name;
        return names;
    }
    static QStringList allSteps() {
        return {u"ReplaceButton"_s, u"ReplaceAllButton"_s, u"FindNextButton"_s};
    }

    std::unique_ptr<Test> m_test;
};

void FindWindowTest::init() {
    m_test = std::make_unique<Test>();
    window().Show();
    QApplication::setActiveWindow(&window());
}

void FindWindowTest::theWindowHasItsWordsAndSize() {
    QCOMPARE(window().objectName(), u"frmFind"_s);
    QCOMPARE(window().windowTitle(), u"Find"_s);
    QCOMPARE(window().size(), QSize(330, 130)); // 4950 by 1950 twips
    QCOMPARE(control<Label>(u"Label1"_s).Caption(), u"Find what:"_s);
    QCOMPARE(control<Label>(u"Label2"_s).Caption(), u"Replace with:"_s);
    QCOMPARE(control<QCheckBox>(u"Check1"_s).text(), u"&Case sensitive"_s);
    QCOMPARE(control<QCheckBox>(u"Check2"_s).text(), u"&Whole word only"_s);
    const QMap<QString, QString> captions{{u"FindButton"_s, u"Find"_s},
                                          {u"FindNextButton"_s, u"Find Next"_s},
                                          {u"ReplaceButton"_s, u"Replace"_s},
                                          {u"ReplaceAllButton"_s, u"Replace All"_s},
                                          {u"Command5"_s, u"Cancel"_s}};
    for (auto it = captions.begin(); it != captions.end(); ++it)
        QCOMPARE(control<QPushButton>(it.key()).text(), it.value());
}

void FindWindowTest::itLiesOnTopOfAllWindows() {
    QVERIFY(window().windowFlags().testFlag(Qt::WindowStaysOnTopHint) ||
            window().windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(!window().isModal());
}

void FindWindowTest::itOpensEmptyWithTheStepsDisabled() {
    rtb().SetText(u"one"_s);
    rtb().SetSelLength(3);
    m_test->program.windows.unload<FindWindow>();
    QCOMPARE(control<QLineEdit>(u"Text1"_s).text(), QString());
    QCOMPARE(steps(), QStringList());
    QVERIFY(control<QPushButton>(u"FindButton"_s).isEnabled());
}

void FindWindowTest::findSelectsOnThePageAndEnablesTheSteps() {
    search(u"one two three"_s, u"two"_s);
    press(u"FindButton"_s);
    QCOMPARE(rtb().SelText(), u"two"_s);
    QCOMPARE(steps(), allSteps());
}

void FindWindowTest::aHitAtTheFirstCharacterIsNotFound() {
    search(u"two"_s, u"two"_s);
    expectMiss();
    press(u"FindButton"_s);
}

void FindWindowTest::aMissOfFindDisablesAllThreeSteps() {
    search(u"a two"_s, u"two"_s);
    press(u"FindButton"_s);
    rtb().SetText(u"nothing"_s);
    expectMiss();
    press(u"FindButton"_s);
    QCOMPARE(steps(), QStringList());
}

void FindWindowTest::aMissOfFindNextKeepsFindNext() {
    search(u"a two"_s, u"two"_s);
    press(u"FindButton"_s);
    expectMiss();
    press(u"FindNextButton"_s);
    QCOMPARE(steps(), QStringList{u"FindNextButton"_s});
}

void FindWindowTest::aMissOfReplaceKeepsFindNext() {
    search(u"a two"_s, u"two"_s, u"2"_s);
    press(u"FindButton"_s);
    expectMiss();
    press(u"ReplaceButton"_s);
    QCOMPARE(rtb().Text(), u"a 2"_s);
    QCOMPARE(steps(), QStringList{u"FindNextButton"_s});
}

void FindWindowTest::replaceAllKeepsFindNext() {
    search(u"a two two"_s, u"two"_s, u"2"_s);
    press(u"FindButton"_s);
    m_test->boxes.expect(u"Replacing done."_s, 0, Answer::Ok);
    press(u"ReplaceAllButton"_s);
    QCOMPARE(rtb().Text(), u"a 2 2"_s);
    QCOMPARE(steps(), QStringList{u"FindNextButton"_s});
}

void FindWindowTest::aChangeOfTheTextDisablesAllThreeSteps() {
    search(u"a two"_s, u"two"_s);
    press(u"FindButton"_s);
    control<QLineEdit>(u"Text1"_s).setText(u"tw"_s);
    QCOMPARE(steps(), QStringList());
}

void FindWindowTest::enterFinds_data() {
    QTest::addColumn<QString>("name");
    for (const char* name : {"frmFind", "Text1", "Check1", "Check2"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void FindWindowTest::enterFinds() {
    QFETCH(QString, name);
    search(u"a two two"_s, u"two"_s);
    QWidget& widget = name == u"frmFind"_s ? window() : control<QWidget>(name);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        widget.setFocus();
        QTest::keyClick(&widget, key);
        QCOMPARE(rtb().SelStart(), 2);
        QCOMPARE(steps(), allSteps());
    }
}

void FindWindowTest::f3FindsTheNext_data() {
    enterFinds_data();
    QTest::newRow("Text2") << u"Text2"_s;
}

void FindWindowTest::f3FindsTheNext() {
    QFETCH(QString, name);
    search(u"a two two"_s, u"two"_s);
    QWidget& widget = name == u"frmFind"_s ? window() : control<QWidget>(name);
    for (const int at : {2, 6}) {
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_F3);
        QCOMPARE(rtb().SelStart(), at);
    }
}

void FindWindowTest::enterInTheSecondFieldDoesNothing() {
    search(u"a two two"_s, u"two"_s);
    control<QLineEdit>(u"Text2"_s).setFocus();
    QTest::keyClick(&control<QLineEdit>(u"Text2"_s), Qt::Key_Return);
    QCOMPARE(rtb().SelLength(), 0);
    QCOMPARE(steps(), QStringList());
}

void FindWindowTest::cancelClosingAndEscapeUnloadIt() {
    const auto gone = [this] { return m_test->program.windows.loaded<FindWindow>() == nullptr; };
    press(u"Command5"_s);
    QVERIFY(gone());
    window().Show();
    window().close();
    QVERIFY(gone());
    window().Show();
    QTest::keyClick(&window(), Qt::Key_Escape);
    QVERIFY(gone());
}

void FindWindowTest::findNextIsThatOfTheButton() {
    search(u"a two"_s, u"two"_s);
    window().FindNext();
    QCOMPARE(rtb().SelText(), u"two"_s);
}

void FindWindowTest::itsStateIsItsOwn() {
    search(u"a two two"_s, u"two"_s);
    press(u"FindButton"_s);
    m_test->program.windows.unload<FindWindow>();
    window().Show();
    control<QLineEdit>(u"Text1"_s).setText(u"two"_s);
    window().FindNext();
    QCOMPARE(rtb().SelStart(), 2);
}

void FindWindowTest::aHitBeyond32767LeavesTheHandler() {
    search(QString(32'768, u'.') + u"two"_s, u"two"_s);
    const auto failure = firstFailure([this] { window().FindNext(); });
    QVERIFY(failure);
    QCOMPARE(failure->number(), ErrorNumber::Overflow);
}

ORVALIS_TEST_MAIN_WITH(QApplication, FindWindowTest)
#include "find_window_test.moc"
