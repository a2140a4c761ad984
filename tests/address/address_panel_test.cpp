// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// What the Address panel shows, and how it goes through the book.
#include "address/address_ground.h"

#include "support/pointer_events.h"

#include <QClipboard>
#include <QMimeData>
#include <QPainter>

#include <sys/stat.h>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

const QString NotFound =
    u"Data file address1.dat not found. Click on Add and create a new address data base."_s;

AddressRecord fullContact() {
    return {u"Ann"_s,
            u"Lee"_s,
            u"Sailing"_s,
            u"12 Quay\r\nFlat 3"_s,
            u"Hove"_s,
            u"BN3"_s,
            u"Sussex"_s,
            u"England"_s,
            u"UK"_s,
            u"0123"_s,
            u"0124"_s,
            u"a@b.org"_s,
            u"b.org"_s,
            u"one\r\n\r\ntwo"_s,
            {}};
}

} // namespace

class AddressPanelTest : public QObject {
    Q_OBJECT
private slots:
    void init() { m_ground = std::make_unique<AddressGround>(); }
    void cleanup() { m_ground.reset(); }

    void thePanelSaysWhatItIs();
    void thePicturesHaveTheirToolTips();
    void theFieldsBeginWithTheirDesignTexts();
    void theGroupsAreOfferedInTheirOrder();
    void whatIsHiddenStaysHidden();
    void aFirstRunTellsItOnceAndMakesAnEmptyFile();
    void theFirstRecordIsOnShowAfterTheLoad();
    void everyFieldIsShown();
    void anEmptyFieldSaysWhatItIsFor();
    void theLoadSortsInMemoryAndNotInTheFile();
    void aBookOfOneLoadsNoOptions();
    void stepsGoThroughTheBookAndWrapAround();
    void stepsInABookOfOneShowIt();
    void stepsInAnEmptyBookDoNothing();
    void aStepDropsWhatWasTyped();
    void aStepThatShowsAPictureForgetsTheChosenOne();
    void aPictureIsShownFromItsFile();
    void aPictureKeepsItsShape();
    void pictureFilesThatAreNoneShowTheDefault_data();
    void pictureFilesThatAreNoneShowTheDefault();
    void aHugePictureIsShown();
    void aFieldOfAMegabyteIsShownAndKept();
    void pastedWordsLoseTheirFormatAndTheirLines();
    void aLongLineShowsItsBeginning();
    void theLabelsLeadToTheOtherPanels();
    void thePanelIsDraggedByTheCardToo();

private:
    std::unique_ptr<AddressGround> m_ground;
};

void AddressPanelTest::thePanelSaysWhatItIs() {
    m_ground->open({});
    QCOMPARE(m_ground->panel().windowTitle(), u"Address"_s);
    QCOMPARE(m_ground->panel().objectName(), u"frmnotes3"_s);
    QCOMPARE(m_ground->control<Label>(u"lblRem"_s).Caption(), u"ADDRESS"_s);
    QCOMPARE(m_ground->panel().size(), QSize(702, 452));
    QCOMPARE(m_ground->control<Label>(u"Label13"_s).Caption(), u"Required"_s);
    QCOMPARE(m_ground->control<Label>(u"Label14"_s).Caption(), u"Required"_s);
    QCOMPARE(m_ground->control<Label>(u"Label15"_s).Caption(), u"Click on to insert picture"_s);
    QCOMPARE(m_ground->control<QGroupBox>(u"Frame2"_s).title(), u"Find"_s);
    QCOMPARE(m_ground->control<QCheckBox>(u"chCase"_s).text(), u"&Match Case"_s);
    QCOMPARE(m_ground->control<GGCommand>(u"cmdFind"_s).Caption(), u"Find"_s);
    QStringList captions;
    for (const Label* label : m_ground->panel().findChildren<Label*>())
        captions << label->Caption();
    for (const QString& words :
         {u"First"_s, u"Second"_s, u"Area"_s, u"Address"_s, u"Tel"_s, u"Fax"_s, u"Email"_s,
          u"Web"_s, u"NOTES"_s, u"Search by:"_s, u"Search for:"_s})
        QVERIFY2(captions.contains(words), qPrintable(words));
}

