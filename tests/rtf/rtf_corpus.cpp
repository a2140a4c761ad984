// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// Measures reader and writer on a folder of RTF files of many makers:
//
//     rtf_corpus [--write OTHER] FOLDER
//
// FOLDER/files holds the documents, in any depth; FOLDER/text/NAME.txt, where there is one, the
// text expected of files/NAME. Prints a line for each miss and the totals. With --write, each
// document is left in OTHER/files as the writer writes it: once a word processor has put its own
// text of them into OTHER/text, OTHER measures what that program reads in what we write.
#include "document_comparison.h"
#include "rtf/characters/symbol_font.h"
#include "rtf/formats/list_formats.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "support/test_main.h"

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <algorithm>
#include <cstdio>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

struct Totals {
    int files = 0;
    int opened = 0;
    int withText = 0;
    int textAgrees = 0;
    int roundTrips = 0;
    qint64 slowest = 0;
    QString slowestFile;
};

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Runs of white space count as one blank. Marks without a width are left out: one word processor
// keeps runs of blanks apart with U+2006, others put direction marks around them. So are pictures,
// which a text has not, and bullets, which one reader prints and another draws. What the Symbol
// font shows some readers tell by its bytes, in the area for private use.
QString folded(QString text) {
    static const QRegularExpression unseen(
        u"[\u00ad\u2006\u200b-\u200f\u202a-\u202e\ufeff\ufffc\u2022\u25e6\u25aa]"_s);
    for (QChar& character : text)
        if (character >= QChar(u'\uf020') && character <= QChar(u'\uf0ff'))
            character = QChar(
                char16_t(rtf::symbolCharacter(rtf::SymbolFont::Symbol, uchar(character.cell()))));
    return text.remove(unseen).simplified();
}

// The text with the labels of numbered lists in front of their items, as other readers print them.
QString textWithLabels(const QTextDocument& document) {
    QString text;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextList* list = block.textList();
        if (list && list->format().style() != QTextListFormat::ListDisc)
            text += rtf::listLabel(block) + u' ';
        text += block.text() + u'\n';
    }
    return text;
}

// Readers differ in how they show what has no meaning, and in whether they print the numbers in
// front of list items, so where nothing else helps both are left out.
QString withoutLabels(QString text) {
    static const QRegularExpression label(u"(^| )[0-9]+([.][0-9]+)*[.)]?(?= |$)"_s);
    static const QRegularExpression meaningless(u"[?\\x{fffd}]"_s);
    return text.remove(meaningless).remove(label).simplified();
}

bool agrees(const QString& expected, const QTextDocument& document) {
    const QString found = folded(document.toRawText());
    return expected == found || expected == folded(textWithLabels(document)) ||
           withoutLabels(expected) == withoutLabels(found);
}

void miss(const char* what, const QString& file, const QString& why) {
    std::printf("%s\t%s\t%s\n", what, qUtf8Printable(file), qUtf8Printable(why));
}

qsizetype commonLength(const QString& a, const QString& b) {
    const auto ends = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    return ends.first - a.begin();
}

QString firstDifference(const QString& expected, const QString& text, const QString& labelled) {
    const bool hasLabels = commonLength(expected, labelled) > commonLength(expected, text);
    const QString& found = hasLabels ? labelled : text;
    const qsizetype at = commonLength(expected, found);
    const qsizetype from = std::max<qsizetype>(at - 20, 0);
    return u"at %1: expected \"%2\", found \"%3\""_s.arg(at).arg(expected.mid(from, 60),
                                                                 found.mid(from, 60));
}

bool leave(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size();
}

void measure(const QDir& root, const QString& name, const QString& other, Totals& totals) {
    ++totals.files;
    const QByteArray bytes = contentOf(root.filePath(u"files/"_s + name));
    QTextDocument document;
    QElapsedTimer timer;
    timer.start();
    const rtf::ReadResult result = rtf::readRtf(bytes, document);
    if (timer.elapsed() > totals.slowest) {
        totals.slowest = timer.elapsed();
        totals.slowestFile = name;
    }
    if (result.fault == rtf::Fault::NotRtf)
        miss("OPEN", name, u"does not begin as RTF"_s);
    else
        ++totals.opened;

    const QString textPath = root.filePath(u"text/"_s + name + u".txt"_s);
    if (QFile::exists(textPath)) {
        ++totals.withText;
        const QString expected = folded(QString::fromUtf8(contentOf(textPath)));
        if (agrees(expected, document))
            ++totals.textAgrees;
        else
            miss("TEXT", name,
                 firstDifference(expected, folded(document.toRawText()),
                                 folded(textWithLabels(document))));
    }

    const QByteArray written = rtf::writeRtf(document);
    if (!other.isEmpty() && !leave(other + u"/files/"_s + name, written))
        miss("LEAVE", name, u"cannot be written"_s);
    QTextDocument again;
    rtf::readRtf(written, again);
    const QString difference = test::firstDifference(document, again);
    if (difference.isEmpty())
        ++totals.roundTrips;
    else
        miss("KEEP", name, difference);
}

void total(const char* what, int hits, int of) {
    std::printf("%-60s %4d of %4d  %6.2f %%\n", what, hits, of, of ? 100.0 * hits / of : 0.0);
}

} // namespace

int main(int argc, char** argv) {
    test::fixedGround();
    QGuiApplication app(argc, argv);
    QStringList arguments = QGuiApplication::arguments().sliced(1);
    QString other;
    if (arguments.size() == 3 && arguments.first() == u"--write"_s) {
        other = arguments.at(1);
        arguments.remove(0, 2);
    }
    if (arguments.size() != 1) {
        std::fprintf(stderr, "usage: rtf_corpus [--write OTHER] FOLDER\n");
        return 2;
    }
    const QDir root(QFileInfo(arguments.first()).absoluteFilePath());
    const QDir files(root.filePath(u"files"_s));
    QStringList names;
    QDirIterator it(files.path(), {u"*.rtf"_s}, QDir::Files | QDir::Hidden,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        names << files.relativeFilePath(it.next());
    names.sort();
    Totals totals;
    for (const QString& name : std::as_const(names))
        measure(root, name, other, totals);
    total("opens", totals.opened, totals.files);
    total("text agrees, of the files that have one", totals.textAgrees, totals.withText);
    total("kept through reading, writing and reading", totals.roundTrips, totals.files);
    std::printf("slowest to read: %lld ms, %s\n", static_cast<long long>(totals.slowest),
                qUtf8Printable(totals.slowestFile));
    return totals.files > 0 ? 0 : 1;
}
