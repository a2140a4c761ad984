// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "widgets/gg_command.h"

#include "controls/image.h"
#include "support/plain_pictures.h"
#include "support/pointer_events.h"
#include "support/test_main.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QSignalSpy>
#include <QTimer>
#include <QWindow>

#include <functional>

using namespace orvalis;
using namespace Qt::StringLiterals;
using orvalis::test::Pointer;
using orvalis::test::square;

namespace {

/// Writes down every event of a button in its order.
class Diary {
public:
    explicit Diary(GGCommand& button) {
        const auto mouse = [this](const QString& name) {
            return [this, name](int number, int shift, float x, float y) {
                m_lines << u"%1 %2 %3 %4 %5"_s.arg(name).arg(number).arg(shift).arg(x).arg(y);
            };
        };
        const auto plain = [this](const QString& name) {
            return [this, name] { m_lines << name; };
        };
        QObject::connect(&button, &GGCommand::Click, &button, plain(u"Click"_s));
        QObject::connect(&button, &GGCommand::DblClick, &button, plain(u"DblClick"_s));
        QObject::connect(&button, &GGCommand::MouseEnter, &button, plain(u"MouseEnter"_s));
        QObject::connect(&button, &GGCommand::MouseExit, &button, plain(u"MouseExit"_s));
        QObject::connect(&button, &GGCommand::MouseDown, &button, mouse(u"MouseDown"_s));
        QObject::connect(&button, &GGCommand::MouseMove, &button, mouse(u"MouseMove"_s));
        QObject::connect(&button, &GGCommand::MouseUp, &button, mouse(u"MouseUp"_s));
    }

    /// What was written since the last look.
    QStringList lines() { return std::exchange(m_lines, {}); }

private:
    QStringList m_lines;
};

} // namespace

class GGCommandMouseTest : public QObject {
    Q_OBJECT
private slots:
    void enteringRaisesMouseEnterOnce();
    void movingInsideRaisesMouseMove();
    void aMoveThatNobodyAnnouncedBeginsTheHoverFirst();
    void leavingRaisesMouseExit();
    void aPressThatNoMoveAnnouncedIsLeftLikeAnyOther();
    void theClickComesBetweenMouseDownAndMouseUp();
    void eachEventIsToldBeforeTheButtonFollowsIt();
    void eventsTellButtonShiftAndPoint();
    void theRightButtonGivesNoClick();
    void theRightButtonDoesNotSinkTheEdge();
    void aPressOfAnyButtonLetsTheLeftReleaseClick();
    void draggingOffRaisesMouseExitAndThenMouseMove();
    void aReleaseOutsideIsNotTold();
    void draggingOffAndBackAndReleasingGivesNoClick();
    void movesOutsideAfterDraggingOffAreNotTold();
    void withDontReleaseCaptureAMoveOutsideKeepsTheHover();
    void withDontReleaseCaptureAReleaseOutsideClicks();
    void givingTheCaptureBackEndsTheHover();
    void theSecondPressOfADoubleClickIsAPressToo();
    void thePictureBehavesLikeTheFace();
    void aPointOnThePictureIsToldFromThePicturesCorner();
    void aDoubleClickOnThePictureIsTheControlsDoubleClick();
    void movingFromFaceToPictureKeepsTheHover();
    void aPartCoveredByAnotherControlIsNotOver();
    void valueTrueRaisesClick();
    void valueFalseDoesNothing();
    void noKeyGivesAClick();
    void aDisabledButtonTellsNothing();
    void disablingEndsTheHover();
    void hidingEndsTheHover();
    void aBoxThatOpensUnderThePointerEndsTheHover();
    void aBoxThatMouseDownOpensLeavesTheButtonAtRest();
    void aBoxThatMouseEnterOpensLeavesTheButtonAtRest();
    void aHandlerMayDeleteItsButton_data();
    void aHandlerMayDeleteItsButton();
    void aHandlerOnThePictureMayDeleteItsButton();
    void theAccessiblePressIsAWholeClick();
    void theAccessiblePressLeavesNoHoverBehind();
    void theAccessiblePressKeepsTheHoverOfAPointerThatIsThere();
    void aDisabledButtonCannotBePressedByAssistivePrograms();
    void theAccessibleNameIsTheToolTipOrTheCaption();
};

