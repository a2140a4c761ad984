// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "selecting.h"
#include "support/test_main.h"
#include "support/virtual_display.h"

#include <QApplication>
#include <QDrag>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextList>
#include <QThread>
#include <QTimer>
#include <QWindow>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

/// Selected text dragged by the pointer within one box.
class RichTextBoxDragTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_box.reset(); }
    void selectedTextMovesToWhereItIsDropped_data();
    void selectedTextMovesToWhereItIsDropped();
    void theMoveIsOneStepOfUndo();
    void theMoveIsToldOnce();
    void withControlHeldTheTextIsCopied();
    void textDroppedOnItselfStays();
    void formatsTravelAlong();
    void aWordDroppedOnAListItemJoinsIt();
    void aWordDraggedOutOfAListLeavesTheItem();
    void anItemMovesWithinItsList();
    void theTextFollowsWhateverIsDragged();
    void aReadOnlyBoxTakesNothing();

private:
    QPoint placeOf(int index) const;
    void drag(int start, int length, int to, Qt::KeyboardModifiers held = {});
    QStringList listOf() const;

    std::unique_ptr<RichTextBox> m_box;
};

void RichTextBoxDragTest::init() {
    m_box = std::make_unique<RichTextBox>();
    m_box->resize(500, 300);
    m_box->SetText(u"one two three four\r\nfive six seven"_s);
    m_box->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_box.get()));
    m_box->setFocus();
}

/// A point of the window between the two characters at an index of the text.
QPoint RichTextBoxDragTest::placeOf(int index) const {
    const QTextCursor shown = m_box->textCursor();
    m_box->SetSelStart(index);
    const QPoint place = m_box->cursorRect().center();
    m_box->setTextCursor(shown);
    return m_box->viewport()->mapTo(m_box.get(), place);
}

/// Selects, takes hold of the selection's beginning, and lets go ahead of the character given.
void RichTextBoxDragTest::drag(int start, int length, int to, Qt::KeyboardModifiers held) {
    // What was read of the text before is kept; it has to follow the drag.
    QVERIFY(!m_box->Text().isEmpty());
    const QPoint from = placeOf(start) + QPoint(3, 0);
    const QPoint target = placeOf(to);
    select(*m_box, start, length);
    QWindow* const window = m_box->windowHandle();
    // The drag has an event loop of its own, in which the pointer goes on.
    const auto loops = [] { return QThread::currentThread()->loopLevel(); };
    QTimer goesOn;
    connect(&goesOn, &QTimer::timeout, this, [&, before = loops()] {
        if (loops() == before)
            return;
        goesOn.stop();
        QTest::mouseMove(window, target + QPoint(0, 1));
        QTest::mouseMove(window, target);
        QTest::mouseRelease(window, Qt::LeftButton, held, target);
    });
    QTimer ends;
    connect(&ends, &QTimer::timeout, this, &QDrag::cancel);
    ends.start(20000);
    QTest::mousePress(window, Qt::LeftButton, held, from);
    goesOn.start(1);
    QTest::mouseMove(window, from + QPoint(2 * QApplication::startDragDistance(), 0));
    QVERIFY2(!goesOn.isActive(), "no drag began");
}

void RichTextBoxDragTest::selectedTextMovesToWhereItIsDropped_data() {
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("caret");
    QTest::newRow("ahead of itself")
        << 8 << 6 << 4 << u"one three two four\r\nfive six seven"_s << 10;
    QTest::newRow("behind itself")
        << 4 << 4 << 14 << u"one three two four\r\nfive six seven"_s << 14;
    QTest::newRow("to the line below")
        << 4 << 4 << 25 << u"one three four\r\nfive two six seven"_s << 25;
    QTest::newRow("to the line above")
        << 25 << 4 << 4 << u"one six two three four\r\nfive seven"_s << 8;
    QTest::newRow("to the very beginning")
        << 8 << 6 << 0 << u"three one two four\r\nfive six seven"_s << 6;
    QTest::newRow("over a line break")
        << 14 << 11 << 4 << u"one four\r\nfive two three six seven"_s << 15;
}

void RichTextBoxDragTest::selectedTextMovesToWhereItIsDropped() {
    QFETCH(int, start);
    QFETCH(int, length);
    QFETCH(int, to);
    QFETCH(QString, text);
    QFETCH(int, caret);
    drag(start, length, to);
    QCOMPARE(m_box->Text(), text);
    QCOMPARE(m_box->SelStart(), caret);
    QCOMPARE(m_box->SelLength(), 0);
}

void RichTextBoxDragTest::theMoveIsOneStepOfUndo() {
    const QString before = m_box->Text();
    QVERIFY(!m_box->CanUndo());
    for (const int to : {25, 0}) {
        drag(8, 6, to);
        const QString moved = m_box->Text();
        QVERIFY(moved != before);
        QCOMPARE(m_box->UndoType(), UndoKind::DragDrop);
        m_box->Undo();
        QCOMPARE(m_box->Text(), before);
        QVERIFY(!m_box->CanUndo());
        QTest::keySequence(m_box.get(), QKeySequence::Redo);
        QCOMPARE(m_box->Text(), moved);
        m_box->Undo();
    }
}

void RichTextBoxDragTest::theMoveIsToldOnce() {
    QSignalSpy changes(m_box.get(), &RichTextBox::Change);
    drag(8, 6, 0);
    QCOMPARE(changes.count(), 1);
}

