// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/tree_view.h"
#include "runtime/failure.h"
#include "support/test_main.h"

#include <QApplication>
#include <QPixmap>
#include <QSignalSpy>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

constexpr int Sheet = 4;
constexpr int Folder = 9;

/// A tree of one group with two leaves, unfolded and on the screen.
struct SmallTree {
    SmallTree() {
        view.AddNode({}, TreeView::tvwChild, u"fruit"_s, u"Fruit"_s, Folder);
        view.AddNode(u"fruit"_s, TreeView::tvwChild, {}, u"Apple"_s, Sheet);
        view.AddNode(u"fruit"_s, TreeView::tvwChild, {}, u"Pear"_s, Sheet);
        view.resize(200, 200);
        view.expandAll();
        view.show();
    }
    QModelIndex fruit() const { return view.model()->index(0, 0); }
    QModelIndex apple() const { return view.model()->index(0, 0, fruit()); }
    QModelIndex pear() const { return view.model()->index(1, 0, fruit()); }
    void press(const QModelIndex& node) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(node).center());
    }

    TreeView view{u"TV1"_s};
    QSignalSpy clicks{&view, &TreeView::NodeClick};
};

/// The number of the failure of adding a node, or 0.
int failureOf(TreeView& view, const QString& relative, int relationship, const QString& key) {
    try {
        view.AddNode(relative, relationship, key, u"Plum"_s, Sheet);
        return 0;
    } catch (const RuntimeError& failure) {
        return static_cast<int>(failure.number());
    }
}

} // namespace

class TreeViewTest : public QObject {
    Q_OBJECT
private slots:
    void nodesHangOnTheOneWhoseKeyTheyName() {
        const SmallTree tree;
        QCOMPARE(tree.view.model()->rowCount(), 1);
        QCOMPARE(tree.view.model()->rowCount(tree.fruit()), 2);
        QCOMPARE(tree.fruit().data().toString(), u"Fruit"_s);
        QCOMPARE(tree.apple().data().toString(), u"Apple"_s);
        QCOMPARE(tree.pear().data().toString(), u"Pear"_s);
    }

    void aNodeHasThePictureOfItsNumber() {
        QPixmap red(16, 16);
        red.fill(Qt::red);
        TreeView view(u"TV1"_s);
        view.setImage(Sheet, QIcon(red));
        const QModelIndex node = view.AddNode({}, TreeView::tvwChild, {}, u"Plum"_s, Sheet);
        QCOMPARE(TreeView::imageOf(node), Sheet);
        QCOMPARE(node.data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage().pixelColor(8, 8),
                 QColor(Qt::red));
    }

    void aNodeThatCannotHangAnywhereFails() {
        SmallTree tree;
        QCOMPARE(failureOf(tree.view, u"meat"_s, TreeView::tvwChild, {}), 5);
        QCOMPARE(failureOf(tree.view, u"fruit"_s, TreeView::tvwChild, u"fruit"_s), 5);
        QCOMPARE(failureOf(tree.view, u"fruit"_s, 3, {}), 5);
        QCOMPARE(tree.view.model()->rowCount(tree.fruit()), 2);
    }

    void nothingIsSelectedAtFirst() {
        SmallTree tree;
        QVERIFY(!tree.view.selectedCaption().has_value());
        QTest::keyClick(&tree.view, Qt::Key_Tab);
        tree.view.setFocus(Qt::TabFocusReason);
        QVERIFY(!tree.view.selectedCaption().has_value());
        QCOMPARE(tree.clicks.size(), 0);
    }

    void aPressSelectsANodeAndTellsOfItOnce() {
        SmallTree tree;
        tree.press(tree.pear());
        QCOMPARE(tree.clicks.size(), 1);
        QCOMPARE(tree.view.selectedCaption().value_or(QString()), u"Pear"_s);
    }

    void aPressOnTheSelectedNodeTellsOfItAgain() {
        SmallTree tree;
        tree.press(tree.pear());
        tree.press(tree.pear());
        QCOMPARE(tree.clicks.size(), 2);
        QCOMPARE(tree.view.selectedCaption().value_or(QString()), u"Pear"_s);
    }

    void aPressBesideTheNodesTellsOfNone() {
        SmallTree tree;
        tree.press(tree.pear());
        QTest::mouseClick(tree.view.viewport(), Qt::LeftButton, {}, {100, 190});
        QCOMPARE(tree.clicks.size(), 1);
    }

    void theSelectionIsThereWhenTheClickIsTold() {
        SmallTree tree;
        QStringList told;
        connect(&tree.view, &TreeView::NodeClick, &tree.view,
                [&] { told << tree.view.selectedCaption().value_or(u"none"_s); });
        tree.press(tree.apple());
        tree.press(tree.pear());
        tree.press(tree.pear());
        QCOMPARE(told, QStringList({u"Apple"_s, u"Pear"_s, u"Pear"_s}));
    }

    void theKeysTellOfTheNodeThatTheyChoose() {
        SmallTree tree;
        tree.press(tree.apple());
        QTest::keyClick(&tree.view, Qt::Key_Down);
        QCOMPARE(tree.clicks.size(), 2);
        QCOMPARE(tree.view.selectedCaption().value_or(QString()), u"Pear"_s);
    }

    void foldingAGroupByItsArrowTellsOfNothing() {
        SmallTree tree;
        const QRect caption = tree.view.visualRect(tree.fruit());
        QTest::mouseClick(tree.view.viewport(), Qt::LeftButton, {},
                          {caption.left() - 7, caption.center().y()});
        QVERIFY(!tree.view.isExpanded(tree.fruit()));
        QCOMPARE(tree.clicks.size(), 0);
    }

    void aCaptionIsNotEdited() {
        SmallTree tree;
        tree.press(tree.apple());
        QTest::keyClick(&tree.view, Qt::Key_F2);
        QTest::mouseDClick(tree.view.viewport(), Qt::LeftButton, {},
                           tree.view.visualRect(tree.apple()).center());
        QVERIFY(QApplication::focusWidget() == nullptr ||
                !QApplication::focusWidget()->inherits("QLineEdit"));
        QVERIFY(tree.view.findChild<QWidget*>(u"qt_editor"_s) == nullptr);
        QCOMPARE(tree.apple().data().toString(), u"Apple"_s);
    }
};

ORVALIS_TEST_MAIN_WITH(QApplication, TreeViewTest)
#include "tree_view_test.moc"
