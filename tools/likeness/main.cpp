// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// Measures how like a word processor's our rich text is:
//
//     rtf_likeness [--keep OTHER [--own]] FOLDER
//
// takes all RTF files of a folder, in any depth, and has LibreOffice (soffice) make PDF and text of
// each, and of what the program writes of it. Prints a line for each file that differs, and totals:
// whether the text and the number of pages are equal, and the share of characters with the same
// font, size, weight, colour, and place within two points. Files that are broken, so that no two
// programs read them alike (a brace too many, cells without a row, halves of characters), count
// among all, but those that differ are told with what is wrong in them, and the texts and pages of
// the sound files are told once more by themselves. Then the same for the program's own
// pages: of the files without a table, text box or lines from top to bottom, those whose words
// stand on the first page where LibreOffice sets them, each left edge within six points, in the
// same order down the page. For that, LibreOffice is given the files without their headers, footers
// and footnotes, which the program does not show, and with what their fields of dates, names and
// numbers show as text, as it would fill these anew. The program takes the fonts that LibreOffice
// takes, its font for files that name none, and runs of blanks as wide as it sets them. What PDFs
// tell in different ways counts as alike: the order of letters that run to the left, brackets and
// their mirrors, signs and the letters of their codes, control characters, which show nothing, and
// none. The label of a list item may be another one than LibreOffice's where it is one that the
// file itself tells beside its lists. Words in letters for which no font is there, and those behind
// them on their lines, do not count; a file that has no other is left out. With --keep what was
// made stays in OTHER, and what lies there of the files themselves is used again. With --own only
// the program's own pages are measured, against the PDFs that lie in OTHER: that takes a minute.
// Needs soffice, and pdftotext and pdftohtml of poppler.
#include "likeness.h"
#include "office.h"
#include "own_pages.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "told_labels.h"
#include "unsound.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <QTextDocument>

#include <algorithm>
#include <cstdio>

using namespace orvalis;
using namespace orvalis::likeness;
using namespace Qt::StringLiterals;

