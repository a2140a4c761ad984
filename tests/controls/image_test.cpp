// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/image.h"

#include "support/pointer_events.h"
#include "support/test_main.h"

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QWindow>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

QPixmap filled(const QSize& size, const QColor& colour, qreal ratio = 1) {
    QPixmap pixmap((QSizeF(size) * ratio).toSize());
    pixmap.fill(colour);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

PictureSource drawn(const QSize& size, const QColor& colour, int* renderings = nullptr) {
    return PictureSource(
        size,
        [=](const QSize& wanted, qreal ratio) {
            if (renderings)
                ++*renderings;
            return filled(wanted, colour, ratio);
        });
}

QColor middleOf(QWidget& widget) {
    const QImage picture = widget.grab().toImage();
    return picture.pixelColor(picture.rect().center());
}

} // namespace

class ImageTest : public QObject {
    Q_OBJECT
private slots:
    void aPictureTakenFromAnotherImageHasItsHandle();
    void twoPicturesOfTheSamePixelsHaveTwoHandles();
    void noPictureHasHandleZero();
    void anImageThatWasNeverSizedTakesThePicturesSize();
    void anImageWithASizeKeepsItAndFillsItWithThePicture();
    void aDrawnPictureIsRenderedForTheSizeItIsShownAt();
    void aDrawnPictureIsRenderedForTheRatioAsked();
    void eachRenderingIsMadeOnce();
    void aPixelPictureIsScaledWhereAnotherSizeIsAsked();
    void settingTheSamePictureAgainDoesNotRenderAgain();
    void aPressTellsButtonShiftAndPoint_data();
    void aPressTellsButtonShiftAndPoint();
    void aClickIsALeftPressAndReleaseInside();
    void aReleaseOutsideIsNoClick();
    void theRightButtonClicksNothing();
    void theClickComesBeforeTheMouseUp();
    void theSecondPressOfADoubleClickIsAPressToo();
    void thePointersMovesAreToldWithoutAButton();
    void enteringAndLeavingAreTold();
    void noMouseEventReachesTheFormBelow();
    void theTrimmedToolTipIsTheAccessibleName();
    void aListenedToImageIsAButtonForAssistivePrograms();
    void anImageThatNobodyListensToIsAGraphic();
    void theAccessiblePressIsMouseDownThenClick();
    void aDisabledImageCannotBePressed();
    void aDisabledImageLooksDisabled();
    void aDisabledImageShowsItsDisabledPicture();
    void theHoverPictureShowsWhileThePointerIsOnTheImage();
    void anImageHiddenUnderThePointerComesBackWithItsOwnPicture();
    void aDisabledImageShowsNoHover();
    void aHandlerMayDeleteTheImage();
};

void ImageTest::aPictureTakenFromAnotherImageHasItsHandle() {
    Image normal(u"imgExit"_s);
    Image hover(u"imgExita"_s);
    normal.setPicture(drawn({22, 22}, Qt::red));
    hover.setPicture(drawn({22, 22}, Qt::blue));
    QVERIFY(normal.handle() != hover.handle());
    normal.setPicture(hover.Picture());
    QCOMPARE(normal.handle(), hover.handle());
    QCOMPARE(normal.pixmap().cacheKey(), hover.pixmap().cacheKey());
    QVERIFY(normal.Picture() == hover.Picture());
}

void ImageTest::twoPicturesOfTheSamePixelsHaveTwoHandles() {
    Image one;
    Image other;
    one.setPicture(drawn({22, 22}, Qt::red));
    other.setPicture(drawn({22, 22}, Qt::red));
    QVERIFY(one.handle() != other.handle());
}

void ImageTest::noPictureHasHandleZero() {
    Image image;
    QCOMPARE(image.handle(), 0);
    image.setPicture(drawn({4, 4}, Qt::red));
    QVERIFY(image.handle() != 0);
    image.setPicture({});
    QCOMPARE(image.handle(), 0);
}

void ImageTest::anImageThatWasNeverSizedTakesThePicturesSize() {
    Image image;
    image.setPicture(filled({40, 30}, Qt::red));
    QCOMPARE(image.size(), QSize(40, 30));
}

