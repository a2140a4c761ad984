// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// rtf_flood_bench [NAME]: what a document of nothing but one thing costs, and four times as much of
// it; with a name only the floods called so.
// rtf_flood_bench --huge [NAME]: time and memory for 200 MB of each. Takes more than half an hour
// and some GB.
#include "rtf/reader.h"
#include "support/rtf_floods.h"
#include "support/test_main.h"
#include "timing.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <cstdio>
#include <limits>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace orvalis;
using namespace orvalis::rtf;
using namespace Qt::StringLiterals;
using bench::processorSeconds;
using test::RtfFlood;

namespace {

constexpr qsizetype Megabyte = 1'000'000;
constexpr qsizetype SmallSize = 2 * Megabyte;
constexpr int Times = 4;
constexpr int Rounds = 3;
constexpr double GrowthLimit = 2.0 * Times;
constexpr double Ground = 0.02; // seconds in which no growth is seen
constexpr qsizetype HugeSize = 200 * Megabyte;
constexpr unsigned LongestReading = 600; // seconds; what takes longer is taken for endless
constexpr qint64 MemoryPerByte = 40;
constexpr qint64 MemoryGround = qint64(64) << 20;

const char* verdict(bool kept) {
    return kept ? "kept" : "MISSED";
}

bool keepsText(const QTextDocument& document) {
    return document.firstBlock().text().startsWith(u"text"_s);
}

/// Processor seconds for a reading into a new document, the least of some; negative when the text
/// in front was lost.
double readingSeconds(const QByteArray& rtf) {
    double least = std::numeric_limits<double>::max();
    for (int round = 0; round < Rounds; ++round) {
        QTextDocument document;
        least = std::min(least, processorSeconds(1, [&] { readRtf(rtf, document); }));
        if (!keepsText(document))
            return -1;
    }
    return least;
}

bool growth(const RtfFlood& flood) {
    const double small = readingSeconds(flood.ofSize(SmallSize));
    const double large = readingSeconds(flood.ofSize(Times * SmallSize));
    const bool kept = small >= 0 && large >= 0 && large <= GrowthLimit * small + Ground;
    std::printf("%-32s %8.3f %8.3f %8.1f x  limit %.1f x  %s\n", flood.name, small, large,
                small > 0 ? large / small : 0, GrowthLimit, verdict(kept));
    return kept;
}

/// What a reading took in a process of its own.
struct Answer {
    double time = -1; ///< seconds, negative when the process died
    qint64 memory = -1;
    bool keptText = false; ///< of what stands in front of the trouble
};

Answer readInAChild(const QByteArray& rtf) {
    int ends[2];
    if (pipe(ends) != 0)
        return {};
    const pid_t child = fork();
    if (child == 0) {
        alarm(LongestReading);
        const auto peak = [] {
            rusage usage{};
            getrusage(RUSAGE_SELF, &usage);
            return qint64(usage.ru_maxrss) * 1024;
        };
        const qint64 before = peak();
        QTextDocument document;
        const double time = processorSeconds(1, [&] { readRtf(rtf, document); });
        const Answer answer{time, peak() - before, keepsText(document)};
        const bool told = ::write(ends[1], &answer, sizeof answer) == sizeof answer;
        _exit(told ? 0 : 1);
    }
    close(ends[1]);
    Answer answer;
    if (::read(ends[0], &answer, sizeof answer) != sizeof answer)
        answer = {};
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return answer;
}

bool inBounds(const Answer& answer, qsizetype size) {
    return answer.keptText && answer.memory >= 0 &&
           answer.memory <= MemoryPerByte * size + MemoryGround;
}

bool huge(const RtfFlood& flood) {
    const Answer small = readInAChild(flood.ofSize(HugeSize / 10));
    const Answer large = readInAChild(flood.ofSize(HugeSize));
    const bool kept = inBounds(small, HugeSize / 10) && inBounds(large, HugeSize);
    std::printf("%-32s %6.2f s (a tenth %5.2f s) %6.1f x the file (a tenth %5.1f x) %s\n",
                flood.name, large.time, small.time, double(large.memory) / HugeSize,
                double(small.memory) / HugeSize * 10, verdict(kept));
    return kept;
}

} // namespace

int main(int argc, char** argv) {
    test::fixedGround();
    const QGuiApplication app(argc, argv);
    QStringList arguments = QGuiApplication::arguments().sliced(1);
    const bool wantsHuge = arguments.removeOne(u"--huge"_s);
    if (wantsHuge)
        std::printf("floods of %lld MB into a document, memory limit %lld x + %lld MB\n",
                    static_cast<long long>(HugeSize / Megabyte),
                    static_cast<long long>(MemoryPerByte),
                    static_cast<long long>(MemoryGround >> 20));
    else
        std::printf("processor seconds for floods of %lld MB and of %lld MB into a document\n",
                    static_cast<long long>(SmallSize / Megabyte),
                    static_cast<long long>(Times * SmallSize / Megabyte));
    bool allKept = true;
    for (const RtfFlood& flood : test::rtfFloods()) {
        if (!QString::fromLatin1(flood.name).contains(arguments.value(0)))
            continue;
        allKept &= wantsHuge ? huge(flood) : growth(flood);
        std::fflush(stdout);
    }
    return allKept ? 0 : 1;
}
