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
#include <malloc.h>
#endif

namespace orvalis::test {

/// What a piece of work took from the allocator. Unlike its time this is the same at every run, so
/// a test may bound it; work that is copied over and over shows in it as well as work that is kept.
struct TakenMemory {
    qint64 asked = 0; ///< bytes of all requests together, given back or not
    qint64 peak = 0;  ///< bytes held at once, at the most, beyond what was held before
};

#ifdef ORVALIS_COUNTS_MEMORY

constexpr bool CountsMemory = true;

inline std::atomic<qint64> askedMemory = 0;
inline std::atomic<qint64> heldMemory = 0;
inline std::atomic<qint64> peakMemory = 0;

inline void* countTaken(void* memory, size_t size) noexcept {
    askedMemory += qint64(size);
    const qint64 held = heldMemory += qint64(malloc_usable_size(memory));
    if (held > peakMemory)
        peakMemory = held;
    return memory;
}

inline void countGiven(void* memory) noexcept {
    heldMemory -= qint64(malloc_usable_size(memory));
}

/// Counts for all threads, those of Qt's and the system's libraries included.
template <class Work>
TakenMemory memoryTakenBy(Work&& work) {
    const qint64 asked = askedMemory;
    const qint64 held = heldMemory;
    peakMemory = held;
    std::forward<Work>(work)();
    return {askedMemory - asked, peakMemory - held};
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

#ifdef ORVALIS_COUNTS_MEMORY

// They stand in for the C library's in the whole program, so one source of it includes this.
extern "C" {

void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* memory, size_t size);
void __libc_free(void* memory);

void* malloc(size_t size) noexcept {
    return orvalis::test::countTaken(__libc_malloc(size), size);
}

void* calloc(size_t count, size_t size) noexcept {
    return orvalis::test::countTaken(__libc_calloc(count, size), count * size);
}

void* realloc(void* memory, size_t size) noexcept {
    orvalis::test::countGiven(memory);
    return orvalis::test::countTaken(__libc_realloc(memory, size), size);
}

void free(void* memory) noexcept {
    orvalis::test::countGiven(memory);
    __libc_free(memory);
}
}

#endif
