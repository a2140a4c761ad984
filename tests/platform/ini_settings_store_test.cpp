// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/ini_settings_store.h"

#include "support/small_disk.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"
#include "support/without_root.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace orvalis;
using namespace orvalis::test;

namespace {

const QString RegPath = u"SOFTWARE\\Orvalis\\Reg"_s;
const QString FileName = u"orvalis.ini"_s;

StoredValue text(const QString& value) {
    return StoredValue::string(value);
}

} // namespace

class IniSettingsStoreTest : public QObject {
    Q_OBJECT
private slots:
    void nothingIsMadeByReading();
    void theFirstWriteMakesTheFile();
    void sectionsAndValuesHaveTheirOwnNames();
    void otherKeysHaveTheirFullPath();
    void pathsAreComparedWithoutCaseAndEndSeparator();
    void keysAreKnownByTheirSections();
    void aValueIsRemoved();
    void removingFromNothingMakesNothing();
    void anEditByHandCountsAtOnce();
    void aFileThatIsNoTextGivesNothingAndIsKeptAside();
    void aFolderInItsPlaceGivesNothing();
    void anUnreadableFileGivesNothingAndIsKeptAside();
    void aFileOfAnotherSizeClassGivesNothing();
    void aReadOnlyFolderKeepsTheOldValues();
    void aFullDiskKeepsTheOldValues();
    void aMissingFolderIsMade();
    void theDefaultFileLiesInTheConfigurationFolder();
    void anEqualValueIsNotWrittenAgain();
};

void IniSettingsStoreTest::nothingIsMadeByReading() {
    const TemporaryFolder folder;
    const IniSettingsStore store(folder.file(u"config/orvalis.ini"_s));
    QVERIFY(!store.value(Hive::CurrentUser, RegPath, u"Start"_s).has_value());
    QVERIFY(!store.hasKey(Hive::CurrentUser, RegPath));
    QVERIFY(folder.names().isEmpty());
}

void IniSettingsStoreTest::theFirstWriteMakesTheFile() {
    const TemporaryFolder folder;
    IniSettingsStore store(folder.file(FileName));
    QVERIFY(store.setValue(Hive::CurrentUser, RegPath, u"Start"_s, text(u"1"_s)));
    QCOMPARE(folder.names(), QStringList{FileName});
    QCOMPARE(folder.read(FileName), QByteArray("[Reg]\nStart=1\n"));
}

void IniSettingsStoreTest::sectionsAndValuesHaveTheirOwnNames() {
    const TemporaryFolder folder;
    IniSettingsStore store(folder.file(FileName));
    store.setValue(Hive::CurrentUser, u"SOFTWARE\\Orvalis\\Media"_s, u"Player1"_s,
                   text(u"False"_s));
    store.setValue(Hive::CurrentUser, u"Software\\Orvalis\\Slova"_s, u"Imslova"_s,
                   text(u"Arial, @bold"_s));
    store.setValue(Hive::CurrentUser, u"SOFTWARE\\Orvalis"_s, u"own"_s, text(u"x"_s));
    QCOMPARE(folder.read(FileName),
             QByteArray("own=x\n[Media]\nPlayer1=False\n\n[Slova]\nImslova=Arial, @bold\n"));
}

void IniSettingsStoreTest::otherKeysHaveTheirFullPath() {
    const TemporaryFolder folder;
    IniSettingsStore store(folder.file(FileName));
    store.setValue(Hive::LocalMachine, RegPath, u"Start"_s, text(u"1"_s));
    store.setValue(Hive::CurrentUser, u"SOFTWARE\\Other"_s, u"x"_s, text(u"2"_s));
    QCOMPARE(folder.read(FileName),
             QByteArray("[HKEY_LOCAL_MACHINE\\SOFTWARE\\Orvalis\\Reg]\nStart=1\n\n"
                        "[HKEY_CURRENT_USER\\SOFTWARE\\Other]\nx=2\n"));
    QVERIFY(!store.value(Hive::CurrentUser, RegPath, u"Start"_s).has_value());
    QCOMPARE(store.value(Hive::LocalMachine, RegPath, u"Start"_s), std::optional(text(u"1"_s)));
}

