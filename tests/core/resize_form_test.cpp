// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/resize_form.h"

#include "controls/combo_box.h"
#include "controls/image.h"
#include "controls/label.h"
#include "controls/month_view.h"
#include "controls/ms_flex_grid.h"
#include "controls/rich_text_box.h"
#include "controls/shapes.h"
#include "controls/twips_geometry.h"
#include "support/test_main.h"
#include "widgets/gg_command.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>

#include <functional>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

using Maker = std::function<QWidget*()>;

template <class Class>
Maker plain() {
    return [] { return new Class; };
}

template <class Class>
Maker named() {
    return [] { return new Class(QString(), nullptr); };
}

constexpr QRect Designed(20, 30, 200, 100);
constexpr int NarrowScreen = 800; // font factor 1
constexpr int WideScreen = 1024;  // font factor 1.28

QFont points(int size) {
    QFont font = QApplication::font();
    font.setPointSize(size);
    return font;
}

/// A form with one control, 20, 30, 200 by 100 pixels large, in 10 points.
struct OneControlForm {
    QWidget form;
    QWidget* control;

    explicit OneControlForm(QWidget* made, const QString& name = u"control"_s)
        : control(made) {
        control->setParent(&form);
        control->setObjectName(name);
        control->setFont(points(10));
        control->setGeometry(Designed);
    }

    void resize(int designWidth, int currentWidth, int screen = NarrowScreen) {
        clsResize(screen).ResizeForm(form, designWidth, currentWidth);
    }
};

} // namespace

class ResizeFormTest : public QObject {
    Q_OBJECT
private slots:
    void atTheDesignWidthGeometryStaysAndFontsChange();
    void aWiderPictureMakesControlsLarger_data();
    void aWiderPictureMakesControlsLarger();
    void fontsFollowTheScreenWhereTheTableSaysSo_data();
    void fontsFollowTheScreenWhereTheTableSaysSo();
    void anEightPointLabelBecomesSixPointsAt1024();
    void aScreenOf1600HalvesFonts();
    void anEmptyRichTextBoxIsTypedIntoInTheScaledSize();
    void theSizesOfADocumentBelongToIt();
    void aCalendarKeepsItsLeftEdgeAndLosesItsWeekNumbers();
    void aLinesEndsAreScaled();
    void aComboBoxTakesTheHeightOfItsFont();
    void aKeptImageOnlyMoves();
    void keptImagesAreToldByTheNameOfTheirArray();
    void everyOtherImageIsScaled();
    void aGridKeepsItsDesignSizeAndFont();
    void aTreeKeepsItsDesignSizeAndFont();
    void controlsInFramesAreScaledInTheirFrame();
    void whatLiesInsideACompositeControlIsNotScaled();
    void whatHasNoNameIsPassedOver();
    void aFontTakenFromTheContainerIsScaledOnce();
    void nothingDriftsOverManyScalings();
    void callingItTwiceScalesTwice();
    void withoutAPictureWidthOnlyFontsChange();
    void aFontThatWouldVanishStays();
    void windowsOfTheFormAreNotItsControls();
};

void ResizeFormTest::atTheDesignWidthGeometryStaysAndFontsChange() {
    OneControlForm one(new Label);
    one.resize(4800, 4800, WideScreen);
    QCOMPARE(one.control->geometry(), Designed);
    QCOMPARE(one.control->font().pointSize(), 8);
}

void ResizeFormTest::aWiderPictureMakesControlsLarger_data() {
    QTest::addColumn<Maker>("make");
    QTest::newRow("TextBox") << plain<QLineEdit>();
    QTest::newRow("TextBox of many lines") << plain<QPlainTextEdit>();
    QTest::newRow("Shape") << named<Shape>();
    QTest::newRow("RichTextBox") << plain<RichTextBox>();
    QTest::newRow("Frame") << plain<QGroupBox>();
    QTest::newRow("Frame without a caption") << plain<QFrame>();
    QTest::newRow("OptionButton") << plain<QRadioButton>();
    QTest::newRow("CheckBox") << plain<QCheckBox>();
    QTest::newRow("CommandButton") << plain<QPushButton>();
    QTest::newRow("Label") << plain<Label>();
    QTest::newRow("ProgressBar") << plain<QProgressBar>();
    QTest::newRow("GGCommand") << plain<GGCommand>();
    QTest::newRow("Toolbar") << plain<QToolBar>();
    QTest::newRow("PictureBox") << plain<QWidget>();
    QTest::newRow("Image") << plain<Image>();
}

