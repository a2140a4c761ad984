// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "skin/palette.h"
#include "skin/skin.h"
#include "skin/style.h"
#include "support/test_main.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOption>
#include <QTextEdit>
#include <QToolButton>
#include <QToolTip>

using namespace Qt::StringLiterals;
using namespace orvalis;
namespace colour = skin::colour;

namespace {

QImage pictureOf(QWidget& widget, qreal ratio = 1) {
    QImage image((QSizeF(widget.size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::red);
    widget.ensurePolished();
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

// How many pixels are near the colour: edges are smooth, so that few are exactly it.
int pixelsLike(const QImage& image, QRgb rgb, int tolerance = 12) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            count += qAbs(qRed(pixel) - qRed(rgb)) <= tolerance &&
                     qAbs(qGreen(pixel) - qGreen(rgb)) <= tolerance &&
                     qAbs(qBlue(pixel) - qBlue(rgb)) <= tolerance;
        }
    }
    return count;
}

/// Counts how often a widget is painted on the screen.
class PaintCounter final : public QObject {
public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        count += event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
};

QImage drawn(QStyle::PrimitiveElement element, QStyle::State state, QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QStyleOption option;
    option.rect = image.rect();
    option.state = state;
    QPainter painter(&image);
    QApplication::style()->drawPrimitive(element, &option, &painter);
    return image;
}

QStyleOptionSlider bar(int height, int maximum, int page, int position) {
    QStyleOptionSlider option;
    option.rect = QRect(0, 0, 12, height);
    option.orientation = Qt::Vertical;
    option.maximum = maximum;
    option.pageStep = page;
    option.sliderPosition = position;
    option.state = QStyle::State_Enabled;
    return option;
}

QRect sliderOf(const QStyleOptionSlider& option, QStyle::SubControl part) {
    return QApplication::style()->subControlRect(QStyle::CC_ScrollBar, &option, part);
}

} // namespace

class StyleTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void theProgramWearsItsOwnColours();
    void theProgramHasAnIconAtEverySizeOfTheTaskBar();
    void aTickIsGreenAndGoesWithTheTick();
    void aTickIsFaintWhileDisabled();
    void aTickIsSharpAtTwiceTheScale();
    void aChosenOptionHasItsDot();
    void whatIsUnderThePointerHasAnotherEdge();
    void whereTheKeysGoIsToldMoreStronglyThanWhereThePointerIs_data();
    void whereTheKeysGoIsToldMoreStronglyThanWhereThePointerIs();
    void theMarkOfTheKeysStandsOutFromPaperAndGlass();
    void aFieldLosesItsTealEdgeWithThePointer();
    void whatIsSelectedInAListIsSage();
    void whatIsUnderThePointerInAListIsNotSage();
    void aFieldOnPaperShowsThePage();
    void aLineOnPaperHasNoFrame();
    void aFieldElsewhereIsWhiteWithAnEdge();
    void aLabelOnGlassIsPale();
    void aComboHasItsArrowAtTheRight();
    void theEditFieldOfAComboEndsBeforeItsArrow();
    void theListOfAComboDropsDownBelowIt();
    void aFrameLeavesRoomForItsCaption();
    void aFrameWithoutACaptionIsClosed();
    void theSliderOfAScrollBarShowsThePart();
    void theSliderOfALongListCanStillBeGrasped();
    void aScrollBarHasNoArrowButtons();
    void whereTwoScrollBarsMeetThePageGoesOn();
    void progressIsGreenAsFarAsItCame();
    void aButtonSinksWhenItIsPressed();
    void theIconsOfMessageBoxesAreOurs();
    void aChosenMenuEntryIsTeal();
    void aMenuOfWordsAloneHasNoEmptyColumn();
    void theHeadingOfAMenuIsReadWhole();
    void aToolThatHasTheKeyboardHasARingAroundIt();
    void aFrameTitleLiesOnOneGround();
    void theCalendarHasAnEdgeAndAQuietHead();
    void theMonthOfTheCalendarHasNoArrowInItsCorner();
    void aPasswordShowsAStarForEachCharacter();
};

