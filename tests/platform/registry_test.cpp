// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/registry.h"

#include "platform/ini_settings_store.h"
#include "platform/xdg/xdg_logon_entry.h"
#include "runtime/failure.h"
#include "support/memory_settings_store.h"
#include "support/recording_platform.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"
#include "support/without_root.h"

#include <QCoreApplication>

#include <memory>

using namespace Qt::StringLiterals;
using namespace orvalis;
using namespace orvalis::test;

namespace {

const QString Product = u"Orvalis"_s;
const QString RegPath = u"SOFTWARE\\Orvalis\\Reg"_s;
const QString RunPath = u"Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;

struct Setting {
    const char16_t* section;
    const char16_t* name;
    const char16_t* defaultValue;
};

const QList<Setting> EverySetting{
    {u"Reg", u"Start", u"0"},         {u"Reg", u"1st", u"True"},
    {u"Reg", u"2nd", u"False"},       {u"Reg", u"Vreme", u"0"},
    {u"Media", u"Player1", u"False"}, {u"Media", u"Player2", u"True"},
    {u"RT1", u"FN", u"Arial"},        {u"RT1", u"FS", u"8"},
    {u"RT2", u"FN", u"Arial"},        {u"RT2", u"FS", u"8"},
    {u"Slova", u"Imslova", u"Arial"}, {u"Slova", u"Vslova", u"10"},
    {u"Telefon", u"Puta", u""},
};

} // namespace

class RegistryTest : public QObject {
    Q_OBJECT
private slots:
    void init();

    void aFreshProfileGivesEveryDefaultAndCreatesNoKey();
    void aDoubleWordStartOfOneStillEqualsOne();
    void anEmptyTextIsAValueAndNotTheDefault();
    void afterTheOptionsAllSixValuesAreTexts();
    void removingALogonEntryThatIsNotThereChangesNothing();

    void thePathIsJoinedOfItsPartsThatAreNotEmpty_data();
    void thePathIsJoinedOfItsPartsThatAreNotEmpty();
    void bothSpellingsOfTheRootReachTheSameKey();
    void anExpandableTextIsReadAsItStands();
    void anotherTypeGivesTheDefault();
    void queryingAMissingValueIsAnInvalidCall();
    void queryingTellsTheStatusAndTheValue();
    void settingsAreWrittenAsTextsWhateverTheyAre_data();
    void settingsAreWrittenAsTextsWhateverTheyAre();
    void typesThatAreNotWrittenDoNothing();
    void numbersAreWrittenAsDoubleWords();
    void aFailedWriteIsSilent();
    void aValueWithoutATextCutsTheWriteShort();
    void theRunKeyIsTheLogonEntry_data();
    void theRunKeyIsTheLogonEntry();
    void anotherRunKeyIsWrittenOnlyWhereItIs();
    void withoutTheRightToWriteTheLogonEntryNothingShows();
    void settingsCompareWithNumbersByTheirValue_data();
    void settingsCompareWithNumbersByTheirValue();
    void flagsAreReadFromWordsAndNumbers_data();
    void flagsAreReadFromWordsAndNumbers();
    void aFlagOfAnotherTextIsATypeMismatch();

private:
    std::unique_ptr<MemorySettingsStore> m_store;
    std::unique_ptr<RecordingLogonEntry> m_logon;
    std::unique_ptr<Registry> m_registry;
};

void RegistryTest::init() {
    m_store = std::make_unique<MemorySettingsStore>();
    m_logon = std::make_unique<RecordingLogonEntry>();
    m_registry = std::make_unique<Registry>(*m_store, *m_logon);
}

void RegistryTest::aFreshProfileGivesEveryDefaultAndCreatesNoKey() {
    const TemporaryFolder folder;
    IniSettingsStore file(folder.file(u"config/orvalis.ini"_s));
    Registry overFile(file, *m_logon);
    for (const Setting& setting : EverySetting) {
        const QString section = QString::fromUtf16(setting.section);
        const QString name = QString::fromUtf16(setting.name);
        const QString defaultValue = QString::fromUtf16(setting.defaultValue);
        QCOMPARE(m_registry->setting(section, name, defaultValue), QVariant(defaultValue));
        QCOMPARE(overFile.setting(section, name, defaultValue), QVariant(defaultValue));
    }
    QCOMPARE(m_store->keyCount(), 0);
    QVERIFY(folder.names().isEmpty());
}

void RegistryTest::aDoubleWordStartOfOneStillEqualsOne() {
    m_store->setValue(Hive::CurrentUser, RegPath, u"Start"_s, StoredValue::doubleWord(1));
    const QVariant start = m_registry->setting(u"Reg"_s, u"Start"_s, u"0"_s);
    QCOMPARE(start.typeId(), int(QMetaType::Int));
    QVERIFY(settingEquals(start, 1));
}

