// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_text_box.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

constexpr int Characters = 1'000'000;
constexpr int Entries = 5'000;
constexpr int Replacements = 1'000;

template <class Work>
double medianMilliseconds(int rounds, Work&& work) {
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        work();
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void tell(const char* what, double milliseconds, double limit, const char* yardstick,
          double other) {
    std::printf("%-58s %9.3f ms", what, milliseconds);
    if (limit > 0)
        std::printf("  limit %5.0f ms  %s", limit, milliseconds <= limit ? "kept" : "MISSED");
    if (other > 0)
        std::printf("  (%s %.3f ms, ratio %.2f)", yardstick, other, milliseconds / other);
    std::printf("\n");
}

QString largeText() {
    QString text;
    for (int line = 0; text.size() < Characters; ++line)
        text += u"Line %1 of a long note, with enough words in it to wrap once or twice.\r\n"_s.arg(
            line);
    return text;
}

void layOut(QTextEdit& edit) {
    edit.resize(300, 320);
    edit.show();
    (void)edit.document()->size();
    QApplication::processEvents();
}

void pressKey(QTextEdit& edit) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, u"x"_s);
    QApplication::sendEvent(&edit, &press);
}

void keys(RichTextBox& box, QTextEdit& bare) {
    constexpr int Count = 200;
    box.SetSelStart(Characters / 2);
    QTextCursor middle(bare.document());
    middle.setPosition(bare.document()->characterCount() / 2);
    bare.setTextCursor(middle);
    (void)box.Text();
    qint64 sum = 0;
    const double asked = medianMilliseconds(
        Count,
        [&] {
            pressKey(box);
            sum += box.SelStart() + box.Text().size();
        });
    const double plain = medianMilliseconds(Count, [&] { pressKey(bare); });
    tell("a key in 1 MB, with SelStart and Text read behind it", asked, 0, "bare editor, a key",
         plain);
    const double rebuilt = medianMilliseconds(
        Count, [&] { sum += bare.document()->toPlainText().size(); });
    const double read =
        medianMilliseconds(Count, [&] { sum += box.SelStart() + box.Text().size(); });
    tell("SelStart and Text of 1 MB", read, 0, "a rebuilt text", rebuilt);
    if (sum == 0)
        std::printf("nothing was read\n");
}

void find(RichTextBox& box, QTextEdit& bare) {
    const QString absent = u"zebra crossing"_s;
    const double other = medianMilliseconds(5, [&] { (void)bare.document()->find(absent, 0); });
    for (const auto& [what, options] :
         {std::pair("Find over 1 MB, any capitals", 0), std::pair("Find over 1 MB, match case", 4),
          std::pair("Find over 1 MB, whole words", 2)}) {
        const double time =
            medianMilliseconds(15, [&, wanted = options] { box.Find(absent, 1, -1, wanted); });
        tell(what, time, 10, "QTextDocument::find", other);
    }
    const double common = medianMilliseconds(15, [&] { box.Find(u"Enough WORDZ"_s, 1); });
    tell("Find over 1 MB, a near miss on each line", common, 10, "", 0);
    std::vector<std::unique_ptr<RichTextBox>> fresh;
    for (int i = 0; i < 5; ++i) {
        fresh.push_back(std::make_unique<RichTextBox>());
        fresh.back()->SetText(box.Text());
    }
    size_t next = 0;
    const double cold = medianMilliseconds(5, [&] { fresh[next++]->Find(absent, 1); });
    tell("Find over 1 MB, the first one after the text came", cold, 10, "", 0);
    double inBatch = 0;
    {
        const RichTextBox::Batch batch(*fresh.front());
        fresh.front()->SetSelText(u"x"_s);
        inBatch = medianMilliseconds(5, [&] { fresh.front()->Find(absent, 1); });
    }
    tell("Find over 1 MB behind an edit of an open batch", inBatch, 10, "", 0);
}

