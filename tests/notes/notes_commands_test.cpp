// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/notes_ground.h"

#include "runtime/failure.h"
#include "support/role_doubles.h"

#include <QBuffer>
#include <QClipboard>
#include <QDataStream>
#include <QDir>
#include <QMimeData>
#include <QWindow>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

const QString ImageFilter = u"Images (*.bmp;*.jpg;*.jpeg;*.gif;*.wmf)|"
                            "*.bmp;*.jpg;*.jpeg;*.gif;*.wmf|All Files (*.*)|*.*"_s;

QByteArray pictureBytes(const char* format, QSize size = QSize(6, 4)) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.save(&buffer, format))
        return {};
    return bytes;
}

bool clipboardIsEmpty() {
    const QMimeData* data = QApplication::clipboard()->mimeData();
    return data == nullptr || data->formats().isEmpty();
}

} // namespace

class NotesCommandsTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_ground.reset(); }

    // Mail
    void anUnsavedDocumentIsNotMailed();
    void aFileTitledUntitledIsNotMailed();
    void aNewDocumentSavedAsRichTextIsNotMailed();
    void theFileOfTheLastOpenIsMailedAsItLiesOnTheDisk();
    void aTextFileIsMailedAfterItsSave();
    void aFailureOfTheMailIsToldInItsOwnWords();

    // Insert Image
    void aPictureGoesOverTheClipboardToTheCaret();
    void aPictureReplacesTheSelection();
    void theDialogForPicturesHasItsOwnTitleAndFilter();
    void thePictureStaysOnTheClipboard();
    void aCancelLeavesTheClipboardEmpty();
    void allFormatsAreTaken_data();
    void allFormatsAreTaken();
    void aPictureIsTakenByWhatItHoldsNotByItsName();
    void whatIsNoPictureEndsSilently_data();
    void whatIsNoPictureEndsSilently();
    void aPictureOfAHundredMegapixelsIsPutInOrLeftOutWhole();
    void aPictureThatVanishesBehindTheDialogEndsSilently();
    void aFolderIsNoPicture();
    void oneUndoTakesThePictureAway();

    // Print
    void theRightPageIsPrintedNotTheEditor();
    void anEmptyRightPageIsNothingToPrint();
    void aRightPageWithOnlyFormatIsNothingToPrint();
    void aCancelledPrintDialogPrintsNothingAndSaysNothing();
    void thePrintDialogComesBeforeTheQuestionWhetherThereIsAnything();
    void withoutAPrinterNothingIsSaid();
    void printRtfTakesAnyBoxAndItsMargins();

    // Letters
    void theLettersOpenOverThePanel();

private:
    frmnotes2& panel() { return m_ground->panel(); }
    RichTextBox& rt1() { return m_ground->rt1(); }
    void open(const QString& name, const QByteArray& bytes) {
        m_ground->dialogs.answerOpen(m_ground->put(name, bytes));
        m_ground->press(u"imgOpen"_s);
    }
    void save(const QString& name) {
        m_ground->dialogs.answerSave(m_ground->folder.file(name));
        m_ground->press(u"imgSave"_s);
    }
    void insert(const QString& path) {
        m_ground->dialogs.answerOpen(path);
        m_ground->press(u"imgSlika"_s);
    }
    void expectSaveFirst() {
        m_ground->boxes.expect(u"Save document before you proceed."_s, 48, Answer::Ok,
                               u"Send Email"_s);
    }

    std::unique_ptr<NotesGround> m_ground;
};

void NotesCommandsTest::init() {
    QApplication::clipboard()->clear();
    m_ground = std::make_unique<NotesGround>();
    m_ground->shown();
}

// --- mail

void NotesCommandsTest::anUnsavedDocumentIsNotMailed() {
    expectSaveFirst();
    m_ground->press(u"imgMail"_s);
    QVERIFY(m_ground->mail.composed.empty());
}

void NotesCommandsTest::aFileTitledUntitledIsNotMailed() {
    open(u"Untitled-2.rtf"_s, "{\\rtf1 text}");
    m_ground->press(u"Button1"_s);
    QVERIFY(!rt1().Tag().isEmpty());
    expectSaveFirst();
    m_ground->press(u"imgMail"_s);
    QVERIFY(m_ground->mail.composed.empty());
}

