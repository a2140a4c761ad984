// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/files.h"

#include "runtime/failure.h"
#include "support/small_disk.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"
#include "support/without_root.h"

#include <QCoreApplication>

#include <sys/stat.h>

#include <functional>

using namespace Qt::StringLiterals;
using namespace orvalis;
using namespace orvalis::test;

namespace {

std::optional<ErrorNumber> failureOf(const std::function<void()>& block) {
    const auto failure = firstFailure(block);
    return failure ? std::optional(failure->number()) : std::nullopt;
}

} // namespace

class FilesTest : public QObject {
    Q_OBJECT
private slots:
    void namesAreJoinedWithOneSeparator_data();
    void namesAreJoinedWithOneSeparator();
    void aFileIsFoundByItsPath();
    void anEmptyPathAndAFolderAreNoFiles();
    void onlyStarAndQuestionMarkAreWildcards_data();
    void onlyStarAndQuestionMarkAreWildcards();
    void theFirstMatchIsTheFirstName();
    void aFolderIsNoMatchOfAWildcard();
    void manyStarsAreMatchedInBoundedTime();

    void savingWritesEveryByte();
    void savingReplacesAFileThroughALink();
    void savingLeavesNoTemporaryBehind();
    void savingIntoAMissingFolderIsPathNotFound();
    void savingOverAFolderOrADeviceIsAnAccessError();
    void savingToNoNameIsAnAccessError();
    void savingIntoAReadOnlyFolderIsDenied();
    void savingOverAReadOnlyFileIsDenied();
    void aFolderThatRefusesNewFilesIsWrittenDirectly();
    void aFullDiskLeavesTheOldFile_data();
    void aFullDiskLeavesTheOldFile();

    void theSecondOfTwoWritesStays();
    void aDiskWithoutRoomForTheSecondOfTwoWritesKeepsTheOldFile();
    void aFolderThatRefusesNewFilesTakesBothWritesDirectly();
    void readingGivesEveryByte();
    void readingAMissingFileIsFileNotFound();
    void readingFromAMissingFolderIsPathNotFound();
    void readingAFolderOrAPipeIsAnAccessError();
    void readingMoreThanTheMaximumIsAnAccessError();
    void readingAnUnreadableFileIsDenied();
    void readingFromAClosedFolderIsDenied();

    void anUnreadableDocumentIsKeptOnce();
    void otherBytesAreKeptBesideTheFirst();
    void whatIsNotThereNeedsNoKeeping();
    void aFileThatMayNotBeReadIsMovedAside();
    void whereNothingCanBeKeptTheCallerHears();
};

void FilesTest::namesAreJoinedWithOneSeparator_data() {
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("path");
    QTest::newRow("plain") << u"/data"_s << u"Vazno.rtf"_s << u"/data/Vazno.rtf"_s;
    QTest::newRow("slash") << u"/data"_s << u"/Vazno.rtf"_s << u"/data/Vazno.rtf"_s;
    QTest::newRow("backslash") << u"/data"_s << u"\\Vazno.rtf"_s << u"/data/Vazno.rtf"_s;
    QTest::newRow("root") << u"/"_s << u"\\Vazno.rtf"_s << u"/Vazno.rtf"_s;
}

void FilesTest::namesAreJoinedWithOneSeparator() {
    QFETCH(QString, folder);
    QFETCH(QString, name);
    QFETCH(QString, path);
    QCOMPARE(joinPath(folder, name), path);
}

void FilesTest::aFileIsFoundByItsPath() {
    const TemporaryFolder folder;
    folder.write(u"address1.dat"_s, {});
    QCOMPARE(Dir(folder.file(u"address1.dat"_s)), u"address1.dat"_s);
    QVERIFY(FileExists(folder.file(u"address1.dat"_s)));
    QVERIFY(!FileExists(folder.file(u"address2.dat"_s)));
    QVERIFY(!FileExists(folder.file(u"missing/address1.dat"_s)));
    QVERIFY(!FileExists(folder.file(u"missing/*"_s)));
}

void FilesTest::anEmptyPathAndAFolderAreNoFiles() {
    const TemporaryFolder folder;
    folder.write(u"inside"_s, {});
    QCOMPARE(Dir(QString()), QString());
    QVERIFY(!FileExists(QString()));
    QVERIFY(!FileExists(folder.path()));
    QVERIFY(!FileExists(folder.path() + u'/'));
    QVERIFY(!FileExists(u"/dev/null"_s));
}

