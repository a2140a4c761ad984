// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "letters/catalogue.h"
#include "letters/template_tree.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QSet>
#include <QTest>

#include <algorithm>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

constexpr TemplateKind Kinds[] = {TemplateKind::Letters, TemplateKind::Sentences,
                                  TemplateKind::Phrases};

QStringList leavesOf(QStringView group) {
    QStringList captions;
    for (const TemplateNode& node : templateTree())
        if (node.parent == group && node.key.isEmpty())
            captions << node.caption.toString();
    return captions;
}

QString textOf(const QString& caption, TemplateKind kind) {
    return templateText(caption, kind).value_or(u"no such text"_s);
}

} // namespace

class CatalogueTest : public QObject {
    Q_OBJECT
private slots:
    // --- the tree

    void theTreeHas47NodesOf6GroupsAnd41Leaves() {
        const auto tree = templateTree();
        QCOMPARE(tree.size(), 47U);
        QCOMPARE(std::count_if(tree.begin(), tree.end(),
                               [](const TemplateNode& node) { return node.key.isEmpty(); }),
                 41);
    }

    void theGroupsAreNestedLikeAStaircase() {
        QStringList groups;
        for (const TemplateNode& node : templateTree())
            if (!node.key.isEmpty())
                groups << u"%1 %2 < %3"_s.arg(node.key, node.caption, node.parent);
        QCOMPARE(groups, QStringList({u"cvor0 Cover Letter < "_s, u"cvor1 Accept < cvor0"_s,
                                      u"cvor2 Announce < cvor1"_s, u"cvor3 Thank < cvor2"_s,
                                      u"cvor4 Compliment < cvor3"_s, u"cvor5 Misc < cvor4"_s}));
    }

    void eachGroupHasItsLeavesInOrder_data() {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QStringList>("leaves");
        QTest::newRow("Cover Letter")
            << u"cvor0"_s << QStringList{u"Outline"_s, u"Example 1"_s, u"Example 2"_s};
        QTest::newRow("Accept") << u"cvor1"_s
                                << QStringList{u"Appreciation..."_s, u"Business appointment..."_s,
                                               u"Event..."_s,        u"Formal invitation..."_s,
                                               u"Gift..."_s,         u"Honorary..."_s,
                                               u"Honor..."_s,        u"Informal invitation..."_s,
                                               u"Job offer..."_s,    u"Resignation..."_s,
                                               u"To perform..."_s};
        QTest::newRow("Announce") << u"cvor2"_s
                                  << QStringList{u"New business..."_s, u"New partner..."_s,
                                                 u"New salesperson..."_s, u"Winner..."_s};
        QTest::newRow("Thank") << u"cvor3"_s
                               << QStringList{u"Advice..."_s,   u"Business..."_s,  u"Doctor..."_s,
                                              u"Job..."_s,      u"Religious..."_s, u"Someone..."_s,
                                              u"Volunteer..."_s};
        QTest::newRow("Compliment") << u"cvor4"_s << QStringList{u"Chairperson or planner..."_s,
                                                                 u"Employee's family..."_s,
                                                                 u"Product or service..."_s,
                                                                 u"Salesperson or staff..."_s,
                                                                 u"Speaker..."_s,
                                                                 u"Employee's family..."_s};
        QTest::newRow("Misc") << u"cvor5"_s
                              << QStringList{u"Write a letter of encouragement"_s,
                                             u"Write a letter to accompany a gift"_s,
                                             u"Write a recommendatin"_s,
                                             u"Enquiries-Information"_s,
                                             u"Responding to Enquiries"_s,
                                             u"Orders"_s,
                                             u"Sales Letters"_s,
                                             u"Account Terms and Conditions"_s,
                                             u"Claim Letters"_s,
                                             u"Claim Adjustment Letters"_s};
    }
    void eachGroupHasItsLeavesInOrder() {
        QFETCH(const QString, group);
        QFETCH(const QStringList, leaves);
        QCOMPARE(leavesOf(group), leaves);
    }

    void theLeavesOfAGroupComeAheadOfTheNextGroup() {
        QStringView group;
        for (const TemplateNode& node : templateTree())
            if (node.key.isEmpty())
                QCOMPARE(node.parent, group);
            else
                group = node.key;
    }

    // --- from captions to texts