void IniSettingsStoreTest::pathsAreComparedWithoutCaseAndEndSeparator() {
    const TemporaryFolder folder;
    folder.write(FileName, "[Reg]\nStart=1\n");
    const IniSettingsStore store(folder.file(FileName));
    for (const auto& path : {u"software\\orvalis\\reg"_s, u"SOFTWARE\\ORVALIS\\REG\\"_s})
        QCOMPARE(store.value(Hive::CurrentUser, path, u"START"_s), std::optional(text(u"1"_s)));
}

void IniSettingsStoreTest::keysAreKnownByTheirSections() {
    const TemporaryFolder folder;
    IniSettingsStore store(folder.file(FileName));
    QVERIFY(store.hasKey(Hive::CurrentUser, QString()));
    QVERIFY(!store.hasKey(Hive::CurrentUser, u"SOFTWARE\\Orvalis"_s));
    QVERIFY(store.createKey(Hive::CurrentUser, RegPath));
    QVERIFY(store.hasKey(Hive::CurrentUser, RegPath));
    QVERIFY(store.hasKey(Hive::CurrentUser, u"SOFTWARE\\Orvalis"_s));
    QVERIFY(!store.hasKey(Hive::CurrentUser, u"SOFTWARE\\Orvalis\\Media"_s));
    QVERIFY(store.createKey(Hive::LocalMachine, u"A\\B"_s));
    QVERIFY(store.hasKey(Hive::LocalMachine, u"a"_s));
    QVERIFY(!store.hasKey(Hive::CurrentUser, u"a"_s));
}

void IniSettingsStoreTest::aValueIsRemoved() {
    const TemporaryFolder folder;
    folder.write(FileName, "[Reg]\nStart=1\n1st=True\n");
    IniSettingsStore store(folder.file(FileName));
    QVERIFY(store.removeValue(Hive::CurrentUser, RegPath, u"start"_s));
    QCOMPARE(folder.read(FileName), QByteArray("[Reg]\n1st=True\n"));
}

void IniSettingsStoreTest::removingFromNothingMakesNothing() {
    const TemporaryFolder folder;
    IniSettingsStore store(folder.file(FileName));
    QVERIFY(store.removeValue(Hive::CurrentUser, RegPath, u"Start"_s));
    QVERIFY(folder.names().isEmpty());
}

void IniSettingsStoreTest::anEditByHandCountsAtOnce() {
    const TemporaryFolder folder;
    IniSettingsStore store(folder.file(FileName));
    store.setValue(Hive::CurrentUser, RegPath, u"Start"_s, text(u"1"_s));
    folder.write(FileName, "[Reg]\nStart=0\n");
    QCOMPARE(store.value(Hive::CurrentUser, RegPath, u"Start"_s), std::optional(text(u"0"_s)));
}

void IniSettingsStoreTest::aFileThatIsNoTextGivesNothingAndIsKeptAside() {
    const TemporaryFolder folder;
    const QByteArray damaged("[Reg]\nStart=1\n\xFF\xFE");
    folder.write(FileName, damaged);
    IniSettingsStore store(folder.file(FileName));
    QVERIFY(!store.value(Hive::CurrentUser, RegPath, u"Start"_s).has_value());
    QCOMPARE(folder.names(), QStringList{FileName});
    QVERIFY(store.setValue(Hive::CurrentUser, RegPath, u"Start"_s, text(u"0"_s)));
    QCOMPARE(folder.read(FileName), QByteArray("[Reg]\nStart=0\n"));
    QCOMPARE(folder.read(FileName + u".unreadable"_s), damaged);
}

