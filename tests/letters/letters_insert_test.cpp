// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "letters/letters_ground.h"

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

constexpr quint32 Red = 0x0000ff;

QString letters(const QString& topic) {
    return templateText(topic, TemplateKind::Letters).value();
}

} // namespace

class LettersInsertTest : public QObject {
    Q_OBJECT
private slots:
    // --- the look of the text

    void aChangedFontInNotesShowsInThePreviewAtTheNextClick() {
        LettersGround ground;
        ground.window().Show();
        ground.choose(u"Gift..."_s);
        ground.rtp().SetSelStart(300);
        ground.rt1().SetSelFontName(u"DejaVu Serif"_s);
        ground.rt1().SetSelFontSize(17);
        ground.rtp().SetSelLength(100);
        QVERIFY(ground.rtp().SelFontSize().value_or(0) != 17.0);
        ground.chooseKind(1);
        everythingIs(ground.rtp(), u"DejaVu Serif"_s, 17);
        ground.rt1().SetSelFontSize(9);
        ground.choose(u"Event..."_s);
        everythingIs(ground.rtp(), u"DejaVu Serif"_s, 9);
        ground.choose(u"Job offer..."_s);
        ground.chooseKind(2);
        everythingIs(ground.rtp(), u"DejaVu Serif"_s, 9);
    }

    void aMixedFontInNotesLeavesThePreviewItsOwn() {
        LettersGround ground;
        ground.rt1().SetText(u"large and small"_s);
        ground.rt1().SetSelFontName(u"DejaVu Serif"_s);
        ground.rt1().SetSelFontSize(11);
        ground.window().Show();
        ground.choose(u"Gift..."_s);
        everythingIs(ground.rtp(), u"DejaVu Serif"_s, 11);
        ground.rt1().SetSelStart(0);
        ground.rt1().SetSelLength(5);
        ground.rt1().SetSelFontSize(30);
        ground.rt1().SetSelFontName(u"DejaVu Sans Mono"_s);
        ground.rt1().SetSelStart(0);
        ground.rt1().SetSelLength(15);
        QVERIFY(!ground.rt1().SelFontSize().has_value());
        ground.choose(u"Event..."_s);
        everythingIs(ground.rtp(), u"DejaVu Serif"_s, 11);
    }

    void alignmentAndColourAreLeftAlone() {
        LettersGround ground;
        ground.window().Show();
        ground.rtp().SetSelColor(Red);
        ground.rtp().SetSelAlignment(RichTextBox::rtfCenter);
        ground.choose(u"Job offer..."_s);
        QCOMPARE(ground.rtp().SelColor().value_or(0), Red);
        QCOMPARE(ground.rtp().SelAlignment().value_or(-1), int(RichTextBox::rtfCenter));
    }

    void phrasesOfAJobOfferAloneAreBlackAndOnTheLeft() {
        LettersGround ground;
        ground.window().Show();
        ground.choose(u"Job offer..."_s);
        ground.rtp().SetSelColor(Red);
        ground.rtp().SetSelAlignment(RichTextBox::rtfCenter);
        ground.chooseKind(1);
        QCOMPARE(ground.rtp().SelColor().value_or(0), Red);
        ground.chooseKind(2);
        ground.rtp().SetSelStart(0);
        ground.rtp().SetSelLength(int(ground.rtp().Text().size()));
        QCOMPARE(ground.rtp().SelColor().value_or(1), 0U);
        QCOMPARE(ground.rtp().SelAlignment().value_or(-1), int(RichTextBox::rtfLeft));
    }

    // --- insert

    void insertWithNoSelectionShowsTheMessageAndTheNoteIsUnchanged() {
        LettersGround ground;
        ground.rt1().SetText(u"My note"_s);
        ground.window().Show();
        ground.choose(u"Gift..."_s);
        ground.boxes.expect(u"Select text you want to insert."_s, 64, Answer::Ok);
        ground.insert();
        QCOMPARE(ground.boxes.asked.size(), 1);
        QCOMPARE(ground.rt1().Text(), u"My note"_s);
        QVERIFY(ground.window().isVisible());
    }

    void insertPutsTheSelectionInAtTheCaretOfTheNote() {
        LettersGround ground;
        ground.rt1().SetText(u"Hello . Good-bye."_s);
        ground.rt1().SetSelStart(6);
        ground.window().Show();
        ground.choose(u"Gift..."_s);
        ground.select(u"The quilt arrived yesterday"_s);
        ground.insert();
        QCOMPARE(ground.rt1().Text(), u"Hello The quilt arrived yesterday. Good-bye."_s);
    }

    void insertReplacesTheSelectionOfTheNote() {
        LettersGround ground;
        ground.rt1().SetText(u"Hello world."_s);
        ground.rt1().SetSelStart(6);
        ground.rt1().SetSelLength(5);
        ground.window().Show();
        ground.choose(u"Write a letter to accompany a gift"_s);
        ground.select(u"Grandma"_s);
        ground.insert();
        QCOMPARE(ground.rt1().Text(), u"Hello Grandma."_s);
    }

