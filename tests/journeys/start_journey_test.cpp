// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/driven_program.h"

#include "support/test_main.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <cstring>
#include <thread>
#include <vector>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;

namespace {

/// A session bus that takes every connection, answers those that come first as a bus in good health
/// does, and no others.
class SilentBus {
public:
    explicit SilentBus(int answered = 0) {
        m_listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, QFile::encodeName(path()).constData(),
                     sizeof(address.sun_path) - 1);
        if (::bind(m_listener, reinterpret_cast<sockaddr*>(&address), sizeof(address)) != 0 ||
            ::listen(m_listener, 64) != 0)
            qFatal("no bus can be made");
        m_answering = std::thread([this, answered] { answer(answered); });
    }
    ~SilentBus() {
        ::shutdown(m_listener, SHUT_RDWR);
        m_answering.join();
        for (const int client : m_clients)
            ::close(client);
        ::close(m_listener);
    }
    SilentBus(const SilentBus&) = delete;
    SilentBus& operator=(const SilentBus&) = delete;

    QString path() const { return m_folder.filePath(u"bus"_s); }

private:
    void answer(int count) {
        while (count-- > 0) {
            const int client = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
            if (client < 0)
                return;
            m_clients.push_back(client);
            const QByteArray words = "OK 1234deadbeef\r\nl\2\1\1";
            char greeting[256];
            if (::read(client, greeting, sizeof(greeting)) <= 0 ||
                ::write(client, words.constData(), static_cast<std::size_t>(words.size())) < 0)
                return;
        }
    }

    QTemporaryDir m_folder;
    int m_listener = -1;
    std::thread m_answering;
    std::vector<int> m_clients;
};

} // namespace

/// Starts on desktops that are not in order.
class StartJourneyTest : public QObject {
    Q_OBJECT
private slots:
    void aSilentSessionBusKeepsNoWindowAway_data();
    void aSilentSessionBusKeepsNoWindowAway();
    void aSessionBusThatFallsSilentHoldsNoWindow();
    void leftoversOfAKilledRunGoAtTheNextStart();
    void aClickIsAnsweredFromTheMomentThatTheWindowCanBeSeen();
};

void StartJourneyTest::aSilentSessionBusKeepsNoWindowAway_data() {
    QTest::addColumn<int>("answered");
    QTest::newRow("from the beginning") << 0;
    QTest::newRow("once it has answered") << 1;
}

void StartJourneyTest::aSilentSessionBusKeepsNoWindowAway() {
    QFETCH(int, answered);
    const SilentBus bus(answered);
    Stage stage({.tray = true});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    DrivenProgram program(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    program.setVariable(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path="_s + bus.path());
    QVERIFY(program.start());
    QVERIFY(program.waitVisible(u"frmnotes"_s));
    QVERIFY(program.click(u"frmnotes/imgopen1"_s));
    QVERIFY(program.waitVisible(u"frmnotes1"_s));
    QVERIFY(program.click(u"frmnotes1/imgMini"_s));
    QVERIFY(waitUntil([&] { return !program.control(u"frmnotes1"_s).visible; }, 10000));
    QVERIFY(program.isRunning());
}

void StartJourneyTest::aSessionBusThatFallsSilentHoldsNoWindow() {
    Stage stage({.sessionBus = true});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    DrivenProgram program(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    QVERIFY(program.start());
    // The tray is the one that asks the bus.
    QVERIFY(program.click(u"frmnotes/imgMini"_s));
    QVERIFY(program.waitVisible(u"trayWindow"_s));
    QVERIFY(program.doubleClick(u"trayWindow"_s));
    QVERIFY(program.waitVisible(u"frmnotes"_s));
    stage.freezeSessionBus();
    QVERIFY(program.click(u"frmnotes/imgMini"_s));
    QVERIFY(program.waitVisible(u"trayWindow"_s));
    QVERIFY(program.doubleClick(u"trayWindow"_s));
    QVERIFY(program.waitVisible(u"frmnotes"_s));
    QVERIFY(program.click(u"frmnotes/imgopen1"_s));
    QVERIFY(program.waitVisible(u"frmnotes1"_s));
}

void StartJourneyTest::leftoversOfAKilledRunGoAtTheNextStart() {
    Stage stage({});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    DrivenProgram program(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    QStringList leftovers;
    for (const QString& folder : {program.folder(), program.configFolder() + u"/orvalis"_s,
                                  program.configFolder() + u"/autostart"_s}) {
        QVERIFY(QDir().mkpath(folder));
        leftovers << folder + u"/.orvalis-0a1b2c3d.tmp"_s;
        QFile file(leftovers.constLast());
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(program.start());
    QVERIFY(program.waitVisible(u"frmnotes"_s));
    for (const QString& leftover : leftovers)
        QVERIFY2(!QFile::exists(leftover), qPrintable(leftover));
}

/// All that a click leads to is there before the window is, so that the first one is not lost: it
/// waits until the program takes it.
void StartJourneyTest::aClickIsAnsweredFromTheMomentThatTheWindowCanBeSeen() {
    Stage stage({});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    DrivenProgram program(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    QVERIFY(program.start());
    const QPoint set = program.waitAtRest(u"frmnotes/imgSet"_s).rect.center();
    QVERIFY(!set.isNull());
    for (int start = 0; start < 4; ++start) {
        program.kill();
        QVERIFY(waitUntil([&] { return !stage.display().showsAt(set); }, 10000));
        QVERIFY(program.launch());
        QVERIFY(waitUntil([&] { return stage.display().showsAt(set); }, 20000));
        QVERIFY(program.clickAt(set));
        QVERIFY(program.connectProbe());
        QVERIFY2(program.waitVisible(u"frmAlSet"_s), qPrintable(QString::number(start)));
    }
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, StartJourneyTest)
#include "start_journey_test.moc"
