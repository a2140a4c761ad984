// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/image.h"
#include "controls/rich_text_box.h"
#include "core/clock_label.h"
#include "runtime/aligned_timer.h"
#include "stickers/sticker_form.h"
#include "stickers/stickers.h"
#include "support/pointer_events.h"
#include "support/test_main.h"
#include "support/test_program.h"
#include "widgets/gg_command.h"

#include <QContextMenuEvent>
#include <QEventLoop>
#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QWindow>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

class StickerWindowTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void thePinSwitchesStayingOnTopWhileTheWindowStaysTheSame();
    void theBackgroundDragsTheWindowToo();
    void aHiddenStickersClockSleeps();
    void aPopUpComesUpOnTopWithoutTheFocus();
    void theFontDialogsColourStartsWhite();
    void theFontDialogGivesTheFocusToTheText();
    void theEndOfTheRunTakesStickersWithoutTheirUnload();
    void thereIsNoLimitToTheNumberOfStickers();
    void everyControlCarriesItsName();
    void newStickersLieFannedOut();
    void aStickerThatWasMovedComesUpWhereItWas();
    void whatIsTypedIntoANewStickerIsItsNote();
    void whatItsButtonsDoHasKeys();
    void theKeyboardReachesTitleTextAndPin();
    void thePinKeepsTheKeyboard();
    void titleAndTextHaveTheEditingMenu();
    void aStickerClosedWhileTheMenuOfItsTextIsOpenGoes();

private:
    StickerForm& shown(StickerWindow& window) {
        window.form().Show();
        return static_cast<StickerForm&>(window);
    }
    static void click(QWidget* widget) {
        Pointer pointer(*widget);
        pointer.press();
        pointer.release();
    }

    std::unique_ptr<TestProgram> m_test;
    std::unique_ptr<Stickers> m_stickers;
};

void StickerWindowTest::init() {
    m_test = std::make_unique<TestProgram>();
    m_stickers = std::make_unique<Stickers>(m_test->program);
    m_test->program.stickers = m_stickers.get();
}

void StickerWindowTest::cleanup() {
    m_stickers.reset();
    m_test.reset();
}

