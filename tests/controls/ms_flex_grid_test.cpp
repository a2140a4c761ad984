// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/ms_flex_grid.h"

#include "runtime/failure.h"
#include "support/test_main.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>

#include <algorithm>

using namespace orvalis;
using namespace Qt::StringLiterals;

class MSFlexGridTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void aClickMakesItsCellCurrent_data();
    void aClickMakesItsCellCurrent();
    void aClickBelowTheRowsChangesNothing();
    void arrowKeysMoveTheCurrentCell();
    void theViewFollowsTheCurrentCellSetByCode();
    void aHiddenGridCatchesUpWhenItIsShown();
    void removingRowsLeavesTheCurrentRowToTheGridsRule();
    void aResetLeavesTheCurrentCellWhereTheLoaderPutIt();
    void printableKeysAreTold_data();
    void printableKeysAreTold();
    void otherKeysAreNotTold_data();
    void otherKeysAreNotTold();
    void textOfAnInputMethodIsTold();
    void anInputMethodIsInvitedWithTheFocus();
    void typingNeitherSearchesNorOpensAnEditor();
    void tabLeavesTheGrid();
    void aRightClickOpensNoMenu();
    void coloursArePaintedPerCell();
    void aLineLiesOnItsCellsEdgeAtEveryScale_data();
    void aLineLiesOnItsCellsEdgeAtEveryScale();
    void theCurrentCellIsFramedWhileTheGridHasTheFocus();
    void linesBetweenCellsAreSage();
    void aLineBreakIsShownAsABlank();
    void columnWidthsAreTwips();
    void aSingleColumnIsNoWiderThanItsRoom();
    void aColumnOutsideHasNoWidth();

private:
    QPoint middleOf(int row) const {
        return m_grid->visualRect(m_grid->model()->index(row, 0)).center();
    }
    QColor pixel(const QPoint& at) const {
        return m_grid->viewport()->grab().toImage().pixelColor(at);
    }

    std::unique_ptr<MSFlexGrid> m_grid;
};

void MSFlexGridTest::init() {
    m_grid = std::make_unique<MSFlexGrid>();
    m_grid->resize(300, 200);
    for (const QString& text : {u"header"_s, u"body"_s, u"header 2"_s, u"body 2"_s})
        m_grid->AddItem(text);
    m_grid->setColWidth(0, 300 * 15);
    m_grid->show();
    m_grid->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_grid.get()));
    m_grid->setFocus();
}

void MSFlexGridTest::cleanup() {
    m_grid.reset();
}

void MSFlexGridTest::aClickMakesItsCellCurrent_data() {
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
}

void MSFlexGridTest::aClickMakesItsCellCurrent() {
    QFETCH(Qt::MouseButton, button);
    QTest::mouseClick(m_grid->viewport(), button, {}, middleOf(3));
    QCOMPARE(m_grid->Row(), 3);
    QCOMPARE(m_grid->Text(), u"header 2"_s);
}

void MSFlexGridTest::aClickBelowTheRowsChangesNothing() {
    m_grid->setRow(2);
    QTest::mouseClick(m_grid->viewport(), Qt::LeftButton, {},
                      QPoint(20, m_grid->viewport()->height() - 2));
    QCOMPARE(m_grid->Row(), 2);
}

void MSFlexGridTest::arrowKeysMoveTheCurrentCell() {
    m_grid->setRow(1);
    QTest::keyClick(m_grid.get(), Qt::Key_Down);
    QCOMPARE(m_grid->Row(), 2);
    QTest::keyClick(m_grid.get(), Qt::Key_Up);
    QTest::keyClick(m_grid.get(), Qt::Key_Up);
    QCOMPARE(m_grid->Row(), 0);
}

void MSFlexGridTest::theViewFollowsTheCurrentCellSetByCode() {
    m_grid->setRow(4);
    QCOMPARE(m_grid->currentIndex().row(), 4);
}

void MSFlexGridTest::aHiddenGridCatchesUpWhenItIsShown() {
    m_grid->hide();
    m_grid->setRow(3);
    m_grid->show();
    QCOMPARE(m_grid->currentIndex().row(), 3);
}