void StyleTest::initTestCase() {
    skin::dress(*qApp);
}

void StyleTest::theProgramWearsItsOwnColours() {
    QCOMPARE(QApplication::palette().color(QPalette::Highlight), QColor::fromRgba(colour::Sage));
    QCOMPARE(QApplication::palette().color(QPalette::WindowText), QColor::fromRgba(colour::Ink));
    QCOMPARE(QToolTip::palette().color(QPalette::ToolTipText), QColor::fromRgba(colour::Ink));
    QVERIFY(dynamic_cast<skin::Style*>(QApplication::style()));
}

void StyleTest::theProgramHasAnIconAtEverySizeOfTheTaskBar() {
    for (const int side : {16, 22, 24, 32, 48, 64})
        QCOMPARE(QApplication::windowIcon().pixmap(QSize(side, side), 1.0).width(), side);
}

void StyleTest::aTickIsGreenAndGoesWithTheTick() {
    QCheckBox box(u"Remind"_s);
    QCOMPARE(pixelsLike(pictureOf(box), colour::Green), 0);
    box.setChecked(true);
    QVERIFY(pixelsLike(pictureOf(box), colour::Green) > 5);
}

void StyleTest::aTickIsFaintWhileDisabled() {
    QCheckBox box(u"Remind"_s);
    box.setChecked(true);
    box.setEnabled(false);
    QCOMPARE(pixelsLike(pictureOf(box), colour::Green), 0);
    QVERIFY(pixelsLike(pictureOf(box), colour::DisabledText) > 3);
}

void StyleTest::aTickIsSharpAtTwiceTheScale() {
    QCheckBox box(u"Remind"_s);
    box.setChecked(true);
    box.resize(box.sizeHint());
    const QImage large = pictureOf(box, 2);
    const QImage blown = pictureOf(box).scaled(large.size());
    // A drawing has far more pixels that are wholly green than a magnified bitmap has.
    QVERIFY(pixelsLike(large, colour::Green, 2) > 30);
    QVERIFY(pixelsLike(large, colour::Green, 2) > pixelsLike(blown, colour::Green, 2));
}

void StyleTest::aChosenOptionHasItsDot() {
    QRadioButton option(u"First"_s);
    QCOMPARE(pixelsLike(pictureOf(option), colour::Green), 0);
    option.setChecked(true);
    QVERIFY(pixelsLike(pictureOf(option), colour::Green) > 8);
}

void StyleTest::whatIsUnderThePointerHasAnotherEdge() {
    const auto box = [](QStyle::State state) {
        return drawn(QStyle::PE_IndicatorCheckBox, state | QStyle::State_Off, QSize(14, 14));
    };
    const QImage hovered = box(QStyle::State_Enabled | QStyle::State_MouseOver);
    QCOMPARE(pixelsLike(box(QStyle::State_Enabled), colour::TealSoft, 30), 0);
    QVERIFY(pixelsLike(hovered, colour::TealSoft, 30) > 8);
    QCOMPARE(pixelsLike(box(QStyle::State_MouseOver), colour::TealSoft, 30), 0);
}

void StyleTest::whereTheKeysGoIsToldMoreStronglyThanWhereThePointerIs_data() {
    QTest::addColumn<QStyle::PrimitiveElement>("element");
    QTest::addColumn<QSize>("size");
    QTest::newRow("check box") << QStyle::PE_IndicatorCheckBox << QSize(14, 14);
    QTest::newRow("option") << QStyle::PE_IndicatorRadioButton << QSize(14, 14);
    QTest::newRow("field") << QStyle::PE_FrameLineEdit << QSize(100, 23);
}

