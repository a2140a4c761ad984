// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// notes_bench: what a person waits for on the Notes panel, each figure beside its limit.
#include "controls/image.h"
#include "controls/rich_text_box.h"
#include "notes/find_commands.h"
#include "notes/notes_panel.h"
#include "notes/print_rtf.h"
#include "platform/printer.h"
#include "runtime/failure.h"
#include "support/test_program.h"
#include "timing.h"
#include "widgets/gg_command.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <QImage>
#include <QKeyEvent>
#include <QPrinter>
#include <QRandomGenerator>
#include <QTextDocument>

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int Megabyte = 1'000'000;

void tell(const char* what, double milliseconds, double limit) {
    std::printf("%-66s %9.2f ms", what, milliseconds);
    if (limit > 0)
        std::printf("  limit %5.0f ms  %s", limit, milliseconds <= limit ? "kept" : "MISSED");
    std::printf("\n");
}

QString lines(int characters) {
    QString text;
    for (int line = 0; text.size() < characters; ++line)
        text += u"Line %1 of a long note, with enough words in it to wrap once.\r\n"_s.arg(line);
    return text;
}

struct RichText {
    QByteArray rtf;
    qsizetype characters = -LineEnd; ///< the last paragraph's end is none
    static constexpr int LineEnd = 2;

    void end() {
        rtf += "\\par\n";
        characters += LineEnd;
    }
};

RichText richText(int bytes) {
    RichText text{"{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0\\fs18 "};
    for (int line = 0; text.rtf.size() < bytes; ++line) {
        const QByteArray number = QByteArray::number(line);
        text.rtf += "Line " + number +
                    " of a {\\b long} note, with {\\i enough} words in it to wrap {\\ul once}.";
        text.characters +=
            number.size() + qstrlen("Line  of a long note, with enough words in it to wrap once.");
        text.end();
    }
    text.rtf += '}';
    return text;
}

/// Plain text in one size, in paragraphs of so many characters.
RichText plainRichText(int bytes, int halfPoints, int paragraph) {
    RichText text{"{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0\\fs" + QByteArray::number(halfPoints) +
                  ' '};
    const QByteArray words = "It was a note like any other, of a day on which little happened. ";
    const QByteArray piece = words.repeated(paragraph / int(words.size()) + 1).first(paragraph);
    while (text.rtf.size() < bytes) {
        text.rtf += piece;
        text.characters += paragraph;
        text.end();
    }
    text.rtf += '}';
    return text;
}

class Desk : public TestProgram {
public:
    Desk() {
        program.windows.registerMaker<NotesPanel>(
            [this] { return std::make_unique<frmnotes2>(program); });
    }
    ~Desk() { program.windows.unload<NotesPanel>(); }

    Form& open() {
        Form& form = program.windows.get<NotesPanel>().form();
        form.Show();
        QApplication::processEvents();
        return form;
    }
    RichTextBox& box(const QString& name) {
        return *program.windows.get<NotesPanel>().form().findChild<RichTextBox*>(name);
    }
};

void measureOpening() {
    Desk desk;
    const double time = bench::medianMilliseconds(
        9, [&] { desk.open(); },
        [&] {
            desk.program.windows.unload<NotesPanel>();
            QApplication::processEvents();
        });
    tell("the panel comes up", time, 150);
}

void measureTyping(const char* what, const QString& text, double limit) {
    Desk desk;
    desk.open();
    RichTextBox& left = desk.box(u"rt1"_s);
    left.SetText(text);
    desk.box(u"rt5"_s).SetText(text);
    left.SetSelStart(static_cast<int>(text.size()));
    left.ensureCursorVisible();
    QApplication::processEvents();
    const double time = bench::medianMilliseconds(51, [&] {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_A, {}, u"a"_s);
        QApplication::sendEvent(&left, &press);
        QApplication::processEvents();
    });
    tell(what, time, limit);
}

/// The longest time, in milliseconds, in which nobody heard how far long work is.
class Silence {
public:
    Silence() { m_timer.start(); }

    void hear() {
        const qint64 now = m_timer.nsecsElapsed();
        m_longest = std::max(m_longest, now - std::exchange(m_heard, now));
    }
    double longest() const { return double(m_longest) / 1e6; }
    qint64 milliseconds() const { return m_timer.elapsed(); }

private:
    QElapsedTimer m_timer;
    qint64 m_heard = 0;
    qint64 m_longest = 0;
};

void tellSilence(const Silence& silence) {
    tell("      of that at the most with nothing painted", silence.longest(), 0);
}

/// Who hears of the work asks the clock whether it is time to paint.
void measureLongWork(const char* what, Desk& desk, const QString& name, double limit) {
    QWidget& form = desk.program.windows.get<NotesPanel>().form();
    const QDateTime start = desk.clock.now();
    Silence silence;
    desk.clock.whenAsked = [&] {
        silence.hear();
        desk.clock.set(start.addMSecs(silence.milliseconds()));
    };
    const double time = bench::millisecondsOf([&] {
        if (auto* picture = form.findChild<Image*>(name))
            emit picture->Click();
        else
            form.findChild<GGCommand*>(name)->setValue(true);
        silence.hear();
        QApplication::processEvents();
    });
    desk.clock.whenAsked = {};
    tell(what, time, limit);
    tellSilence(silence);
}

