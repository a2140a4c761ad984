// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "password/text_cipher.h"

#include "runtime/ansi_page.h"
#include "runtime/failure.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QRandomGenerator>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

const AnsiPage& Western = AnsiPage::of(1252);

/// Writes down what it is told, and refuses more than all as a progress bar does.
class RecordingProgress final : public CipherProgress {
public:
    void show() override { told << u"show"_s; }
    void hide() override { told << u"hide"_s; }
    void setValue(float percent) override {
        if (percent > 100)
            throw RuntimeError(ErrorNumber::InvalidPropertyValue);
        values << percent;
    }

    QStringList told;
    QList<float> values;
};

QString text(std::initializer_list<int> codes) {
    QString result;
    for (const int code : codes)
        result += Western.character(static_cast<quint8>(code));
    return result;
}

QList<int> codes(const QString& text) {
    QList<int> result;
    for (const QChar character : text)
        result << Western.code(character.unicode()).value_or(-1);
    return result;
}

QString run(const QString& text, const QString& password, bool encrypt, int method,
            QChar decimalSign = u'.') {
    RecordingProgress progress;
    return EncryptString(text, password, encrypt, method,
                         {.page = Western, .decimalSign = decimalSign}, progress);
}

std::optional<ErrorNumber> failureOf(const QString& text, const QString& password, bool encrypt,
                                     int method, RecordingProgress& progress) {
    const auto failure = firstFailure(
        [&] { EncryptString(text, password, encrypt, method, {.page = Western}, progress); });
    return failure ? std::optional(failure->number()) : std::nullopt;
}

/// The pair of one code by the rules as people would reckon them with a pencil, in halves: every
/// number here is twice what it stands for, so that nothing has decimals.
std::pair<int, int> pairInHalves(int code, int key, int method, bool cutsHalves) {
    const auto wrapped = [](int twice) { return twice > 2 * 255 ? twice - 2 * 255 : twice; };
    const auto toTheEven = [](int twice) {
        if (twice % 2 == 0)
            return twice / 2;
        const int below = (twice - 1) / 2;
        return below % 2 == 0 ? below : below + 1;
    };
    if (method == 1) {
        const int shifted = wrapped(2 * (code + key)) / 2;
        return {shifted, toTheEven(shifted)};
    }
    int low = code; // twice the half of the code
    int high = code;
    if (cutsHalves && code % 2 == 1) {
        low = code - 1;
        high = code + 1;
    }
    return {toTheEven(wrapped(low + 2 * key)), toTheEven(high)};
}

/// The code that a pair comes back as; nothing where there is none.
std::optional<int> backFromPair(int first, int second, int key, int method) {
    int code = method == 1 ? first - key : first + second - key;
    if (code < 0)
        code += 255;
    return code <= 255 ? std::optional(code) : std::nullopt;
}

} // namespace

class TextCipherTest : public QObject {
    Q_OBJECT
private slots:
    void theWorkedPairs_data();
    void theWorkedPairs();
    void everyCodeUnderEveryKeyIsShiftedByTheRule_data();
    void everyCodeUnderEveryKeyIsShiftedByTheRule();
    void everyPairUnderEveryKeyComesBackByTheRule_data();
    void everyPairUnderEveryKeyComesBackByTheRule();
    void aTextIsTwiceAsLongInPairs();
    void thePasswordRepeatsAndMovesOncePerPair();
    void aLongPasswordUsesItsFirstCharacters();
    void aPasswordOfOneCharacterShiftsAllAlike();
    void anEmptyPasswordReturnsTheTextUntouched_data();
    void anEmptyPasswordReturnsTheTextUntouched();
    void anEmptyTextShowsAndHidesTheBar();
    void progressGoesUpToAll();
    void lengthsAtTheLimits_data();
    void lengthsAtTheLimits();
    void theLongestTextThatComesBackAsAWholeHas16383Characters();
    void anOddLengthIsRefusedAtTheBar_data();
    void anOddLengthIsRefusedAtTheBar();
    void aWrongPasswordCanFailUnderMethodTwoAlone();
    void code255UnderMethodOneComesBackAsZero();
    void code255UnderMethodTwoSurvivesKeysUpTo128();
    void methodOneCanMakeACodeOfZero();
    void withAnotherDecimalSignOddCodesComeBackOneOff();
    void theOtherMethodGivesOtherTextWithoutAWord();
    void whatIsOutsideThePageCountsAsAQuestionMark();
    void aCharacterBeyondTheBasicPlaneCountsAsTwo();
    void randomTextsComeBackUnderRandomPasswords_data();
    void randomTextsComeBackUnderRandomPasswords();
};