void StyleTest::whereTheKeysGoIsToldMoreStronglyThanWhereThePointerIs() {
    QFETCH(QStyle::PrimitiveElement, element);
    QFETCH(QSize, size);
    const auto teal = [&](QStyle::State state) {
        return pixelsLike(drawn(element, state | QStyle::State_Enabled | QStyle::State_Off, size),
                          colour::Teal, 40);
    };
    QCOMPARE(teal({}), 0);
    QCOMPARE(teal(QStyle::State_MouseOver), 0);
    QVERIFY(teal(QStyle::State_HasFocus) > size.width() + size.height());
    QCOMPARE(teal(QStyle::State_HasFocus | QStyle::State_MouseOver), teal(QStyle::State_HasFocus));
}

void StyleTest::theMarkOfTheKeysStandsOutFromPaperAndGlass() {
    const QImage mark =
        drawn(QStyle::PE_FrameFocusRect,
              QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange,
              QSize(40, 24));
    QVERIFY(pixelsLike(mark, colour::Teal, 40) > 100);
    QVERIFY(pixelsLike(mark, 0xFFFFFFFF, 40) > 50);
    QCOMPARE(pixelsLike(drawn(QStyle::PE_FrameFocusRect,
                              QStyle::State_Enabled | QStyle::State_HasFocus, QSize(40, 24)),
                        colour::Teal, 40),
             0);
}

void StyleTest::aFieldLosesItsTealEdgeWithThePointer() {
    QWidget window;
    window.setGeometry(100, 100, 200, 100);
    QLineEdit field(&window);
    field.setGeometry(20, 20, 100, 23);
    field.setFocusPolicy(Qt::NoFocus);
    PaintCounter paints(field);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseMove(&window, QPoint(180, 80));
    QTest::qWait(20);
    const auto repaints = [&](const QPoint& place) {
        paints.count = 0;
        QTest::mouseMove(&window, place);
        return QTest::qWaitFor([&] { return paints.count > 0; }, 1000);
    };
    QVERIFY(repaints({40, 30}));
    QVERIFY(repaints({180, 80}));
}

void StyleTest::whatIsSelectedInAListIsSage() {
    const QImage image = drawn(QStyle::PE_PanelItemViewItem,
                               QStyle::State_Enabled | QStyle::State_Selected, QSize(20, 10));
    QCOMPARE(image.pixel(10, 5), colour::Sage);
}

void StyleTest::whatIsUnderThePointerInAListIsNotSage() {
    const QImage image = drawn(QStyle::PE_PanelItemViewItem,
                               QStyle::State_Enabled | QStyle::State_MouseOver, QSize(20, 10));
    QCOMPARE(image.pixel(10, 5), colour::TealMist);
}

void StyleTest::aFieldOnPaperShowsThePage() {
    QTextEdit text;
    text.setProperty("skinSurface", u"paper"_s);
    text.resize(60, 40);
    const QImage image = pictureOf(text);
    QCOMPARE(image.pixel(0, 0), qRgb(255, 0, 0));
    QCOMPARE(image.pixel(40, 30), qRgb(255, 0, 0));
}

void StyleTest::aLineOnPaperHasNoFrame() {
    QLineEdit line;
    line.setProperty("skinSurface", u"paper"_s);
    line.resize(60, 20);
    const QImage image = pictureOf(line);
    QCOMPARE(image.pixel(30, 0), qRgb(255, 0, 0));
    QCOMPARE(image.pixel(0, 10), qRgb(255, 0, 0));
}

void StyleTest::aFieldElsewhereIsWhiteWithAnEdge() {
    QLineEdit line;
    line.resize(60, 20);
    const QImage image = pictureOf(line);
    QCOMPARE(image.pixel(30, 10), qRgb(255, 255, 255));
    QCOMPARE(image.pixel(30, 0), colour::Line);
    QTextEdit text;
    text.resize(60, 40);
    const QImage page = pictureOf(text);
    QCOMPARE(page.pixel(30, 20), qRgb(255, 255, 255));
    QCOMPARE(page.pixel(30, 0), colour::Line);
}

void StyleTest::aLabelOnGlassIsPale() {
    QLabel label(u"10 : 24"_s);
    label.setProperty("skinSurface", u"glass"_s);
    label.ensurePolished();
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor::fromRgba(colour::GlassText));
}

