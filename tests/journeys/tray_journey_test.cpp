// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/driven_program.h"
#include "ink.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QTest>
#include <QThread>

#include <memory>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;
using namespace orvalis::test;

namespace {

const QString WatcherName = u"org.kde.StatusNotifierWatcher"_s;
const QString ItemInterface = u"org.kde.StatusNotifierItem"_s;
const QString MenuInterface = u"com.canonical.dbusmenu"_s;

QDateTime moment(int hour, int minute, int second) {
    return {QDate(2026, 3, 14), QTime(hour, minute, second), Qt::UTC};
}

} // namespace

/// A StatusNotifier watcher with a host, such as a desktop has: it knows the item that registers.
class FakeTrayWatcher final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hostIsRegistered)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)
public:
    bool hostIsRegistered() const { return true; }
    int protocolVersion() const { return 0; }
    QStringList items() const {
        const QMutexLocker lock(&m_mutex);
        return m_items;
    }
public slots:
    void RegisterStatusNotifierItem(const QString& service) {
        const QMutexLocker lock(&m_mutex);
        m_items << service;
    }

private:
    mutable QMutex m_mutex;
    QStringList m_items;
};

/// The host's side of a StatusNotifier desktop. It answers from a thread of its own, so that the
/// program never waits for the test.
class TrayHost {
public:
    explicit TrayHost(const QString& busAddress)
        : m_bus(QDBusConnection::connectToBus(busAddress, u"tray-host"_s)) {
        m_watcher.moveToThread(&m_thread);
        m_thread.start();
        m_bus.registerObject(u"/StatusNotifierWatcher"_s, &m_watcher,
                             QDBusConnection::ExportAllSlots |
                                 QDBusConnection::ExportAllProperties);
        m_up = m_bus.registerService(WatcherName);
    }
    ~TrayHost() {
        m_bus.unregisterService(WatcherName);
        QDBusConnection::disconnectFromBus(u"tray-host"_s);
        m_thread.quit();
        m_thread.wait();
    }
    TrayHost(const TrayHost&) = delete;
    TrayHost& operator=(const TrayHost&) = delete;

    bool isUp() const { return m_up; }
    bool hasItem() const { return !m_watcher.items().isEmpty(); }
    /// Whether the item that came last is up; it goes with the tray and comes again.
    bool itemAnswers() { return !menuPath().isEmpty(); }

    QVariant property(const QString& name) {
        QDBusMessage ask = call(u"/StatusNotifierItem"_s, u"org.freedesktop.DBus.Properties"_s,
                                u"Get"_s, {ItemInterface, name});
        return ask.arguments().value(0).value<QDBusVariant>().variant();
    }
    /// The tool tip's title.
    QString tip() {
        const auto argument = property(u"ToolTip"_s).value<QDBusArgument>();
        QString icon;
        QString title;
        QString words;
        argument.beginStructure();
        argument >> icon;
        argument.beginArray();
        while (!argument.atEnd()) {
            int width = 0;
            int height = 0;
            QByteArray pixels;
            argument.beginStructure();
            argument >> width >> height >> pixels;
            argument.endStructure();
        }
        argument.endArray();
        argument >> title >> words;
        argument.endStructure();
        return title;
    }
    void activate() { call(u"/StatusNotifierItem"_s, ItemInterface, u"Activate"_s, {10, 10}); }
    void askForMenu() { call(u"/StatusNotifierItem"_s, ItemInterface, u"ContextMenu"_s, {10, 10}); }
    /// What the host's own copy of the menu shows when it opens it, separators as "-".
    QStringList openMenu() {
        call(menuPath(), MenuInterface, u"AboutToShow"_s, {0});
        QStringList captions;
        for (const Entry& entry : entries())
            captions << entry.caption;
        return captions;
    }
    bool choose(const QString& caption) {
        for (const Entry& entry : entries()) {
            if (entry.caption != caption)
                continue;
            call(menuPath(), MenuInterface, u"Event"_s,
                 {entry.id, u"clicked"_s, QVariant::fromValue(QDBusVariant(QString())),
                  QVariant::fromValue(0U)});
            return true;
        }
        return false;
    }

private:
    struct Entry {
        int id;
        QString caption;
    };

