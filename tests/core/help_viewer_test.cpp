// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/help_page_view.h"
#include "core/help_viewer.h"
#include "platform/chm_file.h"
#include "platform/shell.h"
#include "runtime/file_saving.h"
#include "runtime/files.h"
#include "skin/palette.h"
#include "support/test_main.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextTable>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

const QString HelpFile = QStringLiteral(ORVALIS_HELP_FILE);

class RecordingShell final : public Shell {
public:
    bool open(const QString& target) override {
        opened << target;
        return true;
    }
    void start(const QString&) override {}
    QStringList opened;
};

class RecordingDisplay final : public HelpDisplay {
public:
    WId HtmlHelpA(WId owner, const QString& path, int command, quint32 data) override {
        calls << u"%1 %2 %3 %4"_s.arg(owner).arg(path).arg(command).arg(data);
        return answer;
    }
    QStringList calls;
    WId answer = 7;
};

/// A viewer with the manual open.
struct Opened {
    Opened()
        : viewer(shell) {
        viewer.open(HelpFile);
        viewer.show();
    }
    template <class Control>
    Control* control(const QString& name) const {
        return viewer.findChild<Control*>(name);
    }
    HelpPageView* page() const { return control<HelpPageView>(u"helpPage"_s); }
    QString shown() const { return page()->source().path().mid(1); }
    QTreeWidgetItem* topic(const QString& name) const {
        const auto found = control<QTreeWidget>(u"helpContents"_s)
                               ->findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? nullptr : found.constFirst();
    }
    void choose(const QString& name) const {
        control<QTreeWidget>(u"helpContents"_s)->setCurrentItem(topic(name));
    }

    RecordingShell shell;
    HelpViewer viewer;
};

} // namespace

class HelpViewerTest : public QObject {
    Q_OBJECT
private slots:
    void aMissingHelpFileIsToldByTheResultAlone() {
        RecordingDisplay display;
        QVERIFY(!ShowHelpFile(display, u"/nowhere/orvalis.chm"_s, 3, 0));
        QVERIFY(display.calls.isEmpty());
    }
    void withoutAContextTheFirstPageIsAskedFor() {
        RecordingDisplay display;
        QVERIFY(ShowHelpFile(display, HelpFile, 3, 0));
        QCOMPARE(display.calls, QStringList{u"3 "_s + HelpFile + u" 0 0"_s});
    }
    void aContextIsAskedForByItsNumber() {
        RecordingDisplay display;
        QVERIFY(ShowHelpFile(display, HelpFile, 3, 42));
        QCOMPARE(display.calls, QStringList{u"3 "_s + HelpFile + u" 15 42"_s});
    }
    void aDisplayThatFailsIsToldByTheResult() {
        RecordingDisplay display;
        display.answer = 0;
        QVERIFY(!ShowHelpFile(display, HelpFile, 3, 0));
    }

    void theManualOpensOnItsFirstPageWithItsContents() {
        Opened help;
        QCOMPARE(help.shown(), u"first_steps.html"_s);
        QVERIFY(help.page()->toPlainText().startsWith(u"First steps"_s));
        auto* contents = help.control<QTreeWidget>(u"helpContents"_s);
        QVERIFY(contents->topLevelItemCount() >= 8);
        QCOMPARE(contents->currentItem()->text(0), u"First steps"_s);
        QCOMPARE(help.topic(u"The weekly planner"_s)->parent()->text(0), u"The Reminder panel"_s);
    }

    void aTopicOfTheContentsShowsItsPage() {
        Opened help;
        help.choose(u"Stickers"_s);
        QCOMPARE(help.shown(), u"stickers.html"_s);
        QVERIFY(help.page()->toPlainText().startsWith(u"Stickers"_s));
    }