void NotesCommandsTest::aNewDocumentSavedAsRichTextIsNotMailed() {
    m_ground->write(u"text"_s);
    save(u"a.rtf"_s);
    expectSaveFirst();
    m_ground->press(u"imgMail"_s);
}

void NotesCommandsTest::theFileOfTheLastOpenIsMailedAsItLiesOnTheDisk() {
    open(u"a.rtf"_s, "{\\rtf1 text}");
    m_ground->press(u"Button1"_s);
    m_ground->write(u" changed"_s);
    m_ground->press(u"imgMail"_s);
    QCOMPARE(m_ground->mail.composed.size(), std::size_t(1));
    const MailMessage message = m_ground->mail.composed.front();
    QCOMPARE(message.recipient, u"your_address"_s);
    QCOMPARE(message.text, QString());
    QCOMPARE(message.attachment, m_ground->folder.file(u"a.rtf"_s));
    QCOMPARE(m_ground->folder.read(u"a.rtf"_s), QByteArray("{\\rtf1 text}"));
}

void NotesCommandsTest::aTextFileIsMailedAfterItsSave() {
    m_ground->write(u"text"_s);
    save(u"a.txt"_s);
    m_ground->press(u"imgMail"_s);
    QCOMPARE(m_ground->mail.composed.front().attachment, m_ground->folder.file(u"a.txt"_s));
}

void NotesCommandsTest::aFailureOfTheMailIsToldInItsOwnWords() {
    m_ground->write(u"text"_s);
    save(u"a.txt"_s);
    m_ground->mail.failure = RuntimeError(ErrorNumber::FileNotFound, u"No mail program."_s);
    m_ground->boxes.expect(u"No mail program."_s, 16, Answer::Ok);
    m_ground->press(u"imgMail"_s);
}

// --- pictures

void NotesCommandsTest::aPictureGoesOverTheClipboardToTheCaret() {
    m_ground->write(u"onetwo"_s);
    m_ground->select(3, 0);
    m_ground->rt1a().setFocus();
    insert(m_ground->put(u"a.png"_s, pictureBytes("PNG")));
    QCOMPARE(rt1().Text(), u"one two"_s);
    QVERIFY(rt1().TextRTF().contains("\\pict"));
    QCOMPARE(rt1().SelStart(), 4);
    QCOMPARE(panel().focusWidget(), &rt1());
    QVERIFY(!m_ground->control<Image>(u"ImUbaci"_s).Picture().isNull());
    QVERIFY(!m_ground->isUp(u"ImUbaci"_s));
}

void NotesCommandsTest::aPictureReplacesTheSelection() {
    m_ground->write(u"one two"_s);
    m_ground->select(0, 3);
    insert(m_ground->put(u"a.png"_s, pictureBytes("PNG")));
    QCOMPARE(rt1().Text(), u"  two"_s);
}

void NotesCommandsTest::theDialogForPicturesHasItsOwnTitleAndFilter() {
    insert(m_ground->put(u"a.png"_s, pictureBytes("PNG")));
    const FileRequest request = m_ground->dialogs.opened.last();
    QCOMPARE(request.filter, ImageFilter);
    QCOMPARE(request.title, u"Insert Image"_s);
    QCOMPARE(request.defaultExtension, u"*.bmp"_s);
    m_ground->dialogs.answerOpen(std::nullopt);
    m_ground->press(u"imgOpen"_s);
    QCOMPARE(m_ground->dialogs.opened.last().title, QString());
}

void NotesCommandsTest::thePictureStaysOnTheClipboard() {
    insert(m_ground->put(u"a.bmp"_s, pictureBytes("BMP")));
    QCOMPARE(QApplication::clipboard()->image().size(), QSize(6, 4));
    QVERIFY(m_ground->isEnabled(u"Toolbar1(11)"_s));
}

void NotesCommandsTest::aCancelLeavesTheClipboardEmpty() {
    QApplication::clipboard()->setText(u"words"_s);
    m_ground->dialogs.whileOpen = [] { QVERIFY(clipboardIsEmpty()); };
    m_ground->dialogs.answerOpen(std::nullopt);
    m_ground->press(u"imgSlika"_s);
    QVERIFY(clipboardIsEmpty());
    QCOMPARE(rt1().Text(), QString());
}

