// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "letters/letters_ground.h"
#include "letters/template_tree.h"

#include <QScrollBar>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

QString letters(const QString& topic) {
    return templateText(topic, TemplateKind::Letters).value();
}

/// The nodes under a place of the tree as "caption(picture)", depth by depth, in their order.
QStringList nodesUnder(const TreeView& tree, const QModelIndex& parent = {}) {
    QStringList nodes;
    for (int row = 0; row < tree.model()->rowCount(parent); ++row) {
        const QModelIndex node = tree.model()->index(row, 0, parent);
        nodes << u"%1(%2)"_s.arg(node.data().toString()).arg(TreeView::imageOf(node))
              << nodesUnder(tree, node);
    }
    return nodes;
}

} // namespace

class LettersWindowTest : public QObject {
    Q_OBJECT
private slots:
    // --- the window as it opens

    void theWindowCarriesItsWords() {
        LettersGround ground;
        QCOMPARE(ground.window().windowTitle(), u"Letters Templates"_s);
        QCOMPARE(ground.window().size(), QSize(290, 399));
        QCOMPARE(ground.control<QGroupBox>(u"frmLet"_s).title(), u"Templates "_s);
        QCOMPARE(ground.option(0).text(), u"&Letters"_s);
        QCOMPARE(ground.option(1).text(), u"&Sentences"_s);
        QCOMPARE(ground.option(2).text(), u"&Phrases"_s);
        QCOMPARE(ground.control<GGCommand>(u"Command1"_s).Caption(), u"Insert"_s);
        QCOMPARE(ground.control<GGCommand>(u"Command2"_s).Caption(), u"Cancel"_s);
        QCOMPARE(ground.option(0).parentWidget(), &ground.control<QWidget>(u"Picture1"_s));
        QCOMPARE(ground.control<QWidget>(u"Picture1"_s).parentWidget(),
                 &ground.control<QGroupBox>(u"frmLet"_s));
    }

    void itOpensWithLettersSetAndNothingShown() {
        LettersGround ground;
        ground.window().Show();
        QVERIFY(ground.option(0).isChecked());
        QVERIFY(!ground.tree().selectedCaption().has_value());
        QCOMPARE(ground.rtp().Text(), QString());
    }

    void theTreeHasItsNodesInTheirOrderAndPictures() {
        LettersGround ground;
        QStringList nodes;
        for (const TemplateNode& node : templateTree())
            nodes << u"%1(%2)"_s.arg(node.caption).arg(node.key.isEmpty() ? 4 : 9);
        QCOMPARE(nodes.size(), 47);
        QCOMPARE(nodesUnder(ground.tree()), nodes);
    }

    void eachGroupHangsOnTheOneBefore() {
        LettersGround ground;
        QModelIndex group = ground.node(u"Misc"_s);
        QStringList upward;
        for (; group.isValid(); group = group.parent())
            upward << group.data().toString();
        QCOMPARE(upward, QStringList({u"Misc"_s, u"Compliment"_s, u"Thank"_s, u"Announce"_s,
                                      u"Accept"_s, u"Cover Letter"_s}));
    }

    void onlyTheFirstGroupIsUnfolded() {
        LettersGround ground;
        QVERIFY(ground.tree().isExpanded(ground.node(u"Cover Letter"_s)));
        for (const QString& group :
             {u"Accept"_s, u"Announce"_s, u"Thank"_s, u"Compliment"_s, u"Misc"_s})
            QVERIFY2(!ground.tree().isExpanded(ground.node(group)), qPrintable(group));
    }

    void noCaptionOfTheUnfoldedTreeIsCutShort() {
        LettersGround ground;
        ground.window().Show();
        TreeView& tree = ground.tree();
        tree.expandAll();
        QVERIFY(!tree.verticalScrollBar()->isHidden());
        for (QModelIndex node = tree.model()->index(0, 0); node.isValid();
             node = tree.indexBelow(node))
            QVERIFY2(tree.visualRect(node).left() + tree.sizeHintForIndex(node).width() <=
                         tree.viewport()->width(),
                     qPrintable(node.data().toString()));
    }

    void itStandsUnderThePanelsLabelAtThePanelsRightEdge() {
        LettersGround ground;
        Form& panel = ground.notes().form();
        panel.Show();
        panel.move(37, 21);
        const QRect label = ground.notes().lblNot().geometry();
        QVERIFY(label.height() > 0);
        ground.window().Show();
        QCOMPARE(ground.window().pos(),
                 QPoint(37 + panel.width() - 290, 21 + label.y() + label.height()));
    }

