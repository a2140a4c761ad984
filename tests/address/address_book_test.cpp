// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_book.h"

#include "address/address_file.h"
#include "address/second_address_file.h"
#include "runtime/app.h"
#include "runtime/failure.h"
#include "support/failure_of.h"
#include "support/folder_watch.h"
#include "support/scripted_boxes.h"
#include "support/small_disk.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"
#include "support/without_root.h"

#include <QCoreApplication>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

const QString Data = u"address1.dat"_s;
const QString Snapshot = u"address1tmp.dat"_s;
const QString Unreadable = u"address1.dat.unreadable"_s;
const QString NotFound =
    u"Data file address1.dat not found. Click on Add and create a new address data base."_s;

/// Fifteen lines of a contact of whom only the name is known.
QByteArray linesOf(const QByteArray& first) {
    return '"' + first + "\"\r\n" + QByteArray("\"\"\r\n").repeated(14);
}

/// A program's folder and the book in it.
struct Ground {
    TemporaryFolder folder;
    App app{folder.file(u"orvalis"_s), folder.file(u"data"_s), {}};
    AddressBook book{app};
    ScriptedBoxes boxes;

    /// What the panel does with the book when it loads.
    void open() {
        book.ensureFile(boxes);
        book.load();
    }
    void add(const QString& first) {
        book.makeRoom();
        AddressRecord record;
        record.First = first;
        book.record(book.AddressCount) = record;
        ++book.AddressCount;
    }
    QStringList firsts() const {
        QStringList names;
        for (const AddressRecord& record : book.records())
            names << record.First;
        return names;
    }
};

} // namespace

class AddressBookTest : public QObject {
    Q_OBJECT
private slots:
    void aFirstRunTellsOnceAndMakesAnEmptyFile();
    void whatTheRunStillHoldsFillsAFileThatIsGone();
    void aFolderOfThatNameIsNoFileAndIsPassedOver();
    void aFirstRunInAReadOnlyFolderTellsAndGoesOn();
    void recordsAreReadInTheOrderOfTheFile();
    void loadingForgetsThePictureAndTheFormerBook();
    void aFileThatEndsInsideARecordCountsItAndKeepsWhatTheElementHeld();
    void inAFreshElementTheMissingFieldsAreEmpty();
    void thereIsASpareElementBehindTheLastRecord();
    void anEmptyBookHasNoElements();
    void elementsBehindTheRecordsStayWhatTheyWere();
    void roomNeverShrinks();
    void thereIsNoRoomForMoreThan32767Records();
    void ofFortyThousandRecords32767Count();
    void aFileOfExactly32767RecordsIsReadWhole();
    void aFileThatHeldMoreThanTheRecordsIsKeptAsideOnce_data();
    void aFileThatHeldMoreThanTheRecordsIsKeptAsideOnce();
    void aFileThatWasReadIsNotKeptAside_data();
    void aFileThatWasReadIsNotKeptAside();
    void aFileThatMayNotBeReadIsKeptAside();
    void aFileBeyondTheLimitIsNotReadAndKeptAside();
    void theFileAndTheSnapshotHoldTheSame();
    void thereIsNoSnapshotUntilItIsAskedFor();
    void eachWriteReplacesTheWholeFileOnce();
    void onlyRecordsThatCountAreWritten();
    void aFieldOfAMegabyteSurvives();
    void aQuoteInAFieldBreaksTheNextLoad();
    void aReadOnlyFolderRefusesAndKeepsTheFile();
    void aFullDiskRefusesAndKeepsTheFile();
    void aSnapshotThatCannotBeWrittenIsFailure75_data();
    void aSnapshotThatCannotBeWrittenIsFailure75();
    void anyFileCanBeWritten();
};

void AddressBookTest::aFirstRunTellsOnceAndMakesAnEmptyFile() {
    Ground ground;
    ground.boxes.expect(NotFound, 16, Answer::Ok);
    ground.open();
    QCOMPARE(ground.folder.names(), QStringList{Data});
    QCOMPARE(ground.folder.read(Data), QByteArray());
    QCOMPARE(int(ground.book.AddressCount), 0);
    // The next start finds the file and has nothing to tell.
    AddressBook next(ground.app);
    next.ensureFile(ground.boxes);
    next.load();
    QCOMPARE(int(next.AddressCount), 0);
    QCOMPARE(ground.boxes.asked.size(), 1);
}