    void insertKeepsTheLookOfWhatItBrings() {
        LettersGround ground;
        ground.window().Show();
        ground.choose(u"Gift..."_s);
        ground.select(u"The quilt arrived yesterday"_s);
        ground.rtp().SetSelBold(true);
        ground.rtp().SetSelColor(Red);
        ground.insert();
        ground.rt1().SetSelStart(4);
        ground.rt1().SetSelLength(5);
        QCOMPARE(ground.rt1().SelText(), u"quilt"_s);
        QCOMPARE(ground.rt1().SelBold().value_or(false), true);
        QCOMPARE(ground.rt1().SelColor().value_or(0), Red);
    }

    void insertKeepsTheLinesOfWhatItBrings() {
        LettersGround ground;
        ground.window().Show();
        ground.choose(u"Orders"_s);
        ground.chooseKind(1);
        ground.rtp().SetSelStart(0);
        ground.rtp().SetSelLength(int(ground.rtp().Text().size()) - 2);
        const QString selected = ground.rtp().SelText();
        ground.insert();
        QCOMPARE(ground.rt1().Text(), selected);
    }

    void afterAnInsertTheWindowAndItsPreviewAreAsBefore() {
        LettersGround ground;
        ground.window().Show();
        ground.choose(u"Gift..."_s);
        ground.select(u"quilt"_s);
        ground.insert();
        QVERIFY(ground.window().isVisible());
        QCOMPARE(ground.rtp().Text(), letters(u"Gift..."_s));
        QCOMPARE(ground.rtp().SelText(), u"quilt"_s);
        ground.insert();
        QCOMPARE(ground.rt1().Text(), u"quiltquilt"_s);
    }

    // --- leaving

    void cancelUnloadsTheWindowAndLeavesTheNoteAlone() {
        LettersGround ground;
        ground.rt1().SetText(u"My note"_s);
        ground.window().Show();
        ground.choose(u"Gift..."_s);
        ground.select(u"quilt"_s);
        ground.cancel();
        QVERIFY(!ground.isOpen());
        QCOMPARE(ground.rt1().Text(), u"My note"_s);
    }

    void closingAndEscapeUnloadTheWindowToo() {
        LettersGround ground;
        ground.rt1().SetText(u"My note"_s);
        ground.window().Show();
        ground.window().close();
        QVERIFY(!ground.isOpen());
        ground.window().Show();
        QTest::keyClick(&ground.window(), Qt::Key_Escape);
        QVERIFY(!ground.isOpen());
        QCOMPARE(ground.rt1().Text(), u"My note"_s);
    }

    void theKeyboardReachesAllButTheButtonsThatHaveKeys() {
        LettersGround ground;
        ground.window().Show();
        QApplication::setActiveWindow(&ground.window());
        ground.tree().setFocus(Qt::TabFocusReason);
        QStringList reached;
        do {
            QTest::keyClick(ground.window().focusWidget(), Qt::Key_Tab);
            reached << ground.window().focusWidget()->objectName();
        } while (reached.constLast() != u"TV1"_s && reached.size() < 20);
        QCOMPARE(reached, (QStringList{u"optLet(0)"_s, u"rtp"_s, u"TV1"_s}));
    }

    void controlAndEnterInsertsWhereverTheFocusIs() {
        LettersGround ground;
        ground.window().Show();
        QApplication::setActiveWindow(&ground.window());
        ground.choose(u"Gift..."_s);
        for (QWidget* from :
             std::initializer_list<QWidget*>{&ground.rtp(), &ground.tree(), &ground.option(0)}) {
            ground.rt1().SetText({});
            ground.rtp().Find(u"quilt"_s);
            from->setFocus();
            QTest::keyClick(from, Qt::Key_Return, Qt::ControlModifier);
            QCOMPARE(ground.rt1().Text(), u"quilt"_s);
        }
    }

    void aWindowOpenedAgainBeginsAnew() {
        LettersGround ground;
        ground.window().Show();
        ground.choose(u"Gift..."_s);
        ground.chooseKind(2);
        ground.cancel();
        ground.window().Show();
        QCOMPARE(ground.window().windowTitle(), u"Letters Templates"_s);
        QVERIFY(ground.option(0).isChecked());
        QCOMPARE(ground.rtp().Text(), QString());
    }

private:
    static void everythingIs(RichTextBox& box, const QString& name, qreal points) {
        QVERIFY(!box.Text().isEmpty());
        box.SetSelStart(0);
        box.SetSelLength(int(box.Text().size()));
        QCOMPARE(box.SelFontName().value_or(u"mixed"_s), name);
        QCOMPARE(box.SelFontSize().value_or(0), points);
        box.SetSelStart(0);
    }
};

ORVALIS_TEST_MAIN_WITH(Application, LettersInsertTest)
#include "letters_insert_test.moc"