    QString menuPath() { return property(u"Menu"_s).value<QDBusObjectPath>().path(); }
    QDBusMessage call(const QString& path, const QString& interface, const QString& method,
                      const QVariantList& arguments) {
        QDBusMessage message =
            QDBusMessage::createMethodCall(m_watcher.items().constLast(), path, interface, method);
        message.setArguments(arguments);
        return m_bus.call(message, QDBus::Block, 5000);
    }
    QList<Entry> entries() {
        const QDBusMessage reply =
            call(menuPath(), MenuInterface, u"GetLayout"_s, {0, -1, QStringList()});
        QList<Entry> found;
        const auto root = reply.arguments().value(1).value<QDBusArgument>();
        int id = 0;
        QVariantMap properties;
        root.beginStructure();
        root >> id >> properties;
        root.beginArray();
        while (!root.atEnd()) {
            QDBusVariant child;
            root >> child;
            const auto entry = child.variant().value<QDBusArgument>();
            entry.beginStructure();
            entry >> id >> properties;
            if (properties.value(u"visible"_s, true).toBool())
                found.append({id, properties.value(u"type"_s).toString() == u"separator"_s
                                      ? u"-"_s
                                      : properties.value(u"label"_s).toString()});
            entry.endStructure();
        }
        root.endArray();
        root.endStructure();
        return found;
    }

    QDBusConnection m_bus;
    QThread m_thread;
    FakeTrayWatcher m_watcher;
    bool m_up = false;
};

/// The life in the tray on desktops with a tray of either kind and on one without.
class TrayJourneyTest : public QObject {
    Q_OBJECT
private slots:
    void anAlarmLivesInATrayOfIcons();
    void anAlarmLivesOnADesktopWithoutATray();
    void aTrayThatComesAndGoesLeavesTheProgramReachable();
    void anAlarmLivesInAStatusNotifierTray();
    void withStartSetTheProgramComesUpInTheTrayAlone();
    void aMissingMessageEndsTheProgramInTheTrayAndTheTickInTheWindow();

private:
    void aliveInWindowTray(Stage& stage, const QString& iconName);
    /// Waits for a window and until the desktop has put it where it can be pressed.
    static bool settled(DrivenProgram& program, const QString& name);
    static bool openMenu(DrivenProgram& program, const QString& iconName);
    void setAlarm(DrivenProgram& program, const QString& media);
    QStringList visibleEntries(DrivenProgram& program);
    static QString opened(const DrivenProgram& program);
    static void writeOpener(const DrivenProgram& program);
};

bool TrayJourneyTest::settled(DrivenProgram& program, const QString& name) {
    return program.waitAtRest(name).visible;
}

bool TrayJourneyTest::openMenu(DrivenProgram& program, const QString& iconName) {
    return program.click(iconName, 3) && program.waitVisible(u"mnuPopup"_s, 5000);
}

void TrayJourneyTest::writeOpener(const DrivenProgram& program) {
    QFile script(program.binFolder() + u"/xdg-open"_s);
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\nprintf '%s\\n' \"$#\" \"$@\" >> '" +
                 QFile::encodeName(program.folder()) + "/opened'\n");
    script.setPermissions(script.permissions() | QFile::ExeOwner);
}

QString TrayJourneyTest::opened(const DrivenProgram& program) {
    return QString::fromUtf8(program.fileBytes(u"opened"_s));
}

/// 10:40, with a file and a message, all through the dialog.
void TrayJourneyTest::setAlarm(DrivenProgram& program, const QString& media) {
    QVERIFY(program.click(u"frmnotes/imgSet"_s));
    QVERIFY(program.waitVisible(u"frmAlSet"_s));
    QVERIFY(program.click(u"frmAlSet/Combo1"_s));
    program.key(u"ctrl+a"_s);
    program.type(u"10"_s);
    QVERIFY(program.click(u"frmAlSet/Combo2"_s));
    program.key(u"ctrl+a"_s);
    program.type(u"40"_s);
    QVERIFY(program.waitText(u"frmAlSet/Label5"_s, u"10 : 40 : 00"_s));
    QCOMPARE(program.control(u"frmAlSet"_s).title, u"Alarm Time Set:  10 : 40 : 00"_s);
    if (!media.isEmpty()) {
        QVERIFY(program.click(u"frmAlSet/imgMed"_s));
        QVERIFY(program.waitVisible(u"FileDialog"_s));
        program.type(media);
        program.key(u"Return"_s);
        QVERIFY(waitUntil([&] { return !program.control(u"FileDialog"_s).visible; }, 5000));
    }
    QVERIFY(settled(program, u"frmAlSet"_s));
    QVERIFY(program.click(u"frmAlSet/rt1"_s));
    program.type(u"Tea is ready"_s);
    QVERIFY(program.waitText(u"frmAlSet/rt1"_s, u"Tea is ready"_s));
    QVERIFY(program.click(u"frmAlSet/imgOK"_s));
    QVERIFY(program.waitText(u"frmnotes/lblAlarm"_s, u"10:40:00"_s));
    QVERIFY(program.control(u"frmnotes/imgStop"_s).visible);
    QVERIFY(!program.control(u"frmnotes/imgSet"_s).visible);
    QCOMPARE(program.fileBytes(u"Msg.txt"_s), QByteArray("Alarm time: 10:40:00\r\nTea is ready"));
}