void StickerWindowTest::thePinSwitchesStayingOnTopWhileTheWindowStaysTheSame() {
    StickerForm& sticker = shown(m_stickers->newFrmstick());
    const QWindow* window = sticker.windowHandle();
    const WId id = sticker.winId();
    QVERIFY(window->flags().testFlag(Qt::WindowStaysOnTopHint));
    click(sticker.findChild<Image*>(u"imgOff"_s));
    QVERIFY(!window->flags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(sticker.isVisible());
    click(sticker.findChild<Image*>(u"imgOn"_s));
    QVERIFY(window->flags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(sticker.isVisible());
    QCOMPARE(sticker.windowHandle(), window);
    QCOMPARE(sticker.winId(), id);
}

void StickerWindowTest::theBackgroundDragsTheWindowToo() {
    StickerForm& sticker = shown(m_stickers->newFrmstick());
    sticker.move(100, 100);
    Pointer pointer(sticker);
    pointer.press({2, 60});
    pointer.move({12, 60}, Qt::LeftButton);
    QCOMPARE(sticker.pos(), QPoint(110, 100));
    pointer.release();
    pointer.press({2, 60}, Qt::RightButton);
    pointer.move({42, 60}, Qt::RightButton);
    QCOMPARE(sticker.pos(), QPoint(110, 100));
}

void StickerWindowTest::aHiddenStickersClockSleeps() {
    auto& sticker = static_cast<StickerForm&>(m_stickers->newFrmstick());
    const auto* timer = sticker.findChild<AlignedTimer*>(u"Timer1"_s);
    QVERIFY(!timer->isActive());
    sticker.Show();
    QVERIFY(timer->isActive());
    sticker.Hide();
    QVERIFY(!timer->isActive());
}

void StickerWindowTest::aPopUpComesUpOnTopWithoutTheFocus() {
    StickerWindow& sticker = m_stickers->globalXn();
    sticker.popUp();
    QVERIFY(sticker.form().isVisible());
    QVERIFY(sticker.form().testAttribute(Qt::WA_ShowWithoutActivating));
    QVERIFY(sticker.form().windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
}

void StickerWindowTest::theFontDialogsColourStartsWhite() {
    StickerForm& sticker = shown(m_stickers->newFrmstick());
    RichTextBox& text = sticker.Text1();
    text.SetText(u"ab"_s);
    text.SetSelStart(0);
    text.SetSelLength(1);
    text.SetSelItalic(true);
    text.SetSelStart(0);
    text.SetSelLength(2);
    m_test->dialogs.answerFont(std::nullopt);
    click(sticker.findChild<GGCommand*>(u"Image3"_s));
    // Nothing of the mixed selection was read, the italics being the first of the seven.
    QCOMPARE(m_test->dialogs.fonts.constLast().colour, 0xFFFFFFU);
    QVERIFY(!programHasEnded());
}

void StickerWindowTest::theFontDialogGivesTheFocusToTheText() {
    StickerForm& sticker = shown(m_stickers->newFrmstick());
    sticker.findChild<QWidget*>(u"txtLabel1"_s)->setFocus();
    m_test->dialogs.answerFont(FontChoice{.name = u"Arial"_s, .size = 9});
    click(sticker.findChild<GGCommand*>(u"Image3"_s));
    QCOMPARE(sticker.focusWidget(), &sticker.Text1());
}

void StickerWindowTest::theEndOfTheRunTakesStickersWithoutTheirUnload() {
    shown(m_stickers->newFrmstick());
    shown(m_stickers->newFrmstick()).close();
    QCOMPARE(m_test->program.state.StickerCount, 1);
    m_stickers.reset();
    QCOMPARE(m_test->program.state.StickerCount, 1);
}

void StickerWindowTest::thereIsNoLimitToTheNumberOfStickers() {
    for (int i = 0; i < 40; ++i)
        m_stickers->newXn();
    QCOMPARE(m_test->program.state.StickerCount, 40);
    QCOMPARE(m_test->program.state.StickerNo, 40);
}

void StickerWindowTest::everyControlCarriesItsName() {
    StickerForm& sticker = shown(m_stickers->newXn());
    for (const QString& name : {u"Image1"_s, u"Image2"_s, u"Image3"_s, u"txtLabel1"_s, u"Text1"_s,
                                u"lblVreme"_s, u"imgOn"_s, u"imgOff"_s})
        QVERIFY2(sticker.findChild<QWidget*>(name, Qt::FindDirectChildrenOnly) != nullptr,
                 qPrintable(name));
}

void StickerWindowTest::newStickersLieFannedOut() {
    QList<QPoint> places;
    for (int i = 0; i < 9; ++i) {
        StickerForm& sticker = shown(i % 2 == 0 ? m_stickers->newFrmstick() : m_stickers->newXn());
        places << sticker.pos();
        QVERIFY(sticker.screen()->availableGeometry().contains(sticker.frameGeometry()));
    }
    for (int i = 1; i < 8; ++i)
        QCOMPARE(places.at(i) - places.at(0), QPoint(24, 28) * i);
    QCOMPARE(places.at(8), places.at(0));
}

void StickerWindowTest::aStickerThatWasMovedComesUpWhereItWas() {
    shown(m_stickers->newFrmstick());
    StickerForm& sticker = shown(m_stickers->newFrmstick());
    sticker.move(10, 20);
    sticker.Hide();
    sticker.Show();
    QCOMPARE(sticker.pos(), QPoint(10, 20));
}

void StickerWindowTest::whatIsTypedIntoANewStickerIsItsNote() {
    for (StickerWindow* made : {&m_stickers->newFrmstick(), &m_stickers->newXn()}) {
        StickerForm& sticker = shown(*made);
        QTest::keyClicks(sticker.focusWidget(), u"milk"_s);
        QCOMPARE(made->Text1().Text(), u"milk"_s);
    }
}

void StickerWindowTest::whatItsButtonsDoHasKeys() {
    StickerForm& sticker = shown(m_stickers->newFrmstick());
    QVERIFY(QTest::qWaitForWindowActive(&sticker));
    for (QWidget* from : std::initializer_list<QWidget*>{
             &sticker.Text1(), sticker.findChild<QLineEdit*>(u"txtLabel1"_s)}) {
        from->setFocus();
        const int before = m_test->program.state.StickerCount;
        QTest::keyClick(from, Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(m_test->program.state.StickerCount, before + 1);
        sticker.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&sticker));
        const auto dialogs = m_test->dialogs.fonts.size();
        m_test->dialogs.answerFont(std::nullopt);
        QTest::keyClick(from, Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(m_test->dialogs.fonts.size(), dialogs + 1);
    }
    QCOMPARE(sticker.Text1().Text(), QString());
    const int open = m_test->program.state.StickerCount;
    const QPointer<StickerForm> window = &sticker;
    QTest::keyClick(&sticker.Text1(), Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(m_test->program.state.StickerCount, open - 1);
    QTRY_VERIFY(window.isNull());
}

void StickerWindowTest::theKeyboardReachesTitleTextAndPin() {
    StickerForm& sticker = shown(m_stickers->newFrmstick());
    QVERIFY(QTest::qWaitForWindowActive(&sticker));
    QSet<QString> reached;
    for (int i = 0; i < 10; ++i) {
        QTest::keyClick(sticker.focusWidget(), Qt::Key_Tab);
        reached << sticker.focusWidget()->objectName();
    }
    QCOMPARE(reached, (QSet<QString>{u"txtLabel1"_s, u"Text1"_s, u"imgOff"_s}));
    sticker.Text1().setFocus();
    QTest::keyClick(&sticker.Text1(), Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(sticker.Text1().Text(), u"\t"_s);
}

void StickerWindowTest::thePinKeepsTheKeyboard() {
    StickerForm& sticker = shown(m_stickers->newFrmstick());
    QVERIFY(QTest::qWaitForWindowActive(&sticker));
    auto* off = sticker.findChild<Image*>(u"imgOff"_s);
    auto* on = sticker.findChild<Image*>(u"imgOn"_s);
    off->setFocus();
    QTest::keyClick(off, Qt::Key_Space);
    QVERIFY(!off->isVisible() && on->hasFocus());
    QTest::keyClick(on, Qt::Key_Return);
    QVERIFY(!on->isVisible() && off->hasFocus());
}

void StickerWindowTest::titleAndTextHaveTheEditingMenu() {
    StickerForm& sticker = shown(m_stickers->newFrmstick());
    for (QWidget* box : std::initializer_list<QWidget*>{
             sticker.Text1().viewport(), sticker.findChild<QLineEdit*>(u"txtLabel1"_s)}) {
        QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(5, 5),
                                box->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(box, &asked);
        QWidget* menu = QApplication::activePopupWidget();
        QVERIFY(menu != nullptr);
        QCOMPARE(menu->objectName(), u"editMenu"_s);
        menu->close();
    }
}

void StickerWindowTest::aStickerClosedWhileTheMenuOfItsTextIsOpenGoes() {
    StickerForm& sticker = shown(m_stickers->newFrmstick());
    const QPointer<StickerForm> window = &sticker;
    // As in the program, everything happens in an event loop.
    QEventLoop outermost;
    bool menuWasOpen = false;
    QTimer::singleShot(0, &outermost, [&] {
        QWidget* text = sticker.Text1().viewport();
        QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(5, 5),
                                text->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(text, &asked);
    });
    QTimer::singleShot(20, &outermost, [&] {
        menuWasOpen = QApplication::activePopupWidget() != nullptr;
        sticker.close();
    });
    QTimer::singleShot(100, &outermost, [&] {
        if (QWidget* menu = QApplication::activePopupWidget())
            menu->close();
        outermost.quit();
    });
    outermost.exec();
    QVERIFY(menuWasOpen);
    QTRY_VERIFY(window.isNull());
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    QCOMPARE(m_test->program.state.StickerCount, 0);
}

ORVALIS_TEST_MAIN_WITH(Application, StickerWindowTest)
#include "sticker_window_test.moc"