void batches(const QString& text) {
    RichTextBox box;
    layOut(box);
    box.SetText(text);
    layOut(box);
    QTextEdit bare;
    bare.setPlainText(text);
    layOut(bare);
    const double middle = medianMilliseconds(3, [&] {
        const RichTextBox::Batch batch(box);
        box.SetSelStart(Characters / 2);
        for (int i = 0; i < Replacements; ++i)
            box.SetSelText(u"inserted "_s);
    });
    const double other = medianMilliseconds(3, [&] {
        QTextCursor cursor(bare.document());
        cursor.setPosition(bare.document()->characterCount() / 2);
        cursor.beginEditBlock();
        for (int i = 0; i < Replacements; ++i)
            cursor.insertText(u"inserted "_s);
        cursor.endEditBlock();
    });
    tell("1,000 insertions at one place of 1 MB, visible", middle, 200, "bare cursor", other);

    box.SetText(text);
    layOut(box);
    int hits = 0;
    const double lines = medianMilliseconds(1, [&] {
        const RichTextBox::Batch batch(box);
        int at = box.Find(u"enough"_s, Characters / 2);
        for (hits = 0; hits < Replacements && at >= 0; ++hits) {
            box.SetSelText(u"plenty of"_s);
            at = box.Find(u"enough"_s, at + 1);
        }
    });
    std::printf("%d hits: ", hits);
    tell("find and replace them from the middle on, visible", lines, 200, "", 0);
}

QByteArray todo() {
    QByteArray rtf =
        "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil Arial;}}{\\colortbl ;\\red255\\green0"
        "\\blue0;\\red0\\green0\\blue0;}\\pard\\f0\\fs16 ";
    for (int entry = 0; entry < Entries; ++entry) {
        rtf += "\\par Title " + QByteArray::number(entry) +
               "\\par ___________________\\par\\par Call the dentist back and {\\b bring} the "
               "letters\\par\\par\\cf1     To do: Saturday, June 01, 2002\\cf2\\par     Saved: "
               "6/1/2002 10:24:36 AM\\par ___________________\\par ";
    }
    return rtf + "}";
}

void appending() {
    QTemporaryDir folder;
    RichTextBox list;
    list.SetTextRTF(todo());
    layOut(list);
    RichTextBox message;
    message.SetText(u"buy milk"_s);
    const double time = medianMilliseconds(
        9,
        [&] {
            list.SetSelStart(int(list.Text().size()));
            list.SetSelText(u"\r\nTitle\r\n___________________\r\n"_s);
            list.SetSelText(u"\r\n"_s);
            list.SetSelRTF(message.TextRTF());
            list.SetSelFontName(u"Arial"_s);
            list.SetSelFontSize(8);
            list.SetSelBold(false);
            list.SetSelItalic(false);
            list.SetSelStrikeThru(false);
            list.SetSelUnderline(false);
            list.SetSelColor(255);
            list.SetSelText(u"\r\n\r\n    To do: Saturday, June 01, 2002"_s);
            list.SetSelColor(0);
            list.SetSelText(u"\r\n    Saved: 6/1/2002 10:24:36 AM\r\n___________________\r\n"_s);
            list.files().SaveFile(folder.filePath(u"Vazno.rtf"_s), 0);
            list.SetSelStart(int(list.Text().size()));
        });
    const double writing = medianMilliseconds(9, [&] { (void)list.TextRTF(); });
    std::printf("%lld characters: ", static_cast<long long>(list.Text().size()));
    tell("an entry appended to 5,000 and saved", time, 150, "writing the RTF alone", writing);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QString text = largeText();
    {
        RichTextBox box;
        box.SetText(text);
        layOut(box);
        QTextEdit bare;
        bare.setPlainText(text);
        layOut(bare);
        keys(box, bare);
        find(box, bare);
    }
    batches(text);
    appending();
    return 0;
}
