// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/tray_window.h"
#include "support/test_main.h"

#include <QApplication>
#include <QMenu>
#include <QPixmap>
#include <QScreen>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

TrayRecord recordOf(const QString& tip, Qt::GlobalColor colour) {
    TrayRecord record;
    record.szTip.set(tip);
    QPixmap pixmap(32, 32);
    pixmap.fill(colour);
    record.hIcon = QIcon(pixmap);
    return record;
}

QWidget* windowOf(const StandInTrayIcon& icon) {
    return const_cast<TrayWindow*>(&icon.window());
}

QColor middleOf(const StandInTrayIcon& icon) {
    const QImage image = windowOf(icon)->grab().toImage();
    return image.pixelColor(image.width() / 2, image.height() / 2);
}

} // namespace

class TrayWindowTest : public QObject {
    Q_OBJECT
private slots:
    void theIconWindowStandsAtTheLowerRightCornerOfTheFreeScreen() {
        StandInTrayIcon icon;
        icon.add(recordOf(u" Orvalis "_s, Qt::red));
        const QRect free = windowOf(icon)->screen()->availableGeometry();
        const QRect window = windowOf(icon)->geometry();
        QVERIFY(windowOf(icon)->isVisible());
        QVERIFY(free.contains(window));
        QVERIFY(free.right() - window.right() < 16);
        QVERIFY(free.bottom() - window.bottom() < 16);
        QVERIFY(windowOf(icon)->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        icon.remove({});
        QVERIFY(!windowOf(icon)->isVisible());
    }

    void itShowsIconAndTipAndTakesOverWhatTheFlagsName() {
        StandInTrayIcon icon;
        icon.add(recordOf(u" Orvalis "_s, Qt::red));
        QCOMPARE(windowOf(icon)->toolTip(), u" Orvalis "_s);
        QCOMPARE(middleOf(icon), QColor(Qt::red));

        TrayRecord news = recordOf(u" Orvalis - Alarm set at 07:30:00"_s, Qt::blue);
        news.uFlags = TrayRecord::TipChanged;
        icon.modify(news);
        QCOMPARE(windowOf(icon)->toolTip(), u" Orvalis - Alarm set at 07:30:00"_s);
        QCOMPARE(middleOf(icon), QColor(Qt::red));

        news = recordOf(u"other"_s, Qt::blue);
        news.uFlags = TrayRecord::IconChanged;
        icon.modify(news);
        QCOMPARE(windowOf(icon)->toolTip(), u" Orvalis - Alarm set at 07:30:00"_s);
        QCOMPARE(middleOf(icon), QColor(Qt::blue));
    }

    void thePointersDoingsAreToldByNumber() {
        StandInTrayIcon icon;
        icon.add(recordOf(u" Orvalis "_s, Qt::red));
        QList<int> codes;
        connect(&icon, &TrayIcon::mouse, this, [&](int code) { codes << code; });
        QWidget* window = windowOf(icon);
        QTest::mouseMove(window, QPoint(20, 20));
        QVERIFY(codes.contains(TrayMouse::Move));
        codes.clear();
        QTest::mousePress(window, Qt::LeftButton);
        QTest::mouseRelease(window, Qt::LeftButton);
        QCOMPARE(codes, (QList{513, 514}));
        codes.clear();
        QTest::mousePress(window, Qt::RightButton);
        QTest::mouseRelease(window, Qt::RightButton);
        QTest::mouseDClick(window, Qt::RightButton);
        QTest::mouseRelease(window, Qt::RightButton);
        QCOMPARE(codes, (QList{516, 517, 518, 517}));
        codes.clear();
        QTest::mouseClick(window, Qt::MiddleButton);
        QCOMPARE(codes, QList<int>());
    }

    void aDoubleClickComesAsPressReleaseDoubleClickRelease() {
        StandInTrayIcon icon;
        icon.add(recordOf(u" Orvalis "_s, Qt::red));
        QTest::mouseMove(windowOf(icon), QPoint(20, 20));
        QList<int> codes;
        connect(&icon, &TrayIcon::mouse, this, [&](int code) { codes << code; });
        QTest::mouseClick(windowOf(icon), Qt::LeftButton);
        QTest::mouseDClick(windowOf(icon), Qt::LeftButton);
        QTest::mouseRelease(windowOf(icon), Qt::LeftButton);
        QCOMPARE(codes, (QList{513, 514, 515, 514}));
    }

    void aPointerThatComesToClickHasPassedOverTheIconFirst() {
        StandInTrayIcon icon;
        icon.add(recordOf(u" Orvalis "_s, Qt::red));
        QList<int> codes;
        connect(&icon, &TrayIcon::mouse, this, [&](int code) { codes << code; });
        QTest::mousePress(windowOf(icon), Qt::RightButton);
        QCOMPARE(codes, (QList{512, 516}));
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(windowOf(icon), &leave);
        codes.clear();
        QTest::mousePress(windowOf(icon), Qt::RightButton);
        QCOMPARE(codes, (QList{512, 516}));
    }

    void theMenuPopsUp() {
        QMenu menu;
        menu.addAction(u"Show Orvalis"_s);
        StandInTrayIcon icon;
        icon.setMenu(&menu);
        icon.add(recordOf(u" Orvalis "_s, Qt::red));
        icon.popUp();
        QTRY_VERIFY(menu.isVisible());
        menu.hide();
    }
};

ORVALIS_TEST_MAIN_WITH(QApplication, TrayWindowTest)
#include "tray_window_test.moc"