    void theLeavesAreThe40Topics() {
        QSet<QString> captions;
        for (const TemplateNode& node : templateTree())
            if (node.key.isEmpty())
                captions << node.caption.toString();
        const QStringList topics = templateTopics();
        QCOMPARE(topics.size(), 40);
        QCOMPARE(QSet<QString>(topics.begin(), topics.end()), captions);
    }

    void all120CellsAreFilledBy109Texts() {
        QSet<QString> files;
        QSet<QString> texts;
        int cells = 0;
        const QStringList topics = templateTopics();
        for (const QString& topic : topics)
            for (const TemplateKind kind : Kinds) {
                ++cells;
                files << templateFile(topic, kind);
                texts << textOf(topic, kind);
            }
        QCOMPARE(cells, 120);
        QCOMPARE(files.size(), 109);
        QCOMPARE(texts.size(), 109);
    }

    void outlineHasOneTextForAllThreeKinds() {
        QCOMPARE(textOf(u"Outline"_s, TemplateKind::Sentences),
                 textOf(u"Outline"_s, TemplateKind::Letters));
        QCOMPARE(textOf(u"Outline"_s, TemplateKind::Phrases),
                 textOf(u"Outline"_s, TemplateKind::Letters));
    }

    void nineTopicsShareOneTextForSentencesAndPhrases() {
        QStringList sharing;
        const QStringList topics = templateTopics();
        for (const QString& topic : topics)
            if (topic != u"Outline"_s &&
                textOf(topic, TemplateKind::Sentences) == textOf(topic, TemplateKind::Phrases))
                sharing << topic;
        QCOMPARE(sharing, QStringList({u"Example 1"_s, u"Example 2"_s, u"Enquiries-Information"_s,
                                       u"Responding to Enquiries"_s, u"Orders"_s,
                                       u"Sales Letters"_s, u"Account Terms and Conditions"_s,
                                       u"Claim Letters"_s, u"Claim Adjustment Letters"_s}));
    }

    void sentencesAndPhrasesOfOrdersAreTheSameText() {
        QVERIFY(textOf(u"Orders"_s, TemplateKind::Sentences).contains(u"order"_s));
        QCOMPARE(textOf(u"Orders"_s, TemplateKind::Phrases),
                 textOf(u"Orders"_s, TemplateKind::Sentences));
        QVERIFY(textOf(u"Orders"_s, TemplateKind::Letters) !=
                textOf(u"Orders"_s, TemplateKind::Sentences));
    }

    void whatIsNoTopicHasNoText_data() {
        QTest::addColumn<QString>("caption");
        QTest::newRow("a group") << u"Accept"_s;
        QTest::newRow("other case") << u"orders"_s;
        QTest::newRow("without its dots") << u"Gift"_s;
        QTest::newRow("a blank more") << u"Orders "_s;
        QTest::newRow("nothing") << QString();
    }
    void whatIsNoTopicHasNoText() {
        QFETCH(const QString, caption);
        for (const TemplateKind kind : Kinds) {
            QVERIFY(!templateText(caption, kind).has_value());
            QVERIFY(templateFile(caption, kind).isEmpty());
        }
    }

    // --- piece by piece

    void phrasesOfAJobOfferAloneAreWrittenInPieces() {
        QStringList pieced;
        const QStringList topics = templateTopics();
        for (const QString& topic : topics)
            for (const TemplateKind kind : Kinds)
                if (isWrittenInPieces(topic, kind))
                    pieced << templateFile(topic, kind);
        QCOMPARE(pieced, QStringList(u"job_offer.phrases.txt"_s));
    }

    void thePiecesAreTheHeadingAndEachStep() {
        const QString text = u"Phrases\r\n1. One.\r\nA\r\n10. b\r\n\r\n2. Two.\r\nC 3. D\r\n"_s;
        QCOMPARE(templatePieces(text),
                 QStringList({u"Phrases\r\n"_s, u"1. One.\r\nA\r\n"_s, u"10. b\r\n\r\n"_s,
                              u"2. Two.\r\nC 3. D\r\n"_s}));
    }

    void thePiecesTogetherAreTheText() {
        const QString text = textOf(u"Job offer..."_s, TemplateKind::Phrases);
        const QStringList pieces = templatePieces(text);
        QCOMPARE(pieces.size(), 5);
        QCOMPARE(pieces.join(QString()), text);
    }
};

ORVALIS_TEST_MAIN_WITH(QCoreApplication, CatalogueTest)
#include "catalogue_test.moc"
