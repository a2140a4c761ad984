// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_file.h"

#include "address/second_address_file.h"
#include "support/counted_memory.h"
#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

/// One file read to its end.
struct Read {
    explicit Read(QByteArrayView bytes, const AnsiPage& page = AnsiPage::ofUser()) {
        AddressFileReader file(bytes, page);
        while (!file.atEnd()) {
            records.emplace_back();
            whole = file.read(records.back());
        }
        dropped = file.hasDropped();
    }

    std::vector<AddressRecord> records;
    bool whole = true; ///< the last record was filled
    bool dropped = false;
};

/// The items of a file that has no more than fit in one record.
QStringList itemsOf(const QByteArray& bytes) {
    const QString unread = u"(not read)"_s;
    AddressRecord record;
    for (const auto field : AddressFields)
        record.*field = unread;
    AddressFileReader(bytes).read(record);
    QStringList items;
    for (const auto field : AddressFields)
        if (record.*field != unread)
            items << record.*field;
    return items;
}

QByteArray bytesOf(const std::vector<AddressRecord>& records) {
    return addressFileBytes(records);
}

/// Fields "1" to "15".
AddressRecord numbered() {
    AddressRecord record;
    int number = 0;
    for (const auto field : AddressFields)
        record.*field = QString::number(++number);
    return record;
}

} // namespace

class AddressFileTest : public QObject {
    Q_OBJECT
private slots:
    void aContactTakesFifteenLinesOfQuotedItems();
    void theItemsStandInTheOrderOfTheFields();
    void emptyFieldsAreTwoQuotesAndNoTrailingItemIsLeftOut();
    void anEmptyBookHasNoBytes();
    void aRecordOfLinesStartsAtFifteenTimesItsNumber();
    void aLineBreakInAFieldSurvivesWritingAndReading();
    void aDoubleQuoteIsWrittenAsItStands();
    void aQuoteInAFieldCutsTheRestOfItOff();
    void aCommaBehindAQuoteInAFieldShiftsAllThatFollow();
    void aLineBreakBehindAQuoteInAFieldShiftsAllThatFollow();
    void lettersOfThePageAreOneByteEach();
    void charactersOutsideThePageAreLostInTheFile();
    void itemsAreReadAsFilesHaveThem_data();
    void itemsAreReadAsFilesHaveThem();
    void onlyBlanksAndLineEndsAreNoRecord_data();
    void onlyBlanksAndLineEndsAreNoRecord();
    void aFileThatEndsInsideARecordLeavesTheOtherFieldsAsTheyWere();
    void whatStandsBehindAClosingQuoteIsToldAsDropped_data();
    void whatStandsBehindAClosingQuoteIsToldAsDropped();
    void aFileCutAnywhereHoldsTheItemsUpToTheCut();
    void aReaderAndWriterOfAnotherKindAgree_data();
    void aReaderAndWriterOfAnotherKindAgree();
    void theyAgreeOnAnyBytesToo();
    void aBookWithoutQuotesComesBackAsItWas();
    void hostileShapesAreReadInMemoryOfTheirSize_data();
    void hostileShapesAreReadInMemoryOfTheirSize();
};

void AddressFileTest::aContactTakesFifteenLinesOfQuotedItems() {
    AddressRecord ann;
    ann.First = u"Ann"_s;
    ann.Second = u"Lee"_s;
    ann.Web = u"http://"_s;
    QCOMPARE(bytesOf({ann}), QByteArray("\"Ann\"\r\n"
                                        "\"Lee\"\r\n"
                                        "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
                                        "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
                                        "\"http://\"\r\n"
                                        "\"\"\r\n\"\"\r\n"));
}

