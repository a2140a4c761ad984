// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "stickers/stickers.h"

#include "controls/image.h"
#include "controls/label.h"
#include "controls/rich_text_box.h"
#include "skin/skin.h"
#include "stickers/sticker_form.h"
#include "support/contrast.h"
#include "support/test_main.h"
#include "support/test_program.h"
#include "widgets/gg_command.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>

#include <set>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

class StickerTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void withTheSecondOfThreeClosedTheNextGetsNumberFour();
    void alarmAndReminderStickersCountInBothCounters();
    void aNewStickerStartsOnTopWithImgOffShowing();
    void unpinningSwapsTheImagesAndLetsTheWindowSink();
    void pinningAgainBringsTheWindowBackOnTop();
    void titleAndClockStandOutFromThePaper();
    void whatIsTypedStandsOutFromThePaper();
    void theSignsStandOutFromTheEdgeOfThePaper_data();
    void theSignsStandOutFromTheEdgeOfThePaper();
    void thePaperIsLightEnoughForTheRedOfAlarms();
    void theCrossIsDrawnAsTheSignsBesideIt();
    void captionAndTitleBeginWithTheNumber();
    void theCaptionFollowsTheTitle();
    void anEmptyTitleGivesAnEmptyCaption();
    void aTitleThatDoesNotFitIsReadFromItsBeginning();
    void newStickerMakesAnXnFromEitherClass_data();
    void newStickerMakesAnXnFromEitherClass();
    void closingAsksNothingAndTakesTheTextAway();
    void theWindowManagersCloseDoesWhatTheCloseButtonDoes();
    void theGlobalStickerIsMadeAgainOnceItWasClosed();
    void everyReminderHasAWindowOfItsOwn();
    void theClockShowsTheChosenFormat();
    void theClockIsSetWhenTheStickerShows();
    void movingOverTheClockTellsTheDateInItsToolTip();
    void anyButtonOnTheClockDragsTheWindow_data();
    void anyButtonOnTheClockDragsTheWindow();
    void theFontDialogIsLoadedFromTheSelectionAndWrittenBack();
    void eachEffectIsLoadedAndWrittenBack_data();
    void eachEffectIsLoadedAndWrittenBack();
    void aCancelledFontDialogChangesNothing();
    void aMixedSelectionShowsTheDialogAndAppliesNothing();
    void clientSizesAreThoseOfTheirClasses();
    void toolTipsTellWhatTheButtonsDo();
    void bothClassesHaveTheSameControls();
    void onAWiderScreenTheFontsShrinkAndThePlacesStay();
    void nothingOfAStickerIsStored();
    void anEndThatNobodyAskedForKeepsTheTextsOfOpenStickers();

private:
    template <class Control>
    Control& find(StickerWindow& sticker, const char* name) {
        auto* control = sticker.form().findChild<Control*>(QString::fromLatin1(name));
        if (control == nullptr)
            qFatal("no control %s", name);
        return *control;
    }
    void press(StickerWindow& sticker, const char* name) {
        find<GGCommand>(sticker, name).setValue(true);
    }
    static void click(Image& image) { QTest::mouseClick(&image, Qt::LeftButton); }
    Program& program() { return m_test->program; }

    std::unique_ptr<TestProgram> m_test;
    std::unique_ptr<Stickers> m_stickers;
};

void StickerTest::init() {
    m_test = std::make_unique<TestProgram>();
    m_stickers = std::make_unique<Stickers>(m_test->program);
    program().stickers = m_stickers.get();
}

void StickerTest::cleanup() {
    m_stickers.reset();
    m_test.reset();
}

void StickerTest::withTheSecondOfThreeClosedTheNextGetsNumberFour() {
    m_stickers->newFrmstick();
    StickerWindow& second = m_stickers->newFrmstick();
    m_stickers->newFrmstick();
    press(second, "Image2");
    QCOMPARE(program().state.StickerCount, 2);

    StickerWindow& next = m_stickers->newFrmstick();
    QCOMPARE(next.form().windowTitle(), u"Sticker No4"_s);
    QCOMPARE(program().state.StickerNo, 4);
    QCOMPARE(program().state.StickerCount, 3);
}