void RegistryTest::anEmptyTextIsAValueAndNotTheDefault() {
    m_store->setValue(Hive::CurrentUser, RegPath, u"Start"_s, StoredValue::string(u""_s));
    const QVariant start = m_registry->setting(u"Reg"_s, u"Start"_s, u"0"_s);
    QCOMPARE(start.typeId(), int(QMetaType::QString));
    QCOMPARE(start.toString(), u""_s);
}

void RegistryTest::afterTheOptionsAllSixValuesAreTexts() {
    m_registry->putSetting(u"Media"_s, u"Player1"_s, true);
    m_registry->putSetting(u"Media"_s, u"Player2"_s, false);
    m_registry->putSetting(u"Reg"_s, u"Start"_s, 1);
    m_registry->putSetting(u"Reg"_s, u"1st"_s, true);
    m_registry->putSetting(u"Reg"_s, u"2nd"_s, false);
    m_registry->putSetting(u"Reg"_s, u"Vreme"_s, 12);
    const auto stored = [this](const QString& section, const QString& name) {
        return m_store->value(Hive::CurrentUser, u"SOFTWARE\\Orvalis\\"_s + section, name);
    };
    QCOMPARE(stored(u"Media"_s, u"Player1"_s), StoredValue::string(u"True"_s));
    QCOMPARE(stored(u"Media"_s, u"Player2"_s), StoredValue::string(u"False"_s));
    QCOMPARE(stored(u"Reg"_s, u"Start"_s), StoredValue::string(u"1"_s));
    QCOMPARE(stored(u"Reg"_s, u"1st"_s), StoredValue::string(u"True"_s));
    QCOMPARE(stored(u"Reg"_s, u"2nd"_s), StoredValue::string(u"False"_s));
    QCOMPARE(stored(u"Reg"_s, u"Vreme"_s), StoredValue::string(u"12"_s));
    QCOMPARE(m_store->valueCount(), 6);
}

void RegistryTest::removingALogonEntryThatIsNotThereChangesNothing() {
    const TemporaryFolder folder;
    XdgLogonEntry entry(folder.file(u"autostart"_s));
    Registry registry(*m_store, entry);
    registry.RunKeyDelete(u"Orvalis"_s);
    QVERIFY(folder.names().isEmpty());
    QCOMPARE(m_store->keyCount(), 0);
}

void RegistryTest::thePathIsJoinedOfItsPartsThatAreNotEmpty_data() {
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("path");
    QTest::newRow("all") << u"SOFTWARE"_s << u"Orvalis"_s << u"Reg"_s
                         << u"SOFTWARE\\Orvalis\\Reg"_s;
    QTest::newRow("no root") << u""_s << u"Orvalis"_s << u"Reg"_s << u"Orvalis\\Reg"_s;
    QTest::newRow("no product") << u"SOFTWARE"_s << u""_s << u"Reg"_s << u"SOFTWARE\\Reg"_s;
    QTest::newRow("no section") << u"SOFTWARE"_s << u"Orvalis"_s << u""_s << u"SOFTWARE\\Orvalis"_s;
    QTest::newRow("section alone") << u""_s << u""_s << u"Reg"_s << u"Reg"_s;
}

void RegistryTest::thePathIsJoinedOfItsPartsThatAreNotEmpty() {
    QFETCH(QString, root);
    QFETCH(QString, product);
    QFETCH(QString, section);
    QFETCH(QString, path);
    QVERIFY(m_registry->RegPutSetting(product, section, u"x"_s, u"1"_s, Hive::LocalMachine, root));
    QCOMPARE(m_store->value(Hive::LocalMachine, path, u"x"_s), StoredValue::string(u"1"_s));
    QCOMPARE(m_registry->RegGetSetting(product, section, u"x"_s, u"0"_s, Hive::LocalMachine, root),
             QVariant(u"1"_s));
}

void RegistryTest::bothSpellingsOfTheRootReachTheSameKey() {
    m_registry->RegPutSetting(Product, u"Slova"_s, u"Vslova"_s, u"12"_s, Hive::CurrentUser,
                              u"Software"_s);
    QCOMPARE(m_registry->RegGetSetting(Product, u"Slova"_s, u"Vslova"_s, u"10"_s),
             QVariant(u"12"_s));
}

