// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/desktop_tray.h"
#include "support/recording_tray_icon.h"
#include "support/test_main.h"

#include <QApplication>
#include <QMenu>
#include <QSet>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;
using Call = RecordingTrayIcon::Call;

namespace {

class FakeTrayWatch final : public TrayWatch {
public:
    explicit FakeTrayWatch(QSet<TrayKind> kinds)
        : m_kinds(std::move(kinds)) {}
    bool has(TrayKind kind) override { return m_kinds.contains(kind); }
    bool isSettled() const override { return m_settled; }
    void setSettled(bool settled) { m_settled = settled; }
    void setAwake(bool awake) override { m_awake = awake; }
    bool isAwake() const { return m_awake; }
    void become(const QSet<TrayKind>& kinds) {
        m_kinds = kinds;
        emit changed();
    }

private:
    QSet<TrayKind> m_kinds;
    bool m_settled = true;
    bool m_awake = false;
};

/// A desktop with the trays given, and what the program's icon does on it.
struct Desktop {
    explicit Desktop(const QSet<TrayKind>& kinds)
        : watch(new FakeTrayWatch(kinds))
        , tray(std::unique_ptr<TrayWatch>(watch), [this](std::optional<TrayKind> kind) {
            auto icon = std::make_unique<RecordingTrayIcon>();
            if (kind.has_value()) {
                inTray = icon.get();
                made.append(*kind);
            } else {
                standIn = icon.get();
            }
            return icon;
        }) {
        tray.setMenu(&menu);
        record.szTip.set(u" Orvalis "_s);
    }

    QMenu menu;
    RecordingTrayIcon* inTray = nullptr;
    RecordingTrayIcon* standIn = nullptr;
    QList<TrayKind> made;
    FakeTrayWatch* watch;
    DesktopTray tray;
    TrayRecord record;
};

bool shows(const RecordingTrayIcon* icon) {
    return icon != nullptr && icon->count(Call::Add) > icon->count(Call::Delete);
}

} // namespace

class DesktopTrayTest : public QObject {
    Q_OBJECT
private slots:
    void theIconStandsInTheDesktopsTrayWhereThereIsOne_data() {
        QTest::addColumn<QSet<TrayKind>>("kinds");
        QTest::addColumn<TrayKind>("used");
        QTest::newRow("StatusNotifier")
            << QSet{TrayKind::StatusNotifier} << TrayKind::StatusNotifier;
        QTest::newRow("XEmbed") << QSet{TrayKind::XEmbed} << TrayKind::XEmbed;
        QTest::newRow("both") << QSet{TrayKind::XEmbed, TrayKind::StatusNotifier}
                              << TrayKind::StatusNotifier;
    }
    void theIconStandsInTheDesktopsTrayWhereThereIsOne() {
        QFETCH(QSet<TrayKind>, kinds);
        QFETCH(TrayKind, used);
        Desktop desktop(kinds);
        desktop.tray.add(desktop.record);
        QCOMPARE(desktop.made, QList{used});
        QVERIFY(shows(desktop.inTray));
        QVERIFY(desktop.standIn == nullptr);
        QCOMPARE(desktop.inTray->menu(), &desktop.menu);
        QCOMPARE(desktop.inTray->entries().constFirst().tip, u" Orvalis "_s);
    }

    void aWindowStandsInWhereThereIsNoTray() {
        Desktop desktop({});
        desktop.tray.add(desktop.record);
        QVERIFY(shows(desktop.standIn));
        QVERIFY2(desktop.made.isEmpty(), "an icon made without a tray would settle its kind");
    }

    void theIconWaitsUntilTheTraysAreKnown() {
        Desktop desktop({TrayKind::XEmbed});
        desktop.watch->setSettled(false);
        desktop.tray.add(desktop.record);
        QVERIFY(desktop.made.isEmpty());
        QVERIFY(desktop.standIn == nullptr);
        desktop.watch->setSettled(true);
        desktop.watch->become({TrayKind::StatusNotifier, TrayKind::XEmbed});
        QCOMPARE(desktop.made, QList{TrayKind::StatusNotifier});
        QVERIFY(shows(desktop.inTray));
        QVERIFY(desktop.standIn == nullptr);
    }

