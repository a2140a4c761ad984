// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/app.h"

#include "support/temporary_folder.h"
#include "support/test_main.h"
#include "support/without_root.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace orvalis;
using namespace orvalis::test;

class AppTest : public QObject {
    Q_OBJECT
private slots:
    void dataLiesBesideTheExecutable();
    void aSystemWideInstallKeepsItsDataWithTheUser();
    void dataInAReadOnlyFolderAreCopiedToTheUser_data();
    void dataInAReadOnlyFolderAreCopiedToTheUser();
    void theUsersOwnDataAreNotCopiedOver();
    void otherFilesOfAReadOnlyFolderAreNotCopied();
    void companionsAreFoundBesideTheExecutableFirst();
    void companionsOfAnInstallAreFoundInItsShareFolder();
    void aMissingCompanionHasItsPlaceInTheDataFolder();
    void thisProcessKnowsItsExecutable();
};

void AppTest::dataLiesBesideTheExecutable() {
    const TemporaryFolder folder;
    const TemporaryFolder user;
    const App app(folder.file(u"orvalis"_s), user.file(u"orvalis"_s), {});
    QCOMPARE(app.Path(), folder.path());
    QVERIFY(!app.Path().endsWith(u'/'));
    QCOMPARE(app.EXEName(), u"orvalis"_s);
    QCOMPARE(app.executablePath(), folder.file(u"orvalis"_s));
    QCOMPARE(app.file(u"\\Vazno.rtf"_s), folder.file(u"Vazno.rtf"_s));
    QCOMPARE(app.file(u"Vazno.rtf"_s), folder.file(u"Vazno.rtf"_s));
    QVERIFY(user.names().isEmpty());
}

void AppTest::aSystemWideInstallKeepsItsDataWithTheUser() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder install;
    const TemporaryFolder user;
    install.write(u"Alarm.wav"_s, "RIFF"); // a companion is no data
    install.setWritable(false);
    const App app(install.file(u"orvalis"_s), user.file(u"share/orvalis"_s), {});
    install.setWritable(true);
    QCOMPARE(app.Path(), user.file(u"share/orvalis"_s));
    QVERIFY(QFileInfo(app.Path()).isDir());
    QCOMPARE(app.companion(u"Alarm.wav"_s), install.file(u"Alarm.wav"_s));
}

void AppTest::dataInAReadOnlyFolderAreCopiedToTheUser_data() {
    QTest::addColumn<QString>("name");
    for (const char* name : {"Vazno.rtf", "weekly.rtf", "tmp1.brf", "tmp2.brf", "address1.dat",
                             "address1tmp.dat", "Msg.txt"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void AppTest::dataInAReadOnlyFolderAreCopiedToTheUser() {
    QFETCH(QString, name);
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    const TemporaryFolder user;
    const QByteArray bytes(200000, 'b');
    QVERIFY(QFile::setPermissions(folder.write(name, bytes), QFile::ReadOwner));
    folder.setWritable(false);
    const App app(folder.file(u"orvalis"_s), user.file(u"orvalis"_s), {});
    folder.setWritable(true);
    QCOMPARE(app.Path(), user.file(u"orvalis"_s));
    QCOMPARE(user.read(u"orvalis/"_s + name), bytes);
    QVERIFY(QFileInfo(app.file(name)).isWritable());
    QCOMPARE(folder.read(name), bytes);
    QCOMPARE(QDir(app.Path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{name});
}

void AppTest::theUsersOwnDataAreNotCopiedOver() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    const TemporaryFolder user;
    folder.write(u"Vazno.rtf"_s, "installed");
    folder.write(u"tmp1.brf"_s, "installed");
    user.write(u"Vazno.rtf"_s, "the user's");
    folder.setWritable(false);
    const App app(folder.file(u"orvalis"_s), user.path(), {});
    folder.setWritable(true);
    QCOMPARE(user.read(u"Vazno.rtf"_s), QByteArray("the user's"));
    QCOMPARE(user.read(u"tmp1.brf"_s), QByteArray("installed"));
}

void AppTest::otherFilesOfAReadOnlyFolderAreNotCopied() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    const TemporaryFolder user;
    folder.write(u"Alarm.wav"_s, "RIFF");
    folder.write(u"Vazno.rtf.unreadable"_s, "x");
    QVERIFY(QDir(folder.path()).mkdir(u"weekly.rtf"_s));
    folder.setWritable(false);
    const App app(folder.file(u"orvalis"_s), user.path(), {});
    folder.setWritable(true);
    QVERIFY(user.names().isEmpty());
}

void AppTest::companionsAreFoundBesideTheExecutableFirst() {
    const TemporaryFolder folder;
    const TemporaryFolder share;
    folder.write(u"Alarm.wav"_s, {});
    share.write(u"Alarm.wav"_s, {});
    const App app(folder.file(u"orvalis"_s), QString(), {share.path()});
    QCOMPARE(app.companion(u"\\Alarm.wav"_s), folder.file(u"Alarm.wav"_s));
}

void AppTest::companionsOfAnInstallAreFoundInItsShareFolder() {
    const TemporaryFolder folder;
    const TemporaryFolder empty;
    const TemporaryFolder share;
    share.write(u"orvalis.chm"_s, {});
    const App app(folder.file(u"orvalis"_s), QString(), {empty.path(), share.path()});
    QCOMPARE(app.companion(u"orvalis.chm"_s), share.file(u"orvalis.chm"_s));
}

void AppTest::aMissingCompanionHasItsPlaceInTheDataFolder() {
    const TemporaryFolder folder;
    const App app(folder.file(u"orvalis"_s), QString(), {});
    QCOMPARE(app.companion(u"Alarm.wav"_s), folder.file(u"Alarm.wav"_s));
}

void AppTest::thisProcessKnowsItsExecutable() {
    const App app = App::ofThisProcess();
    QCOMPARE(app.executablePath(), QCoreApplication::applicationFilePath());
    QCOMPARE(app.Path(), QCoreApplication::applicationDirPath());
    QVERIFY(app.Major() >= 1);
    QVERIFY(app.Minor() >= 0);
    QVERIFY(app.Revision() >= 0);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, AppTest)
#include "app_test.moc"