void ImageTest::anImageWithASizeKeepsItAndFillsItWithThePicture() {
    Image image;
    image.resize(60, 20);
    image.setPicture(filled({40, 30}, Qt::red));
    QCOMPARE(image.size(), QSize(60, 20));
    const QImage shown = image.grab().toImage();
    QCOMPARE(shown.pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(shown.pixelColor(59, 19), QColor(Qt::red));
}

void ImageTest::aDrawnPictureIsRenderedForTheSizeItIsShownAt() {
    Image image;
    image.setPicture(drawn({40, 30}, Qt::red));
    image.resize(80, 60);
    image.show();
    QCOMPARE(image.pixmap().size(), QSize(80, 60));
}

void ImageTest::aDrawnPictureIsRenderedForTheRatioAsked() {
    const PictureSource picture = drawn({40, 30}, Qt::red);
    const QPixmap sharp = picture.pixmap({40, 30}, 1.75);
    QCOMPARE(sharp.size(), QSize(70, 53));
    QCOMPARE(sharp.devicePixelRatio(), 1.75);
}

void ImageTest::eachRenderingIsMadeOnce() {
    int renderings = 0;
    const PictureSource picture = drawn({40, 30}, Qt::red, &renderings);
    // Copies share what was drawn.
    PictureSource copy;
    copy = picture;
    const auto key = picture.pixmap({40, 30}, 1).cacheKey();
    QCOMPARE(copy.pixmap({40, 30}, 1).cacheKey(), key);
    QCOMPARE(renderings, 1);
    QVERIFY(copy.pixmap({40, 30}, 2).cacheKey() != key);
    QCOMPARE(renderings, 2);
}

void ImageTest::aPixelPictureIsScaledWhereAnotherSizeIsAsked() {
    const QPixmap photograph = filled({40, 30}, Qt::green);
    const PictureSource picture(photograph);
    QCOMPARE(picture.size(), QSize(40, 30));
    QCOMPARE(picture.pixmap({40, 30}, 1).cacheKey(), photograph.cacheKey());
    const QPixmap sharp = picture.pixmap({20, 15}, 2);
    QCOMPARE(sharp.size(), QSize(40, 30));
    QCOMPARE(sharp.devicePixelRatio(), 2.0);
    QVERIFY(PictureSource(QPixmap()).isNull());
}

void ImageTest::settingTheSamePictureAgainDoesNotRenderAgain() {
    int renderings = 0;
    Image image;
    const PictureSource picture = drawn({40, 30}, Qt::red, &renderings);
    image.setPicture(picture);
    const int before = renderings;
    image.setPicture(picture);
    QCOMPARE(renderings, before);
}

void ImageTest::aPressTellsButtonShiftAndPoint_data() {
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<Qt::KeyboardModifiers>("keys");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("shift");
    QTest::newRow("left") << Qt::LeftButton << Qt::KeyboardModifiers() << 1 << 0;
    QTest::newRow("right") << Qt::RightButton << Qt::KeyboardModifiers(Qt::ShiftModifier) << 2 << 1;
    QTest::newRow("middle") << Qt::MiddleButton << Qt::KeyboardModifiers(Qt::ControlModifier) << 4
                            << 2;
    QTest::newRow("all keys") << Qt::LeftButton
                              << Qt::KeyboardModifiers(Qt::ShiftModifier | Qt::ControlModifier |
                                                       Qt::AltModifier)
                              << 1 << 7;
}

void ImageTest::aPressTellsButtonShiftAndPoint() {
    QFETCH(Qt::MouseButton, button);
    QFETCH(Qt::KeyboardModifiers, keys);
    QFETCH(int, number);
    QFETCH(int, shift);
    Image image;
    image.resize(30, 30);
    QSignalSpy downs(&image, &Image::MouseDown);
    QSignalSpy ups(&image, &Image::MouseUp);
    QTest::mousePress(&image, button, keys, {7, 9});
    const QVariantList told{number, shift, 7.0F, 9.0F};
    QCOMPARE(downs.value(0), told);
    QTest::mouseRelease(&image, button, keys, {7, 9});
    QCOMPARE(ups.value(0), told);
}

void ImageTest::aClickIsALeftPressAndReleaseInside() {
    Image image;
    image.resize(30, 30);
    QSignalSpy clicks(&image, &Image::Click);
    QTest::mousePress(&image, Qt::LeftButton, {}, {2, 2});
    QCOMPARE(clicks.count(), 0);
    QTest::mouseRelease(&image, Qt::LeftButton, {}, {20, 20});
    QCOMPARE(clicks.count(), 1);
    QTest::mouseRelease(&image, Qt::LeftButton, {}, {20, 20});
    QCOMPARE(clicks.count(), 1);
}

void ImageTest::aReleaseOutsideIsNoClick() {
    Image image;
    image.resize(30, 30);
    QSignalSpy clicks(&image, &Image::Click);
    QTest::mousePress(&image, Qt::LeftButton, {}, {2, 2});
    QTest::mouseRelease(&image, Qt::LeftButton, {}, {30, 2});
    QCOMPARE(clicks.count(), 0);
}

void ImageTest::theRightButtonClicksNothing() {
    Image image;
    image.resize(30, 30);
    QSignalSpy clicks(&image, &Image::Click);
    QTest::mouseClick(&image, Qt::RightButton);
    QTest::mouseClick(&image, Qt::MiddleButton);
    QCOMPARE(clicks.count(), 0);
}

void ImageTest::theClickComesBeforeTheMouseUp() {
    Image image;
    QStringList order;
    connect(
        &image, &Image::MouseDown, this, [&] { order << u"down"_s; });
    connect(
        &image, &Image::MouseUp, this, [&] { order << u"up"_s; });
    connect(&image, &Image::Click, this, [&] { order << u"click"_s; });
    QTest::mouseClick(&image, Qt::LeftButton);
    QCOMPARE(order, (QStringList{u"down"_s, u"click"_s, u"up"_s}));
}

void ImageTest::theSecondPressOfADoubleClickIsAPressToo() {
    Image image;
    QSignalSpy downs(&image, &Image::MouseDown);
    QSignalSpy clicks(&image, &Image::Click);
    QSignalSpy doubles(&image, &Image::DblClick);
    QTest::mouseClick(&image, Qt::LeftButton);
    QTest::mouseDClick(&image, Qt::LeftButton);
    QTest::mouseRelease(&image, Qt::LeftButton);
    QCOMPARE(downs.count(), 2);
    QCOMPARE(clicks.count(), 2);
    QCOMPARE(doubles.count(), 1);
}

void ImageTest::thePointersMovesAreToldWithoutAButton() {
    Image image;
    image.resize(30, 30);
    image.show();
    QVERIFY(QTest::qWaitForWindowExposed(&image));
    QSignalSpy moves(&image, &Image::MouseMove);
    QTest::mouseMove(image.windowHandle(), {5, 6});
    QTRY_VERIFY(!moves.isEmpty());
    QCOMPARE(moves.last(), (QVariantList{0, 0, 5.0F, 6.0F}));
}

void ImageTest::enteringAndLeavingAreTold() {
    QWidget form;
    form.resize(100, 100);
    Image image(&form);
    image.setGeometry(10, 10, 30, 30);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QTest::mouseMove(form.windowHandle(), {80, 80});
    QSignalSpy enters(&image, &Image::MouseEnter);
    QSignalSpy exits(&image, &Image::MouseExit);
    QTest::mouseMove(form.windowHandle(), {20, 20});
    QTRY_COMPARE(enters.count(), 1);
    QCOMPARE(exits.count(), 0);
    QTest::mouseMove(form.windowHandle(), {80, 80});
    QTRY_COMPARE(exits.count(), 1);
}

void ImageTest::noMouseEventReachesTheFormBelow() {
    struct Form : QWidget {
        int events = 0;
        void mousePressEvent(QMouseEvent*) override { ++events; }
        void mouseReleaseEvent(QMouseEvent*) override { ++events; }
        void mouseMoveEvent(QMouseEvent*) override { ++events; }
        void mouseDoubleClickEvent(QMouseEvent*) override { ++events; }
    } form;
    form.setMouseTracking(true);
    Image image(&form);
    image.resize(30, 30);
    QTest::mouseDClick(&image, Qt::LeftButton);
    QTest::mouseClick(&image, Qt::RightButton);
    QTest::mouseMove(&image, {3, 3});
    QCoreApplication::processEvents();
    QCOMPARE(form.events, 0);
}

void ImageTest::theTrimmedToolTipIsTheAccessibleName() {
    Image image;
    image.setToolTip(u" Set Alarm "_s);
    QCOMPARE(image.toolTip(), u" Set Alarm "_s);
    QCOMPARE(image.accessibleName(), u"Set Alarm"_s);
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&image);
    QVERIFY(interface);
    QCOMPARE(interface->text(QAccessible::Name), u"Set Alarm"_s);
}