void GGCommandMouseTest::enteringRaisesMouseEnterOnce() {
    GGCommand button;
    Diary diary(button);
    Pointer pointer(button);
    pointer.enter();
    pointer.enter();
    QCOMPARE(diary.lines(), QStringList{u"MouseEnter"_s});
}

void GGCommandMouseTest::movingInsideRaisesMouseMove() {
    GGCommand button;
    button.resize(40, 20);
    Diary diary(button);
    Pointer pointer(button);
    pointer.enter();
    diary.lines();
    pointer.move({0, 0});
    pointer.move({39, 19}, Qt::LeftButton | Qt::RightButton, Qt::ControlModifier);
    QCOMPARE(diary.lines(), (QStringList{u"MouseMove 0 0 0 0"_s, u"MouseMove 3 2 39 19"_s}));
}

void GGCommandMouseTest::aMoveThatNobodyAnnouncedBeginsTheHoverFirst() {
    GGCommand button;
    button.resize(40, 20);
    Diary diary(button);
    Pointer(button).move({3, 4});
    QCOMPARE(diary.lines(), (QStringList{u"MouseEnter"_s, u"MouseMove 0 0 3 4"_s}));
    QCOMPARE(button.borderState(), 1);
}

void GGCommandMouseTest::leavingRaisesMouseExit() {
    GGCommand button;
    Diary diary(button);
    Pointer pointer(button);
    pointer.enter();
    diary.lines();
    pointer.leave();
    pointer.leave();
    QCOMPARE(diary.lines(), QStringList{u"MouseExit"_s});
}

void GGCommandMouseTest::aPressThatNoMoveAnnouncedIsLeftLikeAnyOther() {
    // A finger presses without having moved there.
    for (const Qt::MouseButton held : {Qt::LeftButton, Qt::RightButton}) {
        GGCommand button;
        button.resize(40, 20);
        Diary diary(button);
        Pointer pointer(button);
        pointer.press({5, 5}, held);
        diary.lines();
        pointer.move({50, 5}, held);
        QCOMPARE(diary.lines().value(0), u"MouseExit"_s);
        QCOMPARE(button.borderState(), 0);
    }
}

void GGCommandMouseTest::theClickComesBetweenMouseDownAndMouseUp() {
    GGCommand button;
    Diary diary(button);
    Pointer pointer(button);
    pointer.enter();
    diary.lines();
    pointer.press({1, 2});
    QCOMPARE(diary.lines(), QStringList{u"MouseDown 1 0 1 2"_s});
    pointer.release({3, 4});
    QCOMPARE(diary.lines(), (QStringList{u"Click"_s, u"MouseUp 1 0 3 4"_s}));
}

void GGCommandMouseTest::eachEventIsToldBeforeTheButtonFollowsIt() {
    GGCommand button;
    button.setToolTip(u"Close"_s);
    QStringList seen;
    const auto look = [&](const QString& event) {
        return [&, event] {
            seen << u"%1 %2 %3"_s.arg(event)
                        .arg(button.borderState())
                        .arg(button.toolTipWindow() != nullptr ? u"tip"_s : u"none"_s);
        };
    };
    connect(&button, &GGCommand::MouseEnter, this, look(u"MouseEnter"_s));
    connect(&button, &GGCommand::MouseDown, this, look(u"MouseDown"_s));
    connect(&button, &GGCommand::Click, this, look(u"Click"_s));
    connect(&button, &GGCommand::MouseUp, this, look(u"MouseUp"_s));
    connect(&button, &GGCommand::MouseExit, this, look(u"MouseExit"_s));
    Pointer pointer(button);
    pointer.enter();
    pointer.press();
    pointer.release();
    pointer.leave();
    // The tip is there when the entering is told, and still there when the leaving is; the edge
    // is the one from before.
    QCOMPARE(seen, (QStringList{u"MouseEnter 0 tip"_s, u"MouseDown 1 tip"_s, u"Click 2 tip"_s,
                                u"MouseUp 2 tip"_s, u"MouseExit 1 tip"_s}));
    QCOMPARE(button.borderState(), 0);
    QVERIFY(button.toolTipWindow() == nullptr);
}

void GGCommandMouseTest::eventsTellButtonShiftAndPoint() {
    GGCommand button;
    Diary diary(button);
    Pointer pointer(button);
    pointer.press({1, 2}, Qt::MiddleButton, Qt::ShiftModifier | Qt::AltModifier);
    pointer.release({3, 4}, Qt::MiddleButton, Qt::ControlModifier);
    QCOMPARE(diary.lines(), (QStringList{u"MouseDown 4 5 1 2"_s, u"MouseUp 4 2 3 4"_s}));
}

