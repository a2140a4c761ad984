// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <compare>
#include <concepts>

namespace orvalis {

/// A signed 16-bit number that fails instead of wrapping: counters and text positions are of this
/// kind, and several limits of the program are nothing but its overflow.
class Integer16 {
public:
    static constexpr int Lowest = -32768;
    static constexpr int Highest = 32767;

    constexpr Integer16() = default;
    /// \throws RuntimeError Overflow outside -32768 to 32767. Not explicit, so that a plain number
    /// can be assigned where a counter stands.
    template <std::integral Number>
    constexpr Integer16(Number number)
        : m_value(checked(static_cast<qint64>(number))) {}

    /// The nearest whole number, a tie going to the even one.
    /// \throws RuntimeError Overflow outside the range.
    static Integer16 fromNumber(double number);
    /// The number that a text tells, rounded likewise.
    /// \throws RuntimeError TypeMismatch when the text is no number, Overflow outside the range.
    static Integer16 fromText(QStringView text);

    constexpr operator int() const { return m_value; }

    constexpr Integer16& operator+=(Integer16 other) { return assign(m_value + other.m_value); }
    constexpr Integer16& operator-=(Integer16 other) { return assign(m_value - other.m_value); }
    constexpr Integer16& operator*=(Integer16 other) {
        return assign(qint64{m_value} * other.m_value);
    }
    constexpr Integer16& operator++() { return *this += Integer16(1); }
    constexpr Integer16& operator--() { return *this -= Integer16(1); }

    friend constexpr Integer16 operator+(Integer16 a, Integer16 b) { return a += b; }
    friend constexpr Integer16 operator-(Integer16 a, Integer16 b) { return a -= b; }
    friend constexpr Integer16 operator*(Integer16 a, Integer16 b) { return a *= b; }
    friend constexpr Integer16 operator-(Integer16 a) { return Integer16(0) - a; }
    friend constexpr bool operator==(Integer16, Integer16) = default;
    friend constexpr auto operator<=>(Integer16, Integer16) = default;

    // Whole numbers beside a counter count as counters themselves, so that no sum slips out of the
    // checked range by way of int.
    template <std::integral Number>
    friend constexpr Integer16 operator+(Integer16 a, Number b) {
        return a + Integer16(b);
    }
    template <std::integral Number>
    friend constexpr Integer16 operator+(Number a, Integer16 b) {
        return Integer16(a) + b;
    }
    template <std::integral Number>
    friend constexpr Integer16 operator-(Integer16 a, Number b) {
        return a - Integer16(b);
    }
    template <std::integral Number>
    friend constexpr Integer16 operator-(Number a, Integer16 b) {
        return Integer16(a) - b;
    }
    template <std::integral Number>
    friend constexpr Integer16 operator*(Integer16 a, Number b) {
        return a * Integer16(b);
    }
    template <std::integral Number>
    friend constexpr Integer16 operator*(Number a, Integer16 b) {
        return Integer16(a) * b;
    }
    // A comparison asks nothing of the range: any whole number may stand beside a counter.
    template <std::integral Number>
    friend constexpr bool operator==(Integer16 a, Number b) {
        return qint64{a.m_value} == static_cast<qint64>(b);
    }
    template <std::integral Number>
    friend constexpr auto operator<=>(Integer16 a, Number b) {
        return qint64{a.m_value} <=> static_cast<qint64>(b);
    }

private:
    static constexpr qint16 checked(qint64 number) {
        if (number < Lowest || number > Highest)
            overflow();
        return static_cast<qint16>(number);
    }
    [[noreturn]] static void overflow();

    constexpr Integer16& assign(qint64 number) {
        m_value = checked(number);
        return *this;
    }

    qint16 m_value = 0;
};

} // namespace orvalis