void TextCipherTest::theWorkedPairs_data() {
    QTest::addColumn<int>("method");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("key");
    QTest::addColumn<QList<int>>("pair");
    QTest::newRow("1 plain") << 1 << 65 << 98 << QList<int>{163, 82};
    QTest::newRow("1 over 255") << 1 << 200 << 100 << QList<int>{45, 22};
    QTest::newRow("2 plain") << 2 << 65 << 98 << QList<int>{130, 33};
    QTest::newRow("2 over 255") << 2 << 201 << 200 << QList<int>{45, 101};
}

void TextCipherTest::theWorkedPairs() {
    QFETCH(int, method);
    QFETCH(int, code);
    QFETCH(int, key);
    const QString pair = run(text({code}), text({key}), true, method);
    QTEST(codes(pair), "pair");
    QCOMPARE(codes(run(pair, text({key}), false, method)), QList<int>{code});
}

void TextCipherTest::everyCodeUnderEveryKeyIsShiftedByTheRule_data() {
    QTest::addColumn<int>("method");
    QTest::addColumn<QChar>("decimalSign");
    QTest::newRow("1") << 1 << QChar(u'.');
    QTest::newRow("2") << 2 << QChar(u'.');
    QTest::newRow("1, comma") << 1 << QChar(u',');
    QTest::newRow("2, comma") << 2 << QChar(u',');
}

void TextCipherTest::everyCodeUnderEveryKeyIsShiftedByTheRule() {
    QFETCH(int, method);
    QFETCH(QChar, decimalSign);
    QString all;
    for (int code = 0; code <= 255; ++code)
        all += Western.character(static_cast<quint8>(code));
    for (int key = 0; key <= 255; ++key) {
        const QString pairs = run(all, text({key}), true, method, decimalSign);
        const QList<int> made = codes(pairs);
        QCOMPARE(made.size(), 512);
        // Where halves are not cut, a pair can come back beyond the last code.
        const bool comesBack = decimalSign == u'.';
        const QList<int> back =
            comesBack ? codes(run(pairs, text({key}), false, method)) : QList<int>();
        QCOMPARE(back.size(), comesBack ? 256 : 0);
        for (int code = 0; code <= 255; ++code) {
            const auto [first, second] = pairInHalves(code, key, method, decimalSign == u'.');
            if (made[2 * code] != first || made[2 * code + 1] != second)
                QFAIL(qPrintable(u"code %1, key %2: %3 %4, not %5 %6"_s.arg(code)
                                     .arg(key)
                                     .arg(made[2 * code])
                                     .arg(made[2 * code + 1])
                                     .arg(first)
                                     .arg(second)));
            if (comesBack)
                QCOMPARE(std::optional(back[code]), backFromPair(first, second, key, method));
        }
    }
}

void TextCipherTest::everyPairUnderEveryKeyComesBackByTheRule_data() {
    QTest::addColumn<int>("method");
    QTest::newRow("1") << 1;
    QTest::newRow("2") << 2;
}

void TextCipherTest::everyPairUnderEveryKeyComesBackByTheRule() {
    QFETCH(int, method);
    for (int first = 0; first <= 255; ++first) {
        for (const int key : {0, 1, 2, 31, 32, 97, 127, 128, 129, 200, 254, 255}) {
            QString pairs;
            QList<int> back;
            for (int second = 0; second <= 255; ++second) {
                const auto code = backFromPair(first, second, key, method);
                if (!code) {
                    RecordingProgress progress;
                    QCOMPARE(failureOf(text({first, second}), text({key}), false, method, progress),
                             std::optional(ErrorNumber::InvalidProcedureCall));
                    continue;
                }
                pairs += text({first, second});
                back << *code;
            }
            QCOMPARE(codes(run(pairs, text({key}), false, method)), back);
        }
    }
}

void TextCipherTest::aTextIsTwiceAsLongInPairs() {
    for (const int method : {1, 2})
        for (const int length : {1, 2, 7, 100})
            QCOMPARE(run(QString(length, u'x'), u"key"_s, true, method).size(), 2 * length);
}

void TextCipherTest::thePasswordRepeatsAndMovesOncePerPair() {
    for (const int method : {1, 2}) {
        const QString pairs = run(u"abcde"_s, u"xyz"_s, true, method);
        for (int i = 0; i < 5; ++i) {
            const QString key(u"xyz"_s[i % 3]);
            QCOMPARE(pairs.mid(2 * i, 2), run(u"abcde"_s.mid(i, 1), key, true, method));
        }
        QCOMPARE(run(pairs, u"xyz"_s, false, method), u"abcde"_s);
    }
}