void GGCommandMouseTest::theRightButtonGivesNoClick() {
    GGCommand button;
    Diary diary(button);
    Pointer pointer(button);
    pointer.press({1, 2}, Qt::RightButton);
    pointer.release({1, 2}, Qt::RightButton);
    QCOMPARE(diary.lines(), (QStringList{u"MouseDown 2 0 1 2"_s, u"MouseUp 2 0 1 2"_s}));
}

void GGCommandMouseTest::theRightButtonDoesNotSinkTheEdge() {
    GGCommand button;
    Pointer pointer(button);
    pointer.enter();
    pointer.press({1, 2}, Qt::RightButton);
    QCOMPARE(button.borderState(), 1);
    pointer.release({1, 2}, Qt::RightButton);
    QCOMPARE(button.borderState(), 1);
}

void GGCommandMouseTest::aPressOfAnyButtonLetsTheLeftReleaseClick() {
    GGCommand button;
    Pointer pointer(button);
    pointer.enter();
    pointer.press({1, 2}, Qt::RightButton);
    Diary diary(button);
    pointer.release({1, 2}, Qt::LeftButton);
    QCOMPARE(diary.lines(), (QStringList{u"Click"_s, u"MouseUp 1 0 1 2"_s}));
}

void GGCommandMouseTest::draggingOffRaisesMouseExitAndThenMouseMove() {
    GGCommand button;
    button.resize(40, 20);
    Diary diary(button);
    Pointer pointer(button);
    pointer.enter();
    pointer.press();
    diary.lines();
    pointer.move({40, 5}, Qt::LeftButton);
    QCOMPARE(diary.lines(), (QStringList{u"MouseExit"_s, u"MouseMove 1 0 40 5"_s}));
    QCOMPARE(button.borderState(), 0);
}

void GGCommandMouseTest::aReleaseOutsideIsNotTold() {
    GGCommand button;
    button.resize(40, 20);
    Diary diary(button);
    Pointer pointer(button);
    pointer.enter();
    pointer.press();
    pointer.move({5, 20}, Qt::LeftButton);
    diary.lines();
    pointer.release({5, 20});
    QCOMPARE(diary.lines(), QStringList());
    QCOMPARE(button.borderState(), 0);
}

void GGCommandMouseTest::draggingOffAndBackAndReleasingGivesNoClick() {
    GGCommand button;
    button.resize(40, 20);
    Diary diary(button);
    Pointer pointer(button);
    pointer.enter();
    pointer.press();
    pointer.move({-1, 5}, Qt::LeftButton);
    diary.lines();
    pointer.move({5, 5}, Qt::LeftButton);
    QCOMPARE(diary.lines(), (QStringList{u"MouseEnter"_s, u"MouseMove 1 0 5 5"_s}));
    QCOMPARE(button.borderState(), 1);
    pointer.release();
    QCOMPARE(diary.lines(), QStringList{u"MouseUp 1 0 5 5"_s});
}

void GGCommandMouseTest::movesOutsideAfterDraggingOffAreNotTold() {
    GGCommand button;
    button.resize(40, 20);
    Diary diary(button);
    Pointer pointer(button);
    pointer.enter();
    pointer.press();
    pointer.move({5, -1}, Qt::LeftButton);
    diary.lines();
    pointer.move({5, -2}, Qt::LeftButton);
    pointer.move({5, -3}, Qt::LeftButton);
    QCOMPARE(diary.lines(), QStringList());
}

void GGCommandMouseTest::withDontReleaseCaptureAMoveOutsideKeepsTheHover() {
    GGCommand button;
    button.resize(40, 20);
    button.setDontReleaseCapture(true);
    Diary diary(button);
    Pointer pointer(button);
    pointer.enter();
    diary.lines();
    pointer.move({50, 5});
    pointer.leave();
    QCOMPARE(diary.lines(), QStringList{u"MouseMove 0 0 50 5"_s});
    QCOMPARE(button.borderState(), 1);
}

void GGCommandMouseTest::withDontReleaseCaptureAReleaseOutsideClicks() {
    GGCommand button;
    button.resize(40, 20);
    button.setDontReleaseCapture(true);
    Diary diary(button);
    Pointer pointer(button);
    pointer.enter();
    pointer.press();
    pointer.move({50, 5}, Qt::LeftButton);
    diary.lines();
    pointer.release({50, 5});
    QCOMPARE(diary.lines(), (QStringList{u"Click"_s, u"MouseUp 1 0 50 5"_s}));
}