void RegistryTest::anExpandableTextIsReadAsItStands() {
    m_store->setValue(Hive::CurrentUser, RegPath, u"Start"_s,
                      StoredValue{REG_EXPAND_SZ, u"%PATH%"_s, 0, {}});
    QCOMPARE(m_registry->setting(u"Reg"_s, u"Start"_s, u"0"_s), QVariant(u"%PATH%"_s));
}

void RegistryTest::anotherTypeGivesTheDefault() {
    m_store->setValue(Hive::CurrentUser, RegPath, u"Start"_s, StoredValue{REG_BINARY, {}, 0, "1"});
    QCOMPARE(m_registry->setting(u"Reg"_s, u"Start"_s, u"0"_s), QVariant(u"0"_s));
}

void RegistryTest::queryingAMissingValueIsAnInvalidCall() {
    QVariant value(u"before"_s);
    const auto failure = firstFailure([&] {
        m_registry->RegQueryVariant({Hive::CurrentUser, RegPath}, u"Start"_s, value);
    });
    QVERIFY(failure.has_value());
    QCOMPARE(failure->number(), ErrorNumber::InvalidProcedureCall);
    QVERIFY(!value.isValid());
}

void RegistryTest::queryingTellsTheStatusAndTheValue() {
    const RegistryKey key{Hive::CurrentUser, RegPath};
    m_store->setValue(key.hive, key.path, u"number"_s, StoredValue::doubleWord(0xFFFFFFFF));
    m_store->setValue(key.hive, key.path, u"text"_s, StoredValue::string(u"x"_s));
    m_store->setValue(key.hive, key.path, u"other"_s, StoredValue{7, {}, 0, "x"});
    QVariant value;
    QCOMPARE(m_registry->RegQueryVariant(key, u"number"_s, value), 0);
    QCOMPARE(value, QVariant(-1));
    QCOMPARE(m_registry->RegQueryVariant(key, u"text"_s, value), 0);
    QCOMPARE(value, QVariant(u"x"_s));
    QCOMPARE(m_registry->RegQueryVariant(key, u"other"_s, value), -1);
    QVERIFY(!value.isValid());
}

void RegistryTest::settingsAreWrittenAsTextsWhateverTheyAre_data() {
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << QVariant(u"Arial"_s) << u"Arial"_s;
    QTest::newRow("whole number") << QVariant(8) << u"8"_s;
    QTest::newRow("number") << QVariant(8.25) << u"8.25"_s;
    QTest::newRow("single number") << QVariant(10.5F) << u"10.5"_s;
    QTest::newRow("true") << QVariant(true) << u"True"_s;
    QTest::newRow("false") << QVariant(false) << u"False"_s;
    QTest::newRow("empty") << QVariant() << u""_s;
}

void RegistryTest::settingsAreWrittenAsTextsWhateverTheyAre() {
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    QLocale::setDefault(QLocale(u"de_DE"_s));
    QVERIFY(m_registry->putSetting(u"RT1"_s, u"FS"_s, value));
    QLocale::setDefault(QLocale(u"en_US"_s));
    QCOMPARE(m_store->value(Hive::CurrentUser, u"SOFTWARE\\Orvalis\\RT1"_s, u"FS"_s),
             StoredValue::string(text));
}

void RegistryTest::typesThatAreNotWrittenDoNothing() {
    QCOMPARE(m_registry->RegSetVariant({Hive::CurrentUser, RegPath}, u"x"_s, REG_BINARY, 1), 0);
    QCOMPARE(m_registry->RegSetVariant({Hive::CurrentUser, RegPath}, u"x"_s, REG_EXPAND_SZ, 1), 0);
    QCOMPARE(m_store->keyCount(), 0);
}

void RegistryTest::numbersAreWrittenAsDoubleWords() {
    QCOMPARE(m_registry->RegSetVariant({Hive::CurrentUser, RegPath}, u"x"_s, REG_DWORD, -1), 0);
    QCOMPARE(m_store->value(Hive::CurrentUser, RegPath, u"x"_s),
             StoredValue::doubleWord(0xFFFFFFFF));
}

void RegistryTest::aFailedWriteIsSilent() {
    m_store->writable = false;
    QVERIFY(m_registry->putSetting(u"Reg"_s, u"Start"_s, u"1"_s));
    QCOMPARE(m_registry->setting(u"Reg"_s, u"Start"_s, u"0"_s), QVariant(u"0"_s));
}

void RegistryTest::aValueWithoutATextCutsTheWriteShort() {
    QVERIFY(!m_registry->putSetting(u"Reg"_s, u"Start"_s, QVariantList{1, 2}));
    QCOMPARE(m_registry->setting(u"Reg"_s, u"Start"_s, u"0"_s), QVariant(u"0"_s));
}

