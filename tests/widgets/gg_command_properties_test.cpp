// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "widgets/gg_command.h"

#include "controls/image.h"
#include "support/plain_pictures.h"
#include "support/pointer_events.h"
#include "support/test_main.h"
#include "widgets/property_bag.h"

#include <QApplication>
#include <QDataStream>
#include <QSignalSpy>

#include <functional>

using namespace orvalis;
using namespace Qt::StringLiterals;
using orvalis::test::Pointer;
using orvalis::test::square;

using Setter = std::function<void(GGCommand&)>;

namespace {

/// Counts how often a widget is painted.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget& widget)
        : m_widget(&widget) {
        widget.installEventFilter(this);
    }
    int count() {
        QCoreApplication::processEvents();
        return std::exchange(m_count, 0);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == m_widget && event->type() == QEvent::Paint)
            ++m_count;
        return false;
    }

private:
    QWidget* m_widget;
    int m_count = 0;
};

/// Sets every stored property to something other than its default.
void changeAll(GGCommand& button) {
    button.setCaption(u"Find"_s);
    button.setCaptionAlignment(7);
    button.setCaptionXOffset(-3);
    button.setCaptionYOffset(2);
    button.setUseHoverProperties(false);
    button.setFontBoldOnHover(true);
    button.setFontColorOnHover(0x0000FF);
    button.setBackColor(0xD8C4BA);
    button.setForeColor(0xC00000);
    button.setFont(QFont(u"DejaVu Sans"_s, 13));
    button.setPicture(square(12));
    button.setPictureAlignment(4);
    button.setPictureXOffset(5);
    button.setPictureYOffset(-6);
    button.setAlwaysShowBorder(true);
    button.setToolTip(u"Finds"_s);
    button.setToolTipTitle(u"Title"_s);
    button.setToolTipBackColor(0xE1FFFF);
    button.setToolTipForeColor(0x800000);
    button.setToolTipIcon(1);
    button.setToolTipStyle(1);
    button.setBorder3DStyle(3);
    button.setGradientOrientation(1);
    button.setUseGradientFill(false);
    button.setGradientFromColor(0xFFFDFA);
    button.setGradientToColor(0xE3D6BD);
    button.setGradientInverseOnPress(false);
    button.setMousePointer(2);
    button.setEnabled(false);
}

QStringList allNames() {
    return {u"Caption"_s,
            u"CaptionAlignment"_s,
            u"CaptionXOffset"_s,
            u"CaptionYOffset"_s,
            u"UseHoverProperties"_s,
            u"FontBoldOnHover"_s,
            u"FontColorOnHover"_s,
            u"BackColor"_s,
            u"ForeColor"_s,
            u"Font"_s,
            u"Picture"_s,
            u"PictureAlignment"_s,
            u"PictureXOffset"_s,
            u"PictureYOffset"_s,
            u"AlwaysShowBorder"_s,
            u"ToolTip"_s,
            u"ToolTipTitle"_s,
            u"ToolTipBackColor"_s,
            u"ToolTipForeColor"_s,
            u"ToolTipIcon"_s,
            u"ToolTipStyle"_s,
            u"Border3DStyle"_s,
            u"GradientOrientation"_s,
            u"UseGradientFill"_s,
            u"GradientFromColor"_s,
            u"GradientToColor"_s,
            u"GradientInverseOnPress"_s,
            u"MousePointer"_s,
            u"Enabled"_s};
}

void compareAllDefaults(const GGCommand& button) {
    QCOMPARE(button.CaptionAlignment(), 4);
    QCOMPARE(button.CaptionXOffset(), 0);
    QCOMPARE(button.CaptionYOffset(), 0);
    QCOMPARE(button.UseHoverProperties(), true);
    QCOMPARE(button.FontBoldOnHover(), false);
    QCOMPARE(button.FontColorOnHover(), 0xFF0000U);
    QCOMPARE(button.BackColor(), 0x8000000FU);
    QCOMPARE(button.ForeColor(), 0x80000012U);
    QVERIFY(button.Picture().isNull());
    QCOMPARE(button.PictureAlignment(), 1);
    QCOMPARE(button.PictureXOffset(), 0);
    QCOMPARE(button.PictureYOffset(), 0);
    QCOMPARE(button.AlwaysShowBorder(), false);
    QCOMPARE(button.ToolTip(), QString());
    QCOMPARE(button.ToolTipTitle(), QString());
    QCOMPARE(button.ToolTipBackColor(), 0x80000018U);
    QCOMPARE(button.ToolTipForeColor(), 0x80000017U);
    QCOMPARE(button.ToolTipIcon(), 0);
    QCOMPARE(button.ToolTipStyle(), 0);
    QCOMPARE(button.Border3DStyle(), 0);
    QCOMPARE(button.GradientOrientation(), 0);
    QCOMPARE(button.UseGradientFill(), true);
    QCOMPARE(button.GradientFromColor(), 0x80000014U);
    QCOMPARE(button.GradientToColor(), 0x80000010U);
    QCOMPARE(button.GradientInverseOnPress(), true);
    QCOMPARE(button.MousePointer(), qint16(0));
    QCOMPARE(button.Enabled(), true);
    QCOMPARE(button.ToolTipCentered(), false);
}

} // namespace