void GGCommandMouseTest::givingTheCaptureBackEndsTheHover() {
    GGCommand button;
    button.setDontReleaseCapture(true);
    Pointer pointer(button);
    pointer.enter();
    pointer.leave();
    Diary diary(button);
    button.setDontReleaseCapture(false);
    QCOMPARE(diary.lines(), QStringList{u"MouseExit"_s});
    QCOMPARE(button.borderState(), 0);
}

void GGCommandMouseTest::theSecondPressOfADoubleClickIsAPressToo() {
    GGCommand button;
    Pointer pointer(button);
    pointer.enter();
    Diary diary(button);
    pointer.press({1, 2});
    pointer.release({1, 2});
    diary.lines();
    pointer.doubleClick({1, 2});
    QCOMPARE(diary.lines(), (QStringList{u"MouseDown 1 0 1 2"_s, u"DblClick"_s}));
    QCOMPARE(button.borderState(), 2);
    pointer.release({1, 2});
    QCOMPARE(diary.lines(), (QStringList{u"Click"_s, u"MouseUp 1 0 1 2"_s}));
}

void GGCommandMouseTest::thePictureBehavesLikeTheFace() {
    GGCommand button;
    button.resize(40, 20);
    button.setPicture(square(16));
    auto* picture = button.findChild<Image*>(u"imgPicture"_s);
    QVERIFY(picture);
    Pointer pointer(*picture);
    Diary diary(button);
    pointer.move({3, 4});
    QCOMPARE(button.borderState(), 1);
    pointer.press({3, 4});
    QCOMPARE(button.borderState(), 2);
    pointer.release({3, 4});
    QCOMPARE(button.borderState(), 1);
    QVERIFY(diary.lines().contains(u"Click"_s));
}

void GGCommandMouseTest::aPointOnThePictureIsToldFromThePicturesCorner() {
    GGCommand button;
    button.resize(60, 30);
    button.setPicture(square(16));
    button.setPictureXOffset(20);
    auto* picture = button.findChild<Image*>(u"imgPicture"_s);
    QVERIFY(picture->x() >= 20);
    Diary diary(button);
    Pointer pointer(*picture);
    pointer.press({3, 4});
    pointer.move({5, 6}, Qt::LeftButton);
    pointer.release({5, 6});
    QCOMPARE(diary.lines(), (QStringList{u"MouseDown 1 0 3 4"_s, u"MouseMove 1 0 5 6"_s, u"Click"_s,
                                         u"MouseUp 1 0 5 6"_s}));
    // Over is judged by the control: this point lies outside the picture and inside the face.
    pointer.move({-10, 4});
    QCOMPARE(button.borderState(), 1);
}

void GGCommandMouseTest::aDoubleClickOnThePictureIsTheControlsDoubleClick() {
    GGCommand button;
    button.setPicture(square(16));
    QSignalSpy doubles(&button, &GGCommand::DblClick);
    Pointer(*button.findChild<Image*>(u"imgPicture"_s)).doubleClick();
    QCOMPARE(doubles.count(), 1);
}

void GGCommandMouseTest::movingFromFaceToPictureKeepsTheHover() {
    QWidget form;
    form.resize(200, 100);
    GGCommand button(u"cmdFind"_s, &form);
    button.setGeometry(20, 20, 100, 40);
    button.setPicture(square(32));
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QTest::mouseMove(form.windowHandle(), {5, 5});
    QSignalSpy enters(&button, &GGCommand::MouseEnter);
    QSignalSpy exits(&button, &GGCommand::MouseExit);
    QTest::mouseMove(form.windowHandle(), {110, 30});
    QTRY_COMPARE(enters.count(), 1);
    QTest::mouseMove(form.windowHandle(), {30, 40});
    QCoreApplication::processEvents();
    QTest::mouseMove(form.windowHandle(), {110, 30});
    QCoreApplication::processEvents();
    QCOMPARE(enters.count(), 1);
    QCOMPARE(exits.count(), 0);
    QTest::mouseMove(form.windowHandle(), {5, 5});
    QTRY_COMPARE(exits.count(), 1);
}