void AddressBookTest::whatTheRunStillHoldsFillsAFileThatIsGone() {
    Ground ground;
    ground.folder.write(Data, linesOf("Ann") + linesOf("Bob"));
    ground.open();
    QVERIFY(QFile::remove(ground.folder.file(Data)));
    ground.boxes.expect(NotFound, 16, Answer::Ok);
    ground.open();
    QCOMPARE(ground.folder.read(Data), linesOf("Ann") + linesOf("Bob"));
    QCOMPARE(ground.firsts(), (QStringList{u"Ann"_s, u"Bob"_s}));
}

void AddressBookTest::aFolderOfThatNameIsNoFileAndIsPassedOver() {
    Ground ground;
    QVERIFY(QDir(ground.folder.path()).mkdir(Data));
    ground.boxes.expect(NotFound, 16, Answer::Ok);
    ground.open();
    QCOMPARE(int(ground.book.AddressCount), 0);
    QVERIFY(QFileInfo(ground.folder.file(Data)).isDir());
}

void AddressBookTest::aFirstRunInAReadOnlyFolderTellsAndGoesOn() {
    const WithoutRoot ordinaryUser;
    Ground ground;
    ground.folder.setWritable(false);
    ground.boxes.expect(NotFound, 16, Answer::Ok);
    ground.open();
    ground.folder.setWritable(true);
    QCOMPARE(int(ground.book.AddressCount), 0);
    QVERIFY(ground.folder.names().isEmpty());
}

void AddressBookTest::recordsAreReadInTheOrderOfTheFile() {
    Ground ground;
    ground.folder.write(Data, linesOf("Zoe") + linesOf("Ann") + linesOf("Mia"));
    ground.open();
    QCOMPARE(ground.firsts(), (QStringList{u"Zoe"_s, u"Ann"_s, u"Mia"_s}));
    QCOMPARE(int(ground.book.AddressCount), 3);
}

void AddressBookTest::loadingForgetsThePictureAndTheFormerBook() {
    Ground ground;
    ground.folder.write(Data, linesOf("Ann") + linesOf("Bob"));
    ground.open();
    ground.book.PicPath = u"/home/ann.png"_s;
    ground.folder.write(Data, linesOf("Cyd"));
    ground.open();
    QCOMPARE(ground.firsts(), QStringList{u"Cyd"_s});
    QCOMPARE(ground.book.PicPath, QString());
}

void AddressBookTest::aFileThatEndsInsideARecordCountsItAndKeepsWhatTheElementHeld() {
    Ground ground;
    AddressRecord bob;
    bob.First = u"Bob"_s;
    bob.Tel = u"555"_s;
    ground.folder.write(Data, linesOf("Ann") + addressFileBytes(std::span(&bob, 1)));
    ground.open();
    ground.folder.write(Data, linesOf("Ann") + "\"Cyd\"\r\n\"Kay\"\r\n");
    ground.open();
    QCOMPARE(ground.firsts(), (QStringList{u"Ann"_s, u"Cyd"_s}));
    QCOMPARE(ground.book.record(1).Second, u"Kay"_s);
    QCOMPARE(ground.book.record(1).Tel, u"555"_s);
}

void AddressBookTest::inAFreshElementTheMissingFieldsAreEmpty() {
    Ground ground;
    ground.folder.write(Data, linesOf("Ann") + "\"Cyd\"\r\n");
    ground.open();
    QCOMPARE(int(ground.book.AddressCount), 2);
    AddressRecord cyd;
    cyd.First = u"Cyd"_s;
    QVERIFY(ground.book.record(1) == cyd);
}

void AddressBookTest::thereIsASpareElementBehindTheLastRecord() {
    Ground ground;
    ground.folder.write(Data, linesOf("Ann"));
    ground.open();
    QVERIFY(ground.book.record(1) == AddressRecord());
    const auto number = failureOf([&] { ground.book.record(2); });
    QCOMPARE(number, ErrorNumber::SubscriptOutOfRange);
    QCOMPARE(failureOf([&] { ground.book.record(-1); }), ErrorNumber::SubscriptOutOfRange);
}