void FilesTest::onlyStarAndQuestionMarkAreWildcards_data() {
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("found");
    QTest::newRow("star") << u"*"_s << u"Alarm.wav"_s;
    QTest::newRow("star dot star") << u"*.*"_s << u"Alarm.wav"_s;
    QTest::newRow("ending") << u"*.dat"_s << u"address1.dat"_s;
    QTest::newRow("question mark") << u"address?.dat"_s << u"address1.dat"_s;
    QTest::newRow("question mark needs one") << u"address1?.dat"_s << u""_s;
    QTest::newRow("star takes none") << u"address1*.dat"_s << u"address1.dat"_s;
    QTest::newRow("star in the middle") << u"a*1*t"_s << u"address1.dat"_s;
    QTest::newRow("without an ending") << u"note*"_s << u"notes"_s;
    QTest::newRow("no match") << u"*.xyz"_s << u""_s;
    QTest::newRow("brackets are plain") << u"[x]*"_s << u"[x].rtf"_s;
    QTest::newRow("brackets match nothing else") << u"[a]ddress*"_s << u""_s;
    QTest::newRow("hash is plain") << u"address#*"_s << u""_s;
}

void FilesTest::onlyStarAndQuestionMarkAreWildcards() {
    QFETCH(QString, pattern);
    QFETCH(QString, found);
    const TemporaryFolder folder;
    for (const auto& name : {u"address1.dat"_s, u"Alarm.wav"_s, u"notes"_s, u"[x].rtf"_s})
        folder.write(name, {});
    QCOMPARE(Dir(folder.file(pattern)), found);
    QCOMPARE(FileExists(folder.file(pattern)), !found.isEmpty());
}

void FilesTest::theFirstMatchIsTheFirstName() {
    const TemporaryFolder folder;
    for (const auto& name : {u"c.rtf"_s, u"a.rtf"_s, u"b.rtf"_s})
        folder.write(name, {});
    QCOMPARE(Dir(folder.file(u"*.rtf"_s)), u"a.rtf"_s);
}

void FilesTest::aFolderIsNoMatchOfAWildcard() {
    const TemporaryFolder folder;
    QVERIFY(QDir(folder.path()).mkdir(u"folder.dat"_s));
    QVERIFY(!FileExists(folder.file(u"*.dat"_s)));
}

void FilesTest::manyStarsAreMatchedInBoundedTime() {
    const TemporaryFolder folder;
    folder.write(QString(200, u'a'), {});
    QVERIFY(!FileExists(folder.file(u"*a"_s.repeated(60) + u'b')));
    QVERIFY(FileExists(folder.file(u"*a"_s.repeated(60))));
}

void FilesTest::savingWritesEveryByte() {
    const TemporaryFolder folder;
    QByteArray bytes(1000000, '\0');
    bytes[999999] = '\xFF';
    saveWhole(folder.file(u"x"_s), bytes);
    QVERIFY(folder.read(u"x"_s) == bytes);
    saveWhole(folder.file(u"x"_s), QByteArrayView());
    QCOMPARE(QFileInfo(folder.file(u"x"_s)).size(), 0);
}

void FilesTest::savingReplacesAFileThroughALink() {
    const TemporaryFolder folder;
    folder.write(u"real"_s, "old");
    QVERIFY(QFile::link(folder.file(u"real"_s), folder.file(u"link"_s)));
    saveWhole(folder.file(u"link"_s), "new");
    QVERIFY(QFileInfo(folder.file(u"link"_s)).isSymLink());
    QCOMPARE(folder.read(u"real"_s), QByteArray("new"));
}

void FilesTest::savingLeavesNoTemporaryBehind() {
    const TemporaryFolder folder;
    saveWhole(folder.file(u"x"_s), "1");
    saveWhole(folder.file(u"x"_s), "2");
    QCOMPARE(folder.names(), QStringList{u"x"_s});
}

void FilesTest::savingIntoAMissingFolderIsPathNotFound() {
    const TemporaryFolder folder;
    QCOMPARE(failureOf([&] { saveWhole(folder.file(u"missing/x"_s), "1"); }),
             ErrorNumber::PathNotFound);
}