void TextCipherTest::aLongPasswordUsesItsFirstCharacters() {
    const QString longPassword = u"secret"_s.repeated(50);
    for (const int method : {1, 2})
        QCOMPARE(run(u"abc"_s, longPassword, true, method), run(u"abc"_s, u"sec"_s, true, method));
}

void TextCipherTest::aPasswordOfOneCharacterShiftsAllAlike() {
    for (const int method : {1, 2}) {
        const QString one = run(u"a"_s, u"k"_s, true, method);
        QCOMPARE(run(u"aaaa"_s, u"k"_s, true, method), one.repeated(4));
    }
}

void TextCipherTest::anEmptyPasswordReturnsTheTextUntouched_data() {
    QTest::addColumn<bool>("encrypt");
    QTest::newRow("scramble") << true;
    QTest::newRow("bring back") << false;
}

void TextCipherTest::anEmptyPasswordReturnsTheTextUntouched() {
    QFETCH(bool, encrypt);
    RecordingProgress progress;
    const QString tooLong(40000, u'x');
    for (const QString& words : {u"odd"_s, tooLong, QString()})
        QCOMPARE(EncryptString(words, {}, encrypt, 2, {.page = Western}, progress), words);
    QCOMPARE(progress.told, QStringList());
    QVERIFY(progress.values.isEmpty());
}

void TextCipherTest::anEmptyTextShowsAndHidesTheBar() {
    for (const bool encrypt : {true, false}) {
        RecordingProgress progress;
        QCOMPARE(EncryptString({}, u"key"_s, encrypt, 2, {.page = Western}, progress), QString());
        QCOMPARE(progress.told, (QStringList{u"show"_s, u"hide"_s}));
        QVERIFY(progress.values.isEmpty());
    }
}

void TextCipherTest::progressGoesUpToAll() {
    RecordingProgress there;
    EncryptString(u"abc"_s, u"k"_s, true, 2, {.page = Western}, there);
    QCOMPARE(there.values, (QList<float>{100.0F / 3, 200.0F / 3, 100}));
    RecordingProgress back;
    EncryptString(run(u"ab"_s, u"k"_s, true, 2), u"k"_s, false, 2, {.page = Western}, back);
    QCOMPARE(back.values, (QList<float>{50, 100}));
    QCOMPARE(back.told, (QStringList{u"show"_s, u"hide"_s}));
}

void TextCipherTest::lengthsAtTheLimits_data() {
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("encrypt");
    QTest::addColumn<int>("failure");
    QTest::addColumn<int>("consumed");
    const int none = 0;
    const int overflow = static_cast<int>(ErrorNumber::Overflow);
    const int property = static_cast<int>(ErrorNumber::InvalidPropertyValue);
    QTest::newRow("scramble 1") << 1 << true << none << 1;
    QTest::newRow("scramble 16383") << 16383 << true << none << 16383;
    QTest::newRow("scramble 16384") << 16384 << true << none << 16384;
    QTest::newRow("scramble 32766") << 32766 << true << none << 32766;
    QTest::newRow("scramble 32767: all work lost") << 32767 << true << overflow << 32767;
    QTest::newRow("scramble 32768: nothing touched") << 32768 << true << overflow << 0;
    QTest::newRow("bring back 32766") << 32766 << false << none << 16383;
    QTest::newRow("bring back 32767") << 32767 << false << property << 16383;
    QTest::newRow("bring back 32768") << 32768 << false << overflow << 0;
}

void TextCipherTest::lengthsAtTheLimits() {
    QFETCH(int, length);
    QFETCH(bool, encrypt);
    QFETCH(int, failure);
    QFETCH(int, consumed);
    for (const int method : {1, 2}) {
        RecordingProgress progress;
        const auto number = failureOf(QString(length, u'x'), u"a"_s, encrypt, method, progress);
        QCOMPARE(number ? static_cast<int>(*number) : 0, failure);
        QCOMPARE(progress.values.size(), consumed);
        QCOMPARE(progress.told.constFirst(), u"show"_s);
        // After a failure the bar is left standing.
        QCOMPARE(progress.told.contains(u"hide"_s), failure == 0);
    }
}

void TextCipherTest::theLongestTextThatComesBackAsAWholeHas16383Characters() {
    const QString most(16383, u'x');
    QCOMPARE(run(run(most, u"key"_s, true, 2), u"key"_s, false, 2), most);
    const QString more = run(QString(16384, u'x'), u"key"_s, true, 2);
    RecordingProgress progress;
    QCOMPARE(failureOf(more, u"key"_s, false, 2, progress), std::optional(ErrorNumber::Overflow));
}

void TextCipherTest::anOddLengthIsRefusedAtTheBar_data() {
    QTest::addColumn<int>("method");
    QTest::newRow("1") << 1;
    QTest::newRow("2") << 2;
}