class GGCommandPropertiesTest : public QObject {
    Q_OBJECT
private slots:
    void aNewButtonHasTheDefaults();
    void theCaptionStartsAsTheName();
    void aCaptionOnceSetNoLongerFollowsTheName();
    void theFontStartsAsThatOfTheContainer();
    void everyPropertyCanBeReachedByItsName();
    void aNewButtonStoresNothing();
    void everyChangedPropertyIsStoredInTheFixedOrder();
    void aStoredButtonComesBackWhole();
    void aButtonComesBackThroughAStream();
    void anEmptyBagGivesTheDefaults();
    void readingMarksNothingForStoring();
    void anEmptyCaptionIsStored();
    void whatIsNotPersistedIsNotStored();
    void itsHandleIsThatOfTheWindowItIsDrawnIn();
    void settingAPropertyMarksItForStoring_data();
    void settingAPropertyMarksItForStoring();
    void settingAPropertyThatShowsRepaints_data();
    void settingAPropertyThatShowsRepaints();
    void settingAPropertyThatDoesNotShowDoesNotRepaint_data();
    void settingAPropertyThatDoesNotShowDoesNotRepaint();
    void gradientOrientationAndFromColourSkipTheRepaintWhenTheSame();
    void gradientToColourAndTheOthersRepaintRegardless();
    void aPropertySetWhileHoveringKeepsTheHoverLook();
    void aPropertySetWhilePressedKeepsThePressedLook();
    void theMousePointerTakesItsShape_data();
    void theMousePointerTakesItsShape();
    void onlyAnotherPictureIsAssigned();
};

void GGCommandPropertiesTest::aNewButtonHasTheDefaults() {
    compareAllDefaults(GGCommand());
}

void GGCommandPropertiesTest::theCaptionStartsAsTheName() {
    GGCommand named(u"imgOK"_s);
    QCOMPARE(named.Caption(), u"imgOK"_s);
    GGCommand button;
    button.setObjectName(u"imgCanc"_s);
    QCOMPARE(button.Caption(), u"imgCanc"_s);
}

void GGCommandPropertiesTest::aCaptionOnceSetNoLongerFollowsTheName() {
    GGCommand button(u"imgOK"_s);
    button.setCaption(QString());
    button.setObjectName(u"other"_s);
    QCOMPARE(button.Caption(), QString());
}

void GGCommandPropertiesTest::theFontStartsAsThatOfTheContainer() {
    QWidget container;
    container.setFont(QFont(u"DejaVu Sans"_s, 17));
    GGCommand button(u"imgOK"_s, &container);
    QCOMPARE(button.Font().pointSize(), 17);
}

void GGCommandPropertiesTest::everyPropertyCanBeReachedByItsName() {
    GGCommand button;
    for (const QString& name : allNames())
        if (name != u"Picture"_s)
            QVERIFY2(button.metaObject()->indexOfProperty(name.toLatin1()) >= 0, qPrintable(name));
    QVERIFY(button.setProperty("ForeColor", 0xC00000U));
    QCOMPARE(button.ForeColor(), 0xC00000U);
}

void GGCommandPropertiesTest::aNewButtonStoresNothing() {
    QWidget container;
    GGCommand button(u"imgOK"_s, &container);
    PropertyBag bag;
    button.WriteProperties(bag);
    QCOMPARE(bag.names(), QStringList());
}

void GGCommandPropertiesTest::everyChangedPropertyIsStoredInTheFixedOrder() {
    GGCommand button(u"imgOK"_s);
    changeAll(button);
    PropertyBag bag;
    button.WriteProperties(bag);
    QCOMPARE(bag.names(), allNames());
}

