// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <atomic>
#include <utility>

// Another library's allocator has no names to pass its requests on to, and a sanitizer needs its
// own.
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
#define ORVALIS_COUNTS_MEMORY
#endif

namespace orvalis::test {

/// What a piece of work took from the allocator and moved about in it. Unlike its time this is the
/// same at every run, so a test may bound it; work that is copied over and over shows in it as well
/// as work that is kept.
struct TakenMemory {
    qint64 asked = 0;   ///< bytes of all requests together, given back or not
    qint64 peak = 0;    ///< bytes held at once, at the most, beyond what was held before
    qint64 shifted = 0; ///< bytes that made room inside a block, as each insertion in a text does
};

#ifdef ORVALIS_COUNTS_MEMORY

constexpr bool CountsMemory = true;

extern std::atomic<qint64> askedMemory;
extern std::atomic<qint64> heldMemory;
extern std::atomic<qint64> peakMemory;
extern std::atomic<qint64> shiftedMemory;

/// Counts for all threads, those of Qt's and the system's libraries included.
template <class Work>
TakenMemory memoryTakenBy(Work&& work) {
    const qint64 asked = askedMemory;
    const qint64 held = heldMemory;
    const qint64 shifted = shiftedMemory;
    peakMemory = held;
    std::forward<Work>(work)();
    return {askedMemory - asked, peakMemory - held, shiftedMemory - shifted};
}

#else

constexpr bool CountsMemory = false;

/// Does the work and counts nothing.
template <class Work>
TakenMemory memoryTakenBy(Work&& work) {
    std::forward<Work>(work)();
    return {};
}

#endif

} // namespace orvalis::test
