// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/clock_text.h"

#include "runtime/format.h"

#include <array>

namespace orvalis {

namespace {

enum class Source { Long, Short };

struct ClockFormat {
    const char16_t* pattern;
    Source source;
};

constexpr std::array<ClockFormat, ClockFormatCount> ClockFormats{{
    {u"hh : mm : ss", Source::Long},
    {u"h : m : s", Source::Long},
    {u"hh : mm : ss AMPM", Source::Long},
    {u"hh : mm AMPM", Source::Long},
    {u"hh : mm AMPM", Source::Long},
    {u"hh : mm", Source::Short},
    {u"hh : mm : ss", Source::Short},
    {u"h : m", Source::Short},
    {u"h / m / s", Source::Long},
    {u"hh / mm / ss AMPM", Source::Long},
    {u"hh / mm AMPM", Source::Long},
    {u"hh / mm", Source::Short},
    {u"hh/ mm/ ss", Source::Short},
}};

/// What is left of a time that went through the text of its source.
QTime told(QTime now, Source source) {
    return QTime(now.hour(), now.minute(), source == Source::Long ? now.second() : 0);
}

} // namespace

QString ClockText(int index, QTime now) {
    if (index < 0 || index >= ClockFormatCount)
        return {};
    const ClockFormat& format = ClockFormats[static_cast<std::size_t>(index)];
    return Format(told(now, format.source), format.pattern);
}

} // namespace orvalis
