// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/progress_bar.h"
#include "notes/notes_ground.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>

#include <algorithm>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

/// Longer than a repetition of the bar's painting, so that each word of the work paints it.
constexpr int Step = 100; // milliseconds

QByteArray richText(int lines) {
    QByteArray rtf = "{\\rtf1\\ansi ";
    for (int line = 0; line < lines; ++line)
        rtf += "Line " + QByteArray::number(line) + " of a {\\b long} note.\\par\n";
    return rtf + '}';
}

/// Watches one command of the panel while it works.
class Watch final : public QObject {
public:
    explicit Watch(NotesGround& ground)
        : m_ground(ground) {
        qApp->installEventFilter(this);
    }
    ~Watch() override { qApp->removeEventFilter(this); }

    int left = 0;                    ///< paintings of the left bar
    int right = 0;                   ///< paintings of the right one
    QList<QEvent::Type> fromOutside; ///< that reached anything

    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
        case QEvent::Paint:
            left += watched->objectName() == u"PB1"_s;
            right += watched->objectName() == u"PB2"_s;
            break;
        case QEvent::KeyPress:
        case QEvent::MouseButtonPress:
        case QEvent::Timer:
            fromOutside << event->type();
            break;
        default:
            break;
        }
        return false;
    }

    /// Presses a button while time goes on at each word of progress, and somebody types, clicks,
    /// and has set a timer.
    void press(const QString& name, int step = Step) {
        QTimer timer;
        timer.start(0);
        QWidget& page = m_ground.rt1();
        QApplication::postEvent(&page, new QKeyEvent(QEvent::KeyPress, Qt::Key_Z, {}, u"z"_s));
        QApplication::postEvent(&page,
                                new QMouseEvent(QEvent::MouseButtonPress, QPointF(2, 2),
                                                QPointF(2, 2), Qt::LeftButton, Qt::LeftButton, {}));
        m_ground.clock.whenAsked = [this, step] { m_ground.clock.advanceMilliseconds(step); };
        m_ground.press(name);
        m_ground.clock.whenAsked = {};
        QApplication::removePostedEvents(&page);
    }

private:
    NotesGround& m_ground;
};

} // namespace

class NotesProgressTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_ground.reset(); }

    void aLongRichTextIsOpenedUnderABar();
    void aLongTextIsOpenedUnderABar();
    void theTakingOverShowsABar();
    void aSaveAsRichTextShowsABar();
    void aSaveAsTextShowsABar();
    void printingShowsABar();
    void anotherWindowsPagesArePrintedWithoutABarHere();
    void aShortFileShowsNoBar();
    void aPageIsNotPaintedWhileItsDocumentIsInPieces();
    void theBarsLieOnNothingElse();
    void aLongDocumentIsLaidOutAfterItsCommand_data();
    void aLongDocumentIsLaidOutAfterItsCommand();

private:
    QString path(const QString& name) const { return m_ground->folder.file(name); }
    void openLong();

    std::unique_ptr<NotesGround> m_ground;
};

void NotesProgressTest::init() {
    m_ground = std::make_unique<NotesGround>();
    m_ground->shown();
    QVERIFY(QTest::qWaitForWindowExposed(&m_ground->panel()));
}

void NotesProgressTest::openLong() {
    m_ground->dialogs.answerOpen(m_ground->put(u"long.rtf"_s, richText(4000)));
    m_ground->press(u"imgOpen"_s);
}

void NotesProgressTest::aLongRichTextIsOpenedUnderABar() {
    Watch watch(*m_ground);
    m_ground->dialogs.answerOpen(m_ground->put(u"long.rtf"_s, richText(4000)));
    watch.press(u"imgOpen"_s);
    QVERIFY2(watch.right >= 5, qPrintable(QString::number(watch.right)));
    QCOMPARE(watch.left, 0);
    QCOMPARE(watch.fromOutside, QList<QEvent::Type>());
    QVERIFY(!m_ground->isUp(u"PB2"_s));
    QVERIFY(m_ground->rt1a().Text().endsWith(u"Line 3999 of a long note."_s));
}

void NotesProgressTest::aLongTextIsOpenedUnderABar() {
    Watch watch(*m_ground);
    m_ground->dialogs.answerOpen(
        m_ground->put(u"long.txt"_s, QByteArray("A line of a text.\r\n").repeated(30000)));
    watch.press(u"imgOpen"_s);
    QVERIFY2(watch.right >= 5, qPrintable(QString::number(watch.right)));
    QCOMPARE(watch.left, 0);
    QCOMPARE(watch.fromOutside, QList<QEvent::Type>());
}

void NotesProgressTest::theTakingOverShowsABar() {
    openLong();
    Watch watch(*m_ground);
    watch.press(u"Button1"_s);
    QVERIFY2(watch.left >= 20, qPrintable(QString::number(watch.left)));
    QCOMPARE(watch.fromOutside, QList<QEvent::Type>());
    QCOMPARE(m_ground->rt1().Text(), m_ground->rt1a().Text());
    QVERIFY(!m_ground->asksToLeave());
}

void NotesProgressTest::aSaveAsRichTextShowsABar() {
    openLong();
    m_ground->press(u"Button1"_s);
    Watch watch(*m_ground);
    m_ground->dialogs.answerSave(path(u"copy.rtf"_s));
    watch.press(u"imgSave"_s);
    QVERIFY2(watch.left >= 20, qPrintable(QString::number(watch.left)));
    QCOMPARE(watch.right, 0);
    QCOMPARE(watch.fromOutside, QList<QEvent::Type>());
    QVERIFY(m_ground->bytesOf(path(u"copy.rtf"_s)).contains("Line 3999"));
    QVERIFY(!m_ground->asksToLeave());
}

