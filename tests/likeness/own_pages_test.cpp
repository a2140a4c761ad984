// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "likeness/own_pages.h"
#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis::likeness;

class OwnPagesTest : public QObject {
    Q_OBJECT
private slots:
    void whatThePagesDoNotHaveIsTakenOut_data();
    void whatThePagesDoNotHaveIsTakenOut();
};

void OwnPagesTest::whatThePagesDoNotHaveIsTakenOut_data() {
    QTest::addColumn<QByteArray>("rtf");
    QTest::addColumn<QByteArray>("shown");
    const auto row = [](const char* name, const QByteArray& rtf, const QByteArray& shown) {
        QTest::newRow(name) << rtf << shown;
    };
    const auto stays = [&](const char* name, const QByteArray& rtf) { row(name, rtf, rtf); };
    row("headers and footers", "{\\rtf1{\\header a{\\b b}}{\\footerf c}d}", "{\\rtf1{}{}d}");
    row("a header with braces that are text", "{\\rtf1{\\headerl \\}\\{}d}", "{\\rtf1{}d}");
    stays("words of headers", "{\\rtf1\\headery720\\footery720 d}");
    stays("styles", "{\\rtf1{\\stylesheet{\\s1\\fs40 a;}}\\pard\\s1 d}");
    row("a note and its mark", "{\\rtf1 a{\\super\\chftn {\\footnote\\chftn  b}} d}",
        "{\\rtf1 a{\\super{}} d}");
    row("a note behind its mark", "{\\rtf1 a{\\super\\chftn}{\\footnote b}d}",
        "{\\rtf1 a{\\super}{}d}");
    stays("a mark and no note", "{\\rtf1 a{\\super\\chftn } d}");
    row("a field that is filled anew", "{\\rtf1{\\field{\\*\\fldinst DATE}{\\fldrslt May}}}",
        "{\\rtf1{\\field{\\fldrslt May}}}");
    stays("a field that is not", "{\\rtf1{\\field{\\*\\fldinst HYPERLINK x}{\\fldrslt May}}}");
}

void OwnPagesTest::whatThePagesDoNotHaveIsTakenOut() {
    QFETCH(QByteArray, rtf);
    QTEST(asShown(rtf), "shown");
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, OwnPagesTest)
#include "own_pages_test.moc"