    void aLinkLeadsToItsPageAndPlaceAndTheContentsFollow() {
        Opened help;
        emit help.page()->anchorClicked(QUrl(u"lists.html#clear"_s));
        QCOMPARE(help.shown(), u"lists.html"_s);
        QCOMPARE(help.page()->source().fragment(), u"clear"_s);
        QVERIFY(help.page()->verticalScrollBar()->value() > 0);
        QCOMPARE(help.control<QTreeWidget>(u"helpContents"_s)->currentItem()->text(0),
                 u"To-Do, Priority and Remind"_s);
    }

    void everyTopicAndEveryLinkLeadsSomewhere() {
        const auto file = ChmFile::open(HelpFile);
        QVERIFY(file != nullptr);
        static const QRegularExpression links(u"(?:href|src)=\"([^\"]+)\""_s);
        int followed = 0;
        for (const QString& page : file->files()) {
            if (!page.endsWith(u".html"_s))
                continue;
            const QString html = QString::fromUtf8(file->read(page));
            for (auto match = links.globalMatch(html); match.hasNext();) {
                const QString link = match.next().captured(1);
                const QString target = link.section(u'#', 0, 0);
                QVERIFY2(file->files().contains(target), qPrintable(page + u": "_s + link));
                if (const QString anchor = link.section(u'#', 1); !anchor.isEmpty())
                    QVERIFY2(file->read(target).contains(u"name=\"%1\""_s.arg(anchor).toUtf8()),
                             qPrintable(page + u": "_s + link));
                ++followed;
            }
        }
        QVERIFY(followed > 20);
        for (const ChmTopic& topic : file->contents())
            QVERIFY2(file->files().contains(topic.page), qPrintable(topic.name));
    }

    void theWindowsThatAPageTellsOfArePicturedOnIt_data() {
        QTest::addColumn<QString>("page");
        for (const auto* page : {"main_window", "reminder", "stickers", "alarm", "tray", "options"})
            QTest::newRow(page) << QString::fromLatin1(page) + u".html"_s;
    }
    void theWindowsThatAPageTellsOfArePicturedOnIt() {
        QFETCH(QString, page);
        const auto file = ChmFile::open(HelpFile);
        const QList<Picture> pictures = picturesOf(*file, page);
        QVERIFY(!pictures.isEmpty());
        for (const Picture& picture : pictures) {
            const QImage drawn = QImage::fromData(file->read(picture.name), "PNG");
            QVERIFY2(!drawn.isNull(), qPrintable(picture.name));
            QCOMPARE(picture.size * 2, drawn.size());
            QVERIFY2(picture.words.size() > 10, "who cannot see it hears what it shows");
        }
    }

    void everyPictureStandsOnAPage() {
        const auto file = ChmFile::open(HelpFile);
        QStringList shown;
        for (const QString& page : file->files())
            for (const Picture& picture : picturesOf(*file, page))
                shown << picture.name;
        for (const QString& name : file->files())
            if (name.endsWith(u".png"_s))
                QVERIFY2(shown.contains(name), qPrintable(name));
    }

    void thePicturesOfAPageComeFromTheFileAndFitThePage() {
        Opened help;
        const auto file = ChmFile::open(HelpFile);
        for (const QString& page : file->files()) {
            const QList<Picture> pictures = picturesOf(*file, page);
            if (pictures.isEmpty())
                continue;
            help.page()->go(page);
            for (const Picture& picture : pictures) {
                const QUrl address = help.page()->source().resolved(QUrl(picture.name));
                const auto shown = help.page()
                                       ->document()
                                       ->resource(QTextDocument::ImageResource, address)
                                       .value<QImage>();
                QVERIFY2(!shown.isNull(), qPrintable(picture.name));
                QCOMPARE(shown.deviceIndependentSize().toSize(), picture.size);
            }
            // The one scroll bar makes room for the other once events are handled.
            QTRY_VERIFY2(help.page()->horizontalScrollBar()->maximum() == 0, qPrintable(page));
        }
    }

    void everyPageStandsInTheContents() {
        const auto file = ChmFile::open(HelpFile);
        QStringList listed;
        for (const ChmTopic& topic : file->contents())
            listed << topic.page;
        for (const QString& page : file->files())
            if (page.endsWith(u".html"_s))
                QVERIFY2(listed.contains(page), qPrintable(page));
    }