void NotesProgressTest::aSaveAsTextShowsABar() {
    openLong();
    m_ground->press(u"Button1"_s);
    Watch watch(*m_ground);
    m_ground->dialogs.answerSave(path(u"copy.txt"_s));
    watch.press(u"imgSave"_s);
    QVERIFY2(watch.left >= 10, qPrintable(QString::number(watch.left)));
    QCOMPARE(watch.fromOutside, QList<QEvent::Type>());
    QVERIFY(m_ground->bytesOf(path(u"copy.txt"_s)).endsWith("Line 3999 of a long note."));
}

void NotesProgressTest::printingShowsABar() {
    m_ground->rt1a().SetText(QString(u"A line.\r\n"_s).repeated(600));
    Watch watch(*m_ground);
    m_ground->dialogs.answerPrinter(true);
    watch.press(u"imgPrint"_s);
    const auto pages = m_ground->printer.pages.size();
    QVERIFY(pages > 5);
    QVERIFY2(watch.right >= int(pages), qPrintable(QString::number(watch.right)));
    QCOMPARE(watch.left, 0);
    QCOMPARE(watch.fromOutside, QList<QEvent::Type>());
}

void NotesProgressTest::anotherWindowsPagesArePrintedWithoutABarHere() {
    RichTextBox other;
    other.SetText(QString(u"A line.\r\n"_s).repeated(600));
    const Watch watch(*m_ground);
    m_ground->clock.whenAsked = [this] { m_ground->clock.advanceMilliseconds(Step); };
    m_ground->panel().PrintRTF(other, 1440, 1440, 1440, 1440);
    m_ground->clock.whenAsked = {};
    QCOMPARE(m_ground->printer.jobs, 1);
    QCOMPARE(watch.left + watch.right, 0);
}

void NotesProgressTest::aShortFileShowsNoBar() {
    constexpr int Short = 10; // milliseconds
    Watch watch(*m_ground);
    m_ground->dialogs.answerOpen(m_ground->put(u"a.rtf"_s, richText(3)));
    watch.press(u"imgOpen"_s, Short);
    watch.press(u"Button1"_s, Short);
    m_ground->dialogs.answerSave(path(u"b.rtf"_s));
    watch.press(u"imgSave"_s, Short);
    QCOMPARE(watch.left + watch.right, 0);
    QVERIFY(!m_ground->isUp(u"PB1"_s));
}

void NotesProgressTest::aPageIsNotPaintedWhileItsDocumentIsInPieces() {
    class Paintings final : public QObject {
    public:
        int count = 0;
        bool eventFilter(QObject*, QEvent* event) override {
            count += event->type() == QEvent::Paint;
            return false;
        }
    };
    Paintings page;
    m_ground->rt1a().viewport()->installEventFilter(&page);
    m_ground->dialogs.answerOpen(m_ground->put(u"long.rtf"_s, richText(4000)));
    int atFirstWord = -1;
    m_ground->clock.whenAsked = [&] {
        m_ground->clock.advanceMilliseconds(Step);
        if (atFirstWord < 0)
            atFirstWord = page.count;
        else
            m_ground->rt1a().viewport()->update();
    };
    m_ground->press(u"imgOpen"_s);
    m_ground->clock.whenAsked = {};
    QCOMPARE(page.count, atFirstWord);
    QTRY_VERIFY(page.count > atFirstWord);
}

void NotesProgressTest::theBarsLieOnNothingElse() {
    m_ground->press(u"Toolbar2(9)"_s); // the left page covers both
    m_ground->press(u"Toolbar2(7)"_s); // the find frame is up
    for (const QString& name : {u"PB1"_s, u"PB2"_s}) {
        const auto& bar = m_ground->control<ProgressBar>(name);
        QVERIFY(m_ground->panel().rect().contains(bar.geometry()));
        for (const QWidget* other :
             m_ground->panel().findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            const bool behind = other->geometry().contains(m_ground->panel().rect());
            if (other == &bar || behind || other->isHidden() || other->isWindow())
                continue;
            QVERIFY2(!other->geometry().intersects(bar.geometry()),
                     qPrintable(name + u" on "_s + other->objectName()));
        }
    }
}

void NotesProgressTest::aLongDocumentIsLaidOutAfterItsCommand_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("rich text") << u"long.rtf"_s << richText(4000);
    QTest::newRow("plain text") << u"long.txt"_s << QByteArray("A line.\r\n").repeated(4000);
}

/// The rest of it is laid out while nobody waits.
void NotesProgressTest::aLongDocumentIsLaidOutAfterItsCommand() {
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QTextDocument& document = *m_ground->rt1a().document();
    const qreal line = QFontMetricsF(document.defaultFont()).height();
    qreal highest = 0;
    connect(document.documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
            [&highest](const QSizeF& size) { highest = std::max(highest, size.height()); });
    m_ground->dialogs.answerOpen(m_ground->put(name, bytes));
    m_ground->press(u"imgOpen"_s);
    QVERIFY2(highest < 1000 * line, qPrintable(QString::number(highest)));
    QCOMPARE(document.lastBlock().layout()->lineCount(), 0);
    QTRY_VERIFY(highest > 3900 * line);
    disconnect(document.documentLayout(), nullptr, this, nullptr);
}

ORVALIS_TEST_MAIN_WITH(QApplication, NotesProgressTest)
#include "notes_progress_test.moc"
