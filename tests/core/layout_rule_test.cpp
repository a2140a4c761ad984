// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/layout_rule.h"

#include "platform/interface_scale.h"
#include "platform/screen.h"
#include "skin/type.h"
#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis;

namespace {

/// The font factor on a screen of that many pixels.
double factorOn(QSizeF pixels) {
    class Scaled final : public Screen {
    public:
        explicit Scaled(QSizeF pixels)
            : m_size(pixels / interfaceScale(pixels.width(), pixels.height())) {}
        QSizeF size() const override { return m_size; }
        QRect workArea() const override { return {}; }

    private:
        QSizeF m_size;
    };
    return fontFactor(Scaled(pixels).GetSystemMetrics(0));
}

} // namespace

class LayoutRuleTest : public QObject {
    Q_OBJECT
private slots:
    void theFontFactorGoesByTheScreensWidth_data();
    void theFontFactorGoesByTheScreensWidth();
    void aFontSizeIsReadAndStoredAsAWholeNumber_data();
    void aFontSizeIsReadAndStoredAsAWholeNumber();
    void aSizeSurvivesRunsOnAnyScreen();
    void theWindowsTypeKeepsItsSizeOnUsualScreens_data();
    void theWindowsTypeKeepsItsSizeOnUsualScreens();
    void noScreenTakesMoreThanAPointFromWhatIsRead();
    void theRatioIsASinglePrecisionNumber();
    void aGeometryValueGrowsWithThePicture();
    void withoutARatioAGeometryValueStays();
};

void LayoutRuleTest::theFontFactorGoesByTheScreensWidth_data() {
    QTest::addColumn<int>("width");
    QTest::addColumn<double>("factor");
    QTest::newRow("640") << 640 << 0.8;
    QTest::newRow("720") << 720 << 0.9;
    QTest::newRow("800") << 800 << 1.0;
    QTest::newRow("1024") << 1024 << 1.28;
    QTest::newRow("1152") << 1152 << 1.44;
    QTest::newRow("1280") << 1280 << 1.6;
    QTest::newRow("a screen of 1600 has the factor 2") << 1600 << 2.0;
    QTest::newRow("two decimal places") << 1097 << 1.37;
    QTest::newRow("a tie goes to the even hundredth") << 1012 << 1.26;
    QTest::newRow("another tie") << 1020 << 1.28;
    QTest::newRow("1366") << 1366 << 1.71;
    QTest::newRow("3840") << 3840 << 4.8;
    QTest::newRow("a factor of nothing becomes 1") << 0 << 1.0;
    QTest::newRow("a factor that rounds to nothing becomes 1") << 4 << 1.0;
}

void LayoutRuleTest::theFontFactorGoesByTheScreensWidth() {
    QFETCH(int, width);
    QFETCH(double, factor);
    QCOMPARE(fontFactor(width), factor);
}

void LayoutRuleTest::aFontSizeIsReadAndStoredAsAWholeNumber_data() {
    QTest::addColumn<double>("size");
    QTest::addColumn<double>("factor");
    QTest::addColumn<int>("scaled");
    QTest::newRow("8 points at 1024 become 6") << 8.0 << 1.28 << 6;
    QTest::newRow("10 points at 1024 become 8") << 10.0 << 1.28 << 8;
    QTest::newRow("read as a whole number first") << 8.25 << 1.0 << 8;
    QTest::newRow("not read with its half") << 8.5 << 1.28 << 6;
    QTest::newRow("a tie read goes to the even one") << 8.5 << 1.0 << 8;
    QTest::newRow("a tie stored goes to the even one") << 5.0 << 2.0 << 2;
    QTest::newRow("and up") << 7.0 << 2.0 << 4;
    QTest::newRow("a narrow screen makes it larger") << 8.0 << 0.8 << 10;
}

void LayoutRuleTest::aFontSizeIsReadAndStoredAsAWholeNumber() {
    QFETCH(double, size);
    QFETCH(double, factor);
    QFETCH(int, scaled);
    QCOMPARE(scaledFontSize(size, factor), scaled);
}

void LayoutRuleTest::aSizeSurvivesRunsOnAnyScreen() {
    for (int width = 800; width <= 2560; ++width) {
        const double factor = fontFactor(width);
        for (int size = 1; size <= 120; ++size)
            QCOMPARE(scaledFontSize(unscaledFontSize(size, factor), factor), size);
    }
    QCOMPARE(unscaledFontSize(11, 1.0), 11);
    QCOMPARE(unscaledFontSize(8, 1.37), 11);
}

void LayoutRuleTest::theWindowsTypeKeepsItsSizeOnUsualScreens_data() {
    QTest::addColumn<QSizeF>("screen");
    for (const QSizeF& screen :
         {QSizeF(800, 600), QSizeF(1024, 600), QSizeF(1024, 768), QSizeF(1366, 768),
          QSizeF(1440, 900), QSizeF(1600, 900), QSizeF(1600, 1200), QSizeF(1680, 1050),
          QSizeF(1920, 1080), QSizeF(1920, 1200), QSizeF(2560, 1440), QSizeF(3440, 1440),
          QSizeF(3840, 2160)})
        QTest::addRow("%gx%g", screen.width(), screen.height()) << screen;
}

void LayoutRuleTest::theWindowsTypeKeepsItsSizeOnUsualScreens() {
    QFETCH(QSizeF, screen);
    const double factor = factorOn(screen);
    for (const int size : {skin::points::Body, skin::points::PanelLabel, skin::points::Reading,
                           skin::points::ChosenTime, skin::points::Title, skin::points::Clock})
        QCOMPARE(scaledFontSize(size, factor), size);
}

void LayoutRuleTest::noScreenTakesMoreThanAPointFromWhatIsRead() {
    for (int width = 800; width <= 4000; width += 3)
        for (int height = 600; height <= 3000; height += 3) {
            const double factor = factorOn(QSizeF(width, height));
            QVERIFY(scaledFontSize(skin::points::Body, factor) >= skin::points::Body - 1);
        }
}

void LayoutRuleTest::theRatioIsASinglePrecisionNumber() {
    QCOMPARE(layoutRatio(10530, 10500), 10530.0F / 10500.0F);
    QVERIFY(static_cast<double>(layoutRatio(10530, 10500)) != 10530.0 / 10500.0);
    QCOMPARE(layoutRatio(4800, 4800), 1.0F);
    QCOMPARE(layoutRatio(3060, 0), 0.0F);
}

void LayoutRuleTest::aGeometryValueGrowsWithThePicture() {
    QCOMPARE(scaledGeometry(150.0F, layoutRatio(3000, 6000)), 300.0F);
    QCOMPARE(scaledGeometry(150.0F, layoutRatio(6000, 3000)), 75.0F);
    QCOMPARE(scaledGeometry(151.0F, layoutRatio(4800, 4800)), 151.0F);
}

void LayoutRuleTest::withoutARatioAGeometryValueStays() {
    QCOMPARE(scaledGeometry(150.0F, 0.0F), 150.0F);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, LayoutRuleTest)
#include "layout_rule_test.moc"
