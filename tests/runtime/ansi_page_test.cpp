// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/ansi_page.h"

#include "runtime/failure.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QSet>

using namespace Qt::StringLiterals;
using namespace orvalis;

namespace {

const QList<int> EveryPage{874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258};

QByteArray everyCode() {
    QByteArray bytes;
    for (int code = 0; code < 256; ++code)
        bytes += static_cast<char>(code);
    return bytes;
}

} // namespace

class AnsiPageTest : public QObject {
    Q_OBJECT
private slots:
    void eachLanguageHasItsPage_data();
    void eachLanguageHasItsPage();
    void thePageOfTheUserIsThatOfTheDefaultLocale();
    void codesAndCharactersAreABijection();
    void charactersStandWhereTheyStandInEachPage_data();
    void charactersStandWhereTheyStandInEachPage();
    void unassignedCodesStandForControlsAndPrivateCharacters();
    void whatIsOutsideThePageBecomesAQuestionMark();
    void ascOfAnEmptyTextIsAnInvalidCall();
    void chrOutsideAByteIsAnInvalidCall_data();
    void chrOutsideAByteIsAnInvalidCall();
    void wholeTextsSurviveTheRoundTrip();
};

void AnsiPageTest::eachLanguageHasItsPage_data() {
    QTest::addColumn<QString>("locale");
    QTest::addColumn<int>("page");
    const auto row = [](const char* locale, int page) {
        QTest::newRow(locale) << QString::fromLatin1(locale) << page;
    };
    for (const char* western :
         {"en_US", "en_GB", "de_DE", "fr_FR", "es_ES", "it_IT", "pt_BR", "nl_NL",
          "sv_SE", "da_DK", "nb_NO", "fi_FI", "is_IS", "ga_IE", "ca_ES", "eu_ES",
          "id_ID", "ja_JP", "zh_CN", "ko_KR", "hi_IN", "C"})
        row(western, 1252);
    for (const char* central : {"cs_CZ", "pl_PL", "hu_HU", "sk_SK", "sl_SI", "hr_HR", "ro_RO",
                                "sq_AL", "bs_BA", "sr_Latn_RS", "sr_Latn_ME"})
        row(central, 1250);
    for (const char* cyrillic : {"ru_RU", "uk_UA", "be_BY", "bg_BG", "mk_MK", "sr_RS", "kk_KZ",
                                 "ky_KG", "mn_MN", "uz_Cyrl_UZ", "az_Cyrl_AZ"})
        row(cyrillic, 1251);
    row("el_GR", 1253);
    for (const char* turkic : {"tr_TR", "az_AZ", "uz_UZ"})
        row(turkic, 1254);
    row("he_IL", 1255);
    for (const char* arabic : {"ar_EG", "fa_IR", "ur_PK"})
        row(arabic, 1256);
    for (const char* baltic : {"et_EE", "lv_LV", "lt_LT"})
        row(baltic, 1257);
    row("vi_VN", 1258);
    row("th_TH", 874);
}

void AnsiPageTest::eachLanguageHasItsPage() {
    QFETCH(QString, locale);
    QFETCH(int, page);
    QCOMPARE(AnsiPage::forLocale(QLocale(locale)).number(), page);
}

void AnsiPageTest::thePageOfTheUserIsThatOfTheDefaultLocale() {
    QLocale::setDefault(QLocale(u"ru_RU"_s));
    QCOMPARE(AnsiPage::ofUser().number(), 1251);
    QCOMPARE(Asc(u"Я"), 0xDF);
    QLocale::setDefault(QLocale(u"en_US"_s));
    QCOMPARE(AnsiPage::ofUser().number(), 1252);
    QCOMPARE(Asc(u"Я"), int{'?'});
}

void AnsiPageTest::codesAndCharactersAreABijection() {
    for (const int number : EveryPage) {
        const AnsiPage& page = AnsiPage::of(number);
        QCOMPARE(page.number(), number);
        QSet<QString> characters;
        for (int code = 0; code < 256; ++code) {
            const QString character = Chr(code, page);
            QCOMPARE(character.size(), 1);
            QCOMPARE(Asc(character, page), code);
            characters.insert(character);
        }
        QCOMPARE(characters.size(), 256);
    }
}

