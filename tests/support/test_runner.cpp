// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "support/test_main.h"

#include <cstdio>
#include <map>
#include <string>
#include <string_view>

namespace orvalis::test {

namespace {

using KnownTests = std::map<std::string, TestMain, std::less<>>;

/// A function's own, for the tests of other sources are made known before this one is initialised.
KnownTests& knownTests() {
    static KnownTests tests;
    return tests;
}

std::string nameOf(std::string_view file) {
    file.remove_prefix(file.rfind('/') + 1);
    return std::string(file.substr(0, file.find('.')));
}

} // namespace

KnownTest::KnownTest(const char* file, TestMain main) {
    knownTests().emplace(nameOf(file), main);
}

} // namespace orvalis::test

/// Runs the one test that the first argument names, with the arguments behind it: a class that
/// ended its program or changed its ground is no neighbour of the next.
int main(int argc, char** argv) {
    using namespace orvalis::test;
    const auto test = argc < 2 ? knownTests().end() : knownTests().find(argv[1]);
    if (test == knownTests().end()) {
        std::fprintf(stderr, "usage: %s TEST [FUNCTION...], where TEST is one of\n", argv[0]);
        for (const auto& [name, main] : knownTests())
            std::fprintf(stderr, "  %s\n", name.c_str());
        return 2;
    }
    argv[1] = argv[0];
    return test->second(argc - 1, argv + 1);
}
