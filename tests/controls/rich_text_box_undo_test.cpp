// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "selecting.h"
#include "support/test_main.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QSignalSpy>
#include <QTextDocument>

#include <functional>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

using Act = std::function<void(RichTextBox&)>;

/// Text for the clipboard that counts how often somebody asks what it is.
class CountedText final : public QMimeData {
public:
    explicit CountedText(int& asked)
        : m_asked(asked) {}

    bool hasFormat(const QString& name) const override {
        ++m_asked;
        return name == u"text/plain"_s;
    }
    QStringList formats() const override {
        ++m_asked;
        return {u"text/plain"_s};
    }

protected:
    QVariant retrieveData(const QString& name, QMetaType type) const override {
        ++m_asked;
        return name == u"text/plain"_s ? u"text"_s : QMimeData::retrieveData(name, type);
    }

private:
    int& m_asked;
};

} // namespace

class RichTextBoxUndoTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void typingBehindAnInsertionIsAStepOfItsOwn_data();
    void typingBehindAnInsertionIsAStepOfItsOwn();
    void typingBehindTypingGoesOnWithItsStep();
    void typingOverASelectionIsOneStep();
    void typingBehindAnUndoIsAStepOfItsOwn();
    void aReplaceIsOneStep();
    void aBatchOfReplacesIsOneStep();

    void settingUpTheBoxsFontLeavesNothingToUndo();
    void formatsOfAnEmptyBoxLeaveNothingToUndo_data();
    void formatsOfAnEmptyBoxLeaveNothingToUndo();
    void nobodyHearsOfSomethingToUndoMeanwhile();
    void formatsBehindTypingCanBeUndone();
    void anEmptiedBoxKeepsItsHistoryWhenAFormatIsSet();
    void settingTheTextLeavesUndoOffWhereItWasOff();
    void settingTheWholeContentDropsTheHistory();

    void whatCanBePastedIsAskedOnceForEachContent();
    void theClipboardsChangesAreTold();
};

void RichTextBoxUndoTest::init() {
    QApplication::clipboard()->clear();
}

void RichTextBoxUndoTest::typingBehindAnInsertionIsAStepOfItsOwn_data() {
    QTest::addColumn<Act>("insert");
    QTest::newRow("pasted text") << Act([](RichTextBox& box) {
        QApplication::clipboard()->setText(u"pasted"_s);
        box.Paste();
    });
    QTest::newRow("text set") << Act([](RichTextBox& box) { box.SetSelText(u"set"_s); });
    QTest::newRow("text set over a selection") << Act([](RichTextBox& box) {
        test::select(box, 1, 3);
        box.SetSelText(u"set"_s);
    });
    QTest::newRow("rich text set")
        << Act([](RichTextBox& box) { box.SetSelRTF(QByteArrayLiteral("{\\rtf1 rich}")); });
    QTest::newRow("a batch") << Act([](RichTextBox& box) {
        const RichTextBox::Batch batch(box);
        box.SetSelText(u"one "_s);
        box.SetSelText(u"two"_s);
    });
}

void RichTextBoxUndoTest::typingBehindAnInsertionIsAStepOfItsOwn() {
    QFETCH(Act, insert);
    RichTextBox box;
    box.SetText(u"text"_s);
    box.SetSelStart(4);
    insert(box);
    const QString inserted = box.Text();
    const UndoKind kind = box.UndoType();
    QVERIFY(kind != UndoKind::Typing);
    QTest::keyClicks(&box, u"typed"_s);
    QCOMPARE(box.UndoType(), UndoKind::Typing);
    QCOMPARE(box.Text().size(), inserted.size() + 5);
    box.Undo();
    QCOMPARE(box.Text(), inserted);
    QCOMPARE(box.UndoType(), kind);
    box.Undo();
    QCOMPARE(box.Text(), u"text"_s);
    QVERIFY(!box.CanUndo());
}

void RichTextBoxUndoTest::typingBehindTypingGoesOnWithItsStep() {
    RichTextBox box;
    QTest::keyClicks(&box, u"one step"_s);
    box.Undo();
    QCOMPARE(box.Text(), QString());
    QVERIFY(!box.CanUndo());
}

void RichTextBoxUndoTest::typingOverASelectionIsOneStep() {
    RichTextBox box;
    box.SetText(u"abcd"_s);
    test::select(box, 1, 2);
    QTest::keyClicks(&box, u"xyz"_s);
    QCOMPARE(box.Text(), u"axyzd"_s);
    QCOMPARE(box.UndoType(), UndoKind::Typing);
    box.Undo();
    QCOMPARE(box.Text(), u"abcd"_s);
    QVERIFY(!box.CanUndo());
}

