// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/windows.h"
#include "runtime/failure.h"
#include "support/test_main.h"

#include <QApplication>
#include <QPointer>

using namespace orvalis;

namespace {

class Lamp : public WindowRole {};

QStringList g_log;

class LampForm final : public Form, public Lamp {
public:
    explicit LampForm(Windows& windows)
        : Form(QStringLiteral("lamp"))
        , m_windows(windows) {
        g_log << QStringLiteral("made");
    }
    ~LampForm() override { g_log << QStringLiteral("gone"); }
    Form& form() override { return *this; }
    bool failAtUnload = false;

protected:
    void onLoad() override {
        g_log << QStringLiteral("load");
        // A load handler that refers to its own window finds this very instance.
        QCOMPARE(&m_windows.get<Lamp>(), static_cast<Lamp*>(this));
    }
    void onUnload() override {
        g_log << QStringLiteral("unload");
        m_windows.unload<Lamp>();
        QCOMPARE(m_windows.loaded<Lamp>(), static_cast<Lamp*>(this));
        if (failAtUnload)
            throw RuntimeError(ErrorNumber::PermissionDenied);
    }

private:
    Windows& m_windows;
};

QString log() {
    return g_log.join(u' ');
}

} // namespace

class WindowsTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void theFirstReferenceMakesAndLoadsWithoutShowing();
    void askingWhetherItIsLoadedMakesNothing();
    void unloadingAWindowThatWasNeverLoadedDoesNothing();
    void afterUnloadTheNextReferenceMakesANewOne();
    void anUnloadedWindowLivesUntilItsHandlersAreDone();
    void aWindowThatAsksToBeUnloadedIs();
    void aFailingUnloadHandlerStillReleasesTheWindow();
    void aRoleWithoutMakerFailsWith91();
    void theEndOfTheRegistryRunsNoUnloadHandlers();

private:
    std::unique_ptr<Windows> m_windows;
};

void WindowsTest::init() {
    g_log.clear();
    m_windows = std::make_unique<Windows>();
    m_windows->registerMaker<Lamp>([this] { return std::make_unique<LampForm>(*m_windows); });
    g_log.clear();
}

void WindowsTest::theFirstReferenceMakesAndLoadsWithoutShowing() {
    QVERIFY(m_windows->knows<Lamp>());
    Lamp& lamp = m_windows->get<Lamp>();
    QCOMPARE(log(), QStringLiteral("made load"));
    QVERIFY(!lamp.form().isVisible());
    QCOMPARE(&m_windows->get<Lamp>(), &lamp);
    QCOMPARE(log(), QStringLiteral("made load"));
}

void WindowsTest::askingWhetherItIsLoadedMakesNothing() {
    QVERIFY(m_windows->loaded<Lamp>() == nullptr);
    QCOMPARE(log(), QString());
}

void WindowsTest::unloadingAWindowThatWasNeverLoadedDoesNothing() {
    m_windows->unload<Lamp>();
    QCOMPARE(log(), QString());
}

void WindowsTest::afterUnloadTheNextReferenceMakesANewOne() {
    m_windows->get<Lamp>().form().Show();
    m_windows->unload<Lamp>();
    QVERIFY(m_windows->loaded<Lamp>() == nullptr);
    QVERIFY(!m_windows->get<Lamp>().form().isVisible());
    QCOMPARE(log(), QStringLiteral("made load unload made load"));
}

void WindowsTest::anUnloadedWindowLivesUntilItsHandlersAreDone() {
    const QPointer<Form> form = &m_windows->get<Lamp>().form();
    m_windows->unload<Lamp>();
    QVERIFY(form);
    QTRY_VERIFY(!form);
    QCOMPARE(log(), QStringLiteral("made load unload gone"));
}

void WindowsTest::aWindowThatAsksToBeUnloadedIs() {
    emit m_windows->get<Lamp>().form().unloadRequested();
    QVERIFY(m_windows->loaded<Lamp>() == nullptr);
}

void WindowsTest::aFailingUnloadHandlerStillReleasesTheWindow() {
    static_cast<LampForm&>(m_windows->get<Lamp>()).failAtUnload = true;
    QVERIFY_THROWS_EXCEPTION(RuntimeError, m_windows->unload<Lamp>());
    QVERIFY(m_windows->loaded<Lamp>() == nullptr);
}

void WindowsTest::aRoleWithoutMakerFailsWith91() {
    class Unknown : public WindowRole {};
    QVERIFY(!m_windows->knows<Unknown>());
    try {
        m_windows->get<Unknown>();
        QFAIL("must fail");
    } catch (const RuntimeError& error) {
        QCOMPARE(error.number(), ErrorNumber::ObjectVariableNotSet);
    }
}

void WindowsTest::theEndOfTheRegistryRunsNoUnloadHandlers() {
    m_windows->get<Lamp>();
    m_windows.reset();
    QCOMPARE(log(), QStringLiteral("made load gone"));
}

ORVALIS_TEST_MAIN_WITH(QApplication, WindowsTest)
#include "windows_test.moc"
