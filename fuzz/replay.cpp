// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT

// Stands in for libFuzzer's main(): feeds the files of the folders given to a target, one after the
// other, as an ordinary test does, and names each first, so that the one that kills it is known.

#include <QByteArray>
#include <QDirIterator>
#include <QFile>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
extern "C" [[gnu::weak]] int LLVMFuzzerInitialize(int* argc, char*** argv);

int main(int argc, char** argv) {
    if (LLVMFuzzerInitialize != nullptr)
        LLVMFuzzerInitialize(&argc, &argv);
    int seeds = 0;
    for (int i = 1; i < argc; ++i) {
        QDirIterator files(QFile::decodeName(argv[i]), QDir::Files);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "%s cannot be read\n", qPrintable(file.fileName()));
                return 2;
            }
            std::printf("%s\n", qPrintable(file.fileName()));
            std::fflush(stdout);
            const QByteArray bytes = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                                   std::size_t(bytes.size()));
            ++seeds;
        }
    }
    if (seeds == 0)
        std::fprintf(stderr, "there is no seed to replay\n");
    return seeds > 0 ? 0 : 2;
}
