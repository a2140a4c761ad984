// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// rtf_bench: the speed of the RTF reader and writer, beside a bare cursor and beside unrtf where
// it is installed, and how it holds as documents grow.
#include "rtf/formats/block_formats.h"
#include "rtf/formats/text_formats.h"
#include "rtf/reader.h"
#include "rtf/reading/sink.h"
#include "rtf/writer.h"
#include "support/test_main.h"
#include "timing.h"

#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <vector>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace orvalis;
using namespace orvalis::rtf;
using bench::processorSeconds;
using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype Megabyte = 1'000'000;
constexpr int Rounds = 5;
constexpr double ReaderLimit = 100;  // MB/s
constexpr double CursorLimit = 1.5;  // times the bare cursor
constexpr double OutsideLimit = 5.0; // times faster than unrtf
constexpr double WriterLimit = 60;   // MB/s
double rate(qsizetype bytes, double time) {
    return double(bytes) / double(Megabyte) / time;
}

bool anyMissed = false;

void tell(const char* what, double figure, const char* unit, bool kept, const QString& limit) {
    std::printf("%-58s %9.1f %-5s limit %-12s %s\n", what, figure, unit, qUtf8Printable(limit),
                kept ? "kept" : "MISSED");
    anyMissed |= !kept;
}

/// Makes documents as people write them: headings, running text with words set off in all ways,
/// letters beyond ASCII, items, links and tabs; half of the paragraphs as rich edit controls write
/// them, flat and terse, half as word processors do. Runs are as long as the median of real files
/// has them, some 55 characters.
class MixedDocument {
public:
    QByteArray rtf(qsizetype size) {
        m_rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}"
                "{\\f1\\froman\\fcharset0 Times New Roman;}{\\f2\\fnil\\fcharset2 Symbol;}}\r\n"
                "{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green0\\blue255;}\r\n"
                "\\viewkind4\\uc1\\pard\\f0\\fs20 ";
        m_rtf.reserve(size + 4096);
        while (m_rtf.size() < size) {
            if (below(2) == 0)
                terseParagraph();
            else
                wordyParagraph();
            m_rtf += "\\par\r\n";
        }
        return m_rtf + "}\r\n";
    }

private:
    int below(int limit) { return int(m_random.bounded(limit)); }

    void words(int count) {
        static constexpr const char* Known[] = {
            "letter", "the",      "of",      "morning", "a",   "price",   "calls", "and",
            "to",     "Saturday", "dentist", "garden",  "key", "because", "seven", "caf\\'e9"};
        for (; count > 0; --count)
            m_rtf.append(Known[below(int(std::size(Known)))]).append(' ');
    }

    void terseParagraph() {
        static constexpr std::pair<const char*, const char*> Looks[] = {
            {"\\b ", "\\b0 "},          {"\\i ", "\\i0 "},  {"{\\ul ", "}"},
            {"\\cf1 ", "\\cf0 "},       {"{\\super ", "}"}, {"\\f1\\fs28 ", "\\f0\\fs20 "},
            {"\\strike ", "\\strike0 "}};
        const int kind = below(6);
        if (kind == 0)
            m_rtf += "\\pard\\qc\\sb120\\sa120\\b\\fs32 ";
        else if (kind == 1)
            m_rtf += "\\pard{\\pntext\\f2\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf2\\pnindent0{\\pntxtb"
                     "\\'B7}}\\fi-360\\li720 ";
        else if (kind == 2)
            m_rtf += "\\pard\\tx1440\\tqr\\tx5000 ";
        else
            m_rtf += "\\pard\\sa100 ";
        for (int sentence = 1 + below(3); sentence > 0; --sentence) {
            words(8 + below(20));
            const auto& [on, off] = Looks[below(int(std::size(Looks)))];
            m_rtf += on;
            words(1 + below(4));
            m_rtf += off;
        }
        if (kind == 0)
            m_rtf += "\\b0\\fs20";
        else if (kind == 2)
            m_rtf += "\\tab 7 \\endash  8\\tab 12.50 \\u8364?";
        else if (kind == 3)
            m_rtf += "{\\field{\\*\\fldinst{HYPERLINK \"http://example.org/\"}}"
                     "{\\fldrslt{\\ul there}}}";
    }

    void wordyParagraph() {
        static constexpr const char* Looks[] = {"\\b",   "\\i",    "\\ul",
                                                "\\cf2", "\\fs28", "\\highlight1"};
        m_rtf +=
            "\\pard\\plain \\ltrpar\\qj\\fi284\\li0\\ri0\\sa160\\sl259\\slmult1\\widctlpar"
            "\\wrapdefault\\aspalpha\\aspnum\\faauto\\adjustright\\rin0\\lin0\\itap0 \\rtlch\\fcs1 "
            "\\af0\\afs20 \\ltrch\\fcs0 \\f0\\fs20\\lang1033\\langfe1033 ";
        for (int sentence = 1 + below(3); sentence > 0; --sentence) {
            m_rtf += "{\\rtlch\\fcs1 \\af0 \\ltrch\\fcs0 \\insrsid4738105 ";
            words(8 + below(20));
            m_rtf += "}{\\rtlch\\fcs1 \\af0 \\ltrch\\fcs0 ";
            m_rtf += Looks[below(int(std::size(Looks)))];
            m_rtf += "\\insrsid13261 ";
            words(1 + below(4));
            m_rtf += "}";
        }
        m_rtf += "{\\*\\bkmkstart _Toc}{\\*\\bkmkend _Toc}";
    }

    QRandomGenerator m_random{1};
    QByteArray m_rtf;
};

QByteArray mixedDocument(qsizetype size) {
    return MixedDocument().rtf(size);
}

