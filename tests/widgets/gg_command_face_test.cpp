// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "widgets/gg_command.h"

#include "controls/image.h"
#include "support/plain_pictures.h"
#include "support/pointer_events.h"
#include "support/test_main.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>

#include <cmath>

using namespace orvalis;
using namespace Qt::StringLiterals;
using orvalis::test::Pointer;
using orvalis::test::square;

namespace {

constexpr ColourValue Red = 0x0000FF;
constexpr ColourValue Blue = 0xFF0000;
constexpr ColourValue Grey = 0x808080;
constexpr QRgb White = 0xFFFFFFFF;

QRgb rgb(ColourValue value) {
    return toQColor(value).rgb();
}

/// A button of 40 by 20 pixels without a caption: red from the top to blue below, on grey.
class Button : public GGCommand {
public:
    Button() {
        resize(40, 20);
        setCaption(QString());
        setBackColor(Grey);
        setGradientFromColor(Red);
        setGradientToColor(Blue);
        setFont(QFont(u"Arial"_s, 9));
    }

    QImage look() { return grab().toImage().convertToFormat(QImage::Format_RGB32); }
};

/// The shade of row or column \a at (1 for the first) of \a steps, worked out one step at a time.
QRgb shade(ColourValue from, ColourValue to, int at, int steps) {
    const QColor first = toQColor(from);
    const QColor last = toQColor(to);
    const auto channel = [&](int begin, int end) {
        auto value = static_cast<float>(begin);
        const float step =
            (static_cast<float>(end) - static_cast<float>(begin)) / static_cast<float>(steps);
        for (int i = 1; i < at; ++i)
            value += step;
        return static_cast<int>(std::nearbyint(value));
    };
    return qRgb(channel(first.red(), last.red()), channel(first.green(), last.green()),
                channel(first.blue(), last.blue()));
}

/// The face of a 40 by 20 button as it should be, gradient and all, without an edge.
QImage expectedFace(ColourValue from, ColourValue to) {
    QImage face(40, 20, QImage::Format_RGB32);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 40; ++x)
            face.setPixel(x, y, y == 0 ? rgb(Grey) : shade(from, to, y, 20));
    return face;
}

void drawExpectedEdge(QImage& face, QRgb light, QRgb dark) {
    const int right = face.width() - 1;
    const int bottom = face.height() - 1;
    for (int y = bottom; y > 0; --y)
        face.setPixel(0, y, light);
    for (int x = 0; x < right; ++x)
        face.setPixel(x, 0, light);
    for (int y = 0; y < bottom; ++y)
        face.setPixel(right, y, dark);
    for (int x = right; x >= 0; --x)
        face.setPixel(x, bottom, dark);
}

/// Where pixels of exactly this colour lie.
QRect extentOf(const QImage& image, QRgb colour) {
    QRect extent;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) == colour)
                extent |= QRect(x, y, 1, 1);
    }
    return extent;
}

/// The text of a button drawn by itself in the place given, in black on white.
QImage text(const QString& caption, const QFont& font, const QPoint& at, const QSize& size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(Qt::black);
    const QSize extent = QFontMetrics(font).size(0, caption);
    painter.drawText(QRect(at, extent), Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip, caption);
    return image;
}

} // namespace