void TextCipherTest::anOddLengthIsRefusedAtTheBar() {
    QFETCH(int, method);
    for (const int length : {1, 3, 99}) {
        RecordingProgress progress;
        QCOMPARE(failureOf(QString(length, u'x'), u"a"_s, false, method, progress),
                 std::optional(ErrorNumber::InvalidPropertyValue));
        QCOMPARE(progress.told, QStringList{u"show"_s});
    }
}

void TextCipherTest::aWrongPasswordCanFailUnderMethodTwoAlone() {
    const QString high = run(text({254}), text({100}), true, 2);
    RecordingProgress progress;
    QCOMPARE(failureOf(high, text({1}), false, 2, progress),
             std::optional(ErrorNumber::InvalidProcedureCall));
    for (int key = 0; key <= 255; ++key)
        QCOMPARE(run(high, text({key}), false, 1).size(), 1);
}

void TextCipherTest::code255UnderMethodOneComesBackAsZero() {
    for (int key = 1; key <= 255; ++key) {
        const QString pair = run(text({255}), text({key}), true, 1);
        QCOMPARE(codes(pair).constFirst(), key);
        QCOMPARE(codes(run(pair, text({key}), false, 1)), QList<int>{0});
    }
}

void TextCipherTest::code255UnderMethodTwoSurvivesKeysUpTo128() {
    for (int key = 0; key <= 255; ++key) {
        const QString pair = run(text({255}), text({key}), true, 2);
        QCOMPARE(codes(run(pair, text({key}), false, 2)), QList<int>{key <= 128 ? 255 : 0});
    }
}

void TextCipherTest::methodOneCanMakeACodeOfZero() {
    QCOMPARE(codes(run(text({156}), text({100}), true, 1)), (QList<int>{1, 0}));
}

void TextCipherTest::withAnotherDecimalSignOddCodesComeBackOneOff() {
    QString even;
    QString odd;
    for (int code = 2; code < 200; code += 2) {
        even += text({code});
        odd += text({code + 1});
    }
    const QString key = text({40});
    QCOMPARE(run(run(even, key, true, 2, u','), key, false, 2), even);
    const QList<int> back = codes(run(run(odd, key, true, 2, u','), key, false, 2));
    for (int i = 0; i < back.size(); ++i)
        QCOMPARE(std::abs(back[i] - (2 * i + 3)), 1);
}

void TextCipherTest::theOtherMethodGivesOtherTextWithoutAWord() {
    const QString words = u"Meet me at the harbour."_s;
    const QString other = run(run(words, u"key"_s, true, 1), u"key"_s, false, 2);
    QCOMPARE(other.size(), words.size());
    QVERIFY(other != words);
}

void TextCipherTest::whatIsOutsideThePageCountsAsAQuestionMark() {
    QCOMPARE(run(u"\u0416"_s, u"key"_s, true, 2), run(u"?"_s, u"key"_s, true, 2));
    QCOMPARE(run(u"abc"_s, u"\u0416"_s, true, 2), run(u"abc"_s, u"?"_s, true, 2));
}

void TextCipherTest::aCharacterBeyondTheBasicPlaneCountsAsTwo() {
    QCOMPARE(run(u"\U0001F339"_s, u"key"_s, true, 2), run(u"??"_s, u"key"_s, true, 2));
}

void TextCipherTest::randomTextsComeBackUnderRandomPasswords_data() {
    QTest::addColumn<int>("method");
    QTest::addColumn<int>("page");
    for (const int method : {1, 2})
        for (const int page : {1250, 1251, 1252, 874})
            QTest::addRow("method %d, page %d", method, page) << method << page;
}

void TextCipherTest::randomTextsComeBackUnderRandomPasswords() {
    QFETCH(int, method);
    QFETCH(int, page);
    const AnsiPage& own = AnsiPage::of(page);
    QRandomGenerator random(page * method);
    const auto randomText = [&](int length, int below) {
        QString result;
        for (int i = 0; i < length; ++i)
            result += own.character(static_cast<quint8>(random.bounded(below)));
        return result;
    };
    for (int round = 0; round < 200; ++round) {
        // Code 255 is the one that the cipher itself loses.
        const QString words = randomText(random.bounded(400), 255);
        const QString password = randomText(1 + random.bounded(300), 256);
        RecordingProgress progress;
        const QString pairs = EncryptString(words, password, true, method, {.page = own}, progress);
        QCOMPARE(EncryptString(pairs, password, false, method, {.page = own}, progress), words);
    }
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, TextCipherTest)
#include "text_cipher_test.moc"