void RegistryTest::theRunKeyIsTheLogonEntry_data() {
    QTest::addColumn<QString>("subKey");
    QTest::newRow("as written") << RunPath;
    QTest::newRow("as removed") << u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\"_s;
}

void RegistryTest::theRunKeyIsTheLogonEntry() {
    QFETCH(QString, subKey);
    m_registry->RunKeySet(Hive::LocalMachine, subKey, u"Orvalis"_s, u"/opt/orvalis"_s);
    QCOMPARE(m_logon->entries.value(u"Orvalis"_s), u"/opt/orvalis"_s);
    QCOMPARE(m_store->keyCount(), 0);
    m_registry->RunKeyDelete(u"Orvalis"_s);
    QVERIFY(m_logon->entries.isEmpty());
}

void RegistryTest::anotherRunKeyIsWrittenOnlyWhereItIs() {
    m_registry->RunKeySet(Hive::CurrentUser, RunPath, u"Orvalis"_s, u"x"_s);
    QVERIFY(m_logon->entries.isEmpty());
    QCOMPARE(m_store->keyCount(), 0);
    m_store->createKey(Hive::CurrentUser, RunPath);
    m_registry->RunKeySet(Hive::CurrentUser, RunPath, u"Orvalis"_s, u"x"_s);
    QCOMPARE(m_store->value(Hive::CurrentUser, RunPath, u"Orvalis"_s), StoredValue::string(u"x"_s));
}

void RegistryTest::withoutTheRightToWriteTheLogonEntryNothingShows() {
    const WithoutRoot ordinaryUser;
    const TemporaryFolder folder;
    folder.setWritable(false);
    XdgLogonEntry entry(folder.file(u"autostart"_s));
    Registry registry(*m_store, entry);
    registry.RunKeySet(Hive::LocalMachine, RunPath, u"Orvalis"_s, u"/opt/orvalis"_s);
    QVERIFY(registry.putSetting(u"Reg"_s, u"Start"_s, 1)); // goes its own way
    folder.setWritable(true);
    QVERIFY(folder.names().isEmpty());
}

void RegistryTest::settingsCompareWithNumbersByTheirValue_data() {
    QTest::addColumn<QVariant>("setting");
    QTest::addColumn<bool>("equals");
    QTest::newRow("text") << QVariant(u"1"_s) << true;
    QTest::newRow("number") << QVariant(1) << true;
    QTest::newRow("blanks") << QVariant(u" 1 "_s) << true;
    QTest::newRow("decimals") << QVariant(u"1.0"_s) << true;
    QTest::newRow("nought") << QVariant(u"0"_s) << false;
    QTest::newRow("ten") << QVariant(u"10"_s) << false;
    QTest::newRow("minus one") << QVariant(u"-1"_s) << false;
    QTest::newRow("empty text") << QVariant(u""_s) << false;
    QTest::newRow("word") << QVariant(u"True"_s) << false;
    QTest::newRow("rubbish") << QVariant(u"x"_s) << false;
    QTest::newRow("nothing") << QVariant() << false;
}

void RegistryTest::settingsCompareWithNumbersByTheirValue() {
    QFETCH(QVariant, setting);
    QFETCH(bool, equals);
    QCOMPARE(settingEquals(setting, 1), equals);
}

void RegistryTest::flagsAreReadFromWordsAndNumbers_data() {
    QTest::addColumn<QVariant>("setting");
    QTest::addColumn<bool>("flag");
    QTest::newRow("True") << QVariant(u"True"_s) << true;
    QTest::newRow("true") << QVariant(u" true "_s) << true;
    QTest::newRow("False") << QVariant(u"False"_s) << false;
    QTest::newRow("1") << QVariant(u"1"_s) << true;
    QTest::newRow("-1") << QVariant(u"-1"_s) << true;
    QTest::newRow("0") << QVariant(u"0"_s) << false;
    QTest::newRow("number") << QVariant(1) << true;
    QTest::newRow("nought") << QVariant(0) << false;
}

void RegistryTest::flagsAreReadFromWordsAndNumbers() {
    QFETCH(QVariant, setting);
    QFETCH(bool, flag);
    QCOMPARE(settingFlag(setting), flag);
}

void RegistryTest::aFlagOfAnotherTextIsATypeMismatch() {
    for (const auto& text : {u""_s, u"yes"_s, u"Wahr"_s}) {
        const auto failure = firstFailure([&] { settingFlag(text); });
        QVERIFY(failure.has_value());
        QCOMPARE(failure->number(), ErrorNumber::TypeMismatch);
    }
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, RegistryTest)
#include "registry_test.moc"