class GGCommandFaceTest : public QObject {
    Q_OBJECT
private slots:
    void theFirstRowOfAGradientStaysInTheBackColour();
    void eachFurtherRowHasItsShade();
    void aGradientFromLeftToRightRunsInColumns();
    void anOrientationThatIsNoneDrawsNoGradient();
    void withoutGradientTheFaceIsThePlainBackColour();
    void theDefaultFaceIsDrawnInSystemColours();
    void aTallButtonHasAShadeForEveryRow();
    void theCaptionIsPrintedAtItsPlaceInTheForeColour();
    void theCaptionFollowsItsAlignmentAndOffsets();
    void anAmpersandInACaptionIsPrinted();
    void anEmptyCaptionPrintsNothing();
    void thePictureStandsAtItsPlace();
    void thePictureIsCentredByItsUnits();
    void thePictureLiesOverTheCaption();
    void aRaisedEdgeIsWhiteOnTheLeftAndTopAndDarkBelow();
    void aPressedFaceIsInvertedAndItsEdgeSunken();
    void withoutInverseOnPressThePressedFaceOnlyMoves();
    void withoutGradientAPressedFaceIsPlainToo();
    void pressingMovesCaptionAndPictureOnePixel();
    void leavingWipesTheEdgeWithTheBackColour();
    void withAlwaysShowBorderTheEdgeIsRaisedAtRest();
    void withAlwaysShowBorderLeavingDrawsTheRaisedEdge();
    void settingAlwaysShowBorderDrawsTheEdgeAtOnce();
    void theEdgeLiesOverTheCaption();
    void hoveringShowsTheHoverColourAndLeavesTheProperty();
    void hoveringInBoldLaysTheCaptionOutInBold();
    void withoutHoverPropertiesHoveringOnlyRaisesTheEdge();
    void anOwnEdgeStyleIsInsetByItsWidth_data();
    void anOwnEdgeStyleIsInsetByItsWidth();
    void anEdgeStyleAboveFourLeavesTheFrame();
    void aClientEdgeIsSunken();
    void resizingLaysTheFaceOutAnew();
    void aDisabledButtonLooksDisabled();
    void atTwiceTheScaleEveryLogicalPixelIsFourPixels();
    void atAFractionalScaleNoGapShowsBetweenRows();
    void gettingTheFocusRaisesTheEdge();
    void losingTheFocusPaintsTheFaceWithoutIt();
    void anotherPaintDrawsTheEdgeThatStands();
    void gettingTheFocusWithAButtonHeldDrawsNothing();
    void theFocusThatComesBackFromABoxOrAMenuDrawsNothing();
};

void GGCommandFaceTest::theFirstRowOfAGradientStaysInTheBackColour() {
    Button button;
    const QImage look = button.look();
    for (int x = 0; x < 40; ++x)
        QCOMPARE(look.pixel(x, 0), rgb(Grey));
}

void GGCommandFaceTest::eachFurtherRowHasItsShade() {
    Button button;
    const QImage look = button.look();
    QCOMPARE(look.pixel(0, 1), rgb(Red));
    QCOMPARE(look, expectedFace(Red, Blue));
}

void GGCommandFaceTest::aGradientFromLeftToRightRunsInColumns() {
    Button button;
    button.setGradientOrientation(1);
    const QImage look = button.look();
    for (int y = 0; y < 20; ++y) {
        QCOMPARE(look.pixel(0, y), rgb(Grey));
        for (int x = 1; x < 40; ++x)
            QCOMPARE(look.pixel(x, y), shade(Red, Blue, x, 40));
    }
}

void GGCommandFaceTest::anOrientationThatIsNoneDrawsNoGradient() {
    Button button;
    button.setGradientOrientation(2);
    QCOMPARE(extentOf(button.look(), rgb(Grey)), QRect(0, 0, 40, 20));
    QCOMPARE(button.look().pixel(20, 10), rgb(Grey));
}

void GGCommandFaceTest::withoutGradientTheFaceIsThePlainBackColour() {
    Button button;
    button.setUseGradientFill(false);
    QImage plain(40, 20, QImage::Format_RGB32);
    plain.fill(rgb(Grey));
    QCOMPARE(button.look(), plain);
}

void GGCommandFaceTest::theDefaultFaceIsDrawnInSystemColours() {
    GGCommand button;
    button.resize(40, 20);
    button.setCaption(QString());
    const QImage look = button.grab().toImage();
    QCOMPARE(look.pixel(3, 0), rgb(0x8000000F));
    QCOMPARE(look.pixel(3, 1), rgb(0x80000014));
    QCOMPARE(look.pixel(3, 19), shade(0x80000014, 0x80000010, 19, 20));
}

void GGCommandFaceTest::aTallButtonHasAShadeForEveryRow() {
    Button button;
    button.resize(10, 300);
    const QImage look = button.look();
    for (int y = 1; y < 300; ++y)
        QCOMPARE(look.pixel(5, y), shade(Red, Blue, y, 300));
}

void GGCommandFaceTest::theCaptionIsPrintedAtItsPlaceInTheForeColour() {
    Button button;
    button.setUseGradientFill(false);
    button.setBackColor(0xFFFFFF);
    button.setForeColor(0);
    button.resize(81, 31);
    button.setCaption(u"Encrypt"_s);
    const QSize extent = QFontMetrics(button.font()).size(0, u"Encrypt"_s);
    const QPoint at((81 - extent.width()) / 2, (31 - extent.height()) / 2);
    QCOMPARE(button.look(), text(u"Encrypt"_s, button.font(), at, {81, 31}));
}