void ResizeFormTest::aWiderPictureMakesControlsLarger() {
    QFETCH(Maker, make);
    OneControlForm one(make());
    one.resize(3000, 4500);
    QCOMPARE(one.control->geometry(), QRect(30, 45, 300, 150));
}

void ResizeFormTest::fontsFollowTheScreenWhereTheTableSaysSo_data() {
    QTest::addColumn<Maker>("make");
    QTest::addColumn<int>("size");
    QTest::newRow("TextBox") << plain<QLineEdit>() << 8;
    QTest::newRow("RichTextBox") << plain<RichTextBox>() << 8;
    QTest::newRow("MonthView") << plain<MonthView>() << 8;
    QTest::newRow("CheckBox") << plain<QCheckBox>() << 8;
    QTest::newRow("CommandButton") << plain<QPushButton>() << 8;
    QTest::newRow("Label") << plain<Label>() << 8;
    QTest::newRow("ComboBox") << plain<ComboBox>() << 8;
    QTest::newRow("GGCommand") << plain<GGCommand>() << 8;
    QTest::newRow("Shape keeps it") << named<Shape>() << 10;
    QTest::newRow("Frame keeps it") << plain<QGroupBox>() << 10;
    QTest::newRow("OptionButton keeps it") << plain<QRadioButton>() << 10;
    QTest::newRow("ProgressBar keeps it") << plain<QProgressBar>() << 10;
    QTest::newRow("Toolbar keeps it") << plain<QToolBar>() << 10;
    QTest::newRow("PictureBox keeps it") << plain<QWidget>() << 10;
    QTest::newRow("Image keeps it") << plain<Image>() << 10;
    QTest::newRow("another control keeps it") << plain<QTreeView>() << 10;
}

void ResizeFormTest::fontsFollowTheScreenWhereTheTableSaysSo() {
    QFETCH(Maker, make);
    QFETCH(int, size);
    OneControlForm one(make());
    one.resize(4800, 4800, WideScreen);
    QCOMPARE(one.control->font().pointSize(), size);
}

void ResizeFormTest::anEightPointLabelBecomesSixPointsAt1024() {
    OneControlForm one(new Label);
    one.control->setFont(points(8));
    one.resize(4800, 4800, 1024);
    QCOMPARE(one.control->font().pointSize(), 6);
}

void ResizeFormTest::aScreenOf1600HalvesFonts() {
    OneControlForm one(new Label);
    one.control->setFont(points(16));
    one.resize(4800, 4800, 1600);
    QCOMPARE(one.control->font().pointSize(), 8);
}

void ResizeFormTest::anEmptyRichTextBoxIsTypedIntoInTheScaledSize() {
    auto* box = new RichTextBox;
    OneControlForm one(box, u"rt1"_s);
    box->SetFontSize(10);
    one.resize(4800, 4800, WideScreen);
    QCOMPARE(box->FontSize(), 8.0);
    QCOMPARE(box->SelFontSize().value(), 8.0);
}

void ResizeFormTest::theSizesOfADocumentBelongToIt() {
    auto* box = new RichTextBox;
    OneControlForm one(box, u"rt1a"_s);
    box->SetTextRTF(
        QByteArrayLiteral(R"({\rtf1\ansi{\fonttbl{\f0 Arial;}}\fs48 large \fs24 small})"));
    one.resize(4800, 4800, WideScreen);
    box->SetSelStart(1);
    QCOMPARE(box->SelFontSize().value(), 24.0);
    box->SetSelStart(8);
    QCOMPARE(box->SelFontSize().value(), 12.0);
    QCOMPARE(box->FontSize(), 8.0);
}