namespace {
void compareChanged(const GGCommand& read) {
    QCOMPARE(read.Caption(), u"Find"_s);
    QCOMPARE(read.CaptionAlignment(), 7);
    QCOMPARE(read.CaptionXOffset(), -3);
    QCOMPARE(read.CaptionYOffset(), 2);
    QCOMPARE(read.UseHoverProperties(), false);
    QCOMPARE(read.FontBoldOnHover(), true);
    QCOMPARE(read.FontColorOnHover(), 0x0000FFU);
    QCOMPARE(read.BackColor(), 0xD8C4BAU);
    QCOMPARE(read.ForeColor(), 0xC00000U);
    QCOMPARE(read.Font().pointSize(), 13);
    QCOMPARE(read.Picture().size(), QSize(12, 12));
    QCOMPARE(read.Picture().pixmap({12, 12}, 1).toImage().pixelColor(5, 5), QColor(Qt::green));
    QCOMPARE(read.PictureAlignment(), 4);
    QCOMPARE(read.PictureXOffset(), 5);
    QCOMPARE(read.PictureYOffset(), -6);
    QCOMPARE(read.AlwaysShowBorder(), true);
    QCOMPARE(read.ToolTip(), u"Finds"_s);
    QCOMPARE(read.ToolTipTitle(), u"Title"_s);
    QCOMPARE(read.ToolTipBackColor(), 0xE1FFFFU);
    QCOMPARE(read.ToolTipForeColor(), 0x800000U);
    QCOMPARE(read.ToolTipIcon(), 1);
    QCOMPARE(read.ToolTipStyle(), 1);
    QCOMPARE(read.Border3DStyle(), 3);
    QCOMPARE(read.exStyle(), 0x20000U);
    QCOMPARE(read.GradientOrientation(), 1);
    QCOMPARE(read.UseGradientFill(), false);
    QCOMPARE(read.GradientFromColor(), 0xFFFDFAU);
    QCOMPARE(read.GradientToColor(), 0xE3D6BDU);
    QCOMPARE(read.GradientInverseOnPress(), false);
    QCOMPARE(read.MousePointer(), qint16(2));
    QCOMPARE(read.cursor().shape(), Qt::CrossCursor);
    QCOMPARE(read.Enabled(), false);
}
} // namespace

void GGCommandPropertiesTest::aStoredButtonComesBackWhole() {
    GGCommand button(u"imgOK"_s);
    changeAll(button);
    button.resize(60, 30);
    PropertyBag bag;
    button.WriteProperties(bag);
    GGCommand read(u"imgOK"_s);
    read.resize(60, 30);
    read.ReadProperties(bag);
    compareChanged(read);
    QCOMPARE(read.grab().toImage(), button.grab().toImage());
}

void GGCommandPropertiesTest::aButtonComesBackThroughAStream() {
    GGCommand button(u"imgOK"_s);
    changeAll(button);
    PropertyBag bag;
    button.WriteProperties(bag);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << bag;
    PropertyBag stored;
    QDataStream in(bytes);
    in >> stored;
    GGCommand read(u"imgOK"_s);
    read.ReadProperties(stored);
    compareChanged(read);
}

void GGCommandPropertiesTest::anEmptyBagGivesTheDefaults() {
    GGCommand button(u"imgOK"_s);
    changeAll(button);
    button.ReadProperties(PropertyBag());
    compareAllDefaults(button);
    QCOMPARE(button.Caption(), u"imgOK"_s);
    QCOMPARE(button.Font().pointSize(), QApplication::font().pointSize());
}

void GGCommandPropertiesTest::readingMarksNothingForStoring() {
    GGCommand changed;
    changeAll(changed);
    PropertyBag bag;
    changed.WriteProperties(bag);
    GGCommand button;
    const QSignalSpy marked(&button, &GGCommand::PropertyChanged);
    button.ReadProperties(bag);
    QCOMPARE(marked.count(), 0);
}

void GGCommandPropertiesTest::anEmptyCaptionIsStored() {
    GGCommand button(u"Image1"_s);
    button.setCaption(QString());
    PropertyBag bag;
    button.WriteProperties(bag);
    QCOMPARE(bag.names(), QStringList{u"Caption"_s});
    GGCommand read(u"Image1"_s);
    read.ReadProperties(bag);
    QCOMPARE(read.Caption(), QString());
}

void GGCommandPropertiesTest::whatIsNotPersistedIsNotStored() {
    GGCommand button;
    button.setToolTipCentered(true);
    button.setDontReleaseCapture(true);
    button.setValue(true);
    PropertyBag bag;
    button.WriteProperties(bag);
    QCOMPARE(bag.names(), QStringList());
}

