// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <exception>
#include <optional>
#include <utility>

namespace orvalis {

/// Numbers of the failures that the program can raise or meet.
enum class ErrorNumber : int {
    InvalidProcedureCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    FileNotFound = 53,
    InputPastEndOfFile = 62,
    PermissionDenied = 70,
    PathFileAccessError = 75,
    PathNotFound = 76,
    ObjectVariableNotSet = 91,
    InvalidUseOfNull = 94,
    InvalidFileFormat = 321,
    InvalidPropertyValue = 380,
    InvalidPicture = 481,
    PrinterError = 482,
    GridOutOfMemory = 30006,
    InvalidRowValue = 30009,
    CannotRemoveLastRow = 30015,
    CancelWasSelected = 32755,
};

/// The words that go with a failure's number.
QString errorDescription(ErrorNumber number);

/// The one exception of the program. A handler names the policy under which it meets failures (the
/// three helpers below); a failure that leaves a handler without one ends the program with a box.
class RuntimeError : public std::exception {
public:
    explicit RuntimeError(ErrorNumber number)
        : RuntimeError(number, errorDescription(number)) {}
    RuntimeError(ErrorNumber number, const QString& description);

    ErrorNumber number() const { return m_number; }
    const QString& description() const { return m_description; }
    const char* what() const noexcept override { return m_what.constData(); }

private:
    ErrorNumber m_number;
    QString m_description;
    QByteArray m_what;
};

/// What a property refuses. \throws RuntimeError InvalidPropertyValue where it is not valid.
inline void requireProperty(bool valid) {
    if (!valid)
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
}

/// Policy "pass over": runs each statement in turn; one that fails is given up and the next one
/// runs.
template <class... Statements>
void resumeNext(Statements&&... statements) {
    const auto attempt = [](auto&& statement) {
        try {
            statement();
        } catch (const RuntimeError&) { // passing over is the policy
        }
    };
    (attempt(std::forward<Statements>(statements)), ...);
}

/// Policy "end silently": the first failure ends the block and nobody hears of it.
/// \returns whether the block ran to its end.
template <class Block>
bool endSilently(Block&& block) {
    try {
        std::forward<Block>(block)();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

/// Policy "report": the first failure ends the block and is handed back, for the caller to show its
/// description with the flags that belong to its handler. Empty when the block ran to its end.
template <class Block>
std::optional<RuntimeError> firstFailure(Block&& block) {
    try {
        std::forward<Block>(block)();
        return std::nullopt;
    } catch (const RuntimeError& error) {
        return error;
    }
}

} // namespace orvalis