void AddressPanelTest::thePicturesHaveTheirToolTips() {
    m_ground->open({});
    const QMap<QString, QString> tips{{u"imgNew"_s, u"New Item"_s},
                                      {u"imgAdd"_s, u"Add Item"_s},
                                      {u"imgSave"_s, u"Save Changes"_s},
                                      {u"imgDel"_s, u"Delete Item"_s},
                                      {u"imgSort"_s, u"Sort Items"_s},
                                      {u"imgPrint"_s, u"Print Item(s)"_s},
                                      {u"imgBack"_s, u"Backup Address Data"_s},
                                      {u"imgEmail"_s, u"Send Email"_s},
                                      {u"imgNet"_s, u"Online"_s},
                                      {u"imgPhone"_s, u"Launch Dialer"_s},
                                      {u"Command2"_s, u"First"_s},
                                      {u"Command3"_s, u"Previous"_s},
                                      {u"Command4"_s, u"Next"_s},
                                      {u"Command5"_s, u"Last"_s}};
    for (const auto& [name, tip] : tips.asKeyValueRange()) {
        QCOMPARE(m_ground->image(name).toolTip(), tip);
        QCOMPARE(m_ground->image(name).accessibleName(), tip);
    }
    QCOMPARE(m_ground->line(u"Text1"_s).toolTip(), u"Required"_s);
    QCOMPARE(m_ground->line(u"Text2"_s).toolTip(), u"Required"_s);
}

void AddressPanelTest::theFieldsBeginWithTheirDesignTexts() {
    m_ground->open({});
    const QMap<QString, QString> texts{
        {u"Text1"_s, u"required"_s}, {u"Text2"_s, u"required"_s}, {u"Text4"_s, u"Town"_s},
        {u"Text5"_s, u"Pin"_s},      {u"Text6"_s, u"District"_s}, {u"Text7"_s, u"State"_s},
        {u"Text8"_s, u"Country"_s},  {u"Text9"_s, QString()},     {u"Text10"_s, QString()},
        {u"Text11"_s, QString()},    {u"Text12"_s, QString()}};
    for (const auto& [name, text] : texts.asKeyValueRange())
        QCOMPARE(m_ground->lineText(name), text);
    QCOMPARE(m_ground->combo(u"Combo1"_s).Text(), u"Friends"_s);
    QCOMPARE(m_ground->control<RichTextBox>(u"Text3"_s).Text(), QString());
    QCOMPARE(m_ground->control<RichTextBox>(u"Text13"_s).Text(), QString());
    QVERIFY(m_ground->showsDefaultPicture());
    QVERIFY(m_ground->searchIsIdle());
}

void AddressPanelTest::theGroupsAreOfferedInTheirOrder() {
    m_ground->open({fullContact()});
    ComboBox& groups = m_ground->combo(u"Combo1"_s);
    QStringList entries;
    for (int i = 0; i < groups.ListCount(); ++i)
        entries << groups.List(i);
    QCOMPARE(entries, (QStringList{u"Friends"_s, u"Family"_s, u"Co-Workers"_s, u"Public"_s,
                                   u"Companies"_s, u"General"_s, u"Misc"_s}));
    // Any other group may stand in the field too.
    QCOMPARE(groups.Text(), u"Sailing"_s);
    QVERIFY(groups.isEditable());
}

void AddressPanelTest::whatIsHiddenStaysHidden() {
    m_ground->layDown({fullContact()});
    m_ground->shown();
    for (const QString& name : {u"imgAdresa2"_s, u"txtppath"_s, u"Combo4"_s, u"PB1"_s})
        QVERIFY(!m_ground->control<QWidget>(name).isVisible());
}

void AddressPanelTest::aFirstRunTellsItOnceAndMakesAnEmptyFile() {
    m_ground->boxes.expect(NotFound, 16, Answer::Ok);
    m_ground->panel();
    QVERIFY(m_ground->folder.names().contains(u"address1.dat"_s));
    QCOMPARE(m_ground->file(), QByteArray());
    QCOMPARE(m_ground->book.AddressCount, 0);
    m_ground->startAgain();
    m_ground->panel();
    QCOMPARE(m_ground->boxes.asked.size(), 1);
    QCOMPARE(m_ground->book.AddressCount, 0);
    QVERIFY(!m_ground->folder.names().contains(u"address1tmp.dat"_s));
}

void AddressPanelTest::theFirstRecordIsOnShowAfterTheLoad() {
    m_ground->open({named(u"Bob"_s, u"Kay"_s), named(u"Ann"_s, u"Lee"_s)});
    QCOMPARE(m_ground->names(), u"Ann Lee"_s);
    m_ground->next();
    QCOMPARE(m_ground->names(), u"Bob Kay"_s);
}