void AddressFileTest::theItemsStandInTheOrderOfTheFields() {
    AddressRecord record;
    record.First = u"first"_s;
    record.Second = u"second"_s;
    record.Area = u"area"_s;
    record.Address = u"address"_s;
    record.Town = u"town"_s;
    record.Pin = u"pin"_s;
    record.District = u"district"_s;
    record.State = u"state"_s;
    record.Country = u"country"_s;
    record.Tel = u"tel"_s;
    record.Fax = u"fax"_s;
    record.Email = u"email"_s;
    record.Web = u"web"_s;
    record.Notes = u"notes"_s;
    record.Picture = u"picture"_s;
    const QByteArray bytes = "\"first\"\r\n\"second\"\r\n\"area\"\r\n\"address\"\r\n\"town\"\r\n"
                             "\"pin\"\r\n\"district\"\r\n\"state\"\r\n\"country\"\r\n\"tel\"\r\n"
                             "\"fax\"\r\n\"email\"\r\n\"web\"\r\n\"notes\"\r\n\"picture\"\r\n";
    QCOMPARE(bytesOf({record}), bytes);
    QVERIFY(Read(bytes).records == std::vector{record});
}

void AddressFileTest::emptyFieldsAreTwoQuotesAndNoTrailingItemIsLeftOut() {
    QCOMPARE(bytesOf({AddressRecord(), AddressRecord()}), QByteArray("\"\"\r\n").repeated(30));
    QCOMPARE(Read(QByteArray("\"\"\r\n").repeated(30)).records.size(), std::size_t{2});
}

void AddressFileTest::anEmptyBookHasNoBytes() {
    QCOMPARE(bytesOf({}), QByteArray());
    QVERIFY(Read("").records.empty());
}

void AddressFileTest::aRecordOfLinesStartsAtFifteenTimesItsNumber() {
    std::vector<AddressRecord> records(4);
    for (std::size_t i = 0; i < records.size(); ++i)
        records[i].First = u"No %1"_s.arg(i);
    const QList<QByteArray> lines = bytesOf(records).split('\n');
    for (int i = 0; i < 4; ++i)
        QCOMPARE(lines[15 * i], "\"No " + QByteArray::number(i) + "\"\r");
}

void AddressFileTest::aLineBreakInAFieldSurvivesWritingAndReading() {
    AddressRecord record = numbered();
    record.Address = u"Mill Lane 4\r\nback yard\r\n"_s;
    record.Notes = u"\r\n\r\nsays \"hello\", but never\nfirst\r"_s.remove(u'"');
    const QByteArray bytes = bytesOf({record, numbered()});
    QVERIFY(bytes.contains("\r\n\"Mill Lane 4\r\nback yard\r\n\"\r\n"));
    const Read read(bytes);
    QVERIFY(read.records == (std::vector{record, numbered()}));
    QVERIFY(read.whole && !read.dropped);
}

void AddressFileTest::aDoubleQuoteIsWrittenAsItStands() {
    AddressRecord record;
    record.First = u"Ann \"Annie\" Lee"_s;
    QVERIFY(bytesOf({record}).startsWith("\"Ann \"Annie\" Lee\"\r\n\"\"\r\n"));
}

void AddressFileTest::aQuoteInAFieldCutsTheRestOfItOff() {
    AddressRecord record = numbered();
    record.Address = u"pipe of 5\" and more"_s;
    const Read read(bytesOf({record, numbered()}));
    record.Address = u"pipe of 5"_s;
    QVERIFY(read.records == (std::vector{record, numbered()}));
    QVERIFY(read.dropped);
}

void AddressFileTest::aCommaBehindAQuoteInAFieldShiftsAllThatFollow() {
    AddressRecord record = numbered();
    record.Address = u"a 5\" pipe, bent"_s;
    const Read read(bytesOf({record, numbered()}));
    QCOMPARE(read.records.size(), std::size_t{3});
    // What stood behind the comma is an item of its own, its closing quote with it.
    const AddressRecord& first = read.records[0];
    QCOMPARE(first.Address, u"a 5"_s);
    QCOMPARE(first.Town, u"bent\""_s);
    QCOMPARE(first.Pin, u"5"_s);
    QCOMPARE(first.Picture, u"14"_s);
    QCOMPARE(read.records[1].First, u"15"_s);
    QCOMPARE(read.records[1].Second, u"1"_s);
    QCOMPARE(read.records[1].Picture, u"14"_s);
    QCOMPARE(read.records[2].First, u"15"_s);
    QCOMPARE(read.records[2].Second, QString());
    QVERIFY(!read.whole);
}