void GGCommandFaceTest::theCaptionFollowsItsAlignmentAndOffsets() {
    Button button;
    button.setUseGradientFill(false);
    button.setBackColor(0xFFFFFF);
    button.setForeColor(0);
    button.resize(81, 31);
    button.setCaption(u"OK"_s);
    button.setCaptionAlignment(8);
    button.setCaptionXOffset(-3);
    button.setCaptionYOffset(-2);
    const QSize extent = QFontMetrics(button.font()).size(0, u"OK"_s);
    const QPoint at(81 - extent.width() - 2 - 3, 31 - extent.height() - 1 - 2);
    QCOMPARE(button.look(), text(u"OK"_s, button.font(), at, {81, 31}));
}

void GGCommandFaceTest::anAmpersandInACaptionIsPrinted() {
    Button with;
    with.resize(80, 20);
    with.setCaption(u"&Save"_s);
    Button without;
    without.resize(80, 20);
    without.setCaption(u"Save"_s);
    QVERIFY(with.look() != without.look());
    Button alone;
    alone.setCaption(u"&"_s);
    QVERIFY(alone.look() != expectedFace(Red, Blue));
}

void GGCommandFaceTest::anEmptyCaptionPrintsNothing() {
    Button button;
    QCOMPARE(button.Caption(), QString());
    QCOMPARE(button.look(), expectedFace(Red, Blue));
}

void GGCommandFaceTest::thePictureStandsAtItsPlace() {
    Button button;
    button.setPicture(square(8, Qt::green));
    button.setPictureXOffset(5);
    button.setPictureYOffset(2);
    button.setPictureAlignment(0);
    QCOMPARE(extentOf(button.look(), qRgb(0, 255, 0)), QRect(6, 3, 8, 8));
    button.setPicture({});
    QVERIFY(extentOf(button.look(), qRgb(0, 255, 0)).isEmpty());
}

void GGCommandFaceTest::thePictureIsCentredByItsUnits() {
    Button button;
    button.resize(60, 40);
    button.setPicture(square(32, Qt::green));
    button.setPictureAlignment(4);
    // 32 pixels count as 847 / 15 / 1.75 = 32.27: (60 - 32.27) / 2 and (40 - 32.27) / 2.
    QCOMPARE(extentOf(button.look(), qRgb(0, 255, 0)).topLeft(), QPoint(13, 3));
    button.setPictureAlignment(7);
    // 60 - 32.27 - 1
    QCOMPARE(extentOf(button.look(), qRgb(0, 255, 0)).left(), 26);
}

void GGCommandFaceTest::thePictureLiesOverTheCaption() {
    Button button;
    button.setCaption(u"WWWWWWWW"_s);
    button.setPicture(square(20, Qt::green));
    button.setPictureAlignment(4);
    const QRect extent = extentOf(button.look(), qRgb(0, 255, 0));
    QCOMPARE(extent.width(), 20);
    const QImage look = button.look();
    for (int x = extent.left(); x <= extent.right(); ++x)
        QCOMPARE(look.pixel(x, 10), qRgb(0, 255, 0));
}

void GGCommandFaceTest::aRaisedEdgeIsWhiteOnTheLeftAndTopAndDarkBelow() {
    Button button;
    Pointer(button).enter();
    QImage expected = expectedFace(Red, Blue);
    drawExpectedEdge(expected, White, rgb(0x80000010));
    QCOMPARE(button.look(), expected);
    QCOMPARE(button.look().pixel(39, 0), rgb(0x80000010));
    QCOMPARE(button.look().pixel(0, 19), rgb(0x80000010));
    QCOMPARE(button.borderState(), 1);
}

void GGCommandFaceTest::aPressedFaceIsInvertedAndItsEdgeSunken() {
    Button button;
    Pointer pointer(button);
    pointer.enter();
    pointer.press();
    QImage expected = expectedFace(Blue, Red);
    drawExpectedEdge(expected, rgb(0x80000010), White);
    QCOMPARE(button.look(), expected);
    QCOMPARE(button.borderState(), 2);
    pointer.release();
    QImage released = expectedFace(Red, Blue);
    drawExpectedEdge(released, White, rgb(0x80000010));
    QCOMPARE(button.look(), released);
    QCOMPARE(button.borderState(), 1);
}

