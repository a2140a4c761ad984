// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/notes_ground.h"

#include "notes/document_rules.h"
#include "rtf/room/layout_height.h"

#include <QAbstractTextDocumentLayout>
#include <QFileInfo>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int Bytes = 5'000'000;

struct Large {
    QByteArray rtf;
    QString text;
};

/// A file of that size in paragraphs that differ, each at most so long.
Large large(int halfPoints, int longest) {
    Large made{
        "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0\\fs" + QByteArray::number(halfPoints) + ' ', {}};
    for (int number = 0; made.rtf.size() < Bytes; ++number) {
        QByteArray paragraph = QByteArray::number(number);
        while (paragraph.size() < longest - 16)
            paragraph += ", words of it";
        made.rtf += paragraph + "\\par\n";
        if (number > 0)
            made.text += u"\r\n"_s;
        made.text += QString::fromLatin1(paragraph);
    }
    made.rtf += '}';
    return made;
}

} // namespace

class NotesLargeDocumentTest : public QObject {
    Q_OBJECT
private slots:
    void init() { m_ground = std::make_unique<NotesGround>(); }
    void cleanup() { m_ground.reset(); }
    void aRichTextOfFiveMegabytesIsShownAndSavedWhole_data();
    void aRichTextOfFiveMegabytesIsShownAndSavedWhole();

private:
    std::unique_ptr<NotesGround> m_ground;
};

void NotesLargeDocumentTest::aRichTextOfFiveMegabytesIsShownAndSavedWhole_data() {
    QTest::addColumn<int>("halfPoints");
    QTest::addColumn<int>("longest");
    QTest::newRow("of 12 points") << 24 << 200;
    QTest::newRow("of 8 points") << 16 << 200;
    QTest::newRow("in short paragraphs") << 24 << 30;
    QTest::newRow("in few paragraphs") << 24 << 1'000'000;
}

void NotesLargeDocumentTest::aRichTextOfFiveMegabytesIsShownAndSavedWhole() {
    QFETCH(int, halfPoints);
    QFETCH(int, longest);
    const Large file = large(halfPoints, longest);
    const QString path = m_ground->put(u"large.rtf"_s, file.rtf);
    m_ground->shown();
    m_ground->dialogs.answerOpen(path);
    m_ground->press(u"imgOpen"_s);
    QCOMPARE(m_ground->rt1a().Text().size(), file.text.size());
    QVERIFY(m_ground->rt1a().Text() == file.text);
    m_ground->press(u"Button1"_s);
    QVERIFY(m_ground->rt1().Text() == file.text);
    // Its layout ends.
    const double height = m_ground->rt1().document()->documentLayout()->documentSize().height();
    QVERIFY2(height > 0 && height < rtf::EndlessHeight, qPrintable(QString::number(height)));

    m_ground->boxes.expect(replaceQuestion(path), 1, Answer::Ok);
    m_ground->dialogs.answerSave(path);
    m_ground->press(u"imgSave"_s);
    RichTextBox again;
    again.files().LoadFile(path);
    QVERIFY(again.Text() == file.text);
    // Nothing was left out, so nothing is kept beside what was written over it.
    QVERIFY(!QFileInfo::exists(path + u".unreadable"_s));
}

ORVALIS_TEST_MAIN_WITH(QApplication, NotesLargeDocumentTest)
#include "notes_large_document_test.moc"