void MSFlexGridTest::removingRowsLeavesTheCurrentRowToTheGridsRule() {
    m_grid->setRow(2);
    m_grid->RemoveItem(2);
    QCOMPARE(m_grid->Row(), 2);
    QCOMPARE(m_grid->currentIndex().row(), 2);
    m_grid->RemoveItem(0);
    QCOMPARE(m_grid->Row(), 2);
    QCOMPARE(m_grid->currentIndex().row(), 2);
    m_grid->RemoveItem(0);
    QCOMPARE(m_grid->Row(), 1);
    QCOMPARE(m_grid->currentIndex().row(), 1);
}

void MSFlexGridTest::aResetLeavesTheCurrentCellWhereTheLoaderPutIt() {
    m_grid->setRow(4);
    {
        const GridModel::Batch batch(m_grid->grid());
        m_grid->setRows(1);
        m_grid->setRows(3);
        m_grid->setRow(2);
    }
    QCOMPARE(m_grid->Row(), 2);
    QCOMPARE(m_grid->currentIndex().row(), 2);
}

void MSFlexGridTest::printableKeysAreTold_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("held");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("told");
    const Qt::KeyboardModifiers none;
    QTest::newRow("letter") << int(Qt::Key_A) << none << u"a"_s << u"a"_s;
    QTest::newRow("capital") << int(Qt::Key_A) << Qt::KeyboardModifiers(Qt::ShiftModifier) << u"A"_s
                             << u"A"_s;
    QTest::newRow("blank") << int(Qt::Key_Space) << none << u" "_s << u" "_s;
    QTest::newRow("letter of another script") << int(Qt::Key_unknown) << none << u"ж"_s << u"ж"_s;
    QTest::newRow("beyond the first plane") << int(Qt::Key_unknown) << none << u"😀"_s << u"😀"_s;
    QTest::newRow("AltGr") << int(Qt::Key_At) << (Qt::ControlModifier | Qt::AltModifier) << u"@"_s
                           << u"@"_s;
    QTest::newRow("Return") << int(Qt::Key_Return) << none << u"\r"_s << u"\r"_s;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << Qt::KeyboardModifiers(Qt::KeypadModifier)
                           << u"\r"_s << u"\r"_s;
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << none << u"\b"_s << u"\b"_s;
}

void MSFlexGridTest::printableKeysAreTold() {
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, held);
    QFETCH(QString, text);
    QFETCH(QString, told);
    m_grid->setRow(2);
    QSignalSpy keys(m_grid.get(), &MSFlexGrid::KeyPress);
    QKeyEvent press(QEvent::KeyPress, key, held, text);
    QApplication::sendEvent(m_grid.get(), &press);
    QCOMPARE(keys.count(), 1);
    QCOMPARE(keys.first().first().toString(), told);
    QCOMPARE(m_grid->Row(), 2);
    QCOMPARE(m_grid->Text(), u"body"_s);
}

void MSFlexGridTest::otherKeysAreNotTold_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("held");
    QTest::addColumn<QString>("text");
    const Qt::KeyboardModifiers none;
    QTest::newRow("Escape") << int(Qt::Key_Escape) << none << u"\x1b"_s;
    QTest::newRow("F3") << int(Qt::Key_F3) << none << QString();
    QTest::newRow("Delete") << int(Qt::Key_Delete) << none << u"\x7f"_s;
    QTest::newRow("Control with a letter")
        << int(Qt::Key_C) << Qt::KeyboardModifiers(Qt::ControlModifier) << u"\x03"_s;
    QTest::newRow("Control with a digit")
        << int(Qt::Key_1) << Qt::KeyboardModifiers(Qt::ControlModifier) << u"1"_s;
    QTest::newRow("Meta with a letter")
        << int(Qt::Key_A) << Qt::KeyboardModifiers(Qt::MetaModifier) << u"a"_s;
    QTest::newRow("an arrow") << int(Qt::Key_Down) << none << QString();
    QTest::newRow("Shift alone") << int(Qt::Key_Shift) << Qt::KeyboardModifiers(Qt::ShiftModifier)
                                 << QString();
}

void MSFlexGridTest::otherKeysAreNotTold() {
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, held);
    QFETCH(QString, text);
    QSignalSpy keys(m_grid.get(), &MSFlexGrid::KeyPress);
    QKeyEvent press(QEvent::KeyPress, key, held, text);
    QApplication::sendEvent(m_grid.get(), &press);
    QCOMPARE(keys.count(), 0);
}