void GGCommandFaceTest::withoutInverseOnPressThePressedFaceOnlyMoves() {
    Button button;
    button.setGradientInverseOnPress(false);
    button.setPicture(square(8, Qt::green));
    const QRect before = extentOf(button.look(), qRgb(0, 255, 0));
    Pointer pointer(button);
    pointer.enter();
    pointer.press();
    const QImage look = button.look();
    QCOMPARE(extentOf(look, qRgb(0, 255, 0)), before.translated(1, 1));
    for (int y = 1; y < 19; ++y)
        QCOMPARE(look.pixel(30, y), shade(Red, Blue, y, 20));
}

void GGCommandFaceTest::withoutGradientAPressedFaceIsPlainToo() {
    Button button;
    button.setUseGradientFill(false);
    Pointer pointer(button);
    pointer.enter();
    pointer.press();
    QImage expected(40, 20, QImage::Format_RGB32);
    expected.fill(rgb(Grey));
    drawExpectedEdge(expected, rgb(0x80000010), White);
    QCOMPARE(button.look(), expected);
}

void GGCommandFaceTest::pressingMovesCaptionAndPictureOnePixel() {
    Button button;
    button.setUseGradientFill(false);
    button.setUseHoverProperties(false);
    button.setBackColor(0xFFFFFF);
    button.setForeColor(0);
    button.resize(81, 31);
    button.setCaption(u"Find"_s);
    button.setPicture(square(8, Qt::green));
    const QRect picture = extentOf(button.look(), qRgb(0, 255, 0));
    const QSize extent = QFontMetrics(button.font()).size(0, u"Find"_s);
    const QPoint at((81 - extent.width()) / 2, (31 - extent.height()) / 2);
    Pointer pointer(button);
    pointer.enter();
    pointer.press();
    const QImage look = button.look();
    QCOMPARE(extentOf(look, qRgb(0, 255, 0)), picture.translated(1, 1));
    const QRect inner(15, 3, 60, 25);
    QCOMPARE(look.copy(inner),
             text(u"Find"_s, button.font(), at + QPoint(1, 1), {81, 31}).copy(inner));
    pointer.release();
    QCOMPARE(extentOf(button.look(), qRgb(0, 255, 0)), picture);
    QCOMPARE(button.look().copy(inner), text(u"Find"_s, button.font(), at, {81, 31}).copy(inner));
}

void GGCommandFaceTest::leavingWipesTheEdgeWithTheBackColour() {
    Button button;
    Pointer pointer(button);
    pointer.enter();
    pointer.leave();
    QImage expected = expectedFace(Red, Blue);
    drawExpectedEdge(expected, rgb(Grey), rgb(Grey));
    QCOMPARE(button.look(), expected);
    QCOMPARE(button.borderState(), 0);
}

void GGCommandFaceTest::withAlwaysShowBorderTheEdgeIsRaisedAtRest() {
    Button button;
    button.setAlwaysShowBorder(true);
    button.setForeColor(0);
    QImage expected = expectedFace(Red, Blue);
    drawExpectedEdge(expected, White, rgb(0x80000010));
    QCOMPARE(button.look(), expected);
}

void GGCommandFaceTest::withAlwaysShowBorderLeavingDrawsTheRaisedEdge() {
    Button button;
    button.setAlwaysShowBorder(true);
    Pointer pointer(button);
    pointer.enter();
    pointer.press();
    pointer.leave();
    QImage expected = expectedFace(Red, Blue);
    drawExpectedEdge(expected, White, rgb(0x80000010));
    QCOMPARE(button.look(), expected);
    QCOMPARE(button.borderState(), 0);
}

void GGCommandFaceTest::settingAlwaysShowBorderDrawsTheEdgeAtOnce() {
    Button button;
    button.look();
    button.setAlwaysShowBorder(true);
    QCOMPARE(button.look().pixel(0, 0), White);
    button.setAlwaysShowBorder(false);
    QCOMPARE(button.look().pixel(0, 0), rgb(Grey));
}

void GGCommandFaceTest::theEdgeLiesOverTheCaption() {
    Button button;
    button.setForeColor(0x00FF00);
    button.setUseHoverProperties(false);
    button.setCaption(u"████████████"_s);
    Pointer(button).enter();
    const QImage look = button.look();
    for (int y = 0; y < 19; ++y) {
        QCOMPARE(look.pixel(0, y), White);
        QCOMPARE(look.pixel(39, y), rgb(0x80000010));
    }
}

