// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_text_box.h"
#include "support/test_main.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QRandomGenerator>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

/// The plain text, told off character by character from what the document holds.
QString slowText(const QTextDocument& document) {
    QString plain;
    for (int at = 0; at < document.characterCount() - 1; ++at) {
        const char16_t c = document.characterAt(at).unicode();
        if (c == QChar::ParagraphSeparator || c == QChar::LineSeparator)
            plain += u"\r\n"_s;
        else if (c > 0x2800 && c < 0x28FF)
            plain += QChar(c - 0x2800);
        else
            plain += c == QChar::ObjectReplacementCharacter ? QChar(u' ') : QChar(c);
    }
    return plain;
}

/// What the box ought to hold: a string, and a selection in it.
struct Model {
    QString text;
    int start = 0;
    int length = 0;

    void replace(const QString& with) {
        text.replace(start, length, with);
        start += int(with.size());
        length = 0;
    }
};

/// Does the same at random to a box and to a model of it.
class RandomUser {
public:
    explicit RandomUser(quint32 seed)
        : m_random(seed) {
        m_box.resize(200, 200);
        m_box.show(); // or nothing is laid out
    }

    void step() {
        m_before = m_model;
        m_last = int(m_random.bounded(20));
        switch (m_last) {
        case 0:
        case 1:
            moveTo(m_random.bounded(int(m_model.text.size()) + 1));
            break;
        case 2:
        case 3:
            select(m_random.bounded(20));
            break;
        case 4:
        case 5:
        case 6:
            insert(words());
            break;
        case 7: {
            const QString key(QChar(u'a' + m_random.bounded(26)));
            QTest::keyClicks(&m_box, key);
            m_model.replace(key);
            break;
        }
        case 8:
            if (!atBullet() || m_box.textCursor().block().length() > 1)
                m_model.replace(u"\r\n"_s); // an empty item would end its list
            QTest::keyClick(&m_box, Qt::Key_Return);
            break;
        case 9:
            backspace();
            break;
        case 10:
            m_box.SetSelRTF(QByteArrayLiteral("{\\rtf1 rich\\par {\\b text}\\line x\\par}"));
            m_model.replace(u"rich\r\ntext\r\nx"_s);
            break;
        case 11:
            find();
            break;
        case 12:
            cutAndPaste();
            break;
        case 13:
            m_box.SetSelBold(m_random.bounded(2) == 1);
            m_box.SetSelIndent(m_random.bounded(4) * 300);
            break;
        case 14:
            batch();
            break;
        case 15:
            if (m_random.bounded(10) == 0)
                setAll();
            else
                undoAndRedo();
            break;
        case 16:
            QTest::keyClick(&m_box, Qt::Key_Return, Qt::ShiftModifier);
            m_model.replace(u"\r\n"_s);
            break;
        case 17:
            pastePicture();
            break;
        case 18:
            m_box.SetSelAlignment(m_random.bounded(4));
            m_box.SetSelBullet(m_random.bounded(2) == 1);
            m_box.SetSelColor(m_random.bounded(2) == 1 ? 0x80000008 : 255);
            break;
        case 19:
            if (m_random.bounded(6) == 0)
                replaceByItself();
            else
                emptyBatch();
            break;
        }
    }

    /// The last step, for a failure's message.
    QString told() const {
        return u"operation %1 at %2, %3"_s.arg(m_last).arg(m_before.start).arg(m_before.length);
    }

    void compare() const {
        QCOMPARE(m_box.Text(), m_model.text);
        QCOMPARE(m_box.SelStart(), m_model.start);
        QCOMPARE(m_box.SelLength(), m_model.length);
        QCOMPARE(m_box.SelText(), m_model.text.mid(m_model.start, m_model.length));
        QCOMPARE(slowText(*m_box.document()), m_model.text);
        compareLayout();
    }

