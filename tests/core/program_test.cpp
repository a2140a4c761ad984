// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/program.h"
#include "support/role_doubles.h"
#include "support/test_main.h"
#include "support/test_program.h"

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

class FakeStart final : public LoggedWindow<StartWindow> {
public:
    using LoggedWindow::LoggedWindow;
    void setTimer23Enabled(bool) override {}
    bool timer23Enabled() const override { return true; }
    MSFlexGrid& MS2() override { return m_grid; }

private:
    MSFlexGrid m_grid;
};

/// Unloads badly, as a panel whose settings cannot be written might.
class FailingNotes final : public LoggedPanel<NotesPanel> {
public:
    FailingNotes(Program& program, QStringList& log)
        : LoggedPanel(program, ChromeKind::Notes, log) {}

protected:
    void onUnload() override {
        LoggedPanel::onUnload();
        throw RuntimeError(ErrorNumber::PermissionDenied);
    }
};

} // namespace

class ProgramTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void exitUnloadsPanelsAndSideWindowsInTheirOrder();
    void exitPassesOverAFailingUnload();
    void exitLeavesTheMainWindowAndStickersWithoutTheirUnload();
    void exitRightAfterAStartWithNoPanelEverOpenedEndsCleanly();
    void theEndStatementRunsNoUnloadHandler();

private:
    void loadAll();
    std::unique_ptr<TestProgram> m_test;
    QStringList m_log;
};

void ProgramTest::init() {
    m_log.clear();
    m_test = std::make_unique<TestProgram>();
    Program& program = m_test->program;
    Windows& windows = program.windows;
    windows.registerMaker<StartWindow>(
        [this] { return std::make_unique<FakeStart>(u"frmStart"_s, m_log); });
    windows.registerMaker<MainWindow>([&, this] {
        return std::make_unique<LoggedPanel<MainWindow>>(program, ChromeKind::Main, m_log);
    });
    windows.registerMaker<ReminderPanel>(
        [&, this] { return std::make_unique<FakeReminderPanel>(program, m_log); });
    windows.registerMaker<NotesPanel>([&, this] {
        return std::make_unique<LoggedPanel<NotesPanel>>(program, ChromeKind::Notes, m_log);
    });
    windows.registerMaker<AddressPanel>([&, this] {
        return std::make_unique<LoggedPanel<AddressPanel>>(program, ChromeKind::Address, m_log);
    });
    windows.registerMaker<PasswordPanel>([&, this] {
        return std::make_unique<LoggedPanel<PasswordPanel>>(program, ChromeKind::Password, m_log);
    });
    registerLogged<AlarmWindow>(program, u"frmAlarm"_s, m_log);
    registerLogged<AlarmSetDialog>(program, u"frmAlSet"_s, m_log);
    registerLogged<PrintWindow>(program, u"frmPrint"_s, m_log);
    registerLogged<LettersWindow>(program, u"frmpisma"_s, m_log);
}

void ProgramTest::loadAll() {
    Windows& windows = m_test->program.windows;
    windows.get<LettersWindow>();
    windows.get<PrintWindow>();
    windows.get<AlarmSetDialog>();
    windows.get<AlarmWindow>();
    windows.get<PasswordPanel>();
    windows.get<AddressPanel>();
    windows.get<NotesPanel>();
    windows.get<ReminderPanel>();
    windows.get<MainWindow>();
    windows.get<StartWindow>();
    m_log.clear();
}

void ProgramTest::exitUnloadsPanelsAndSideWindowsInTheirOrder() {
    loadAll();
    QVERIFY(endsTheProgram([this] { m_test->program.ExitProgram(); }));
    QCOMPARE(m_log,
             (QStringList{u"unload frmnotes1"_s, u"unload frmnotes2"_s, u"unload frmnotes3"_s,
                          u"unload frmnotes4"_s, u"unload frmAlarm"_s, u"unload frmAlSet"_s,
                          u"unload frmPrint"_s, u"unload frmpisma"_s, u"unload frmStart"_s}));
}

void ProgramTest::exitPassesOverAFailingUnload() {
    m_test->program.windows.registerMaker<NotesPanel>(
        [this] { return std::make_unique<FailingNotes>(m_test->program, m_log); });
    loadAll();
    QVERIFY(endsTheProgram([this] { m_test->program.ExitProgram(); }));
    QCOMPARE(m_log.size(), 9);
    QCOMPARE(m_log.constLast(), u"unload frmStart"_s);
}

void ProgramTest::exitLeavesTheMainWindowAndStickersWithoutTheirUnload() {
    loadAll();
    QVERIFY(endsTheProgram([this] { m_test->program.ExitProgram(); }));
    QVERIFY(!m_log.contains(u"unload frmnotes"_s));
    QVERIFY(m_test->program.windows.loaded<MainWindow>() != nullptr);
    m_test.reset();
    QVERIFY(!m_log.contains(u"unload frmnotes"_s));
}

void ProgramTest::exitRightAfterAStartWithNoPanelEverOpenedEndsCleanly() {
    m_test->program.windows.get<StartWindow>();
    m_test->program.windows.get<MainWindow>();
    m_log.clear();
    QVERIFY(endsTheProgram([this] { m_test->program.ExitProgram(); }));
    QCOMPARE(m_log, QStringList{u"unload frmStart"_s});
}

void ProgramTest::theEndStatementRunsNoUnloadHandler() {
    loadAll();
    QVERIFY(endsTheProgram([this] { m_test->program.end(); }));
    m_test.reset();
    QCOMPARE(m_log, QStringList());
}

ORVALIS_TEST_MAIN_WITH(Application, ProgramTest)
#include "program_test.moc"