void ImageTest::aListenedToImageIsAButtonForAssistivePrograms() {
    Image image;
    connect(&image, &Image::MouseDown, this, [] {});
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&image);
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::Button);
    QVERIFY(interface->actionInterface());
    QVERIFY(interface->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));
}

void ImageTest::anImageThatNobodyListensToIsAGraphic() {
    Image image;
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&image);
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::Graphic);
    QVERIFY(!interface->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));
}

void ImageTest::theAccessiblePressIsMouseDownThenClick() {
    Image image;
    image.resize(30, 20);
    QStringList order;
    connect(
        &image, &Image::MouseDown, this,
        [&](int button, int shift, float x, float y) {
            order << u"down %1 %2 %3 %4"_s.arg(button).arg(shift).arg(x).arg(y);
        });
    connect(
        &image, &Image::Click, this, [&] { order << u"click"_s; });
    connect(&image, &Image::MouseUp, this, [&] { order << u"up"_s; });
    QAccessible::queryAccessibleInterface(&image)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
    QCOMPARE(order, (QStringList{u"down 1 0 15 10"_s, u"click"_s, u"up"_s}));
}

void ImageTest::aDisabledImageCannotBePressed() {
    Image image;
    image.setEnabled(false);
    QSignalSpy downs(&image, &Image::MouseDown);
    QSignalSpy clicks(&image, &Image::Click);
    QTest::mouseClick(&image, Qt::LeftButton);
    image.press();
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&image);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(interface->state().disabled);
    QCOMPARE(downs.count(), 0);
    QCOMPARE(clicks.count(), 0);
}