void GGCommandPropertiesTest::itsHandleIsThatOfTheWindowItIsDrawnIn() {
    QWidget form;
    const GGCommand button(u"imgOK"_s, &form);
    form.show();
    QVERIFY(form.winId() != 0);
    QCOMPARE(button.hWnd(), form.winId());
}

void GGCommandPropertiesTest::settingAPropertyMarksItForStoring_data() {
    QTest::addColumn<QString>("name");
    for (const QString& name : allNames())
        QTest::newRow(qPrintable(name)) << name;
}

void GGCommandPropertiesTest::settingAPropertyMarksItForStoring() {
    QFETCH(QString, name);
    GGCommand button;
    QSignalSpy marks(&button, &GGCommand::PropertyChanged);
    changeAll(button);
    int count = 0;
    for (const QVariantList& mark : marks)
        count += mark.first().toString() == name ? 1 : 0;
    QCOMPARE(count, 1);
}

void GGCommandPropertiesTest::settingAPropertyThatShowsRepaints_data() {
    QTest::addColumn<Setter>("set");
    const auto row = [](const char* name, const Setter& set) { QTest::newRow(name) << set; };
    row(
        "Caption", [](GGCommand& b) { b.setCaption(b.Caption()); });
    row(
        "CaptionAlignment", [](GGCommand& b) { b.setCaptionAlignment(4); });
    row(
        "CaptionXOffset", [](GGCommand& b) { b.setCaptionXOffset(0); });
    row(
        "CaptionYOffset", [](GGCommand& b) { b.setCaptionYOffset(0); });
    row(
        "UseHoverProperties", [](GGCommand& b) { b.setUseHoverProperties(true); });
    row(
        "BackColor", [](GGCommand& b) { b.setBackColor(b.BackColor()); });
    row(
        "ForeColor", [](GGCommand& b) { b.setForeColor(b.ForeColor()); });
    row(
        "Font", [](GGCommand& b) { b.setFont(b.font()); });
    row(
        "Picture", [](GGCommand& b) { b.setPicture({}); });
    row(
        "PictureAlignment", [](GGCommand& b) { b.setPictureAlignment(1); });
    row(
        "PictureXOffset", [](GGCommand& b) { b.setPictureXOffset(0); });
    row(
        "PictureYOffset", [](GGCommand& b) { b.setPictureYOffset(0); });
    row(
        "AlwaysShowBorder", [](GGCommand& b) { b.setAlwaysShowBorder(false); });
    row(
        "Border3DStyle", [](GGCommand& b) { b.setBorder3DStyle(0); });
    row(
        "GradientOrientation", [](GGCommand& b) { b.setGradientOrientation(1); });
    row(
        "UseGradientFill", [](GGCommand& b) { b.setUseGradientFill(true); });
    row(
        "GradientFromColor", [](GGCommand& b) { b.setGradientFromColor(1); });
    row(
        "GradientToColor", [](GGCommand& b) { b.setGradientToColor(b.GradientToColor()); });
    row("GradientInverseOnPress", [](GGCommand& b) { b.setGradientInverseOnPress(true); });
}

void GGCommandPropertiesTest::settingAPropertyThatShowsRepaints() {
    QFETCH(Setter, set);
    GGCommand button;
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    PaintCounter paints(button);
    paints.count();
    set(button);
    QCOMPARE(paints.count(), 1);
}

void GGCommandPropertiesTest::settingAPropertyThatDoesNotShowDoesNotRepaint_data() {
    QTest::addColumn<Setter>("set");
    const auto row = [](const char* name, const Setter& set) { QTest::newRow(name) << set; };
    row(
        "ToolTipBackColor", [](GGCommand& b) { b.setToolTipBackColor(1); });
    row(
        "ToolTipForeColor", [](GGCommand& b) { b.setToolTipForeColor(1); });
    row(
        "ToolTipCentered", [](GGCommand& b) { b.setToolTipCentered(true); });
    row(
        "FontBoldOnHover", [](GGCommand& b) { b.setFontBoldOnHover(true); });
    row("FontColorOnHover", [](GGCommand& b) { b.setFontColorOnHover(1); });
}

void GGCommandPropertiesTest::settingAPropertyThatDoesNotShowDoesNotRepaint() {
    QFETCH(Setter, set);
    GGCommand button;
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    PaintCounter paints(button);
    paints.count();
    QSignalSpy marks(&button, &GGCommand::PropertyChanged);
    set(button);
    QCOMPARE(marks.count(), 1);
    QCOMPARE(paints.count(), 0);
}