void RichTextBoxUndoTest::typingBehindAnUndoIsAStepOfItsOwn() {
    RichTextBox box;
    box.SetSelText(u"set"_s);
    box.SetSelText(u" more"_s);
    box.Undo();
    box.SetSelStart(3);
    QTest::keyClicks(&box, u"ty"_s);
    box.Undo();
    QCOMPARE(box.Text(), u"set"_s);
}

void RichTextBoxUndoTest::aReplaceIsOneStep() {
    RichTextBox box;
    box.SetText(u"one two one"_s);
    QCOMPARE(box.Find(u"two"_s, 1), 4);
    box.SetSelText(u"three"_s);
    QCOMPARE(box.Find(u"one"_s, 5), 10);
    box.Undo();
    QCOMPARE(box.Text(), u"one two one"_s);
    QVERIFY(!box.CanUndo());
}

void RichTextBoxUndoTest::aBatchOfReplacesIsOneStep() {
    RichTextBox box;
    const QString text = u"an apple, a pear\u2028and a plum "_s.repeated(40);
    box.SetText(text);
    int hits = 0;
    {
        const RichTextBox::Batch batch(box);
        int at = 0;
        while ((at = box.Find(u"a"_s, at + 1)) >= 1) {
            box.SetSelText(hits % 2 ? u"<\u2028>"_s : u""_s);
            ++hits;
        }
    }
    QCOMPARE(hits, 40 * 6 - 1);
    QString expected = box.Text();
    QVERIFY(!expected.mid(1).contains(u'a'));
    QCOMPARE(expected.count(u"<\r\n>"_s), hits / 2);
    QVERIFY(box.CanUndo());
    box.Undo();
    QCOMPARE(box.Text(), QString(text).replace(u"\u2028"_s, u"\r\n"_s));
    QVERIFY(!box.CanUndo());
    QTest::keySequence(&box, QKeySequence::Redo);
    QCOMPARE(box.Text(), expected);
}

void RichTextBoxUndoTest::settingUpTheBoxsFontLeavesNothingToUndo() {
    for (const QString& text : {QString(), u"text"_s}) {
        RichTextBox box;
        box.SetText(text);
        box.SetFontName(u"Courier New"_s);
        box.SetFontSize(17);
        QVERIFY(!box.CanUndo());
        QCOMPARE(box.UndoType(), UndoKind::LastAction);
        QTest::keyClicks(&box, u"ab"_s);
        QCOMPARE(box.UndoType(), UndoKind::Typing);
        box.selectAll();
        QCOMPARE(box.SelFontName(), std::optional(u"Courier New"_s));
        QCOMPARE(box.SelFontSize(), std::optional<qreal>(17));
        box.Undo();
        QCOMPARE(box.Text(), text);
        QVERIFY(!box.CanUndo());
    }
}

void RichTextBoxUndoTest::formatsOfAnEmptyBoxLeaveNothingToUndo_data() {
    QTest::addColumn<Act>("set");
    QTest::newRow("font") << Act([](RichTextBox& box) {
        box.SetSelFontName(u"Courier New"_s);
        box.SetSelFontSize(17);
    });
    QTest::newRow("bold") << Act([](RichTextBox& box) { box.SetSelBold(true); });
    QTest::newRow("colour") << Act([](RichTextBox& box) {
        box.SetSelColor(255);
        box.SetSelColor(0x80000008);
    });
    QTest::newRow("alignment") << Act([](RichTextBox& box) { box.SetSelAlignment(2); });
    QTest::newRow("indent") << Act([](RichTextBox& box) { box.SetSelIndent(400); });
    QTest::newRow("bullet") << Act([](RichTextBox& box) { box.SetSelBullet(true); });
    QTest::newRow("many as one") << Act([](RichTextBox& box) {
        const RichTextBox::Batch batch(box);
        box.SetSelFontSize(17);
        box.SetSelBold(true);
        box.SetSelAlignment(1);
    });
}

void RichTextBoxUndoTest::formatsOfAnEmptyBoxLeaveNothingToUndo() {
    QFETCH(Act, set);
    RichTextBox box;
    set(box);
    QVERIFY(!box.CanUndo());
    QTest::keyClicks(&box, u"ab"_s);
    QCOMPARE(box.UndoType(), UndoKind::Typing);
    box.Undo();
    QCOMPARE(box.Text(), QString());
    QVERIFY(!box.CanUndo());
}