void GGCommandMouseTest::aPartCoveredByAnotherControlIsNotOver() {
    QWidget form;
    form.resize(200, 100);
    GGCommand button(u"cmdFind"_s, &form);
    button.setGeometry(20, 20, 100, 40);
    QWidget cover(&form);
    cover.setGeometry(70, 0, 100, 100);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    Pointer pointer(button);
    pointer.enter();
    pointer.press();
    Diary diary(button);
    pointer.move({60, 5}, Qt::LeftButton);
    QCOMPARE(diary.lines().first(), u"MouseExit"_s);
}

void GGCommandMouseTest::valueTrueRaisesClick() {
    GGCommand button;
    Diary diary(button);
    button.setValue(true);
    QCOMPARE(diary.lines(), QStringList{u"Click"_s});
    QCOMPARE(button.borderState(), 0);
}

void GGCommandMouseTest::valueFalseDoesNothing() {
    GGCommand button;
    Diary diary(button);
    button.setValue(false);
    QCOMPARE(diary.lines(), QStringList());
}

void GGCommandMouseTest::noKeyGivesAClick() {
    GGCommand button;
    button.show();
    button.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&button));
    button.setFocus();
    QVERIFY(button.hasFocus());
    Diary diary(button);
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_A, Qt::Key_F4})
        QTest::keyClick(&button, key);
    QCOMPARE(diary.lines(), QStringList());
}

void GGCommandMouseTest::aDisabledButtonTellsNothing() {
    GGCommand button;
    button.setEnabled(false);
    Diary diary(button);
    Pointer pointer(button);
    pointer.enter();
    pointer.move({5, 5});
    pointer.press();
    pointer.release();
    pointer.leave();
    QCOMPARE(diary.lines(), QStringList());
}

void GGCommandMouseTest::disablingEndsTheHover() {
    GGCommand button;
    Pointer pointer(button);
    pointer.enter();
    pointer.press();
    Diary diary(button);
    button.setEnabled(false);
    QCOMPARE(diary.lines(), QStringList{u"MouseExit"_s});
    QCOMPARE(button.borderState(), 0);
    button.setEnabled(true);
    pointer.release();
    QCOMPARE(diary.lines(), QStringList());
}

void GGCommandMouseTest::hidingEndsTheHover() {
    QWidget form;
    GGCommand button(u"cmdFind"_s, &form);
    form.show();
    Pointer(button).enter();
    Diary diary(button);
    button.hide();
    QCOMPARE(diary.lines(), QStringList{u"MouseExit"_s});
    QCOMPARE(button.borderState(), 0);
}

void GGCommandMouseTest::aBoxThatOpensUnderThePointerEndsTheHover() {
    QWidget form;
    form.resize(200, 100);
    GGCommand button(u"imgDel"_s, &form);
    button.setGeometry(20, 20, 100, 40);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QTest::mouseMove(form.windowHandle(), {40, 40});
    QTRY_COMPARE(button.borderState(), 1);
    Diary diary(button);
    connect(&button, &GGCommand::Click, &button, [&form] {
        QDialog box(&form);
        QTimer::singleShot(0, &box, &QDialog::accept);
        box.exec();
    });
    QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, {40, 40});
    QTRY_COMPARE(button.borderState(), 0);
    const QStringList lines = diary.lines();
    QCOMPARE(lines.count(u"MouseExit"_s), 1);
    QVERIFY(lines.indexOf(u"Click"_s) < lines.indexOf(u"MouseExit"_s));
    QCOMPARE(lines.last(), u"MouseUp 1 0 20 20"_s);
}

void GGCommandMouseTest::aBoxThatMouseDownOpensLeavesTheButtonAtRest() {
    GGCommand button;
    Pointer pointer(button);
    pointer.enter();
    connect(&button, &GGCommand::MouseDown, this, [&] { pointer.leave(); });
    Diary diary(button);
    pointer.press();
    QCOMPARE(button.borderState(), 0);
    pointer.release();
    QCOMPARE(diary.lines().count(u"Click"_s), 0);
    QCOMPARE(button.borderState(), 0);
}

void GGCommandMouseTest::aBoxThatMouseEnterOpensLeavesTheButtonAtRest() {
    GGCommand button;
    Pointer pointer(button);
    connect(&button, &GGCommand::MouseEnter, this, [&] { pointer.leave(); });
    Diary diary(button);
    pointer.enter();
    QCOMPARE(diary.lines(), (QStringList{u"MouseEnter"_s, u"MouseExit"_s}));
    QCOMPARE(button.borderState(), 0);
}