void FilesTest::savingOverAFolderOrADeviceIsAnAccessError() {
    const TemporaryFolder folder;
    QCOMPARE(failureOf([&] { saveWhole(folder.path(), "1"); }), ErrorNumber::PathFileAccessError);
    QCOMPARE(failureOf([&] { saveWhole(folder.path() + u'/', "1"); }),
             ErrorNumber::PathFileAccessError);
    QCOMPARE(failureOf([] { saveWhole(u"/dev/full"_s, "1"); }), ErrorNumber::PathFileAccessError);
    QVERIFY(!QFileInfo(u"/dev/full"_s).isFile());
}

void FilesTest::savingToNoNameIsAnAccessError() {
    QCOMPARE(failureOf([] { saveWhole(QString(), "1"); }), ErrorNumber::PathFileAccessError);
}

void FilesTest::savingIntoAReadOnlyFolderIsDenied() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    folder.setWritable(false);
    QCOMPARE(failureOf([&] { saveWhole(folder.file(u"x"_s), "1"); }),
             ErrorNumber::PermissionDenied);
    folder.setWritable(true);
    QVERIFY(folder.names().isEmpty());
}

void FilesTest::savingOverAReadOnlyFileIsDenied() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    QVERIFY(QFile::setPermissions(folder.write(u"x"_s, "old"), QFile::ReadOwner));
    QCOMPARE(failureOf([&] { saveWhole(folder.file(u"x"_s), "new"); }),
             ErrorNumber::PermissionDenied);
    QCOMPARE(folder.read(u"x"_s), QByteArray("old"));
}

void FilesTest::aFolderThatRefusesNewFilesIsWrittenDirectly() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    folder.write(u"x"_s, "old and longer");
    folder.setWritable(false);
    saveWhole(folder.file(u"x"_s), "new");
    folder.setWritable(true);
    QCOMPARE(folder.read(u"x"_s), QByteArray("new"));
}

void FilesTest::aFullDiskLeavesTheOldFile_data() {
    QTest::addColumn<int>("size");
    QTest::newRow("in the buffer") << 2000;
    QTest::newRow("beyond the buffer") << 100000;
}

void FilesTest::aFullDiskLeavesTheOldFile() {
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

void FilesTest::theSecondOfTwoWritesStays() {
    const TemporaryFolder folder;
    saveWholeTwice(folder.file(u"x"_s), "first and longer", "second");
    QCOMPARE(folder.read(u"x"_s), QByteArray("second"));
    saveWholeTwice(folder.file(u"x"_s), "first", "the second, and longer");
    QCOMPARE(folder.read(u"x"_s), QByteArray("the second, and longer"));
    QCOMPARE(folder.names(), QStringList{u"x"_s});
}

void FilesTest::aDiskWithoutRoomForTheSecondOfTwoWritesKeepsTheOldFile() {
    const TemporaryFolder folder;
    folder.write(u"x"_s, "old");
    {
        const SmallDisk disk(1000);
        QCOMPARE(
            failureOf([&] { saveWholeTwice(folder.file(u"x"_s), "first", QByteArray(2000, 's')); }),
            ErrorNumber::PathFileAccessError);
    }
    QCOMPARE(folder.read(u"x"_s), QByteArray("old"));
    QCOMPARE(folder.names(), QStringList{u"x"_s});
    {
        const SmallDisk disk(1000);
        saveWholeTwice(folder.file(u"x"_s), QByteArray(2000, 'f'), "second");
    }
    QCOMPARE(folder.read(u"x"_s), QByteArray("second"));
}

void FilesTest::aFolderThatRefusesNewFilesTakesBothWritesDirectly() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    folder.write(u"x"_s, "old and longer");
    folder.setWritable(false);
    saveWholeTwice(folder.file(u"x"_s), "first and longer", "second");
    folder.setWritable(true);
    QCOMPARE(folder.read(u"x"_s), QByteArray("second"));
}

void FilesTest::readingGivesEveryByte() {
    const TemporaryFolder folder;
    const QByteArray bytes("a\0b\xFF\r\n", 6);
    QCOMPARE(readWhole(folder.write(u"x"_s, bytes)), bytes);
    QCOMPARE(readWhole(folder.write(u"empty"_s, {})), QByteArray());
}

void FilesTest::readingAMissingFileIsFileNotFound() {
    const TemporaryFolder folder;
    QCOMPARE(failureOf([&] { readWhole(folder.file(u"x"_s)); }), ErrorNumber::FileNotFound);
    QCOMPARE(failureOf([] { readWhole(QString()); }), ErrorNumber::FileNotFound);
}