namespace {

constexpr double TwipsPerPoint = 20;
const QString TextFilter = u"txt:Text (encoded):UTF8"_s;

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool leave(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// LibreOffice takes no Type 1 fonts, of which many stand beside the same face in a newer format
/// that knows which letters go closer together.
void useFontsOfOffice(const QTemporaryDir& folder) {
    const QString path = folder.filePath(u"fonts.conf"_s);
    if (leave(path, "<fontconfig><include>/etc/fonts/fonts.conf</include><selectfont><rejectfont>"
                    "<pattern><patelt name=\"fontformat\"><string>Type 1</string></patelt>"
                    "</pattern></rejectfont></selectfont></fontconfig>"))
        qputenv("FONTCONFIG_FILE", path.toUtf8());
}

struct Sample {
    QString name;
    QString label;   ///< of the files that are made of it
    QString unsound; ///< what is broken in it
    bool aside = false;
    double top = 0; ///< of the text on a page, in points
    double bottom = 0;
};

class Measurement {
public:
    Measurement(QString folder, const QString& place, bool onlyOwn)
        : m_folder(std::move(folder))
        , m_place(place)
        , m_onlyOwn(onlyOwn)
        , m_office(m_place.filePath(u"office"_s)) {
        for (const char* part : {"given", "written", "given-pdf", "given-txt", "written-pdf",
                                 "written-txt", "own-pdf", "bare", "bare-pdf", "office"})
            m_place.mkpath(QString::fromLatin1(part));
    }

    int run() {
        collect();
        if (!m_onlyOwn) {
            convert(u"given"_s);
            convert(u"written"_s);
        }
        convertBare();
        for (const Sample& sample : std::as_const(m_samples))
            measure(sample);
        tell();
        return m_samples.isEmpty() ? 1 : 0;
    }

private:
    void collect() {
        QDirIterator it(m_folder, {u"*.rtf"_s}, QDir::Files | QDir::Hidden,
                        QDirIterator::Subdirectories);
        QStringList names;
        while (it.hasNext())
            names << QDir(m_folder).relativeFilePath(it.next());
        names.sort();
        for (const QString& name : std::as_const(names)) {
            const QByteArray bytes = contentOf(m_folder + u'/' + name);
            if (m_onlyOwn && standsAside(bytes))
                continue;
            QTextDocument document;
            const rtf::Fault fault = rtf::readRtf(bytes, document).fault;
            if (fault == rtf::Fault::NotRtf)
                continue;
            Sample sample{name, QString(name).replace(u'/', u'~').chopped(4),
                          unsoundness(bytes, fault), standsAside(bytes)};
            const QRectF area = textArea(bytes);
            sample.top = area.top() / TwipsPerPoint;
            sample.bottom = area.bottom() / TwipsPerPoint;
            if (!m_onlyOwn) {
                leave(path(u"given"_s, sample, u".rtf"_s), bytes);
                leave(path(u"written"_s, sample, u".rtf"_s), rtf::writeRtf(document));
            }
            m_samples.append(sample);
        }
    }

    QString path(const QString& part, const Sample& sample, const QString& ending) const {
        return m_place.filePath(part + u'/' + sample.label + ending);
    }

    void convert(const QString& part) {
        QStringList files;
        for (const Sample& sample : std::as_const(m_samples))
            files << path(part, sample, u".rtf"_s);
        const bool again = part == u"written"_s;
        for (const QString& kind : {u"pdf"_s, u"txt"_s}) {
            const QString into = m_place.filePath(part + u'-' + kind);
            if (again) {
                QDir(into).removeRecursively();
                QDir().mkpath(into);
            }
            m_office.convert(files, kind == u"pdf"_s ? kind : TextFilter, into);
        }
    }

    /// The files with anything that the program does not show as LibreOffice does, for the
    /// program's own pages.
    void convertBare() {
        QStringList files;
        for (const Sample& sample : std::as_const(m_samples)) {
            const QByteArray bytes = contentOf(m_folder + u'/' + sample.name);
            const QByteArray bare = asShown(bytes);
            const QString file = path(u"bare"_s, sample, u".rtf"_s);
            if (contentOf(file) != bare)
                QFile::remove(path(u"bare-pdf"_s, sample, u".pdf"_s));
            if (sample.aside || bare == bytes)
                continue;
            files << file;
            leave(file, bare);
        }
        m_office.convert(files, u"pdf"_s, m_place.filePath(u"bare-pdf"_s));
    }

    void measure(const Sample& sample) {
        const QString givenPdf = path(u"given-pdf"_s, sample, u".pdf"_s);
        const QByteArray text = contentOf(path(u"given-txt"_s, sample, u".txt"_s));
        constexpr qsizetype Beginning = 64;
        if (text.first(std::min(text.size(), Beginning)).contains("\\rtf1")) {
            std::printf("NONE\t%s\tLibreOffice shows it byte by byte\n",
                        qUtf8Printable(sample.name));
            return;
        }
        if (!QFile::exists(givenPdf)) {
            std::printf("NONE\t%s\tLibreOffice makes nothing of it\n", qUtf8Printable(sample.name));
            return;
        }
        const PdfText given = readPdf(givenPdf);
        if (!m_onlyOwn)
            measureWritten(sample, given);
        const QString barePdf = path(u"bare-pdf"_s, sample, u".pdf"_s);
        if (!sample.aside)
            measureOwn(sample, QFile::exists(barePdf) ? barePdf : givenPdf);
    }

    void measureWritten(const Sample& sample, const PdfText& given) {
        ++m_files;
        measureText(sample);
        const PdfText written = readPdf(path(u"written-pdf"_s, sample, u".pdf"_s));
        const bool samePages = given.pages == written.pages;
        m_samePages += samePages;
        if (!samePages)
            std::printf("PAGES\t%s\t%d, not %d\n", qUtf8Printable(sample.name), written.pages,
                        given.pages);
        const Likeness likeness = compare(given, written);
        m_likeness += likeness;
        const auto miss = [&](const char* what, const Share& share) {
            if (share.alike < share.all)
                std::printf("%s\t%s\t%.1f %% of %lld\n", what, qUtf8Printable(sample.name),
                            share.perCent(), static_cast<long long>(share.all));
        };
        miss("FONT", likeness.font);
        miss("SIZE", likeness.size);
        miss("WEIGHT", likeness.weight);
        miss("COLOUR", likeness.color);
        miss("PLACE", likeness.place);
    }

    static QString brokenBy(const Sample& sample) {
        return sample.unsound.isEmpty() ? QString() : u" (broken: "_s + sample.unsound + u')';
    }

    void measureText(const Sample& sample) {
        const QString given =
            folded(QString::fromUtf8(contentOf(path(u"given-txt"_s, sample, u".txt"_s))));
        const QString written =
            folded(QString::fromUtf8(contentOf(path(u"written-txt"_s, sample, u".txt"_s))));
        if (given.isEmpty())
            return;
        const bool isSound = sample.unsound.isEmpty();
        ++m_texts;
        m_soundTexts += isSound;
        if (given == written) {
            ++m_sameTexts;
            m_sameSoundTexts += isSound;
            return;
        }
        const auto ends = std::mismatch(given.begin(), given.end(), written.begin(), written.end());
        const qsizetype at = ends.first - given.begin();
        const qsizetype from = std::max<qsizetype>(at - 20, 0);
        std::printf("TEXT\t%s\tat %lld: \"%s\", then \"%s\"%s\n", qUtf8Printable(sample.name),
                    static_cast<long long>(at), qUtf8Printable(given.mid(from, 60)),
                    qUtf8Printable(written.mid(from, 60)), qUtf8Printable(brokenBy(sample)));
    }

    void measureOwn(const Sample& sample, const QString& givenPdf) {
        const QByteArray bytes = contentOf(m_folder + u'/' + sample.name);
        // A file without fonts is shown in those of whoever shows it.
        const QString family =
            bytes.contains("{\\fonttbl") ? u"Times New Roman"_s : mainFamily(givenPdf);
        const QString ownPdf = path(u"own-pdf"_s, sample, u".pdf"_s);
        const QByteArray text = contentOf(path(u"given-txt"_s, sample, u".txt"_s));
        printOwnPages(bytes, ownPdf, widensBlanks(text), family);
        const PdfText given = readPdf(givenPdf);
        QString miss;
        const Share edges = compareLeftEdges(given, readPdf(ownPdf), sample.top, sample.bottom,
                                             toldLabels(bytes), miss);
        if (edges.all == 0) {
            const auto isRare = [](const Word& word) { return word.isRare; };
            if (std::any_of(given.words.cbegin(), given.words.cend(), isRare))
                std::printf("NONE\t%s\tno font has its letters\n", qUtf8Printable(sample.name));
            return;
        }
        const bool isSound = sample.unsound.isEmpty();
        const bool isAlike = edges.alike == edges.all;
        m_own += {isAlike, 1};
        m_soundOwn += {isSound && isAlike, isSound};
        m_edges += edges;
        if (!isAlike)
            std::printf("OWN\t%s\t%.1f %% of %lld: %s%s\n", qUtf8Printable(sample.name),
                        edges.perCent(), static_cast<long long>(edges.all), qUtf8Printable(miss),
                        qUtf8Printable(brokenBy(sample)));
    }

    void tell() const {
        const auto line = [](const char* what, const Share& share) {
            std::printf("%-58s %8lld of %8lld  %6.2f %%\n", what,
                        static_cast<long long>(share.alike), static_cast<long long>(share.all),
                        share.perCent());
        };
        if (!m_onlyOwn) {
            line("what we write: text equal, of the files with a text", {m_sameTexts, m_texts});
            line("text equal, of those among them that are not broken",
                 {m_sameSoundTexts, m_soundTexts});
            line("pages equal", {m_samePages, m_files});
            line("characters with the same font", m_likeness.font);
            line("characters with the same size", m_likeness.size);
            line("characters with the same weight", m_likeness.weight);
            line("characters with the same colour", m_likeness.color);
            line("characters in place", m_likeness.place);
        }
        line("own pages: files with all words of page one in place", m_own);
        line("files in place, of those among them that are not broken", m_soundOwn);
        line("own pages: words in place", m_edges);
    }

    QString m_folder;
    QDir m_place;
    bool m_onlyOwn;
    Office m_office;
    QList<Sample> m_samples;
    qint64 m_files = 0;
    qint64 m_texts = 0;
    qint64 m_sameTexts = 0;
    qint64 m_soundTexts = 0;
    qint64 m_sameSoundTexts = 0;
    qint64 m_samePages = 0;
    Likeness m_likeness;
    Share m_own;
    Share m_soundOwn;
    Share m_edges;
};

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir fonts;
    useFontsOfOffice(fonts);
    QApplication app(argc, argv);
    QStringList arguments = QApplication::arguments().sliced(1);
    QTemporaryDir temporary;
    QString place = temporary.path();
    bool onlyOwn = false;
    if (arguments.size() >= 3 && arguments.first() == u"--keep"_s) {
        place = QFileInfo(arguments.at(1)).absoluteFilePath();
        arguments.remove(0, 2);
        onlyOwn = arguments.removeAll(u"--own"_s) > 0;
    }
    if (arguments.size() != 1) {
        std::fprintf(stderr, "usage: rtf_likeness [--keep OTHER [--own]] FOLDER\n");
        return 2;
    }
    return Measurement(QFileInfo(arguments.first()).absoluteFilePath(), place, onlyOwn).run();
}