    void anIconThatWasTakenBackMeanwhileStaysAway() {
        Desktop desktop({});
        desktop.watch->setSettled(false);
        desktop.tray.add(desktop.record);
        desktop.tray.remove(desktop.record);
        desktop.watch->setSettled(true);
        desktop.watch->become({TrayKind::XEmbed});
        QVERIFY(desktop.made.isEmpty());
        QVERIFY(desktop.standIn == nullptr);
    }

    void aTrayThatComesUpLaterTakesTheIconOverAsItIsThen() {
        Desktop desktop({});
        desktop.tray.add(desktop.record);
        desktop.record.szTip.set(u" Orvalis - Alarm set at 07:30:00"_s);
        desktop.record.uFlags = TrayRecord::TipChanged;
        desktop.tray.modify(desktop.record);
        desktop.watch->become({TrayKind::StatusNotifier});
        QVERIFY(!shows(desktop.standIn));
        QVERIFY(shows(desktop.inTray));
        QCOMPARE(desktop.inTray->entries().constFirst().tip, u" Orvalis - Alarm set at 07:30:00"_s);
    }

    void aTrayThatGoesAwayLeavesTheProgramReachable() {
        Desktop desktop({TrayKind::XEmbed});
        desktop.tray.add(desktop.record);
        desktop.watch->become({});
        QVERIFY(!shows(desktop.inTray));
        QVERIFY(shows(desktop.standIn));
        desktop.watch->become({TrayKind::XEmbed});
        QVERIFY(shows(desktop.inTray));
        QVERIFY(!shows(desktop.standIn));
    }

    void theKindOfTrayFoundFirstIsKept() {
        Desktop desktop({TrayKind::XEmbed});
        desktop.tray.add(desktop.record);
        desktop.watch->become({TrayKind::XEmbed, TrayKind::StatusNotifier});
        QCOMPARE(desktop.inTray->count(Call::Add), 1);
        desktop.watch->become({TrayKind::StatusNotifier});
        QVERIFY2(shows(desktop.standIn), "the icon could not get into the other kind of tray");
        QCOMPARE(desktop.made, QList{TrayKind::XEmbed});
    }

    void thePointersDoingsComeBackFromWhereverTheIconIs() {
        Desktop desktop({});
        QList<int> codes;
        connect(&desktop.tray, &TrayIcon::mouse, this, [&](int code) { codes << code; });
        desktop.tray.add(desktop.record);
        desktop.standIn->tell({512, 516});
        desktop.watch->become({TrayKind::XEmbed});
        desktop.inTray->tell(514);
        QCOMPARE(codes, (QList{512, 516, 514}));
    }

    void theMenuPopsUpWhereTheIconIs() {
        Desktop desktop({TrayKind::XEmbed});
        desktop.tray.add(desktop.record);
        desktop.tray.popUp();
        QCOMPARE(desktop.inTray->count(Call::PopUp), 1);
    }

    void outOfTheTrayNobodyWatchesForTrays() {
        Desktop desktop({TrayKind::XEmbed});
        QVERIFY(!desktop.watch->isAwake());
        desktop.tray.add(desktop.record);
        QVERIFY(desktop.watch->isAwake());
        desktop.tray.remove(desktop.record);
        QVERIFY(!desktop.watch->isAwake());
        QVERIFY(!shows(desktop.inTray));
        desktop.watch->become({});
        QVERIFY2(desktop.standIn == nullptr, "a program that is not in the tray needs no stand-in");
    }

    void whileOutOfTheTrayNothingIsSent() {
        Desktop desktop({TrayKind::XEmbed});
        desktop.tray.modify(desktop.record);
        desktop.tray.popUp();
        desktop.tray.remove(desktop.record);
        QVERIFY(desktop.inTray == nullptr);
    }
};

ORVALIS_TEST_MAIN_WITH(QApplication, DesktopTrayTest)
#include "desktop_tray_test.moc"