void MSFlexGridTest::textOfAnInputMethodIsTold() {
    QSignalSpy keys(m_grid.get(), &MSFlexGrid::KeyPress);
    QInputMethodEvent composing(u"に"_s, {});
    QApplication::sendEvent(m_grid.get(), &composing);
    QCOMPARE(keys.count(), 0);
    QInputMethodEvent done;
    done.setCommitString(u"日本"_s);
    QApplication::sendEvent(m_grid.get(), &done);
    QCOMPARE(keys.count(), 1);
    QCOMPARE(keys.first().first().toString(), u"日本"_s);
}

void MSFlexGridTest::anInputMethodIsInvitedWithTheFocus() {
    m_grid->clearFocus();
    m_grid->setFocus();
    QVERIFY(m_grid->testAttribute(Qt::WA_InputMethodEnabled));
    m_grid->setRow(2);
    QVERIFY(m_grid->testAttribute(Qt::WA_InputMethodEnabled));
    QInputMethodQueryEvent query(Qt::ImEnabled | Qt::ImCursorRectangle);
    QApplication::sendEvent(m_grid.get(), &query);
    QVERIFY(query.value(Qt::ImEnabled).toBool());
    QCOMPARE(query.value(Qt::ImCursorRectangle).toRect(),
             m_grid->visualRect(m_grid->currentIndex()));
}

void MSFlexGridTest::typingNeitherSearchesNorOpensAnEditor() {
    m_grid->setRow(0);
    QTest::keyClick(m_grid.get(), Qt::Key_H);
    QCOMPARE(m_grid->Row(), 0);
    m_grid->keyboardSearch(u"body"_s);
    QCOMPARE(m_grid->Row(), 0);
    QTest::keyClick(m_grid.get(), Qt::Key_F2);
    QTest::mouseDClick(m_grid->viewport(), Qt::LeftButton, {}, middleOf(1));
    QVERIFY(!m_grid->isPersistentEditorOpen(m_grid->currentIndex()));
    QVERIFY(m_grid->viewport()->findChildren<QWidget*>().isEmpty());
}

void MSFlexGridTest::tabLeavesTheGrid() {
    m_grid->setRow(1);
    QTest::keyClick(m_grid.get(), Qt::Key_Tab);
    QCOMPARE(m_grid->Row(), 1);
}

void MSFlexGridTest::aRightClickOpensNoMenu() {
    QContextMenuEvent asked(QContextMenuEvent::Mouse, middleOf(1),
                            m_grid->viewport()->mapToGlobal(middleOf(1)));
    asked.ignore();
    QApplication::sendEvent(m_grid->viewport(), &asked);
    QVERIFY(!QApplication::activePopupWidget());
    QVERIFY(m_grid->findChildren<QMenu*>().isEmpty());
}

void MSFlexGridTest::coloursArePaintedPerCell() {
    m_grid->setTextMatrix(1, 0, QString());
    m_grid->setTextMatrix(2, 0, QString());
    m_grid->setRow(1);
    m_grid->setCellBackColor(255);
    m_grid->setRow(0);
    QCOMPARE(pixel(middleOf(1)), QColor(Qt::red));
    QCOMPARE(pixel(middleOf(2)), QColor(Qt::white));
    m_grid->setRow(2);
    m_grid->setText(QString(40, u'█'));
    m_grid->setCellForeColor(0xFF0000);
    m_grid->setRow(0);
    QCOMPARE(pixel(middleOf(2)), QColor(Qt::blue));
}

void MSFlexGridTest::aLineLiesOnItsCellsEdgeAtEveryScale_data() {
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 1.125, 1.25, 1.375, 1.5, 1.75, 2.0, 2.5})
        QTest::addRow("%g", ratio) << ratio;
}

