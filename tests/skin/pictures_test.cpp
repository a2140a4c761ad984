// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "skin/recorder/svg_recorder.h"
#include "skin/skin.h"
#include "support/test_main.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <memory>

using namespace Qt::StringLiterals;
using namespace orvalis;
using skin::recorder::Recipe;
using skin::recorder::SvgRecorder;

namespace {

const QString Sources = QStringLiteral(ORVALIS_SKIN_SOURCES);

QString listOfPictures() {
    QFile file(Sources + u"/pictures.list"_s);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QImage blank(QSize size, qreal scale) {
    QImage image((QSizeF(size) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    return image;
}

// How far the two pictures are apart where they differ most, in steps of one channel.
int greatestDifference(const QImage& left, const QImage& right) {
    int greatest = 0;
    for (int y = 0; y < left.height(); ++y) {
        const auto* a = reinterpret_cast<const QRgb*>(left.constScanLine(y));
        const auto* b = reinterpret_cast<const QRgb*>(right.constScanLine(y));
        for (int x = 0; x < left.width(); ++x) {
            greatest = qMax(greatest, qAbs(qRed(a[x]) - qRed(b[x])));
            greatest = qMax(greatest, qAbs(qGreen(a[x]) - qGreen(b[x])));
            greatest = qMax(greatest, qAbs(qBlue(a[x]) - qBlue(b[x])));
            greatest = qMax(greatest, qAbs(qAlpha(a[x]) - qAlpha(b[x])));
        }
    }
    return greatest;
}

} // namespace

class PicturesTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void everyPictureOfTheListIsThere();
    void aPictureReplaysAsItsDrawingsAtEveryScale_data();
    void aPictureReplaysAsItsDrawingsAtEveryScale();
    void aPictureReplaysAsItsDrawingsAtAnotherSize();
    void theSameRequestGivesTheSameHandle();
    void theHoverPictureHasAHandleOfItsOwn();
    void aPixmapHasTheDevicePixelsOfItsRatio();
    void anUnknownNameGivesNothing();
    void backgroundsOfFramelessWindowsHaveTransparentCorners_data();
    void backgroundsOfFramelessWindowsHaveTransparentCorners();
    void everyPictureButtonLooksDifferentUnderThePointer();
    void everyPanelButtonLooksDifferentWhenDisabled();

private:
    std::unique_ptr<SvgRecorder> m_recorder;
};

void PicturesTest::initTestCase() {
    m_recorder = std::make_unique<SvgRecorder>(Sources + u"/svg"_s,
                                               skin::recorder::readRecipes(listOfPictures()));
    QVERIFY(m_recorder->recipes().size() > 50);
}

void PicturesTest::everyPictureOfTheListIsThere() {
    QStringList listed;
    for (const Recipe& recipe : m_recorder->recipes()) {
        listed.append(recipe.name);
        QVERIFY2(skin::exists(recipe.name), qPrintable(recipe.name));
        QCOMPARE(skin::size(recipe.name), recipe.size);
    }
    listed.sort();
    QCOMPARE(skin::names(), listed);
}

void PicturesTest::aPictureReplaysAsItsDrawingsAtEveryScale_data() {
    QTest::addColumn<qreal>("scale");
    for (const qreal scale : {1.0, 1.25, 1.75, 2.0, 3.0})
        QTest::newRow(qPrintable(QString::number(scale))) << scale;
}

void PicturesTest::aPictureReplaysAsItsDrawingsAtEveryScale() {
    QFETCH(qreal, scale);
    for (const Recipe& recipe : m_recorder->recipes()) {
        QImage drawn = blank(recipe.size, scale);
        QPainter painter(&drawn);
        m_recorder->draw(painter, recipe);
        painter.end();
        const QImage replayed = skin::pixmap(recipe.name, scale)
                                    .toImage()
                                    .convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QCOMPARE(replayed.size(), drawn.size());
        const int difference = greatestDifference(drawn, replayed);
        QVERIFY2(difference == 0,
                 qPrintable(u"%1 differs by %2"_s.arg(recipe.name).arg(difference)));
    }
}

void PicturesTest::aPictureReplaysAsItsDrawingsAtAnotherSize() {
    const Recipe* recipe = nullptr;
    for (const Recipe& candidate : m_recorder->recipes())
        if (candidate.name == u"sticker_background"_s)
            recipe = &candidate;
    QVERIFY(recipe);
    const QSize stretched(recipe->size.width(), recipe->size.height() + 1);
    QImage drawn = blank(stretched, 2);
    QPainter painter(&drawn);
    painter.scale(1, stretched.height() / qreal(recipe->size.height()));
    m_recorder->draw(painter, *recipe);
    painter.end();
    const QImage replayed = skin::pixmap(recipe->name, stretched, 2)
                                .toImage()
                                .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QCOMPARE(replayed, drawn);
}

void PicturesTest::theSameRequestGivesTheSameHandle() {
    QCOMPARE(skin::pixmap(u"exit", 1.75).cacheKey(), skin::pixmap(u"exit", 1.75).cacheKey());
    QCOMPARE(skin::pixmap(u"exit", 1.75).cacheKey(),
             skin::pixmap(u"exit", skin::size(u"exit"), 1.75).cacheKey());
}

void PicturesTest::theHoverPictureHasAHandleOfItsOwn() {
    QVERIFY(skin::pixmap(u"exit", 1).cacheKey() != skin::pixmap(u"exit_hover", 1).cacheKey());
    QVERIFY(skin::pixmap(u"exit", 1).cacheKey() != skin::pixmap(u"exit", 2).cacheKey());
}

void PicturesTest::aPixmapHasTheDevicePixelsOfItsRatio() {
    const QPixmap pixmap = skin::pixmap(u"main_background", 1.75);
    QCOMPARE(pixmap.size(), QSize(560, 845));
    QCOMPARE(pixmap.devicePixelRatio(), 1.75);
}

void PicturesTest::anUnknownNameGivesNothing() {
    QTest::ignoreMessage(QtWarningMsg, "skin: no picture \"no_such_picture\"");
    QVERIFY(skin::pixmap(u"no_such_picture", 1).isNull());
    QVERIFY(skin::size(u"no_such_picture").isEmpty());
    QVERIFY(!skin::exists(u"no_such_picture"));
    QVERIFY(skin::icon(u"no_such_picture").isNull());
}

void PicturesTest::backgroundsOfFramelessWindowsHaveTransparentCorners_data() {
    QTest::addColumn<QString>("name");
    for (const QString& name :
         {u"main_background"_s, u"panel_background"_s, u"panel_background_small"_s,
          u"book_background"_s, u"sticker_background"_s, u"about_background"_s})
        QTest::newRow(qPrintable(name)) << name;
}

void PicturesTest::backgroundsOfFramelessWindowsHaveTransparentCorners() {
    QFETCH(QString, name);
    const QImage image = skin::pixmap(name, 1).toImage();
    const int right = image.width() - 1;
    const int bottom = image.height() - 1;
    for (const QPoint corner :
         {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)})
        QVERIFY(qAlpha(image.pixel(corner)) < 40);
    QCOMPARE(qAlpha(image.pixel(image.rect().center())), 255);
    QCOMPARE(qAlpha(image.pixel(right / 2, 3)), 255);
}

void PicturesTest::everyPictureButtonLooksDifferentUnderThePointer() {
    int pairs = 0;
    for (const QString& name : skin::names()) {
        if (!name.endsWith(u"_hover"))
            continue;
        const QString still = name.chopped(6);
        QVERIFY2(skin::exists(still), qPrintable(still));
        QCOMPARE(skin::size(still), skin::size(name));
        QVERIFY(greatestDifference(skin::pixmap(still, 1).toImage(),
                                   skin::pixmap(name, 1).toImage()) > 40);
        ++pairs;
    }
    QVERIFY(pairs >= 18);
}

void PicturesTest::everyPanelButtonLooksDifferentWhenDisabled() {
    for (const QString& name : {u"new"_s, u"save"_s, u"clear"_s, u"find"_s, u"sticker"_s}) {
        QVERIFY(skin::exists(name + u"_disabled"_s));
        QVERIFY(greatestDifference(skin::pixmap(name, 1).toImage(),
                                   skin::pixmap(name + u"_disabled"_s, 1).toImage()) > 60);
    }
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, PicturesTest)
#include "pictures_test.moc"
