// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/file_saving.h"

#include "runtime/failure.h"
#include "runtime/unreadable_files.h"
#include "runtime/whole_file.h"
#include "support/failure_of.h"
#include "support/small_disk.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"
#include "support/without_root.h"

#include <QCoreApplication>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace orvalis;
using namespace orvalis::test;

class FileSavingTest : public QObject {
    Q_OBJECT
private slots:
    void savingWritesEveryByte();
    void savingReplacesAFileThroughALink();
    void savingLeavesNoTemporaryBehind();
    void savingIntoAMissingFolderIsPathNotFound();
    void savingOverAFolderOrADeviceIsAnAccessError();
    void savingToNoNameIsAnAccessError();
    void savingIntoAReadOnlyFolderIsDenied();
    void savingOverAReadOnlyFileIsDenied();
    void aFullDiskLeavesTheOldFile_data();
    void aFullDiskLeavesTheOldFile();
    void anUnreadableDocumentIsKeptOnce();
    void otherBytesAreKeptBesideTheFirst();
    void whatIsNotThereNeedsNoKeeping();
    void aFileThatMayNotBeReadIsKeptAsideUnread();
    void whereNothingCanBeKeptTheCallerHears();
    void savingKeepsTheRightsOfTheFile();
    void aFileWithTheLongestNameIsSaved();
    void aFolderThatRefusesNewFilesIsNotWritten();
    void aNewFileIsNeverPutOverAnother();
    void leftoversOfAKilledRunGoAndNothingElse();
    void aTemporaryIsOneOfTheLeftoversThatGo();
    void aNotedFileIsKeptAsideOnceWhoeverSaves();
    void aNoteHoldsForEverySpellingOfThePath();
    void whatWasReadSinceIsNotKeptAside();
    void aPathWithoutAFileIsNotNoted();
    void aFullDiskLeavesANotedFileItsName();
    void aNotedFileThatCannotBeKeptStays();
};

void FileSavingTest::savingWritesEveryByte() {
    const TemporaryFolder folder;
    QByteArray bytes(1000000, '\0');
    bytes[999999] = '\xFF';
    saveWhole(folder.file(u"x"_s), bytes);
    QVERIFY(folder.read(u"x"_s) == bytes);
    saveWhole(folder.file(u"x"_s), QByteArrayView());
    QCOMPARE(QFileInfo(folder.file(u"x"_s)).size(), 0);
}

void FileSavingTest::savingReplacesAFileThroughALink() {
    const TemporaryFolder folder;
    folder.write(u"real"_s, "old");
    QVERIFY(QFile::link(folder.file(u"real"_s), folder.file(u"link"_s)));
    saveWhole(folder.file(u"link"_s), "new");
    QVERIFY(QFileInfo(folder.file(u"link"_s)).isSymLink());
    QCOMPARE(folder.read(u"real"_s), QByteArray("new"));
}

void FileSavingTest::savingLeavesNoTemporaryBehind() {
    const TemporaryFolder folder;
    saveWhole(folder.file(u"x"_s), "1");
    saveWhole(folder.file(u"x"_s), "2");
    QCOMPARE(folder.names(), QStringList{u"x"_s});
}

void FileSavingTest::savingIntoAMissingFolderIsPathNotFound() {
    const TemporaryFolder folder;
    QCOMPARE(failureOf([&] { saveWhole(folder.file(u"missing/x"_s), "1"); }),
             ErrorNumber::PathNotFound);
}

void FileSavingTest::savingOverAFolderOrADeviceIsAnAccessError() {
    const TemporaryFolder folder;
    QCOMPARE(failureOf([&] { saveWhole(folder.path(), "1"); }), ErrorNumber::PathFileAccessError);
    QCOMPARE(failureOf([&] { saveWhole(folder.path() + u'/', "1"); }),
             ErrorNumber::PathFileAccessError);
    QCOMPARE(failureOf([] { saveWhole(u"/dev/full"_s, "1"); }), ErrorNumber::PathFileAccessError);
    QVERIFY(!QFileInfo(u"/dev/full"_s).isFile());
}

void FileSavingTest::savingToNoNameIsAnAccessError() {
    QCOMPARE(failureOf([] { saveWhole(QString(), "1"); }), ErrorNumber::PathFileAccessError);
}

void FileSavingTest::savingIntoAReadOnlyFolderIsDenied() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    folder.setWritable(false);
    QCOMPARE(failureOf([&] { saveWhole(folder.file(u"x"_s), "1"); }),
             ErrorNumber::PermissionDenied);
    folder.setWritable(true);
    QVERIFY(folder.names().isEmpty());
}

void FileSavingTest::savingOverAReadOnlyFileIsDenied() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    QVERIFY(QFile::setPermissions(folder.write(u"x"_s, "old"), QFile::ReadOwner));
    QCOMPARE(failureOf([&] { saveWhole(folder.file(u"x"_s), "new"); }),
             ErrorNumber::PermissionDenied);
    QCOMPARE(folder.read(u"x"_s), QByteArray("old"));
}