void ResizeFormTest::aCalendarKeepsItsLeftEdgeAndLosesItsWeekNumbers() {
    auto* calendar = new MonthView;
    OneControlForm one(calendar, u"MonthView1"_s);
    calendar->setVerticalHeaderFormat(QCalendarWidget::ISOWeekNumbers);
    calendar->setGeometry(20, 200, 300, 400);
    one.resize(3000, 4500);
    QCOMPARE(calendar->geometry(), QRect(20, 300, 450, 600));
    QCOMPARE(calendar->verticalHeaderFormat(), QCalendarWidget::NoVerticalHeader);
}

void ResizeFormTest::aLinesEndsAreScaled() {
    auto* line = new Line(u"Line1"_s);
    OneControlForm one(line, u"Line1"_s);
    line->setEnds(QLineF(300, 600, 150, 1500));
    one.resize(3000, 4500);
    QCOMPARE(line->ends(), QLineF(450, 900, 225, 2250));
}

void ResizeFormTest::aComboBoxTakesTheHeightOfItsFont() {
    auto* combo = new ComboBox;
    OneControlForm one(combo);
    combo->setFont(points(20));
    one.resize(3000, 4500, WideScreen);
    QCOMPARE(combo->geometry().topLeft(), QPoint(30, 45));
    QCOMPARE(combo->width(), 300);
    QCOMPARE(combo->font().pointSize(), 16);
    QCOMPARE(combo->height(), combo->sizeHint().height());
    QVERIFY(combo->height() != 100 && combo->height() != 150);
}

void ResizeFormTest::aKeptImageOnlyMoves() {
    QWidget form;
    QList<Image*> images;
    for (const auto& name : {u"Image5"_s, u"imgStop"_s, u"imgSet"_s, u"imgExit"_s}) {
        images << new Image(name, &form);
        images.last()->setGeometry(Designed);
    }
    clsResize(NarrowScreen).ResizeForm(form, 3000, 4500, images[0], images[1], images[2]);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(images[i]->geometry(), QRect(30, 45, 200, 100));
    QCOMPARE(images[3]->geometry(), QRect(30, 45, 300, 150));
}

void ResizeFormTest::keptImagesAreToldByTheNameOfTheirArray() {
    QWidget form;
    Image first(u"imgIcon(0)"_s, &form);
    Image second(u"imgIcon(1)"_s, &form);
    Image other(u"imgIcons"_s, &form);
    for (Image* image : {&first, &second, &other})
        image->setGeometry(Designed);
    clsResize(NarrowScreen).ResizeForm(form, 3000, 4500, &first, nullptr, nullptr);
    QCOMPARE(second.size(), Designed.size());
    QCOMPARE(other.size(), QSize(300, 150));
}

void ResizeFormTest::everyOtherImageIsScaled() {
    OneControlForm one(new Image, u"imgExit"_s);
    one.resize(3000, 1500);
    QCOMPARE(one.control->geometry(), QRect(10, 15, 100, 50));
}

void ResizeFormTest::aGridKeepsItsDesignSizeAndFont() {
    OneControlForm one(new MSFlexGrid, u"MS1"_s);
    one.resize(3000, 4500, WideScreen);
    QCOMPARE(one.control->geometry(), Designed);
    QCOMPARE(one.control->font().pointSize(), 10);
}

void ResizeFormTest::aTreeKeepsItsDesignSizeAndFont() {
    OneControlForm one(new QTreeView, u"TreeView1"_s);
    one.resize(3000, 4500, WideScreen);
    QCOMPARE(one.control->geometry(), Designed);
    QCOMPARE(one.control->font().pointSize(), 10);
}