void GGCommandMouseTest::aHandlerMayDeleteItsButton_data() {
    QTest::addColumn<QString>("event");
    for (const char* event : {"Click", "DblClick", "MouseEnter", "MouseExit", "MouseDown",
                              "MouseMove", "MouseUp", "Click by press", "PropertyChanged"})
        QTest::newRow(event) << QString::fromLatin1(event);
}

void GGCommandMouseTest::aHandlerMayDeleteItsButton() {
    QFETCH(QString, event);
    auto* button = new GGCommand;
    button->resize(40, 20);
    button->setToolTip(u"Close"_s);
    const QPointer<GGCommand> alive(button);
    Pointer pointer(*button);
    const auto remove = [button] { delete button; };
    if (event == u"Click"_s) {
        connect(button, &GGCommand::Click, this, remove);
        pointer.enter();
        pointer.press();
        pointer.release();
    } else if (event == u"DblClick"_s) {
        connect(button, &GGCommand::DblClick, this, remove);
        pointer.doubleClick();
    } else if (event == u"MouseEnter"_s) {
        connect(button, &GGCommand::MouseEnter, this, remove);
        pointer.move({5, 5});
    } else if (event == u"MouseExit"_s) {
        connect(button, &GGCommand::MouseExit, this, remove);
        pointer.enter();
        pointer.move({50, 5}, Qt::LeftButton);
    } else if (event == u"MouseDown"_s) {
        connect(button, &GGCommand::MouseDown, this, remove);
        pointer.doubleClick();
    } else if (event == u"MouseMove"_s) {
        connect(button, &GGCommand::MouseMove, this, remove);
        pointer.move({5, 5});
    } else if (event == u"MouseUp"_s) {
        connect(button, &GGCommand::MouseUp, this, remove);
        pointer.press();
        pointer.release();
    } else if (event == u"Click by press"_s) {
        connect(button, &GGCommand::Click, this, remove);
        button->press();
    } else {
        connect(button, &GGCommand::PropertyChanged, this, remove);
        button->setCaption(u"x"_s);
    }
    QVERIFY(!alive);
}

void GGCommandMouseTest::aHandlerOnThePictureMayDeleteItsButton() {
    auto* button = new GGCommand;
    button->setPicture(square(16));
    const QPointer<GGCommand> alive(button);
    connect(button, &GGCommand::Click, this, [button] { delete button; });
    Pointer pointer(*button->findChild<Image*>(u"imgPicture"_s));
    pointer.press();
    pointer.release();
    QVERIFY(!alive);
}

void GGCommandMouseTest::theAccessiblePressIsAWholeClick() {
    GGCommand button;
    button.resize(40, 20);
    Diary diary(button);
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&button);
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::Button);
    QVERIFY(interface->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(diary.lines(), (QStringList{u"MouseDown 1 0 20 10"_s, u"Click"_s,
                                         u"MouseUp 1 0 20 10"_s, u"MouseExit"_s}));
}

void GGCommandMouseTest::theAccessiblePressLeavesNoHoverBehind() {
    GGCommand button;
    button.press();
    QCOMPARE(button.borderState(), 0);
}

void GGCommandMouseTest::theAccessiblePressKeepsTheHoverOfAPointerThatIsThere() {
    GGCommand button;
    Pointer(button).enter();
    button.press();
    QCOMPARE(button.borderState(), 1);
}

void GGCommandMouseTest::aDisabledButtonCannotBePressedByAssistivePrograms() {
    GGCommand button;
    button.setEnabled(false);
    Diary diary(button);
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&button);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    button.press();
    QCOMPARE(diary.lines(), QStringList());
    QVERIFY(!interface->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));
}

void GGCommandMouseTest::theAccessibleNameIsTheToolTipOrTheCaption() {
    GGCommand button(u"Image2"_s);
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&button);
    QCOMPARE(interface->text(QAccessible::Name), u"Image2"_s);
    button.setCaption(u"x"_s);
    QCOMPARE(interface->text(QAccessible::Name), u"x"_s);
    button.setToolTip(u" Close "_s);
    QCOMPARE(interface->text(QAccessible::Name), u"Close"_s);
    QCOMPARE(button.accessibleName(), u"Close"_s);
    button.setToolTip(QString());
    QCOMPARE(button.accessibleName(), u"x"_s);
}

ORVALIS_TEST_MAIN_WITH(QApplication, GGCommandMouseTest)
#include "gg_command_mouse_test.moc"