void RichTextBoxUndoTest::nobodyHearsOfSomethingToUndoMeanwhile() {
    RichTextBox box;
    bool undo = false;
    const auto look = [&] { undo = undo || box.CanUndo(); };
    connect(&box, &RichTextBox::Change, &box, look);
    connect(&box, &RichTextBox::SelChange, &box, look);
    box.SetFontSize(17);
    box.SetSelBold(true);
    box.SetSelAlignment(2);
    QVERIFY(!undo);
}

void RichTextBoxUndoTest::formatsBehindTypingCanBeUndone() {
    RichTextBox box;
    QTest::keyClicks(&box, u"ab"_s);
    box.SetFontSize(17);
    QCOMPARE(box.UndoType(), UndoKind::LastAction);
    box.Undo();
    QCOMPARE(box.UndoType(), UndoKind::Typing);
    QCOMPARE(box.Text(), u"ab"_s);
    box.selectAll();
    box.SetSelAlignment(2);
    box.Undo();
    QCOMPARE(box.SelAlignment(), std::optional(0));
    box.Undo();
    QCOMPARE(box.Text(), QString());
}

void RichTextBoxUndoTest::anEmptiedBoxKeepsItsHistoryWhenAFormatIsSet() {
    RichTextBox box;
    QTest::keyClicks(&box, u"ab"_s);
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_Delete);
    box.SetSelAlignment(2);
    QCOMPARE(box.UndoType(), UndoKind::LastAction);
    while (box.Text().isEmpty() && box.CanUndo())
        box.Undo();
    QCOMPARE(box.Text(), u"ab"_s);
    box.Undo(); // an undo to nothing leaves something to do again
    QVERIFY(box.document()->isRedoAvailable());
    box.SetSelAlignment(1);
    QVERIFY(box.CanUndo());
}

void RichTextBoxUndoTest::settingTheTextLeavesUndoOffWhereItWasOff() {
    RichTextBox box;
    box.setUndoRedoEnabled(false);
    box.SetText(u"text"_s);
    QVERIFY(!box.isUndoRedoEnabled());
    box.SetTextRTF(QByteArrayLiteral("{\\rtf1 rich}"));
    QVERIFY(!box.isUndoRedoEnabled());
    QTest::keyClicks(&box, u"typed"_s);
    QVERIFY(!box.CanUndo());
    box.setUndoRedoEnabled(true);
    box.SetText(u"text"_s);
    QVERIFY(box.isUndoRedoEnabled());
}

void RichTextBoxUndoTest::settingTheWholeContentDropsTheHistory() {
    RichTextBox box;
    for (const Act& set :
         {Act([](RichTextBox& b) { b.SetText(u"new"_s); }),
          Act([](RichTextBox& b) { b.SetText(QString()); }),
          Act([](RichTextBox& b) { b.SetTextRTF(QByteArrayLiteral("{\\rtf1 new}")); })}) {
        QTest::keyClicks(&box, u"abc"_s);
        QVERIFY(box.CanUndo());
        set(box);
        QVERIFY(!box.CanUndo());
        QCOMPARE(box.UndoType(), UndoKind::LastAction);
    }
}

void RichTextBoxUndoTest::whatCanBePastedIsAskedOnceForEachContent() {
    RichTextBox box;
    int asked = 0;
    QApplication::clipboard()->setMimeData(new CountedText(asked));
    asked = 0;
    QVERIFY(box.CanPaste());
    QVERIFY(asked > 0);
    asked = 0;
    QTest::keyClicks(&box, u"keys"_s);
    QVERIFY(box.CanPaste());
    QCOMPARE(asked, 0);
    box.setReadOnly(true);
    QVERIFY(!box.CanPaste());
    box.setReadOnly(false);
    QVERIFY(box.CanPaste());
    QApplication::clipboard()->clear();
    QVERIFY(!box.CanPaste());
}

void RichTextBoxUndoTest::theClipboardsChangesAreTold() {
    RichTextBox box;
    QSignalSpy changes(&box, &RichTextBox::CanPasteChanged);
    bool offered = false;
    connect(&box, &RichTextBox::CanPasteChanged, &box, [&] { offered = box.CanPaste(); });
    QApplication::clipboard()->setText(u"text"_s);
    QVERIFY(changes.count() > 0);
    QVERIFY(offered);
    QApplication::clipboard()->clear();
    QVERIFY(!offered);
}

ORVALIS_TEST_MAIN_WITH(QApplication, RichTextBoxUndoTest)
#include "rich_text_box_undo_test.moc"
