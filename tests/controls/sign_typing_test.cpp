// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/format_range.h"
#include "controls/rich_text_box.h"
#include "support/test_main.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

using namespace orvalis;
using namespace Qt::StringLiterals;

class SignTypingTest : public QObject {
    Q_OBJECT
private slots:
    void lettersTypedInAFontOfSignsAreTheSigns_data();
    void lettersTypedInAFontOfSignsAreTheSigns();
    void signsAreSeen();
    void signsAreWrittenInTheirFontByTheirCode();
    void lettersOfOtherFontsStay();
    void blanksAndCodesWithoutASignStay();
    void whatIsTypedOverSignsIsSigns();
    void oneUndoTakesBackTheSignsThatWereTyped();
};

void SignTypingTest::lettersTypedInAFontOfSignsAreTheSigns_data() {
    QTest::addColumn<QString>("family");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("Greek") << u"Symbol"_s << u"abG"_s << u"\u03b1\u03b2\u0393"_s;
    QTest::newRow("whatever the case of its name") << u"symbol"_s << u"p"_s << u"\u03c0"_s;
    QTest::newRow("dingbats") << u"Wingdings"_s << u"J"_s << u"\u263a"_s;
}

void SignTypingTest::lettersTypedInAFontOfSignsAreTheSigns() {
    QFETCH(QString, family);
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    RichTextBox box;
    box.SetSelFontName(family);
    QTest::keyClicks(&box, typed);
    QCOMPARE(box.Text(), shown);
    QCOMPARE(box.SelStart(), int(shown.size()));
}

void SignTypingTest::signsAreSeen() {
    RichTextBox box;
    box.SetSelFontName(u"Symbol"_s);
    box.SetSelFontSize(40);
    QTest::keyClicks(&box, u"abSG"_s);
    const auto columnsWithInk = [&] {
        QImage image(400, 100, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        RangeFormatter(box).FormatPage({&painter, &image, QRectF(0, 0, 6000, 1500), 0, -1});
        painter.end();
        int columns = 0;
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y)
                if (image.pixel(x, y) != qRgb(255, 255, 255)) {
                    ++columns;
                    break;
                }
        return columns;
    };
    const int signs = columnsWithInk();
    box.SetText(u"\u03b1"_s);
    QVERIFY(columnsWithInk() > 5);
    QVERIFY(signs > 3 * columnsWithInk());
}

void SignTypingTest::signsAreWrittenInTheirFontByTheirCode() {
    RichTextBox box;
    box.SetSelFontName(u"Symbol"_s);
    QTest::keyClicks(&box, u"ab"_s);
    const QByteArray rtf = box.TextRTF();
    QVERIFY(rtf.contains("Symbol;}"));
    QVERIFY2(rtf.contains("\\'61\\'62"), rtf.constData());
    RichTextBox again;
    again.SetTextRTF(rtf);
    QCOMPARE(again.Text(), box.Text());
}

void SignTypingTest::lettersOfOtherFontsStay() {
    RichTextBox box;
    box.SetSelFontName(u"Arial"_s);
    QTest::keyClicks(&box, u"abc"_s);
    QCOMPARE(box.Text(), u"abc"_s);
}

void SignTypingTest::blanksAndCodesWithoutASignStay() {
    RichTextBox box;
    box.SetSelFontName(u"Symbol"_s);
    QTest::keyClicks(&box, u"a b"_s);
    QKeyEvent letter(QEvent::KeyPress, 0x0416, Qt::NoModifier, u"\u0436"_s);
    QApplication::sendEvent(&box, &letter);
    QCOMPARE(box.Text(), u"\u03b1 \u03b2\u0436"_s);
}

void SignTypingTest::whatIsTypedOverSignsIsSigns() {
    RichTextBox box;
    box.SetSelFontName(u"Symbol"_s);
    QTest::keyClicks(&box, u"ab"_s);
    box.SetSelStart(0);
    box.SetSelLength(1);
    QTest::keyClicks(&box, u"d"_s);
    QCOMPARE(box.Text(), u"\u03b4\u03b2"_s);
}

void SignTypingTest::oneUndoTakesBackTheSignsThatWereTyped() {
    RichTextBox box;
    box.SetSelFontName(u"Symbol"_s);
    QTest::keyClicks(&box, u"abc"_s);
    QCOMPARE(box.UndoType(), UndoKind::Typing);
    box.Undo();
    QCOMPARE(box.Text(), QString());
}

ORVALIS_TEST_MAIN_WITH(QApplication, SignTypingTest)
#include "sign_typing_test.moc"
