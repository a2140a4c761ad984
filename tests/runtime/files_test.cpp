// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/files.h"

#include "runtime/failure.h"
#include "support/counted_memory.h"
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

    void readingGivesEveryByte();
    void readingASmallFileTakesLittleMemory();
    void readingAFileThatTellsNoSizeGivesEveryByte();
    void readingAMissingFileIsFileNotFound();
    void readingFromAMissingFolderIsPathNotFound();
    void readingAFolderOrAPipeIsAnAccessError();
    void readingMoreThanTheMaximumIsAnAccessError();
    void readingAnUnreadableFileIsDenied();
    void readingFromAClosedFolderIsDenied();
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

void FilesTest::readingGivesEveryByte() {
    const TemporaryFolder folder;
    const QByteArray bytes("a\0b\xFF\r\n", 6);
    QCOMPARE(readWhole(folder.write(u"x"_s, bytes)), bytes);
    QCOMPARE(readWhole(folder.write(u"empty"_s, {})), QByteArray());
}

void FilesTest::readingASmallFileTakesLittleMemory() {
    const TemporaryFolder folder;
    const QString path = folder.write(u"x"_s, "123456");
    readWhole(path); // What is loaded once costs once.
    constexpr qint64 Little = 1 << 20;
    const test::TakenMemory taken = test::memoryTakenBy([&] { readWhole(path); });
    QVERIFY2(taken.asked < Little, qPrintable(QString::number(taken.asked)));
}

void FilesTest::readingAFileThatTellsNoSizeGivesEveryByte() {
    QFile file(u"/proc/self/environ"_s);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(readWhole(file.fileName()), file.readAll());
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

ORVALIS_TEST_MAIN_WITH(QCoreApplication, FilesTest)
#include "files_test.moc"