void FileSavingTest::aFullDiskLeavesTheOldFile_data() {
    QTest::addColumn<int>("size");
    QTest::newRow("in the buffer") << 2000;
    QTest::newRow("beyond the buffer") << 100000;
}

void FileSavingTest::aFullDiskLeavesTheOldFile() {
    QFETCH(int, size);
    const TemporaryFolder folder;
    folder.write(u"x"_s, "old");
    {
        const SmallDisk disk(1000);
        QCOMPARE(failureOf([&] { saveWhole(folder.file(u"x"_s), QByteArray(size, 'n')); }),
                 ErrorNumber::PathFileAccessError);
    }
    QCOMPARE(folder.read(u"x"_s), QByteArray("old"));
    QCOMPARE(folder.names(), QStringList{u"x"_s});
}

void FileSavingTest::anUnreadableDocumentIsKeptOnce() {
    const TemporaryFolder folder;
    const QString path = folder.write(u"Vazno.rtf"_s, "no rtf");
    QVERIFY(keepUnreadable(path));
    QVERIFY(keepUnreadable(path));
    QCOMPARE(folder.names(), (QStringList{u"Vazno.rtf"_s, u"Vazno.rtf.unreadable"_s}));
    QCOMPARE(folder.read(u"Vazno.rtf.unreadable"_s), QByteArray("no rtf"));
}

void FileSavingTest::otherBytesAreKeptBesideTheFirst() {
    const TemporaryFolder folder;
    keepUnreadable(folder.write(u"Vazno.rtf"_s, "first"));
    QVERIFY(QFile::remove(folder.file(u"Vazno.rtf"_s)));
    keepUnreadable(folder.write(u"Vazno.rtf"_s, "other"));
    keepUnreadable(folder.write(u"Vazno.rtf"_s, "other"));
    QCOMPARE(folder.read(u"Vazno.rtf.unreadable"_s), QByteArray("first"));
    QCOMPARE(folder.read(u"Vazno.rtf.unreadable2"_s), QByteArray("other"));
    QCOMPARE(folder.names().size(), 3);
}

void FileSavingTest::whatIsNotThereNeedsNoKeeping() {
    const TemporaryFolder folder;
    QVERIFY(keepUnreadable(folder.file(u"Vazno.rtf"_s)));
    QVERIFY(folder.names().isEmpty());
}

void FileSavingTest::aFileThatMayNotBeReadIsKeptAsideUnread() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    QVERIFY(QFile::setPermissions(folder.write(u"x"_s, "secret"), QFile::Permissions()));
    QVERIFY(keepUnreadable(folder.file(u"x"_s)));
    QVERIFY(folder.names().contains(u"x.unreadable"_s));
    QVERIFY(QFile::setPermissions(folder.file(u"x.unreadable"_s), QFile::ReadOwner));
    QCOMPARE(folder.read(u"x.unreadable"_s), QByteArray("secret"));
}

void FileSavingTest::whereNothingCanBeKeptTheCallerHears() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    const QString path = folder.write(u"x"_s, "1");
    folder.setWritable(false);
    QVERIFY(!keepUnreadable(path));
    folder.setWritable(true);
    QVERIFY(!keepUnreadable(folder.path())); // a folder in the document's place
}

void FileSavingTest::savingKeepsTheRightsOfTheFile() {
    const TemporaryFolder folder;
    constexpr QFile::Permissions Narrow = QFile::ReadOwner | QFile::WriteOwner;
    constexpr QFile::Permissions User = QFile::ReadUser | QFile::WriteUser;
    QVERIFY(QFile::setPermissions(folder.write(u"x"_s, "old"), Narrow));
    saveWhole(folder.file(u"x"_s), "new");
    QCOMPARE(QFile::permissions(folder.file(u"x"_s)), Narrow | User);
    const mode_t before = umask(027);
    saveWhole(folder.file(u"y"_s), "new");
    umask(before);
    QCOMPARE(QFile::permissions(folder.file(u"y"_s)), Narrow | User | QFile::ReadGroup);
}

void FileSavingTest::aFileWithTheLongestNameIsSaved() {
    const TemporaryFolder folder;
    const QString name(255, u'n');
    saveWhole(folder.file(name), "1");
    QCOMPARE(folder.names(), QStringList{name});
}

void FileSavingTest::aFolderThatRefusesNewFilesIsNotWritten() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    folder.write(u"x"_s, "old and longer");
    folder.setWritable(false);
    QCOMPARE(failureOf([&] { saveWhole(folder.file(u"x"_s), "new"); }),
             ErrorNumber::PermissionDenied);
    folder.setWritable(true);
    QCOMPARE(folder.read(u"x"_s), QByteArray("old and longer"));
}