void AnsiPageTest::charactersStandWhereTheyStandInEachPage_data() {
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("character");
    QTest::newRow("1252 euro") << 1252 << 0x80 << u"€"_s;
    QTest::newRow("1252 e acute") << 1252 << 0xE9 << u"é"_s;
    QTest::newRow("1252 no-break blank") << 1252 << 0xA0 << u"\u00A0"_s;
    QTest::newRow("1250 s caron") << 1250 << 0x9A << u"š"_s;
    QTest::newRow("1250 d stroke") << 1250 << 0xF0 << u"đ"_s;
    QTest::newRow("1251 zhe") << 1251 << 0xC6 << u"Ж"_s;
    QTest::newRow("1253 omega") << 1253 << 0xD9 << u"Ω"_s;
    QTest::newRow("1254 dotless i") << 1254 << 0xFD << u"ı"_s;
    QTest::newRow("1255 alef") << 1255 << 0xE0 << u"א"_s;
    QTest::newRow("1256 alef") << 1256 << 0xC7 << u"ا"_s;
    QTest::newRow("1257 e dot") << 1257 << 0xEB << u"ė"_s;
    QTest::newRow("1258 dong") << 1258 << 0xFE << u"₫"_s;
    QTest::newRow("874 ko kai") << 874 << 0xA1 << u"ก"_s;
}

void AnsiPageTest::charactersStandWhereTheyStandInEachPage() {
    QFETCH(int, page);
    QFETCH(int, code);
    QFETCH(QString, character);
    QCOMPARE(Chr(code, AnsiPage::of(page)), character);
    QCOMPARE(Asc(character, AnsiPage::of(page)), code);
}

void AnsiPageTest::unassignedCodesStandForControlsAndPrivateCharacters() {
    QCOMPARE(Chr(0x81, AnsiPage::of(1252)), QString(QChar(0x81)));
    QCOMPARE(Chr(0x9D, AnsiPage::of(1252)), QString(QChar(0x9D)));
    QCOMPARE(Chr(0xD9, AnsiPage::of(1255)), QString(QChar(0xF7D9)));
    QCOMPARE(Chr(0xFF, AnsiPage::of(1253)), QString(QChar(0xF7FF)));
    QCOMPARE(Chr(0xFC, AnsiPage::of(874)), QString(QChar(0xF7FC)));
    QCOMPARE(Asc(QString(QChar(0xF7D9)), AnsiPage::of(1255)), 0xD9);
}

void AnsiPageTest::whatIsOutsideThePageBecomesAQuestionMark() {
    const AnsiPage& page = AnsiPage::of(1252);
    QVERIFY(!page.holds(u"Ж"));
    QVERIFY(!page.code(0x80).has_value()); // its code belongs to the euro sign
    QVERIFY(page.holds(u"caf\u00E9 \u20AC\u0081"));
    QCOMPARE(page.encode(u"aЖb\u20AC"), QByteArray("a?b\x80"));
    QCOMPARE(Asc(u"Ж", page), int{'?'});
}

void AnsiPageTest::ascOfAnEmptyTextIsAnInvalidCall() {
    const auto failure = firstFailure([] { Asc(u""); });
    QVERIFY(failure.has_value());
    QCOMPARE(failure->number(), ErrorNumber::InvalidProcedureCall);
}

void AnsiPageTest::chrOutsideAByteIsAnInvalidCall_data() {
    QTest::addColumn<int>("code");
    for (const int code : {-32768, -1, 256, 32767})
        QTest::addRow("%d", code) << code;
}

void AnsiPageTest::chrOutsideAByteIsAnInvalidCall() {
    QFETCH(int, code);
    const auto failure = firstFailure([&] { Chr(code); });
    QVERIFY(failure.has_value());
    QCOMPARE(failure->number(), ErrorNumber::InvalidProcedureCall);
}

void AnsiPageTest::wholeTextsSurviveTheRoundTrip() {
    const QByteArray bytes = everyCode().repeated(4096);
    for (const int number : EveryPage) {
        const AnsiPage& page = AnsiPage::of(number);
        const QString text = page.decode(bytes);
        QCOMPARE(text.size(), bytes.size());
        QVERIFY(page.holds(text));
        QVERIFY(page.encode(text) == bytes);
    }
    QCOMPARE(AnsiPage::of(1252).encode(QString()), QByteArray());
    QCOMPARE(AnsiPage::of(1252).decode(QByteArray()), QString());
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, AnsiPageTest)
#include "ansi_page_test.moc"
