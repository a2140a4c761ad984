// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "alarm/alarm_window.h"

#include "controls/image.h"
#include "support/test_main.h"

#include <QApplication>
#include <QMenuBar>

using namespace orvalis;
using namespace Qt::StringLiterals;

class AlarmWindowTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void theMenuBarHoldsFilePlaylistAndSkin();
    void noEntryDoesAnything();
    void aPictureStandsUnderTheMenuBar();

private:
    QList<QAction*> menus() const { return m_window->findChild<QMenuBar*>()->actions(); }
    static QStringList entries(const QAction* menu) {
        QStringList texts;
        for (const QAction* entry : menu->menu()->actions())
            texts << entry->text();
        return texts;
    }

    std::unique_ptr<frmAlarm> m_window;
};

void AlarmWindowTest::init() {
    m_window = std::make_unique<frmAlarm>();
    m_window->load();
    m_window->Show();
}

void AlarmWindowTest::theMenuBarHoldsFilePlaylistAndSkin() {
    QCOMPARE(menus().size(), 3);
    QCOMPARE(menus().at(0)->text(), u"File"_s);
    QCOMPARE(entries(menus().at(0)), (QStringList{u"&Repeat ..."_s, u"&Playback"_s,
                                                  u"File &Intro"_s, u"Sort &List ..."_s}));
    QCOMPARE(menus().at(1)->text(), u"Playlist"_s);
    QCOMPARE(entries(menus().at(1)), (QStringList{u"&Load"_s, u"&Save"_s, u"&New"_s}));
    QCOMPARE(menus().at(2)->text(), u"Skin"_s);
}

void AlarmWindowTest::noEntryDoesAnything() {
    const auto widgets = QApplication::topLevelWidgets().size();
    const QImage before = m_window->grab().toImage();
    for (QAction* menu : menus())
        for (QAction* entry : menu->menu()->actions())
            entry->trigger();
    QVERIFY(m_window->isVisible());
    QCOMPARE(QApplication::topLevelWidgets().size(), widgets);
    QCOMPARE(m_window->grab().toImage(), before);
}

void AlarmWindowTest::aPictureStandsUnderTheMenuBar() {
    const auto* picture = m_window->findChild<Image*>(u"Image1"_s);
    const auto* bar = m_window->findChild<QMenuBar*>();
    QVERIFY(!picture->Picture().isNull());
    QCOMPARE(picture->y(), bar->height());
    QCOMPARE(m_window->size(), QSize(picture->width(), bar->height() + picture->height()));
}

ORVALIS_TEST_MAIN_WITH(QApplication, AlarmWindowTest)
#include "alarm_window_test.moc"
