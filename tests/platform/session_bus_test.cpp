// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/dbus/session_bus.h"

#include "platform/child_environment.h"
#include "platform/dbus/session_bus_guard.h"
#include "support/environment.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QProcess>

#include <atomic>
#include <cstring>
#include <thread>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A bus that lets clients into its queue; what it says to the first of them is told.
class QuietBus {
public:
    explicit QuietBus(const QByteArray& path) {
        m_listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, path.constData(), sizeof(address.sun_path) - 1);
        if (::bind(m_listener, reinterpret_cast<sockaddr*>(&address), sizeof(address)) != 0 ||
            ::listen(m_listener, 8) != 0)
            qFatal("no bus can be made");
    }
    ~QuietBus() {
        ::close(m_listener);
        if (m_client >= 0)
            ::close(m_client);
    }
    QuietBus(const QuietBus&) = delete;
    QuietBus& operator=(const QuietBus&) = delete;

    void say(const QByteArray& words) {
        m_client = ::accept(m_listener, nullptr, nullptr);
        if (::write(m_client, words.constData(), words.size()) != words.size())
            qFatal("the client is gone");
    }
    void hangUp() { ::close(::accept(m_listener, nullptr, nullptr)); }

private:
    int m_listener = -1;
    int m_client = -1;
};

/// A client of the bus that waits for its answer.
class Connection {
public:
    explicit Connection(const QByteArray& path) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, path.constData(), sizeof(address.sun_path) - 1);
        if (::connect(m_number, reinterpret_cast<sockaddr*>(&address), sizeof(address)) != 0)
            qFatal("no connection can be made");
    }
    ~Connection() { ::close(m_number); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    int number() const { return m_number; }

private:
    int m_number = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
};

} // namespace

class SessionBusTest : public QObject {
    Q_OBJECT
private slots:
    void init() {
        m_folder = std::make_unique<TemporaryFolder>();
        m_environment = std::make_unique<Environment>();
        m_environment->set("XDG_RUNTIME_DIR", m_folder->path().toLocal8Bit());
        m_environment->unset("DBUS_SESSION_BUS_ADDRESS");
    }
    void cleanup() { m_environment.reset(); }

    void aBusThatNeverAnswersIsNotWaitedFor() {
        const QuietBus bus(path());
        SessionBusQuestion question;
        QVERIFY(!question.isAnswered(20ms));
    }

    void aBusThatTakesTheIdentityAndNothingElseHasNotAnswered() {
        QuietBus bus(path());
        SessionBusQuestion question;
        bus.say("OK 1234deadbeef\r\n");
        QVERIFY(!question.isAnswered(20ms));
    }

    void aBusThatGivesANameHasAnswered() {
        QuietBus bus(path());
        SessionBusQuestion question;
        bus.say("OK 1234deadbeef\r\nl\2\1\1");
        QVERIFY(question.isAnswered(10s));
    }

    void aBusThatRefusesOurIdentityIsAtWork() {
        QuietBus bus(path());
        SessionBusQuestion question;
        bus.say("REJECTED DBUS_COOKIE_SHA1\r\n");
        QVERIFY(question.isAnswered(10s));
    }

    void aBusThatHangsUpHoldsNobody() {
        QuietBus bus(path());
        SessionBusQuestion question;
        bus.hangUp();
        QVERIFY(question.isAnswered(10s));
    }

    void whereThereIsNoBusNothingIsAsked_data() {
        QTest::addColumn<QByteArray>("address");
        QTest::newRow("none") << QByteArray();
        QTest::newRow("one that is gone") << QByteArray("unix:path=/nowhere/bus");
        QTest::newRow("of another machine") << QByteArray("tcp:host=example.org,port=1");
        QTest::newRow("a path longer than any socket's") << "unix:path=/" + QByteArray(300, 'x');
    }
    void whereThereIsNoBusNothingIsAsked() {
        QFETCH(QByteArray, address);
        if (!address.isNull())
            m_environment->set("DBUS_SESSION_BUS_ADDRESS", address);
        SessionBusQuestion question;
        QVERIFY(question.isAnswered(0ms));
    }

    void aRealBusAnswers_data() {
        QTest::addColumn<QString>("address");
        QTest::newRow("path") << u"unix:path=%1"_s;
        QTest::newRow("abstract") << u"unix:abstract=%1"_s;
    }
    void aRealBusAnswers() {
        QFETCH(QString, address);
        QProcess daemon;
        daemon.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s,
                                        u"--address="_s + address.arg(m_folder->file(u"real"_s))});
        QVERIFY(daemon.waitForReadyRead(30000));
        const QByteArray told = daemon.readLine().trimmed();
        m_environment->set("DBUS_SESSION_BUS_ADDRESS", told);
        SessionBusQuestion question;
        QVERIFY(question.isAnswered(30s));
        SessionBusQuestion another;
        hideSilentSessionBus(another);
        QCOMPARE(qgetenv("DBUS_SESSION_BUS_ADDRESS"), told);
        daemon.kill();
        daemon.waitForFinished();
    }

    void whoWaitsForABusThatStoppedIsLetGo() {
        const QuietBus bus(path());
        const Connection waiting(path());
        {
            const SessionBusGuard guard(5ms);
            char byte = 0;
            QCOMPARE(::recv(waiting.number(), &byte, 1, 0), 0);
        }
    }

    void aBusThatAnswersKeepsItsConnections() {
        QuietBus bus(path());
        const Connection waiting(path());
        bus.say({}); // to that one
        std::atomic<bool> asked = false;
        std::thread answers([&] {
            bus.say("REJECTED\r\n");
            asked = true;
        });
        {
            const SessionBusGuard guard(300ms);
            QTRY_VERIFY_WITH_TIMEOUT(asked, 30000);
        }
        answers.join();
        char byte = 0;
        QCOMPARE(::recv(waiting.number(), &byte, 1, MSG_DONTWAIT), -1);
    }

    // The last one: what is hidden stays so.
    void aSilentBusIsHiddenFromTheToolkitAndNotFromProgramsThatWeStart() {
        const QuietBus bus(path());
        const QByteArray address = "unix:path=" + path();
        m_environment->set("DBUS_SESSION_BUS_ADDRESS", address);
        SessionBusQuestion question;
        hideSilentSessionBus(question);
        QCOMPARE(qgetenv("DBUS_SESSION_BUS_ADDRESS"), QByteArray("disabled:"));
        QCOMPARE(childEnvironment().value(u"DBUS_SESSION_BUS_ADDRESS"_s),
                 QString::fromLocal8Bit(address));
    }

private:
    QByteArray path() const { return m_folder->file(u"bus"_s).toLocal8Bit(); }

    std::unique_ptr<TemporaryFolder> m_folder;
    std::unique_ptr<Environment> m_environment;
};

ORVALIS_TEST_MAIN_WITH(QCoreApplication, SessionBusTest)
#include "session_bus_test.moc"
