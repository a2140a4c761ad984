// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/sys_tray.h"
#include "runtime/aligned_timer.h"
#include "support/plain_windows.h"
#include "support/recording_tray_icon.h"
#include "support/test_main.h"
#include "support/test_program.h"

#include <QApplication>
#include <QLabel>
#include <QMenu>

#include <optional>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;
using Call = RecordingTrayIcon::Call;

namespace {

QIcon icon(Qt::GlobalColor colour) {
    QPixmap pixmap(16, 16);
    pixmap.fill(colour);
    return QIcon(pixmap);
}

/// A tray form and what it tells.
struct Tray {
    Tray()
        : form(std::make_unique<frmSysTray>(outside.program, icons, own)) {
        outside.program.tick = &tick;
        QObject::connect(
            form.get(), &frmSysTray::SysTrayMouseDown,
            [this](int button) { told << u"down %1"_s.arg(button); });
        QObject::connect(
            form.get(), &frmSysTray::SysTrayMouseUp,
            [this](int button) { told << u"up %1"_s.arg(button); });
        QObject::connect(
            form.get(), &frmSysTray::SysTrayMouseMove, [this] { told << u"move"_s; });
        QObject::connect(
            form.get(), &frmSysTray::SysTrayDoubleClick,
            [this](int button) { told << u"double %1"_s.arg(button); });
        QObject::connect(form.get(), &frmSysTray::MenuClick, [this](int index, const QString& key) {
            told << u"menu %1 %2"_s.arg(index).arg(key);
        });
    }
    void load() {
        form->load();
        icons.forget();
    }

    TestProgram outside;
    CountingTick tick;
    RecordingTrayIcon icons;
    QIcon own = icon(Qt::red);
    std::unique_ptr<frmSysTray> form;
    QStringList told;
};

} // namespace

class SysTrayTest : public QObject {
    Q_OBJECT
private slots:
    void loadFillsTheRecordAndAddsTheIcon() {
        Tray tray;
        QCOMPARE(tray.form->windowTitle(), u"Sys Tray Interface"_s);
        QVERIFY(tray.icons.entries().isEmpty());
        tray.form->load();
        QCOMPARE(tray.icons.entries().size(), 1);
        QCOMPARE(tray.icons.entries().constFirst().call, Call::Add);
        const TrayRecord& record = tray.icons.record();
        QCOMPARE(record.cbSize, 88U);
        QCOMPARE(record.uFlags, 7U);
        QCOMPARE(record.uCallbackMessage, 512U);
        QCOMPARE(record.hWnd, tray.form->winId());
        QCOMPARE(record.uID, tray.own.cacheKey());
        QCOMPARE(record.hIcon.cacheKey(), tray.own.cacheKey());
        QCOMPARE(record.szTip.text(), u"Orvalis"_s);
        QVERIFY(tray.outside.program.state.trayActive);
        QVERIFY(!tray.form->isVisible());
        QVERIFY(tray.icons.menu() != nullptr);
    }

    void theIconIsAddedBeforeTheProgramCountsAsInTheTray() {
        Tray tray;
        std::optional<bool> wasInTray;
        tray.icons.atCall = [&](Call) { wasInTray = tray.outside.program.state.trayActive; };
        tray.form->load();
        QCOMPARE(wasInTray, std::optional(false));
        QVERIFY(tray.outside.program.state.trayActive);
    }

    void unloadTakesTheIconAway() {
        Tray tray;
        tray.load();
        tray.form->unload();
        QCOMPARE(tray.icons.count(Call::Delete), 1);
        QVERIFY(!tray.outside.program.state.trayActive);
        tray.icons.tell({512, 516, 515});
        QVERIFY2(tray.told.isEmpty(), "an unloaded form hears nothing");
    }

    void aNewTipIsSentWithFlag4() {
        Tray tray;
        tray.load();
        tray.form->SetToolTip(u" Orvalis - Alarm set at 07:30:00"_s);
        QCOMPARE(tray.form->ToolTip(), u" Orvalis - Alarm set at 07:30:00"_s);
        QCOMPARE(tray.icons.entries().size(), 1);
        QCOMPARE(tray.icons.entries().constFirst().call, Call::Modify);
        QCOMPARE(tray.icons.entries().constFirst().flags, 4U);
        QCOMPARE(tray.icons.entries().constFirst().tip, u" Orvalis - Alarm set at 07:30:00"_s);
    }

    void aNewIconIsSentWithFlag2() {
        Tray tray;
        tray.load();
        const QIcon other = icon(Qt::blue);
        tray.form->SetIconHandle(other);
        QCOMPARE(tray.form->IconHandle(), other.cacheKey());
        QCOMPARE(tray.icons.entries().size(), 1);
        QCOMPARE(tray.icons.entries().constFirst().flags, 2U);
        QCOMPARE(tray.icons.entries().constFirst().icon, other.cacheKey());
    }

