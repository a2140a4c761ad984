// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/window_keys.h"
#include "support/test_main.h"

#include <QApplication>
#include <QLineEdit>

using namespace orvalis;
using namespace Qt::StringLiterals;

class WindowKeysTest : public QObject {
    Q_OBJECT
private slots:
    /// A line would take some keys for itself, and which ones depends on the desktop; this one it
    /// takes on every desktop.
    void aKeyOfTheWindowIsHeardInItsLinesToo() {
        QWidget window;
        auto* line = new QLineEdit(&window);
        int heard = 0;
        onKey(window, QKeySequence::Undo, [&heard] { ++heard; });
        window.show();
        QApplication::setActiveWindow(&window);
        line->setFocus();
        QTest::keyClicks(line, u"word"_s);
        QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(heard, 1);
        QCOMPARE(line->text(), u"word"_s);
    }

    void otherKeysStayThoseOfTheLine() {
        QWidget window;
        auto* line = new QLineEdit(&window);
        onKey(window, Qt::CTRL | Qt::Key_E, [] {});
        window.show();
        QApplication::setActiveWindow(&window);
        line->setFocus();
        QTest::keyClicks(line, u"word"_s);
        QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(line->text(), QString());
    }
};

ORVALIS_TEST_MAIN_WITH(QApplication, WindowKeysTest)
#include "window_keys_test.moc"
