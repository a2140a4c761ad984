// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_text_box.h"
#include "timing.h"

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextDocument>

#include <algorithm>
#include <cstdio>

using namespace orvalis;
using namespace orvalis::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int Hits = 20'000;
constexpr int Characters = 1'000'000;

void tell(const char* what, double milliseconds, double limit, double bare = 0) {
    std::printf("%-60s %9.3f ms", what, milliseconds);
    if (limit > 0)
        std::printf("  limit %4.0f ms  %s", limit, milliseconds <= limit ? "kept" : "MISSED");
    if (bare > 0)
        std::printf("  (bare editor %.3f ms, ratio %.2f)", bare, milliseconds / bare);
    std::printf("\n");
}

void show(QTextEdit& edit) {
    edit.resize(300, 320);
    edit.show();
    (void)edit.document()->size();
    QApplication::processEvents();
}

/// All hits of a paragraph replaced as one step. \returns how many there were.
int replaceAll(RichTextBox& box) {
    int hits = 0;
    const RichTextBox::Batch batch(box);
    for (int at = box.Find(u"cat"_s); at >= 0; at = box.Find(u"cat"_s, at + 1)) {
        box.SetSelText(u"mouse"_s);
        ++hits;
    }
    return hits;
}

void replacing(const char* what, const QString& piece) {
    const QString text = piece.repeated(Hits);
    RichTextBox box;
    box.SetText(text);
    int hits = 0;
    const double time = medianMilliseconds(
        3, [&] { hits = replaceAll(box); }, [&] { box.SetText(text); });
    std::printf("%d hits in %lld characters, ", hits, static_cast<long long>(text.size()));
    tell(what, time, 300);
}

void replacingInSight() {
    const QString text = u"a cat run "_s.repeated(Hits);
    RichTextBox box;
    box.SetText(text);
    show(box);
    int hits = 0;
    const double time = medianMilliseconds(
        3, [&] { hits = replaceAll(box); },
        [&] {
            box.SetText(text);
            (void)box.document()->size();
        });
    QTextEdit bare;
    bare.setPlainText(text);
    show(bare);
    const double layout = medianMilliseconds(3, [&] {
        QTextCursor cursor(bare.document());
        cursor.insertText(u"x"_s);
    });
    std::printf("%d hits, ", hits);
    tell("the box in sight (bare: one layout)", time, 0, layout);
    box.Undo();
}

void pressKey(QTextEdit& edit) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, u"x"_s);
    QApplication::sendEvent(&edit, &press);
}

double repaint(QTextEdit& edit) {
    QImage image(edit.size(), QImage::Format_ARGB32_Premultiplied);
    return medianMilliseconds(15, [&] { edit.render(&image); });
}

void oneParagraph(const char* what, const QString& piece) {
    const QString text = piece.repeated(Characters / int(piece.size()));
    RichTextBox box;
    box.SetText(text);
    show(box);
    // Both show the same letters: marks for control characters are of another font.
    QTextEdit bare;
    bare.setPlainText(box.document()->toRawText());
    show(bare);
    std::printf("one paragraph of 1 MB, %s:\n", what);

    QTextCursor middle(bare.document());
    middle.setPosition(Characters / 2);
    bare.setTextCursor(middle);
    box.SetSelStart(Characters / 2);
    (void)box.Text();
    const double bareKey = medianMilliseconds(
        5, [&] { pressKey(bare); });
    tell("  a key", medianMilliseconds(5, [&] { pressKey(box); }), 0, bareKey);
    qint64 sum = 0;
    tell("  SelStart and SelLength",
         medianMilliseconds(
             99, [&] { sum += box.SelStart() + box.SelLength(); }),
         1);
    tell("  SetSelStart", medianMilliseconds(99, [&] { box.SetSelStart(Characters / 3); }), 1);
    box.SetSelLength(100);
    tell("  SelText of 100 characters",
         medianMilliseconds(99, [&] { sum += box.SelText().size(); }), 1);
    box.SetSelStart(Characters / 2);
    (void)box.Text();
    tell("  SelStart, SelText and Text behind a key",
         medianMilliseconds(
             5, [&] { sum += box.SelStart() + box.SelText().size() + box.Text().size(); },
             [&] { pressKey(box); }),
         2);
    box.verticalScrollBar()->setValue(box.verticalScrollBar()->maximum() / 2);
    bare.verticalScrollBar()->setValue(bare.verticalScrollBar()->maximum() / 2);
    tell("  a repaint", repaint(box), 0, repaint(bare));
    if (sum == 0)
        std::printf("nothing was read\n");
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    replacing("one paragraph", u"a cat run "_s);
    replacing("one paragraph of lines", u"a cat run\u2028"_s);
    replacing("one paragraph with control characters", u"a cat\x01run "_s);
    replacing("a paragraph each", u"a cat run\r\n"_s);
    replacingInSight();
    oneParagraph("words", u"some words "_s);
    oneParagraph("blanks that do not break", u"some\u00A0words of\u00A0it "_s);
    oneParagraph("control characters", u"ab\x01\x02 "_s);
    return 0;
}