void AddressFileTest::aLineBreakBehindAQuoteInAFieldShiftsAllThatFollow() {
    AddressRecord record = numbered();
    record.Address = u"\"Mill\"\r\nLane"_s;
    const Read read(bytesOf({record}));
    QCOMPARE(read.records.size(), std::size_t{2});
    QCOMPARE(read.records[0].Address, QString()); // the opening quote ended it
    QCOMPARE(read.records[0].Town, u"Lane\""_s);
    QCOMPARE(read.records[0].Pin, u"5"_s);
    QCOMPARE(read.records[1].First, u"15"_s);
}

void AddressFileTest::lettersOfThePageAreOneByteEach() {
    AddressRecord record;
    record.First = u"Žofie"_s;
    QVERIFY(addressFileBytes(std::vector{record}, AnsiPage::of(1250)).startsWith("\"\x8Eofie\"\r"));
    QCOMPARE(Read("\"\x8Eofie\"", AnsiPage::of(1250)).records[0].First, u"Žofie"_s);
    // Bytes that could be taken for UTF-8 are the page's letters all the same.
    QCOMPARE(Read("\"\xC3\xA9\"").records[0].First, u"Ã©"_s);
    record.First = u"Ã©"_s;
    QVERIFY(bytesOf({record}).startsWith("\"\xC3\xA9\"\r\n"));
}

void AddressFileTest::charactersOutsideThePageAreLostInTheFile() {
    AddressRecord record;
    record.First = u"Ōé🎂"_s;
    QVERIFY(bytesOf({record}).startsWith("\"?\xE9??\"\r\n"));
}