    void backForwardAndHomeMoveAmongThePages() {
        Opened help;
        auto* back = help.control<QToolButton>(u"helpBack"_s);
        auto* forward = help.control<QToolButton>(u"helpForward"_s);
        QVERIFY(!back->isEnabled() && !forward->isEnabled());
        help.choose(u"Stickers"_s);
        help.choose(u"Options"_s);
        QVERIFY(back->isEnabled());
        back->click();
        QCOMPARE(help.shown(), u"stickers.html"_s);
        QCOMPARE(help.control<QTreeWidget>(u"helpContents"_s)->currentItem()->text(0),
                 u"Stickers"_s);
        forward->click();
        QCOMPARE(help.shown(), u"options.html"_s);
        help.control<QToolButton>(u"helpHome"_s)->click();
        QCOMPARE(help.shown(), u"first_steps.html"_s);
    }

    void theWordsLookedForAreMarkedOnThePageAndInTheList() {
        Opened help;
        auto* search = help.control<QLineEdit>(u"helpSearch"_s);
        auto* findings = help.control<QListWidget>(u"helpFindings"_s);
        search->setText(u"recovered.rtf"_s);
        QVERIFY(findings->count() >= 2);
        int last = 0;
        for (int i = 0; i < findings->count(); ++i) {
            findings->setCurrentRow(i);
            const auto marks = help.page()->extraSelections();
            QVERIFY2(!marks.isEmpty(), qPrintable(help.shown()));
            for (const auto& mark : marks) {
                QCOMPARE(mark.cursor.selectedText().toLower(), u"recovered.rtf"_s);
                QVERIFY(mark.format.background().color() == QColor(skin::colour::Found));
            }
            // The first of them is in sight.
            QVERIFY2(help.page()->viewport()->rect().intersects(
                         help.page()->cursorRect(marks.constFirst().cursor)),
                     qPrintable(help.shown()));
            last = qMax(last, help.page()->verticalScrollBar()->value());
        }
        QVERIFY(last > 0);
        const QColor mark(skin::colour::Found);
        QVERIFY(contains(findings->viewport()->grab().toImage(), mark));

        // Two words are marked each, and on the next page too.
        search->setText(u"sticker sound"_s);
        help.choose(u"The alarm"_s);
        QStringList words;
        for (const auto& one : help.page()->extraSelections())
            words << one.cursor.selectedText().toLower();
        QVERIFY(words.contains(u"sticker"_s) && words.contains(u"sound"_s));
        search->clear();
        QVERIFY(help.page()->extraSelections().isEmpty());
    }

    void aNoteHasRoomAroundItsWords() {
        Opened help;
        const auto file = ChmFile::open(HelpFile);
        int notes = 0;
        for (const QString& page : file->files()) {
            if (!page.endsWith(u".html"_s))
                continue;
            const qsizetype written =
                QString::fromUtf8(file->read(page)).count(u"class=\"note\""_s);
            help.page()->go(page);
            qsizetype shown = 0;
            for (const QTextFrame* frame : help.page()->document()->rootFrame()->childFrames()) {
                const auto* table = qobject_cast<const QTextTable*>(frame);
                if (table == nullptr || table->rows() != 1 || table->columns() != 1)
                    continue;
                ++shown;
                const QTextTableCellFormat cell = table->cellAt(0, 0).format().toTableCellFormat();
                QVERIFY2(cell.leftPadding() >= 8 && cell.topPadding() >= 8 &&
                             cell.rightPadding() >= 8 && cell.bottomPadding() >= 8,
                         qPrintable(page));
                QVERIFY(table->format().background().color() == QColor(0xFFEEF4EA));
            }
            QVERIFY2(shown == written, qPrintable(page));
            notes += int(shown);
        }
        QVERIFY(notes >= 8);
    }