    /// What a second box makes of the document as RTF is the same text, and the same RTF again.
    void compareCopy() const {
        RichTextBox copy;
        copy.SetTextRTF(m_box.TextRTF());
        QCOMPARE(copy.Text(), m_model.text);
        QCOMPARE(copy.TextRTF(), m_box.TextRTF());
        RichTextBox inserted;
        inserted.SetSelRTF(m_box.TextRTF());
        QCOMPARE(inserted.Text(), m_model.text);
    }

private:
    /// Each paragraph's lines are lines of its present text.
    void compareLayout() const {
        const QTextDocument& document = *m_box.document();
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            document.documentLayout()->blockBoundingRect(block); // lays out up to here
            const QTextLayout& layout = *block.layout();
            int laidOut = 0;
            for (int line = 0; line < layout.lineCount(); ++line)
                laidOut += layout.lineAt(line).textLength();
            QCOMPARE(laidOut, block.length() - 1);
        }
    }

    QString words() {
        static const QString pieces[] = {u"a"_s,       u" word"_s, u"\r\n"_s,   u"\u0001"_s,
                                         u"\n"_s,      u"."_s,     u"\u00A0"_s, u"\r\n\r\n"_s,
                                         u"\u007Fx"_s, u"needle"_s};
        QString text;
        for (int i = m_random.bounded(4); i >= 0; --i)
            text += pieces[m_random.bounded(int(std::size(pieces)))];
        return text;
    }

    /// Between CR and LF nothing can stand.
    int allowed(int at) const {
        at = qMin(at, int(m_model.text.size()));
        return at > 0 && m_model.text.mid(at - 1, 2) == u"\r\n"_s ? at - 1 : at;
    }

    void moveTo(int at) {
        m_box.SetSelStart(at);
        m_model.start = allowed(at);
        m_model.length = 0;
    }

    void select(int length) {
        m_box.SetSelLength(length);
        m_model.length = allowed(m_model.start + length) - m_model.start;
    }

    void insert(const QString& text) {
        m_box.SetSelText(text);
        m_model.replace(text);
    }

    bool atBullet() const {
        return m_model.length == 0 && m_box.textCursor().atBlockStart() &&
               m_box.SelBullet() == true;
    }

    void backspace() {
        if (atBullet()) { // goes first
            QTest::keyClick(&m_box, Qt::Key_Backspace);
            return;
        }
        if (m_model.length == 0) {
            if (m_model.start == 0)
                return;
            const QStringView before = QStringView(m_model.text).left(m_model.start);
            const bool pair =
                before.endsWith(u"\r\n"_s) || (before.back().isLowSurrogate() && before.size() > 1);
            m_model.length = pair ? 2 : 1;
            m_model.start -= m_model.length;
        }
        m_model.replace(QString());
        QTest::keyClick(&m_box, Qt::Key_Backspace);
    }

    void find() {
        const int from = m_random.bounded(int(m_model.text.size()) + 1);
        const auto found = int(m_model.text.indexOf(u"needle"_s, from));
        QCOMPARE(m_box.Find(u"NEEDLE"_s, from), found);
        if (found >= 0) {
            m_model.start = found;
            m_model.length = 6;
        }
    }

    void cutAndPaste() {
        const QString taken = m_model.text.mid(m_model.start, m_model.length);
        if (taken.isEmpty())
            return;
        m_box.Cut();
        m_model.replace(QString());
        moveTo(m_random.bounded(int(m_model.text.size()) + 1));
        m_box.Paste();
        m_model.replace(taken);
    }

    void batch() {
        const RichTextBox::Batch batch(m_box);
        for (int i = m_random.bounded(5); i >= 0; --i) {
            moveTo(m_random.bounded(int(m_model.text.size()) + 1));
            select(m_random.bounded(6));
            insert(words());
        }
    }

    void pastePicture() {
        QImage picture(4, 3, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QApplication::clipboard()->setImage(picture);
        m_box.Paste();
        m_model.replace(u" "_s);
    }

    void replaceByItself() {
        m_box.SetTextRTF(m_box.TextRTF());
        m_model.start = 0;
        m_model.length = 0;
    }

    /// Whatever happens in it, nothing is changed.
    void emptyBatch() {
        const RichTextBox::Batch batch(m_box);
        moveTo(m_random.bounded(int(m_model.text.size()) + 1));
        insert(QString());
        m_box.SetSelRTF(QByteArrayLiteral("{\\rtf1}"));
        m_box.SetSelItalic(m_random.bounded(2) == 1);
    }

    void setAll() {
        m_model = {words() + words(), 0, 0};
        m_box.SetText(m_model.text);
    }

    void undoAndRedo() {
        if (!m_box.CanUndo())
            return;
        m_box.Undo();
        QCOMPARE(slowText(*m_box.document()), m_box.Text());
        QTest::keySequence(&m_box, QKeySequence::Redo);
        m_model.start = m_box.SelStart();
        m_model.length = m_box.SelLength();
    }

    QRandomGenerator m_random;
    RichTextBox m_box;
    Model m_model;
    Model m_before;
    int m_last = 0;
};

} // namespace

class RichTextBoxPropertyTest : public QObject {
    Q_OBJECT
private slots:
    void randomUseKeepsTextSelectionAndDocumentInStep_data();
    void randomUseKeepsTextSelectionAndDocumentInStep();
};

void RichTextBoxPropertyTest::randomUseKeepsTextSelectionAndDocumentInStep_data() {
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 60; ++seed)
        QTest::newRow(qPrintable(QString::number(seed))) << seed;
}

void RichTextBoxPropertyTest::randomUseKeepsTextSelectionAndDocumentInStep() {
    QFETCH(quint32, seed);
    RandomUser user(seed);
    for (int step = 0; step < 200; ++step) {
        user.step();
        user.compare();
        if (step % 20 == 19)
            user.compareCopy();
        if (QTest::currentTestFailed()) {
            qWarning("step %d: %s", step, qPrintable(user.told()));
            return;
        }
    }
}

ORVALIS_TEST_MAIN_WITH(QApplication, RichTextBoxPropertyTest)
#include "rich_text_box_property_test.moc"
