// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/contact_block.h"

#include "address/address_record.h"
#include "controls/rich_text_box.h"
#include "support/test_main.h"

#include <QApplication>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

constexpr quint32 Black = 0;
constexpr quint32 Blue = 0xFF0000;

AddressRecord contact() {
    AddressRecord ann;
    ann.First = u"Ann"_s;
    ann.Second = u"Lee"_s;
    ann.Area = u"Friends"_s;
    ann.Address = u"Mill Lane 4\r\nback yard"_s;
    ann.Town = u"Ely"_s;
    ann.Pin = u"4711"_s;
    ann.District = u"Fen"_s;
    ann.State = u"Cambs"_s;
    ann.Country = u"England"_s;
    ann.Tel = u"555"_s;
    ann.Fax = u"556"_s;
    ann.Email = u"ann@example.org"_s;
    ann.Web = u"http://example.org"_s;
    ann.Notes = u"plays the harp"_s;
    ann.Picture = u"/home/ann.png"_s;
    return ann;
}

const QString Block = u"\r\n"
                      "First Name \r\n     Ann\r\n"
                      "Second Name \r\n     Lee\r\n"
                      "Group \r\n     Friends\r\n"
                      "Address \r\n     Mill Lane 4\r\nback yard\r\n"
                      "Phone \r\n     555\r\n"
                      "FAX \r\n     556\r\n"
                      "Email \r\n     ann@example.org\r\n"
                      "URL \r\n     http://example.org\r\n"
                      "Comments \r\n     plays the harp\r\n"_s;

const QStringList Labels{u"First Name "_s, u"Second Name "_s, u"Group "_s,
                         u"Address "_s,    u"Phone "_s,       u"FAX "_s,
                         u"Email "_s,      u"URL "_s,         u"Comments "_s};
const QStringList Values{u"Ann"_s, u"Lee"_s, u"Friends"_s,         u"back yard"_s,
                         u"555"_s, u"556"_s, u"ann@example.org"_s, u"http://example.org"_s,
                         u"harp"_s};

void select(RichTextBox& page, const QString& text) {
    if (page.Find(text) < 0)
        qFatal("not on the page: %s", qPrintable(text));
}

} // namespace

class ContactBlockTest : public QObject {
    Q_OBJECT
private slots:
    void aBlockHasALineForEachLabelAndEachValue();
    void townPinDistrictStateCountryAndPictureAreLeftOut();
    void anEmptyFieldIsALineOfFiveBlanks();
    void theLinesAskedForAreBold_data();
    void theLinesAskedForAreBold();
    void onlyTheAddressesOfMailAndWebAreBlue();
    void itGoesInAtTheInsertionPoint();
    void itReplacesASelection();
    void theEmphasisOfTheLastValueStays_data();
    void theEmphasisOfTheLastValueStays();
    void oneUndoTakesItBack();
};

void ContactBlockTest::aBlockHasALineForEachLabelAndEachValue() {
    RichTextBox page;
    insertContact(page, contact(), BoldLines::Values);
    QCOMPARE(page.Text(), Block);
}

void ContactBlockTest::townPinDistrictStateCountryAndPictureAreLeftOut() {
    RichTextBox page;
    insertContact(page, contact(), BoldLines::Values);
    for (const auto field :
         {&AddressRecord::Town, &AddressRecord::Pin, &AddressRecord::District,
          &AddressRecord::State, &AddressRecord::Country, &AddressRecord::Picture})
        QVERIFY(!page.Text().contains(contact().*field));
}

void ContactBlockTest::anEmptyFieldIsALineOfFiveBlanks() {
    RichTextBox page;
    insertContact(page, AddressRecord(), BoldLines::Values);
    QString expected = u"\r\n"_s;
    for (const QString& label : Labels)
        expected += label + u"\r\n     \r\n"_s;
    QCOMPARE(page.Text(), expected);
}

void ContactBlockTest::theLinesAskedForAreBold_data() {
    QTest::addColumn<bool>("values");
    QTest::newRow("values") << true;
    QTest::newRow("labels") << false;
}

void ContactBlockTest::theLinesAskedForAreBold() {
    QFETCH(bool, values);
    RichTextBox page;
    insertContact(page, contact(), values ? BoldLines::Values : BoldLines::Labels);
    for (const QString& label : Labels) {
        select(page, label);
        QCOMPARE(page.SelBold(), std::optional(!values));
    }
    for (const QString& value : Values) {
        select(page, value);
        QCOMPARE(page.SelBold(), std::optional(values));
    }
}

void ContactBlockTest::onlyTheAddressesOfMailAndWebAreBlue() {
    for (const BoldLines bold : {BoldLines::Values, BoldLines::Labels}) {
        RichTextBox page;
        insertContact(page, contact(), bold);
        for (const QString& text : Labels + Values) {
            select(page, text);
            const bool isLink = text.contains(u"example"_s);
            QCOMPARE(page.SelColor(), std::optional(isLink ? Blue : Black));
        }
    }
}

void ContactBlockTest::itGoesInAtTheInsertionPoint() {
    RichTextBox page;
    page.SetText(u"above below"_s);
    page.SetSelStart(6);
    insertContact(page, contact(), BoldLines::Values);
    QCOMPARE(page.Text(), u"above "_s + Block + u"below"_s);
    QCOMPARE(page.SelStart(), 6 + Block.size());
    insertContact(page, contact(), BoldLines::Values);
    QCOMPARE(page.Text(), u"above "_s + Block + Block + u"below"_s);
}

void ContactBlockTest::itReplacesASelection() {
    RichTextBox page;
    page.SetText(u"above here below"_s);
    page.SetSelStart(6);
    page.SetSelLength(4);
    insertContact(page, contact(), BoldLines::Values);
    QCOMPARE(page.Text(), u"above "_s + Block + u" below"_s);
}

void ContactBlockTest::theEmphasisOfTheLastValueStays_data() {
    theLinesAskedForAreBold_data();
}

void ContactBlockTest::theEmphasisOfTheLastValueStays() {
    QFETCH(bool, values);
    RichTextBox page;
    insertContact(page, contact(), values ? BoldLines::Values : BoldLines::Labels);
    page.SetSelText(u"typed"_s);
    select(page, u"typed"_s);
    QCOMPARE(page.SelBold(), std::optional(values));
    QCOMPARE(page.SelColor(), std::optional(Black));
}

void ContactBlockTest::oneUndoTakesItBack() {
    RichTextBox page;
    page.SetText(u"above"_s);
    insertContact(page, contact(), BoldLines::Values);
    page.Undo();
    QCOMPARE(page.Text(), u"above"_s);
}

ORVALIS_TEST_MAIN_WITH(QApplication, ContactBlockTest)
#include "contact_block_test.moc"