void FilesTest::readingFromAMissingFolderIsPathNotFound() {
    const TemporaryFolder folder;
    QCOMPARE(failureOf([&] { readWhole(folder.file(u"missing/x"_s)); }), ErrorNumber::PathNotFound);
}

void FilesTest::readingAFolderOrAPipeIsAnAccessError() {
    const TemporaryFolder folder;
    QCOMPARE(failureOf([&] { readWhole(folder.path()); }), ErrorNumber::PathFileAccessError);
    QCOMPARE(mkfifo(folder.file(u"pipe"_s).toLocal8Bit().constData(), 0600), 0);
    QCOMPARE(failureOf([&] { readWhole(folder.file(u"pipe"_s)); }),
             ErrorNumber::PathFileAccessError);
    QCOMPARE(failureOf([] { readWhole(u"/dev/zero"_s); }), ErrorNumber::PathFileAccessError);
}

void FilesTest::readingMoreThanTheMaximumIsAnAccessError() {
    const TemporaryFolder folder;
    const QString path = folder.write(u"x"_s, "12345");
    QCOMPARE(readWhole(path, 5), QByteArray("12345"));
    QCOMPARE(failureOf([&] { readWhole(path, 4); }), ErrorNumber::PathFileAccessError);
    // A file that tells no size and never ends.
    QCOMPARE(failureOf([] { readWhole(u"/proc/self/maps"_s, 10); }),
             ErrorNumber::PathFileAccessError);
}

void FilesTest::readingAnUnreadableFileIsDenied() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    QVERIFY(QFile::setPermissions(folder.write(u"x"_s, "1"), QFile::Permissions()));
    QCOMPARE(failureOf([&] { readWhole(folder.file(u"x"_s)); }), ErrorNumber::PermissionDenied);
}

void FilesTest::readingFromAClosedFolderIsDenied() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    const QString path = folder.write(u"x"_s, "1");
    QVERIFY(QFile::setPermissions(folder.path(), QFile::ReadOwner));
    QCOMPARE(failureOf([&] { readWhole(path); }), ErrorNumber::PermissionDenied);
    folder.setWritable(true);
}

void FilesTest::anUnreadableDocumentIsKeptOnce() {
    const TemporaryFolder folder;
    const QString path = folder.write(u"Vazno.rtf"_s, "no rtf");
    QVERIFY(keepUnreadable(path));
    QVERIFY(keepUnreadable(path));
    QCOMPARE(folder.names(), (QStringList{u"Vazno.rtf"_s, u"Vazno.rtf.unreadable"_s}));
    QCOMPARE(folder.read(u"Vazno.rtf.unreadable"_s), QByteArray("no rtf"));
}

void FilesTest::otherBytesAreKeptBesideTheFirst() {
    const TemporaryFolder folder;
    keepUnreadable(folder.write(u"Vazno.rtf"_s, "first"));
    keepUnreadable(folder.write(u"Vazno.rtf"_s, "other"));
    keepUnreadable(folder.write(u"Vazno.rtf"_s, "other"));
    QCOMPARE(folder.read(u"Vazno.rtf.unreadable"_s), QByteArray("first"));
    QCOMPARE(folder.read(u"Vazno.rtf.unreadable2"_s), QByteArray("other"));
    QCOMPARE(folder.names().size(), 3);
}

void FilesTest::whatIsNotThereNeedsNoKeeping() {
    const TemporaryFolder folder;
    QVERIFY(keepUnreadable(folder.file(u"Vazno.rtf"_s)));
    QVERIFY(folder.names().isEmpty());
}

void FilesTest::aFileThatMayNotBeReadIsMovedAside() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    QVERIFY(QFile::setPermissions(folder.write(u"x"_s, "secret"), QFile::Permissions()));
    QVERIFY(keepUnreadable(folder.file(u"x"_s)));
    QCOMPARE(folder.names(), QStringList{u"x.unreadable"_s});
}

void FilesTest::whereNothingCanBeKeptTheCallerHears() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    const QString path = folder.write(u"x"_s, "1");
    folder.setWritable(false);
    QVERIFY(!keepUnreadable(path));
    folder.setWritable(true);
    QVERIFY(!keepUnreadable(folder.path())); // a folder in the document's place
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, FilesTest)
#include "files_test.moc"