void GGCommandFaceTest::hoveringShowsTheHoverColourAndLeavesTheProperty() {
    Button button;
    button.setUseGradientFill(false);
    button.setBackColor(0xFFFFFF);
    button.setForeColor(0);
    button.setFontColorOnHover(0x0000FF);
    button.resize(81, 31);
    button.setCaption(u"WW"_s);
    const QRect inner(2, 2, 77, 27);
    const auto reds = [&](const QImage& image) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                count += qRed(pixel) > qBlue(pixel) + 40 ? 1 : 0;
            }
        }
        return count;
    };
    const int atRest = reds(button.look().copy(inner));
    Pointer pointer(button);
    pointer.enter();
    QVERIFY(reds(button.look().copy(inner)) > atRest + 10);
    QCOMPARE(button.ForeColor(), ColourValue(0));
    QVERIFY(!button.Font().bold());
    pointer.press();
    QVERIFY(reds(button.look().copy(inner)) > atRest + 10);
    pointer.release();
    QVERIFY(reds(button.look().copy(inner)) > atRest + 10);
    pointer.leave();
    QCOMPARE(reds(button.look().copy(inner)), atRest);
}

void GGCommandFaceTest::hoveringInBoldLaysTheCaptionOutInBold() {
    Button button;
    button.setUseGradientFill(false);
    button.setBackColor(0xFFFFFF);
    button.setFontColorOnHover(0);
    button.setFontBoldOnHover(true);
    button.resize(81, 31);
    button.setCaption(u"Encrypt"_s);
    QFont bold = button.font();
    bold.setBold(true);
    const QSize extent = QFontMetrics(bold).size(0, u"Encrypt"_s);
    const QPoint at((81 - extent.width()) / 2, (31 - extent.height()) / 2);
    Pointer(button).enter();
    const QRect inner(1, 1, 79, 29);
    QCOMPARE(button.look().copy(inner), text(u"Encrypt"_s, bold, at, {81, 31}).copy(inner));
    QVERIFY(!button.Font().bold());
}

void GGCommandFaceTest::withoutHoverPropertiesHoveringOnlyRaisesTheEdge() {
    Button button;
    button.setUseHoverProperties(false);
    button.resize(81, 31);
    button.setCaption(u"Encrypt"_s);
    const QRect inner(1, 1, 79, 29);
    const QImage atRest = button.look();
    Pointer pointer(button);
    pointer.enter();
    QCOMPARE(button.look().copy(inner), atRest.copy(inner));
    QCOMPARE(button.look().pixel(0, 5), White);
}

void GGCommandFaceTest::anOwnEdgeStyleIsInsetByItsWidth_data() {
    QTest::addColumn<int>("style");
    QTest::addColumn<quint32>("exStyle");
    QTest::addColumn<int>("width");
    QTest::newRow("none") << 0 << 0U << 0;
    QTest::newRow("client edge") << 1 << 512U << 2;
    QTest::newRow("dialog frame") << 2 << 1U << 3;
    QTest::newRow("static edge") << 3 << 0x20000U << 1;
    QTest::newRow("client edge in a dialog frame") << 4 << 513U << 5;
}

void GGCommandFaceTest::anOwnEdgeStyleIsInsetByItsWidth() {
    QFETCH(int, style);
    QFETCH(quint32, exStyle);
    QFETCH(int, width);
    Button button;
    button.resize(40 + 2 * width, 20 + 2 * width);
    button.setBorder3DStyle(style);
    QCOMPARE(button.exStyle(), exStyle);
    QCOMPARE(button.ScaleWidth(), 40);
    QCOMPARE(button.ScaleHeight(), 20);
    QCOMPARE(button.look().copy(width, width, 40, 20), expectedFace(Red, Blue));
}

void GGCommandFaceTest::anEdgeStyleAboveFourLeavesTheFrame() {
    Button button;
    button.setBorder3DStyle(3);
    button.setBorder3DStyle(5);
    QCOMPARE(button.Border3DStyle(), 5);
    QCOMPARE(button.exStyle(), 0x20000U);
    QCOMPARE(button.ScaleWidth(), 38);
}

void GGCommandFaceTest::aClientEdgeIsSunken() {
    Button button;
    button.setBorder3DStyle(1);
    const QImage look = button.look();
    QCOMPARE(look.pixel(0, 10), rgb(0x80000010));
    QCOMPARE(look.pixel(10, 0), rgb(0x80000010));
    QCOMPARE(look.pixel(39, 10), rgb(0x80000014));
    QCOMPARE(look.pixel(10, 19), rgb(0x80000014));
}