void StyleTest::aComboHasItsArrowAtTheRight() {
    QComboBox combo;
    combo.resize(60, 23);
    const QImage image = pictureOf(combo);
    const QRect right(60 - 19, 0, 19, 23);
    QVERIFY(pixelsLike(image.copy(right), colour::TitleInk, 40) > 4);
    QCOMPARE(pixelsLike(image.copy(0, 0, 40, 23), colour::TitleInk, 40), 0);
}

void StyleTest::theEditFieldOfAComboEndsBeforeItsArrow() {
    QComboBox combo;
    combo.setEditable(true);
    combo.resize(60, 23);
    combo.show();
    QVERIFY(combo.lineEdit()->geometry().right() < 60 - 19);
    QVERIFY(combo.lineEdit()->geometry().width() > 30);
}

void StyleTest::theListOfAComboDropsDownBelowIt() {
    QComboBox combo;
    QStyleOptionComboBox option;
    QCOMPARE(QApplication::style()->styleHint(QStyle::SH_ComboBox_Popup, &option, &combo), 0);
}

void StyleTest::aFrameLeavesRoomForItsCaption() {
    QGroupBox frame(u"Start Up"_s);
    frame.resize(120, 60);
    const QImage image = pictureOf(frame);
    QStyleOptionGroupBox option;
    option.initFrom(&frame);
    option.text = frame.title();
    const QRect caption = QApplication::style()->subControlRect(QStyle::CC_GroupBox, &option,
                                                                QStyle::SC_GroupBoxLabel, &frame);
    const int edge = caption.center().y();
    QVERIFY(image.pixel(110, edge) != qRgb(255, 0, 0));
    // The frame's ground, and no line on it.
    QCOMPARE(image.pixel(caption.left() - 2, edge), image.pixel(60, 40));
    QCOMPARE(image.pixel(110, edge - 3), qRgb(255, 0, 0));
    QVERIFY(pixelsLike(image.copy(caption), colour::Ink, 60) > 10);
}

void StyleTest::aFrameWithoutACaptionIsClosed() {
    QGroupBox frame;
    frame.resize(120, 60);
    const QImage image = pictureOf(frame);
    for (int x = 10; x < 110; ++x)
        QVERIFY(image.pixel(x, 0) != qRgb(255, 0, 0));
}

void StyleTest::theSliderOfAScrollBarShowsThePart() {
    const QStyleOptionSlider option = bar(100, 100, 100, 50);
    QCOMPARE(sliderOf(option, QStyle::SC_ScrollBarSlider), QRect(0, 25, 12, 50));
    QCOMPARE(sliderOf(option, QStyle::SC_ScrollBarSubPage), QRect(0, 0, 12, 25));
    QCOMPARE(sliderOf(option, QStyle::SC_ScrollBarAddPage), QRect(0, 75, 12, 25));
    QCOMPARE(sliderOf(option, QStyle::SC_ScrollBarGroove), QRect(0, 0, 12, 100));
}

void StyleTest::theSliderOfALongListCanStillBeGrasped() {
    QCOMPARE(sliderOf(bar(100, 1000000, 10, 1000000), QStyle::SC_ScrollBarSlider),
             QRect(0, 76, 12, 24));
    QCOMPARE(sliderOf(bar(10, 1000, 10, 0), QStyle::SC_ScrollBarSlider), QRect(0, 0, 12, 10));
}

void StyleTest::aScrollBarHasNoArrowButtons() {
    const QStyleOptionSlider option = bar(100, 100, 10, 0);
    QVERIFY(!sliderOf(option, QStyle::SC_ScrollBarAddLine).isValid());
    QVERIFY(!sliderOf(option, QStyle::SC_ScrollBarSubLine).isValid());
}

void StyleTest::whereTwoScrollBarsMeetThePageGoesOn() {
    const QImage corner =
        drawn(QStyle::PE_PanelScrollAreaCorner, QStyle::State_Enabled, QSize(12, 12));
    QImage page(corner.size(), corner.format());
    page.fill(Qt::white);
    QCOMPARE(corner, page);
}

