// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/failure.h"

#include <optional>
#include <utility>

namespace orvalis::test {

/// The number of the failure that ends a piece of work, nothing where it goes through.
template <class Work>
std::optional<ErrorNumber> failureOf(Work&& work) {
    const std::optional<RuntimeError> failure = firstFailure(std::forward<Work>(work));
    return failure ? std::optional(failure->number()) : std::nullopt;
}

} // namespace orvalis::test
