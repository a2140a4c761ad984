// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "letters/letters_ground.h"
#include "skin/style.h"
#include "timing.h"

#include <QTextEdit>

#include <cstdio>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

constexpr int Rounds = 9;

void settle() {
    QApplication::processEvents();
}

} // namespace

int main(int argc, char** argv) {
    test::fixedGround();
    QApplication app(argc, argv);
    skin::dress(app);
    test::LettersGround ground;
    ground.notes().form().Show();
    settle();

    const double first = bench::millisecondsOf(
        [] { templateText(u"Write a recommendatin", TemplateKind::Sentences); });
    const auto open = [&] {
        ground.window().Show();
        settle();
    };
    const double firstOpening = bench::millisecondsOf(open);
    ground.cancel();
    settle();
    const double opening = bench::medianMilliseconds(Rounds, open, [&] {
        ground.cancel();
        settle();
    });

    open();
    double slowest = 0;
    QString slowestName;
    // Processor time, the least of some rounds: one click that the machine held up is not a slow
    // one.
    const auto note = [&](const QString& name, const auto& click) {
        const double took = 1000 * bench::processorSeconds(Rounds, [&] {
                                click();
                                settle();
                            });
        if (took > slowest) {
            slowest = took;
            slowestName = name;
        }
    };
    const QStringList topics = templateTopics();
    for (const QString& topic : topics) {
        ground.tree().scrollTo(ground.node(topic));
        settle();
        note(topic, [&] { ground.choose(topic); });
        for (const int kind : {1, 2})
            note(u"%1, kind %2"_s.arg(topic).arg(kind), [&] { ground.chooseKind(kind); });
    }

    QTextEdit bare;
    bare.resize(ground.rtp().size());
    bare.show();
    settle();
    const QString longest =
        templateText(u"Write a recommendatin", TemplateKind::Sentences).value_or(QString());
    const double yardstick = bench::medianMilliseconds(Rounds, [&] {
        bare.setPlainText(longest);
        settle();
    });

    std::printf("first text of the catalogue, not shown: %.2f ms\n", first);
    std::printf("opening the letters: %.1f ms, the first time %.1f ms\n", opening, firstOpening);
    std::printf("slowest click of all, until painted: %.1f ms (%s)\n", slowest,
                qPrintable(slowestName));
    std::printf("a bare QTextEdit given the longest text, until painted: %.1f ms\n", yardstick);
    return 0;
}