void GGCommandFaceTest::resizingLaysTheFaceOutAnew() {
    Button button;
    button.resize(60, 20);
    button.resize(40, 20);
    QCOMPARE(button.look(), expectedFace(Red, Blue));
    button.setPicture(square(8, Qt::green));
    button.setPictureAlignment(6);
    const int right = extentOf(button.look(), qRgb(0, 255, 0)).right();
    button.resize(50, 20);
    QCOMPARE(extentOf(button.look(), qRgb(0, 255, 0)).right(), right + 10);
}

void GGCommandFaceTest::aDisabledButtonLooksDisabled() {
    Button button;
    button.setUseGradientFill(false);
    button.setBackColor(0xFFFFFF);
    button.setForeColor(0);
    button.resize(81, 31);
    button.setCaption(u"Find"_s);
    const QImage enabled = button.look();
    button.setEnabled(false);
    const QImage disabled = button.look();
    const auto darkest = [](const QImage& image) {
        int dark = 255;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                dark = qMin(dark, qGray(image.pixel(x, y)));
        return dark;
    };
    QVERIFY(darkest(disabled) > darkest(enabled) + 80);
    button.setEnabled(true);
    QCOMPARE(button.look(), enabled);
}

void GGCommandFaceTest::atTwiceTheScaleEveryLogicalPixelIsFourPixels() {
    Button button;
    button.setAlwaysShowBorder(true);
    QImage expected = expectedFace(Red, Blue);
    drawExpectedEdge(expected, White, rgb(0x80000010));
    QImage sharp(80, 40, QImage::Format_RGB32);
    sharp.setDevicePixelRatio(2);
    button.render(&sharp);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 80; ++x)
            QCOMPARE(sharp.pixel(x, y), expected.pixel(x / 2, y / 2));
}

void GGCommandFaceTest::atAFractionalScaleNoGapShowsBetweenRows() {
    Button button;
    button.setBackColor(0x00FF00);
    button.setGradientToColor(Red);
    QImage sharp(70, 35, QImage::Format_RGB32);
    sharp.setDevicePixelRatio(1.75);
    button.render(&sharp);
    for (int y = 2; y < 35; ++y)
        QCOMPARE(sharp.pixel(20, y), rgb(Red));
}

void GGCommandFaceTest::gettingTheFocusRaisesTheEdge() {
    Button button;
    QFocusEvent event(QEvent::FocusIn);
    QApplication::sendEvent(&button, &event);
    QCOMPARE(button.borderState(), 1);
    QImage expected = expectedFace(Red, Blue);
    drawExpectedEdge(expected, White, rgb(0x80000010));
    QCOMPARE(button.look(), expected);
}

void GGCommandFaceTest::losingTheFocusPaintsTheFaceWithoutIt() {
    Button button;
    QFocusEvent in(QEvent::FocusIn);
    QApplication::sendEvent(&button, &in);
    button.look();
    QFocusEvent out(QEvent::FocusOut);
    QApplication::sendEvent(&button, &out);
    QCOMPARE(button.look(), expectedFace(Red, Blue));
}

void GGCommandFaceTest::anotherPaintDrawsTheEdgeThatStands() {
    Button button;
    QFocusEvent in(QEvent::FocusIn);
    QApplication::sendEvent(&button, &in);
    QFocusEvent out(QEvent::FocusOut);
    QApplication::sendEvent(&button, &out);
    QCOMPARE(button.borderState(), 1);
    QCOMPARE(button.look().pixel(0, 0), rgb(Grey));
    QCOMPARE(button.look().pixel(0, 0), White);
}

void GGCommandFaceTest::gettingTheFocusWithAButtonHeldDrawsNothing() {
    Button button;
    Pointer(button).press({5, 5}, Qt::RightButton);
    QFocusEvent in(QEvent::FocusIn);
    QApplication::sendEvent(&button, &in);
    QCOMPARE(button.borderState(), 0);
    QApplication::sendEvent(&button, &in);
    QCOMPARE(button.borderState(), 1);
}

void GGCommandFaceTest::theFocusThatComesBackFromABoxOrAMenuDrawsNothing() {
    for (const auto reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
        Button button;
        QFocusEvent in(QEvent::FocusIn, reason);
        QApplication::sendEvent(&button, &in);
        QCOMPARE(button.borderState(), 0);
        Pointer(button).enter();
        const QImage hovering = button.look();
        QFocusEvent out(QEvent::FocusOut, reason);
        QApplication::sendEvent(&button, &out);
        QCOMPARE(button.look(), hovering);
    }
}

ORVALIS_TEST_MAIN_WITH(QApplication, GGCommandFaceTest)
#include "gg_command_face_test.moc"
