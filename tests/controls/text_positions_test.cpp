// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/text_positions.h"
#include "support/test_main.h"

#include <QApplication>
#include <QRandomGenerator>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

/// A document and the positions that follow it.
struct Followed {
    QTextDocument document;
    TextPositions positions{document};

    Followed() {
        document.documentLayout(); // a document tells of changes only once it is laid out
        QObject::connect(&document, &QTextDocument::contentsChange, &document,
                         [this](int from, int removed, int added) {
                             positions.contentsChanged(from, removed, added);
                         });
    }
};

/// The plain text, told off character by character.
QString slowText(const QTextDocument& document) {
    QString plain;
    for (int at = 0; at < document.characterCount() - 1; ++at) {
        const QChar c = document.characterAt(at);
        if (c == QChar::ParagraphSeparator || c == QChar::LineSeparator)
            plain += u"\r\n"_s;
        else
            plain += c == QChar::ObjectReplacementCharacter ? u' ' : c;
    }
    return plain;
}

void compareAll(const Followed& followed) {
    const QString plain = slowText(followed.document);
    QCOMPARE(followed.positions.length(), int(plain.size()));
    QCOMPARE(followed.positions.text(), plain);
    int index = 0;
    for (int at = 0; at < followed.document.characterCount(); ++at) {
        QCOMPARE(followed.positions.indexOf(at), index);
        QCOMPARE(followed.positions.positionOf(index), at);
        const QChar c = followed.document.characterAt(at);
        const bool isBreak = c == QChar::ParagraphSeparator || c == QChar::LineSeparator;
        if (isBreak && index < plain.size())
            QCOMPARE(followed.positions.positionOf(index + 1), at);
        index += isBreak ? 2 : 1;
    }
}

QString randomText(QRandomGenerator& random) {
    static const QString pieces[] = {
        u"a"_s,      u"word "_s, u"\n"_s,         u"\u2028"_s,
        u"\u00A0"_s, u"\n\n"_s,  u"\U0001F600"_s, u"longer text of a line"_s};
    QString text;
    for (int i = random.bounded(4); i >= 0; --i)
        text += pieces[random.bounded(int(std::size(pieces)))];
    return text;
}

} // namespace

class TextPositionsTest : public QObject {
    Q_OBJECT
private slots:
    void anEmptyDocumentHasOnePlace();
    void breaksCountTwoAndPicturesOne();
    void positionsOutsideAreTheEnds();
    void betweenGivesTheTextOfAPart();
    void aReplacedDocumentIsFollowed();
    void randomEditsKeepPositionsAndTextInStep_data();
    void randomEditsKeepPositionsAndTextInStep();
    void aKeyInALargeTextRebuildsNothing();
};

void TextPositionsTest::anEmptyDocumentHasOnePlace() {
    const Followed followed;
    QCOMPARE(followed.positions.length(), 0);
    compareAll(followed);
}

void TextPositionsTest::breaksCountTwoAndPicturesOne() {
    Followed followed;
    QTextCursor cursor(&followed.document);
    cursor.insertText(u"a\nb\u2028c"_s);
    cursor.insertImage(QImage(2, 2, QImage::Format_RGB32));
    QCOMPARE(followed.positions.text(), u"a\r\nb\r\nc "_s);
    compareAll(followed);
}

void TextPositionsTest::positionsOutsideAreTheEnds() {
    Followed followed;
    QTextCursor(&followed.document).insertText(u"a\nb"_s);
    QCOMPARE(followed.positions.positionOf(-7), 0);
    QCOMPARE(followed.positions.positionOf(700), 3);
    QCOMPARE(followed.positions.indexOf(-7), 0);
    QCOMPARE(followed.positions.indexOf(700), 4);
}

void TextPositionsTest::betweenGivesTheTextOfAPart() {
    Followed followed;
    QTextCursor(&followed.document).insertText(u"one\ntwo\nthree"_s);
    QCOMPARE(followed.positions.between(2, 5), u"e\r\nt"_s);
    QCOMPARE(followed.positions.between(3, 4), u"\r\n"_s);
    QCOMPARE(followed.positions.between(4, 4), QString());
    QCOMPARE(followed.positions.between(5, 400), u"wo\r\nthree"_s);
}

void TextPositionsTest::aReplacedDocumentIsFollowed() {
    Followed followed;
    followed.document.setPlainText(u"one\ntwo\u2028three"_s);
    compareAll(followed);
    followed.document.setPlainText(u"\u2028\n\n"_s);
    compareAll(followed);
    followed.document.clear();
    compareAll(followed);
    followed.document.setHtml(u"<p>one<br>two</p><ul><li>three</li></ul>"_s);
    compareAll(followed);
}

void TextPositionsTest::randomEditsKeepPositionsAndTextInStep_data() {
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 20; ++seed)
        QTest::newRow(qPrintable(QString::number(seed))) << seed;
}

void TextPositionsTest::randomEditsKeepPositionsAndTextInStep() {
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    Followed followed;
    followed.positions.text();
    for (int step = 0; step < 150; ++step) {
        QTextCursor cursor(&followed.document);
        const int length = followed.document.characterCount();
        cursor.setPosition(random.bounded(length));
        switch (random.bounded(8)) {
        case 0:
        case 1:
        case 2:
            cursor.insertText(randomText(random));
            break;
        case 3:
            cursor.setPosition(random.bounded(length), QTextCursor::KeepAnchor);
            cursor.removeSelectedText();
            break;
        case 4:
            cursor.setPosition(random.bounded(length), QTextCursor::KeepAnchor);
            cursor.insertText(randomText(random));
            break;
        case 5: {
            QTextCharFormat format;
            format.setFontItalic(random.bounded(2) == 1);
            cursor.setPosition(random.bounded(length), QTextCursor::KeepAnchor);
            cursor.mergeCharFormat(format);
            break;
        }
        case 6:
            cursor.insertImage(QImage(2, 2, QImage::Format_RGB32));
            break;
        case 7:
            if (random.bounded(2) == 1)
                followed.document.undo();
            else
                followed.document.redo();
            break;
        }
        compareAll(followed);
        if (QTest::currentTestFailed())
            return;
    }
}

void TextPositionsTest::aKeyInALargeTextRebuildsNothing() {
    Followed followed;
    QTextCursor cursor(&followed.document);
    cursor.insertText(u"a line of some length to fill the text\n"_s.repeated(2000));
    const void* const before = followed.positions.text().constData();
    cursor.setPosition(40000);
    cursor.deleteChar();
    cursor.insertText(u"x"_s);
    QVERIFY(followed.positions.hasText());
    QCOMPARE(static_cast<const void*>(followed.positions.text().constData()), before);
    QCOMPARE(followed.positions.text(), slowText(followed.document));
}

ORVALIS_TEST_MAIN_WITH(QApplication, TextPositionsTest)
#include "text_positions_test.moc"