void MSFlexGridTest::aLineLiesOnItsCellsEdgeAtEveryScale() {
    QFETCH(qreal, ratio);
    const QRgb line = qRgb(0xB0, 0xC8, 0xA0);
    const QRgb filled = qRgb(0xFF, 0, 0);
    m_grid->setRows(9);
    for (int row = 0; row < 9; ++row) {
        m_grid->setTextMatrix(row, 0, {});
        m_grid->setRow(row);
        m_grid->setCellBackColor(row % 2 == 1 ? 255 : GridModel::White);
    }
    m_grid->clearFocus();
    QWidget& cells = *m_grid->viewport();
    QImage image((QSizeF(cells.size()) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    cells.render(&image);
    // Downwards each colour gives way to the line, and each line to the next row's colour.
    QList<QRgb> bands;
    for (int y = 0; y < image.height(); ++y)
        if (const QRgb pixel = image.pixel(image.width() / 2, y);
            bands.isEmpty() || bands.last() != pixel)
            bands << pixel;
    QList<QRgb> expected;
    for (int row = 0; row < 9; ++row)
        expected << (row % 2 == 1 ? filled : qRgb(255, 255, 255)) << line;
    QCOMPARE(bands.first(expected.size()), expected);
    // A line is as many whole pixels thick as fit into one of the window's own.
    const int thick = std::max(1, static_cast<int>(ratio));
    int run = 0;
    for (int y = 0; y < image.height(); ++y) {
        if (image.pixel(image.width() / 2, y) == line) {
            ++run;
            continue;
        }
        if (run > 0)
            QCOMPARE(run, thick);
        run = 0;
    }
}

void MSFlexGridTest::theCurrentCellIsFramedWhileTheGridHasTheFocus() {
    m_grid->setRow(2);
    const QPoint edge = m_grid->visualRect(m_grid->currentIndex()).topLeft() + QPoint(1, 1);
    QVERIFY(pixel(edge) != QColor(Qt::white));
    m_grid->clearFocus();
    QCOMPARE(pixel(edge), QColor(Qt::white));
}

void MSFlexGridTest::linesBetweenCellsAreSage() {
    m_grid->clearFocus();
    const QRect cell = m_grid->visualRect(m_grid->model()->index(2, 0));
    QCOMPARE(pixel(QPoint(cell.center().x(), cell.bottom())), QColor(0xB0, 0xC8, 0xA0));
    QCOMPARE(pixel(QPoint(cell.right(), cell.center().y())), QColor(0xB0, 0xC8, 0xA0));
}

void MSFlexGridTest::aLineBreakIsShownAsABlank() {
    m_grid->clearFocus();
    m_grid->setTextMatrix(2, 0, u"a b"_s);
    const QImage plain = m_grid->viewport()->grab().toImage();
    m_grid->setTextMatrix(2, 0, u"a\nb"_s);
    QCOMPARE(m_grid->viewport()->grab().toImage(), plain);
    QCOMPARE(m_grid->TextMatrix(2, 0), u"a\nb"_s);
}

void MSFlexGridTest::columnWidthsAreTwips() {
    m_grid->setCols(2);
    m_grid->setColWidth(0, 1500);
    m_grid->setColWidth(1, 450);
    QCOMPARE(m_grid->ColWidth(0), 1500);
    QCOMPARE(m_grid->columnWidth(0), 100);
    QCOMPARE(m_grid->columnWidth(1), 30);
    QCOMPARE(MSFlexGrid().ColWidth(0), 960);
}

void MSFlexGridTest::aSingleColumnIsNoWiderThanItsRoom() {
    QCOMPARE(m_grid->ColWidth(0), 300 * 15);
    QCOMPARE(m_grid->columnWidth(0), m_grid->viewport()->width());
    for (int i = 0; i < 40; ++i)
        m_grid->AddItem(u"more"_s);
    QTRY_VERIFY(m_grid->verticalScrollBar()->isVisible());
    QTRY_COMPARE(m_grid->columnWidth(0), m_grid->viewport()->width());
    QVERIFY(!m_grid->horizontalScrollBar()->isVisible());
}

void MSFlexGridTest::aColumnOutsideHasNoWidth() {
    for (const int col : {-1, 1}) {
        const auto asked = firstFailure([&] { (void)m_grid->ColWidth(col); });
        QVERIFY(asked && asked->number() == ErrorNumber::InvalidRowValue);
        const auto set = firstFailure([&] { m_grid->setColWidth(col, 100); });
        QVERIFY(set && set->number() == ErrorNumber::InvalidRowValue);
    }
}

ORVALIS_TEST_MAIN_WITH(QApplication, MSFlexGridTest)
#include "ms_flex_grid_test.moc"