void AddressBookTest::anEmptyBookHasNoElements() {
    Ground ground;
    ground.folder.write(Data, "");
    ground.open();
    QCOMPARE(failureOf([&] { ground.book.record(0); }), ErrorNumber::SubscriptOutOfRange);
}

void AddressBookTest::elementsBehindTheRecordsStayWhatTheyWere() {
    Ground ground;
    ground.folder.write(Data, linesOf("Ann") + linesOf("Bob") + linesOf("Cyd"));
    ground.open();
    --ground.book.AddressCount;
    QCOMPARE(ground.book.record(2).First, u"Cyd"_s);
    ground.folder.write(Data, linesOf("Dan"));
    ground.open();
    QCOMPARE(ground.book.record(1).First, u"Bob"_s);
    QCOMPARE(ground.book.record(2).First, u"Cyd"_s);
}

void AddressBookTest::roomNeverShrinks() {
    Ground ground;
    for (const QString& name : {u"Ann"_s, u"Bob"_s, u"Cyd"_s})
        ground.add(name);
    QCOMPARE(ground.book.AddressRecords.size(), std::size_t{4});
    ground.book.AddressCount = 0;
    ground.book.makeRoom();
    QCOMPARE(ground.book.AddressRecords.size(), std::size_t{4});
    QCOMPARE(ground.book.record(2).First, u"Cyd"_s);
}

void AddressBookTest::thereIsNoRoomForMoreThan32767Records() {
    Ground ground;
    for (int i = 0; i < 32767; ++i)
        ground.add(QString::number(i));
    QCOMPARE(failureOf([&] { ground.book.makeRoom(); }), ErrorNumber::Overflow);
    QCOMPARE(failureOf([&] { ++ground.book.AddressCount; }), ErrorNumber::Overflow);
    QCOMPARE(int(ground.book.AddressCount), 32767);
    ground.book.record(32767).First = u"spare"_s;
    QCOMPARE(ground.firsts().constLast(), u"32766"_s);
}

void AddressBookTest::ofFortyThousandRecords32767Count() {
    Ground ground;
    QByteArray bytes;
    for (int i = 0; i < 40'000; ++i)
        bytes += linesOf(QByteArray::number(i));
    ground.folder.write(Data, bytes);
    ground.open();
    QCOMPARE(int(ground.book.AddressCount), 32767);
    QCOMPARE(ground.firsts().constFirst(), u"0"_s);
    QCOMPARE(ground.firsts().constLast(), u"32766"_s);
    // Those that do not count went through the spare element.
    QCOMPARE(ground.book.record(32767).First, u"39999"_s);
    ground.book.WriteAddressFile();
    QCOMPARE(ground.folder.read(Unreadable), bytes);
}

void AddressBookTest::aFileOfExactly32767RecordsIsReadWhole() {
    Ground ground;
    QByteArray bytes;
    for (int i = 0; i < 32767; ++i)
        bytes += linesOf(QByteArray::number(i));
    ground.folder.write(Data, bytes);
    ground.open();
    QCOMPARE(int(ground.book.AddressCount), 32767);
    ground.book.WriteAddressFile();
    QCOMPARE(ground.folder.read(Data), bytes);
    QCOMPARE(ground.folder.names(), QStringList{Data});
}

void AddressBookTest::aFileThatHeldMoreThanTheRecordsIsKeptAsideOnce_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("text behind a quote") << "\"Ann \"Annie\" Lee\"\r\n" + linesOf("Bob");
    QTest::newRow("cut off inside a record") << linesOf("Ann") + "\"Bob\"\r\n\"Le";
    QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0", 18);
    QTest::newRow("another text") << QByteArray("Dear Ann,\nthank you for the letter.\n");
}

void AddressBookTest::aFileThatHeldMoreThanTheRecordsIsKeptAsideOnce() {
    QFETCH(QByteArray, bytes);
    Ground ground;
    ground.folder.write(Data, bytes);
    ground.open();
    QCOMPARE(ground.folder.names(), QStringList{Data});
    ground.book.WriteAddressFile();
    QCOMPARE(ground.folder.read(Unreadable), bytes);
    ground.add(u"Cyd"_s);
    ground.book.WriteAddressFile();
    QCOMPARE(ground.folder.names(), (QStringList{Data, Unreadable}));
    QCOMPARE(ground.folder.read(Unreadable), bytes);
}