void ResizeFormTest::controlsInFramesAreScaledInTheirFrame() {
    auto* frame = new QGroupBox;
    OneControlForm one(frame, u"Frame1"_s);
    Label inside(u"Label1"_s, u"Hour"_s, frame);
    inside.setGeometry(10, 20, 30, 40);
    auto* picture = new QWidget(frame);
    picture->setGeometry(0, 0, 100, 100);
    Label deeper(u"Label2"_s, u"Min"_s, picture);
    deeper.setGeometry(10, 20, 30, 40);
    one.resize(3000, 4500);
    QCOMPARE(frame->geometry(), QRect(30, 45, 300, 150));
    QCOMPARE(inside.geometry(), QRect(15, 30, 45, 60));
    QCOMPARE(deeper.geometry(), QRect(15, 30, 45, 60));
}

void ResizeFormTest::whatLiesInsideACompositeControlIsNotScaled() {
    auto* bar = new QToolBar;
    OneControlForm one(bar, u"Toolbar1"_s);
    auto* button = new QToolButton;
    button->setObjectName(u"Toolbar1(1)"_s);
    bar->addWidget(button);
    auto* box = new QLineEdit;
    box->setObjectName(u"inBar"_s);
    box->setFont(points(10));
    bar->addWidget(box);
    one.resize(4800, 4800, WideScreen);
    QCOMPARE(box->font().pointSize(), 10);

    auto* command = new GGCommand;
    OneControlForm other(command, u"cmdFind"_s);
    const auto* picture = command->findChild<Image*>(u"imgPicture"_s);
    QVERIFY(picture);
    const QRect before = picture->geometry();
    other.resize(3000, 4500);
    QCOMPARE(picture->geometry(), before);
}

void ResizeFormTest::whatHasNoNameIsPassedOver() {
    OneControlForm one(new Label, QString());
    one.resize(3000, 4500, WideScreen);
    QCOMPARE(one.control->geometry(), Designed);
    QCOMPARE(one.control->font().pointSize(), 10);
}

void ResizeFormTest::aFontTakenFromTheContainerIsScaledOnce() {
    QWidget form;
    auto* outer = new Label(u"Label1"_s, QString(), &form);
    outer->setFont(points(20));
    Label next(u"Label2"_s, QString(), &form);
    auto* frame = new QGroupBox(&form);
    frame->setObjectName(u"Frame1"_s);
    frame->setFont(points(20));
    Label inherits(u"Label3"_s, QString(), frame);
    clsResize(WideScreen).ResizeForm(form, 4800, 4800);
    QCOMPARE(outer->font().pointSize(), 16);
    QCOMPARE(inherits.font().pointSize(), 16);
}

void ResizeFormTest::nothingDriftsOverManyScalings() {
    OneControlForm one(new Label);
    one.control->setGeometry(37, 41, 113, 59);
    for (int i = 0; i < 20; ++i) {
        one.resize(10530, 10500);
        one.resize(10500, 10530);
    }
    QCOMPARE(one.control->geometry(), QRect(37, 41, 113, 59));
}

void ResizeFormTest::callingItTwiceScalesTwice() {
    OneControlForm one(new Label);
    one.resize(3000, 6000, 1600);
    one.resize(3000, 6000, 1600);
    QCOMPARE(one.control->geometry(), QRect(80, 120, 800, 400));
    QCOMPARE(one.control->font().pointSize(), 2);
}

void ResizeFormTest::withoutAPictureWidthOnlyFontsChange() {
    OneControlForm one(new Label);
    one.resize(4800, 0, WideScreen);
    QCOMPARE(one.control->geometry(), Designed);
    QCOMPARE(one.control->font().pointSize(), 8);
}

void ResizeFormTest::aFontThatWouldVanishStays() {
    OneControlForm one(new Label);
    one.control->setFont(points(2));
    one.resize(4800, 4800, 3840);
    QCOMPARE(one.control->font().pointSize(), 2);
}

void ResizeFormTest::windowsOfTheFormAreNotItsControls() {
    QWidget form;
    auto* window = new QWidget(&form, Qt::Tool);
    window->setObjectName(u"tool"_s);
    window->setGeometry(Designed);
    clsResize(NarrowScreen).ResizeForm(form, 3000, 4500);
    QCOMPARE(window->geometry(), Designed);
}

ORVALIS_TEST_MAIN_WITH(QApplication, ResizeFormTest)
#include "resize_form_test.moc"
