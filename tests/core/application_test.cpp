// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/application.h"
#include "runtime/failure.h"
#include "runtime/program_end.h"
#include "support/scripted_boxes.h"
#include "support/test_main.h"
#include "support/test_program.h"

#include <QEventLoop>
#include <QTimer>
#include <QWidget>

using namespace orvalis;
using namespace Qt::StringLiterals;

class ApplicationTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void aFailureThatLeavesAHandlerIsToldAndEndsTheProgram();
    void aSecondFailureBehindTheBoxOpensNoOther();
    void theEndOfTheProgramLeavesEveryEventLoop();
    void anEntryRoutineThatEndsTheProgramRunsNoEventLoop();
    void hidingTheLastWindowDoesNotEndTheProgram();
    void aFailureKeepsWhatIsUnsavedAheadOfItsBox();
    void theEndOfTheSessionKeepsWhatIsUnsavedAndAsksNobody();
    void aProgramThatEndedByItsOwnCommandKeepsNothing();

private:
    Application& application() { return *static_cast<Application*>(qApp); }
    std::unique_ptr<test::ScriptedBoxes> m_boxes;
};

void ApplicationTest::init() {
    qApp->setProperty("orvalisEnded", QVariant());
    m_boxes = std::make_unique<test::ScriptedBoxes>();
    application().setBoxes(*m_boxes);
}

void ApplicationTest::cleanup() {
    application().setRecovery(nullptr);
    m_boxes.reset();
}

void ApplicationTest::aFailureThatLeavesAHandlerIsToldAndEndsTheProgram() {
    m_boxes->expect(u"Run-time error '70':\n\nPermission denied"_s, 16, Answer::Ok);
    bool wentOn = false;
    QTimer::singleShot(0, this, [&] {
        throw RuntimeError(ErrorNumber::PermissionDenied);
        wentOn = true;
    });
    QCOMPARE(application().run([] {}), 0);
    QVERIFY(programHasEnded());
    QVERIFY(!wentOn);
}

void ApplicationTest::aSecondFailureBehindTheBoxOpensNoOther() {
    m_boxes->expect(u"Run-time error '6':\n\nOverflow"_s, 16, Answer::Ok);
    m_boxes->meanwhile([this] {
        QTimer::singleShot(
            0, this, [] { throw RuntimeError(ErrorNumber::FileNotFound); });
        QCoreApplication::processEvents();
    });
    QTimer::singleShot(0, this, [] { throw RuntimeError(ErrorNumber::Overflow); });
    application().run([] {});
    QCOMPARE(m_boxes->asked.size(), 1);
}

void ApplicationTest::theEndOfTheProgramLeavesEveryEventLoop() {
    bool heldHandlerWentOn = false;
    QTimer::singleShot(0, this, [&] {
        QEventLoop held;
        QTimer::singleShot(0, this, [] { throw ProgramEnded(); });
        held.exec();
        throwIfEnded();
        heldHandlerWentOn = true;
    });
    QCOMPARE(application().run([] {}), 0);
    QVERIFY(programHasEnded());
    QVERIFY(!heldHandlerWentOn);
}

void ApplicationTest::anEntryRoutineThatEndsTheProgramRunsNoEventLoop() {
    bool ran = false;
    // It goes with this function: the timer must not run out in a later one.
    QObject timersOwner;
    QTimer::singleShot(
        0, &timersOwner, [&] { ran = true; });
    QCOMPARE(application().run([] { throw ProgramEnded(); }), 0);
    QVERIFY(!ran);
}

void ApplicationTest::hidingTheLastWindowDoesNotEndTheProgram() {
    QVERIFY(!QApplication::quitOnLastWindowClosed());
}

void ApplicationTest::aFailureKeepsWhatIsUnsavedAheadOfItsBox() {
    test::TestProgram ground;
    const auto held = ground.program.recovery.add([] {
        return std::vector<UnsavedText>{{u"Page"_s, "{\\rtf1 typed}"}};
    });
    application().setRecovery(&ground.program.recovery);
    ground.boxes.expect(u"Run-time error '70':\n\nPermission denied"_s, 16, Answer::Ok);
    QStringList names;
    ground.boxes.meanwhile([&] { names = ground.folder.names(); });
    QTimer::singleShot(0, this, [] { throw RuntimeError(ErrorNumber::PermissionDenied); });
    application().run([] {});
    QCOMPARE(names, QStringList{u"recovered.rtf"_s});
}

void ApplicationTest::theEndOfTheSessionKeepsWhatIsUnsavedAndAsksNobody() {
    test::TestProgram ground;
    const auto held = ground.program.recovery.add([] {
        return std::vector<UnsavedText>{{u"Page"_s, "{\\rtf1 typed}"}};
    });
    application().setRecovery(&ground.program.recovery);
    QWidget window;
    window.show();
    QTimer::singleShot(0, this, [] { QCoreApplication::quit(); });
    QCOMPARE(application().run([] {}), 0);
    QVERIFY(programHasEnded());
    QVERIFY(window.isVisible());
    QVERIFY(ground.folder.read(u"recovered.rtf"_s).contains("typed"));
}

void ApplicationTest::aProgramThatEndedByItsOwnCommandKeepsNothing() {
    test::TestProgram ground;
    const auto held = ground.program.recovery.add([] {
        return std::vector<UnsavedText>{{u"Page"_s, "{\\rtf1 typed}"}};
    });
    application().setRecovery(&ground.program.recovery);
    application().run([] { throw ProgramEnded(); });
    application().endFromOutside();
    QVERIFY(ground.folder.names().isEmpty());
}

ORVALIS_TEST_MAIN_WITH(Application, ApplicationTest)
#include "application_test.moc"
