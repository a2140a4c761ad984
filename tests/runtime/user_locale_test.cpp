// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/user_locale.h"

#include "runtime/ansi_page.h"
#include "runtime/format.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QProcess>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace orvalis;

class UserLocaleTest : public QObject {
    Q_OBJECT
private slots:
    void aScriptModifierIsTheLocalesScript_data();
    void aScriptModifierIsTheLocalesScript();
    void otherModifiersAreNone_data();
    void otherModifiersAreNone();
    void dayNamesAndPageFollowTheScript_data();
    void dayNamesAndPageFollowTheScript();
};

void UserLocaleTest::aScriptModifierIsTheLocalesScript_data() {
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("locale");
    QTest::newRow("Latin") << QByteArray("sr_RS@latin") << u"sr_Latn_RS"_s;
    QTest::newRow("with a character set") << QByteArray("sr_RS.UTF-8@latin") << u"sr_Latn_RS"_s;
    QTest::newRow("without a country") << QByteArray("sr@latin") << u"sr_Latn"_s;
    QTest::newRow("in capitals") << QByteArray("sr_RS@Latin") << u"sr_Latn_RS"_s;
    QTest::newRow("Cyrillic") << QByteArray("uz_UZ@cyrillic") << u"uz_Cyrl_UZ"_s;
    QTest::newRow("Devanagari") << QByteArray("ks_IN@devanagari") << u"ks_Deva_IN"_s;
}

void UserLocaleTest::aScriptModifierIsTheLocalesScript() {
    QFETCH(QByteArray, name);
    QFETCH(QString, locale);
    QCOMPARE(localeWithScript(name), std::optional(QLocale(locale)));
}

void UserLocaleTest::otherModifiersAreNone_data() {
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("none") << QByteArray("de_DE.UTF-8");
    QTest::newRow("a currency") << QByteArray("de_DE@euro");
    QTest::newRow("a dialect") << QByteArray("ca_ES@valencia");
    QTest::newRow("an empty one") << QByteArray("sr_RS@");
    QTest::newRow("no name at all") << QByteArray();
}

void UserLocaleTest::otherModifiersAreNone() {
    QFETCH(QByteArray, name);
    QVERIFY(!localeWithScript(name));
}

void UserLocaleTest::dayNamesAndPageFollowTheScript_data() {
    QTest::addColumn<QString>("all");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("told");
    const QString none;
    // The page is told by the code that it gives to the letter U+0111, or to U+0452.
    QTest::newRow("Latin") << u"sr_RS@latin"_s << none << none << u"subota 240 63"_s;
    QTest::newRow("Latin as the language alone")
        << none << none << u"sr_RS.UTF-8@latin"_s << u"subota 240 63"_s;
    QTest::newRow("no modifier") << u"sr_RS"_s << none << none
                                 << QString::fromUtf8("субота 63 144");
    QTest::newRow("the times alone")
        << none << u"sr_RS@latin"_s << u"de_DE.UTF-8"_s << u"subota 63 63"_s;
    QTest::newRow("the language without the times")
        << none << u"en_US.UTF-8"_s << u"sr_RS@latin"_s << u"Saturday 240 63"_s;
}

void UserLocaleTest::dayNamesAndPageFollowTheScript() {
    QFETCH(QString, all);
    QFETCH(QString, time);
    QFETCH(QString, language);
    QFETCH(QString, told);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& name : environment.keys())
        if (name.startsWith(u"LC_"_s) || name.startsWith(u"LANG"_s))
            environment.remove(name);
    for (const auto& [name, value] : {std::pair(u"LC_ALL"_s, all), std::pair(u"LC_TIME"_s, time),
                                      std::pair(u"LANG"_s, language)})
        if (!value.isEmpty())
            environment.insert(name, value);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {u"user_locale_test"_s, u"--tell"_s});
    QVERIFY(process.waitForFinished());
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()), told);
}

/// As a program that begins under the locale of its environment.
static int tell(int argc, char** argv) {
    const QCoreApplication app(argc, argv);
    followScriptOfLocale();
    const AnsiPage& page = AnsiPage::ofUser();
    const QString day = Format(QDateTime(QDate(2026, 3, 14), QTime(10, 0)), u"dddd");
    const auto code = [&page](char16_t c) {
        return static_cast<int>(static_cast<quint8>(page.encode(QString(QChar(c))).at(0)));
    };
    std::printf("%s %d %d", day.toUtf8().constData(), code(u'\u0111'), code(u'\u0452'));
    return 0;
}

ORVALIS_TEST_MAIN(int argc, char** argv) {
    if (argc > 1 && qstrcmp(argv[1], "--tell") == 0)
        return tell(argc, argv);
    orvalis::test::fixedGround();
    QCoreApplication app(argc, argv);
    UserLocaleTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "user_locale_test.moc"