    void aSearchListsThePagesAndShowsTheOneChosen() {
        Opened help;
        auto* search = help.control<QLineEdit>(u"helpSearch"_s);
        auto* findings = help.control<QListWidget>(u"helpFindings"_s);
        QVERIFY(!findings->isVisible());
        search->setText(u"sticker"_s);
        QVERIFY(findings->isVisible());
        QVERIFY(findings->count() >= 3);
        QVERIFY(findings->item(0)->text().startsWith(u"Stickers\n"_s));
        findings->setCurrentRow(0);
        QCOMPARE(help.shown(), u"stickers.html"_s);
        search->setText(u"zebra"_s);
        QVERIFY(help.control<QLabel>(u"helpNothingFound"_s)->isVisible());
        search->clear();
        QVERIFY(help.control<QTreeWidget>(u"helpContents"_s)->isVisible());
    }

    void anAddressOutsideTheManualGoesToTheDesktop() {
        Opened help;
        emit help.page()->anchorClicked(QUrl(u"https://example.org/x"_s));
        QCOMPARE(help.shell.opened, QStringList{u"https://example.org/x"_s});
        QCOMPARE(help.shown(), u"first_steps.html"_s);
    }

    void aPageThatIsNotThereIsTold() {
        Opened help;
        emit help.page()->anchorClicked(QUrl(u"gone.html"_s));
        QVERIFY(help.page()->toPlainText().contains(u"gone.html"_s));
        help.control<QToolButton>(u"helpBack"_s)->click();
        QCOMPARE(help.shown(), u"first_steps.html"_s);
    }

    void aDamagedFileIsToldAndTheNextWholeOneOpens_data() {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray whole = readWhole(HelpFile);
        QTest::newRow("truncated") << whole.first(whole.size() / 2);
        QTest::newRow("not a chm") << QByteArray("A letter, and no help.");
        QTest::newRow("empty") << QByteArray();
    }
    void aDamagedFileIsToldAndTheNextWholeOneOpens() {
        QFETCH(QByteArray, bytes);
        QTemporaryDir folder;
        const QString path = folder.filePath(u"orvalis.chm"_s);
        saveWhole(path, bytes);
        RecordingShell shell;
        HelpWindow window(shell);
        QVERIFY(ShowHelpFile(window, path, 0, 0));
        auto* viewer = viewerOnShow();
        QVERIFY(viewer != nullptr);
        auto* page = viewer->findChild<HelpPageView*>();
        QVERIFY(page->toPlainText().contains(u"The help cannot be shown"_s));
        QCOMPARE(viewer->findChild<QTreeWidget*>()->topLevelItemCount(), 0);
        QVERIFY(!viewer->findChild<QLineEdit*>()->isEnabled());

        QVERIFY(ShowHelpFile(window, HelpFile, 0, 0));
        QCOMPARE(viewerOnShow(), viewer);
        QVERIFY(page->toPlainText().startsWith(u"First steps"_s));
    }

private:
    struct Picture {
        QString name;
        QString words;
        QSize size;
    };
    static QList<Picture> picturesOf(const ChmFile& file, const QString& page) {
        static const QRegularExpression pictures(
            uR"re(<img src="([^"]+)" width="(\d+)" height="(\d+)" alt="([^"]+)">)re"_s);
        QList<Picture> found;
        if (!page.endsWith(u".html"_s))
            return found;
        const QString html = QString::fromUtf8(file.read(page));
        for (auto match = pictures.globalMatch(html); match.hasNext();) {
            const auto picture = match.next();
            found.append({picture.captured(1), picture.captured(4),
                          QSize(picture.captured(2).toInt(), picture.captured(3).toInt())});
        }
        return found;
    }

    static bool contains(const QImage& image, const QColor& colour) {
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) == colour)
                    return true;
        return false;
    }

    static HelpViewer* viewerOnShow() {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* viewer = qobject_cast<HelpViewer*>(widget); viewer && viewer->isVisible())
                return viewer;
        return nullptr;
    }
};

ORVALIS_TEST_MAIN_WITH(QApplication, HelpViewerTest)
#include "help_viewer_test.moc"