    void itStaysAboveAllOtherWindows() {
        LettersGround ground;
        ground.window().Show();
        QVERIFY(ground.window().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(ground.window().windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
        QCOMPARE(ground.window().windowModality(), Qt::NonModal);
    }

    void thePreviewTakesTheFontOfTheNoteAsItOpens() {
        LettersGround ground;
        ground.rt1().SetSelFontName(u"DejaVu Serif"_s);
        ground.rt1().SetSelFontSize(15);
        QCOMPARE(ground.rtp().SelFontName().value_or(QString()), u"DejaVu Serif"_s);
        QCOMPARE(ground.rtp().SelFontSize().value_or(0), 15.0);
    }

    void withoutANotesPanelTheTreeIsFilledAllTheSame() {
        TestProgram outside;
        outside.program.windows.registerMaker<LettersWindow>(
            [&] { return std::make_unique<frmpisma>(outside.program); });
        Form& form = outside.program.windows.get<LettersWindow>().form();
        QCOMPARE(nodesUnder(*form.findChild<TreeView*>(u"TV1"_s)).size(), 47);
    }

    // --- what is shown

    void everyTopicShowsItsTextOfEveryKindAndGivesTheWindowItsName() {
        LettersGround ground;
        ground.window().Show();
        const QStringList topics = templateTopics();
        for (const QString& topic : topics) {
            ground.choose(topic);
            QCOMPARE(ground.window().windowTitle(), topic);
            for (const int kind : {0, 1, 2}) {
                ground.chooseKind(kind);
                QCOMPARE(ground.rtp().Text(),
                         templateText(topic, static_cast<TemplateKind>(kind)).value());
                QCOMPARE(ground.window().windowTitle(), topic);
            }
        }
    }

    void aClickOnATopicShowsItsLetters() {
        LettersGround ground;
        ground.window().Show();
        ground.choose(u"Gift..."_s);
        QCOMPARE(ground.rtp().Text(), letters(u"Gift..."_s));
        QCOMPARE(ground.rtp().SelStart(), 0);
    }

    void aClickOnAcceptLeavesThePreviewEmptyAndTheTitleAccept() {
        LettersGround ground;
        ground.window().Show();
        ground.choose(u"Outline"_s);
        ground.choose(u"Accept"_s);
        QCOMPARE(ground.rtp().Text(), QString());
        QCOMPARE(ground.window().windowTitle(), u"Accept"_s);
    }

    void aGroupIsEmptyInEveryKind() {
        LettersGround ground;
        ground.window().Show();
        ground.choose(u"Misc"_s);
        for (const int kind : {1, 2, 0}) {
            ground.chooseKind(kind);
            QCOMPARE(ground.rtp().Text(), QString());
            QCOMPARE(ground.window().windowTitle(), u"Misc"_s);
        }
    }

    void choosingSentencesAndThenAnotherTopicReturnsTheOptionsToLetters() {
        LettersGround ground;
        ground.window().Show();
        ground.choose(u"Gift..."_s);
        ground.chooseKind(1);
        QVERIFY(ground.rtp().Text().startsWith(u"Sentences\r\n"_s));
        ground.choose(u"Event..."_s);
        QVERIFY(ground.option(0).isChecked());
        QVERIFY(!ground.option(1).isChecked());
        QCOMPARE(ground.rtp().Text(), letters(u"Event..."_s));
    }

    void aClickOnTheChosenTopicReturnsToItsLetters() {
        LettersGround ground;
        ground.window().Show();
        ground.choose(u"Gift..."_s);
        ground.chooseKind(2);
        ground.choose(u"Gift..."_s);
        QVERIFY(ground.option(0).isChecked());
        QCOMPARE(ground.rtp().Text(), letters(u"Gift..."_s));
    }

    void theKeysLeadThroughTheTopics() {
        LettersGround ground;
        ground.window().Show();
        ground.choose(u"Outline"_s);
        QTest::keyClick(&ground.tree(), Qt::Key_Down);
        QCOMPARE(ground.window().windowTitle(), u"Example 1"_s);
        QCOMPARE(ground.rtp().Text(), letters(u"Example 1"_s));
    }

    void sentencesAndPhrasesOfOrdersShowTheSameText() {
        LettersGround ground;
        ground.window().Show();
        ground.choose(u"Orders"_s);
        const QString ofLetters = ground.rtp().Text();
        ground.chooseKind(1);
        const QString ofSentences = ground.rtp().Text();
        ground.chooseKind(2);
        QVERIFY(!ofSentences.isEmpty() && ofSentences != ofLetters);
        QCOMPARE(ground.rtp().Text(), ofSentences);
    }

    void bothNodesOfTheEmployeesFamilyShowTheSameLetter() {
        LettersGround ground;
        ground.window().Show();
        ground.choose(u"Employee's family..."_s, 0);
        const QString first = ground.rtp().Text();
        const QModelIndex firstNode = ground.tree().currentIndex();
        ground.choose(u"Speaker..."_s);
        ground.choose(u"Employee's family..."_s, 1);
        QVERIFY(ground.tree().currentIndex() != firstNode);
        QVERIFY(!first.isEmpty());
        QCOMPARE(ground.rtp().Text(), first);
    }

    void anOptionWithNoTopicChosenShowsNothing() {
        LettersGround ground;
        ground.window().Show();
        ground.rtp().SetText(u"scribbled"_s);
        ground.chooseKind(1);
        QCOMPARE(ground.rtp().Text(), QString());
        QCOMPARE(ground.window().windowTitle(), u"Letters Templates"_s);
        QVERIFY(ground.option(1).isChecked());
    }

    void whatWasWrittenIntoThePreviewIsLostAtTheNextClick() {
        LettersGround ground;
        ground.window().Show();
        ground.choose(u"Gift..."_s);
        ground.rtp().SetSelText(u"Dear Anne, "_s);
        ground.chooseKind(0);
        QCOMPARE(ground.rtp().Text(), letters(u"Gift..."_s));
    }
};

ORVALIS_TEST_MAIN_WITH(Application, LettersWindowTest)
#include "letters_window_test.moc"