    void theSameTipOrIconTwiceSendsNothing() {
        Tray tray;
        tray.load();
        const QIcon other = icon(Qt::blue);
        tray.form->SetToolTip(u" Orvalis "_s);
        tray.form->SetIconHandle(other);
        tray.icons.forget();
        tray.form->SetToolTip(u" Orvalis "_s);
        tray.form->SetIconHandle(other);
        QVERIFY(tray.icons.entries().isEmpty());
    }

    void aTipOfMoreThan63CharactersIsCut() {
        Tray tray;
        tray.load();
        tray.form->SetToolTip(QString(80, u'x'));
        QCOMPARE(tray.form->ToolTip(), QString(63, u'x'));
        QCOMPARE(tray.icons.entries().constFirst().tip, QString(63, u'x'));
    }

    void theFirstEntryReusesElement0AndTheSecondLoadsElement1() {
        Tray tray;
        QVERIFY(tray.form->mnuSysTray(0) != nullptr);
        QVERIFY(!tray.form->mnuSysTray(0)->isVisible());
        QVERIFY(tray.form->mnuSysTray(1) == nullptr);
        QAction* const design = tray.form->mnuSysTray(0);
        QCOMPARE(tray.form->AddMenuItem(u"Show Orvalis"_s, u"open"_s, true), 0);
        QCOMPARE(tray.form->mnuSysTray(0), design);
        QVERIFY(design->isVisible());
        QVERIFY(tray.form->mnuSysTray(1) == nullptr);
        QCOMPARE(tray.form->AddMenuItem(u"-"_s, {}, false), 1);
        QCOMPARE(tray.form->mnuSysTray(0)->text(), u"Show Orvalis"_s);
        QCOMPARE(tray.form->mnuSysTray(0)->objectName(), u"mnuSysTray(0)"_s);
        QCOMPARE(tray.form->mnuSysTray(1)->objectName(), u"mnuSysTray(1)"_s);
        QVERIFY(tray.form->mnuSysTray(1)->isSeparator());
        QVERIFY2(tray.form->mnuSysTray(1)->text().isEmpty(), "a text would make it a heading");
    }

    void entriesAreSwitchedByTheirIndexAndOthersAreLeft() {
        Tray tray;
        tray.form->AddMenuItem(u"A"_s, u"a"_s, false);
        tray.form->AddMenuItem(u"B"_s, u"b"_s, false);
        tray.form->EnableMenuItem(1, false);
        QVERIFY(tray.form->mnuSysTray(0)->isEnabled());
        QVERIFY(!tray.form->mnuSysTray(1)->isEnabled());
        tray.form->EnableMenuItem(-1, false);
        tray.form->EnableMenuItem(2, false);
        QVERIFY(tray.form->mnuSysTray(0)->isEnabled());
    }

    void removingAnEntryMovesThoseBehindItUp() {
        Tray tray;
        for (const auto& name : {u"A"_s, u"B"_s, u"-"_s, u"D"_s})
            tray.form->AddMenuItem(name, name.toLower(), false);
        tray.form->RemoveMenuItem(1);
        QVERIFY(tray.form->mnuSysTray(3) == nullptr);
        QVERIFY(tray.form->mnuSysTray(1)->isSeparator());
        QVERIFY(!tray.form->mnuSysTray(2)->isSeparator());
        QCOMPARE(tray.form->mnuSysTray(2)->text(), u"D"_s);
        tray.form->mnuSysTray(2)->trigger();
        QTRY_COMPARE(tray.told, QStringList{u"menu 2 d"_s});
        tray.form->RemoveMenuItem(7);
        QVERIFY(tray.form->mnuSysTray(2) != nullptr);
    }

    void removingEntry0OnlyTakesItsCaption() {
        Tray tray;
        tray.form->AddMenuItem(u"A"_s, u"a"_s, false);
        tray.form->AddMenuItem(u"B"_s, u"b"_s, false);
        tray.form->RemoveMenuItem(0);
        QCOMPARE(tray.form->mnuSysTray(0)->text(), QString());
        QCOMPARE(tray.form->mnuSysTray(1)->text(), u"B"_s);
    }

