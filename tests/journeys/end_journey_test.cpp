// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/reminder_road.h"

#include "session_manager.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;
using namespace orvalis::test;

namespace {

/// The program on a desktop of its own with a message and a sticker that nobody has saved.
class TypedProgram {
public:
    TypedProgram()
        : m_program(m_stage, QStringLiteral(ORVALIS_EXECUTABLE)) {}

    QString begin() {
        if (!m_stage.trouble().isEmpty())
            return m_stage.trouble();
        if (!m_program.start())
            return u"the program does not start"_s;
        ReminderRoad road(m_program, [](const QString&) {});
        road.openPanel();
        road.typeMessage(u"Garden"_s, u"Water the roses"_s);
        if (!road.trouble().isEmpty())
            return road.trouble();
        if (!m_program.click(u"frmnotes1/imgNot"_s) ||
            !m_program.waitVisible(u"frmstick/Text1"_s) || !m_program.click(u"frmstick/Text1"_s))
            return u"no sticker comes up"_s;
        m_program.type(u"milk"_s);
        if (!m_program.waitText(u"frmstick/Text1"_s, u"milk"_s))
            return u"the sticker takes no text"_s;
        return {};
    }

    Stage& stage() { return m_stage; }
    DrivenProgram& program() { return m_program; }

    /// Whether a file holds both texts.
    bool kept(const QString& name) {
        const QByteArray bytes = m_program.fileBytes(name);
        return bytes.startsWith("{\\rtf1") && bytes.contains("Water the roses") &&
               bytes.contains("message \"Garden\"") && bytes.contains("milk") &&
               bytes.contains("Sticker \"Sticker No1\"");
    }

private:
    Stage m_stage{{}};
    DrivenProgram m_program;
};

} // namespace

/// Ends that nobody in front of the program asked for.
class EndJourneyTest : public QObject {
    Q_OBJECT
private slots:
    void aTerminatedProgramKeepsWhatWasTyped();
    void aTerminationBehindAnOpenBoxKeepsWhatWasTyped();
    void aDisplayThatGoesAwayTakesNothing_data();
    void aDisplayThatGoesAwayTakesNothing();
    void aSecondEndWritesASecondFile();
    void aLogOutKeepsWhatWasTyped();
    void aLogOutThatIsCalledOffLeavesTheProgramAsItIs();
};

void EndJourneyTest::aTerminatedProgramKeepsWhatWasTyped() {
    TypedProgram typed;
    const QString trouble = typed.begin();
    QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
    typed.program().terminate();
    QVERIFY(typed.program().waitForEnd());
    QVERIFY(typed.kept(u"recovered.rtf"_s));
    QVERIFY(typed.program().fileBytes(u"recovered 2.rtf"_s).isEmpty());
    QCOMPARE(typed.program().output(), QByteArray());
}

void EndJourneyTest::aTerminationBehindAnOpenBoxKeepsWhatWasTyped() {
    TypedProgram typed;
    const QString trouble = typed.begin();
    QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
    QVERIFY(typed.program().click(u"frmnotes1/imgNew"_s));
    QVERIFY(waitUntil([&] { return typed.program().messageBox().found; }, 10000));
    typed.program().terminate();
    QVERIFY(typed.program().waitForEnd());
    QVERIFY(typed.kept(u"recovered.rtf"_s));
}

void EndJourneyTest::aDisplayThatGoesAwayTakesNothing_data() {
    QTest::addColumn<QString>("meanwhile");
    QTest::newRow("at rest") << QString();
    QTest::newRow("behind a box") << u"box"_s;
    QTest::newRow("behind a menu") << u"menu"_s;
    QTest::newRow("with warnings silenced") << u"rules"_s;
}

void EndJourneyTest::aDisplayThatGoesAwayTakesNothing() {
    QFETCH(QString, meanwhile);
    TypedProgram typed;
    if (meanwhile == u"rules")
        typed.program().setVariable(u"QT_LOGGING_RULES"_s, u"*=false"_s);
    const QString trouble = typed.begin();
    QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
    if (meanwhile == u"box") {
        QVERIFY(typed.program().click(u"frmnotes1/imgNew"_s));
        QVERIFY(waitUntil([&] { return typed.program().messageBox().found; }, 10000));
    }
    if (meanwhile == u"menu") {
        QVERIFY(typed.program().click(u"frmnotes1/imgHelp"_s));
        QVERIFY(typed.program().menuEntry(u"mnuabout"_s).visible ||
                typed.program().waitVisible(u"mnuhelp"_s));
    }
    typed.stage().killDisplay();
    QVERIFY(typed.program().waitForEnd());
    QVERIFY(typed.kept(u"recovered.rtf"_s));
    QVERIFY(typed.program().fileBytes(u"recovered 2.rtf"_s).isEmpty());
}

void EndJourneyTest::aSecondEndWritesASecondFile() {
    TypedProgram typed;
    for (const QString& name : {u"recovered.rtf"_s, u"recovered 2.rtf"_s}) {
        const QString trouble = typed.begin();
        QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
        typed.program().terminate();
        QVERIFY(typed.program().waitForEnd());
        QVERIFY(typed.kept(name));
    }
}

void EndJourneyTest::aLogOutKeepsWhatWasTyped() {
    SessionManager session;
    QVERIFY(session.isUp());
    TypedProgram typed;
    typed.program().setVariable(u"SESSION_MANAGER"_s, session.address());
    const QString trouble = typed.begin();
    QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
    QVERIFY(session.hasProgram());
    session.beginLogOut();
    QVERIFY(waitUntil([&] { return session.hasKept(); }, 10000));
    QVERIFY2(typed.kept(u"recovered.rtf"_s), "before the program says that it is done");
    QVERIFY(typed.program().isRunning());
    session.finishLogOut();
    QVERIFY(typed.program().waitForEnd());
    QVERIFY(typed.program().fileBytes(u"recovered 2.rtf"_s).isEmpty());
    QCOMPARE(typed.program().output(), QByteArray());
}

void EndJourneyTest::aLogOutThatIsCalledOffLeavesTheProgramAsItIs() {
    SessionManager session;
    QVERIFY(session.isUp());
    TypedProgram typed;
    typed.program().setVariable(u"SESSION_MANAGER"_s, session.address());
    const QString trouble = typed.begin();
    QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
    session.beginLogOut();
    QVERIFY(waitUntil([&] { return session.hasKept(); }, 10000));
    session.callOff();
    typed.program().type(u" and bread"_s);
    QVERIFY(typed.program().waitText(u"frmstick/Text1"_s, u"milk and bread"_s));
    session.beginLogOut();
    QVERIFY(waitUntil([&] { return session.hasKept(); }, 10000));
    QVERIFY(typed.program().fileBytes(u"recovered 2.rtf"_s).contains("milk and bread"));
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, EndJourneyTest)
#include "end_journey_test.moc"