void IniSettingsStoreTest::aFolderInItsPlaceGivesNothing() {
    const TemporaryFolder folder;
    QVERIFY(QDir(folder.path()).mkdir(FileName));
    IniSettingsStore store(folder.file(FileName));
    QVERIFY(!store.value(Hive::CurrentUser, RegPath, u"Start"_s).has_value());
    QVERIFY(!store.setValue(Hive::CurrentUser, RegPath, u"Start"_s, text(u"1"_s)));
    QVERIFY(!store.removeValue(Hive::CurrentUser, RegPath, u"Start"_s));
    QCOMPARE(folder.names(), QStringList{FileName});
}

void IniSettingsStoreTest::anUnreadableFileGivesNothingAndIsKeptAside() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    QVERIFY(
        QFile::setPermissions(folder.write(FileName, "[Reg]\nStart=1\n"), QFile::Permissions()));
    IniSettingsStore store(folder.file(FileName));
    QVERIFY(!store.value(Hive::CurrentUser, RegPath, u"Start"_s).has_value());
    QVERIFY(store.setValue(Hive::CurrentUser, RegPath, u"Start"_s, text(u"0"_s)));
    QVERIFY(folder.names().contains(FileName + u".unreadable"_s));
    QCOMPARE(store.value(Hive::CurrentUser, RegPath, u"Start"_s), std::optional(text(u"0"_s)));
}

void IniSettingsStoreTest::aFileOfAnotherSizeClassGivesNothing() {
    const TemporaryFolder folder;
    folder.write(FileName, "[Reg]\nStart=1\n" + QByteArray(2 * 1024 * 1024, ';'));
    const IniSettingsStore store(folder.file(FileName));
    QVERIFY(!store.value(Hive::CurrentUser, RegPath, u"Start"_s).has_value());
}

void IniSettingsStoreTest::aReadOnlyFolderKeepsTheOldValues() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    QVERIFY(QFile::setPermissions(folder.write(FileName, "[Reg]\nStart=1\n"), QFile::ReadOwner));
    folder.setWritable(false);
    IniSettingsStore store(folder.file(FileName));
    QVERIFY(!store.setValue(Hive::CurrentUser, RegPath, u"Start"_s, text(u"0"_s)));
    QCOMPARE(store.value(Hive::CurrentUser, RegPath, u"Start"_s), std::optional(text(u"1"_s)));
    folder.setWritable(true);
    QCOMPARE(folder.names(), QStringList{FileName});
}

void IniSettingsStoreTest::aFullDiskKeepsTheOldValues() {
    const TemporaryFolder folder;
    folder.write(FileName, "[Reg]\nStart=1\n");
    IniSettingsStore store(folder.file(FileName));
    {
        const SmallDisk disk(500);
        QVERIFY(!store.setValue(Hive::CurrentUser, RegPath, u"1st"_s, text(QString(10000, u'x'))));
    }
    QCOMPARE(folder.read(FileName), QByteArray("[Reg]\nStart=1\n"));
    QCOMPARE(folder.names(), QStringList{FileName});
}

void IniSettingsStoreTest::aMissingFolderIsMade() {
    const TemporaryFolder folder;
    IniSettingsStore store(folder.file(u"a/b/orvalis.ini"_s));
    QVERIFY(store.setValue(Hive::CurrentUser, RegPath, u"Start"_s, text(u"1"_s)));
    QCOMPARE(folder.read(u"a/b/orvalis.ini"_s), QByteArray("[Reg]\nStart=1\n"));
}

void IniSettingsStoreTest::theDefaultFileLiesInTheConfigurationFolder() {
    const TemporaryFolder folder;
    qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
    QCOMPARE(IniSettingsStore::defaultFile(), folder.file(u"orvalis/orvalis.ini"_s));
    qunsetenv("XDG_CONFIG_HOME");
}

void IniSettingsStoreTest::anEqualValueIsNotWrittenAgain() {
    const TemporaryFolder folder;
    IniSettingsStore store(folder.file(FileName));
    store.setValue(Hive::CurrentUser, RegPath, u"Start"_s, text(u"1"_s));
    const SmallDisk disk(0); // any write would fail
    QVERIFY(store.setValue(Hive::CurrentUser, RegPath, u"Start"_s, text(u"1"_s)));
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, IniSettingsStoreTest)
#include "ini_settings_store_test.moc"
