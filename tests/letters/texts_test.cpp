// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "letters/catalogue.h"

#include "support/test_main.h"

#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

constexpr TemplateKind Kinds[] = {TemplateKind::Letters, TemplateKind::Sentences,
                                  TemplateKind::Phrases};

/// Every text once, by the name of its file.
QMap<QString, QString> allTexts() {
    QMap<QString, QString> texts;
    const QStringList topics = templateTopics();
    for (const QString& topic : topics)
        for (const TemplateKind kind : Kinds)
            texts[templateFile(topic, kind)] = templateText(topic, kind).value();
    return texts;
}

QStringList linesOf(const QString& text) {
    return text.split(u"\r\n"_s);
}

bool isStep(const QString& line) {
    static const QRegularExpression step(u"^\\d+\\. "_s);
    return step.match(line).hasMatch();
}

QStringList stepsOf(const QString& text) {
    return linesOf(text).filter(QRegularExpression(u"^\\d+\\. "_s));
}

/// The lines under each step.
QList<QStringList> underSteps(const QString& text) {
    QList<QStringList> steps;
    const QStringList lines = linesOf(text);
    for (const QString& line : lines)
        if (isStep(line))
            steps << QStringList();
        else if (!steps.isEmpty() && !line.isEmpty())
            steps.last() << line;
    return steps;
}

/// The topics whose three texts are three.
QStringList topicsWithSteps() {
    QStringList topics = templateTopics();
    topics.removeIf([](const QString& topic) {
        return templateFile(topic, TemplateKind::Sentences) ==
               templateFile(topic, TemplateKind::Phrases);
    });
    return topics;
}

QString textOf(const QString& topic, TemplateKind kind) {
    return templateText(topic, kind).value();
}

/// A model's lines, each ended by CR and LF.
QString written(const QStringList& lines) {
    return lines.join(u"\r\n"_s) + u"\r\n"_s;
}

void eachTextWithSteps() {
    QTest::addColumn<QString>("topic");
    const QStringList topics = topicsWithSteps();
    for (const QString& topic : topics)
        QTest::newRow(qPrintable(topic)) << topic;
}

} // namespace

class TextsTest : public QObject {
    Q_OBJECT
private slots:
    // --- the catalogue as a whole

    void everyFileIsATextOfTheCatalogueAndEveryTextAFile() {
        const QStringList files =
            QDir(QStringLiteral(ORVALIS_LETTER_TEXTS)).entryList(QDir::Files, QDir::Name);
        QStringList named = allTexts().keys();
        named.sort();
        QCOMPARE(named.size(), 109);
        QCOMPARE(files, named);
    }

    void theCatalogueHasItsSize() {
        qsizetype characters = 0;
        QSet<QString> pieces;
        const auto texts = allTexts();
        for (const QString& text : texts) {
            characters += text.size();
            const QStringList lines = linesOf(text);
            pieces += QSet<QString>(lines.begin(), lines.end());
        }
        QVERIFY2(characters >= 175'000 && characters <= 205'000,
                 qPrintable(QString::number(characters)));
        QVERIFY2(pieces.size() >= 3'000 && pieces.size() <= 3'400,
                 qPrintable(QString::number(pieces.size())));
    }

    void theShortestTextIsThatOfOrdersAndTheLongestThatOfRecommending() {
        const auto texts = allTexts();
        const auto shorter = [](const QString& one, const QString& other) {
            return one.size() < other.size();
        };
        const auto shortest = std::min_element(texts.begin(), texts.end(), shorter);
        const auto longest = std::max_element(texts.begin(), texts.end(), shorter);
        QCOMPARE(shortest.key(), u"orders.key_phrases.txt"_s);
        QVERIFY(shortest->size() >= 130 && shortest->size() <= 180);
        QCOMPARE(longest.key(), u"recommendation.sentences.txt"_s);
        QVERIFY(longest->size() > 6'000 && longest->size() < 7'000);
    }