void StickerTest::alarmAndReminderStickersCountInBothCounters() {
    m_stickers->globalXn();
    m_stickers->newXn();
    QCOMPARE(program().state.StickerNo, 2);
    QCOMPARE(program().state.StickerCount, 2);
}

void StickerTest::aNewStickerStartsOnTopWithImgOffShowing() {
    StickerWindow& sticker = m_stickers->newFrmstick();
    QVERIFY(sticker.form().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(!find<Image>(sticker, "imgOff").isHidden());
    QVERIFY(find<Image>(sticker, "imgOn").isHidden());
}

void StickerTest::unpinningSwapsTheImagesAndLetsTheWindowSink() {
    StickerWindow& sticker = m_stickers->newFrmstick();
    sticker.form().Show();
    click(find<Image>(sticker, "imgOff"));
    QVERIFY(!sticker.form().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(find<Image>(sticker, "imgOff").isHidden());
    QVERIFY(!find<Image>(sticker, "imgOn").isHidden());
    QVERIFY(sticker.form().isVisible());
}

void StickerTest::pinningAgainBringsTheWindowBackOnTop() {
    StickerWindow& sticker = m_stickers->newFrmstick();
    sticker.form().Show();
    click(find<Image>(sticker, "imgOff"));
    click(find<Image>(sticker, "imgOn"));
    QVERIFY(sticker.form().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(!find<Image>(sticker, "imgOff").isHidden());
    QVERIFY(find<Image>(sticker, "imgOn").isHidden());
}

void StickerTest::titleAndClockStandOutFromThePaper() {
    StickerWindow& sticker = m_stickers->newFrmstick();
    sticker.form().Show();
    for (const char* name : {"txtLabel1", "lblVreme"})
        QVERIFY2(textContrast(drawnLarge(find<QWidget>(sticker, name))) >= ReadableContrast, name);
}

void StickerTest::whatIsTypedStandsOutFromThePaper() {
    StickerWindow& sticker = m_stickers->newFrmstick();
    sticker.Text1().SetText(u"Milk and bread"_s);
    sticker.form().Show();
    QVERIFY(textContrast(drawnLarge(sticker.Text1())) >= ReadableContrast);
}

void StickerTest::theSignsStandOutFromTheEdgeOfThePaper_data() {
    QTest::addColumn<QByteArray>("name");
    for (const char* name : {"imgOff", "imgOn", "Image1", "Image3", "Image2"})
        QTest::newRow(name) << QByteArray(name);
}

void StickerTest::theSignsStandOutFromTheEdgeOfThePaper() {
    QFETCH(QByteArray, name);
    StickerWindow& sticker = m_stickers->newFrmstick();
    sticker.form().Show();
    if (name == "imgOn")
        click(find<Image>(sticker, "imgOff"));
    auto& sign = find<QWidget>(sticker, name.constData());
    // Within the edges that rise under the pointer.
    const QRect inside(sign.mapTo(sign.window(), QPoint(2, 2)), sign.size() - QSize(4, 4));
    const auto measure = [&] { return textContrast(drawnLarge(*sign.window(), inside)); };
    const double apart = measure();
    QVERIFY2(apart >= ReadableContrast, qPrintable(QString::number(apart)));
    QEnterEvent enter({5, 5}, {5, 5}, sign.mapToGlobal(QPointF(5, 5)));
    QApplication::sendEvent(&sign, &enter);
    const double underPointer = measure();
    QVERIFY2(underPointer >= ReadableContrast, qPrintable(QString::number(underPointer)));
}

void StickerTest::thePaperIsLightEnoughForTheRedOfAlarms() {
    // Pure red on white has a contrast of 4.0: paper can come near it and no more.
    constexpr double OnWhite = 4.0;
    StickerWindow& sticker = m_stickers->newFrmstick();
    sticker.form().Show();
    const QRect text = find<QWidget>(sticker, "Text1").geometry();
    const QImage paper = skin::pixmap(u"sticker_background", 1).toImage();
    for (const QPoint place : {text.topLeft() + QPoint(4, 8), text.center(), text.bottomRight()})
        QVERIFY(contrast(luminance(paper.pixel(place)), luminance(qRgb(255, 0, 0))) >=
                0.9 * OnWhite);
}

void StickerTest::theCrossIsDrawnAsTheSignsBesideIt() {
    StickerWindow& sticker = m_stickers->newFrmstick();
    auto& close = find<GGCommand>(sticker, "Image2");
    QCOMPARE(close.Caption(), u"x"_s);
    QVERIFY(!close.Picture().isNull());
    QCOMPARE(close.Picture().size(), find<GGCommand>(sticker, "Image1").Picture().size());
    // The letter itself is not to be seen.
    close.setPicture({});
    const QImage withLetter = close.grab().toImage();
    close.setCaption({});
    QCOMPARE(withLetter, close.grab().toImage());
}

void StickerTest::captionAndTitleBeginWithTheNumber() {
    StickerWindow& sticker = m_stickers->newXn();
    QCOMPARE(sticker.form().windowTitle(), u"Sticker No1"_s);
    QCOMPARE(find<QLineEdit>(sticker, "txtLabel1").text(), u"Sticker No1"_s);
}

void StickerTest::theCaptionFollowsTheTitle() {
    StickerWindow& sticker = m_stickers->newFrmstick();
    auto& title = find<QLineEdit>(sticker, "txtLabel1");
    title.selectAll();
    QTest::keyClicks(&title, u"Milk"_s);
    QCOMPARE(sticker.form().windowTitle(), u"Milk"_s);
}

void StickerTest::anEmptyTitleGivesAnEmptyCaption() {
    StickerWindow& sticker = m_stickers->newFrmstick();
    auto& title = find<QLineEdit>(sticker, "txtLabel1");
    title.selectAll();
    QTest::keyClick(&title, Qt::Key_Delete);
    QCOMPARE(sticker.form().windowTitle(), QString());
}

void StickerTest::aTitleThatDoesNotFitIsReadFromItsBeginning() {
    StickerWindow& sticker = m_stickers->newFrmstick();
    sticker.form().Show();
    QApplication::setActiveWindow(&sticker.form());
    auto& title = find<QLineEdit>(sticker, "txtLabel1");
    title.setFocus();
    title.selectAll();
    QTest::keyClicks(&title, u"Milk, bread, butter, eggs and whatever else is due"_s);
    const int end = title.cursorPosition();
    QVERIFY(end > 0);
    QTest::keyClick(&title, Qt::Key_Return);
    QCOMPARE(title.cursorPosition(), end);
    sticker.Text1().setFocus();
    QCOMPARE(title.cursorPosition(), 0);
}

void StickerTest::newStickerMakesAnXnFromEitherClass_data() {
    QTest::addColumn<bool>("fromXn");
    QTest::newRow("from frmstick") << false;
    QTest::newRow("from xn") << true;
}

void StickerTest::newStickerMakesAnXnFromEitherClass() {
    QFETCH(bool, fromXn);
    StickerWindow& sticker = fromXn ? m_stickers->newXn() : m_stickers->newFrmstick();
    std::set<QWidget*> before;
    for (QWidget* widget : QApplication::topLevelWidgets())
        before.insert(widget);
    press(sticker, "Image1");
    const auto widgets = QApplication::topLevelWidgets();
    const auto made = std::find_if(widgets.begin(), widgets.end(), [&](QWidget* widget) {
        return !before.contains(widget) && qobject_cast<StickerForm*>(widget);
    });
    QVERIFY(made != widgets.end());
    QCOMPARE((*made)->objectName(), u"xn"_s);
    QVERIFY((*made)->isVisible());
    QCOMPARE((*made)->windowTitle(), u"Sticker No2"_s);
}

void StickerTest::closingAsksNothingAndTakesTheTextAway() {
    StickerWindow& sticker = m_stickers->newFrmstick();
    sticker.form().Show();
    sticker.Text1().SetText(u"remember"_s);
    const QPointer<Form> form(&sticker.form());
    press(sticker, "Image2");
    QVERIFY(!form->isVisible());
    QCOMPARE(program().state.StickerCount, 0);
    QTRY_VERIFY(form.isNull());
    QVERIFY(m_test->boxes.asked.isEmpty());
}

void StickerTest::theWindowManagersCloseDoesWhatTheCloseButtonDoes() {
    StickerWindow& sticker = m_stickers->newFrmstick();
    sticker.form().Show();
    sticker.form().close();
    QCOMPARE(program().state.StickerCount, 0);
}

void StickerTest::theGlobalStickerIsMadeAgainOnceItWasClosed() {
    StickerWindow& first = m_stickers->globalXn();
    QCOMPARE(&m_stickers->globalXn(), &first);
    press(first, "Image2");
    QCOMPARE(m_stickers->globalXn().form().windowTitle(), u"Sticker No2"_s);
    QCOMPARE(program().state.StickerCount, 1);
}

void StickerTest::everyReminderHasAWindowOfItsOwn() {
    StickerWindow& global = m_stickers->globalXn();
    StickerWindow& one = m_stickers->newXn();
    StickerWindow& other = m_stickers->newXn();
    QVERIFY(&one != &other);
    QVERIFY(&one != &global);
}

void StickerTest::theClockShowsTheChosenFormat() {
    program().state.timeFormatIndex = 8;
    StickerWindow& sticker = m_stickers->newFrmstick();
    sticker.form().Show();
    QCOMPARE(find<Label>(sticker, "lblVreme").Caption(), u"10 / 24 / 36"_s);
    program().state.timeFormatIndex = 13;
    m_test->clock.advanceSeconds(1);
    QTRY_COMPARE(find<Label>(sticker, "lblVreme").Caption(), QString());
}

void StickerTest::theClockIsSetWhenTheStickerShows() {
    StickerWindow& sticker = m_stickers->newFrmstick();
    sticker.form().Show();
    QCOMPARE(find<Label>(sticker, "lblVreme").Caption(), u"10 : 24 : 36"_s);
    sticker.form().Hide();
    m_test->clock.advanceSeconds(60);
    sticker.form().Show();
    QCOMPARE(find<Label>(sticker, "lblVreme").Caption(), u"10 : 25 : 36"_s);
}

void StickerTest::movingOverTheClockTellsTheDateInItsToolTip() {
    StickerWindow& sticker = m_stickers->newFrmstick();
    sticker.form().Show();
    auto& clock = find<Label>(sticker, "lblVreme");
    QTest::mouseMove(&clock, QPoint(5, 5));
    QTest::mouseMove(&clock, QPoint(9, 6));
    QTRY_COMPARE(clock.toolTip(), u"Saturday, March 14, 2026"_s);
}

void StickerTest::anyButtonOnTheClockDragsTheWindow_data() {
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void StickerTest::anyButtonOnTheClockDragsTheWindow() {
    QFETCH(Qt::MouseButton, button);
    StickerWindow& sticker = m_stickers->newFrmstick();
    Form& form = sticker.form();
    form.Show();
    const QPoint before = form.pos();
    auto& clock = find<Label>(sticker, "lblVreme");
    const QPoint grip(20, 8);
    const QPoint by(-37, 21);
    QTest::mousePress(&clock, button, {}, grip);
    QMouseEvent move(QEvent::MouseMove, grip + by, clock.mapToGlobal(grip) + by, Qt::NoButton,
                     button, Qt::NoModifier);
    QApplication::sendEvent(&clock, &move);
    QTest::mouseRelease(&clock, button, {}, grip);
    QCOMPARE(form.pos(), before + by);
}

void StickerTest::theFontDialogIsLoadedFromTheSelectionAndWrittenBack() {
    StickerWindow& sticker = m_stickers->newFrmstick();
    RichTextBox& text = sticker.Text1();
    text.SetText(u"note"_s);
    text.SetSelStart(0);
    text.SetSelLength(4);
    text.SetSelItalic(true);
    text.SetSelFontName(u"Liberation Serif"_s);
    text.SetSelFontSize(11);
    text.SetSelColor(0x0000FF);
    const FontChoice chosen{.italic = false,
                            .bold = true,
                            .name = u"Liberation Mono"_s,
                            .size = 14,
                            .strikethrough = true,
                            .underline = true,
                            .colour = 0x00FF00};
    m_test->dialogs.answerFont(chosen);
    press(sticker, "Image3");

    QCOMPARE(m_test->dialogs.fonts.size(), 1);
    const FontChoice shown = m_test->dialogs.fonts.first();
    QCOMPARE(shown.italic, true);
    QCOMPARE(shown.bold, false);
    QCOMPARE(shown.name, u"Liberation Serif"_s);
    QCOMPARE(shown.size, 11.0);
    QCOMPARE(shown.colour, 0x0000FFU);
    QCOMPARE(text.SelItalic(), std::optional(false));
    QCOMPARE(text.SelBold(), std::optional(true));
    QCOMPARE(text.SelFontName(), std::optional(u"Liberation Mono"_s));
    QCOMPARE(text.SelFontSize(), std::optional(14.0));
    QCOMPARE(text.SelStrikeThru(), std::optional(true));
    QCOMPARE(text.SelUnderline(), std::optional(true));
    QCOMPARE(text.SelColor(), std::optional(0x00FF00U));
}

void StickerTest::eachEffectIsLoadedAndWrittenBack_data() {
    QTest::addColumn<int>("effect");
    QTest::newRow("italic") << 0;
    QTest::newRow("bold") << 1;
    QTest::newRow("strikethrough") << 2;
    QTest::newRow("underline") << 3;
}

void StickerTest::eachEffectIsLoadedAndWrittenBack() {
    QFETCH(int, effect);
    StickerWindow& sticker = m_stickers->newXn();
    RichTextBox& text = sticker.Text1();
    text.SetText(u"note"_s);
    text.SetSelLength(4);
    text.SetSelItalic(effect == 0);
    text.SetSelBold(effect == 1);
    text.SetSelStrikeThru(effect == 2);
    text.SetSelUnderline(effect == 3);
    // What comes up is turned round: each effect that was on goes off, and the others come on.
    m_test->dialogs.answerFont(FontChoice{.italic = effect != 0,
                                          .bold = effect != 1,
                                          .name = u"Arial"_s,
                                          .size = 8,
                                          .strikethrough = effect != 2,
                                          .underline = effect != 3});
    press(sticker, "Image3");
    const FontChoice& shown = m_test->dialogs.fonts.constFirst();
    QCOMPARE(shown.italic, effect == 0);
    QCOMPARE(shown.bold, effect == 1);
    QCOMPARE(shown.strikethrough, effect == 2);
    QCOMPARE(shown.underline, effect == 3);
    QCOMPARE(text.SelItalic(), effect != 0);
    QCOMPARE(text.SelBold(), effect != 1);
    QCOMPARE(text.SelStrikeThru(), effect != 2);
    QCOMPARE(text.SelUnderline(), effect != 3);
}

void StickerTest::aCancelledFontDialogChangesNothing() {
    StickerWindow& sticker = m_stickers->newFrmstick();
    sticker.Text1().SetText(u"note"_s);
    const QByteArray before = sticker.Text1().TextRTF();
    m_test->dialogs.answerFont(std::nullopt);
    press(sticker, "Image3");
    QCOMPARE(sticker.Text1().TextRTF(), before);
}

void StickerTest::aMixedSelectionShowsTheDialogAndAppliesNothing() {
    StickerWindow& sticker = m_stickers->newFrmstick();
    RichTextBox& text = sticker.Text1();
    text.SetText(u"half bold"_s);
    text.SetSelStart(0);
    text.SetSelLength(4);
    text.SetSelBold(true);
    text.SetSelStart(0);
    text.SetSelLength(9);
    const QByteArray before = text.TextRTF();
    m_test->dialogs.answerFont(FontChoice{.name = u"Liberation Mono"_s, .size = 20});
    press(sticker, "Image3");
    QCOMPARE(m_test->dialogs.fonts.size(), 1);
    QCOMPARE(text.TextRTF(), before);
}

void StickerTest::clientSizesAreThoseOfTheirClasses() {
    QCOMPARE(m_stickers->newFrmstick().form().size(), QSize(194, 147));
    QCOMPARE(m_stickers->newXn().form().size(), QSize(194, 148));
}

void StickerTest::toolTipsTellWhatTheButtonsDo() {
    StickerWindow& sticker = m_stickers->newFrmstick();
    QCOMPARE(find<GGCommand>(sticker, "Image1").ToolTip(), u"New Sticker"_s);
    QCOMPARE(find<GGCommand>(sticker, "Image2").ToolTip(), u"Close"_s);
    QCOMPARE(find<GGCommand>(sticker, "Image2").Caption(), u"x"_s);
    QCOMPARE(find<GGCommand>(sticker, "Image3").ToolTip(), u"Font"_s);
}

void StickerTest::bothClassesHaveTheSameControls() {
    const auto controls = [](StickerWindow& sticker) {
        QStringList names;
        for (const QWidget* child :
             sticker.form().findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            names << child->objectName() + u' ' +
                         QString::fromLatin1(child->metaObject()->className());
        names.sort();
        return names;
    };
    StickerWindow& one = m_stickers->newFrmstick();
    StickerWindow& other = m_stickers->newXn();
    QCOMPARE(one.form().objectName(), u"frmstick"_s);
    QCOMPARE(controls(one), controls(other));
    QCOMPARE(controls(one).size(), 8);
}

void StickerTest::onAWiderScreenTheFontsShrinkAndThePlacesStay() {
    m_test->screen.screenSize = QSize(800, 600);
    StickerWindow& narrow = m_stickers->newFrmstick();
    m_test->screen.screenSize = QSize(1600, 1200);
    StickerWindow& wide = m_stickers->newFrmstick();
    for (const char* name : {"txtLabel1", "Text1", "lblVreme", "Image1", "imgOff"})
        QCOMPARE(find<QWidget>(wide, name).geometry(), find<QWidget>(narrow, name).geometry());
    for (const char* name : {"txtLabel1", "Text1", "lblVreme"}) {
        const double points = find<QWidget>(narrow, name).font().pointSizeF();
        QCOMPARE(find<QWidget>(wide, name).font().pointSizeF(), points / 2);
    }
    QCOMPARE(wide.form().size(), narrow.form().size());
}

void StickerTest::nothingOfAStickerIsStored() {
    StickerWindow& closed = m_stickers->newFrmstick();
    closed.Text1().SetText(u"remember"_s);
    press(closed, "Image2");
    m_stickers->newXn().Text1().SetText(u"remember too"_s);
    m_stickers.reset();
    QCOMPARE(m_test->folder.names(), QStringList());
    QCOMPARE(m_test->store.valueCount(), 0);
}

void StickerTest::anEndThatNobodyAskedForKeepsTheTextsOfOpenStickers() {
    StickerWindow& closed = m_stickers->newFrmstick();
    closed.Text1().SetText(u"was closed"_s);
    press(closed, "Image2");
    m_stickers->newFrmstick();
    StickerWindow& open = m_stickers->newXn();
    find<QLineEdit>(open, "txtLabel1").setText(u"Shop"_s);
    open.Text1().SetText(u"milk"_s);
    program().recovery.keep();
    RichTextBox box;
    box.files().LoadFile(m_test->folder.file(u"recovered.rtf"_s));
    QCOMPARE(box.Text(), u"Sticker \"Shop\", Saturday, March 14, 2026, 10:24:36\r\nmilk"_s);
}

ORVALIS_TEST_MAIN_WITH(QApplication, StickerTest)
#include "sticker_test.moc"