void GGCommandPropertiesTest::gradientOrientationAndFromColourSkipTheRepaintWhenTheSame() {
    GGCommand button;
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    PaintCounter paints(button);
    paints.count();
    button.setGradientOrientation(0);
    QCOMPARE(paints.count(), 0);
    button.setGradientFromColor(0x80000014);
    QCOMPARE(paints.count(), 0);
    button.setGradientOrientation(1);
    QCOMPARE(paints.count(), 1);
    button.setGradientFromColor(0x80000010);
    QCOMPARE(paints.count(), 1);
}

void GGCommandPropertiesTest::gradientToColourAndTheOthersRepaintRegardless() {
    GGCommand button;
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    PaintCounter paints(button);
    paints.count();
    button.setGradientToColor(0x80000010);
    QCOMPARE(paints.count(), 1);
    button.setCaptionAlignment(4);
    QCOMPARE(paints.count(), 1);
}

void GGCommandPropertiesTest::aPropertySetWhileHoveringKeepsTheHoverLook() {
    GGCommand button;
    button.resize(60, 24);
    button.setFontColorOnHover(0x0000FF);
    button.setUseGradientFill(false);
    button.setBackColor(0xFFFFFF);
    button.setCaption(u"Find"_s);
    Pointer(button).enter();
    const QImage hovering = button.grab().toImage();
    button.setForeColor(0x00FF00);
    QCOMPARE(button.grab().toImage(), hovering);
}

void GGCommandPropertiesTest::aPropertySetWhilePressedKeepsThePressedLook() {
    GGCommand button;
    button.resize(60, 24);
    button.setAlwaysShowBorder(true);
    Pointer pointer(button);
    pointer.enter();
    pointer.press();
    const QImage pressed = button.grab().toImage();
    button.setForeColor(0x00FF00);
    QCOMPARE(button.grab().toImage(), pressed);
    QCOMPARE(button.borderState(), 2);
}

void GGCommandPropertiesTest::theMousePointerTakesItsShape_data() {
    QTest::addColumn<int>("pointer");
    QTest::addColumn<Qt::CursorShape>("shape");
    QTest::newRow("arrow") << 1 << Qt::ArrowCursor;
    QTest::newRow("cross") << 2 << Qt::CrossCursor;
    QTest::newRow("text") << 3 << Qt::IBeamCursor;
    QTest::newRow("size") << 5 << Qt::SizeAllCursor;
    QTest::newRow("north east") << 6 << Qt::SizeBDiagCursor;
    QTest::newRow("north") << 7 << Qt::SizeVerCursor;
    QTest::newRow("north west") << 8 << Qt::SizeFDiagCursor;
    QTest::newRow("west") << 9 << Qt::SizeHorCursor;
    QTest::newRow("up") << 10 << Qt::UpArrowCursor;
    QTest::newRow("hourglass") << 11 << Qt::WaitCursor;
    QTest::newRow("no drop") << 12 << Qt::ForbiddenCursor;
    QTest::newRow("arrow and hourglass") << 13 << Qt::BusyCursor;
    QTest::newRow("arrow and question") << 14 << Qt::WhatsThisCursor;
    QTest::newRow("size all") << 15 << Qt::SizeAllCursor;
    QTest::newRow("one that is none") << 77 << Qt::ArrowCursor;
}

void GGCommandPropertiesTest::theMousePointerTakesItsShape() {
    QFETCH(int, pointer);
    QFETCH(Qt::CursorShape, shape);
    QWidget container;
    container.setCursor(Qt::PointingHandCursor);
    GGCommand button(u"imgOK"_s, &container);
    button.setMousePointer(static_cast<qint16>(pointer));
    QCOMPARE(button.cursor().shape(), shape);
    button.setMousePointer(0);
    QCOMPARE(button.cursor().shape(), Qt::PointingHandCursor);
}

void GGCommandPropertiesTest::onlyAnotherPictureIsAssigned() {
    int renderings = 0;
    const PictureSource picture({16, 16}, [&](const QSize& size, qreal ratio) {
        ++renderings;
        QPixmap pixmap((QSizeF(size) * ratio).toSize());
        pixmap.fill(Qt::green);
        return pixmap;
    });
    GGCommand button;
    button.setPicture(picture);
    const auto* image = button.findChild<Image*>(u"imgPicture"_s);
    const qint64 handle = image->handle();
    QVERIFY(handle != 0);
    Pointer pointer(button);
    pointer.enter();
    pointer.press();
    pointer.release();
    QCOMPARE(image->handle(), handle);
    QCOMPARE(renderings, 1);
}

ORVALIS_TEST_MAIN_WITH(QApplication, GGCommandPropertiesTest)
#include "gg_command_properties_test.moc"