void RichTextBoxDragTest::withControlHeldTheTextIsCopied() {
    drag(4, 4, 14, Qt::ControlModifier);
    QCOMPARE(m_box->Text(), u"one two three two four\r\nfive six seven"_s);
    m_box->Undo();
    QCOMPARE(m_box->Text(), u"one two three four\r\nfive six seven"_s);
    drag(4, 4, 6, Qt::ControlModifier);
    QCOMPARE(m_box->Text(), u"one twtwo o three four\r\nfive six seven"_s);
}

void RichTextBoxDragTest::textDroppedOnItselfStays() {
    for (const int to : {4, 6, 8}) {
        QSignalSpy changes(m_box.get(), &RichTextBox::Change);
        drag(4, 4, to);
        QCOMPARE(m_box->Text(), u"one two three four\r\nfive six seven"_s);
        QCOMPARE(changes.count(), 0);
        QVERIFY(!m_box->CanUndo());
        QCOMPARE(m_box->SelText(), u"two "_s);
    }
    drag(4, 4, 0);
    QCOMPARE(m_box->Text(), u"two one three four\r\nfive six seven"_s);
}

void RichTextBoxDragTest::formatsTravelAlong() {
    select(*m_box, 4, 3);
    m_box->SetSelBold(true);
    m_box->SetSelColor(255);
    drag(4, 4, 14);
    QCOMPARE(m_box->Text(), u"one three two four\r\nfive six seven"_s);
    select(*m_box, 10, 3);
    QCOMPARE(m_box->SelBold(), std::optional(true));
    QCOMPARE(m_box->SelColor(), std::optional<quint32>(255));
    select(*m_box, 0, 10);
    QCOMPARE(m_box->SelBold(), std::optional(false));
}

/// Each paragraph with a star ahead of it where it is an item; none where the box's own text is
/// another.
QStringList RichTextBoxDragTest::listOf() const {
    if (m_box->Text() != m_box->document()->toPlainText().replace(u"\n"_s, u"\r\n"_s))
        return {};
    QStringList lines;
    for (QTextBlock block = m_box->document()->begin(); block.isValid(); block = block.next())
        lines << (block.textList() != nullptr ? u"*"_s : QString()) + block.text();
    return lines;
}

void RichTextBoxDragTest::aWordDroppedOnAListItemJoinsIt() {
    m_box->SetText(u"one two three\r\nfirst item\r\nsecond item"_s);
    select(*m_box, 15, 23);
    m_box->SetSelBullet(true);
    drag(4, 4, 21);
    QCOMPARE(listOf(), (QStringList{u"one three"_s, u"*first two item"_s, u"*second item"_s}));
    m_box->Undo();
    QCOMPARE(listOf(), (QStringList{u"one two three"_s, u"*first item"_s, u"*second item"_s}));
}

void RichTextBoxDragTest::aWordDraggedOutOfAListLeavesTheItem() {
    m_box->SetText(u"one two three\r\nfirst item\r\nsecond item"_s);
    select(*m_box, 15, 23);
    m_box->SetSelBullet(true);
    drag(15, 6, 4);
    QCOMPARE(listOf(), (QStringList{u"one first two three"_s, u"*item"_s, u"*second item"_s}));
}

void RichTextBoxDragTest::anItemMovesWithinItsList() {
    m_box->SetText(u"first\r\nsecond\r\nthird\r\nbelow"_s);
    select(*m_box, 0, 20);
    m_box->SetSelBullet(true);
    drag(0, 7, 15);
    QCOMPARE(listOf(), (QStringList{u"*second"_s, u"*first"_s, u"*third"_s, u"below"_s}));
    drag(8, 7, 0);
    QCOMPARE(listOf(), (QStringList{u"*first"_s, u"*second"_s, u"*third"_s, u"below"_s}));
}

void RichTextBoxDragTest::theTextFollowsWhateverIsDragged() {
    // Every drag of a paragraph or of parts of two, from and to every place about two lists.
    const QString text = u"one\r\nfirst\r\nsecond\r\nplain\r\nthird\r\nfourth\r\nlast"_s;
    const QList<int> places{0, 5, 8, 12, 15, 20, 23, 27, 34, 36, 42};
    for (const int start : places) {
        for (const int end : places) {
            for (const int to : places) {
                if (end <= start || (to >= start && to <= end))
                    continue;
                m_box->SetText(text);
                select(*m_box, 5, 13);
                m_box->SetSelBullet(true);
                select(*m_box, 27, 13);
                m_box->SetSelBullet(true);
                drag(start, end - start, to);
                QVERIFY2(!listOf().isEmpty(),
                         qPrintable(u"%1 to %2 dropped at %3"_s.arg(start).arg(end).arg(to)));
            }
        }
    }
}

void RichTextBoxDragTest::aReadOnlyBoxTakesNothing() {
    m_box->setReadOnly(true);
    const QString before = m_box->Text();
    drag(8, 6, 0);
    QCOMPARE(m_box->Text(), before);
}

/// A drag needs a display: without one it ends before it has begun.
ORVALIS_TEST_MAIN(int argc, char** argv) {
    fixedGround();
    const VirtualDisplay display(800, 600);
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("DISPLAY", display.name());
    // There is no session on this display; the search for its bus would keep memory to the end.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    QApplication app(argc, argv);
    RichTextBoxDragTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "rich_text_box_drag_test.moc"