void AddressBookTest::aFileThatWasReadIsNotKeptAside_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("one record") << linesOf("Ann");
    QTest::newRow("lines of another system") << QByteArray("\"Ann\"\n").repeated(15);
    QTest::newRow("commas, no quotes") << QByteArray("Ann,").repeated(15);
    QTest::newRow("blanks behind")
        << linesOf("Ann") + "\"Bob\"   \r\n" + QByteArray("\"\"\r\n").repeated(14) + "  \r\n\r\n";
}

void AddressBookTest::aFileThatWasReadIsNotKeptAside() {
    QFETCH(QByteArray, bytes);
    Ground ground;
    ground.folder.write(Data, bytes);
    ground.open();
    ground.book.WriteAddressFile();
    QCOMPARE(ground.folder.names(), QStringList{Data});
}

void AddressBookTest::aFileThatMayNotBeReadIsKeptAside() {
    const WithoutRoot ordinaryUser;
    Ground ground;
    ground.folder.write(Data, linesOf("Ann"));
    QVERIFY(QFile::setPermissions(ground.folder.file(Data), QFile::WriteOwner));
    ground.open();
    QCOMPARE(int(ground.book.AddressCount), 0);
    ground.add(u"Bob"_s);
    ground.book.WriteAddressFile();
    QCOMPARE(ground.folder.read(Data), linesOf("Bob"));
    const QString aside = ground.folder.file(Unreadable);
    QVERIFY(QFile::setPermissions(aside, QFile::ReadOwner | QFile::WriteOwner));
    QCOMPARE(ground.folder.read(Unreadable), linesOf("Ann"));
}

void AddressBookTest::aFileBeyondTheLimitIsNotReadAndKeptAside() {
    constexpr qint64 Size = qint64{200} * 1024 * 1024;
    Ground ground;
    QFile file(ground.folder.file(Data));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(Size));
    file.close();
    ground.open();
    QCOMPARE(int(ground.book.AddressCount), 0);
    ground.add(u"Bob"_s);
    ground.book.WriteAddressFile();
    QCOMPARE(ground.folder.read(Data), linesOf("Bob"));
    QCOMPARE(QFileInfo(ground.folder.file(Unreadable)).size(), Size);
}

void AddressBookTest::theFileAndTheSnapshotHoldTheSame() {
    Ground ground;
    QRandomGenerator random(3);
    ground.book.AddressRecords = randomRecords(random, 20, true);
    ground.book.AddressCount = 19;
    ground.book.WriteAddressFile();
    ground.book.UpisiTmp();
    QVERIFY(!ground.folder.read(Data).isEmpty());
    QCOMPARE(ground.folder.read(Snapshot), ground.folder.read(Data));
}

void AddressBookTest::thereIsNoSnapshotUntilItIsAskedFor() {
    Ground ground;
    ground.boxes.expect(NotFound, 16, Answer::Ok);
    ground.open();
    ground.add(u"Ann"_s);
    ground.book.WriteAddressFile();
    QCOMPARE(ground.folder.names(), QStringList{Data});
    ground.book.UpisiTmp();
    QCOMPARE(ground.folder.names(), (QStringList{Data, Snapshot}));
}

void AddressBookTest::eachWriteReplacesTheWholeFileOnce() {
    Ground ground;
    ground.folder.write(Data, QByteArray(5000, 'x'));
    ground.add(u"Ann"_s);
    const FolderWatch watch(ground.folder.path());
    ground.book.WriteAddressFile();
    QCOMPARE(watch.renamedTo(), QStringList{Data});
    QCOMPARE(ground.folder.read(Data), linesOf("Ann"));
    ground.book.UpisiTmp();
    QCOMPARE(watch.renamedTo(), QStringList{Snapshot});
    ground.book.load();
    QCOMPARE(watch.renamedTo(), QStringList());
}

void AddressBookTest::onlyRecordsThatCountAreWritten() {
    Ground ground;
    for (const QString& name : {u"Ann"_s, u"Bob"_s, u"Cyd"_s})
        ground.add(name);
    --ground.book.AddressCount;
    ground.book.WriteAddressFile();
    QCOMPARE(ground.folder.read(Data), linesOf("Ann") + linesOf("Bob"));
}