void AddressFileTest::itemsAreReadAsFilesHaveThem_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("items");
    const auto row = [](const char* name, const QByteArray& bytes, const QStringList& items) {
        QTest::newRow(name) << bytes << items;
    };
    row("quoted lines", "\"a\"\r\n\"b\"\r\n", {u"a"_s, u"b"_s});
    row("a line feed alone ends a line", "\"a\"\n\"b\"\nc\nd", {u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    row("a carriage return alone too", "\"a\"\r\"b\"\rc\rd", {u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    row("commas part items", "\"a\",\"b\",c,d", {u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    row("blanks ahead of an item", "   \"a\"\r\n   b", {u"a"_s, u"b"_s});
    row("empty lines ahead of an item", "\r\n\n\r \n\"a\"\r\n\r\n\r\nb", {u"a"_s, u"b"_s});
    row("blanks behind a quoted item", "\"a\"   \r\n\"b\" ,c", {u"a"_s, u"b"_s, u"c"_s});
    row("text behind a quoted item", "\"a\" x \"y\" z\r\n\"b\"", {u"a"_s, u"b"_s});
    row("blanks at the end of an unquoted item", "a  ,b  \r\nc  ", {u"a  "_s, u"b  "_s, u"c  "_s});
    row("blanks inside an unquoted item", "a b c,d", {u"a b c"_s, u"d"_s});
    row("a quote inside an unquoted item", "a\"b,c\"d\"", {u"a\"b"_s, u"c\"d\""_s});
    row("nothing between two commas", "a,,b,\"\",", {u"a"_s, QString(), u"b"_s, QString()});
    row("a comma at the start", ",a", {QString(), u"a"_s});
    row("a line end behind a comma", "\"a\",\r\n\"b\"", {u"a"_s, u"b"_s});
    row("commas and line ends in quotes", "\"a,\r\nb\nc\rd\"\r\ne", {u"a,\r\nb\nc\rd"_s, u"e"_s});
    row("blanks in quotes", "\"  a  \"", {u"  a  "_s});
    row("no closing quote", "\"a\"\r\n\"b\r\n,c\r\n", {u"a"_s, u"b\r\n,c\r\n"_s});
    row("an opening quote at the end", "a\r\n\"", {u"a"_s, QString()});
    row("a tab is no blank", "\t\"a\"\r\nb", {u"\t\"a\""_s, u"b"_s});
    row("NUL and code 26", QByteArray("\"a\0\x1A\"\r\n\0\x1A,b", 11),
        {u"a"_s + QChar(0) + QChar(26), QString(QChar(0)) + QChar(26), u"b"_s});
    row("a byte-order mark", "\xEF\xBB\xBF\"a\"\r\n\"b\"", {u"ï»¿\"a\""_s, u"b"_s});
    row("two quotes in a row", "\"a\"\"b\"\r\nc", {u"a"_s, u"c"_s});
}

void AddressFileTest::itemsAreReadAsFilesHaveThem() {
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, items);
    QCOMPARE(itemsOf(bytes), items);
}

void AddressFileTest::onlyBlanksAndLineEndsAreNoRecord_data() {
    QTest::addColumn<QByteArray>("tail");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a blank") << QByteArray(" ");
    QTest::newRow("line ends") << QByteArray("\r\n\n\r\r\n");
    QTest::newRow("lines of blanks") << QByteArray("  \r\n   \r\n  ");
}

void AddressFileTest::onlyBlanksAndLineEndsAreNoRecord() {
    QFETCH(QByteArray, tail);
    QVERIFY(Read(tail).records.empty());
    const Read read(bytesOf({numbered()}) + tail);
    QCOMPARE(read.records.size(), std::size_t{1});
    QVERIFY(read.whole);
    QCOMPARE(Read(bytesOf({numbered()}) + tail + "x").records.size(), std::size_t{2});
}

void AddressFileTest::aFileThatEndsInsideARecordLeavesTheOtherFieldsAsTheyWere() {
    AddressRecord record = numbered();
    AddressFileReader file("\"Ann\"\r\n\"Lee\"\r\n");
    QVERIFY(!file.read(record));
    AddressRecord expected = numbered();
    expected.First = u"Ann"_s;
    expected.Second = u"Lee"_s;
    QVERIFY(record == expected);
    QVERIFY(file.atEnd());
}

void AddressFileTest::whatStandsBehindAClosingQuoteIsToldAsDropped_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("dropped");
    QTest::newRow("nothing") << QByteArray("\"a\"\r\n\"b\"") << false;
    QTest::newRow("blanks") << QByteArray("\"a\"  \r\n\"b\"  ") << false;
    QTest::newRow("text") << QByteArray("\"a\" x\r\nb") << true;
    QTest::newRow("text at the end") << QByteArray("a\r\n\"b\"x") << true;
    QTest::newRow("text first, blanks last") << QByteArray("\"a\"x\r\n\"b\" ") << true;
    QTest::newRow("a quote") << QByteArray("\"a\"\"") << true;
}

void AddressFileTest::whatStandsBehindAClosingQuoteIsToldAsDropped() {
    QFETCH(QByteArray, bytes);
    QFETCH(bool, dropped);
    QCOMPARE(Read(bytes).dropped, dropped);
}

void AddressFileTest::aFileCutAnywhereHoldsTheItemsUpToTheCut() {
    QRandomGenerator random(7);
    const QByteArray bytes = bytesOf(randomRecords(random, 6, false));
    const std::vector<AddressRecord> records = Read(bytes).records;
    QStringList all;
    QList<qsizetype> closed; // where each item's closing quote has passed
    qsizetype end = 0;
    for (const AddressRecord& record : records)
        for (const auto field : AddressFields) {
            all << record.*field;
            closed << end + (record.*field).size() + 2;
            end = closed.constLast() + 2;
        }
    QCOMPARE(end, bytes.size());
    for (qsizetype cut = 0; cut <= bytes.size(); ++cut) {
        const Read read(bytes.first(cut));
        qsizetype number = 0;
        bool cutOff = false;
        for (const AddressRecord& record : read.records)
            for (const auto field : AddressFields) {
                const QString& item = record.*field;
                if (closed[number] <= cut)
                    QCOMPARE(item, all[number]);
                else
                    QVERIFY(cutOff ? item.isEmpty() : all[number].startsWith(item));
                cutOff = closed[number] > cut;
                ++number;
            }
        QVERIFY(number == all.size() || closed[number] > cut);
        QVERIFY(read.records.size() <= records.size());
        QVERIFY(!read.dropped);
    }
}

void AddressFileTest::aReaderAndWriterOfAnotherKindAgree_data() {
    QTest::addColumn<int>("page");
    QTest::addColumn<bool>("withQuotes");
    for (const int page : {1252, 1250, 874})
        for (const bool withQuotes : {false, true})
            QTest::addRow("%d, %s quotes", page, withQuotes ? "with" : "no") << page << withQuotes;
}

void AddressFileTest::aReaderAndWriterOfAnotherKindAgree() {
    constexpr int Books = 1000;
    QFETCH(int, page);
    QFETCH(bool, withQuotes);
    const AnsiPage& ansi = AnsiPage::of(page);
    QRandomGenerator random(static_cast<quint32>(page));
    for (int book = 0; book < Books; ++book) {
        const std::vector<AddressRecord> records =
            randomRecords(random, random.bounded(5), withQuotes);
        const QByteArray bytes = addressFileBytes(records, ansi);
        QCOMPARE(bytes, secondBytes(records, ansi));
        const std::vector<AddressRecord> read = Read(bytes, ansi).records;
        QVERIFY(read == secondRecords(bytes, ansi));
        QCOMPARE(addressFileBytes(read, ansi), secondBytes(read, ansi));
    }
}

void AddressFileTest::theyAgreeOnAnyBytesToo() {
    constexpr int Files = 5000;
    static constexpr char Signs[] = "\"\"\"\"\",,\r\n\r\n  \tab\0\x1A\xE9\xEF\xBB\xBF";
    const QByteArrayView signs(Signs, std::size(Signs) - 1);
    const AnsiPage& ansi = AnsiPage::of(1252);
    QRandomGenerator random(1);
    for (int file = 0; file < Files; ++file) {
        QByteArray bytes(random.bounded(120), Qt::Uninitialized);
        for (char& byte : bytes)
            byte = signs[random.bounded(static_cast<int>(signs.size()))];
        QVERIFY2(Read(bytes, ansi).records == secondRecords(bytes, ansi),
                 bytes.toPercentEncoding().constData());
    }
}

void AddressFileTest::aBookWithoutQuotesComesBackAsItWas() {
    QRandomGenerator random(2);
    for (int book = 0; book < 500; ++book) {
        std::vector<AddressRecord> records = randomRecords(random, random.bounded(6), false);
        for (AddressRecord& record : records)
            for (const auto field : AddressFields)
                (record.*field).remove(QChar(0x2028)); // which no page has
        const Read read(bytesOf(records));
        QVERIFY(read.records == records);
        QVERIFY(read.whole && !read.dropped);
    }
}

void AddressFileTest::hostileShapesAreReadInMemoryOfTheirSize_data() {
    QTest::addColumn<QByteArray>("bytes");
    constexpr qsizetype Size = 2'000'000;
    QTest::newRow("one quoted item") << '"' + QByteArray(Size, 'x');
    QTest::newRow("one unquoted item") << QByteArray(Size, 'x');
    QTest::newRow("zeros") << QByteArray(Size, '\0');
    QTest::newRow("blanks") << QByteArray(Size, ' ');
    QTest::newRow("line ends") << QByteArray(Size, '\n');
    QTest::newRow("quotes") << QByteArray(Size, '"');
    QTest::newRow("commas") << QByteArray(Size, ',');
    QTest::newRow("text behind a quote") << "\"\"" + QByteArray(Size, 'x');
    QTest::newRow("a quote for each line") << QByteArray("\"\n").repeated(Size / 2);
}

void AddressFileTest::hostileShapesAreReadInMemoryOfTheirSize() {
    if (!CountsMemory)
        return;
    QFETCH(QByteArray, bytes);
    AddressRecord record;
    const TakenMemory taken = memoryTakenBy([&] {
        AddressFileReader file(bytes);
        while (!file.atEnd())
            file.read(record);
    });
    QVERIFY(taken.peak <= 2 * bytes.size() + 10'000);
    QVERIFY(taken.asked <= 20 * bytes.size() + 10'000);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, AddressFileTest)
#include "address_file_test.moc"
