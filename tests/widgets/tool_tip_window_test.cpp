// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "widgets/tool_tip_window.h"

#include "support/pointer_events.h"
#include "support/test_main.h"
#include "widgets/gg_command.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPointer>
#include <QScreen>

using namespace orvalis;
using namespace Qt::StringLiterals;
using orvalis::test::Pointer;

class ToolTipWindowTest : public QObject {
    Q_OBJECT
private slots:
    void hoveringCreatesTheToolTip();
    void anEmptyToolTipCreatesNoWindow();
    void aTitleWithoutTextCreatesNoWindow();
    void leavingDestroysTheToolTip();
    void aWindowThatGoesFindsAllItsChildren();
    void theButtonsEndDestroysTheToolTip();
    void theEndOfTheButtonsWindowDestroysTheToolTip();
    void hoveringAgainMakesANewOne();
    void theToolTipTakesAllItsProperties();
    void anyStyleButOneIsARectangle();
    void settingTheTextUpdatesTheWindowThatExists();
    void theToolTipComesUpAfterTheRest();
    void theToolTipStaysOnTopAndTakesNeitherFocusNorMouse();
    void aPressTakesTheToolTipAway();
    void aToolTipTakenAwayStaysAwayWhileThePointerMoves();
    void aTextEmptiedHidesTheToolTip();
    void theColoursAreThoseOfTheButton();
    void systemColoursAreTranslated();
    void aTitleMakesTheWindowHigher();
    void anIconMakesTheTitleWider();
    void aBalloonHasAStem();
    void aLongTextIsWrappedToTheScreen();
    void anAmpersandIsPrinted();
    void theToolTipComesUpInAWindowThatIsNotActive();
    void theToolkitsOwnToolTipNeverShows();

private:
    static ToolTipWindow::Content content(const QString& text) {
        ToolTipWindow::Content made;
        made.text = text;
        return made;
    }
    /// Waits until the tip has come up by itself.
    static bool cameUp(const ToolTipWindow& tip) {
        return QTest::qWaitFor([&] { return tip.isVisible(); });
    }
};

void ToolTipWindowTest::hoveringCreatesTheToolTip() {
    GGCommand button;
    button.setToolTip(u"Close"_s);
    QVERIFY(!button.toolTipWindow());
    Pointer(button).enter();
    QVERIFY(button.toolTipWindow());
    QCOMPARE(button.toolTipWindow()->content().text, u"Close"_s);
}

void ToolTipWindowTest::anEmptyToolTipCreatesNoWindow() {
    GGCommand button;
    Pointer(button).enter();
    QVERIFY(!button.toolTipWindow());
}

void ToolTipWindowTest::aTitleWithoutTextCreatesNoWindow() {
    GGCommand button;
    button.setToolTipTitle(u"Title"_s);
    button.setToolTipIcon(1);
    Pointer(button).enter();
    QVERIFY(!button.toolTipWindow());
}

void ToolTipWindowTest::leavingDestroysTheToolTip() {
    GGCommand button;
    button.setToolTip(u"Close"_s);
    Pointer pointer(button);
    pointer.enter();
    const QPointer<QWidget> tip(button.toolTipWindow());
    pointer.leave();
    QVERIFY(!button.toolTipWindow());
    QTRY_VERIFY(!tip);
}

void ToolTipWindowTest::aWindowThatGoesFindsAllItsChildren() {
    // A window that is hidden tells its children one after another, the tip of the button that the
    // pointer is on among them.
    class Last : public QWidget {
    public:
        Last(QWidget* form, const QPointer<QWidget>& tip)
            : QWidget(form)
            , m_tip(tip) {}
        bool toldWithTheTip = false;

    protected:
        void hideEvent(QHideEvent*) override { toldWithTheTip = !m_tip.isNull(); }

    private:
        const QPointer<QWidget>& m_tip;
    };
    QWidget form;
    GGCommand button(u"Image2"_s, &form);
    button.setToolTip(u"Close"_s);
    form.show();
    Pointer(button).enter();
    const QPointer<QWidget> tip(button.toolTipWindow());
    QVERIFY(cameUp(*button.toolTipWindow()));
    Last last(&form, tip);
    last.show();
    form.hide();
    QVERIFY(last.toldWithTheTip);
    QVERIFY(!button.toolTipWindow());
    QVERIFY(tip.isNull() || !tip->isVisible());
    QTRY_VERIFY(!tip);
}

void ToolTipWindowTest::theButtonsEndDestroysTheToolTip() {
    QPointer<QWidget> tip;
    {
        GGCommand button;
        button.setToolTip(u"Close"_s);
        Pointer(button).enter();
        tip = button.toolTipWindow();
        QVERIFY(tip);
    }
    QVERIFY(!tip);
}