void AddressBookTest::aFieldOfAMegabyteSurvives() {
    Ground ground;
    ground.add(u"Ann"_s);
    ground.add(u"Bob"_s);
    const QString notes = u"a line of it, and on\r\n"_s.repeated(50'000);
    ground.book.record(0).Notes = notes;
    ground.book.WriteAddressFile();
    ground.book.load();
    QCOMPARE(int(ground.book.AddressCount), 2);
    QVERIFY(ground.book.record(0).Notes == notes);
    QCOMPARE(ground.book.record(1).First, u"Bob"_s);
}

void AddressBookTest::aQuoteInAFieldBreaksTheNextLoad() {
    Ground ground;
    ground.add(u"Ann \"Annie\", Lee"_s);
    ground.add(u"Bob"_s);
    ground.book.WriteAddressFile();
    ground.book.load();
    QCOMPARE(int(ground.book.AddressCount), 3);
    QCOMPARE(ground.book.record(0).First, u"Ann "_s);
    QCOMPARE(ground.book.record(0).Second, u"Lee\""_s);
    QCOMPARE(ground.book.record(1).First, QString());
    QCOMPARE(ground.book.record(1).Second, u"Bob"_s);
}

void AddressBookTest::aReadOnlyFolderRefusesAndKeepsTheFile() {
    const WithoutRoot ordinaryUser;
    Ground ground;
    ground.folder.write(Data, linesOf("Ann"));
    ground.open();
    ground.add(u"Bob"_s);
    ground.folder.setWritable(false);
    QCOMPARE(failureOf([&] { ground.book.WriteAddressFile(); }), ErrorNumber::PermissionDenied);
    ground.folder.setWritable(true);
    QCOMPARE(ground.folder.read(Data), linesOf("Ann"));
    QCOMPARE(ground.folder.names(), QStringList{Data});
}

void AddressBookTest::aFullDiskRefusesAndKeepsTheFile() {
    Ground ground;
    ground.folder.write(Data, linesOf("Ann"));
    ground.open();
    ground.add(QString(2000, u'x'));
    {
        const SmallDisk disk(1000);
        QCOMPARE(failureOf([&] { ground.book.WriteAddressFile(); }),
                 ErrorNumber::PathFileAccessError);
    }
    QCOMPARE(ground.folder.read(Data), linesOf("Ann"));
    QCOMPARE(ground.folder.names(), QStringList{Data});
    // With room again the next write has it.
    ground.book.WriteAddressFile();
    QCOMPARE(ground.folder.read(Data), linesOf("Ann") + linesOf(QByteArray(2000, 'x')));
}

void AddressBookTest::aSnapshotThatCannotBeWrittenIsFailure75_data() {
    QTest::addColumn<QString>("why");
    for (const QString& why : {u"a folder stands there"_s, u"read-only folder"_s, u"full disk"_s})
        QTest::newRow(qPrintable(why)) << why;
}

void AddressBookTest::aSnapshotThatCannotBeWrittenIsFailure75() {
    QFETCH(QString, why);
    const WithoutRoot ordinaryUser;
    Ground ground;
    ground.add(QString(2000, u'x'));
    const auto snapshot = [&] { return failureOf([&] { ground.book.UpisiTmp(); }); };
    if (why == u"full disk") {
        const SmallDisk disk(1000);
        QCOMPARE(snapshot(), ErrorNumber::PathFileAccessError);
    } else if (why == u"read-only folder") {
        ground.folder.setWritable(false);
        QCOMPARE(snapshot(), ErrorNumber::PathFileAccessError);
        ground.folder.setWritable(true);
    } else {
        QVERIFY(QDir(ground.folder.path()).mkdir(Snapshot));
        QCOMPARE(snapshot(), ErrorNumber::PathFileAccessError);
    }
}

void AddressBookTest::anyFileCanBeWritten() {
    Ground ground;
    ground.add(u"Ann"_s);
    ground.book.writeTo(ground.folder.file(u"backup.dat"_s));
    QCOMPARE(ground.folder.read(u"backup.dat"_s), linesOf("Ann"));
    QCOMPARE(failureOf([&] { ground.book.writeTo(ground.folder.file(u"no/backup.dat"_s)); }),
             ErrorNumber::PathNotFound);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, AddressBookTest)
#include "address_book_test.moc"