void AddressPanelTest::everyFieldIsShown() {
    m_ground->open({fullContact()});
    QVERIFY(m_ground->panel().shownContact() == fullContact());
    QCOMPARE(m_ground->control<RichTextBox>(u"Text3"_s).Text(), u"12 Quay\r\nFlat 3"_s);
    QCOMPARE(m_ground->lineText(u"Text4"_s), u"Hove"_s);
    QCOMPARE(m_ground->lineText(u"Text8"_s), u"UK"_s);
    QCOMPARE(m_ground->lineText(u"Text9"_s), u"0123"_s);
    QCOMPARE(m_ground->lineText(u"Text12"_s), u"b.org"_s);
    QCOMPARE(m_ground->control<RichTextBox>(u"Text13"_s).Text(), u"one\r\n\r\ntwo"_s);
}

void AddressPanelTest::anEmptyFieldSaysWhatItIsFor() {
    m_ground->open({named(u"Ann"_s, u"Lee"_s)});
    QCOMPARE(m_ground->lineText(u"Text4"_s), QString());
    QCOMPARE(m_ground->line(u"Text4"_s).placeholderText(), u"Town"_s);
    QCOMPARE(m_ground->line(u"Text8"_s).placeholderText(), u"Country"_s);
}

void AddressPanelTest::theLoadSortsInMemoryAndNotInTheFile() {
    m_ground->open({named(u"c"_s, u"1"_s), named(u"b"_s, u"2"_s), named(u"a"_s, u"3"_s)});
    QCOMPARE(m_ground->inMemory(), (QStringList{u"a 3"_s, u"b 2"_s, u"c 1"_s}));
    QCOMPARE(m_ground->inFile(), (QStringList{u"c 1"_s, u"b 2"_s, u"a 3"_s}));
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void AddressPanelTest::aBookOfOneLoadsNoOptions() {
    m_ground->open({named(u"c"_s, u"1"_s)});
    QVERIFY(m_ground->program.windows.loaded<OptionsWindow>() == nullptr);
    m_ground->startAgain();
    m_ground->open({named(u"c"_s, u"1"_s), named(u"b"_s, u"2"_s)});
    QVERIFY(m_ground->program.windows.loaded<OptionsWindow>() != nullptr);
}

void AddressPanelTest::stepsGoThroughTheBookAndWrapAround() {
    m_ground->open({named(u"a"_s, u"1"_s), named(u"b"_s, u"2"_s), named(u"c"_s, u"3"_s)});
    m_ground->previous();
    QCOMPARE(m_ground->names(), u"c 3"_s);
    m_ground->next();
    QCOMPARE(m_ground->names(), u"a 1"_s);
    m_ground->next();
    QCOMPARE(m_ground->names(), u"b 2"_s);
    m_ground->last();
    QCOMPARE(m_ground->names(), u"c 3"_s);
    m_ground->next();
    QCOMPARE(m_ground->names(), u"a 1"_s);
    m_ground->last();
    m_ground->previous();
    QCOMPARE(m_ground->names(), u"b 2"_s);
    m_ground->first();
    QCOMPARE(m_ground->names(), u"a 1"_s);
    QVERIFY(m_ground->boxes.asked.isEmpty());
}

void AddressPanelTest::stepsInABookOfOneShowIt() {
    m_ground->open({named(u"a"_s, u"1"_s)});
    for (const QString& step : {u"Command2"_s, u"Command3"_s, u"Command4"_s, u"Command5"_s}) {
        m_ground->typeNames(u"x"_s, u"y"_s);
        m_ground->press(step);
        QCOMPARE(m_ground->names(), u"a 1"_s);
    }
}

void AddressPanelTest::stepsInAnEmptyBookDoNothing() {
    m_ground->open({});
    m_ground->typeNames(u"x"_s, u"y"_s);
    m_ground->book.PicPath = u"/p.png"_s;
    for (const QString& step : {u"Command2"_s, u"Command3"_s, u"Command4"_s, u"Command5"_s})
        m_ground->press(step);
    QCOMPARE(m_ground->names(), u"x y"_s);
    QCOMPARE(m_ground->book.PicPath, u"/p.png"_s);
}

void AddressPanelTest::aStepDropsWhatWasTyped() {
    m_ground->open({named(u"a"_s, u"1"_s), named(u"b"_s, u"2"_s)});
    m_ground->typeNames(u"x"_s, u"y"_s);
    m_ground->next();
    m_ground->previous();
    QCOMPARE(m_ground->names(), u"a 1"_s);
    QCOMPARE(m_ground->inMemory(), (QStringList{u"a 1"_s, u"b 2"_s}));
}

void AddressPanelTest::aStepThatShowsAPictureForgetsTheChosenOne() {
    AddressRecord contact = named(u"a"_s, u"1"_s);
    contact.Picture = m_ground->picture(u"a.png"_s);
    m_ground->open({contact});
    QCOMPARE(m_ground->book.PicPath, QString());
    m_ground->book.PicPath = u"/chosen.png"_s;
    m_ground->next();
    QCOMPARE(m_ground->book.PicPath, QString());
    QVERIFY(!m_ground->showsDefaultPicture());
}

void AddressPanelTest::aPictureIsShownFromItsFile() {
    AddressRecord with = named(u"a"_s, u"1"_s);
    with.Picture = m_ground->picture(u"a.png"_s);
    m_ground->open({with, named(u"b"_s, u"2"_s)});
    QVERIFY(!m_ground->showsDefaultPicture());
    const QImage shown = m_ground->image(u"imgAdresa1"_s).pixmap().toImage();
    QCOMPARE(shown.pixelColor(shown.rect().center()), QColor(Qt::green));
    m_ground->next();
    QVERIFY(m_ground->showsDefaultPicture());
    m_ground->previous();
    QVERIFY(!m_ground->showsDefaultPicture());
    // The file may go; the record keeps its path.
    QVERIFY(QFile::remove(with.Picture));
    m_ground->first();
    QVERIFY(m_ground->showsDefaultPicture());
    QCOMPARE(m_ground->book.record(0).Picture, with.Picture);
}

void AddressPanelTest::aPictureKeepsItsShape() {
    AddressRecord wide = named(u"a"_s, u"1"_s);
    wide.Picture = m_ground->folder.file(u"wide.png"_s);
    QImage red(400, 100, QImage::Format_RGB32);
    red.fill(Qt::red);
    QVERIFY(red.save(wide.Picture));
    m_ground->open({wide});
    const QImage shown = m_ground->image(u"imgAdresa1"_s).pixmap().toImage();
    const int middle = shown.width() / 2;
    QCOMPARE(shown.pixelColor(middle, shown.height() / 2), QColor(Qt::red));
    QCOMPARE(shown.pixelColor(middle, 2).alpha(), 0);
    QCOMPARE(shown.pixelColor(middle, shown.height() - 3).alpha(), 0);
    int rows = 0;
    for (int y = 0; y < shown.height(); ++y)
        rows += shown.pixelColor(middle, y).alpha() > 127 ? 1 : 0;
    QVERIFY2(std::abs(rows - shown.width() / 4) <= 1, qPrintable(QString::number(rows)));
}

void AddressPanelTest::pictureFilesThatAreNoneShowTheDefault_data() {
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << u"missing.png"_s;
    QTest::newRow("a folder") << u"folder"_s;
    QTest::newRow("a device") << u"/dev/zero"_s;
    QTest::newRow("a pipe") << u"pipe"_s;
    QTest::newRow("empty") << u"empty.png"_s;
    QTest::newRow("broken") << u"broken.png"_s;
    QTest::newRow("a claim without pixels") << u"claim.bmp"_s;
    QTest::newRow("a path with a wildcard") << u"*.png"_s;
    QTest::newRow("a path of its own kind") << u"http://example.org/a.png"_s;
    QTest::newRow("a path too long") << QString(100000, u'x');
}

void AddressPanelTest::pictureFilesThatAreNoneShowTheDefault() {
    QFETCH(QString, path);
    const auto& folder = m_ground->folder;
    QDir(folder.path()).mkdir(u"folder"_s);
    mkfifo(QFile::encodeName(folder.file(u"pipe"_s)).constData(), 0600);
    folder.write(u"empty.png"_s, {});
    folder.write(u"broken.png"_s, "\x89PNG\r\n\x1a\n and no more");
    QByteArray claim(54, '\0');
    claim.replace(0, 2, "BM");
    claim[14] = 40;
    claim.replace(18, 8, QByteArray("\xff\xff\xff\x7f\xff\xff\xff\x7f", 8));
    folder.write(u"claim.bmp"_s, claim);
    AddressRecord contact = named(u"a"_s, u"1"_s);
    contact.Picture =
        path.startsWith(u'/') || path.startsWith(u"http"_s) ? path : folder.file(path);
    AddressRecord before = named(u"b"_s, u"2"_s);
    before.Picture = m_ground->picture(u"good.png"_s);
    m_ground->open({contact, before});
    m_ground->next();
    QVERIFY(!m_ground->showsDefaultPicture());
    m_ground->next();
    QCOMPARE(m_ground->names(), u"a 1"_s);
    QVERIFY(m_ground->showsDefaultPicture());
    QCOMPARE(m_ground->book.PicPath, QString());
    QCOMPARE(m_ground->book.record(0).Picture, contact.Picture);
}

void AddressPanelTest::aHugePictureIsShown() {
    AddressRecord contact = named(u"a"_s, u"1"_s);
    contact.Picture = m_ground->folder.file(u"huge.png"_s);
    QImage huge(6000, 4000, QImage::Format_Mono);
    huge.fill(1);
    QVERIFY(huge.save(contact.Picture));
    m_ground->open({contact});
    QVERIFY(!m_ground->showsDefaultPicture());
    QVERIFY(m_ground->image(u"imgAdresa1"_s).pixmap().width() <= 128);
}

void AddressPanelTest::aFieldOfAMegabyteIsShownAndKept() {
    constexpr int Megabyte = 1 << 20;
    AddressRecord contact = named(QString(Megabyte, u'a'), u"1"_s);
    contact.Area = QString(Megabyte, u'g');
    contact.Address = QString(Megabyte, u'b');
    contact.Notes =
        QString(Megabyte / 32, u'c').replace(u"c"_s, u"words of a line and then on\r\n"_s);
    contact.Web = QString(Megabyte, u'w');
    m_ground->open({contact});
    QVERIFY(m_ground->panel().shownContact() == contact);
    m_ground->save();
    QCOMPARE(m_ground->file(), addressFileBytes(std::vector{contact}));
}

void AddressPanelTest::pastedWordsLoseTheirFormatAndTheirLines() {
    m_ground->layDown({named(u"a"_s, u"1"_s)});
    m_ground->shown();
    auto& notes = m_ground->control<RichTextBox>(u"Text13"_s);
    auto* words = new QMimeData;
    words->setHtml(u"<p><b style='color:red'>red</b> words</p>"_s);
    words->setText(u"red words"_s);
    QApplication::clipboard()->setMimeData(words);
    notes.Paste();
    QCOMPARE(notes.Text(), u"red words"_s);
    notes.SetSelStart(0);
    notes.SetSelLength(9);
    QCOMPARE(notes.SelBold(), std::optional(false));
    QImage dot(2, 2, QImage::Format_RGB32);
    dot.fill(Qt::red);
    QApplication::clipboard()->setImage(dot);
    QVERIFY(!notes.CanPaste());
    notes.Paste();
    QCOMPARE(notes.Text(), u"red words"_s);
    QApplication::clipboard()->setText(u"12 Quay\r\nHove\n"_s);
    QLineEdit& town = m_ground->line(u"Text4"_s);
    town.paste();
    QCOMPARE(town.text(), u"12 Quay Hove "_s);
}

void AddressPanelTest::aLongLineShowsItsBeginning() {
    AddressRecord contact = named(u"a"_s, u"1"_s);
    contact.Email = QString(500, u'e');
    m_ground->open({contact});
    QCOMPARE(m_ground->line(u"Text11"_s).cursorPosition(), 0);
    QCOMPARE(m_ground->combo(u"Combo1"_s).lineEdit()->cursorPosition(), 0);
}

void AddressPanelTest::theLabelsLeadToTheOtherPanels() {
    m_ground->open({});
    QStringList captions;
    for (const QString& name : {u"lblNot"_s, u"lblAdd"_s, u"lblPass"_s})
        captions << m_ground->control<Label>(name).Caption();
    QCOMPARE(captions, (QStringList{u"Reminder"_s, u"Notes"_s, u"Password"_s}));
}

void AddressPanelTest::thePanelIsDraggedByTheCardToo() {
    m_ground->layDown({});
    frmnotes3& panel = m_ground->shown();
    panel.move(60, 50);
    Pointer pointer(m_ground->image(u"card"_s));
    pointer.press({10, 140});
    pointer.move({40, 160}, Qt::LeftButton);
    QCOMPARE(panel.pos(), QPoint(90, 70));
    pointer.release({10, 140});
}

ORVALIS_TEST_MAIN_WITH(Application, AddressPanelTest)
#include "address_panel_test.moc"
