// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/single_instance.h"

#include "support/small_disk.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QProcess>

#include <cstdio>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;
using namespace orvalis;
using namespace orvalis::test;

namespace {

/// Another copy of the program: this very executable, which tells whether it was first and holds
/// its place until its input ends.
class Copy {
public:
    Copy(const QString& dataFolder, const QString& lockFolder) {
        m_process.start(QCoreApplication::applicationFilePath(),
                        {u"single_instance_test"_s, u"--copy"_s, dataFolder, lockFolder});
    }
    ~Copy() {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }

    QByteArray told() {
        while (!m_process.canReadLine() && m_process.waitForReadyRead(30000)) {
        }
        return m_process.readLine().trimmed();
    }
    void kill() {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};

int runAsCopy(const QString& dataFolder, const QString& lockFolder) {
    const SingleInstance instance(dataFolder, lockFolder);
    std::puts(instance.PrevInstance() ? "second" : "first");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return 0;
}

} // namespace

class SingleInstanceTest : public QObject {
    Q_OBJECT
private slots:
    void theFirstCopyHasThePlaceAndTheSecondHasNot();
    void thePlaceIsFreeAgainAfterTheEnd();
    void anotherDataFolderHasAPlaceOfItsOwn();
    void twoWaysToTheSameFolderLeadToOnePlace();
    void aKilledCopyLeavesItsPlaceToTheNext();
    void thirtyCopiesAtOnceLeaveOne();
    void thirtyCopiesAtOnceAfterAKillLeaveOne();
    void whereTheRunTimeFolderTakesNoFileTheLockLiesBesideTheData_data();
    void whereTheRunTimeFolderTakesNoFileTheLockLiesBesideTheData();
    void aCopyWithARunTimeFolderSeesTheOneWithout();
    void aLockThatAKilledCopyLeftBesideTheDataIsTakenOver();
    void whereNoLockCanBeMadeTheCopyKnowsIt();
    void fullDisksMakeTheCopyUncertainAndKeepNoHalfLock();
};

void SingleInstanceTest::theFirstCopyHasThePlaceAndTheSecondHasNot() {
    const TemporaryFolder locks;
    const SingleInstance first(u"/data"_s, locks.path());
    QVERIFY(!first.PrevInstance());
    Copy second(u"/data"_s, locks.path());
    QCOMPARE(second.told(), QByteArray("second"));
    QVERIFY(QFileInfo::exists(first.lockPath())); // the refused copy left it alone
}

void SingleInstanceTest::thePlaceIsFreeAgainAfterTheEnd() {
    const TemporaryFolder locks;
    {
        Copy first(u"/data"_s, locks.path());
        QCOMPARE(first.told(), QByteArray("first"));
    }
    QVERIFY(locks.names().isEmpty());
    const SingleInstance next(u"/data"_s, locks.path());
    QVERIFY(!next.PrevInstance());
}

void SingleInstanceTest::anotherDataFolderHasAPlaceOfItsOwn() {
    const TemporaryFolder locks;
    const SingleInstance first(u"/data/a/orvalis"_s, locks.path());
    const SingleInstance other(u"/data/b/orvalis"_s, locks.path());
    QVERIFY(!first.PrevInstance());
    QVERIFY(!other.PrevInstance());
    QVERIFY(first.lockPath().contains(u"orvalis"_s));
    QCOMPARE(locks.names().size(), 2);
}

void SingleInstanceTest::twoWaysToTheSameFolderLeadToOnePlace() {
    const TemporaryFolder locks;
    const TemporaryFolder data;
    QVERIFY(QDir(data.path()).mkdir(u"real"_s));
    QVERIFY(QFile::link(data.file(u"real"_s), data.file(u"link"_s)));
    const SingleInstance first(data.file(u"real"_s), locks.path());
    Copy second(data.file(u"link/../real/"_s), locks.path());
    QCOMPARE(second.told(), QByteArray("second"));
    Copy third(data.file(u"link"_s), locks.path());
    QCOMPARE(third.told(), QByteArray("second"));
}

void SingleInstanceTest::aKilledCopyLeavesItsPlaceToTheNext() {
    const TemporaryFolder locks;
    Copy first(u"/data"_s, locks.path());
    QCOMPARE(first.told(), QByteArray("first"));
    first.kill();
    QCOMPARE(locks.names().size(), 1); // the lock is still there
    const SingleInstance next(u"/data"_s, locks.path());
    QVERIFY(!next.PrevInstance());
}

void SingleInstanceTest::thirtyCopiesAtOnceLeaveOne() {
    const TemporaryFolder locks;
    std::vector<std::unique_ptr<Copy>> copies;
    for (int i = 0; i < 30; ++i)
        copies.push_back(std::make_unique<Copy>(u"/data"_s, locks.path()));
    int first = 0;
    for (const auto& copy : copies) {
        const QByteArray told = copy->told();
        QVERIFY(told == "first" || told == "second");
        first += told == "first";
    }
    QCOMPARE(first, 1);
}

void SingleInstanceTest::thirtyCopiesAtOnceAfterAKillLeaveOne() {
    const TemporaryFolder locks;
    Copy killed(u"/data"_s, locks.path());
    QCOMPARE(killed.told(), QByteArray("first"));
    killed.kill();
    std::vector<std::unique_ptr<Copy>> copies;
    for (int i = 0; i < 30; ++i)
        copies.push_back(std::make_unique<Copy>(u"/data"_s, locks.path()));
    int first = 0;
    for (const auto& copy : copies)
        first += copy->told() == "first";
    QCOMPARE(first, 1);
}

void SingleInstanceTest::whereTheRunTimeFolderTakesNoFileTheLockLiesBesideTheData_data() {
    QTest::addColumn<QString>("lockFolder");
    QTest::newRow("missing") << u"/nowhere/at/all"_s;
    QTest::newRow("a file in its place") << u"/etc/passwd"_s;
    QTest::newRow("no files in it at all") << u"/proc/self"_s;
}

void SingleInstanceTest::whereTheRunTimeFolderTakesNoFileTheLockLiesBesideTheData() {
    QFETCH(QString, lockFolder);
    const TemporaryFolder data;
    {
        const SingleInstance first(data.path(), lockFolder);
        QVERIFY(!first.PrevInstance());
        QVERIFY(!first.isUncertain());
        QCOMPARE(data.names(), QStringList{u"orvalis.lock"_s});
        Copy second(data.path(), lockFolder);
        QCOMPARE(second.told(), QByteArray("second"));
    }
    QVERIFY(data.names().isEmpty());
}

void SingleInstanceTest::aCopyWithARunTimeFolderSeesTheOneWithout() {
    const TemporaryFolder data;
    const TemporaryFolder locks;
    const SingleInstance first(data.path(), u"/nowhere/at/all"_s);
    Copy second(data.path(), locks.path());
    QCOMPARE(second.told(), QByteArray("second"));
    QVERIFY(locks.names().isEmpty());
    QCOMPARE(data.names(), QStringList{u"orvalis.lock"_s});
}

void SingleInstanceTest::aLockThatAKilledCopyLeftBesideTheDataIsTakenOver() {
    const TemporaryFolder data;
    const TemporaryFolder locks;
    Copy killed(data.path(), u"/nowhere/at/all"_s);
    QCOMPARE(killed.told(), QByteArray("first"));
    killed.kill();
    QCOMPARE(data.names().size(), 1);
    const SingleInstance next(data.path(), locks.path());
    QVERIFY(!next.PrevInstance());
    QCOMPARE(QFileInfo(next.lockPath()).path(), locks.path());
    QVERIFY(data.names().isEmpty());
}

void SingleInstanceTest::whereNoLockCanBeMadeTheCopyKnowsIt() {
    const SingleInstance instance(u"/nowhere/either"_s, u"/nowhere/at/all"_s);
    QVERIFY(!instance.PrevInstance());
    QVERIFY(instance.isUncertain());
    QCOMPARE(instance.lockPath(), QString());
}

void SingleInstanceTest::fullDisksMakeTheCopyUncertainAndKeepNoHalfLock() {
    const TemporaryFolder data;
    const TemporaryFolder locks;
    {
        const SmallDisk disk(0);
        const SingleInstance instance(data.path(), locks.path());
        QVERIFY(instance.isUncertain());
    }
    QVERIFY(data.names().isEmpty());
    QVERIFY(locks.names().isEmpty());
}

ORVALIS_TEST_MAIN(int argc, char** argv) {
    fixedGround();
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 4 && arguments[1] == u"--copy"_s)
        return runAsCopy(arguments[2], arguments[3]);
    SingleInstanceTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "single_instance_test.moc"