void measurePrinting(Desk& desk) {
    DesktopPrinter printer;
    printer.device().setOutputFileName(desk.folder.file(u"large.pdf"_s));
    Silence silence;
    const double time = bench::millisecondsOf([&] {
        printPages(desk.box(u"rt1a"_s), printer, {}, [&](double) { silence.hear(); });
        silence.hear();
    });
    tell("  it is printed", time, 0);
    tellSilence(silence);
}

/// A note of some pages with a photograph, as most files of this size are.
RichText withPhotograph(int bytes) {
    RichText text = richText(Megabyte);
    text.rtf.chop(1);
    const int rows = (bytes - Megabyte) / 6 / 1024; // a pixel takes three bytes, a byte two digits
    QImage noise(1024, rows, QImage::Format_RGB32);
    QRandomGenerator dice(1);
    dice.fillRange(reinterpret_cast<quint32*>(noise.bits()), noise.sizeInBytes() / 4);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    noise.save(&buffer, "PNG");
    text.rtf += "{\\pict\\pngblip\\picwgoal3600\\pichgoal3600 " + png.toHex() + "}";
    ++text.characters;
    text.end();
    text.rtf += '}';
    return text;
}

void measureKeys(const char* what, Desk& desk, QTextCursor::MoveOperation place) {
    RichTextBox& left = desk.box(u"rt1"_s);
    for (const auto* box :
         desk.program.windows.get<NotesPanel>().form().findChildren<RichTextBox*>())
        box->document()->documentLayout()->documentSize(); // as they are after some seconds
    left.moveCursor(place);
    QApplication::processEvents();
    const auto press = [&] {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_A, {}, u"a"_s);
        QApplication::sendEvent(&left, &key);
        QApplication::processEvents();
    };
    tell((what + std::string(", the first one")).c_str(), bench::millisecondsOf(press), 0);
    tell(what, bench::medianMilliseconds(21, press), 0);
}

void measureFile(const char* what, const RichText& text) {
    Desk desk;
    desk.open();
    const QString path = desk.folder.write(u"large.rtf"_s, text.rtf);
    std::printf("%s, of %lld bytes\n", what, static_cast<long long>(text.rtf.size()));
    desk.dialogs.answerOpen(path);
    measureLongWork("  it opens on the right page", desk, u"imgOpen"_s, 1500);
    const qsizetype shown = desk.box(u"rt1a"_s).Text().size();
    std::printf("  characters of it that stand there %32lld of %lld  %s\n",
                static_cast<long long>(shown), static_cast<long long>(text.characters),
                shown == text.characters ? "all" : "NOT ALL");
    measureLongWork("  it is taken over", desk, u"Button1"_s, 0);
    measureKeys("  a key at its end", desk, QTextCursor::End);
    measureKeys("  a key at its beginning", desk, QTextCursor::Start);
    desk.dialogs.answerSave(desk.folder.file(u"copy.rtf"_s));
    measureLongWork("  it is saved as rich text", desk, u"imgSave"_s, 0);
    measurePrinting(desk);
    desk.dialogs.answerSave(desk.folder.file(u"copy.txt"_s));
    measureLongWork("  it is saved as plain text", desk, u"imgSave"_s, 0);
    desk.dialogs.answerOpen(desk.folder.file(u"copy.txt"_s));
    measureLongWork("  it is opened as plain text", desk, u"imgOpen"_s, 0);
}

void measureReplacing(const char* what, const QString& text, double limit) {
    Desk desk;
    desk.open();
    RichTextBox& left = desk.box(u"rt1"_s);
    left.SetText(text);
    FindCommands find;
    const double time = bench::millisecondsOf([&] {
        endSilently([&] { find.replaceAll(left, {.text = u"two"_s, .replacement = u"2"_s}); });
        QApplication::processEvents();
    });
    tell(what, time, limit);
}

void measureEndless() {
    Desk desk;
    desk.open();
    RichTextBox& left = desk.box(u"rt1"_s);
    left.SetText(u"x a"_s);
    FindCommands find;
    const double time = bench::millisecondsOf([&] {
        endSilently([&] { find.replaceAll(left, {.text = u"a"_s, .replacement = u"aa"_s}); });
    });
    tell("a replacement that holds its own text, until it overflows", time, 2000);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    measureOpening();
    measureTyping("a key at the end of 1 MB in many lines", lines(Megabyte), 16);
    // A paragraph is laid out anew at each key, however long it is.
    measureTyping("a key at the end of one line of 32 KB", QString(u"word "_s).repeated(6400), 0);
    measureFile("a rich text with a photograph", withPhotograph(5 * Megabyte));
    measureFile("a rich text of many runs", richText(5 * Megabyte));
    measureFile("a text of 12 points", plainRichText(5 * Megabyte, 24, 200));
    measureFile("a text of 8 points", plainRichText(5 * Megabyte, 16, 200));
    measureFile("a text of short paragraphs of 12 points", plainRichText(5 * Megabyte, 24, 24));
    measureFile("a text of few paragraphs of 12 points", plainRichText(5 * Megabyte, 24, Megabyte));
    measureReplacing("5,000 hits in many lines replaced", QString(u"a two\r\n"_s).repeated(4500),
                     300);
    measureReplacing("5,000 hits in one line replaced", QString(u"a two "_s).repeated(5000), 300);
    measureEndless();
    return 0;
}
