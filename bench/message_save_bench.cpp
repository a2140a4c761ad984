// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/panel_ground.h"
#include "planner/todo_entry.h"
#include "timing.h"

#include <QDir>
#include <QScrollBar>
#include <QTextEdit>

#include <cstdio>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

constexpr int Entries = 5'000;
constexpr int Rounds = 9;

template <class Work>
double median(Work&& work) {
    return bench::medianMilliseconds(
        Rounds, work, [] { QApplication::processEvents(); });
}

QString message(int number) {
    return u"Call number %1 back, ask for the key and for the price of the new one"_s.arg(number);
}

/// A to-do document as years of saving leave it.
void writeDocument(const QString& path) {
    RichTextBox box;
    const RichTextBox::Batch batch(box);
    const QDateTime now(QDate(2026, 3, 14), QTime(10, 24, 36));
    for (int entry = 0; entry < Entries; ++entry) {
        box.SetSelFontSize(10);
        box.SetSelText(entryTitle(u"Title"_s) + entryMessageBreak() + message(entry));
        box.SetSelFontSize(8);
        box.SetSelColor(entry % 3 == 0 ? 255 : 0);
        box.SetSelText(entryDueLine(now.date()));
        box.SetSelColor(0);
        box.SetSelText(entrySavedLine(now));
    }
    box.files().SaveFile(path);
}

/// Lays the whole document out, as an hour of scrolling does.
void layOut(QTextEdit& edit) {
    edit.moveCursor(QTextCursor::End);
    QApplication::processEvents();
    edit.verticalScrollBar()->setValue(edit.verticalScrollBar()->maximum());
    QApplication::processEvents();
}

} // namespace

int main(int argc, char** argv) {
    test::fixedGround();
    // In memory, so that the figure is the program's and not the disk's.
    if (QDir(u"/dev/shm"_s).exists())
        qputenv("TMPDIR", "/dev/shm");
    QApplication app(argc, argv);
    test::PanelGround ground;
    writeDocument(ground.app.file(u"Vazno.rtf"_s));

    const double open = bench::millisecondsOf([&] {
        ground.shown();
        layOut(ground.rt1a());
    });

    int number = Entries;
    const double save = median([&] {
        ground.rt1().SetText(message(number++));
        ground.tick(u"chkTop"_s);
        ground.press(u"imgSave"_s);
    });

    QTextEdit bare;
    bare.resize(ground.rt1a().size());
    bare.setPlainText(ground.rt1a().Text());
    bare.show();
    layOut(bare);
    const double yardstick = median([&] {
        bare.append(message(number++));
        const QByteArray written = bare.document()->toHtml().toUtf8();
        if (written.isEmpty())
            std::abort();
    });

    std::printf("to-do document of %d entries, %.1f MB: loaded, shown and laid out in %.0f ms\n",
                Entries, static_cast<double>(ground.folder.read(u"Vazno.rtf"_s).size()) / 1e6,
                open);
    std::printf("message save onto it: %.1f ms (aim: below 150)\n", save);
    std::printf(
        "  a bare text edit appending a line and making its HTML, for comparison: %.1f ms\n",
        yardstick);
    return save < 150 ? 0 : 1;
}
