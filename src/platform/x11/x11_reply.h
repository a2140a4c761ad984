// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <memory>

namespace orvalis {

/// What the X server answers, an event or an error, freed as the library wants it.
template <class Reply>
using HeldReply = std::unique_ptr<Reply, decltype(&std::free)>;

template <class Reply>
HeldReply<Reply> held(Reply* reply) {
    return {reply, &std::free};
}

} // namespace orvalis