void NotesCommandsTest::allFormatsAreTaken_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("bmp") << u"a.bmp"_s << pictureBytes("BMP");
    QTest::newRow("jpg") << u"a.jpg"_s << pictureBytes("JPG");
    QTest::newRow("jpeg") << u"a.jpeg"_s << pictureBytes("JPG");
    QTest::newRow("png") << u"a.png"_s << pictureBytes("PNG");
    QTest::newRow("gif") << u"a.gif"_s
                         << QByteArray::fromHex("474946383961010001008000000000ffffffff2c0000000001"
                                                "0001000002024401003b");
    // A bitmap inside a metafile, which needs no converter.
    QByteArray dib = pictureBytes("BMP").mid(14);
    QByteArray wmf;
    QDataStream stream(&wmf, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    const quint32 record = 3 + 11 + static_cast<quint32>(dib.size()) / 2;
    stream << quint32(0x9AC6CDD7) << quint16(0) << qint16(0) << qint16(0) << qint16(60)
           << qint16(40) << quint16(1440) << quint32(0) << quint16(0);
    stream << quint16(1) << quint16(9) << quint16(0x300) << quint32(9 + record + 3) << quint16(0)
           << record << quint16(0);
    stream << record << quint16(0x0F43) << quint32(0x00CC0020) << quint16(0) << qint16(4)
           << qint16(6) << qint16(0) << qint16(0) << qint16(40) << qint16(60) << qint16(0)
           << qint16(0);
    stream.writeRawData(dib.constData(), static_cast<int>(dib.size()));
    stream << quint32(3) << quint16(0);
    QTest::newRow("wmf") << u"a.wmf"_s << wmf;
}

void NotesCommandsTest::allFormatsAreTaken() {
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QVERIFY(!bytes.isEmpty());
    insert(m_ground->put(name, bytes));
    QCOMPARE(rt1().Text(), u" "_s);
    QVERIFY(rt1().TextRTF().contains("\\pict"));
}

void NotesCommandsTest::aPictureIsTakenByWhatItHoldsNotByItsName() {
    insert(m_ground->put(u"a.wmf"_s, pictureBytes("PNG")));
    QCOMPARE(rt1().Text(), u" "_s);
}

void NotesCommandsTest::whatIsNoPictureEndsSilently_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("words") << QByteArray("no picture");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("cut short") << pictureBytes("PNG").left(20);
    // A bitmap that claims 100000 by 100000 pixels.
    QByteArray claim = pictureBytes("BMP");
    claim.replace(18, 8, QByteArray::fromHex("a0860100a0860100"));
    QTest::newRow("ten thousand megapixels claimed") << claim;
}

void NotesCommandsTest::whatIsNoPictureEndsSilently() {
    QFETCH(QByteArray, bytes);
    insert(m_ground->put(u"a.bmp"_s, bytes));
    QCOMPARE(rt1().Text(), QString());
    QVERIFY(clipboardIsEmpty());
}

/// A real one, of one bit a pixel: small on the disk, large in the memory.
void NotesCommandsTest::aPictureOfAHundredMegapixelsIsPutInOrLeftOutWhole() {
    const QString file = m_ground->folder.file(u"huge.png"_s);
    {
        QImage huge(10000, 10000, QImage::Format_Mono);
        huge.fill(1);
        QVERIFY(huge.save(file, "PNG"));
    }
    m_ground->write(u"text"_s);
    insert(file);
    const bool isIn = rt1().Text() == u"text "_s;
    QVERIFY(isIn || rt1().Text() == u"text"_s);
    QCOMPARE(rt1().TextRTF().contains("\\pict"), isIn);
    m_ground->write(u" goes on"_s);
    QVERIFY(rt1().Text().endsWith(u" goes on"_s));
}

void NotesCommandsTest::aPictureThatVanishesBehindTheDialogEndsSilently() {
    const QString file = m_ground->put(u"a.png"_s, pictureBytes("PNG"));
    m_ground->dialogs.whileOpen = [&file] { QVERIFY(QFile::remove(file)); };
    insert(file);
    QCOMPARE(rt1().Text(), QString());
    QVERIFY(clipboardIsEmpty());
}

void NotesCommandsTest::aFolderIsNoPicture() {
    QVERIFY(QDir(m_ground->folder.file({})).mkpath(u"folder.png"_s));
    insert(m_ground->folder.file(u"folder.png"_s));
    QCOMPARE(rt1().Text(), QString());
    QVERIFY(clipboardIsEmpty());
}

