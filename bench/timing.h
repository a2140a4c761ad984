// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>

#include <algorithm>
#include <ctime>
#include <limits>
#include <vector>

namespace orvalis::bench {

inline double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// How long the work takes, in milliseconds.
template <class Work>
double millisecondsOf(Work&& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// The median of what the work takes over some rounds, in milliseconds. What is done between two
/// rounds is not counted.
template <class Work, class Between>
double medianMilliseconds(int rounds, Work&& work, Between&& between) {
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        times.push_back(millisecondsOf(work));
        between();
    }
    return median(std::move(times));
}

template <class Work>
double medianMilliseconds(int rounds, Work&& work) {
    return medianMilliseconds(
        rounds, work, [] {});
}

/// Processor time of the work in seconds, the least of some rounds: what else the machine does only
/// ever adds to it.
template <class Work>
double processorSeconds(int rounds, Work&& work) {
    double least = std::numeric_limits<double>::max();
    for (int round = 0; round < rounds; ++round) {
        const std::clock_t start = std::clock();
        work();
        least = std::min(least, double(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return least;
}

} // namespace orvalis::bench
