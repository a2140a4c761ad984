// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/wave_file.h"

#include <cstdint>
#include <cstdlib>

/// Any bytes are a sound of whole frames, no longer than they are, or none.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto sound = orvalis::readWave(QByteArrayView(data, static_cast<qsizetype>(size)));
    if (sound &&
        (sound->samples.size() % sound->bytesPerFrame() != 0 ||
         sound->samples.size() > static_cast<qsizetype>(size) || sound->milliseconds() < 0))
        std::abort();
    return 0;
}