void NotesCommandsTest::oneUndoTakesThePictureAway() {
    m_ground->write(u"text"_s);
    insert(m_ground->put(u"a.png"_s, pictureBytes("PNG")));
    panel().Undo();
    QCOMPARE(rt1().Text(), u"text"_s);
}

// --- print

void NotesCommandsTest::theRightPageIsPrintedNotTheEditor() {
    open(u"a.txt"_s, "right page");
    m_ground->write(QString(20000, u'M'));
    m_ground->rt1a().setFocus();
    m_ground->dialogs.answerPrinter(true);
    m_ground->press(u"imgPrint"_s);
    QCOMPARE(m_ground->printer.jobs, 1);
    QCOMPARE(m_ground->printer.pages.size(), std::size_t(1));
    QCOMPARE(panel().focusWidget(), &rt1());
}

void NotesCommandsTest::anEmptyRightPageIsNothingToPrint() {
    m_ground->write(u"left page"_s);
    m_ground->rt1a().setFocus();
    m_ground->dialogs.answerPrinter(true);
    m_ground->boxes.expect(u"Nothing to print."_s, 64, Answer::Ok);
    m_ground->press(u"imgPrint"_s);
    QVERIFY(m_ground->printer.calls.isEmpty());
    QCOMPARE(panel().focusWidget(), &rt1());
}

void NotesCommandsTest::aRightPageWithOnlyFormatIsNothingToPrint() {
    open(u"a.rtf"_s, "{\\rtf1 {\\fonttbl{\\f0 Arial;}}\\qc\\b\\fs40 }");
    m_ground->dialogs.answerPrinter(true);
    m_ground->boxes.expect(u"Nothing to print."_s, 64, Answer::Ok);
    m_ground->press(u"imgPrint"_s);
}

void NotesCommandsTest::aCancelledPrintDialogPrintsNothingAndSaysNothing() {
    open(u"a.txt"_s, "right page");
    m_ground->rt1a().setFocus();
    m_ground->dialogs.answerPrinter(false);
    m_ground->press(u"imgPrint"_s);
    QVERIFY(m_ground->printer.calls.isEmpty());
    QCOMPARE(panel().focusWidget(), &m_ground->rt1a());
}

void NotesCommandsTest::thePrintDialogComesBeforeTheQuestionWhetherThereIsAnything() {
    m_ground->dialogs.answerPrinter(false);
    m_ground->press(u"imgPrint"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void NotesCommandsTest::withoutAPrinterNothingIsSaid() {
    open(u"a.txt"_s, "right page");
    m_ground->printer.missing = true;
    m_ground->dialogs.answerPrinter(true);
    m_ground->press(u"imgPrint"_s);
    QCOMPARE(m_ground->printer.jobs, 0);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void NotesCommandsTest::printRtfTakesAnyBoxAndItsMargins() {
    RichTextBox box;
    box.SetText(u"text"_s);
    const auto inkLeft = [this] {
        const QImage& page = m_ground->printer.pages.back();
        for (int x = 0; x < page.width(); ++x)
            for (int y = 0; y < page.height(); ++y)
                if (page.pixelColor(x, y) != Qt::white)
                    return x;
        return -1;
    };
    panel().PrintRTF(box, 1440, 1440, 1440, 1440);
    const int inch = inkLeft();
    panel().PrintRTF(box, 2880, 1440, 1440, 1440);
    QCOMPARE(inkLeft(), inch + RecordingPrinter::Resolution);
    QCOMPARE(m_ground->printer.jobs, 2);
}

// --- letters

void NotesCommandsTest::theLettersOpenOverThePanel() {
    m_ground->press(u"imgFind"_s); // nobody makes them yet
    QStringList log;
    registerLogged<LettersWindow>(m_ground->program, u"frmpisma"_s, log);
    m_ground->press(u"imgFind"_s);
    QCOMPARE(log, (QStringList{u"load frmpisma"_s, u"show frmpisma"_s}));
    Form& letters = m_ground->program.windows.get<LettersWindow>().form();
    QVERIFY(!letters.isModal());
    QCOMPARE(letters.windowHandle()->transientParent(), panel().windowHandle());
    m_ground->program.windows.unload<LettersWindow>();
}

ORVALIS_TEST_MAIN_WITH(QApplication, NotesCommandsTest)
#include "notes_commands_test.moc"
