// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/image.h"
#include "controls/label.h"
#include "support/plain_pictures.h"
#include "support/test_main.h"

#include <QApplication>
#include <QSignalSpy>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

/// Keeps the keys that nobody below took.
class KeyKeeper final : public QWidget {
public:
    QList<int> keys;

protected:
    void keyPressEvent(QKeyEvent* event) override { keys << event->key(); }
};

} // namespace

/// Pictures and labels that the keyboard reaches.
class TabStopTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void theKeyboardReachesNoneThatWasNotMadeAStop();
    void spaceAndEnterPressIt_data();
    void spaceAndEnterPressIt();
    void aKeyThatIsHeldIsOnePress();
    void otherKeysGoOnToTheWindow();
    void aDisabledOneIsPassedOver();
    void theMouseMovesNoFocusToIt();
    void theOneThatAWindowOpensWithIsMarkedByTheFirstTab();
    void aMarkShowsWhereTheKeysGo_data();
    void aMarkShowsWhereTheKeysGo();

private:
    void makeWindow();

    std::unique_ptr<KeyKeeper> m_window;
    Image* m_image = nullptr;
    Label* m_label = nullptr;
};

void TabStopTest::init() {
    makeWindow();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TabStopTest::makeWindow() {
    m_window = std::make_unique<KeyKeeper>();
    m_window->resize(200, 100);
    m_image = new Image(u"image"_s, m_window.get());
    m_image->setGeometry(10, 10, 40, 40);
    m_image->setPicture(square(40, Qt::lightGray));
    m_label = new Label(u"label"_s, u"Words"_s, m_window.get());
    m_label->setGeometry(60, 10, 80, 40);
}

void TabStopTest::cleanup() {
    m_window.reset();
}

void TabStopTest::theKeyboardReachesNoneThatWasNotMadeAStop() {
    QTest::keyClick(m_window.get(), Qt::Key_Tab);
    QVERIFY(m_window->focusWidget() == nullptr || m_window->focusWidget() == m_window.get());
    m_image->setTabStop(true);
    m_label->setTabStop(true);
    QTest::keyClick(m_window.get(), Qt::Key_Tab);
    QCOMPARE(m_window->focusWidget(), m_image);
    QTest::keyClick(m_image, Qt::Key_Tab);
    QCOMPARE(m_window->focusWidget(), m_label);
}

void TabStopTest::spaceAndEnterPressIt_data() {
    QTest::addColumn<int>("key");
    QTest::newRow("space") << int(Qt::Key_Space);
    QTest::newRow("return") << int(Qt::Key_Return);
    QTest::newRow("enter") << int(Qt::Key_Enter);
}

void TabStopTest::spaceAndEnterPressIt() {
    QFETCH(int, key);
    for (ClickableLabel* control : std::initializer_list<ClickableLabel*>{m_image, m_label}) {
        control->setTabStop(true);
        control->setFocus();
        QSignalSpy presses(control, &ClickableLabel::MouseDown);
        QSignalSpy clicks(control, &ClickableLabel::Click);
        QSignalSpy releases(control, &ClickableLabel::MouseUp);
        QTest::keyClick(control, static_cast<Qt::Key>(key));
        QCOMPARE(presses.count(), 1);
        QCOMPARE(presses.at(0).at(0).toInt(), 1); // the left button
        QCOMPARE(clicks.count(), 1);
        QCOMPARE(releases.count(), 1);
    }
    QCOMPARE(m_window->keys, QList<int>());
}

void TabStopTest::aKeyThatIsHeldIsOnePress() {
    m_image->setTabStop(true);
    m_image->setFocus();
    QSignalSpy clicks(m_image, &Image::Click);
    for (const bool repeated : {false, true, true}) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s, repeated);
        QApplication::sendEvent(m_image, &event);
    }
    QCOMPARE(clicks.count(), 1);
}

void TabStopTest::otherKeysGoOnToTheWindow() {
    m_image->setTabStop(true);
    m_image->setFocus();
    QSignalSpy clicks(m_image, &Image::Click);
    QTest::keyClick(m_image, Qt::Key_A);
    QTest::keyClick(m_image, Qt::Key_Escape);
    QTest::keyClick(m_image, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(clicks.count(), 0);
    QCOMPARE(m_window->keys,
             (QList<int>{Qt::Key_A, Qt::Key_Escape, Qt::Key_Control, Qt::Key_Return}));
}

void TabStopTest::aDisabledOneIsPassedOver() {
    m_image->setTabStop(true);
    m_label->setTabStop(true);
    m_image->setEnabled(false);
    QTest::keyClick(m_window.get(), Qt::Key_Tab);
    QCOMPARE(m_window->focusWidget(), m_label);
}

void TabStopTest::theMouseMovesNoFocusToIt() {
    m_image->setTabStop(true);
    m_label->setTabStop(true);
    m_label->setFocus();
    QTest::mouseClick(m_image, Qt::LeftButton);
    QCOMPARE(m_window->focusWidget(), m_label);
}

void TabStopTest::theOneThatAWindowOpensWithIsMarkedByTheFirstTab() {
    m_window.reset();
    makeWindow();
    m_image->setTabStop(true);
    m_label->setTabStop(true);
    m_image->setFocus();
    const QImage without = m_image->grab().toImage();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTRY_VERIFY(m_image->hasFocus());
    QCOMPARE(m_image->grab().toImage(), without);
    QSignalSpy clicks(m_image, &Image::Click);
    QTest::keyClick(m_image, Qt::Key_Space);
    QCOMPARE(clicks.count(), 0);
    QTest::keyClick(m_image, Qt::Key_Tab);
    QCOMPARE(m_window->focusWidget(), m_image);
    QVERIFY(m_image->grab().toImage() != without);
    QTest::keyClick(m_image, Qt::Key_Space);
    QCOMPARE(clicks.count(), 1);
    QTest::keyClick(m_image, Qt::Key_Tab);
    QCOMPARE(m_window->focusWidget(), m_label);
}

void TabStopTest::aMarkShowsWhereTheKeysGo_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("picture") << u"image"_s;
    QTest::newRow("label") << u"label"_s;
}

void TabStopTest::aMarkShowsWhereTheKeysGo() {
    QFETCH(QString, name);
    auto* control = m_window->findChild<ClickableLabel*>(name);
    control->setTabStop(true);
    const QImage without = control->grab().toImage();
    control->setFocus();
    QVERIFY(control->hasFocus());
    QVERIFY(control->grab().toImage() != without);
    control->clearFocus();
    QCOMPARE(control->grab().toImage(), without);
}

ORVALIS_TEST_MAIN_WITH(QApplication, TabStopTest)
#include "tab_stop_test.moc"
