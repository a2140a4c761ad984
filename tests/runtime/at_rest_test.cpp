// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/at_rest.h"

#include "support/test_main.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>

using namespace orvalis;

namespace {

/// Runs something as a handler of the outermost event loop, and leaves that loop some turns later.
template <class Handler>
void inTheOutermostLoop(const Handler& handler) {
    QEventLoop outermost;
    QTimer::singleShot(0, &outermost, handler);
    QTimer::singleShot(50, &outermost, &QEventLoop::quit);
    outermost.exec();
}

/// Runs something in an event loop of its own, as a menu, a box or a drag does, until that loop has
/// nothing left to do.
template <class Handler>
void inANestedLoop(const Handler& handler) {
    QEventLoop nested;
    QTimer::singleShot(0, &nested, handler);
    QTimer::singleShot(20, &nested, &QEventLoop::quit);
    nested.exec();
}

} // namespace

class AtRestTest : public QObject {
    Q_OBJECT
private slots:
    void withoutANestedLoopItGoesWhenTheLoopTurns();
    void inANestedLoopItWaitsUntilThatOneIsLeft();
    void inALoopWithinALoopItWaitsForTheOutermost();
    void aLoopThatOpensBehindDoesNotDeleteIt();
    void itGoesWithItsKeeperAtTheLatest();
};

void AtRestTest::withoutANestedLoopItGoesWhenTheLoopTurns() {
    QObject keeper;
    QPointer<QObject> window;
    bool livesInItsHandler = false;
    inTheOutermostLoop([&] {
        auto object = std::make_shared<QObject>();
        window = object.get();
        deleteAtRest(std::move(object), keeper);
        livesInItsHandler = !window.isNull();
    });
    QVERIFY(livesInItsHandler);
    QVERIFY(window.isNull());
}

void AtRestTest::inANestedLoopItWaitsUntilThatOneIsLeft() {
    QObject keeper;
    QPointer<QObject> window;
    bool livesBehindTheLoop = false;
    inTheOutermostLoop([&] {
        inANestedLoop([&] {
            auto object = std::make_shared<QObject>();
            window = object.get();
            deleteAtRest(std::move(object), keeper);
        });
        livesBehindTheLoop = !window.isNull();
    });
    QVERIFY(livesBehindTheLoop);
    QVERIFY(window.isNull());
}

void AtRestTest::inALoopWithinALoopItWaitsForTheOutermost() {
    QObject keeper;
    QPointer<QObject> window;
    int lives = 0;
    inTheOutermostLoop([&] {
        inANestedLoop([&] {
            inANestedLoop([&] {
                auto object = std::make_shared<QObject>();
                window = object.get();
                deleteAtRest(std::move(object), keeper);
            });
            lives += window.isNull() ? 0 : 1;
        });
        lives += window.isNull() ? 0 : 1;
        // Another loop of the same handler.
        inANestedLoop([] {});
        lives += window.isNull() ? 0 : 1;
    });
    QCOMPARE(lives, 3);
    QVERIFY(window.isNull());
}

void AtRestTest::aLoopThatOpensBehindDoesNotDeleteIt() {
    QObject keeper;
    QPointer<QObject> window;
    bool livesBehindTheLoop = false;
    inTheOutermostLoop([&] {
        auto object = std::make_shared<QObject>();
        window = object.get();
        deleteAtRest(std::move(object), keeper);
        inANestedLoop([] {});
        livesBehindTheLoop = !window.isNull();
    });
    QVERIFY(livesBehindTheLoop);
    QVERIFY(window.isNull());
}

void AtRestTest::itGoesWithItsKeeperAtTheLatest() {
    auto keeper = std::make_unique<QObject>();
    QPointer<QObject> window;
    inTheOutermostLoop([&] {
        inANestedLoop([&] {
            auto object = std::make_shared<QObject>();
            window = object.get();
            deleteAtRest(std::move(object), *keeper);
            keeper.reset();
            QVERIFY(window.isNull());
        });
    });
    QVERIFY(window.isNull());
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, AtRestTest)
#include "at_rest_test.moc"