void ImageTest::aDisabledImageLooksDisabled() {
    Image image;
    image.setPicture(filled({20, 20}, QColor(200, 30, 30)));
    QCOMPARE(middleOf(image), QColor(200, 30, 30));
    image.setEnabled(false);
    const QColor disabled = middleOf(image);
    QVERIFY(disabled.red() - disabled.green() < 85);
    image.setEnabled(true);
    QCOMPARE(middleOf(image), QColor(200, 30, 30));
}

void ImageTest::aDisabledImageShowsItsDisabledPicture() {
    Image image;
    image.setPicture(filled({20, 20}, Qt::red));
    image.setDisabledPicture(filled({20, 20}, Qt::blue));
    image.setEnabled(false);
    QCOMPARE(middleOf(image), QColor(Qt::blue));
}

void ImageTest::theHoverPictureShowsWhileThePointerIsOnTheImage() {
    Image image;
    image.setPicture(filled({20, 20}, Qt::red));
    image.setHoverPicture(filled({20, 20}, Qt::blue));
    const PictureSource own = image.Picture();
    QCOMPARE(middleOf(image), QColor(Qt::red));
    test::Pointer pointer(image);
    pointer.enter();
    QCOMPARE(middleOf(image), QColor(Qt::blue));
    QVERIFY(image.Picture() == own);
    image.setPicture(filled({20, 20}, Qt::green));
    QCOMPARE(middleOf(image), QColor(Qt::blue));
    pointer.leave();
    QCOMPARE(middleOf(image), QColor(Qt::green));
}

void ImageTest::anImageHiddenUnderThePointerComesBackWithItsOwnPicture() {
    Image image;
    image.setPicture(filled({20, 20}, Qt::red));
    image.setHoverPicture(filled({20, 20}, Qt::blue));
    image.show();
    test::Pointer(image).enter();
    image.hide();
    image.show();
    QCOMPARE(middleOf(image), QColor(Qt::red));
}

void ImageTest::aDisabledImageShowsNoHover() {
    Image image;
    image.setPicture(filled({20, 20}, Qt::red));
    image.setHoverPicture(filled({20, 20}, Qt::blue));
    image.setDisabledPicture(filled({20, 20}, Qt::green));
    image.setEnabled(false);
    test::Pointer(image).enter();
    QCOMPARE(middleOf(image), QColor(Qt::green));
}

void ImageTest::aHandlerMayDeleteTheImage() {
    const auto deletedBy = [this](auto signal, bool accessible) {
        auto* image = new Image;
        const QPointer<Image> alive(image);
        connect(image, signal, this, [image] { delete image; });
        if (accessible) {
            image->press();
        } else {
            // Sent straight, since QTest looks at the widget again behind each event.
            for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                    QEvent::MouseButtonDblClick}) {
                if (alive) {
                    QMouseEvent event(type, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton,
                                      Qt::LeftButton, Qt::NoModifier);
                    QApplication::sendEvent(image, &event);
                }
            }
        }
        return alive.isNull();
    };
    for (const bool accessible : {false, true}) {
        QVERIFY(deletedBy(&Image::MouseDown, accessible));
        QVERIFY(deletedBy(&Image::Click, accessible));
        QVERIFY(deletedBy(&Image::MouseUp, accessible));
    }
    QVERIFY(deletedBy(&Image::DblClick, false));
}

ORVALIS_TEST_MAIN_WITH(QApplication, ImageTest)
#include "image_test.moc"