    void aDefaultIndexWithoutAnEntryGives0() {
        Tray tray;
        QCOMPARE(tray.form->DefaultMenuIndex(), 0);
        tray.form->AddMenuItem(u"A"_s, u"a"_s, false);
        tray.form->AddMenuItem(u"B"_s, u"b"_s, true);
        QCOMPARE(tray.form->DefaultMenuIndex(), 1);
        tray.form->SetDefaultMenuIndex(99);
        QCOMPARE(tray.form->DefaultMenuIndex(), 0);
        tray.form->SetDefaultMenuIndex(1);
        tray.form->SetDefaultMenuIndex(-1);
        QCOMPARE(tray.form->DefaultMenuIndex(), 0);
    }

    void theMenuShowsWithItsDefaultEntry() {
        Tray tray;
        tray.load();
        tray.form->AddMenuItem(u"A"_s, u"a"_s, false);
        tray.form->AddMenuItem(u"B"_s, u"b"_s, true);
        tray.form->ShowMenu();
        QCOMPARE(tray.icons.count(Call::PopUp), 1);
        QCOMPARE(tray.icons.menu()->defaultAction(), tray.form->mnuSysTray(1));
    }

    void withoutADefaultEntryTheFirstOneIsTheDefault() {
        Tray tray;
        tray.load();
        tray.form->AddMenuItem(u"A"_s, u"a"_s, false);
        tray.form->AddMenuItem(u"B"_s, u"b"_s, false);
        tray.form->ShowMenu();
        QCOMPARE(tray.icons.menu()->defaultAction(), tray.form->mnuSysTray(0));
    }

    void aClickOnAnEntryTellsIndexAndKey() {
        Tray tray;
        tray.form->AddMenuItem(u"A"_s, u"first"_s, false);
        tray.form->AddMenuItem(u"B"_s, u"second"_s, false);
        tray.form->mnuSysTray(1)->trigger();
        QTRY_COMPARE(tray.told, QStringList{u"menu 1 second"_s});
    }

    void theMouseCodesRaiseTheirEvents_data() {
        QTest::addColumn<int>("code");
        QTest::addColumn<QStringList>("told");
        QTest::newRow("move") << 512 << QStringList{u"move"_s};
        QTest::newRow("left down") << 513 << QStringList();
        QTest::newRow("left up is told as a press") << 514 << QStringList{u"down 1"_s};
        QTest::newRow("left double click") << 515 << QStringList{u"double 1"_s};
        QTest::newRow("right down") << 516 << QStringList{u"down 2"_s};
        QTest::newRow("right up") << 517 << QStringList{u"up 2"_s};
        QTest::newRow("right double click") << 518 << QStringList{u"double 2"_s};
        QTest::newRow("middle down") << 519 << QStringList();
        QTest::newRow("below") << 511 << QStringList();
        QTest::newRow("zero") << 0 << QStringList();
    }
    void theMouseCodesRaiseTheirEvents() {
        QFETCH(int, code);
        QFETCH(QStringList, told);
        Tray tray;
        tray.load();
        tray.icons.tell(code);
        QCOMPARE(tray.told, told);
    }

    void aLeftDoubleClickIsPressThenDoubleClickThenPressAgain() {
        Tray tray;
        tray.load();
        tray.icons.tell({513, 514, 515, 514});
        QCOMPARE(tray.told, (QStringList{u"down 1"_s, u"double 1"_s, u"down 1"_s}));
    }

    void itsTimerIsTheTickWhileItLives() {
        Tray tray;
        auto* timer = tray.form->findChild<AlignedTimer*>(u"Timer1"_s);
        QVERIFY(!timer->isActive());
        tray.load();
        QVERIFY(timer->isActive());
        emit timer->tick();
        QCOMPARE(tray.tick.runs, 1);
        QCOMPARE(tray.form->findChild<QLabel*>(u"lblVreme"_s)->text(), u"10 : 24 : 36"_s);
        QVERIFY(!tray.form->findChild<QLabel*>(u"lblVreme"_s)->isVisible());
        tray.form->unload();
        QVERIFY(!timer->isActive());
    }

    void anAlarmThatFiredIsDisarmed() {
        Tray tray;
        tray.load();
        tray.outside.program.state.alarmArmed = true;
        tray.tick.disarms = true;
        emit tray.form->findChild<AlignedTimer*>(u"Timer1"_s)->tick();
        QVERIFY(!tray.outside.program.state.alarmArmed);
        QVERIFY2(tray.icons.entries().isEmpty(), "tip and icon stay until the pointer comes");
    }

    void aFailureOfTheTickLeavesTheHandler() {
        Tray tray;
        tray.load();
        tray.tick.failure = ErrorNumber::FileNotFound;
        auto* timer = tray.form->findChild<AlignedTimer*>(u"Timer1"_s);
        QVERIFY_THROWS_EXCEPTION(RuntimeError, emit timer->tick());
    }
};

ORVALIS_TEST_MAIN_WITH(QApplication, SysTrayTest)
#include "sys_tray_test.moc"