void ToolTipWindowTest::theEndOfTheButtonsWindowDestroysTheToolTip() {
    auto* form = new QWidget;
    auto* button = new GGCommand(u"Image2"_s, form);
    button->setToolTip(u"Close"_s);
    Pointer(*button).enter();
    const QPointer<QWidget> tip(button->toolTipWindow());
    QVERIFY(tip);
    delete form;
    QVERIFY(!tip);
}

void ToolTipWindowTest::hoveringAgainMakesANewOne() {
    GGCommand button;
    button.setToolTip(u"Close"_s);
    Pointer pointer(button);
    pointer.enter();
    pointer.leave();
    button.setToolTipStyle(1);
    pointer.enter();
    QVERIFY(button.toolTipWindow()->content().balloon);
}

void ToolTipWindowTest::theToolTipTakesAllItsProperties() {
    GGCommand button;
    button.setToolTip(u"text"_s);
    button.setToolTipTitle(u"title"_s);
    button.setToolTipIcon(2);
    button.setToolTipStyle(1);
    button.setToolTipCentered(true);
    button.setToolTipBackColor(0xE1FFFF);
    button.setToolTipForeColor(0x800000);
    Pointer(button).enter();
    const auto& made = button.toolTipWindow()->content();
    QCOMPARE(made.text, u"text"_s);
    QCOMPARE(made.title, u"title"_s);
    QCOMPARE(made.icon, 2);
    QVERIFY(made.balloon);
    QVERIFY(made.centered);
    QCOMPARE(made.backColor, 0xE1FFFFU);
    QCOMPARE(made.foreColor, 0x800000U);
}

void ToolTipWindowTest::anyStyleButOneIsARectangle() {
    for (const int style : {0, 2, -1}) {
        GGCommand button;
        button.setToolTip(u"text"_s);
        button.setToolTipStyle(style);
        Pointer(button).enter();
        QVERIFY(!button.toolTipWindow()->content().balloon);
    }
}

void ToolTipWindowTest::settingTheTextUpdatesTheWindowThatExists() {
    GGCommand button;
    button.setToolTip(u"one"_s);
    Pointer(button).enter();
    const ToolTipWindow* tip = button.toolTipWindow();
    button.setToolTip(u"two"_s);
    QCOMPARE(button.toolTipWindow(), tip);
    QCOMPARE(tip->content().text, u"two"_s);
    QCOMPARE(tip->accessibleName(), u"two"_s);
}

void ToolTipWindowTest::theToolTipComesUpAfterTheRest() {
    GGCommand button;
    button.setToolTip(u"Close"_s);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    Pointer pointer(button);
    pointer.enter();
    QVERIFY(!button.toolTipWindow()->isVisible());
    QVERIFY(cameUp(*button.toolTipWindow()));
}

void ToolTipWindowTest::theToolTipStaysOnTopAndTakesNeitherFocusNorMouse() {
    QWidget tool;
    const ToolTipWindow tip(tool, content(u"Close"_s));
    QVERIFY(tip.isWindow());
    QCOMPARE(tip.windowType(), Qt::ToolTip);
    QVERIFY(tip.windowFlags() & Qt::WindowStaysOnTopHint);
    QVERIFY(tip.windowFlags() & Qt::WindowTransparentForInput);
    QVERIFY(tip.windowFlags() & Qt::WindowDoesNotAcceptFocus);
    QVERIFY(tip.testAttribute(Qt::WA_ShowWithoutActivating));
}

void ToolTipWindowTest::aPressTakesTheToolTipAway() {
    GGCommand button;
    button.setToolTip(u"Close"_s);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    Pointer pointer(button);
    pointer.enter();
    QVERIFY(cameUp(*button.toolTipWindow()));
    pointer.press();
    QVERIFY(button.toolTipWindow());
    QVERIFY(!button.toolTipWindow()->isVisible());
}

void ToolTipWindowTest::aToolTipTakenAwayStaysAwayWhileThePointerMoves() {
    QWidget tool;
    ToolTipWindow tip(tool, content(u"Close"_s));
    ToolTipWindow other(tool, content(u"Other"_s));
    tip.dismiss();
    tip.pointerMoved();
    other.pointerMoved();
    QVERIFY(cameUp(other));
    QVERIFY(!tip.isVisible());
}

void ToolTipWindowTest::aTextEmptiedHidesTheToolTip() {
    QWidget tool;
    ToolTipWindow tip(tool, content(u"Close"_s));
    QVERIFY(cameUp(tip));
    tip.updateText(QString());
    QVERIFY(!tip.isVisible());
}