void StyleTest::progressIsGreenAsFarAsItCame() {
    QProgressBar progress;
    progress.setTextVisible(false);
    progress.resize(104, 14);
    progress.setRange(0, 100);
    progress.setValue(50);
    const QImage image = pictureOf(progress);
    const QRgb done = image.pixel(30, 7);
    QVERIFY(qGreen(done) > qRed(done) + 20 && qGreen(done) > qBlue(done) + 20);
    const QRgb rest = image.pixel(80, 7);
    QVERIFY(qAbs(qGreen(rest) - qRed(rest)) < 20);
}

void StyleTest::aButtonSinksWhenItIsPressed() {
    QPushButton button;
    button.resize(60, 24);
    const QImage up = pictureOf(button);
    button.setDown(true);
    const QImage down = pictureOf(button);
    QVERIFY(qGray(up.pixel(30, 4)) > qGray(up.pixel(30, 20)));
    QVERIFY(qGray(down.pixel(30, 4)) < qGray(down.pixel(30, 20)));
}

void StyleTest::theIconsOfMessageBoxesAreOurs() {
    const auto same = [](QStyle::StandardPixmap standard, QStringView name) {
        return QApplication::style()->standardIcon(standard).pixmap(QSize(48, 48), 1.0).toImage() ==
               skin::pixmap(name, QSize(48, 48), 1).toImage();
    };
    QVERIFY(same(QStyle::SP_MessageBoxInformation, u"box_information"));
    QVERIFY(same(QStyle::SP_MessageBoxWarning, u"box_warning"));
    QVERIFY(same(QStyle::SP_MessageBoxCritical, u"box_stop"));
    QVERIFY(same(QStyle::SP_MessageBoxQuestion, u"box_question"));
}