QStringList TrayJourneyTest::visibleEntries(DrivenProgram& program) {
    QStringList captions;
    for (const Control& window : program.windows())
        if (window.name == u"mnuPopup"_s)
            for (const QString& entry : window.entries)
                captions << entry;
    return captions;
}

void TrayJourneyTest::aliveInWindowTray(Stage& stage, const QString& iconName) {
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    DrivenProgram program(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    writeOpener(program);
    const QString media = program.folder() + u"/a song;$(touch gone).mp3"_s;
    QFile song(media);
    QVERIFY(song.open(QIODevice::WriteOnly));
    song.close();
    program.setClock(moment(10, 24, 5));
    QVERIFY(program.start());
    QVERIFY(settled(program, u"frmnotes"_s));
    setAlarm(program, media);
    if (QTest::currentTestFailed())
        return;

    QVERIFY(program.click(u"frmnotes/imgMini"_s));
    QVERIFY(settled(program, iconName));
    QVERIFY(!program.control(u"frmnotes"_s).visible);
    QCOMPARE(program.control(iconName).tip, u" Orvalis - Alarm set at 10:40:00"_s);
    QVERIFY(openMenu(program, iconName));
    QVERIFY(visibleEntries(program).contains(u"Disable Alarm"_s));
    QVERIFY(program.choose(u"Exit"_s));
    QVERIFY(waitUntil([&] { return program.messageBox().found; }, 5000));
    QCOMPARE(program.messageBox().text, u"The alarm is set.\nDisable alarm before you quit."_s);
    QVERIFY(program.answer(u"OK"_s));

    QVERIFY(program.clickAt(QPoint(300, 300)));
    program.setClock(moment(10, 39, 57));
    QVERIFY(program.waitVisible(u"xn"_s, 15000));
    QCOMPARE(program.control(u"xn/Text1"_s).text, u"Alarm time: 10:40:00\nTea is ready"_s);
    const Ink alarm = inkOn(program, u"xn/Text1"_s);
    QVERIFY(alarm.all > 0);
    QCOMPARE(alarm.red, alarm.all);
    QVERIFY(waitUntil([&] { return opened(program) == u"1\n"_s + media + u'\n'; }, 5000));
    QCOMPARE(program.control(iconName).tip, u" Orvalis - Alarm set at 10:40:00"_s);
    QVERIFY(program.point(iconName));
    QVERIFY(waitUntil([&] { return program.control(iconName).tip == u" Orvalis "_s; }, 5000));

    QVERIFY(program.doubleClick(iconName));
    QVERIFY(settled(program, u"frmnotes"_s));
    QVERIFY(waitUntil([&] { return !program.control(iconName).visible; }, 5000));
    QVERIFY(program.waitText(u"frmnotes/lblAlarm"_s, QString()));

    QVERIFY(program.click(u"frmnotes/imgExit"_s));
    QVERIFY2(settled(program, iconName), "a sticker is open: close goes to the tray");
    QVERIFY(openMenu(program, iconName));
    QVERIFY2(!visibleEntries(program).contains(u"Options"_s), "the pointer has passed over it");
    QVERIFY(program.choose(u"Create Sticker"_s));
    const Ink plain = plainInk(program, {u"Alarm time: 10:40:00"_s, u"Tea is ready"_s});
    QVERIFY(plain.all > 0);
    QCOMPARE(plain.red, 0);
    QVERIFY2(alarm.all > BoldOverPlain * plain.all,
             qPrintable(u"%1 against %2"_s.arg(alarm.all).arg(plain.all)));
    QVERIFY(openMenu(program, iconName));
    QVERIFY(program.choose(u"Exit"_s));
    QVERIFY(waitUntil([&] { return program.messageBox().found; }, 5000));
    QCOMPARE(program.messageBox().text, u"This will close all created stickers. Continue?"_s);
    QCOMPARE(program.messageBox().title, u"Exit Orvalis"_s);
    QVERIFY(program.answer(u"No"_s));
    QVERIFY(waitUntil([&] { return !program.messageBox().found; }, 5000));
    QVERIFY(program.isRunning());
    QVERIFY(openMenu(program, iconName));
    QVERIFY(program.choose(u"Exit"_s));
    QVERIFY(program.answer(u"Yes"_s));
    QVERIFY(program.waitForEnd());
    QVERIFY(!QFileInfo::exists(program.folder() + u"/gone"_s));
}

void TrayJourneyTest::anAlarmLivesInATrayOfIcons() {
    Stage stage({.tray = true});
    aliveInWindowTray(stage, u"QSystemTrayIconSys"_s);
}

void TrayJourneyTest::anAlarmLivesOnADesktopWithoutATray() {
    Stage stage({});
    aliveInWindowTray(stage, u"trayWindow"_s);
}

void TrayJourneyTest::aTrayThatComesAndGoesLeavesTheProgramReachable() {
    const QString inTray = u"QSystemTrayIconSys"_s;
    const QString standIn = u"trayWindow"_s;
    Stage stage({.tray = true});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    DrivenProgram program(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    QVERIFY(program.start());
    QVERIFY(program.click(u"frmnotes/imgMini"_s));
    QVERIFY(program.waitVisible(inTray));
    QVERIFY(!program.control(standIn).visible);

    stage.stopTray();
    QVERIFY(program.waitVisible(standIn));
    QCOMPARE(program.control(standIn).tip, u" Orvalis "_s);
    QVERIFY(program.doubleClick(standIn));
    QVERIFY(program.waitVisible(u"frmnotes"_s));
    QVERIFY(waitUntil([&] { return !program.control(standIn).visible; }, 5000));
    QVERIFY(program.click(u"frmnotes/imgMini"_s));
    QVERIFY(program.waitVisible(standIn));

    stage.startTray();
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    QVERIFY(program.waitVisible(inTray));
    QVERIFY(waitUntil([&] { return !program.control(standIn).visible; }, 5000));
    QVERIFY(openMenu(program, inTray));
    QVERIFY(program.choose(u"Exit"_s));
    QVERIFY(program.waitForEnd());
}

void TrayJourneyTest::anAlarmLivesInAStatusNotifierTray() {
    Stage stage({.sessionBus = true});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    TrayHost host(stage.environment().value(u"DBUS_SESSION_BUS_ADDRESS"_s));
    QVERIFY(host.isUp());
    DrivenProgram program(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    writeOpener(program);
    program.setClock(moment(10, 24, 5));
    QVERIFY(program.start());
    QVERIFY(settled(program, u"frmnotes"_s));
    setAlarm(program, {});
    if (QTest::currentTestFailed())
        return;
    QVERIFY(program.click(u"frmnotes/imgMini"_s));
    QVERIFY(waitUntil([&] { return host.hasItem(); }, 10000));
    QVERIFY(!program.control(u"trayWindow"_s).visible);
    QVERIFY(waitUntil([&] { return host.tip() == u" Orvalis - Alarm set at 10:40:00"_s; }, 5000));
    QCOMPARE(host.openMenu(),
             (QStringList{u"Show Orvalis"_s, u"-"_s, u"Create Sticker"_s, u"-"_s,
                          u"Disable Alarm"_s, u"-"_s, u"Options"_s, u"-"_s, u"Exit"_s}));
    QVERIFY(host.choose(u"Exit"_s));
    QVERIFY(waitUntil([&] { return program.messageBox().found; }, 5000));
    QCOMPARE(program.messageBox().text, u"The alarm is set.\nDisable alarm before you quit."_s);
    QVERIFY(program.answer(u"OK"_s));

    program.setClock(moment(10, 39, 57));
    QVERIFY(program.waitVisible(u"xn"_s, 15000));
    QVERIFY(waitUntil(
        [&] { return opened(program) == u"1\n"_s + program.folder() + u"/Alarm.wav\n"_s; }, 5000));
    QCOMPARE(host.tip(), u" Orvalis - Alarm set at 10:40:00"_s);
    QCOMPARE(host.openMenu(), (QStringList{u"Show Orvalis"_s, u"-"_s, u"Create Sticker"_s, u"-"_s,
                                           u"Options"_s, u"-"_s, u"Exit"_s}));
    QCOMPARE(host.tip(), u" Orvalis "_s);

    host.activate();
    host.activate();
    QVERIFY2(settled(program, u"frmnotes"_s), "two quick activations are a double click");
    QVERIFY(program.click(u"frmnotes/imgExit"_s));
    QVERIFY(waitUntil([&] { return !program.control(u"frmnotes"_s).visible; }, 5000));
    QVERIFY(waitUntil([&] { return host.itemAnswers(); }, 5000));
    QCOMPARE(host.openMenu(),
             (QStringList{u"Show Orvalis"_s, u"-"_s, u"Create Sticker"_s, u"-"_s, u"Exit"_s}));
    host.askForMenu();
    QVERIFY2(program.waitVisible(u"mnuPopup"_s), "a host without menus of its own gets ours");
    program.key(u"Escape"_s);
    QVERIFY(host.choose(u"Exit"_s));
    QVERIFY(waitUntil([&] { return program.messageBox().found; }, 5000));
    QVERIFY(program.answer(u"Yes"_s));
    QVERIFY(program.waitForEnd());
}

void TrayJourneyTest::withStartSetTheProgramComesUpInTheTrayAlone() {
    Stage stage({});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    DrivenProgram program(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    QVERIFY(program.start());
    QVERIFY(settled(program, u"frmnotes"_s));
    QVERIFY(program.click(u"frmnotes/imgHelp"_s));
    QVERIFY(program.choose(u"mnuh2"_s));
    QVERIFY(program.waitVisible(u"frmOptions"_s));
    QVERIFY(program.click(u"frmOptions/Check1"_s));
    QVERIFY(program.click(u"frmOptions/imgOK"_s));
    const QString autostart = program.configFolder() + u"/autostart"_s;
    QVERIFY(waitUntil([&] { return !QDir(autostart).entryList(QDir::Files).isEmpty(); }, 5000));
    program.kill();

    QVERIFY(program.start());
    QVERIFY(settled(program, u"trayWindow"_s));
    QVERIFY(!program.control(u"frmnotes"_s).visible);
    QCOMPARE(program.control(u"trayWindow"_s).tip, u" Orvalis "_s);
    QVERIFY(program.doubleClick(u"trayWindow"_s));
    QVERIFY(program.click(u"frmnotes/imgHelp"_s));
    QVERIFY(program.choose(u"mnuh2"_s));
    QVERIFY(program.waitVisible(u"frmOptions"_s));
    QVERIFY(program.control(u"frmOptions/Check1"_s).checked);
    QVERIFY(program.click(u"frmOptions/Check1"_s));
    QVERIFY(program.click(u"frmOptions/imgOK"_s));
    QVERIFY(waitUntil([&] { return QDir(autostart).entryList(QDir::Files).isEmpty(); }, 5000));
}

void TrayJourneyTest::aMissingMessageEndsTheProgramInTheTrayAndTheTickInTheWindow() {
    Stage stage({});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    DrivenProgram program(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    writeOpener(program);
    program.setClock(moment(10, 24, 5));
    QVERIFY(program.start());
    setAlarm(program, {});
    if (QTest::currentTestFailed())
        return;
    QVERIFY(QFile::remove(program.folder() + u"/Msg.txt"_s));
    program.setClock(moment(10, 39, 57));
    QVERIFY(waitUntil([&] { return !opened(program).isEmpty(); }, 15000));
    sleepMilliseconds(1500);
    QVERIFY(program.isRunning());
    QVERIFY(!program.messageBox().found);
    QCOMPARE(program.control(u"frmnotes/lblAlarm"_s).text, u"10:40:00"_s);

    QVERIFY(program.click(u"frmnotes/imgMini"_s));
    QVERIFY(settled(program, u"trayWindow"_s));
    program.setClock(moment(10, 39, 57).addDays(1));
    QVERIFY(waitUntil([&] { return program.messageBox().found; }, 15000));
    QCOMPARE(program.messageBox().text, u"Run-time error '53':\n\nFile not found"_s);
    QVERIFY(program.answer(u"OK"_s));
    QVERIFY(program.waitForEnd());
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, TrayJourneyTest)
#include "tray_journey_test.moc"