/// The runs of a document as a program would insert them by hand: text and ready formats.
class RunList final : public Sink {
public:
    void begin(const Names& names) override { m_names = &names; }
    void text(QStringView text, const CharFormat& format) override {
        m_line.push_back({text.toString(), textFormat(format, *m_names)});
    }
    bool picture(const Picture& /*picture*/, const CharFormat& /*format*/) override { return true; }
    void paragraphEnd(const ParagraphFormat& paragraph, const CharFormat& mark) override {
        m_paragraphs.push_back({blockFormat(paragraph, *m_names, 720), textFormat(mark, *m_names),
                                std::exchange(m_line, {})});
    }
    void end(const ParagraphFormat& /*paragraph*/, const CharFormat& /*mark*/) override {}

    void insert(QTextDocument& document) const {
        document.setUndoRedoEnabled(false);
        QTextCursor cursor(&document);
        cursor.beginEditBlock();
        for (const Paragraph& paragraph : m_paragraphs) {
            cursor.insertBlock(paragraph.shape, paragraph.mark);
            for (const Run& run : paragraph.runs)
                cursor.insertText(run.text, run.look);
        }
        cursor.endEditBlock();
    }

private:
    struct Run {
        QString text;
        QTextCharFormat look;
    };
    struct Paragraph {
        QTextBlockFormat shape;
        QTextCharFormat mark;
        std::vector<Run> runs;
    };

    const Names* m_names = nullptr;
    std::vector<Run> m_line;
    std::vector<Paragraph> m_paragraphs;
};

double readingSeconds(const QByteArray& rtf) {
    return processorSeconds(
        Rounds,
        [&] {
            NullSink sink;
            readRtf(rtf, sink);
        });
}

void readerAlone(const QByteArray& rtf) {
    const double speed = rate(rtf.size(), readingSeconds(rtf));
    tell("reader alone, 10 MB of mixed formatting", speed, "MB/s", speed >= ReaderLimit,
         u">= %1"_s.arg(ReaderLimit));
}

void besideACursor(const QByteArray& rtf) {
    RunList runs;
    readRtf(rtf, runs);
    // One after the other in each round, so that both meet the same machine.
    double own = std::numeric_limits<double>::max();
    double bare = own;
    for (int round = 0; round < Rounds; ++round) {
        QTextDocument byReader;
        own = std::min(own, processorSeconds(1, [&] { readRtf(rtf, byReader); }));
        QTextDocument byCursor;
        bare = std::min(bare, processorSeconds(1, [&] { runs.insert(byCursor); }));
    }
    std::printf("  10 MB into a document %.3f s, its runs by a bare cursor %.3f s\n", own, bare);
    tell("reader into a document, to a bare cursor", own / bare, "x", own / bare <= CursorLimit,
         u"<= %1"_s.arg(CursorLimit));
}

double secondsOfChildren() {
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto of = [](const timeval& time) { return double(time.tv_sec) + time.tv_usec / 1e6; };
    return of(usage.ru_utime) + of(usage.ru_stime);
}

void besideUnrtf(const QByteArray& rtf) {
    const QString tool = QStandardPaths::findExecutable(u"unrtf"_s);
    if (tool.isEmpty()) {
        std::printf("unrtf is not installed: end to end is not compared\n");
        return;
    }
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"mixed.rtf"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(rtf) != rtf.size())
        return;
    file.close();
    const double own = processorSeconds(3, [&] {
        QFile source(path);
        QTextDocument document;
        if (source.open(QIODevice::ReadOnly))
            readRtf(source.readAll(), document);
        if (document.toPlainText().isEmpty())
            std::abort();
    });
    double other = std::numeric_limits<double>::max();
    for (int round = 0; round < 3; ++round) {
        const double before = secondsOfChildren();
        QProcess process;
        process.setStandardOutputFile(folder.filePath(u"mixed.txt"_s));
        process.start(tool, {u"--text"_s, path});
        process.waitForFinished(-1);
        other = std::min(other, secondsOfChildren() - before);
    }
    std::printf("  file to text by way of a document %.3f s, by unrtf %.3f s\n", own, other);
    tell("end to end, to unrtf --text", other / own, "x", other / own >= OutsideLimit,
         u">= %1"_s.arg(OutsideLimit));
}

void writerAlone(const QByteArray& rtf) {
    QTextDocument document;
    readRtf(rtf, document);
    qsizetype written = 0;
    const double time = processorSeconds(Rounds, [&] { written = writeRtf(document).size(); });
    const double speed = rate(written, time);
    tell("writer, 10 MB of mixed formatting", speed, "MB/s", speed >= WriterLimit,
         u">= %1"_s.arg(WriterLimit));
}

void growth() {
    std::printf("%8s %16s %22s %16s\n", "MB", "reader, MB/s", "into a document, MB/s",
                "writer, MB/s");
    for (const int megabytes : {1, 2, 5, 10, 20, 50}) {
        const QByteArray rtf = mixedDocument(megabytes * Megabyte);
        const double reading = readingSeconds(rtf);
        QTextDocument document;
        const double filling = processorSeconds(2, [&] { readRtf(rtf, document); });
        qsizetype written = 0;
        const double writing = processorSeconds(3, [&] { written = writeRtf(document).size(); });
        std::printf("%8d %16.1f %22.1f %16.1f\n", megabytes, rate(rtf.size(), reading),
                    rate(rtf.size(), filling), rate(written, writing));
    }
}

} // namespace

int main(int argc, char** argv) {
    test::fixedGround();
    const QGuiApplication app(argc, argv);
    const QByteArray rtf = mixedDocument(10 * Megabyte);
    readerAlone(rtf);
    besideACursor(rtf);
    besideUnrtf(rtf);
    writerAlone(rtf);
    growth();
    return anyMissed ? 1 : 0;
}