void ToolTipWindowTest::theColoursAreThoseOfTheButton() {
    QWidget tool;
    auto asked = content(u"Close"_s);
    asked.backColor = 0x0000FF;
    asked.foreColor = 0x000000;
    ToolTipWindow tip(tool, asked);
    QVERIFY(cameUp(tip));
    const QImage look = tip.grab().toImage();
    QCOMPARE(look.pixelColor(2, 2), QColor(255, 0, 0));
    bool dark = false;
    for (int x = 5; x < look.width() - 5; ++x)
        dark = dark || look.pixelColor(x, look.height() / 2).red() < 100;
    QVERIFY(dark);
}

void ToolTipWindowTest::systemColoursAreTranslated() {
    QWidget tool;
    ToolTipWindow tip(tool, content(u"Close"_s));
    QVERIFY(cameUp(tip));
    QCOMPARE(tip.grab().toImage().pixelColor(2, 2), QApplication::palette().toolTipBase().color());
}

void ToolTipWindowTest::aTitleMakesTheWindowHigher() {
    QWidget tool;
    ToolTipWindow plain(tool, content(u"text"_s));
    auto asked = content(u"text"_s);
    asked.title = u"A title that is longer"_s;
    ToolTipWindow titled(tool, asked);
    QVERIFY(cameUp(plain) && cameUp(titled));
    QVERIFY(titled.height() >= plain.height() + QFontMetrics(plain.font()).height());
    QVERIFY(titled.width() > plain.width());
}

void ToolTipWindowTest::anIconMakesTheTitleWider() {
    QWidget tool;
    auto asked = content(u"text"_s);
    asked.title = u"A title that is longer"_s;
    ToolTipWindow titled(tool, asked);
    asked.icon = 1;
    ToolTipWindow withIcon(tool, asked);
    QVERIFY(cameUp(titled) && cameUp(withIcon));
    QVERIFY(withIcon.width() >= titled.width() + 16);
}

void ToolTipWindowTest::aBalloonHasAStem() {
    QWidget tool;
    ToolTipWindow plain(tool, content(u"text that is long enough"_s));
    auto asked = content(u"text that is long enough"_s);
    asked.balloon = true;
    ToolTipWindow balloon(tool, asked);
    QVERIFY(cameUp(plain) && cameUp(balloon));
    QVERIFY(balloon.height() > plain.height());
    const QRegion shape = balloon.mask();
    QVERIFY(!shape.contains(QPoint(0, 0)));
    const int tipRow = balloon.place().above ? balloon.height() - 2 : 1;
    QVERIFY(shape.contains(QPoint(balloon.place().stemX, tipRow)));
    QVERIFY(!shape.contains(QPoint(balloon.width() - 3, tipRow)));
    QVERIFY(plain.mask().isEmpty());
}

void ToolTipWindowTest::aLongTextIsWrappedToTheScreen() {
    QWidget tool;
    ToolTipWindow tip(tool, content(u"words and more "_s.repeated(100)));
    QVERIFY(cameUp(tip));
    QVERIFY(tip.screen()->availableGeometry().contains(tip.geometry()));
}

void ToolTipWindowTest::anAmpersandIsPrinted() {
    QWidget tool;
    ToolTipWindow with(tool, content(u"R&D"_s));
    ToolTipWindow without(tool, content(u"RD"_s));
    QVERIFY(cameUp(with) && cameUp(without));
    QVERIFY(with.width() > without.width());
    const auto inked = [](ToolTipWindow& tip) {
        const QImage look = tip.grab().toImage();
        int columns = 0;
        for (int x = 2; x < look.width() - 2; ++x) {
            bool ink = false;
            for (int y = 3; y < look.height() - 3; ++y)
                ink = ink || look.pixel(x, y) != look.pixel(2, 3);
            columns += ink ? 1 : 0;
        }
        return columns;
    };
    QVERIFY(inked(with) > inked(without) + 3);
}

void ToolTipWindowTest::theToolTipComesUpInAWindowThatIsNotActive() {
    GGCommand button;
    button.setToolTip(u"Close"_s);
    button.show();
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QVERIFY(!button.isActiveWindow());
    Pointer(button).enter();
    QVERIFY(cameUp(*button.toolTipWindow()));
}

void ToolTipWindowTest::theToolkitsOwnToolTipNeverShows() {
    QWidget form;
    form.setToolTip(u"of the form"_s);
    GGCommand button(u"Image2"_s, &form);
    button.setToolTip(u"Close"_s);
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), QPoint(1, 1));
    QVERIFY(QApplication::sendEvent(&button, &event));
    QVERIFY(event.isAccepted());
    for (const QWidget* widget : QApplication::topLevelWidgets())
        QVERIFY(!widget->inherits("QTipLabel"));
}

ORVALIS_TEST_MAIN_WITH(QApplication, ToolTipWindowTest)
#include "tool_tip_window_test.moc"