void StyleTest::aChosenMenuEntryIsTeal() {
    QImage image(80, 22, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QStyleOptionMenuItem option;
    option.rect = image.rect();
    option.palette = QApplication::palette();
    option.menuItemType = QStyleOptionMenuItem::Normal;
    option.state = QStyle::State_Enabled | QStyle::State_Selected;
    QPainter painter(&image);
    QApplication::style()->drawControl(QStyle::CE_MenuItem, &option, &painter);
    painter.end();
    QCOMPARE(image.pixel(60, 11), colour::Teal);
}

void StyleTest::theCalendarHasAnEdgeAndAQuietHead() {
    QCalendarWidget calendar;
    calendar.resize(230, 158);
    const QImage image = pictureOf(calendar);
    QCOMPARE(image.pixel(0, 80), colour::Line);
    QCOMPARE(image.pixel(229, 80), colour::Line);
    auto* head = calendar.findChild<QWidget*>(u"qt_calendar_navigationbar"_s);
    QVERIFY(head);
    QCOMPARE(head->palette().color(QPalette::HighlightedText), QColor::fromRgba(colour::TitleInk));
    QVERIFY(qGray(image.pixel(20, 3)) > 200);
}

void StyleTest::theMonthOfTheCalendarHasNoArrowInItsCorner() {
    QCalendarWidget calendar;
    calendar.resize(230, 158);
    QWidget* month = calendar.findChild<QWidget*>(u"qt_calendar_monthbutton"_s);
    QVERIFY(month);
    QStyleOptionToolButton with;
    with.rect = QRect(0, 0, 70, 24);
    with.state = QStyle::State_Enabled;
    with.features = QStyleOptionToolButton::HasMenu;
    with.subControls = QStyle::SC_ToolButton;
    QStyleOptionToolButton without(with);
    without.features = QStyleOptionToolButton::None;
    const auto picture = [](const QStyleOptionToolButton& option, const QWidget* widget) {
        QImage image(option.rect.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        QApplication::style()->drawComplexControl(QStyle::CC_ToolButton, &option, &painter, widget);
        return image;
    };
    QCOMPARE(picture(with, month), picture(without, month));
    QVERIFY(picture(with, nullptr) != picture(without, nullptr));
}

void StyleTest::aPasswordShowsAStarForEachCharacter() {
    QLineEdit field;
    field.setEchoMode(QLineEdit::Password);
    field.setText(QStringLiteral("rose"));
    QCOMPARE(field.displayText(), QStringLiteral("****"));
}

void StyleTest::aMenuOfWordsAloneHasNoEmptyColumn() {
    constexpr int WidestMargin = 12;
    QMenu menu;
    menu.addAction(u"HHH"_s);
    menu.ensurePolished();
    menu.resize(menu.sizeHint());
    const QImage drawn = menu.grab().toImage();
    int first = drawn.width();
    int last = 0;
    for (int y = 4; y < drawn.height() - 4; ++y)
        for (int x = 3; x < drawn.width() - 3; ++x)
            if (qGray(drawn.pixel(x, y)) < 140) {
                first = std::min(first, x);
                last = std::max(last, x);
            }
    QVERIFY(last > first);
    QVERIFY2(first <= WidestMargin, qPrintable(QString::number(first)));
    QVERIFY2(drawn.width() - last >= 6, qPrintable(QString::number(drawn.width() - last)));
    // Ticks need their column.
    menu.addAction(u"HHH"_s)->setCheckable(true);
    QMenu plain;
    plain.addAction(u"HHH"_s);
    plain.addAction(u"HHH"_s);
    QVERIFY(menu.sizeHint().width() > plain.sizeHint().width());
}

void StyleTest::theHeadingOfAMenuIsReadWhole() {
    QMenu menu;
    QAction* heading = menu.addSection(u"HHHHHHHH"_s);
    menu.addAction(u"Date"_s);
    menu.ensurePolished();
    menu.resize(menu.sizeHint());
    const QImage drawn = menu.grab().toImage();
    const QRect place = menu.actionGeometry(heading);
    int first = drawn.width();
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = 1; x < drawn.width() - 1; ++x)
            if (qGray(drawn.pixel(x, y)) < 100)
                first = std::min(first, x);
    QVERIFY2(first >= 3 && first <= 20, qPrintable(QString::number(first)));
}

void StyleTest::aToolThatHasTheKeyboardHasARingAroundIt() {
    QWidget window;
    window.setFixedSize(60, 40);
    auto* tool = new QToolButton(&window);
    tool->setAutoRaise(true);
    tool->setGeometry(10, 10, 21, 15);
    auto* other = new QLineEdit(&window);
    other->setGeometry(40, 10, 15, 20);
    window.show();
    QApplication::setActiveWindow(&window);
    window.setAttribute(Qt::WA_KeyboardFocusChange);
    other->setFocus();
    const QImage without = tool->grab().toImage();
    tool->setFocus(Qt::TabFocusReason);
    const QImage with = tool->grab().toImage();
    QVERIFY(with != without);
    // Around it, not across its picture.
    const QRect middle(5, 4, 11, 7);
    QCOMPARE(with.copy(middle), without.copy(middle));
}

void StyleTest::aFrameTitleLiesOnOneGround() {
    QWidget page;
    page.setFixedSize(200, 100);
    QPalette dark = page.palette();
    dark.setColor(QPalette::Window, QColor(100, 120, 130));
    page.setPalette(dark);
    QGroupBox frame(u"Title"_s, &page);
    frame.setGeometry(10, 10, 180, 80);
    const QImage drawn = page.grab().toImage();
    QStyleOptionGroupBox option;
    option.initFrom(&frame);
    option.text = frame.title();
    const QRect title =
        QApplication::style()
            ->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &frame)
            .translated(frame.pos());
    // Left of the letters: above the frame's line, on it, and below it.
    const int x = title.left() - 1;
    const QRgb above = drawn.pixel(x, title.top() + 3);
    QCOMPARE(drawn.pixel(x, title.center().y()), above);
    QCOMPARE(drawn.pixel(x, title.bottom() - 1), above);
    QCOMPARE(drawn.pixel(100, 70), above);
}

ORVALIS_TEST_MAIN_WITH(QApplication, StyleTest)
#include "style_test.moc"
