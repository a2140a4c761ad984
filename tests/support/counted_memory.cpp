// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "support/counted_memory.h"

#ifdef ORVALIS_COUNTS_MEMORY

#include <cstring>

#include <dlfcn.h>
#include <malloc.h>

namespace orvalis::test {

std::atomic<qint64> askedMemory = 0;
std::atomic<qint64> heldMemory = 0;
std::atomic<qint64> peakMemory = 0;
std::atomic<qint64> shiftedMemory = 0;

namespace {

void* countTaken(void* memory, size_t size) noexcept {
    askedMemory += qint64(size);
    const qint64 held = heldMemory += qint64(malloc_usable_size(memory));
    if (held > peakMemory)
        peakMemory = held;
    return memory;
}

void countGiven(void* memory) noexcept {
    heldMemory -= qint64(malloc_usable_size(memory));
}

/// The C library's own, which has no other name: the fastest of several for this machine.
using Move = void* (*)(void*, const void*, size_t);
std::atomic<Move> ownMove = nullptr;

} // namespace

} // namespace orvalis::test

// They stand in for the C library's in the whole program; the linker takes them only where a test
// asks what was counted.
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

void* memmove(void* to, const void* from, size_t size) noexcept {
    using namespace orvalis::test;
    Move move = ownMove;
    if (move == nullptr)
        ownMove = move = reinterpret_cast<Move>(dlsym(RTLD_NEXT, "memmove"));
    shiftedMemory += qint64(size);
    return move(to, from, size);
}

void free(void* memory) noexcept {
    orvalis::test::countGiven(memory);
    __libc_free(memory);
}
}

#endif