    void noLongSentenceStandsTwice() {
        static const QRegularExpression behindSentence(u"(?<=[.!?])\\s+|\\r\\n"_s);
        QHash<QString, QString> seen;
        const auto texts = allTexts();
        for (auto text = texts.begin(); text != texts.end(); ++text) {
            const QStringList sentences = text->split(behindSentence, Qt::SkipEmptyParts);
            const QStringList steps = stepsOf(*text);
            for (const QString& sentence : sentences) {
                const bool ofStep =
                    std::any_of(steps.begin(), steps.end(),
                                [&](const QString& step) { return step.endsWith(sentence); });
                if (sentence.size() <= 40 || ofStep)
                    continue;
                QVERIFY2(!seen.contains(sentence),
                         qPrintable(text.key() + u" and "_s + seen.value(sentence) + u": "_s +
                                    sentence));
                seen.insert(sentence, text.key());
            }
        }
        QVERIFY(seen.size() > 1'000);
    }

    void noLongStepStandsInTwoTopics() {
        QHash<QString, QString> seen;
        const QStringList topics = topicsWithSteps();
        for (const QString& topic : topics) {
            const QStringList steps = stepsOf(textOf(topic, TemplateKind::Sentences));
            for (const QString& step : steps) {
                const QString words = step.section(u' ', 1);
                if (words.size() <= 40)
                    continue;
                QVERIFY2(!seen.contains(words), qPrintable(topic + u": "_s + words));
                seen.insert(words, topic);
            }
        }
    }

    void everyLineEndsInCarriageReturnAndLineFeedAndTheLastOneToo() {
        const auto texts = allTexts();
        for (auto text = texts.begin(); text != texts.end(); ++text) {
            QCOMPARE(text->count(u'\n'), text->count(u"\r\n"_s));
            QCOMPARE(text->count(u'\r'), text->count(u"\r\n"_s));
            QVERIFY2(text->endsWith(u"\r\n"_s) && !text->endsWith(u"\r\n\r\n"_s),
                     qPrintable(text.key()));
        }
    }

    void nothingButThePlaceholdersIsToBeOvertyped() {
        static const QRegularExpression inBrackets(u"[(\\[{<][^)\\]}>]*[)\\]}>]?"_s);
        static const QRegularExpression joined(u"\\w*_\\w*"_s);
        static const QRegularExpression crosses(u"\\w*XX\\w*"_s);
        const QStringList allowed{u"(Your order here)"_s, u"(signature here)"_s, u"Your_City"_s,
                                  u"XX"_s, u"20XX"_s};
        const auto texts = allTexts();
        for (auto text = texts.begin(); text != texts.end(); ++text)
            for (const QRegularExpression* mark : {&inBrackets, &joined, &crosses}) {
                auto found = mark->globalMatch(*text);
                while (found.hasNext()) {
                    const QString placeholder = found.next().captured();
                    QVERIFY2(allowed.contains(placeholder),
                             qPrintable(text.key() + u": "_s + placeholder));
                }
            }
    }

    void eachPlaceholderOccurs() {
        const QString everything = QStringList(allTexts().values()).join(QString());
        for (const QString& placeholder :
             {u"(Your order here)"_s, u"(signature here)"_s, u"Your_City"_s, u" XX "_s})
            QVERIFY2(everything.contains(placeholder), qPrintable(placeholder));
    }

    void theWordsThatAreMeantToBeMisspelledStandInTheTexts() {
        const QString everything = QStringList(allTexts().values()).join(QString());
        for (const QString& word : {u"recommendatin"_s, u"nned"_s, u"intials"_s, u"convience"_s})
            QVERIFY2(everything.contains(word), qPrintable(word));
    }

    void onlyTheBulletIsNoPlainCharacter() {
        const auto texts = allTexts();
        for (auto text = texts.begin(); text != texts.end(); ++text)
            for (const QChar character : *text)
                QVERIFY2(character == u'•' || character == u'\r' || character == u'\n' ||
                             (character >= u' ' && character <= u'~'),
                         qPrintable(text.key()));
    }

    // --- the shape of each kind

    void lettersAreNumberedOrOneFullExample() {
        const QStringList topics = templateTopics();
        for (const QString& topic : topics) {
            const QStringList lines = linesOf(textOf(topic, TemplateKind::Letters));
            QVERIFY2(!lines[0].isEmpty() && !lines[0].endsWith(u'.') && lines[1].isEmpty(),
                     qPrintable(topic));
            if (topic == u"Outline"_s)
                continue;
            QStringList numbers = lines.filter(QRegularExpression(u"^Letter \\d+:$"_s));
            if (topic.startsWith(u"Example"_s)) {
                QVERIFY(numbers.isEmpty());
                continue;
            }
            QCOMPARE(lines[2], u"Letter 1:"_s);
            QVERIFY2(numbers.size() >= 2 && numbers.size() <= 4, qPrintable(topic));
            for (int number = 1; number <= numbers.size(); ++number)
                QCOMPARE(numbers[number - 1], u"Letter %1:"_s.arg(number));
        }
    }

    void aFullExampleHasDateAddressSalutationAndClosing() {
        const QStringList topics{u"Example 1"_s,
                                 u"Example 2"_s,
                                 u"Enquiries-Information"_s,
                                 u"Responding to Enquiries"_s,
                                 u"Orders"_s,
                                 u"Sales Letters"_s,
                                 u"Account Terms and Conditions"_s,
                                 u"Claim Letters"_s,
                                 u"Claim Adjustment Letters"_s};
        for (const QString& topic : topics) {
            const QString text = textOf(topic, TemplateKind::Letters);
            const auto letters = std::max<qsizetype>(1, text.count(u"\r\nLetter "_s));
            const auto times = [&](const QString& pattern) {
                return text.count(QRegularExpression(pattern, QRegularExpression::MultilineOption));
            };
            QCOMPARE(times(u"^\\w+ XX, 20XX\r$"_s), letters);
            QCOMPARE(times(u"^Your_City\r$"_s), 2 * letters);
            QCOMPARE(times(u"^(Dear .+|Ladies and Gentlemen):\r$"_s), letters);
            QCOMPARE(times(u"^(Sincerely|Yours truly|Cordially),\r$"_s), letters);
            QCOMPARE(times(u"^\\(signature here\\)\r$"_s), letters);
        }
    }

    void sharedTextsAreBulletsUnderTheirHeading() {
        const auto texts = allTexts();
        int shared = 0;
        for (auto text = texts.begin(); text != texts.end(); ++text) {
            if (!text.key().endsWith(u".key_phrases.txt"_s))
                continue;
            ++shared;
            const QStringList lines = linesOf(*text);
            QVERIFY2(lines[0].trimmed() == u"Useful Key Phrases"_s ||
                         lines[0] == u"Important Language to Remember"_s,
                     qPrintable(text.key()));
            for (int i = 1; i < lines.size() - 1; ++i)
                QVERIFY2(i % 2 == 1 ? lines[i].isEmpty() : lines[i].startsWith(u"•  "_s),
                         qPrintable(text.key()));
        }
        QCOMPARE(shared, 9);
    }

    void sentencesAreWholeAndManyUnderEachStep_data() { eachTextWithSteps(); }
    void sentencesAreWholeAndManyUnderEachStep() {
        QFETCH(const QString, topic);
        const QString text = textOf(topic, TemplateKind::Sentences);
        QCOMPARE(linesOf(text).first(), u"Sentences"_s);
        const auto steps = underSteps(text);
        for (const QStringList& sentences : steps) {
            QVERIFY(sentences.size() >= 5);
            for (const QString& sentence : sentences)
                QVERIFY2(sentence[0].isUpper() && QStringView(u".!?").contains(sentence.back()),
                         qPrintable(sentence));
        }
    }

    void phrasesAreShortManyAndInAlphabeticalOrder_data() { eachTextWithSteps(); }
    void phrasesAreShortManyAndInAlphabeticalOrder() {
        QFETCH(const QString, topic);
        const QString text = textOf(topic, TemplateKind::Phrases);
        QCOMPARE(linesOf(text).first(), u"Phrases"_s);
        const auto steps = underSteps(text);
        for (const QStringList& phrases : steps) {
            QVERIFY(phrases.size() >= 7);
            for (const QString& phrase : phrases)
                QVERIFY2(phrase[0].isUpper() && !phrase.endsWith(u'.') && phrase.size() <= 45,
                         qPrintable(phrase));
            for (int i = 1; i < phrases.size(); ++i)
                QVERIFY2(phrases[i - 1].compare(phrases[i], Qt::CaseInsensitive) < 0,
                         qPrintable(phrases[i]));
        }
    }

    void theStepsAreNumberedAndThoseOfSentencesAndPhrasesTheSame_data() { eachTextWithSteps(); }
    void theStepsAreNumberedAndThoseOfSentencesAndPhrasesTheSame() {
        QFETCH(const QString, topic);
        const QStringList steps = stepsOf(textOf(topic, TemplateKind::Sentences));
        QVERIFY(!steps.isEmpty());
        for (int number = 1; number <= steps.size(); ++number)
            QVERIFY(steps[number - 1].startsWith(u"%1. "_s.arg(number)));
        QCOMPARE(stepsOf(textOf(topic, TemplateKind::Phrases)), steps);
    }

    // --- the texts that others lean on, to the character

    void theLetterToAccompanyAGiftReadsSo() {
        QCOMPARE(
            textOf(u"Write a letter to accompany a gift"_s, TemplateKind::Letters),
            written(
                {u"Write a letter to accompany a gift"_s, QString(), u"Letter 1:"_s, QString(),
                 u"Happy Birthday Grandma! I hope you enjoy the amaryllis. You can plant it "
                 "directly in the pot I am sending, and it should bloom within three weeks. I know "
                 "this is a difficult day for you because you are spending it without Grandpa, but "
                 "I hope the flower will brighten your day. I love you. I'll call you next week."_s,
                 QString(), u"Letter 2:"_s, QString(),
                 u"Please accept this small book in honor of your promotion. It helps me keep "
                 "focused on the art of living when stress starts to build. May you derive a "
                 "similar benefit from it. Congratulations. You deserve it."_s,
                 QString(), u"Letter 3:"_s, QString(),
                 u"Can you believe it? My baby sister has a brand new house! Congratulations on "
                 "your closing--finally. I hope this wall hanging goes well with your new decor. "
                 "Best wishes for many happy years to come in your new home."_s}));
    }

    void theSentencesForAdjustingAClaimReadSo() {
        QCOMPARE(
            textOf(u"Claim Adjustment Letters"_s, TemplateKind::Sentences),
            written({u"Useful Key Phrases "_s, QString(),
                     u"•  I was very disappointed to read your letter of ... dealing with ... "_s,
                     QString(), u"•  As someone who values your business, I have already ... "_s,
                     QString(),
                     u"•  Also, we will deduct another X percent of the bill for the "
                     "misunderstanding. "_s,
                     QString(), u"•  Thank you for your patience. "_s}));
    }

    void thePhrasesForANewPartnerReadSo() {
        QCOMPARE(textOf(u"New partner..."_s, TemplateKind::Phrases),
                 written({u"Phrases"_s,
                          u"1. Explain who your new partner is what position she or he occupy."_s,
                          u"A new partner"_s,
                          u"Are happy to announce"_s,
                          u"Are happy to report that"_s,
                          u"Are pleased to welcome"_s,
                          u"As a partner in"_s,
                          u"Brings a fine reputation as a"_s,
                          u"Has a special interest in"_s,
                          u"Has been named a partner in"_s,
                          u"Has extensive experience in"_s,
                          u"Has joined our firm as"_s,
                          u"Is a graduate of"_s,
                          u"Is a published authority on"_s,
                          u"Is pleased to announce"_s,
                          u"Look forward to"_s,
                          u"Nationally known for"_s,
                          u"Now fully staffed"_s,
                          u"Specializes in"_s,
                          u"To meet all your needs in"_s,
                          u"Was formerly a partner in"_s,
                          u"Well-known authority on"_s,
                          u"Will direct our operations"_s,
                          u"Will join us on"_s}));
    }
};

ORVALIS_TEST_MAIN_WITH(QCoreApplication, TextsTest)
#include "texts_test.moc"