void FileSavingTest::aNewFileIsNeverPutOverAnother() {
    const TemporaryFolder folder;
    QVERIFY(saveNew(folder.file(u"x"_s), "first"));
    QVERIFY(!saveNew(folder.file(u"x"_s), "second"));
    QVERIFY(QFile::link(folder.file(u"nowhere"_s), folder.file(u"link"_s)));
    QVERIFY(!saveNew(folder.file(u"link"_s), "third"));
    QCOMPARE(folder.read(u"x"_s), QByteArray("first"));
    QCOMPARE(folder.names().size(), 2);
}

void FileSavingTest::leftoversOfAKilledRunGoAndNothingElse() {
    const TemporaryFolder folder;
    folder.write(u".orvalis-0a1b2c3d.tmp"_s, "half");
    const QStringList others{u".orvalis-.tmp"_s,    u".orvalis-0a1b2c3d.tmp.rtf"_s,
                             u".orvalis.tmp"_s,     u"Vazno.rtf"_s,
                             u"Vazno.rtf.backup"_s, u"x.orvalis-0a1b2c3d.tmp"_s};
    for (const QString& name : others)
        folder.write(name, "mine");
    QVERIFY(QDir(folder.path()).mkdir(u".orvalis-00000000.tmp"_s));
    removeLeftovers(folder.path());
    QCOMPARE(folder.names(),
             (QStringList{u".orvalis-.tmp"_s, u".orvalis-00000000.tmp"_s,
                          u".orvalis-0a1b2c3d.tmp.rtf"_s, u".orvalis.tmp"_s, u"Vazno.rtf"_s,
                          u"Vazno.rtf.backup"_s, u"x.orvalis-0a1b2c3d.tmp"_s}));
}

void FileSavingTest::aTemporaryIsOneOfTheLeftoversThatGo() {
    const TemporaryFolder folder;
    {
        TemporaryFile file(folder.path());
        file.write("half");
        QCOMPARE(folder.names().size(), 1);
        removeLeftovers(folder.path());
        QVERIFY(folder.names().isEmpty());
    }
}

void FileSavingTest::aNotedFileIsKeptAsideOnceWhoeverSaves() {
    const TemporaryFolder folder;
    const QString path = folder.write(u"tmp2.brf"_s, "damaged");
    noteUnreadable(path);
    saveWhole(path, "new");
    saveWhole(path, "newer");
    QCOMPARE(folder.read(u"tmp2.brf"_s), QByteArray("newer"));
    QCOMPARE(folder.read(u"tmp2.brf.unreadable"_s), QByteArray("damaged"));
    QCOMPARE(folder.names().size(), 2);
}

void FileSavingTest::aNoteHoldsForEverySpellingOfThePath() {
    const TemporaryFolder folder;
    noteUnreadable(folder.write(u"x"_s, "damaged"));
    QVERIFY(QDir(folder.path()).mkdir(u"sub"_s));
    saveWhole(folder.file(u"sub/../x"_s), "new");
    QCOMPARE(folder.read(u"x.unreadable"_s), QByteArray("damaged"));
}

void FileSavingTest::whatWasReadSinceIsNotKeptAside() {
    const TemporaryFolder folder;
    const QString path = folder.write(u"x"_s, "read after all");
    noteUnreadable(path);
    noteReadable(path);
    saveWhole(path, "new");
    QCOMPARE(folder.names(), QStringList{u"x"_s});
}

void FileSavingTest::aPathWithoutAFileIsNotNoted() {
    const TemporaryFolder folder;
    noteUnreadable(folder.file(u"x"_s));
    saveWhole(folder.write(u"x"_s, "came since"), "new");
    QCOMPARE(folder.names(), QStringList{u"x"_s});
}

void FileSavingTest::aFullDiskLeavesANotedFileItsName() {
    const TemporaryFolder folder;
    const QString path = folder.write(u"Vazno.rtf"_s, QByteArray(5000, 'o'));
    noteUnreadable(path);
    {
        const SmallDisk disk(1000);
        QCOMPARE(failureOf([&] { saveWhole(path, QByteArray(2000, 'n')); }),
                 ErrorNumber::PathFileAccessError);
        QCOMPARE(folder.names(), QStringList{u"Vazno.rtf"_s});
        // With room for the new one alone, both are there in the end.
        saveWhole(path, QByteArray(500, 'n'));
    }
    QCOMPARE(folder.read(u"Vazno.rtf"_s), QByteArray(500, 'n'));
    QCOMPARE(folder.read(u"Vazno.rtf.unreadable"_s), QByteArray(5000, 'o'));
    QCOMPARE(folder.names().size(), 2);
}

void FileSavingTest::aNotedFileThatCannotBeKeptStays() {
    const TemporaryFolder folder;
    const QString path = folder.write(u"x"_s, "old");
    for (int i = 1; i < 100; ++i)
        folder.write(u"x.unreadable"_s + (i == 1 ? QString() : QString::number(i)), "other");
    noteUnreadable(path);
    QCOMPARE(failureOf([&] { saveWhole(path, "new"); }), ErrorNumber::PathFileAccessError);
    QCOMPARE(folder.read(u"x"_s), QByteArray("old"));
    QCOMPARE(folder.names().size(), 100);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, FileSavingTest)
#include "file_saving_test.moc"
