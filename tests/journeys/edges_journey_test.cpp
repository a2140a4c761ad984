// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/driven_program.h"

#include "support/test_main.h"

#include <QCoreApplication>
#include <QImage>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace orvalis::driver;

/// The windows on a desktop that draws none of them translucent, before its black ground.
class EdgesJourneyTest : public QObject {
    Q_OBJECT
private slots:
    void noEdgeOrCornerIsDark_data();
    void noEdgeOrCornerIsDark();

private:
    static QString darkPixel(const QImage& screen, const QRect& window);
};

void EdgesJourneyTest::noEdgeOrCornerIsDark_data() {
    QTest::addColumn<QSize>("screen");
    for (const QSize& screen :
         {QSize(800, 600), QSize(1024, 768), QSize(1366, 768), QSize(1920, 1080)})
        QTest::addRow("%dx%d", screen.width(), screen.height()) << screen;
}

/// The first pixel along the window's edge that is neither the desktop's black nor as light as the
/// rim of the case; empty where there is none.
QString EdgesJourneyTest::darkPixel(const QImage& screen, const QRect& window) {
    constexpr int Edge = 2;
    constexpr int DarkestChannel = 66;
    // The larger windows have the rounder corners.
    const int corner = window.height() / 20;
    const QRect inside = window.adjusted(Edge, Edge, -Edge, -Edge);
    const auto inCorner = [&window, corner](QPoint place) {
        const int x = std::min(place.x() - window.left(), window.right() - place.x());
        const int y = std::min(place.y() - window.top(), window.bottom() - place.y());
        return x + y < corner;
    };
    for (int y = window.top(); y <= window.bottom(); ++y)
        for (int x = window.left(); x <= window.right(); ++x) {
            const QPoint place(x, y);
            if (inside.contains(place) && !inCorner(place))
                continue;
            const QColor colour = screen.pixelColor(place);
            const int least = std::min({colour.red(), colour.green(), colour.blue()});
            const bool desktop = colour == QColor(Qt::black);
            if (desktop ? !inCorner(place) : least < DarkestChannel)
                return u"%1,%2 of %3x%4: %5"_s.arg(x - window.left())
                    .arg(y - window.top())
                    .arg(window.width())
                    .arg(window.height())
                    .arg(colour.name());
        }
    return {};
}

void EdgesJourneyTest::noEdgeOrCornerIsDark() {
    QFETCH(QSize, screen);
    Stage stage({.screen = screen});
    QVERIFY2(stage.trouble().isEmpty(), qPrintable(stage.trouble()));
    DrivenProgram program(stage, QStringLiteral(ORVALIS_EXECUTABLE));
    QTemporaryDir pictures;
    const auto look = [&](const QString& window) {
        if (!program.waitVisible(window))
            return u"no "_s + window;
        const QRect place = program.waitAtRest(window).rect;
        const QString file = pictures.filePath(window + u".png"_s);
        QString dark;
        // The picture may be taken before the window has painted itself.
        waitUntil(
            [&] {
                dark = program.takePicture(file) ? darkPixel(QImage(file), place) : u"no picture"_s;
                return dark.isEmpty();
            },
            5000);
        return dark.isEmpty() ? QString() : window + u' ' + dark;
    };
    QVERIFY(program.start());
    QCOMPARE(look(u"frmnotes"_s), QString());
    QVERIFY(program.click(u"frmnotes/imgopen1"_s));
    QCOMPARE(look(u"frmnotes1"_s), QString());
    QVERIFY(program.click(u"frmnotes1/imgNot"_s));
    QCOMPARE(look(u"frmstick"_s), QString());
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, EdgesJourneyTest)
#include "edges_journey_test.moc"
